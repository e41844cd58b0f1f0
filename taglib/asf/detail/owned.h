#pragma once

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace velmora {

/** Frees what the malloc family gave. */
struct AsfFree {
    void operator()(void* memory) const { std::free(memory); }
};

/** A record or buffer of the malloc family while a function works on it. */
template <typename Value>
using AsfOwned = std::unique_ptr<Value, AsfFree>;

/** A zeroed record of the malloc family, or null. */
template <typename Record>
[[nodiscard]] Record* asf_new_record() {
    return static_cast<Record*>(std::calloc(1, sizeof(Record)));
}

/** SIZE zeroed bytes (at least one), or null. */
[[nodiscard]] inline std::uint8_t* asf_new_bytes(std::size_t size) {
    return static_cast<std::uint8_t*>(std::calloc(size > 0 ? size : 1, 1));
}

} // namespace velmora
