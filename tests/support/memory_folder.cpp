#include "memory_folder.h"

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <sys/xattr.h>
#include <system_error>
#include <unistd.h>

namespace velmora::test {

namespace {

constexpr const char* memory = "/dev/shm";
constexpr std::uintmax_t room = 512U << 20U; ///< bytes

/** Whether a file there can have an attribute: not on every system that has such a file system. */
bool keeps_attributes() {
    std::string path = std::string(memory) + "/velmora-test-XXXXXX";
    const int file = ::mkstemp(path.data());
    if (file < 0) {
        return false;
    }
    const bool kept = ::fsetxattr(file, "user.origin", "disc", 4, 0) == 0;
    ::close(file);
    ::unlink(path.c_str());
    return kept;
}

} // namespace

void scratch_in_memory() {
    std::error_code failed;
    const std::filesystem::space_info space = std::filesystem::space(memory, failed);
    if (!failed && space.available >= room && keeps_attributes()) {
        ::setenv("TMPDIR", memory, 1);
    }
}

} // namespace velmora::test
