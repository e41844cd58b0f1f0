#pragma once

#include <cstdint>

namespace velmora {

/** A GUID as it lies in a file: the first three groups little endian, the last eight bytes as written. */
struct GUID {
    std::uint8_t bytes[16];
    friend bool operator==(const GUID&, const GUID&) = default;
};

/** The GUID's text in braces and lower case, in one static buffer that each call overwrites. The third group
   is padded with blanks on its right rather than with zeros ("12  " for 0x12): files are named with this
   text. */
[[nodiscard]] const char* GUIDNAME(const GUID& guid);

} // namespace velmora
