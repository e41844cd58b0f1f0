#include "text.h"

#include <algorithm>
#include <unordered_set>

namespace velmora::portable {

namespace {

constexpr char32_t replacement = 0xfffd;
constexpr char32_t byte_order_mark = 0xfeff;
constexpr char32_t swapped_mark = 0xfffe;

bool is_surrogate(char32_t point) {
    return point >= 0xd800 && point <= 0xdfff;
}

bool is_high_surrogate(char32_t unit) {
    return unit >= 0xd800 && unit <= 0xdbff;
}

bool is_low_surrogate(char32_t unit) {
    return unit >= 0xdc00 && unit <= 0xdfff;
}

void append_utf8(std::string& text, char32_t point) {
    const auto last = [&](int shift) { text += static_cast<char>(0x80 | ((point >> shift) & 0x3f)); };
    if (point < 0x80) {
        text += static_cast<char>(point);
    } else if (point < 0x800) {
        text += static_cast<char>(0xc0 | (point >> 6));
        last(0);
    } else if (point < 0x10000) {
        text += static_cast<char>(0xe0 | (point >> 12));
        last(6);
        last(0);
    } else {
        text += static_cast<char>(0xf0 | (point >> 18));
        last(12);
        last(6);
        last(0);
    }
}

char32_t unit_at(std::span<const std::uint8_t> bytes, std::size_t index, std::endian order) {
    const std::uint8_t first = bytes[2 * index];
    const std::uint8_t second = bytes[2 * index + 1];
    return order == std::endian::little ? char32_t{first} | char32_t{second} << 8
                                        : char32_t{second} | char32_t{first} << 8;
}

void append_unit(std::vector<std::uint8_t>& bytes, char32_t unit, std::endian order) {
    const auto low = static_cast<std::uint8_t>(unit);
    const auto high = static_cast<std::uint8_t>(unit >> 8);
    bytes.push_back(order == std::endian::little ? low : high);
    bytes.push_back(order == std::endian::little ? high : low);
}

/** The bytes of the character that LEAD begins, and its bits in LEAD; no length for a byte that begins
   none. */
struct Lead {
    std::size_t length;
    char32_t bits;
    char32_t smallest; ///< that needs so many bytes
};

Lead lead_of(std::uint8_t lead) {
    if (lead < 0x80) {
        return {1, lead, 0};
    }
    if (lead >= 0xc0 && lead < 0xe0) {
        return {2, char32_t{lead} & 0x1f, 0x80};
    }
    if (lead >= 0xe0 && lead < 0xf0) {
        return {3, char32_t{lead} & 0x0f, 0x800};
    }
    if (lead >= 0xf0 && lead < 0xf8) {
        return {4, char32_t{lead} & 0x07, 0x10000};
    }
    return {0, 0, 0};
}

/** The code point at POSITION of TEXT, which is moved behind it; one byte on where it is damaged. */
char32_t next_code_point(std::string_view text, std::size_t& position) {
    const Lead lead = lead_of(static_cast<std::uint8_t>(text[position]));
    const std::size_t begin = position++;
    if (lead.length == 0 || text.size() - begin < lead.length) {
        return replacement;
    }
    char32_t point = lead.bits;
    for (std::size_t i = 1; i < lead.length; ++i) {
        const auto byte = static_cast<std::uint8_t>(text[begin + i]);
        if ((byte & 0xc0) != 0x80) {
            return replacement;
        }
        point = point << 6 | (byte & 0x3f);
    }
    if (point < lead.smallest || point > 0x10ffff || is_surrogate(point)) {
        return replacement;
    }
    position = begin + lead.length;
    return point;
}

} // namespace

std::string utf8_from_utf16(std::span<const std::uint8_t> bytes, std::endian order) {
    std::string text;
    const std::size_t count = bytes.size() / 2;
    std::size_t index = 0;
    if (count > 0) {
        const char32_t mark = unit_at(bytes, 0, order);
        if (mark == swapped_mark) {
            order = order == std::endian::little ? std::endian::big : std::endian::little;
        }
        index = mark == byte_order_mark || mark == swapped_mark ? 1 : 0;
    }
    while (index < count) {
        char32_t point = unit_at(bytes, index++, order);
        if (point == 0) {
            break;
        }
        if (is_high_surrogate(point) && index < count && is_low_surrogate(unit_at(bytes, index, order))) {
            point = 0x10000 + ((point - 0xd800) << 10) + (unit_at(bytes, index++, order) - 0xdc00);
        }
        append_utf8(text, is_surrogate(point) ? replacement : point);
    }
    return text;
}

std::vector<std::uint8_t> utf16_from_utf8(std::string_view text, std::endian order) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(2 * text.size());
    for (std::size_t position = 0; position < text.size();) {
        const char32_t point = next_code_point(text, position);
        if (point >= 0x10000) {
            append_unit(bytes, 0xd800 + ((point - 0x10000) >> 10), order);
            append_unit(bytes, 0xdc00 + ((point - 0x10000) & 0x3ff), order);
        } else {
            append_unit(bytes, point, order);
        }
    }
    return bytes;
}

std::string utf8_from_latin1(std::span<const std::uint8_t> bytes) {
    std::string text;
    for (const std::uint8_t byte : bytes) {
        if (byte == 0) {
            break;
        }
        append_utf8(text, byte);
    }
    return text;
}

std::vector<std::uint8_t> latin1_from_utf8(std::string_view text) {
    std::vector<std::uint8_t> bytes;
    for (const char32_t point : code_points(text)) {
        bytes.push_back(point < 0x100 ? static_cast<std::uint8_t>(point) : std::uint8_t{'?'});
    }
    return bytes;
}

std::string valid_utf8(std::string_view text) {
    return utf8_from_code_points(code_points(text.substr(0, text.find('\0'))));
}

std::u32string code_points(std::string_view text) {
    std::u32string points;
    for (std::size_t position = 0; position < text.size();) {
        points += next_code_point(text, position);
    }
    return points;
}

std::string utf8_from_code_points(std::u32string_view text) {
    std::string bytes;
    for (const char32_t point : text) {
        append_utf8(bytes, point > 0x10ffff || is_surrogate(point) ? replacement : point);
    }
    return bytes;
}

std::string joined(std::span<const std::string> values) {
    std::string text;
    std::unordered_set<std::string_view> seen; // a hostile file has hundreds of thousands of values
    for (const std::string& value : values) {
        if (!value.empty() && seen.insert(value).second) {
            text += text.empty() ? "" : "; ";
            text += value;
        }
    }
    return text;
}

bool equal_ignoring_case(std::string_view left, std::string_view right) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [&](char a, char b) { return lower(a) == lower(b); });
}

} // namespace velmora::portable
