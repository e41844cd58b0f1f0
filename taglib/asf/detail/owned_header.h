#pragma once

#include "cursor_readers.h"

#include "taglib/asf/header_object.h"
#include "taglib/byte_file.h"

namespace velmora {

/** The error number that tells callers of a file whose header can't be read. */
inline constexpr int asf_header_unreadable = 5;

/** A header record that is emptied on every way out. */
class AsfHeader {
public:
    AsfHeader() = default;
    AsfHeader(const AsfHeader&) = delete;
    AsfHeader& operator=(const AsfHeader&) = delete;
    ~AsfHeader() { asf_free_header_object(&record_); }

    /** Reads the header object that FILE, just opened, begins with. */
    [[nodiscard]] bool read(ByteFile* file) {
        ReadWindow window(file->handle(), 0);
        ReadCursor cursor(window);
        return asf_read_header_object(&cursor, &record_) != nullptr;
    }

    [[nodiscard]] _asf_header_object_t* record() { return &record_; }
    /** The first child with this GUID as the record that its GUID stands for, or null. */
    template <typename Record>
    [[nodiscard]] Record* find(const GUID& guid) {
        return static_cast<Record*>(asf_find_object(&record_, guid));
    }

private:
    _asf_header_object_t record_{};
};

} // namespace velmora
