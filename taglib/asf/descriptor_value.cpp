#include "descriptor_value.h"

#include "detail/owned.h"
#include "detail/utf16.h"

#include "taglib/byte_order.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace velmora {

namespace {

constexpr std::size_t longest_unicode_value = 65534;
constexpr std::size_t longest_byte_value = 65535;

/** How many bytes a value of TYPE takes that is made from TEXT; 0 for a type that can't be made. */
std::size_t length_of_value(std::uint16_t type, const char* text) {
    switch (type) {
    case asf_value_type::unicode:
        return std::min(2 * (std::strlen(text) + 1), longest_unicode_value);
    case asf_value_type::bytearray:
        return std::min(std::strlen(text) + 1, longest_byte_value);
    case asf_value_type::boolean:
    case asf_value_type::dword:
        return 4;
    case asf_value_type::qword:
        return 8;
    case asf_value_type::word:
        return 2;
    default:
        return 0;
    }
}

/** Fills VALUE, LENGTH zeroed bytes. */
void fill_value(std::uint8_t* value, std::size_t length, std::uint16_t type, const char* text) {
    switch (type) {
    case asf_value_type::unicode:
        utf8_to_utf16le(text, value, length - 2);
        break;
    case asf_value_type::bytearray:
        std::memcpy(value, text, length - 1);
        break;
    case asf_value_type::boolean:
        store_le32(value, asf_text_as_integer(text) != 0 ? 1 : 0);
        break;
    case asf_value_type::dword:
        store_le32(value, static_cast<std::uint32_t>(asf_text_as_integer(text)));
        break;
    case asf_value_type::qword:
        store_le64(value, static_cast<std::uint64_t>(std::strtoll(text, nullptr, 10)));
        break;
    default:
        store_le16(value, static_cast<std::uint16_t>(asf_text_as_integer(text)));
    }
}

/** strncpy from a source of LENGTH bytes that may lack its zero byte. */
void copy_bounded(const std::uint8_t* source, std::size_t length, char* text, std::size_t capacity) {
    const std::size_t count = std::min(::strnlen(reinterpret_cast<const char*>(source), length), capacity);
    std::memcpy(text, source, count);
    std::memset(text + count, 0, capacity - count);
}

} // namespace

std::int32_t asf_text_as_integer(const char* text) {
    return static_cast<std::int32_t>(std::strtoll(text, nullptr, 10));
}

std::uint64_t asf_value_as_number(const _asf_content_descriptor_t* descriptor) {
    std::size_t width = 4;
    if (descriptor->type == asf_value_type::qword) {
        width = 8;
    } else if (descriptor->type == asf_value_type::word) {
        width = 2;
    }
    std::uint8_t bytes[8] = {};
    if (descriptor->value) {
        std::memcpy(bytes, descriptor->value, std::min<std::size_t>(width, descriptor->value_length));
    }
    return load_le64(bytes);
}

void asf_value_as_text(const _asf_content_descriptor_t* descriptor, char* text, std::size_t capacity) {
    if (!descriptor->value) {
        return;
    }
    const std::size_t length = descriptor->value_length;
    const std::uint64_t number = asf_value_as_number(descriptor);
    switch (descriptor->type) {
    case asf_value_type::unicode:
        utf16le_to_utf8(descriptor->value, length, text, capacity);
        break;
    case asf_value_type::bytearray:
        copy_bounded(descriptor->value, length, text, capacity);
        break;
    case asf_value_type::boolean:
    case asf_value_type::dword:
        if (length >= 4) {
            std::snprintf(text, capacity, "%d", static_cast<std::int32_t>(number));
        }
        break;
    case asf_value_type::qword:
        if (length >= 8) {
            std::snprintf(text, capacity, "%lld", static_cast<long long>(number));
        }
        break;
    case asf_value_type::word:
        if (length >= 2) {
            std::snprintf(text, capacity, "%d", static_cast<std::int32_t>(number));
        }
        break;
    default:
        break;
    }
}

std::uint16_t asf_store_value(std::uint8_t** slot, std::uint16_t type, const char* text) {
    const bool empty = !text || *text == '\0';
    const std::size_t length = length_of_value(type, empty ? "" : text);
    if (length == 0) {
        return 0;
    }
    AsfOwned<std::uint8_t> value;
    if (!empty) {
        value.reset(asf_new_bytes(length));
        if (!value) {
            return 0;
        }
        fill_value(value.get(), length, type, text);
    }
    std::free(*slot);
    *slot = value.release();
    return empty ? std::uint16_t{0} : static_cast<std::uint16_t>(length);
}

} // namespace velmora
