#include "path.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace velmora {

std::uint32_t GetTempFileName(const char* directory, const char* prefix, std::uint32_t unique, char* name) {
    if (!directory || !prefix || !name) {
        return 0;
    }
    std::snprintf(name, temp_file_name_capacity, "%s/%s.XXXXXX", directory, prefix);
    // The system's generator reports a failure (a cut template among them) with an empty name.
    // NOLINTNEXTLINE(clang-analyzer-security.insecureAPI.mktemp): a name is all that is wanted
    if (!::mktemp(name) || name[0] == '\0') {
        return 0;
    }
    return unique != 0 ? unique : 1;
}

void PathRemoveFileSpec(char* path) {
    if (!path) {
        return;
    }
    if (char* const slash = std::strrchr(path, '/')) {
        *slash = '\0';
    }
}

OwnedText folder_of_file(const char* path) {
    OwnedText folder(::strdup(path));
    PathRemoveFileSpec(folder.get());
    return folder;
}

} // namespace velmora
