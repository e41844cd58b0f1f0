#include "tag_header.h"

#include "text.h"

#include <cerrno>
#include <unistd.h>

namespace velmora {

namespace {

/** Whether the position is the file's end, in front of which there is nothing more to read. */
bool is_at_end(FIOFUNCSTRUCT* file) {
    const std::int64_t position = fio_ltell(file);
    return position >= 0 && position >= fio_lseek(file, 0, SEEK_END);
}

} // namespace

Id3Read id3_read_bytes(FIOFUNCSTRUCT* file, void* bytes, std::size_t size) {
    const ssize_t count = fio_read(file, bytes, size);
    if (count == static_cast<ssize_t>(size)) {
        return Id3Read::whole;
    }
    return count >= 0 && is_at_end(file) ? Id3Read::cut : Id3Read::failed;
}

Id3Read id3_read_tag_header(FIOFUNCSTRUCT* file, std::int64_t offset, Id3TagHeader* header) {
    return fio_lseek(file, offset, SEEK_SET) == offset ? id3_read_bytes(file, header, sizeof *header)
                                                       : Id3Read::failed;
}

Id3Read id3_read_tag_footer(FIOFUNCSTRUCT* file, Id3TagHeader* footer, std::int64_t* offset) {
    *offset = fio_lseek(file, -static_cast<std::int64_t>(sizeof *footer), SEEK_END);
    if (*offset < 0) {
        return errno == EINVAL ? Id3Read::cut : Id3Read::failed; // a place in front of the file is invalid
    }
    return id3_read_bytes(file, footer, sizeof *footer);
}

std::int64_t id3_header_offset(const Id3TagHeader& footer, std::int64_t footer_offset) {
    return footer_offset - syncsafe_to_long(footer.size) - static_cast<std::int64_t>(sizeof footer);
}

} // namespace velmora
