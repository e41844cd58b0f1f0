#pragma once

#include <cstdint>

/** Byte order in memory: loads from and stores to any address, aligned or not. The name gives the order of
   the bytes; compilers make one move (and one swap) of each. Files go through fio_get_* and fio_put_*. */
namespace velmora {

namespace detail {

template <typename Value, int Width>
[[nodiscard]] inline Value load_le(const void* from) {
    const auto* bytes = static_cast<const std::uint8_t*>(from);
    Value value = 0;
    for (int i = 0; i < Width; ++i) {
        value = static_cast<Value>(value | static_cast<Value>(Value{bytes[i]} << (8 * i)));
    }
    return value;
}

template <typename Value, int Width>
[[nodiscard]] inline Value load_be(const void* from) {
    const auto* bytes = static_cast<const std::uint8_t*>(from);
    Value value = 0;
    for (int i = 0; i < Width; ++i) {
        value = static_cast<Value>(value | static_cast<Value>(Value{bytes[i]} << (8 * (Width - 1 - i))));
    }
    return value;
}

template <typename Value>
inline void store_le(void* to, Value value) {
    auto* bytes = static_cast<std::uint8_t*>(to);
    for (unsigned i = 0; i < sizeof value; ++i) {
        bytes[i] = static_cast<std::uint8_t>(value >> (8 * i));
    }
}

template <typename Value>
inline void store_be(void* to, Value value) {
    auto* bytes = static_cast<std::uint8_t*>(to);
    for (unsigned i = 0; i < sizeof value; ++i) {
        bytes[i] = static_cast<std::uint8_t>(value >> (8 * (sizeof value - 1 - i)));
    }
}

} // namespace detail

[[nodiscard]] inline std::uint16_t load_le16(const void* from) {
    return detail::load_le<std::uint16_t, 2>(from);
}
[[nodiscard]] inline std::uint32_t load_le32(const void* from) {
    return detail::load_le<std::uint32_t, 4>(from);
}
[[nodiscard]] inline std::uint64_t load_le64(const void* from) {
    return detail::load_le<std::uint64_t, 8>(from);
}
[[nodiscard]] inline std::uint16_t load_be16(const void* from) {
    return detail::load_be<std::uint16_t, 2>(from);
}
/** Three bytes, in the low 24 bits. */
[[nodiscard]] inline std::uint32_t load_be24(const void* from) {
    return detail::load_be<std::uint32_t, 3>(from);
}
[[nodiscard]] inline std::uint32_t load_be32(const void* from) {
    return detail::load_be<std::uint32_t, 4>(from);
}

inline void store_le16(void* to, std::uint16_t value) {
    detail::store_le(to, value);
}
inline void store_le32(void* to, std::uint32_t value) {
    detail::store_le(to, value);
}
inline void store_le64(void* to, std::uint64_t value) {
    detail::store_le(to, value);
}
inline void store_be16(void* to, std::uint16_t value) {
    detail::store_be(to, value);
}
inline void store_be32(void* to, std::uint32_t value) {
    detail::store_be(to, value);
}

} // namespace velmora
