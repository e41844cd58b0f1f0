#include "file_copy.h"

#include "taglib/byte_file.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace velmora {

namespace {

constexpr std::size_t pieceSize = 1024L * 1024;

/** A name beside TARGET that nobody chooses, with its extension. */
std::string hiddenName(const std::string& target) {
    const std::filesystem::path path(target);
    const std::string name = ".velmora-copy-" + std::to_string(::getpid()) + path.extension().string();
    return (path.parent_path() / name).string();
}

bool isSameFile(const struct stat& status, const std::string& path) {
    struct stat other {};
    return ::stat(path.c_str(), &other) == 0 && other.st_dev == status.st_dev &&
           other.st_ino == status.st_ino;
}

/** Writes LENGTH bytes, in as many calls as that takes. Gives 0 or errno. */
int writeAll(FIOFUNCSTRUCT* file, const char* bytes, std::size_t length) {
    while (length > 0) {
        const ssize_t written = fio_write(file, bytes, length);
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return written < 0 ? errno : ENOSPC;
        }
        bytes += written;
        length -= static_cast<std::size_t>(written);
    }
    return 0;
}

} // namespace

FileCopy::FileCopy(std::string source, std::string target)
    : source_(std::move(source)), target_(std::move(target)), path_(hiddenName(target_)) {}

FileCopy::~FileCopy() {
    if (made_) {
        ::unlink(path_.c_str());
    }
}

int FileCopy::make(const std::function<bool(std::uint64_t done, std::uint64_t total)>& progress) {
    ByteFile from;
    struct stat status {};
    if (!from.open(source_.c_str(), O_RDONLY) || ::fstat(from.handle()->descriptor, &status) != 0) {
        return errno;
    }
    if (isSameFile(status, target_)) {
        return EEXIST;
    }
    ByteFile to;
    if (!to.open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL, 0666)) {
        return errno;
    }
    made_ = true;
    std::vector<char> piece(pieceSize);
    for (std::uint64_t done = 0;;) {
        const ssize_t length = fio_read(from.handle(), piece.data(), piece.size());
        if (length < 0 && errno == EINTR) {
            continue;
        }
        if (length <= 0) {
            return length < 0 || !to.close() ? errno : 0;
        }
        if (const int error = writeAll(to.handle(), piece.data(), static_cast<std::size_t>(length))) {
            return error;
        }
        done += static_cast<std::uint64_t>(length);
        if (!progress(done, static_cast<std::uint64_t>(status.st_size))) {
            return ECANCELED;
        }
    }
}

int FileCopy::takePlace() {
    if (std::rename(path_.c_str(), target_.c_str()) != 0) {
        return errno;
    }
    made_ = false;
    return 0;
}

} // namespace velmora
