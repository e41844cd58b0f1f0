#pragma once

#include <QString>

namespace velmora {

/** Kinds of media; the numbers are part of the program's interfaces. */
enum MediaType : int { imageMedia = 0, audioMedia = 1, videoMedia = 2, otherMedia = 3 };

/** The media type of a file, told by its extension without regard to case. */
[[nodiscard]] MediaType mediaTypeOfPath(const QString& path);

/** The file that carries PATH's tag: for a DVD folder (video_ts.ifo) or a disc image (iso) the side file with
   the extension TAG, otherwise PATH itself. */
[[nodiscard]] QString taggedFileOfPath(const QString& path);

} // namespace velmora
