#pragma once

#include <QByteArray>

namespace velmora {

/** In how many passes a JPEG stream brings its picture. */
enum class JpegPasses { One, Progressive };

/** JPEG written anew with the same coefficients, and so with the same pixels to the bit, in one pass or as a
   progressive stream. Takes the coefficients' memory (2 bytes for each sample that the stream holds; see
   JpegStream) and none for pixels. Empty when the stream is damaged beyond decoding or in a form that has no
   such counterpart. */
[[nodiscard]] QByteArray recodedJpeg(const QByteArray& jpeg, JpegPasses passes);

/** Whether all of JPEG, a stream of one pixel (see emptiedJpeg), can be decoded into the pixels of a
   picture. */
[[nodiscard]] bool isDecodedWhole(const QByteArray& jpeg);

/** Whether the top of the picture in JPEG can be decoded, which takes little time whatever its size. */
[[nodiscard]] bool jpegBeginsWell(const QByteArray& jpeg);

} // namespace velmora
