#include "verification.h"

#include "file_transfer.h"

#include "portable/reason.h"

#include <algorithm>
#include <atomic>
#include <cstring>
#include <future>
#include <utility>

namespace velmora::portable {

namespace {

/** Two of them fit into the cache of one core: larger ones are compared at a third of the speed. */
/** Media of so many bytes is compared in two halves at the same time. */
constexpr std::uint64_t smallest_divided = 16UL * 1024 * 1024;

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
   The first that is not is the result. */
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
    explicit RangeReader(std::vector<FileRange> ranges)
        : ranges_(std::move(ranges)), buffer_(transfer_buffer) {}

    /** The next bytes; none at the end. */
    [[nodiscard]] std::span<const std::uint8_t> read() {
        while (next_ < ranges_.size() && ranges_[next_].range.size() == 0) {
            ++next_;
        }
        if (next_ == ranges_.size()) {
            return {};
        }
        Range& range = ranges_[next_].range;
        const auto length = static_cast<std::size_t>(std::min<std::uint64_t>(range.size(), buffer_.size()));
        const std::span<std::uint8_t> bytes(buffer_.data(), length);
        read_at(ranges_[next_].file, bytes, range.begin);
        range.begin += length;
        return bytes;
    }

private:
    std::vector<FileRange> ranges_;
    std::size_t next_ = 0;
    std::vector<std::uint8_t> buffer_;
};

/** The ranges of the media of OPEN. */
std::vector<FileRange> payload_of(const OpenTags& open) {
    std::vector<FileRange> ranges;
    for (const Range& range : open.tags.payload()) {
        ranges.push_back({open.file, range});
    }
    return ranges;
}

/** The first SIZE bytes of RANGES, and the rest. */
std::pair<std::vector<FileRange>, std::vector<FileRange>> split(const std::vector<FileRange>& ranges,
                                                                std::uint64_t size) {
    std::pair<std::vector<FileRange>, std::vector<FileRange>> parts;
    for (const auto& [file, range] : ranges) {
        const std::uint64_t middle = range.begin + std::min(range.size(), size);
        parts.first.push_back({file, {range.begin, middle}});
        parts.second.push_back({file, {middle, range.end}});
        size -= middle - range.begin;
    }
    return parts;
}

/** Compares what the readers give, of the same number of bytes, up to their end or until ADVANCE, which is
   told how many bytes were equal, returns false. */
template <typename Advance>
void compare(RangeReader old_bytes, RangeReader new_bytes, Advance advance) {
    std::span<const std::uint8_t> old_piece;
    std::span<const std::uint8_t> new_piece;
    while (true) {
        if (old_piece.empty()) {
            old_piece = old_bytes.read();
        }
        if (new_piece.empty()) {
            new_piece = new_bytes.read();
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
        if (!advance(length)) {
            return;
        }
    }
}

} // namespace

/** Of many bytes one half is compared beside the other. */
void verify_bytes(const std::vector<FileRange>& before, const std::vector<FileRange>& after,
                  Progress& progress) {
    const std::uint64_t size = size_of(before);
    if (size != size_of(after)) {
        refuse("media data");
    }
    const std::uint64_t beside = size < smallest_divided ? 0 : size / 2;
    const auto old_parts = split(before, size - beside);
    const auto new_parts = split(after, size - beside);
    std::atomic<bool> stopped = false;
    std::atomic<std::uint64_t> done_beside = 0;
    std::future<void> other;
    if (beside > 0) {
        // Deferred where the system gives no thread.
        other = std::async(std::launch::async | std::launch::deferred, [&] {
            compare(RangeReader(old_parts.second), RangeReader(new_parts.second), [&](std::size_t length) {
                done_beside += length;
                return !stopped;
            });
        });
    }
    try {
        compare(RangeReader(old_parts.first), RangeReader(new_parts.first), [&](std::size_t length) {
            progress.advance(length + done_beside.exchange(0));
            return true;
        });
    } catch (...) {
        stopped = true;
        throw; // and the other half is waited for
    }
    if (other.valid()) {
        other.get();
        progress.advance(done_beside);
    }
}

std::uint64_t verified_bytes(const OpenTags& open) {
    return size_of(payload_of(open));
}

void verify_edits(const OpenTags& before, const OpenTags& after, const TagEdits& edits, Progress& progress) {
    compare_values(before.tags.values_with(edits), after.tags.values());
    compare_items(before.tags, after.tags, edits);
    after.tags.check_against(before.tags);
    verify_bytes(payload_of(before), payload_of(after), progress);
}

void verify_removal(const OpenTags& before, const OpenTags& after, Progress& progress) {
    compare_values({}, after.tags.values());
    after.tags.check_against(before.tags);
    verify_bytes(payload_of(before), payload_of(after), progress);
}

} // namespace velmora::portable
