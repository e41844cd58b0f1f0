#include "text.h"

#include "taglib/trace.h"

#include <algorithm>
#include <cstring>

namespace velmora {

namespace {

/** The bytes up to and with the first zero byte, or all of them. */
std::int32_t measure_bytes(const std::uint8_t* source, std::int32_t length) {
    if (length <= 0) {
        return 0;
    }
    const void* zero = std::memchr(source, 0, static_cast<std::size_t>(length));
    return zero ? static_cast<std::int32_t>(static_cast<const std::uint8_t*>(zero) - source) + 1 : length;
}

/** The bytes up to and with the first zero unit, or all whole units. */
std::int32_t measure_units(const std::uint8_t* source, std::int32_t length) {
    std::int32_t at = 0;
    while (length - at >= 2) {
        at += 2;
        if (source[at - 2] == 0 && source[at - 1] == 0) {
            break;
        }
    }
    return at;
}

char lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace

std::uint32_t be32_to_long(std::uint32_t value) {
    return value >> 24 | (value >> 8 & 0xFF00u) | (value << 8 & 0xFF0000u) | value << 24;
}

std::uint32_t syncsafe_to_long(const std::uint8_t* bytes) {
    return (bytes[0] & 0x7Fu) << 21 | (bytes[1] & 0x7Fu) << 14 | (bytes[2] & 0x7Fu) << 7 | bytes[3];
}

int long_to_syncsafe(std::uint32_t value, std::uint8_t* bytes) {
    bytes[0] = value >> 21 & 0x7F;
    bytes[1] = value >> 14 & 0x7F;
    bytes[2] = value >> 7 & 0x7F;
    bytes[3] = value & 0x7F;
    return 0;
}

int id3_load_byte(const std::uint8_t* source, std::int32_t length, std::uint8_t* byte) {
    if (length <= 0) {
        *byte = 0;
        return 0;
    }
    *byte = source[0];
    return 1;
}

std::int32_t id3_load_string(const std::uint8_t* source, std::int32_t length, std::uint8_t encoding,
                             char* target, std::int32_t capacity) {
    std::int32_t consumed = 0;
    std::int32_t stored = 0;
    switch (encoding) {
    case id3_encoding::latin1:
    case id3_encoding::utf8:
        consumed = measure_bytes(source, length);
        stored = consumed > 0 && source[consumed - 1] == 0 ? consumed - 1 : consumed;
        break;
    case id3_encoding::utf16:
    case id3_encoding::utf16be:
        DebugError("id3_load_string: encoding %d not handled\n", encoding);
        consumed = measure_units(source, length);
        break;
    default:
        DebugError("id3_load_string: unknown encoding %d\n", encoding);
    }
    if (capacity >= 1) {
        stored = std::min(stored, capacity - 1);
        if (stored > 0) {
            std::memcpy(target, source, static_cast<std::size_t>(stored));
        }
        target[stored] = 0;
    }
    return consumed;
}

std::int32_t id3_string_size(const std::uint8_t* source, std::int32_t length, std::uint8_t encoding) {
    switch (encoding) {
    case id3_encoding::latin1:
    case id3_encoding::utf8:
        return measure_bytes(source, length);
    case id3_encoding::utf16:
    case id3_encoding::utf16be:
        return measure_units(source, length);
    default:
        DebugError("id3_strsize: unknown encoding %d\n", encoding);
        return 0;
    }
}

int id3_store_byte(std::uint8_t* target, std::int32_t capacity, std::uint8_t byte) {
    if (capacity < 1) {
        return 0;
    }
    *target = byte;
    return 1;
}

std::int32_t id3_store_bytes(std::uint8_t* target, std::int32_t capacity, const void* source,
                             std::int32_t length) {
    if (capacity <= 0) {
        return 0;
    }
    const auto room = static_cast<std::size_t>(capacity);
    std::size_t count = 0;
    if (length == -1) {
        count = strnlen(static_cast<const char*>(source), room);
    } else if (length > 0) {
        count = std::min(room, static_cast<std::size_t>(length));
    }
    if (count > 0) {
        std::memcpy(target, source, count);
    }
    return static_cast<std::int32_t>(count);
}

std::int32_t id3_store_string(std::uint8_t* target, std::int32_t capacity, const char* source) {
    if (capacity < 1) {
        return 0;
    }
    const std::int32_t count = id3_store_bytes(target, capacity - 1, source, -1);
    target[count] = 0;
    return count + 1;
}

bool id3_equal_ignoring_case(const char* left, const char* right) {
    while (*left && lower(*left) == lower(*right)) {
        ++left;
        ++right;
    }
    return lower(*left) == lower(*right);
}

} // namespace velmora
