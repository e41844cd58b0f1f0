#include "mp4_box_change.h"

#include <algorithm>

namespace velmora::portable {

namespace {

constexpr std::uint64_t smallest_box = 8;
constexpr std::uint64_t largest_new_padding = 16384;

/** A `free` box of SIZE bytes, or nothing for none. SIZE is none that no box can have. */
Bytes padding(std::uint64_t size) {
    return size == 0 ? Bytes() : make_box(box_type("free"), Bytes(size - smallest_box));
}

bool can_be_padding(std::int64_t size, std::uint64_t largest) {
    return size == 0 ||
           (size >= static_cast<std::int64_t>(smallest_box) && size <= static_cast<std::int64_t>(largest));
}

} // namespace

void BoxChange::replace(const std::vector<Box>& path, Range old, Bytes bytes) {
    for (const Box& box : path) {
        Growth& growth = growths_[box.whole.begin];
        growth.box = box;
        growth.bytes += static_cast<std::int64_t>(bytes.size()) - static_cast<std::int64_t>(old.size());
    }
    change_.splices.replace(old, std::move(bytes));
}

/** Whether anything but free bytes lies behind `moov`. */
bool BoxChange::media_follow() const {
    return std::any_of(layout_.top_level.begin(), layout_.top_level.end(), [&](const Box& box) {
        return box.whole.begin > layout_.moov.whole.begin && !box.is_free();
    });
}

void BoxChange::keep_media_in_place(bool pads_inside) {
    const auto growth = growths_.find(layout_.moov.whole.begin);
    if (growth == growths_.end() || growth->second.bytes == 0) {
        return;
    }
    if (!pads_inside || !pad_inside(growth->second.bytes)) {
        pad_behind(growth->second.bytes);
    }
}

/** Gives or takes the bytes in a `free` box behind the first list of items. False where that is not
   possible. */
bool BoxChange::pad_inside(std::int64_t growth) {
    for (const Mp4ItemList& list : layout_.lists) {
        const std::vector<Box> path(list.path.begin(), std::prev(list.path.end()));
        const auto meta =
            std::find_if(layout_.metas.begin(), layout_.metas.end(), [&](const Mp4Meta& candidate) {
                return candidate.path.back().whole == path.back().whole;
            });
        if (list.kind != Mp4ItemList::Kind::items || meta == layout_.metas.end() ||
            !growths_.count(path.back().whole.begin)) {
            continue;
        }
        const std::uint64_t end = list.path.back().whole.end;
        Range old{end, end};
        for (const Box& box : meta->children) {
            if (box.is_free() && box.whole.begin == end) {
                old = box.whole;
            }
        }
        const std::int64_t size = static_cast<std::int64_t>(old.size()) - growth;
        const bool possible = can_be_padding(size, std::max(old.size(), largest_new_padding));
        if (possible && (old.size() > 0 || media_follow())) {
            replace(path, old, padding(static_cast<std::uint64_t>(size)));
            return true;
        }
        return false;
    }
    return false;
}

/** Gives or takes the bytes in a `free` box behind `moov`. */
void BoxChange::pad_behind(std::int64_t growth) {
    const std::uint64_t end = layout_.moov.whole.end;
    Range old{end, end};
    for (const Box& box : layout_.top_level) {
        if (box.is_free() && box.whole.begin == end && !box.to_end) {
            old = box.whole;
        }
    }
    const std::int64_t size = static_cast<std::int64_t>(old.size()) - growth;
    if (can_be_padding(size, std::max(old.size(), largest_new_padding)) && media_follow()) {
        change_.splices.replace(old, padding(static_cast<std::uint64_t>(size)));
        change_.gone.push_back(old);
    }
}

Mp4Change BoxChange::finish(bool pads_inside) {
    keep_media_in_place(pads_inside);
    for (const auto& [position, growth] : growths_) {
        if (growth.bytes != 0) {
            const auto size = growth.box.whole.size() + static_cast<std::uint64_t>(growth.bytes);
            change_.splices.replace(growth.box.size_field(), size_field_for(growth.box, size));
        }
    }
    change_.gone.push_back(layout_.moov.whole);
    return std::move(change_);
}

} // namespace velmora::portable
