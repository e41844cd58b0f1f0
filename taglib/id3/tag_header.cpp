#include "tag_header.h"

#include "text.h"

#include <unistd.h>

namespace velmora {

namespace {

/** Seeks and reads a whole header. Returns its position or -1. */
std::int64_t read_at(FIOFUNCSTRUCT* file, std::int64_t offset, int whence, Id3TagHeader* header) {
    const std::int64_t position = fio_lseek(file, offset, whence);
    if (position < 0) {
        return -1;
    }
    const ssize_t count = fio_read(file, header, sizeof *header);
    return count == static_cast<ssize_t>(sizeof *header) ? position : -1;
}

} // namespace

bool id3_read_tag_header(FIOFUNCSTRUCT* file, std::int64_t offset, Id3TagHeader* header) {
    return read_at(file, offset, SEEK_SET, header) >= 0;
}

std::int64_t id3_read_tag_footer(FIOFUNCSTRUCT* file, Id3TagHeader* footer) {
    return read_at(file, -static_cast<std::int64_t>(sizeof *footer), SEEK_END, footer);
}

std::int64_t id3_header_offset(const Id3TagHeader& footer, std::int64_t footer_offset) {
    return footer_offset - syncsafe_to_long(footer.size) - static_cast<std::int64_t>(sizeof footer);
}

} // namespace velmora
