#pragma once

#include "header_object.h"

#include <utility>

namespace velmora {

/** The error number that tells callers of a file whose header can't be read. */
inline constexpr int asf_header_unreadable = 5;

/** A file and its header object while an entry point works on them: released on every path. */
class AsfOpenHeader {
public:
    AsfOpenHeader() = default;
    AsfOpenHeader(const AsfOpenHeader&) = delete;
    AsfOpenHeader& operator=(const AsfOpenHeader&) = delete;
    ~AsfOpenHeader() {
        asf_free_header_object(&header_);
        (void)close();
    }

    /** Opens PATH with open(2)'s FLAGS. */
    [[nodiscard]] bool open(const char* path, int flags) {
        is_open_ = fio_open(path, flags, 0, &file_) >= 0;
        return is_open_;
    }
    /** Closes the file if it is open; false when the system reports that something it held back could not be
        written. */
    [[nodiscard]] bool close() {
        const bool was_open = std::exchange(is_open_, false);
        return !was_open || fio_close(&file_) == 0;
    }
    /** Reads the header object. */
    [[nodiscard]] bool read() { return asf_read_header_object(&file_, &header_) != nullptr; }

    [[nodiscard]] FIOFUNCSTRUCT* file() { return &file_; }
    [[nodiscard]] _asf_header_object_t* header() { return &header_; }
    /** The first child with this GUID as the record that its GUID stands for, or null. */
    template <typename Record>
    [[nodiscard]] Record* find(const GUID& guid) {
        return static_cast<Record*>(asf_find_object(&header_, guid));
    }

private:
    FIOFUNCSTRUCT file_{-1};
    _asf_header_object_t header_{};
    bool is_open_ = false;
};

} // namespace velmora
