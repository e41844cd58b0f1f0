#include "header_v1.h"

#include "../trace.h"

#include <unistd.h>

namespace velmora {

std::int64_t id3_load_header_v1(FIOFUNCSTRUCT* file, _id3_header_v1_t* header) {
    const std::int64_t position = fio_lseek(file, -4, SEEK_END);
    if (position < 0 || fio_read(file, header, sizeof *header) != static_cast<ssize_t>(sizeof *header)) {
        DebugError("id3_load_header_v1: Failed to read header\n");
        return -1;
    }
    return position;
}

std::int64_t id3_is_present_v1(FIOFUNCSTRUCT* file) {
    _id3_header_v1_t scratch;
    return id3_load_header_v1(file, &scratch);
}

} // namespace velmora
