#pragma once

#include "fio.h"

namespace velmora {

/** A file that is open from open() until close(), or until the object goes. */
class ByteFile {
public:
    ByteFile() = default;
    /** Closes the file and leaves errno as it was, so that the caller sees the error that mattered. */
    ~ByteFile();
    ByteFile(const ByteFile&) = delete;
    ByteFile& operator=(const ByteFile&) = delete;

    /** Opens PATH (file system encoding) with open(2)'s FLAGS; MODE is for a file that is made. A file that
       was open is closed first. False, with errno from open(2), when it can't be opened. */
    [[nodiscard]] bool open(const char* path, int flags, mode_t mode = 0);
    /** Closes the file when it is open. False, with errno from close(2), when the system reports that
       something that it held back could not be written; the file is closed all the same. */
    [[nodiscard]] bool close();

    [[nodiscard]] bool is_open() const { return file_.descriptor >= 0; }
    /** The open file, for the functions that take one. It stays the object's own. */
    [[nodiscard]] FIOFUNCSTRUCT* handle() { return &file_; }

private:
    FIOFUNCSTRUCT file_{-1};
};

} // namespace velmora
