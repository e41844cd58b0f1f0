#include "byte_file.h"

#include <cerrno>

namespace velmora {

ByteFile::~ByteFile() {
    const int error = errno;
    [[maybe_unused]] const bool nobody_left_to_tell = close();
    errno = error;
}

bool ByteFile::open(const char* path, int flags, mode_t mode) {
    [[maybe_unused]] const bool of_the_file_before = close();
    return fio_open(path, flags, mode, &file_) == 0;
}

bool ByteFile::close() {
    if (!is_open()) {
        return true;
    }
    const bool closed = fio_close(&file_) == 0;
    file_.descriptor = -1;
    return closed;
}

} // namespace velmora
