#include "trace_text.h"

#include "taglib/byte_order.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstring>

namespace velmora {

namespace {

std::size_t put_utf8(char* to, std::uint32_t c) {
    if (c < 0x80) {
        to[0] = static_cast<char>(c);
        return 1;
    }
    if (c < 0x800) {
        to[0] = static_cast<char>(0xC0 | c >> 6);
        to[1] = static_cast<char>(0x80 | (c & 0x3F));
        return 2;
    }
    if (c < 0x10000) {
        to[0] = static_cast<char>(0xE0 | c >> 12);
        to[1] = static_cast<char>(0x80 | (c >> 6 & 0x3F));
        to[2] = static_cast<char>(0x80 | (c & 0x3F));
        return 3;
    }
    to[0] = static_cast<char>(0xF0 | c >> 18);
    to[1] = static_cast<char>(0x80 | (c >> 12 & 0x3F));
    to[2] = static_cast<char>(0x80 | (c >> 6 & 0x3F));
    to[3] = static_cast<char>(0x80 | (c & 0x3F));
    return 4;
}

} // namespace

std::size_t utf8_from_utf16le(const void* utf16, char (&text)[message_capacity + 4]) {
    const auto* at = static_cast<const unsigned char*>(utf16);
    std::size_t length = 0;
    while (at && length < message_capacity) {
        std::uint32_t c = load_le16(at);
        if (c == 0) {
            break;
        }
        at += 2;
        if (c >= 0xD800 && c < 0xE000) {
            const std::uint32_t low = c < 0xDC00 ? load_le16(at) : 0;
            if (low >= 0xDC00 && low < 0xE000) {
                c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
                at += 2;
            } else {
                c = 0xFFFD;
            }
        }
        length += put_utf8(text + length, c);
    }
    text[length] = '\0';
    return length;
}

std::size_t put_text(char* to, std::size_t room, const char* text, std::size_t length) {
    length = std::min(length, room - 1);
    std::memcpy(to, text, length);
    return length;
}

std::size_t put_decimal(char* to, std::size_t room, std::int64_t number) {
    char digits[24];
    const std::to_chars_result end = std::to_chars(digits, digits + sizeof digits, number);
    return put_text(to, room, digits, static_cast<std::size_t>(end.ptr - digits));
}

std::size_t put_hex(char* to, std::size_t room, std::uint64_t number) {
    const auto count = std::max<std::size_t>(1, (static_cast<std::size_t>(std::bit_width(number)) + 3) / 4);
    const std::size_t fitting = std::min(count, room - 1);
    number >>= 4 * (count - fitting);
    for (std::size_t i = fitting; i > 0; number >>= 4) {
        to[--i] = "0123456789abcdef"[number & 0xF];
    }
    return fitting;
}

std::size_t put_utf16le(char* to, std::size_t room, const void* utf16) {
    if (!utf16 || load_le16(utf16) == 0) {
        return 0;
    }
    char text[message_capacity + 4];
    return put_text(to, room, text, utf8_from_utf16le(utf16, text));
}

} // namespace velmora
