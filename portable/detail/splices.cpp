#include "splices.h"

#include <algorithm>

namespace velmora::portable {

void Splices::replace(Range old, Bytes bytes) {
    const auto comes_later = [&](const Splice& other) {
        return other.old.begin != old.begin ? other.old.begin > old.begin : other.old.end > old.end;
    };
    const auto place = std::find_if(splices_.begin(), splices_.end(), comes_later);
    splices_.insert(place, {old, std::move(bytes)});
}

std::int64_t Splices::growth() const {
    std::int64_t growth = 0;
    for (const Splice& splice : splices_) {
        growth += splice.growth();
    }
    return growth;
}

std::uint64_t Splices::moved(std::uint64_t position) const {
    std::uint64_t moved = position;
    for (const Splice& splice : splices_) {
        if (splice.old.end <= position) {
            moved += static_cast<std::uint64_t>(splice.growth());
        }
    }
    return moved;
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
