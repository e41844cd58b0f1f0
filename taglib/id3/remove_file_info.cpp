#include "remove_file_info.h"

#include "detail/tag_search.h"
#include "header_v1.h"
#include "reader.h"

#include "taglib/byte_file.h"
#include "taglib/trace.h"
#include "taglib/write_cursor.h"

#include <fcntl.h>
#include <limits>
#include <unistd.h>

namespace velmora {

int id3_remove_file_info(const char* path) {
    ByteFile file;
    if (!file.open(path, O_RDWR)) {
        DebugError("id3_remove_file_info: couldn't open file for r/w\n");
        return 0;
    }
    ReadWindow window(file.handle());
    std::int64_t offset = id3_is_present_v2(window, true);
    if (offset < 0) {
        offset = id3_is_present_v1(file.handle());
        window.forget();
    }
    if (offset < 0) {
        return 1;
    }
    if (window.settle(static_cast<std::uint64_t>(offset))) {
        mark_end(file.handle());
    }
    [[maybe_unused]] const bool nothing_was_written = file.close();
    if (offset == 0) {
        ::unlink(path);
    }
    return 1;
}

int id3_remove_descriptor_v2(FIOFUNCSTRUCT* file) {
    constexpr std::uint8_t any_version = std::numeric_limits<std::uint8_t>::max();
    ReadWindow window(file);
    const Id3TagPlace place = id3_find_tag(window, true, any_version);
    if (place.finding == Id3Finding::no_footer) {
        return 1;
    }
    if (place.finding != Id3Finding::tag) {
        id3_log_finding("id3_remove_descriptor_v2", place.finding);
        return 0;
    }
    if (window.settle(static_cast<std::uint64_t>(place.offset))) {
        mark_end(file);
    }
    return 1;
}

} // namespace velmora
