#include "mp4_edits.h"

#include "content_rating.h"
#include "date_text.h"
#include "mp4_items.h"
#include "text.h"

#include <algorithm>

namespace velmora::portable {

namespace {

using Kind = Mp4ItemList::Kind;

constexpr std::size_t longest_description = 255; ///< code points that `desc` takes

std::string beginning_of(std::string_view text, std::size_t length) {
    return utf8_from_code_points(std::u32string_view(code_points(text)).substr(0, length));
}

/** `hdlr` of a list of items. */
Bytes handler_box() {
    Bytes content(8); // version, flags, and a number that is always 0
    append(content, "mdirappl");
    content.resize(25); // two reserved numbers, and an empty name
    return make_box(box_type("hdlr"), content);
}

/** Puts edits into the lists of a file. */
class Editor {
public:
    Editor(const Mp4Layout& layout, BoxChange& change) : layout_(layout), change_(change) {}

    void put(const TagEdits& edits);
    void remove_tags();

private:
    void put_into(const Mp4ItemList& list, const TagEdits& edits, bool is_first);
    void put_field(const Mp4ItemList& list, Field field, const TagEdits& edits, bool is_first);
    void put_value(const Mp4ItemList& list, Field field, const TagEdits& edits, const std::string& name);
    void make_list(const TagEdits& edits);
    void insert_list(Bytes ilst);

    const Mp4Layout& layout_;
    BoxChange& change_;
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

Bytes item_box(Kind kind, const Mp4Item* item, const std::string& name, Field field, const TagEdits& edits) {
    if (field == Field::cover) {
        return mp4_cover_box(item, name, *edits.cover.value());
    }
    return mp4_text_box(kind, item, name, text_for(kind, item, name, field, edits));
}

void Editor::put(const TagEdits& edits) {
    bool is_first = true;
    for (const Mp4ItemList& list : layout_.lists) {
        put_into(list, edits, is_first && list.kind == Kind::items);
        is_first = is_first && list.kind != Kind::items;
    }
    if (is_first) {
        make_list(edits);
    }
}

void Editor::put_into(const Mp4ItemList& list, const TagEdits& edits, bool is_first) {
    for (std::size_t i = 0; i < field_count; ++i) {
        const auto field = static_cast<Field>(i);
        if (edits.asks_for(field)) {
            put_field(list, field, edits, is_first);
        }
    }
}

/** Items of the field stay where its value is put into them, and go otherwise. */
void Editor::put_field(const Mp4ItemList& list, Field field, const TagEdits& edits, bool is_first) {
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
            change_.replace(list.path, item.box.whole, {});
        }
    }
}

/** The first item of NAME gets the value, or one behind the others; further ones of that name go. Further
   covers are other pictures and stay. */
void Editor::put_value(const Mp4ItemList& list, Field field, const TagEdits& edits, const std::string& name) {
    bool put = false;
    for (const Mp4Item& item : list.items) {
        if (!mp4_same_name(item.name, name)) {
            continue;
        }
        if (!put) {
            change_.replace(list.path, item.box.whole, item_box(list.kind, &item, name, field, edits));
            put = true;
        } else if (field != Field::cover) {
            change_.replace(list.path, item.box.whole, {});
        }
    }
    if (!put) {
        const std::uint64_t end =
            list.items.empty() ? list.path.back().content().begin : list.items.back().box.whole.end;
        change_.replace(list.path, {end, end}, item_box(list.kind, nullptr, name, field, edits));
    }
}

void Editor::make_list(const TagEdits& edits) {
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

/** The list goes into the `meta` box that was made for one; a new one stands in front of any other, whose
   list is of another kind, since programs look into the first. */
void Editor::insert_list(Bytes ilst) {
    std::uint64_t place = layout_.end_in_udta;
    for (const Mp4Meta& meta : layout_.metas) {
        const bool in_user_data =
            meta.path.size() == 3 && layout_.udta && meta.path[1].whole == layout_.udta->whole;
        if (in_user_data && meta.handler == box_type("mdir") && !meta.children.empty()) {
            const std::uint64_t end = meta.children.back().whole.end;
            change_.replace(meta.path, {end, end}, std::move(ilst));
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
        change_.replace({layout_.moov, *layout_.udta}, {place, place}, std::move(meta));
    } else {
        change_.replace({layout_.moov}, {layout_.end_in_moov, layout_.end_in_moov},
                        make_box(box_type("udta"), meta));
    }
}

void Editor::remove_tags() {
    for (const Mp4Meta& meta : layout_.metas) {
        if (meta.handler == box_type("mdir") || meta.handler == box_type("mdta")) {
            const std::vector<Box> path(meta.path.begin(), std::prev(meta.path.end()));
            change_.replace(path, meta.path.back().whole, {});
        }
    }
    for (const Mp4ItemList& list : layout_.lists) {
        for (const Mp4Item& item : list.items) {
            if (list.kind == Kind::user_data) {
                change_.replace(list.path, item.box.whole, {});
            }
        }
    }
}

} // namespace

Mp4Change mp4_change(const Mp4Layout& layout, const TagEdits& edits) {
    BoxChange change(layout);
    Editor(layout, change).put(edits);
    return change.finish(true);
}

Mp4Change mp4_removal(const Mp4Layout& layout) {
    BoxChange change(layout);
    Editor(layout, change).remove_tags();
    return change.finish(false);
}

} // namespace velmora::portable
