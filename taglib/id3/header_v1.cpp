#include "header_v1.h"

#include "taglib/read_cursor.h"
#include "taglib/trace.h"

namespace velmora {

std::int64_t id3_load_header_v1(FIOFUNCSTRUCT* file, _id3_header_v1_t* header) {
    constexpr std::uint64_t distance = 4;
    ReadWindow window(file);
    const std::optional<std::uint64_t> size = window.size(distance);
    const bool has_place = size && *size >= distance;
    ReadCursor cursor(window, has_place ? *size - distance : 0, window.end());
    if (!has_place || cursor.read(header, sizeof *header) != ReadStatus::whole) {
        DebugError("id3_load_header_v1: Failed to read header\n");
        return -1;
    }
    return static_cast<std::int64_t>(cursor.begin());
}

std::int64_t id3_is_present_v1(FIOFUNCSTRUCT* file) {
    _id3_header_v1_t scratch;
    return id3_load_header_v1(file, &scratch);
}

} // namespace velmora
