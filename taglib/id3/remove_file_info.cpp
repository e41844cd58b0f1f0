#include "remove_file_info.h"

#include "../trace.h"
#include "guards.h"
#include "header_v1.h"
#include "reader.h"
#include "tag_header.h"

#include <fcntl.h>
#include <unistd.h>

namespace velmora {

namespace {

/** Goes to OFFSET and writes nothing, where a truncation would go: the file keeps its length and contents. */
void cut_at(FIOFUNCSTRUCT* file, std::int64_t offset) {
    fio_lseek(file, offset, SEEK_SET);
    [[maybe_unused]] const ssize_t nothing = fio_write(file, "", 0);
}

} // namespace

int id3_remove_file_info(const char* path) {
    Id3File file;
    if (!file.open(path, O_RDWR)) {
        DebugError("id3_remove_file_info: couldn't open file for r/w\n");
        return 0;
    }
    std::int64_t offset = id3_is_present_v2(file.handle(), true);
    if (offset < 0) {
        offset = id3_is_present_v1(file.handle());
    }
    if (offset < 0) {
        return 1;
    }
    cut_at(file.handle(), offset);
    file.close();
    if (offset == 0) {
        ::unlink(path);
    }
    return 1;
}

int id3_remove_descriptor_v2(FIOFUNCSTRUCT* file) {
    Id3TagHeader footer;
    std::int64_t footer_offset = 0;
    if (id3_read_tag_footer(file, &footer, &footer_offset) != Id3Read::whole) {
        DebugError("id3_remove_descriptor_v2: Failed to read footer\n");
        return 0;
    }
    if (!footer.has_signature("3DI")) {
        return 1;
    }
    const std::int64_t offset = id3_header_offset(footer, footer_offset);
    if (offset < 0) {
        DebugError("id3_remove_descriptor_v2: Invalid footer offset\n");
        return 0;
    }
    Id3TagHeader header;
    if (id3_read_tag_header(file, offset, &header) != Id3Read::whole) {
        DebugError("id3_remove_descriptor_v2: Failed to read header\n");
        return 0;
    }
    if (!header.has_signature("ID3")) {
        DebugError("id3_remove_descriptor_v2: Invalid header sig\n");
        return 0;
    }
    cut_at(file, offset);
    return 1;
}

} // namespace velmora
