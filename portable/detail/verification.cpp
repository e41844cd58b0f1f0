#include "verification.h"

#include "../reason.h"
#include "file_transfer.h"

#include <algorithm>
#include <cstring>
#include <numeric>

namespace velmora::portable {

namespace {

/** Two of them fit into the cache of one core: larger ones are compared at a third of the speed. */
constexpr std::size_t buffer_size = 64UL * 1024;

[[noreturn]] void refuse(const std::string& what) {
    throw Refusal({ReasonCode::would_lose, 0, what});
}

const char* name_of(Field field) {
    static constexpr const char* names[] = {"title", "artist", "album", "director", "synopsis",
                                            "genre", "rating", "year",  "cover"};
    return names[static_cast<std::size_t>(field)];
}

void compare_values(const TagValues& expected, const TagValues& actual) {
    for (std::size_t field = 0; field < text_field_count; ++field) {
        if (expected.texts[field] != actual.texts[field]) {
            refuse(name_of(static_cast<Field>(field)));
        }
    }
    if (expected.year != actual.year) {
        refuse(name_of(Field::year));
    }
    if (expected.cover != actual.cover) {
        refuse(name_of(Field::cover));
    }
}

std::vector<const TagItem*> sorted_by_name(const std::vector<TagItem>& items) {
    std::vector<const TagItem*> sorted(items.size());
    std::transform(items.begin(), items.end(), sorted.begin(), [](const TagItem& item) { return &item; });
    std::stable_sort(sorted.begin(), sorted.end(),
                     [](const TagItem* left, const TagItem* right) { return left->name < right->name; });
    return sorted;
}

/** Whether the items of FEWER that nobody asked for are among those of MORE, for each name in the same order.
   The first
    that is not is the result. */
const TagItem* first_missing(const std::vector<TagItem>& fewer, const std::vector<TagItem>& more,
                             const TagEdits& edits) {
    const std::vector<const TagItem*> sorted = sorted_by_name(more);
    auto place = sorted.begin();
    for (const TagItem* const item : sorted_by_name(fewer)) {
        if (item->field && edits.asks_for(*item->field)) {
            continue;
        }
        place = std::find_if(place, sorted.end(), [&](const TagItem* candidate) {
            return candidate->name == item->name && candidate->bytes == item->bytes;
        });
        if (place == sorted.end()) {
            return item;
        }
        ++place;
    }
    return nullptr;
}

void compare_items(const TaggedFile& before, const TaggedFile& after, const TagEdits& edits) {
    const std::vector<TagItem> old_items = before.items();
    const std::vector<TagItem> new_items = after.items();
    if (const TagItem* const lost = first_missing(old_items, new_items, edits)) {
        refuse(lost->name);
    }
    if (const TagItem* const unasked = first_missing(new_items, old_items, edits)) {
        refuse("nothing, but " + unasked->name + " came from nowhere");
    }
}

/** The bytes of several ranges, one behind the other. */
class RangeReader {
public:
    RangeReader(FIOFUNCSTRUCT* file, std::vector<Range> ranges)
        : file_(file), ranges_(std::move(ranges)), buffer_(buffer_size) {}

    /** The next bytes, at most MOST of them; none at the end. */
    [[nodiscard]] std::span<const std::uint8_t> read(std::size_t most) {
        while (next_ < ranges_.size() && ranges_[next_].size() == 0) {
            ++next_;
        }
        if (next_ == ranges_.size()) {
            return {};
        }
        Range& range = ranges_[next_];
        const auto length =
            static_cast<std::size_t>(std::min<std::uint64_t>({range.size(), buffer_.size(), most}));
        const std::span<std::uint8_t> bytes(buffer_.data(), length);
        read_at(file_, bytes, range.begin);
        range.begin += length;
        return bytes;
    }

private:
    FIOFUNCSTRUCT* file_;
    std::vector<Range> ranges_;
    std::size_t next_ = 0;
    std::vector<std::uint8_t> buffer_;
};

std::uint64_t payload_size(const TaggedFile& tags) {
    const std::vector<Range> ranges = tags.payload();
    return std::accumulate(ranges.begin(), ranges.end(), std::uint64_t{0},
                           [](std::uint64_t sum, const Range& range) { return sum + range.size(); });
}

void compare_payload(const OpenTags& before, const OpenTags& after, Progress& progress) {
    if (payload_size(before.tags) != payload_size(after.tags)) {
        refuse("media data");
    }
    RangeReader old_bytes(before.file, before.tags.payload());
    RangeReader new_bytes(after.file, after.tags.payload());
    std::span<const std::uint8_t> old_piece;
    std::span<const std::uint8_t> new_piece;
    while (true) {
        if (old_piece.empty()) {
            old_piece = old_bytes.read(buffer_size);
        }
        if (new_piece.empty()) {
            new_piece = new_bytes.read(buffer_size);
        }
        const std::size_t length = std::min(old_piece.size(), new_piece.size());
        if (length == 0) {
            return;
        }
        if (std::memcmp(old_piece.data(), new_piece.data(), length) != 0) {
            refuse("media data");
        }
        old_piece = old_piece.subspan(length);
        new_piece = new_piece.subspan(length);
        progress.advance(length);
    }
}

} // namespace

std::uint64_t verified_bytes(const TaggedFile& tags) {
    return payload_size(tags);
}

void verify_edits(const OpenTags& before, const OpenTags& after, const TagEdits& edits, Progress& progress) {
    compare_values(before.tags.values_with(edits), after.tags.values());
    compare_items(before.tags, after.tags, edits);
    after.tags.check_against(before.tags);
    compare_payload(before, after, progress);
}

void verify_removal(const OpenTags& before, const OpenTags& after, Progress& progress) {
    compare_values({}, after.tags.values());
    after.tags.check_against(before.tags);
    compare_payload(before, after, progress);
}

} // namespace velmora::portable
