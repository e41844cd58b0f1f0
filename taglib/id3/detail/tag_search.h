#pragma once

#include "tag_header.h"

#include "taglib/read_cursor.h"

namespace velmora {

/** What a search for a tag came to. */
enum class Id3Finding {
    tag,
    no_footer, ///< the file's last ten bytes are none
    footer_unreadable,
    footer_unsupported, ///< its version is too new
    footer_invalid,     ///< it leads in front of the file
    header_unreadable,
    no_header,
};

/** Where a tag is. */
struct Id3TagPlace {
    Id3Finding finding = Id3Finding::tag;
    std::int64_t offset = -1; ///< of the header; -1 when it was not got as far as that
    Id3TagHeader header{};    ///< when one was read
    bool failed = false;      ///< what can't be read may hold a tag: the file goes on there
};

/** Looks for a tag (docs/id3.md, "Where a tag is"): AT_END through its footer in the file's last ten bytes,
   else at offset 0. The header's version is not looked at, the footer's may be up to NEWEST_FOOTER. Reads
   ahead as far as the tag goes, or one window where that isn't known yet. */
[[nodiscard]] Id3TagPlace id3_find_tag(ReadWindow& window, bool at_end, std::uint8_t newest_footer);

/** Logs FINDING under the name of the public FUNCTION. A tag, and the mere lack of a footer, are not worth a
   line. */
void id3_log_finding(const char* function, Id3Finding finding);

} // namespace velmora
