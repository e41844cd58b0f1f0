#include "file_attributes.h"

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>

namespace velmora {
namespace {

FileTime fileTime(const struct statx_timestamp& time) {
    return {time.tv_sec, time.tv_nsec};
}

std::optional<FileTime> creationDate(const struct statx& status) {
    if (status.stx_mask & STATX_BTIME) {
        return fileTime(status.stx_btime);
    }
    constexpr unsigned both = STATX_MTIME | STATX_CTIME;
    if ((status.stx_mask & both) == both) {
        return std::min(fileTime(status.stx_mtime), fileTime(status.stx_ctime));
    }
    return std::nullopt;
}

} // namespace

std::optional<FileAttributes> fileAttributes(const QByteArray& path) {
    constexpr unsigned wanted = STATX_TYPE | STATX_SIZE | STATX_BTIME | STATX_MTIME | STATX_CTIME;
    struct statx status = {};
    if (statx(AT_FDCWD, path.constData(), 0, wanted, &status) != 0) {
        return std::nullopt;
    }
    FileAttributes attributes;
    attributes.isDirectory = (status.stx_mask & STATX_TYPE) && S_ISDIR(status.stx_mode);
    if (status.stx_mask & STATX_SIZE) {
        attributes.size = status.stx_size;
    }
    attributes.creationDate = creationDate(status);
    return attributes;
}

} // namespace velmora
