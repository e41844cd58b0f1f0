#include "mp4_edits.h"

#include "content_rating.h"
#include "date_text.h"
#include "mp4_items.h"
#include "text.h"

#include <algorithm>
#include <map>

namespace velmora::portable {

namespace {

using Kind = Mp4ItemList::Kind;

constexpr std::size_t longest_description = 255; ///< code points that `desc` takes
constexpr std::uint64_t smallest_box = 8;
constexpr std::uint64_t largest_new_padding = 16384;

std::string beginning_of(std::string_view text, std::size_t length) {
    return utf8_from_code_points(std::u32string_view(code_points(text)).substr(0, length));
}

/** A `free` box of SIZE bytes, or nothing for none. SIZE is none that no box can have. */
Bytes padding(std::uint64_t size) {
    return size == 0 ? Bytes() : make_box(box_type("free"), Bytes(size - smallest_box));
}

bool can_be_padding(std::int64_t size, std::uint64_t largest) {
    return size == 0 ||
           (size >= static_cast<std::int64_t>(smallest_box) && size <= static_cast<std::int64_t>(largest));
}

/** `hdlr` of a list of items. */
Bytes handler_box() {
    Bytes content(8); // version, flags, and a number that is always 0
    append(content, "mdirappl");
    content.resize(25); // two reserved numbers, and an empty name
    return make_box(box_type("hdlr"), content);
}

class Change {
public:
    explicit Change(const Mp4Layout& layout) : layout_(layout) {}

    void put(const TagEdits& edits);
    void remove_tags();
    /** PADS_INSIDE: a list of items stays, beside which may be free bytes. */
    Mp4Change finish(bool pads_inside);

private:
    void put_into(const Mp4ItemList& list, const TagEdits& edits, bool is_first);
    void put_field(const Mp4ItemList& list, Field field, const TagEdits& edits, bool is_first);
    void put_value(const Mp4ItemList& list, Field field, const TagEdits& edits, const std::string& name);
    void make_list(const TagEdits& edits);
    void insert_list(Bytes ilst);
    [[nodiscard]] static Bytes item_box(Kind kind, const Mp4Item* item, const std::string& name, Field field,
                                        const TagEdits& edits);
    void replace(const std::vector<Box>& path, Range old, Bytes bytes);
    void keep_media_in_place(bool pads_inside);
    [[nodiscard]] bool pad_inside(std::int64_t growth);
    void pad_behind(std::int64_t growth);
    [[nodiscard]] bool media_follow() const;

