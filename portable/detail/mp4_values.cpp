#include "mp4_values.h"

#include "mac_roman.h"
#include "refusals.h"
#include "text.h"

#include <algorithm>

namespace velmora::portable {

namespace {

constexpr std::size_t user_text_header = 4;
constexpr std::uint16_t first_iso_language = 0x400;

std::string utf8_of(std::span<const std::uint8_t> bytes) {
    return valid_utf8({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
}

} // namespace

std::vector<Mp4Child> mp4_children(std::span<const std::uint8_t> item) {
    std::vector<Mp4Child> children;
    ReadWindow window(item);
    ReadCursor cursor(window);
    const std::optional<Box> outer = next_box(cursor);
    if (!outer || !cursor.seek(outer->content().begin)) {
        return children;
    }
    while (const std::optional<Box> box = next_box(cursor)) {
        if (box->header_size == 8) {
            children.push_back({box->type, item.subspan(box->whole.begin, box->whole.size())});
        }
    }
    return children;
}

std::optional<Mp4Value> mp4_value(const Mp4Child& child) {
    const std::span<const std::uint8_t> content = child.content();
    if (child.type != box_type("data") || content.size() < 8) {
        return std::nullopt;
    }
    return Mp4Value{load_be32(content.data()) & 0xFFFFFF, load_be32(content.data() + 4), content.subspan(8)};
}

std::string Mp4Value::text() const {
    return kind == utf16 ? utf8_from_utf16(bytes, std::endian::big) : utf8_of(bytes);
}

Bytes Mp4Value::box() const {
    Bytes content;
    append_be32(content, kind);
    append_be32(content, locale);
    append(content, bytes);
    return make_box(box_type("data"), content);
}

std::optional<UserText> user_text(std::span<const std::uint8_t> content) {
    if (content.size() < user_text_header) {
        return std::nullopt;
    }
    const std::size_t length = load_be16(content.data());
    const std::span<const std::uint8_t> rest = content.subspan(user_text_header);
    return UserText{load_be16(content.data() + 2), rest.first(std::min(length, rest.size()))};
}

bool UserText::is_unicode() const {
    return language >= first_iso_language;
}

std::string UserText::text() const {
    if (!is_unicode()) {
        return utf8_from_mac_roman(letters);
    }
    const std::uint16_t mark = letters.size() >= 2 ? load_be16(letters.data()) : 0;
    const bool is_utf16 = mark == 0xFEFF || mark == 0xFFFE;
    return is_utf16 ? utf8_from_utf16(letters, std::endian::big) : utf8_of(letters);
}

Bytes UserText::content() const {
    if (letters.size() > 0xFFFF) {
        refuse_too_large("a text of more than 65535 bytes in the QuickTime user data");
    }
    Bytes content;
    append_be16(content, static_cast<std::uint16_t>(letters.size()));
    append_be16(content, language);
    append(content, letters);
    return content;
}

} // namespace velmora::portable
