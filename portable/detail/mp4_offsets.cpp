#include "mp4_offsets.h"

#include "refusals.h"

#include "portable/reason.h"

#include <algorithm>
#include <limits>

namespace velmora::portable {

namespace {

/** Which box an offset points into. */
struct Target {
    std::size_t box; ///< counted without those that are free; their number for what lies behind the boxes
    std::uint64_t offset; ///< in it
    friend bool operator==(const Target&, const Target&) = default;
};

class Targets {
public:
    explicit Targets(const Mp4Layout& layout) {
        for (const Box& box : layout.top_level) {
            if (!box.is_free()) {
                boxes_.push_back(box.whole);
            }
        }
        boxes_.push_back({layout.end_of_boxes, std::numeric_limits<std::uint64_t>::max()});
    }

    [[nodiscard]] std::size_t count() const { return boxes_.size(); }

    /** Nothing for what is free. */
    [[nodiscard]] std::optional<Target> at(std::uint64_t position) const {
        const auto behind =
            std::upper_bound(boxes_.begin(), boxes_.end(), position,
                             [](std::uint64_t value, const Range& range) { return value < range.begin; });
        if (behind == boxes_.begin() || position >= std::prev(behind)->end) {
            return std::nullopt;
        }
        return Target{static_cast<std::size_t>(std::prev(behind) - boxes_.begin()),
                      position - std::prev(behind)->begin};
    }

private:
    std::vector<Range> boxes_;
};

} // namespace

void check_offsets(const ReadCursor& file, const Mp4Layout& layout, const OffsetTables& offsets,
                   const Splices& splices, const std::vector<Range>& gone) {
    const std::uint64_t shift = splices.moved(layout.file_size) - layout.file_size;
    for (const OffsetTable& table : offsets.tables) {
        OffsetReader reader(file, table);
        for (std::uint64_t i = 0; i < table.count; ++i) {
            const std::uint64_t position = reader.next();
            const bool points_into_gone = std::any_of(gone.begin(), gone.end(), [&](const Range& range) {
                return position > range.begin && position < range.end;
            });
            if (points_into_gone) {
                refuse_unsupported("media among the tags");
            }
            if (shift != 0 && position > layout.file_size) {
                refuse_damaged("an offset points behind the end of the file");
            }
            const std::uint64_t moved = splices.moved(position) - splices.moved(table.origin);
            if (table.width == 4 && moved > std::numeric_limits<std::uint32_t>::max()) {
                refuse_too_large("an offset of more than 4 GiB");
            }
        }
    }
}

void mend_offsets(FIOFUNCSTRUCT* file, std::uint64_t size, const std::vector<OffsetTable>& tables,
                  const Splices& splices) {
    for (const OffsetTable& table : tables) {
        OffsetTable there = table;
        there.position = splices.moved(table.position);
        mend_table(file, size, there, [&](std::uint64_t offset) {
            return splices.moved(table.origin + offset) - splices.moved(table.origin);
        });
    }
}

void compare_offsets(const ReadCursor& old_file, const Mp4Layout& old_layout, const ReadCursor& new_file,
                     const Mp4Layout& new_layout) {
    const OffsetTables old_offsets = find_offsets(old_file, old_layout);
    const OffsetTables new_offsets = find_offsets(new_file, new_layout);
    const Targets old_targets(old_layout);
    const Targets new_targets(new_layout);
    bool same =
        old_offsets.tables.size() == new_offsets.tables.size() && old_targets.count() == new_targets.count();
    for (std::size_t i = 0; same && i < old_offsets.tables.size(); ++i) {
        const OffsetTable& old_table = old_offsets.tables[i];
        const OffsetTable& new_table = new_offsets.tables[i];
        same = old_table.count == new_table.count && old_table.width == new_table.width;
        OffsetReader old_reader(old_file, old_table);
        OffsetReader new_reader(new_file, new_table);
        for (std::uint64_t entry = 0; same && entry < old_table.count; ++entry) {
            const std::uint64_t old_position = old_reader.next();
            const std::uint64_t new_position = new_reader.next();
            const std::optional<Target> target = old_targets.at(old_position);
            same = target ? new_targets.at(new_position) == target : new_position == old_position;
        }
    }
    if (!same) {
        throw Refusal({ReasonCode::would_lose, 0, "where the media are"});
    }
}

} // namespace velmora::portable
