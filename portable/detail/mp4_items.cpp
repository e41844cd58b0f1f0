#include "mp4_items.h"

#include "mp4_values.h"
#include "picture_mime.h"
#include "refusals.h"
#include "save_edits.h"
#include "text.h"

#include "taglib/byte_order.h"

#include <algorithm>
#include <array>
#include <id3v1genres.h>

namespace velmora::portable {

namespace {

using Kind = Mp4ItemList::Kind;

constexpr std::string_view free_item = "----";

struct Place {
    Kind kind;
    std::string_view name;
    Field field;
    bool written = true; ///< false: read, and gives way to the written one of its field
};

/* Of several names of one field the first that says something is read. In a list of `items` all that are
   written get the value; elsewhere those get it that exist. */
constexpr std::array places = {
    Place{Kind::items, "©nam", Field::title},
    Place{Kind::items, "©ART", Field::artist},
    Place{Kind::items, "©alb", Field::album},
    Place{Kind::items, "----:com.apple.iTunes:DIRECTOR", Field::director},
    Place{Kind::items, "ldes", Field::synopsis},
    Place{Kind::items, "desc", Field::synopsis},
    Place{Kind::items, "©gen", Field::genre},
    Place{Kind::items, "gnre", Field::genre, false},
    Place{Kind::items, "----:com.apple.iTunes:iTunEXTC", Field::rating},
    Place{Kind::items, "©day", Field::year},
    Place{Kind::items, "covr", Field::cover},
    Place{Kind::keys, "com.apple.quicktime.title", Field::title},
    Place{Kind::keys, "title", Field::title},
    Place{Kind::keys, "com.apple.quicktime.artist", Field::artist},
    Place{Kind::keys, "artist", Field::artist},
    Place{Kind::keys, "com.apple.quicktime.album", Field::album},
    Place{Kind::keys, "album", Field::album},
    Place{Kind::keys, "com.apple.quicktime.director", Field::director},
    Place{Kind::keys, "director", Field::director},
    Place{Kind::keys, "synopsis", Field::synopsis},
    Place{Kind::keys, "com.apple.quicktime.description", Field::synopsis},
    Place{Kind::keys, "description", Field::synopsis},
    Place{Kind::keys, "com.apple.quicktime.genre", Field::genre},
    Place{Kind::keys, "genre", Field::genre},
    Place{Kind::keys, "com.apple.quicktime.year", Field::year},
    Place{Kind::keys, "date", Field::year},
    Place{Kind::keys, "com.apple.quicktime.artwork", Field::cover},
    Place{Kind::user_data, "©nam", Field::title},
    Place{Kind::user_data, "©ART", Field::artist},
    Place{Kind::user_data, "©alb", Field::album},
    Place{Kind::user_data, "©dir", Field::director},
    Place{Kind::user_data, "©des", Field::synopsis},
    Place{Kind::user_data, "©gen", Field::genre},
    Place{Kind::user_data, "©day", Field::year},
};

struct PictureKind {
    std::uint32_t number;
    std::string_view mime;
};
constexpr std::array picture_kinds = {
    PictureKind{13, "image/jpeg"},
    PictureKind{14, "image/png"},
    PictureKind{27, "image/bmp"},
    PictureKind{12, "image/gif"},
};

std::string genre_of(const Mp4Value& value) {
    if (value.bytes.size() < 2) {
        return {};
    }
    const int number = load_be16(value.bytes.data()); // counted from 1
    return TagLib::ID3v1::genre(number - 1).to8Bit(true);
}

std::span<const std::uint8_t> bytes_of(std::string_view text) {
    return {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()};
}

/** `mean` or `name`: version and flags, and a text. */
Bytes name_box(std::uint32_t type, std::string_view text) {
    Bytes content;
    append_be32(content, 0);
    append(content, text);
    return make_box(type, content);
}

std::uint32_t type_of_name(std::string_view name) {
    const std::u32string letters = code_points(name);
    std::uint32_t type = 0;
    for (std::size_t i = 0; i < 4 && i < letters.size(); ++i) {
        type = type << 8 | static_cast<std::uint32_t>(letters[i]);
    }
    return type;
}

/** A name written "----:domain:name" as the boxes that it is. */
Bytes boxes_of_free_name(std::string_view name) {
    const std::string_view rest = name.substr(free_item.size() + 1);
    const std::size_t colon = rest.find(':');
    Bytes boxes = name_box(box_type("mean"), rest.substr(0, colon));
    append(boxes, name_box(box_type("name"), rest.substr(colon + 1)));
    return boxes;
}

/** The item of NAME with VALUE in it. */
Bytes new_box(std::string_view name, const Mp4Value& value) {
    Bytes content = name.starts_with(free_item) ? boxes_of_free_name(name) : Bytes();
    append(content, value.box());
    return make_box(type_of_name(name), content);
}

/** ITEM with VALUE in place of its first one; OTHERS: further ones stay. */
Bytes changed_box(const Mp4Item& item, Mp4Value value, bool others) {
    Bytes content;
    bool put = false;
    for (const Mp4Child& child : mp4_children(item.bytes)) {
        const bool is_value = child.type == box_type("data");
        if (is_value && !put) {
            const std::optional<Mp4Value> old = mp4_value(child);
            value.locale = old ? old->locale : 0;
            append(content, value.box());
            put = true;
        } else if (!is_value || others) {
            append(content, child.bytes);
        }
    }
    if (!put) {
        append(content, value.box());
    }
    return make_box(item.box.type, content);
}

std::span<const std::uint8_t> content_of(const Mp4Item& item) {
    return std::span(item.bytes).subspan(item.box.header_size);
}

Bytes user_text_box(const Mp4Item& item, std::string_view text) {
    const std::optional<UserText> old = user_text(content_of(item));
    const std::uint16_t language = old && old->is_unicode() ? old->language : UserText::undetermined;
    return make_box(item.box.type, UserText{language, bytes_of(text)}.content());
}

} // namespace

std::optional<Field> mp4_field(Kind kind, std::string_view name, Media media) {
    for (const Place& place : places) {
        if (place.kind == kind && mp4_same_name(place.name, name) && has_field(media, place.field)) {
            return place.field;
        }
    }
    return std::nullopt;
}

bool mp4_same_name(std::string_view left, std::string_view right) {
    return left == right || (left.starts_with(free_item) && equal_ignoring_case(left, right));
}

std::vector<std::string_view> mp4_places(Kind kind, Field field) {
    std::vector<std::string_view> names;
    for (const Place& place : places) {
        if (place.kind == kind && place.field == field) {
            names.push_back(place.name);
        }
    }
    return names;
}

std::vector<std::string> mp4_names(Field field) {
    std::vector<std::string> names;
    for (const Place& place : places) {
        if (place.kind == Kind::items && place.field == field && place.written) {
            names.emplace_back(place.name);
        }
    }
    return names;
}

std::string mp4_item_name(std::span<const std::uint8_t> bytes) {
    std::string name = type_name(load_be32(bytes.data() + 4));
    if (name != free_item) {
        return name;
    }
    for (const Mp4Child& child : mp4_children(bytes)) {
        if ((child.type == box_type("mean") || child.type == box_type("name")) &&
            child.content().size() >= 4) {
            const std::span<const std::uint8_t> text = child.content().subspan(4);
            name += ':';
            name += valid_utf8({reinterpret_cast<const char*>(text.data()), text.size()});
        }
    }
    return name;
}

std::string mp4_text(Kind kind, const Mp4Item& item) {
    if (kind == Kind::user_data) {
        const std::optional<UserText> text = user_text(content_of(item));
        return text ? text->text() : std::string();
    }
    std::vector<std::string> values;
    for (const Mp4Child& child : mp4_children(item.bytes)) {
        if (const std::optional<Mp4Value> value = mp4_value(child)) {
            values.push_back(item.name == "gnre" ? genre_of(*value) : value->text());
        }
    }
    return joined(values);
}

std::optional<Cover> mp4_cover(const Mp4Item& item) {
    for (const Mp4Child& child : mp4_children(item.bytes)) {
        const std::optional<Mp4Value> value = mp4_value(child);
        if (!value || value->bytes.empty()) {
            continue;
        }
        const auto* const kind =
            std::find_if(picture_kinds.begin(), picture_kinds.end(),
                         [&](const PictureKind& candidate) { return candidate.number == value->kind; });
        return Cover{{value->bytes.begin(), value->bytes.end()},
                     kind == picture_kinds.end() ? picture_mime(value->bytes) : std::string(kind->mime)};
    }
    return std::nullopt;
}

Bytes mp4_text_box(Kind kind, const Mp4Item* item, std::string_view name, std::string_view text) {
    if (kind == Kind::user_data) {
        return user_text_box(*item, text);
    }
    const Mp4Value value{Mp4Value::utf8, 0, bytes_of(text)};
    return item ? changed_box(*item, value, false) : new_box(name, value);
}

Bytes mp4_cover_box(const Mp4Item* item, std::string_view name, const Cover& cover) {
    const auto* const kind =
        std::find_if(picture_kinds.begin(), picture_kinds.end(),
                     [&](const PictureKind& candidate) { return candidate.mime == cover.mime; });
    if (kind == picture_kinds.end()) {
        refuse_unsupported("a cover that is no JPEG, PNG, BMP or GIF picture");
    }
    const Mp4Value value{kind->number, 0, cover.bytes};
    return item ? changed_box(*item, value, true) : new_box(name, value);
}

} // namespace velmora::portable
