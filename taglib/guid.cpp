#include "guid.h"

#include "byte_order.h"

namespace velmora {

namespace {

constexpr char digits[] = "0123456789abcdef";

/** Writes VALUE with COUNT digits and returns what follows them. */
char* put_hex(char* to, std::uint32_t value, int count) {
    for (int i = count - 1; i >= 0; --i) {
        *to++ = digits[value >> (4 * i) & 0xF];
    }
    return to;
}

/** The digits that VALUE needs, and blanks up to four. */
char* put_hex_left(char* to, std::uint16_t value) {
    int count = 1;
    while (count < 4 && value >> (4 * count) != 0) {
        ++count;
    }
    to = put_hex(to, value, count);
    for (; count < 4; ++count) {
        *to++ = ' ';
    }
    return to;
}

} // namespace

// Written out by hand: it stands in most of the traces of a file's reading, and printf takes ten times as
// long.
const char* GUIDNAME(const GUID& guid) {
    static char text[64];
    const std::uint8_t* const b = guid.bytes;
    char* to = text;
    *to++ = '{';
    to = put_hex(to, load_le32(b), 8);
    *to++ = '-';
    to = put_hex(to, load_le16(b + 4), 4);
    *to++ = '-';
    to = put_hex_left(to, load_le16(b + 6));
    *to++ = '-';
    to = put_hex(to, load_be16(b + 8), 4);
    *to++ = '-';
    for (int i = 10; i < 16; ++i) {
        to = put_hex(to, b[i], 2);
    }
    *to++ = '}';
    *to = '\0';
    return text;
}

} // namespace velmora
