#include "image_files.h"

#include "path.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace velmora {

namespace {

/** A name for a new file in the folder of PATH, or nothing. */
std::string name_beside(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash);
    char name[temp_file_name_capacity];
    return GetTempFileName(folder.c_str(), ".VLT", 0, name) ? name : std::string();
}

bool write_whole(int descriptor, const std::vector<std::uint8_t>& bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t count = ::write(descriptor, bytes.data() + done, bytes.size() - done);
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return false;
        }
        done += static_cast<std::size_t>(count);
    }
    return true;
}

/** Fills the new file TEMPORARY with BYTES and puts it in PATH's place. */
bool write_and_rename(const std::vector<std::uint8_t>& bytes, const std::string& temporary,
                      const char* path) {
    // Exclusive: somebody may have taken the name since it was made.
    const int descriptor = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor < 0) {
        return false;
    }
    // The data has to be on the disk before the name points to it.
    const bool written = write_whole(descriptor, bytes) && ::fsync(descriptor) == 0;
    const bool closed = ::close(descriptor) == 0;
    if (written && closed && std::rename(temporary.c_str(), path) == 0) {
        return true;
    }
    ::unlink(temporary.c_str());
    return false;
}

} // namespace

Image* Util_LoadJpgFileToBmp(const char* path) {
    return path ? image_from_file(path) : nullptr;
}

void Util_WriteBmpToJpgFile(const Image* image, const char* path) {
    if (!image || !path) {
        return;
    }
    const std::vector<std::uint8_t> bytes = image_to_jpeg(image);
    if (bytes.empty()) {
        return;
    }
    const std::string temporary = name_beside(path);
    if (!temporary.empty()) {
        [[maybe_unused]] const bool unreported = write_and_rename(bytes, temporary, path);
    }
}

} // namespace velmora
