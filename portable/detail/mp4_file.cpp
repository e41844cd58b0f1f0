#include "checked_read.h"
#include "content_rating.h"
#include "date_text.h"
#include "formats.h"
#include "mp4_edits.h"
#include "mp4_items.h"
#include "mp4_offsets.h"
#include "refusals.h"
#include "text.h"

#include <algorithm>

namespace velmora::portable {

namespace {

using Kind = Mp4ItemList::Kind;

std::string tag_name(Kind kind) {
    switch (kind) {
    case Kind::items:
        return "MP4";
    case Kind::keys:
        return "QuickTime keys";
    case Kind::user_data:
        return "QuickTime user data";
    }
    return {};
}

/** What LIST says of FIELD: all its items of the first name that says something. */
std::string text_in(const Mp4ItemList& list, Field field) {
    for (const std::string_view name : mp4_places(list.kind, field)) {
        std::vector<std::string> values;
        for (const Mp4Item& item : list.items) {
            if (item.field == field && mp4_same_name(item.name, name)) {
                values.push_back(mp4_text(list.kind, item));
            }
        }
        std::string text = joined(values);
        if (!text.empty()) {
            return text;
        }
    }
    return {};
}

class Mp4File : public TaggedFile {
public:
    Mp4File(FIOFUNCSTRUCT* file, std::uint64_t size, Media media)
        : window_(file), layout_(read_mp4_layout(window_, size, media)) {}

    [[nodiscard]] std::vector<std::string> tags() const override;
    [[nodiscard]] TagValues values() const override;
    [[nodiscard]] std::vector<TagItem> items() const override;
    [[nodiscard]] std::vector<Range> payload() const override;
    void check_against(const TaggedFile& original) const override;
    [[nodiscard]] Rewrite with(const TagEdits& edits) const override;
    [[nodiscard]] Rewrite without_tags() const override;

private:
    [[nodiscard]] ReadCursor cursor() const { return {window_, 0, layout_.file_size}; }
    [[nodiscard]] std::string text(Field field) const;
    [[nodiscard]] std::optional<Cover> cover() const;
    [[nodiscard]] Rewrite rewrite(const Mp4Change& change) const;
    [[nodiscard]] bool moves_boxes(const Splices& splices) const;
    void require_sound_end() const;

