#include "fourcc.h"

#include "taglib/byte_order.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstddef>

namespace velmora {

namespace {

bool is_printable(std::uint8_t byte) {
    return byte < 0x80 ? byte >= 0x20 && byte <= 0x7E : std::isprint(byte) != 0;
}

} // namespace

const char* riff_tag(std::uint32_t fourcc) {
    constexpr std::size_t slot = 5;
    static std::array<char, 1024> ring;
    static std::size_t next = 0;
    if (next + slot > ring.size()) {
        next = 0;
    }
    char* const text = ring.data() + next;
    store_le32(text, fourcc);
    text[4] = '\0';
    next += slot;
    return text;
}

bool is_riff_tag(std::uint32_t fourcc) {
    std::array<std::uint8_t, 4> bytes{};
    store_le32(bytes.data(), fourcc);
    return std::all_of(bytes.begin(), bytes.end(), is_printable);
}

} // namespace velmora
