#include "tag_search.h"

#include "taglib/id3/text.h"
#include "taglib/trace.h"

namespace velmora {

namespace {

constexpr std::uint64_t record_size = sizeof(Id3TagHeader);

/** Reads the footer at the file's end, at FOOTER_OFFSET, and sets where it says that the header is. */
void follow_footer(ReadWindow& window, std::uint8_t newest_version, std::uint64_t* footer_offset,
                   Id3TagPlace* place) {
    const std::optional<std::uint64_t> size = window.size(record_size);
    if (!size || *size < record_size) {
        place->finding = Id3Finding::footer_unreadable;
        place->failed = !size;
        return;
    }
    *footer_offset = *size - record_size;
    Id3TagHeader footer;
    const ReadStatus read = ReadCursor(window, *footer_offset, *size).read(&footer, sizeof footer);
    if (read != ReadStatus::whole) {
        place->finding = Id3Finding::footer_unreadable;
        place->failed = read == ReadStatus::failed;
        return;
    }
    const std::uint64_t tag_size = record_size + syncsafe_to_long(footer.size);
    if (!footer.has_signature("3DI")) {
        place->finding = Id3Finding::no_footer;
    } else if (footer.version > newest_version) {
        place->finding = Id3Finding::footer_unsupported;
    } else if (tag_size > *footer_offset) {
        place->finding = Id3Finding::footer_invalid;
    } else {
        place->offset = static_cast<std::int64_t>(*footer_offset - tag_size);
    }
}

const char* text_of(Id3Finding finding) {
    switch (finding) {
    case Id3Finding::footer_unreadable:
        return "Failed to read footer";
    case Id3Finding::footer_unsupported:
        return "Unsupported footer version";
    case Id3Finding::footer_invalid:
        return "Invalid footer offset";
    case Id3Finding::header_unreadable:
        return "Failed to read header";
    case Id3Finding::no_header:
        return "Invalid header sig";
    case Id3Finding::tag:
    case Id3Finding::no_footer:
        break;
    }
    return nullptr;
}

} // namespace

Id3TagPlace id3_find_tag(ReadWindow& window, bool at_end, std::uint8_t newest_footer) {
    Id3TagPlace place;
    std::uint64_t end = window.end();
    if (at_end) {
        follow_footer(window, newest_footer, &end, &place);
        if (place.finding != Id3Finding::tag) {
            return place;
        }
    } else {
        place.offset = 0;
    }
    ReadCursor cursor(window, static_cast<std::uint64_t>(place.offset), end);
    const ReadStatus read = cursor.read(&place.header, sizeof place.header);
    if (read != ReadStatus::whole) {
        place.finding = Id3Finding::header_unreadable;
        place.failed = read == ReadStatus::failed;
    } else if (!place.header.has_signature("ID3")) {
        place.finding = Id3Finding::no_header;
    }
    return place;
}

void id3_log_finding(const char* function, Id3Finding finding) {
    if (const char* const text = text_of(finding)) {
        DebugError("%s: %s\n", function, text);
    }
}

} // namespace velmora
