#include "image_files.h"

#include "detail/image_calls.h"
#include "path.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace velmora {

namespace {

/** Puts a name for a new file in the folder of PATH into NAME (temp_file_name_capacity bytes). */
bool make_name_beside(const char* path, char* name) {
    const OwnedText folder = folder_of_file(path);
    return folder && GetTempFileName(std::strchr(path, '/') ? folder.get() : ".", ".VLT", 0, name) != 0;
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
bool write_and_rename(const std::vector<std::uint8_t>& bytes, const char* temporary, const char* path) {
    // Exclusive: somebody may have taken the name since it was made.
    const int descriptor = ::open(temporary, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor < 0) {
        return false;
    }
    // The data has to be on the disk before the name points to it.
    const bool written = write_whole(descriptor, bytes) && ::fsync(descriptor) == 0;
    const bool closed = ::close(descriptor) == 0;
    if (written && closed && std::rename(temporary, path) == 0) {
        return true;
    }
    ::unlink(temporary);
    return false;
}

} // namespace

Image* Util_LoadJpgFileToBmp(const char* path) {
    return path ? try_image_from_file(path) : nullptr;
}

void Util_WriteBmpToJpgFile(const Image* image, const char* path) {
    if (!image || !path) {
        return;
    }
    std::vector<std::uint8_t> bytes;
    char temporary[temp_file_name_capacity];
    if (try_image_to_jpeg(image, &bytes) == JpegResult::encoded && make_name_beside(path, temporary)) {
        [[maybe_unused]] const bool unreported = write_and_rename(bytes, temporary, path);
    }
}

} // namespace velmora
