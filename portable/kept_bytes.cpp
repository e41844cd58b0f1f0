#include "kept_bytes.h"

#include "detail/system_refusal.h"

#include <algorithm>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace velmora::portable {

namespace {

constexpr mode_t owner_alone = 0600;

/** In /tmp may be memory instead of a disk. */
std::string temporary_folder() {
    const char* const set = std::getenv("TMPDIR");
    return set && *set != '\0' ? set : "/var/tmp";
}

/** A file in FOLDER that has no name any more; -1 with errno where there can't be one. */
int open_named_and_unlink(const std::string& folder) {
    std::string path = folder + "/velmora-XXXXXX";
    const int file = ::mkostemp(path.data(), O_CLOEXEC);
    if (file >= 0) {
        ::unlink(path.c_str());
    }
    return file;
}

} // namespace

KeptBytes::~KeptBytes() {
    if (descriptor_ >= 0) {
        ::close(descriptor_);
    }
}

bool KeptBytes::open() {
    if (descriptor_ < 0) {
        const std::string folder = temporary_folder();
        descriptor_ = uninterrupted(
            [&] { return ::open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, owner_alone); });
        if (descriptor_ < 0 && (errno == EOPNOTSUPP || errno == EISDIR || errno == EINVAL)) {
            descriptor_ = open_named_and_unlink(folder);
        }
    }
    return descriptor_ >= 0;
}

bool KeptBytes::append(std::span<const std::uint8_t> bytes) {
    if (!open()) {
        return false;
    }
    std::uint64_t end = size_;
    while (!bytes.empty()) {
        const ssize_t written = uninterrupted(
            [&] { return ::pwrite(descriptor_, bytes.data(), bytes.size(), static_cast<off_t>(end)); });
        if (written <= 0) {
            errno = written == 0 ? EIO : errno;
            return false;
        }
        bytes = bytes.subspan(static_cast<std::size_t>(written));
        end += static_cast<std::uint64_t>(written);
    }
    size_ = end;
    return true;
}

void KeptBytes::shrink_to(std::uint64_t size) {
    if (size < size_) {
        size_ = size;
        // What can't be given back is written over later.
        [[maybe_unused]] const int given_back = ::ftruncate(descriptor_, static_cast<off_t>(size));
    }
}

} // namespace velmora::portable
