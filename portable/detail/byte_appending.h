#pragma once

#include "taglib/byte_order.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

/** Bytes put together in memory, one field behind the other; the name gives the order of a number's bytes. */
namespace velmora::portable {

using Bytes = std::vector<std::uint8_t>;

/* Not inline: the compiler, seeing the whole of them, takes their copies for writes
   behind an empty vector. */
void append(Bytes& bytes, std::span<const std::uint8_t> more);
void append(Bytes& bytes, std::string_view more);

template <typename Value, typename Store>
void append_number(Bytes& bytes, Value value, Store store) {
    std::array<std::uint8_t, sizeof(Value)> field;
    store(field.data(), value);
    append(bytes, field);
}

inline void append_le16(Bytes& bytes, std::uint16_t value) {
    append_number(bytes, value, store_le16);
}
inline void append_le32(Bytes& bytes, std::uint32_t value) {
    append_number(bytes, value, store_le32);
}
inline void append_le64(Bytes& bytes, std::uint64_t value) {
    append_number(bytes, value, store_le64);
}
inline void append_be16(Bytes& bytes, std::uint16_t value) {
    append_number(bytes, value, store_be16);
}
inline void append_be32(Bytes& bytes, std::uint32_t value) {
    append_number(bytes, value, store_be32);
}
inline void append_be64(Bytes& bytes, std::uint64_t value) {
    append_be32(bytes, static_cast<std::uint32_t>(value >> 32));
    append_be32(bytes, static_cast<std::uint32_t>(value));
}

} // namespace velmora::portable
