#include "cursor_readers.h"

#include <limits>

namespace velmora {

bool asf_read_zero_padded(ReadCursor* cursor, void* bytes, std::size_t length) {
    const std::uint64_t behind = cursor->position() + length;
    if (length > cursor->left()) {
        return false;
    }
    const ReadStatus status = cursor->read(bytes, length);
    return status == ReadStatus::whole || (status == ReadStatus::ended && cursor->seek(behind));
}

std::int64_t asf_position_behind(std::int64_t start, std::uint64_t size) {
    constexpr std::int64_t last = std::numeric_limits<std::int64_t>::max();
    return start >= 0 && size <= static_cast<std::uint64_t>(last - start)
               ? start + static_cast<std::int64_t>(size)
               : -1;
}

bool asf_seek_behind(ReadCursor* cursor, std::uint64_t start, std::uint64_t size) {
    const std::int64_t next = asf_position_behind(static_cast<std::int64_t>(start), size);
    return next >= 0 && cursor->seek(static_cast<std::uint64_t>(next));
}

} // namespace velmora
