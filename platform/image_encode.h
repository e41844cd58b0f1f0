#pragma once

#include <QByteArray>
#include <QImage>

namespace velmora {

/** PIXELS as a JPEG stream: compression factor 0.2 (quality 20 of 100), progressive, transparency flattened
   onto white; the nominal size plays no part. Empty when they can't be encoded, as those of a null image.
   Pixels that nobody else holds are let go of on the way, so that the largest picture takes no more than they
   did. */
[[nodiscard]] QByteArray encodedAsJpeg(QImage pixels);

/** PIXELS as a JPEG stream of quality 90 of 100, in one pass, transparency flattened onto white: for pictures
   that are to stay as they look. Empty when they can't be encoded, as those of a null image. */
[[nodiscard]] QByteArray encodedAsFineJpeg(QImage pixels);

} // namespace velmora
