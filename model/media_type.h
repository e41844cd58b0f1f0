#pragma once

#include <QString>

namespace velmora {

/** Kinds of media; the numbers are part of the program's interfaces. */
enum MediaType : int { imageMedia = 0, audioMedia = 1, videoMedia = 2, otherMedia = 3 };

/** What a file's path says of it. */
struct MediaKind {
    MediaType type = otherMedia;
    QString extension; ///< as it stands in the path, without its dot
    /** The path of the file that carries the tag: for a DVD folder (video_ts.ifo) or a disc image (iso) the
       side file with the extension TAG, otherwise the path itself. */
    QString taggedFile;
};

/** The kind of the file at PATH, told by its name without regard to case; the file is not looked at. */
[[nodiscard]] MediaKind mediaKindOfPath(const QString& path);

} // namespace velmora
