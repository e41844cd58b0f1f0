#pragma once

#include "../path.h"

#include <cstring>
#include <string>

namespace velmora {

/** The folder of the file PATH: what stands in front of its last "/". A path without one comes back whole. */
inline std::string id3_folder_of(const char* path) {
    std::string folder = path;
    PathRemoveFileSpec(folder.data());
    folder.resize(std::strlen(folder.c_str()));
    return folder;
}

} // namespace velmora
