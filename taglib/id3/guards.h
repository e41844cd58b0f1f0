#pragma once

#include "../fio.h"
#include "descriptor.h"

/** Owners that release on every way out of a function. */
namespace velmora {

/** An open file. */
class Id3File {
public:
    Id3File() = default;
    ~Id3File() { close(); }
    Id3File(const Id3File&) = delete;
    Id3File& operator=(const Id3File&) = delete;

    /** As fio_open, without its result: true when the file is open. */
    [[nodiscard]] bool open(const char* path, int flags) { return fio_open(path, flags, 0644, &file_) == 0; }
    /** Closes the file when it is open. False when the system reports that what was written may be lost. */
    bool close() {
        if (file_.descriptor < 0) {
            return true;
        }
        const bool closed = fio_close(&file_) == 0;
        file_.descriptor = -1;
        return closed;
    }
    [[nodiscard]] FIOFUNCSTRUCT* handle() { return &file_; }

private:
    FIOFUNCSTRUCT file_{-1};
};

/** A tag, zeroed at first. */
struct Id3Descriptor {
    Id3Descriptor() = default;
    ~Id3Descriptor() { id3_free_descriptor(&tag); }
    Id3Descriptor(const Id3Descriptor&) = delete;
    Id3Descriptor& operator=(const Id3Descriptor&) = delete;

    _id3_file_desc_t tag{};
};

} // namespace velmora