    const Mp4Layout& layout_;
    Mp4Change change_;
    struct Growth {
        Box box;
        std::int64_t bytes = 0;
    };
    std::map<std::uint64_t, Growth> growths_; ///< of the boxes around what changed, by their positions
};

std::string text_for(Kind kind, const Mp4Item* item, std::string_view name, Field field,
                     const TagEdits& edits) {
    const std::string old = item ? mp4_text(kind, *item) : std::string();
    if (field == Field::year) {
        return date_with_year(old, *edits.year.value());
    }
    const std::string& text = *edits.text(field).value();
    if (field == Field::rating && kind == Kind::items) {
        return text_with_rating(old, text);
    }
    return name == "desc" ? beginning_of(text, longest_description) : text;
}

Bytes Change::item_box(Kind kind, const Mp4Item* item, const std::string& name, Field field,
                       const TagEdits& edits) {
    if (field == Field::cover) {
        return mp4_cover_box(item, name, *edits.cover.value());
    }
    return mp4_text_box(kind, item, name, text_for(kind, item, name, field, edits));
}

void Change::put(const TagEdits& edits) {
    bool is_first = true;
    for (const Mp4ItemList& list : layout_.lists) {
        put_into(list, edits, is_first && list.kind == Kind::items);
        is_first = is_first && list.kind != Kind::items;
    }
    if (is_first) {
        make_list(edits);
    }
}

void Change::put_into(const Mp4ItemList& list, const TagEdits& edits, bool is_first) {
    for (std::size_t i = 0; i < field_count; ++i) {
        const auto field = static_cast<Field>(i);
        if (edits.asks_for(field)) {
            put_field(list, field, edits, is_first);
        }
    }
}

/** Items of the field stay where its value is put into them, and go otherwise. */
void Change::put_field(const Mp4ItemList& list, Field field, const TagEdits& edits, bool is_first) {
    std::vector<std::string> names; // that get the value
    const bool exists = std::any_of(list.items.begin(), list.items.end(),
                                    [&](const Mp4Item& item) { return item.field == field; });
    if (edits.sets(field) && (exists || is_first)) {
        if (list.kind == Kind::items) {
            names = mp4_names(field);
        } else {
            for (const Mp4Item& item : list.items) {
                const bool known = std::find(names.begin(), names.end(), item.name) != names.end();
                if (item.field == field && !known) {
                    names.push_back(item.name);
                }
            }
        }
    }
    for (const std::string& name : names) {
        put_value(list, field, edits, name);
    }
    for (const Mp4Item& item : list.items) {
        const bool gets_value = std::any_of(names.begin(), names.end(), [&](const std::string& name) {
            return mp4_same_name(item.name, name);
        });
        if (item.field == field && !gets_value) {
            replace(list.path, item.box.whole, {});
        }
    }
}

/** The first item of NAME gets the value, or one behind the others; further ones of that name go. Further covers are
   other pictures and stay. */
void Change::put_value(const Mp4ItemList& list, Field field, const TagEdits& edits, const std::string& name) {
    bool put = false;
    for (const Mp4Item& item : list.items) {
        if (!mp4_same_name(item.name, name)) {
            continue;
        }
        if (!put) {
            replace(list.path, item.box.whole, item_box(list.kind, &item, name, field, edits));
            put = true;
        } else if (field != Field::cover) {
            replace(list.path, item.box.whole, {});
        }
    }
    if (!put) {
        const std::uint64_t end =
            list.items.empty() ? list.path.back().content().begin : list.items.back().box.whole.end;
        replace(list.path, {end, end}, item_box(list.kind, nullptr, name, field, edits));
    }
}

void Change::make_list(const TagEdits& edits) {
    Bytes items;
    for (std::size_t i = 0; i < field_count; ++i) {
        const auto field = static_cast<Field>(i);
        if (!edits.sets(field)) {
            continue;
        }
        for (const std::string& name : mp4_names(field)) {
            append(items, item_box(Kind::items, nullptr, name, field, edits));
        }
    }
    if (!items.empty()) {
        insert_list(make_box(box_type("ilst"), items));
    }
}

/** The list goes into the `meta` box that was made for one; a new one stands in front of any other, whose list is of
   another kind, since programs look into the first. */
void Change::insert_list(Bytes ilst) {
    std::uint64_t place = layout_.end_in_udta;
    for (const Mp4Meta& meta : layout_.metas) {
        const bool in_user_data =
            meta.path.size() == 3 && layout_.udta && meta.path[1].whole == layout_.udta->whole;
        if (in_user_data && meta.handler == box_type("mdir") && !meta.children.empty()) {
            const std::uint64_t end = meta.children.back().whole.end;
            replace(meta.path, {end, end}, std::move(ilst));
            return;
        }
        if (in_user_data) {
            place = std::min(place, meta.path.back().whole.begin);
        }
    }
    Bytes content(4); // version and flags
    append(content, handler_box());
    append(content, ilst);
    Bytes meta = make_box(box_type("meta"), content);
    if (layout_.udta) {
        replace({layout_.moov, *layout_.udta}, {place, place}, std::move(meta));
    } else {
        replace({layout_.moov}, {layout_.end_in_moov, layout_.end_in_moov}, make_box(box_type("udta"), meta));
    }
}

void Change::remove_tags() {
    for (const Mp4Meta& meta : layout_.metas) {
        if (meta.handler == box_type("mdir") || meta.handler == box_type("mdta")) {
            const std::vector<Box> path(meta.path.begin(), std::prev(meta.path.end()));
            replace(path, meta.path.back().whole, {});
        }
    }
    for (const Mp4ItemList& list : layout_.lists) {
        for (const Mp4Item& item : list.items) {
            if (list.kind == Kind::user_data) {
                replace(list.path, item.box.whole, {});
            }
        }
    }
}

void Change::replace(const std::vector<Box>& path, Range old, Bytes bytes) {
    for (const Box& box : path) {
        Growth& growth = growths_[box.whole.begin];
        growth.box = box;
        growth.bytes += static_cast<std::int64_t>(bytes.size()) - static_cast<std::int64_t>(old.size());
    }
    change_.splices.replace(old, std::move(bytes));
}

/** Whether anything but free bytes lies behind `moov`. */
bool Change::media_follow() const {
    return std::any_of(layout_.top_level.begin(), layout_.top_level.end(), [&](const Box& box) {
        return box.whole.begin > layout_.moov.whole.begin && !box.is_free();
    });
}

void Change::keep_media_in_place(bool pads_inside) {
    const auto growth = growths_.find(layout_.moov.whole.begin);
    if (growth == growths_.end() || growth->second.bytes == 0) {
        return;
    }
    if (!pads_inside || !pad_inside(growth->second.bytes)) {
        pad_behind(growth->second.bytes);
    }
}

/** Gives or takes the bytes in a `free` box behind the first list of items. False where that is not possible. */
bool Change::pad_inside(std::int64_t growth) {
    for (const Mp4ItemList& list : layout_.lists) {
        const std::vector<Box> path(list.path.begin(), std::prev(list.path.end()));
        const auto meta =
            std::find_if(layout_.metas.begin(), layout_.metas.end(), [&](const Mp4Meta& candidate) {
                return candidate.path.back().whole == path.back().whole;
            });
        if (list.kind != Kind::items || meta == layout_.metas.end() ||
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
void Change::pad_behind(std::int64_t growth) {
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

Mp4Change Change::finish(bool pads_inside) {
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

} // namespace

Mp4Change mp4_change(const Mp4Layout& layout, const TagEdits& edits) {
    Change change(layout);
    change.put(edits);
    return change.finish(true);
}

Mp4Change mp4_removal(const Mp4Layout& layout) {
    Change change(layout);
    change.remove_tags();
    return change.finish(false);
}

} // namespace velmora::portable
