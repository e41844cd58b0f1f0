#pragma once

#include "taglib/file_info.h"

#include <QString>

namespace velmora {

/** Kinds of media; the numbers are part of the program's interfaces. */
enum MediaType : int { imageMedia = 0, audioMedia = 1, videoMedia = 2, otherMedia = 3 };

/** The media type of a file, told by its extension without regard to case. */
[[nodiscard]] MediaType mediaTypeOfPath(const QString& path);

/** The functions that read and write one kind of tag. Both take the path in the file system's encoding and
   return non-zero for success. */
struct TagModule {
    int (*load)(const char* path, _file_info_t* info);
    int (*store)(const char* path, _file_info_t* info);
};

/** The tag module for a file, told by its extension without regard to case; ID3 for all that have no other.
 */
[[nodiscard]] const TagModule& tagModuleOfPath(const QString& path);

/** The file that carries PATH's tag: for a DVD folder (video_ts.ifo) or a disc image (iso) the side file with
   the extension TAG, otherwise PATH itself. */
[[nodiscard]] QString taggedFileOfPath(const QString& path);

} // namespace velmora
