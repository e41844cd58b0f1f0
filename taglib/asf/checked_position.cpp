#include "checked_position.h"

#include <limits>
#include <unistd.h>

namespace velmora {

bool asf_read_reached(FIOFUNCSTRUCT* file, std::int64_t expected) {
    const std::int64_t position = fio_ltell(file);
    if (position < 0 || position == expected) {
        return position == expected;
    }
    const std::int64_t end = asf_file_end(file);
    return end >= 0 && position < expected && position >= end;
}

bool asf_read_zero_padded(FIOFUNCSTRUCT* file, std::int64_t start, std::uint8_t* bytes, std::size_t length) {
    return fio_read(file, bytes, length) == static_cast<ssize_t>(length) ||
           asf_read_reached(file, start + static_cast<std::int64_t>(length));
}

bool asf_write_reached(FIOFUNCSTRUCT* file, std::int64_t expected) {
    return fio_ltell(file) == expected;
}

std::int64_t asf_file_end(FIOFUNCSTRUCT* file) {
    const std::int64_t position = fio_ltell(file);
    const std::int64_t end = fio_lseek(file, 0, SEEK_END);
    return position >= 0 && fio_lseek(file, position, SEEK_SET) == position ? end : -1;
}

std::int64_t asf_position_behind(std::int64_t start, std::uint64_t size) {
    constexpr std::int64_t last = std::numeric_limits<std::int64_t>::max();
    return start >= 0 && size <= static_cast<std::uint64_t>(last - start)
               ? start + static_cast<std::int64_t>(size)
               : -1;
}

} // namespace velmora
