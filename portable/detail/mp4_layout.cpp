#include "mp4_layout.h"

#include "checked_read.h"
#include "mp4_items.h"
#include "refusals.h"
#include "text.h"

#include "taglib/byte_order.h"

#include <algorithm>
#include <array>

namespace velmora::portable {

namespace {

constexpr std::uint64_t largest_tag = std::uint64_t{128} << 20;
constexpr std::size_t most_top_level_boxes = 250'000;

class Reader {
public:
    Reader(ReadWindow& window, std::uint64_t file_size, Media media)
        : file_(window, 0, file_size), media_(media) {
        layout_.file_size = file_size;
    }

    Mp4Layout read() {
        read_top_level();
        read_moov();
        const auto rank = [](const Mp4ItemList& list) { return static_cast<int>(list.kind); };
        std::stable_sort(
            layout_.lists.begin(), layout_.lists.end(),
            [&](const Mp4ItemList& left, const Mp4ItemList& right) { return rank(left) < rank(right); });
        return std::move(layout_);
    }

private:
    void read_top_level() {
        ReadCursor cursor = file_;
        bool found = false;
        while (const std::optional<Box> box = next_box(cursor, true)) {
            if (layout_.top_level.size() == most_top_level_boxes) {
                refuse_unsupported("more than " + std::to_string(most_top_level_boxes) + " boxes");
            }
            layout_.top_level.push_back(*box);
            if (box->type == box_type("moov")) {
                if (found) {
                    refuse_unsupported("two moov boxes");
                }
                layout_.moov = *box;
                found = true;
            }
        }
        layout_.end_of_boxes = cursor.position();
        if (!found) {
            refuse_damaged("no moov box");
        }
    }

    void read_moov() {
        layout_.end_in_moov = layout_.moov.content().begin;
        for (const Box& box : boxes_in(file_, layout_.moov.content(), layout_.moov.type)) {
            layout_.end_in_moov = box.whole.end;
            if (box.type == box_type("trak")) {
                layout_.traks.push_back(box);
            } else if (box.type == box_type("meta")) {
                read_meta({layout_.moov, box});
            } else if (box.type == box_type("udta")) {
                read_user_data(box);
            } else if (box.type == box_type("cmov")) {
                refuse_unsupported("a compressed moov box");
            }
        }
    }

    void read_user_data(const Box& udta) {
        Mp4ItemList texts{Mp4ItemList::Kind::user_data, {layout_.moov, udta}, {}};
        std::uint64_t end = udta.content().begin;
        for (const Box& box : boxes_in(file_, udta.content(), udta.type)) {
            end = box.whole.end;
            if (box.type == box_type("meta")) {
                read_meta({layout_.moov, udta, box});
            } else if (type_name(box.type).starts_with("©")) {
                texts.items.push_back(read_item(box, texts.kind, type_name(box.type)));
            }
        }
        if (!layout_.udta) {
            layout_.udta = udta;
            layout_.end_in_udta = end;
        }
        layout_.all_udta.push_back(udta);
        if (!texts.items.empty()) {
            layout_.lists.push_back(std::move(texts));
        }
    }

    void read_meta(std::vector<Box> path) {
        std::vector<Box> children = boxes_in_meta(file_, path.back());
        Mp4Meta meta{std::move(path), 0, std::move(children)};
        std::vector<std::string> keys;
        bool has_keys = false;
        for (const Box& box : meta.children) {
            if (box.type == box_type("hdlr")) {
                meta.handler = read_handler(box);
            } else if (box.type == box_type("keys")) {
                has_keys = true;
                keys = read_keys(box);
            }
        }
        for (const Box& box : meta.children) {
            if (box.type == box_type("ilst")) {
                std::vector<Box> list_path = meta.path;
                list_path.push_back(box);
                read_item_list(std::move(list_path), has_keys ? &keys : nullptr);
            }
        }
        layout_.metas.push_back(std::move(meta));
    }

    [[nodiscard]] std::uint32_t read_handler(const Box& hdlr) const {
        const Range content = hdlr.content();
        const Bytes bytes =
            read_range(file_, {content.begin, std::min(content.begin + 12, content.end)}, "hdlr");
        return bytes.size() == 12 ? load_be32(bytes.data() + 8) : 0;
    }

    [[nodiscard]] std::vector<std::string> read_keys(const Box& box) {
        const Bytes bytes = read_tag(box);
        std::vector<std::string> keys;
        constexpr std::size_t header = 8; // of the box, of its contents, and of each key
        std::size_t position = 2 * header;
        while (position + header <= bytes.size()) {
            const std::size_t size = load_be32(&bytes[position]);
            if (size < header || size > bytes.size() - position) {
                refuse_damaged("a key reaches out of keys");
            }
            const auto* const name = reinterpret_cast<const char*>(&bytes[position]);
            keys.push_back(valid_utf8({name + header, size - header}));
            position += size;
        }
        return keys;
    }

    /** KEYS: null for a list whose items are named by their types. */
    void read_item_list(std::vector<Box> path, const std::vector<std::string>* keys) {
        const Box ilst = path.back();
        Mp4ItemList list{keys ? Mp4ItemList::Kind::keys : Mp4ItemList::Kind::items, std::move(path), {}};
        for (const Box& box : boxes_in(file_, ilst.content(), ilst.type)) {
            std::string name;
            if (keys) {
                const std::size_t index = box.type;
                name = index >= 1 && index <= keys->size() ? (*keys)[index - 1] : std::to_string(index);
            }
            list.items.push_back(read_item(box, list.kind, std::move(name)));
        }
        layout_.lists.push_back(std::move(list));
    }

    [[nodiscard]] Mp4Item read_item(const Box& box, Mp4ItemList::Kind kind, std::string name) {
        Mp4Item item{box, read_tag(box), std::move(name), std::nullopt};
        if (kind == Mp4ItemList::Kind::items) {
            item.name = mp4_item_name(item.bytes);
        }
        item.field = mp4_field(kind, item.name, media_);
        return item;
    }

    /** The bytes of a box that is part of a tag: these are held in memory, so there may not be too many of
       them. */
    [[nodiscard]] Bytes read_tag(const Box& box) {
        tag_size_ += box.whole.size();
        if (tag_size_ > largest_tag) {
            refuse_unsupported("a tag of more than 128 MiB");
        }
        return read_range(file_, box.whole, "the tag");
    }

    ReadCursor file_;
    Media media_;
    Mp4Layout layout_;
    std::uint64_t tag_size_ = 0;
};

} // namespace

std::vector<Box> boxes_in_meta(const ReadCursor& file, const Box& meta) {
    Range content = meta.content();
    const Range begin{content.begin, std::min(content.begin + 8, content.end)};
    const Bytes bytes = read_range(file, begin, "meta");
    if (bytes.size() < 8 || load_be32(bytes.data() + 4) != box_type("hdlr")) {
        content.begin = std::min(content.begin + 4, content.end);
    }
    return boxes_in(file, content, meta.type);
}

Mp4Layout read_mp4_layout(ReadWindow& window, std::uint64_t file_size, Media media) {
    return Reader(window, file_size, media).read();
}

} // namespace velmora::portable
