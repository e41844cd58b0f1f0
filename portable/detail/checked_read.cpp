#include "checked_read.h"

#include "portable/reason.h"

#include <cerrno>

namespace velmora::portable {

void check_read(ReadStatus status, const std::string& what) {
    switch (status) {
    case ReadStatus::whole:
        return;
    case ReadStatus::ended:
        throw Refusal({ReasonCode::damaged, 0, what + " is cut off"});
    case ReadStatus::failed:
        throw Refusal({ReasonCode::system, errno, what});
    }
}

std::vector<std::uint8_t> read_bytes(ReadCursor& cursor, std::uint64_t length, const std::string& what) {
    if (length > cursor.left()) {
        check_read(ReadStatus::ended, what);
    }
    std::vector<std::uint8_t> bytes(length);
    check_read(cursor.read(bytes.data(), bytes.size()), what);
    return bytes;
}

std::vector<std::uint8_t> read_range(ReadCursor cursor, Range range, const std::string& what) {
    if (!cursor.seek(range.begin)) {
        check_read(ReadStatus::ended, what);
    }
    return read_bytes(cursor, range.size(), what);
}

} // namespace velmora::portable