    mutable ReadWindow window_;
    Mp4Layout layout_;
};

std::vector<std::string> Mp4File::tags() const {
    std::vector<std::string> tags;
    for (const Mp4ItemList& list : layout_.lists) {
        std::string name = tag_name(list.kind);
        if (!list.items.empty() && std::find(tags.begin(), tags.end(), name) == tags.end()) {
            tags.push_back(std::move(name));
        }
    }
    return tags;
}

std::string Mp4File::text(Field field) const {
    std::string text;
    for (const Mp4ItemList& list : layout_.lists) {
        if (text.empty()) {
            text = text_in(list, field);
        }
    }
    return text;
}

std::optional<Cover> Mp4File::cover() const {
    for (const Mp4ItemList& list : layout_.lists) {
        for (const Mp4Item& item : list.items) {
            std::optional<Cover> cover = item.field == Field::cover ? mp4_cover(item) : std::nullopt;
            if (cover) {
                return cover;
            }
        }
    }
    return std::nullopt;
}

TagValues Mp4File::values() const {
    TagValues values;
    for (std::size_t i = 0; i < text_field_count; ++i) {
        const auto field = static_cast<Field>(i);
        const std::string value = field == Field::rating ? rating_in(text(field)) : text(field);
        if (!value.empty()) {
            values.text(field) = value;
        }
    }
    values.year = year_of(text(Field::year));
    values.cover = cover();
    return values;
}

std::vector<TagItem> Mp4File::items() const {
    std::vector<TagItem> items;
    for (const Mp4ItemList& list : layout_.lists) {
        for (const Mp4Item& item : list.items) {
            items.push_back({tag_name(list.kind) + " " + item.name, item.bytes, item.field});
        }
    }
    for (const Mp4Meta& meta : layout_.metas) {
        for (const Box& box : meta.children) {
            const bool is_own = box.type == box_type("ilst") || box.type == box_type("hdlr") || box.is_free();
            if (!is_own) {
                items.push_back({"meta " + type_name(box.type), read_range(cursor(), box.whole, "meta"), {}});
            }
        }
    }
    return items;
}

/** Everything but tags, free bytes, sizes of boxes that may change, and offsets, which are compared by what
   they point to. */
std::vector<Range> Mp4File::payload() const {
    std::vector<Range> rest;
    for (const Box& box : layout_.top_level) {
        if (box.is_free()) {
            rest.push_back(box.whole);
        }
    }
    rest.push_back(layout_.moov.size_field());
    for (const Box& udta : layout_.all_udta) {
        rest.push_back({udta.whole.begin, udta.content().begin});
    }
    for (const Mp4Meta& meta : layout_.metas) {
        rest.push_back(meta.path.back().whole);
    }
    for (const Mp4ItemList& list : layout_.lists) {
        for (const Mp4Item& item : list.items) {
            rest.push_back(item.box.whole);
        }
    }
    for (const OffsetTable& table : find_offsets(cursor(), layout_).tables) {
        for (std::uint64_t i = 0; table.stride != table.width && i < table.count; ++i) {
            const std::uint64_t position = table.position + i * table.stride;
            rest.push_back({position, position + table.width});
        }
        if (table.stride == table.width) {
            rest.push_back({table.position, table.position + table.count * table.width});
        }
    }
    return ranges_without(std::move(rest), layout_.file_size);
}

void Mp4File::check_against(const TaggedFile& original) const {
    const auto& old = dynamic_cast<const Mp4File&>(original);
    compare_offsets(old.cursor(), old.layout_, cursor(), layout_);
}

Rewrite Mp4File::rewrite(const Mp4Change& change) const {
    Rewrite rewrite{change.splices.segments(layout_.file_size), {}};
    if (change.splices.empty()) {
        return rewrite;
    }
    require_sound_end();
    OffsetTables offsets = find_offsets(cursor(), layout_);
    check_offsets(cursor(), layout_, offsets, change.splices, change.gone);
    if (!moves_boxes(change.splices)) {
        return rewrite;
    }
    if (!offsets.immovable.empty()) {
        refuse_unsupported(offsets.immovable);
    }
    for (const OffsetTable& table : offsets.tables) {
        rewrite.patched.push_back(table.bytes());
    }
    rewrite.finish = [tables = std::move(offsets.tables), splices = change.splices,
                      size = change.splices.moved(layout_.file_size)](FIOFUNCSTRUCT* file) {
        mend_offsets(file, size, tables, splices);
    };
    return rewrite;
}

bool Mp4File::moves_boxes(const Splices& splices) const {
    return std::any_of(layout_.top_level.begin(), layout_.top_level.end(), [&](const Box& box) {
        return !box.is_free() && splices.moved(box.whole.begin) != box.whole.begin;
    });
}

/** Behind the last box zeros may lie, or a tag that others put there. Anything else is a box that was cut
   off. */
void Mp4File::require_sound_end() const {
    const std::uint64_t begin = layout_.end_of_boxes;
    const Bytes bytes =
        read_range(cursor(), {begin, std::min(begin + 8, layout_.file_size)}, "the end of the file");
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    const bool zeros = std::all_of(bytes.begin(), bytes.end(), [](std::uint8_t byte) { return byte == 0; });
    if (!zeros && !text.starts_with("ID3") && !text.starts_with("TAG") && !text.starts_with("APETAGEX")) {
        refuse_damaged("the last box reaches behind the end of the file");
    }
}

Rewrite Mp4File::with(const TagEdits& edits) const {
    return rewrite(mp4_change(layout_, edits));
}

Rewrite Mp4File::without_tags() const {
    return rewrite(mp4_removal(layout_));
}

} // namespace

std::unique_ptr<TaggedFile> open_mp4(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) {
    return std::make_unique<Mp4File>(file, size, media);
}

} // namespace velmora::portable
