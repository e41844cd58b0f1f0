#include "splices.h"

#include <algorithm>

namespace velmora::portable {

void Splices::replace(Range old, Bytes bytes) {
    const auto comes_first = [&](const Splice& other) {
        return other.old.begin != old.begin ? other.old.begin < old.begin : other.old.end <= old.end;
    };
    // Most are put in the order of the file, so the place is looked for from the end.
    const auto behind = std::find_if(splices_.rbegin(), splices_.rend(), comes_first);
    auto place = splices_.insert(behind.base(), {old, std::move(bytes), 0});
    std::int64_t growth = place == splices_.begin() ? 0 : std::prev(place)->growth_to_here;
    for (; place != splices_.end(); ++place) {
        growth +=
            static_cast<std::int64_t>(place->bytes.size()) - static_cast<std::int64_t>(place->old.size());
        place->growth_to_here = growth;
    }
}

std::int64_t Splices::growth() const {
    return splices_.empty() ? 0 : splices_.back().growth_to_here;
}

std::uint64_t Splices::moved(std::uint64_t position) const {
    const auto behind =
        std::upper_bound(splices_.begin(), splices_.end(), position,
                         [](std::uint64_t value, const Splice& splice) { return value < splice.old.end; });
    return behind == splices_.begin()
               ? position
               : position + static_cast<std::uint64_t>(std::prev(behind)->growth_to_here);
}

std::vector<Segment> Splices::segments(std::uint64_t size) const {
    std::vector<Segment> segments;
    std::uint64_t position = 0;
    const auto copy_up_to = [&](std::uint64_t end) {
        if (position < end) {
            segments.emplace_back(Range{position, end});
        }
    };
    for (const Splice& splice : splices_) {
        copy_up_to(splice.old.begin);
        if (!splice.bytes.empty()) {
            segments.emplace_back(splice.bytes);
        }
        position = splice.old.end;
    }
    copy_up_to(size);
    return segments;
}

std::vector<Range> ranges_without(std::vector<Range> left_out, std::uint64_t size) {
    std::sort(left_out.begin(), left_out.end(),
              [](const Range& left, const Range& right) { return left.begin < right.begin; });
    std::vector<Range> ranges;
    std::uint64_t position = 0;
    for (const Range& range : left_out) {
        if (position < range.begin) {
            ranges.push_back({position, range.begin});
        }
        position = std::max(position, range.end);
    }
    if (position < size) {
        ranges.push_back({position, size});
    }
    return ranges;
}

} // namespace velmora::portable
