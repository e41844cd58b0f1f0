#pragma once

#include "taglib/file_info.h"

#include <QString>

namespace velmora {

/** The functions that read and write one kind of tag. Both take the path in the file system's encoding and
   return non-zero for success. */
struct TagModule {
    int (*load)(const char* path, _file_info_t* info);
    int (*store)(const char* path, _file_info_t* info);
};

/** The tag module for files with EXTENSION (without its dot), whatever its case; ID3 for all that have no other. */
[[nodiscard]] const TagModule& tagModuleOfExtension(const QString& extension);

} // namespace velmora
