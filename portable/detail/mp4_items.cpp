#include "mp4_items.h"

#include "mac_roman.h"
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

/* Of several names of one field the first that says something is read. In a list of `items` all that are written get
   the value; elsewhere those get it that exist. */
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

/* Numbers of the kinds of values in `data`. */
constexpr std::uint32_t value_utf8 = 1;
constexpr std::uint32_t value_utf16 = 2;

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

/** A box inside an item. */
struct Child {
    std::uint32_t type;
    std::span<const std::uint8_t> bytes; ///< header included
    [[nodiscard]] std::span<const std::uint8_t> content() const { return bytes.subspan(8); }
};

/** The boxes inside the item whose box is BYTES; what does not fit is none. */
std::vector<Child> children_of(std::span<const std::uint8_t> bytes) {
    std::vector<Child> children;
    ReadWindow window(bytes);
    ReadCursor cursor(window);
    if (!next_box(cursor) || !cursor.seek(0)) {
        return children;
    }
    const std::uint64_t header = load_be32(bytes.data()) == 1 ? 16 : 8;
    if (!cursor.skip(header)) {
        return children;
    }
    while (const std::optional<Box> box = next_box(cursor)) {
        if (box->header_size == 8) {
            children.push_back({box->type, bytes.subspan(box->whole.begin, box->whole.size())});
        }
    }
    return children;
}

/** A value as `data` holds it. */
struct Value {
    std::uint32_t kind;
    std::uint32_t locale;
    std::span<const std::uint8_t> bytes;
};

std::optional<Value> value_in(const Child& child) {
    const std::span<const std::uint8_t> content = child.content();
    if (child.type != box_type("data") || content.size() < 8) {
        return std::nullopt;
    }
    return Value{load_be32(content.data()) & 0xFFFFFF, load_be32(content.data() + 4), content.subspan(8)};
}

std::string text_of(const Value& value) {
    if (value.kind == value_utf16) {
        return utf8_from_utf16(value.bytes, std::endian::big);
    }
    return valid_utf8({reinterpret_cast<const char*>(value.bytes.data()), value.bytes.size()});
}

std::string genre_of(const Value& value) {
    if (value.bytes.size() < 2) {
        return {};
    }
    const int number = load_be16(value.bytes.data()); // counted from 1
    return TagLib::ID3v1::genre(number - 1).to8Bit(true);
}

/* A text in user data: its length, its language, its letters. */
constexpr std::size_t user_text_header = 4;
constexpr std::uint16_t first_iso_language = 0x400; ///< those before are numbers of Macintosh languages
constexpr std::uint16_t undetermined_language = 0x55C4;

struct UserText {
    std::uint16_t language;
    std::span<const std::uint8_t> letters;
};

/** The first text of the item whose box is BYTES; the others say the same in other languages. */
std::optional<UserText> user_text_in(std::span<const std::uint8_t> bytes) {
    if (bytes.size() < 8 + user_text_header) {
        return std::nullopt;
    }
    const std::size_t length = load_be16(bytes.data() + 8);
    const std::span<const std::uint8_t> rest = bytes.subspan(8 + user_text_header);
    return UserText{load_be16(bytes.data() + 10), rest.first(std::min(length, rest.size()))};
}

std::string text_of(const UserText& text) {
    if (text.language < first_iso_language) {
        return utf8_from_mac_roman(text.letters);
    }
    const bool marked = text.letters.size() >= 2 && (load_be16(text.letters.data()) == 0xFEFF ||
                                                     load_be16(text.letters.data()) == 0xFFFE);
    if (marked) {
        return utf8_from_utf16(text.letters, std::endian::big);
    }
    return valid_utf8({reinterpret_cast<const char*>(text.letters.data()), text.letters.size()});
}

Bytes user_text_box(const Mp4Item& item, std::string_view text) {
    if (text.size() > 0xFFFF) {
        refuse_too_large("a text of more than 65535 bytes in the QuickTime user data");
    }
    const std::optional<UserText> old = user_text_in(item.bytes);
    Bytes content;
    append_be16(content, static_cast<std::uint16_t>(text.size()));
    append_be16(content, old && old->language >= first_iso_language ? old->language : undetermined_language);
    append(content, text);
    return make_box(item.box.type, content);
}

/** A `data` box. */
Bytes value_box(std::uint32_t kind, std::uint32_t locale, std::span<const std::uint8_t> value) {
    Bytes content;
    append_be32(content, kind);
    append_be32(content, locale);
    append(content, value);
    return make_box(box_type("data"), content);
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

/** The item with FIRST in place of its first value; null ITEM: a new one of NAME. */
Bytes box_with_value(const Mp4Item* item, std::string_view name, std::uint32_t kind,
                     std::span<const std::uint8_t> value, bool keeps_other_values) {
    Bytes content;
    std::uint32_t type = type_of_name(name);
    std::uint32_t locale = 0;
    if (!item) {
        if (name.starts_with(free_item)) {
            content = boxes_of_free_name(name);
        }
        append(content, value_box(kind, locale, value));
        return make_box(type, content);
    }
    type = item->box.type;
    bool put = false;
    for (const Child& child : children_of(item->bytes)) {
        const std::optional<Value> old = value_in(child);
        if (child.type == box_type("data") && !put) {
            append(content, value_box(kind, old ? old->locale : 0, value));
            put = true;
        } else if (child.type != box_type("data") || keeps_other_values) {
            append(content, child.bytes);
        }
    }
    if (!put) {
        append(content, value_box(kind, locale, value));
    }
    return make_box(type, content);
}

bool same_letters(std::string_view left, std::string_view right) {
    const auto lower = [](char letter) { return letter >= 'A' && letter <= 'Z' ? letter + 32 : letter; };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [&](char a, char b) { return lower(a) == lower(b); });
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
    return left == right || (left.starts_with(free_item) && same_letters(left, right));
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
    for (const Child& child : children_of(bytes)) {
        if ((child.type == box_type("mean") || child.type == box_type("name")) &&
            child.content().size() >= 4) {
            const std::span<const std::uint8_t> text = child.content().subspan(4);
            name += ":" + valid_utf8({reinterpret_cast<const char*>(text.data()), text.size()});
        }
    }
    return name;
}

std::string mp4_text(Kind kind, const Mp4Item& item) {
    if (kind == Kind::user_data) {
        const std::optional<UserText> text = user_text_in(item.bytes);
        return text ? text_of(*text) : std::string();
    }
    std::vector<std::string> values;
    for (const Child& child : children_of(item.bytes)) {
        if (const std::optional<Value> value = value_in(child)) {
            values.push_back(item.name == "gnre" ? genre_of(*value) : text_of(*value));
        }
    }
    return joined(values);
}

std::optional<Cover> mp4_cover(const Mp4Item& item) {
    for (const Child& child : children_of(item.bytes)) {
        const std::optional<Value> value = value_in(child);
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
    const auto* const letters = reinterpret_cast<const std::uint8_t*>(text.data());
    return box_with_value(item, name, value_utf8, {letters, text.size()}, false);
}

Bytes mp4_cover_box(const Mp4Item* item, std::string_view name, const Cover& cover) {
    const auto* const kind =
        std::find_if(picture_kinds.begin(), picture_kinds.end(),
                     [&](const PictureKind& candidate) { return candidate.mime == cover.mime; });
    if (kind == picture_kinds.end()) {
        refuse_unsupported("a cover that is no JPEG, PNG, BMP or GIF picture");
    }
    return box_with_value(item, name, kind->number, cover.bytes, true);
}

} // namespace velmora::portable
