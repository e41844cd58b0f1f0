#pragma once

#include "taglib/guid.h"

#include <cstdint>

/** The GUIDs of the ASF format that the module knows (docs/asf.md, "Objects"). The first four decide what it
   does; the rest complete the set. */
namespace velmora {

/** A GUID from its printed groups: {75B22630-668E-11CF-A6D9-00AA0062CE6C} is asf_guid(0x75B22630, 0x668E,
   0x11CF, 0xA6D9, 0x00AA0062CE6C). */
[[nodiscard]] constexpr GUID asf_guid(std::uint32_t first, std::uint16_t second, std::uint16_t third,
                                      std::uint16_t fourth, std::uint64_t fifth) {
    const auto byte = [](std::uint64_t value, int place) {
        return static_cast<std::uint8_t>(value >> (8 * place));
    };
    return {{byte(first, 0), byte(first, 1), byte(first, 2), byte(first, 3), byte(second, 0), byte(second, 1),
             byte(third, 0), byte(third, 1), byte(fourth, 1), byte(fourth, 0), byte(fifth, 5), byte(fifth, 4),
             byte(fifth, 3), byte(fifth, 2), byte(fifth, 1), byte(fifth, 0)}};
}

inline constexpr GUID ASF_HeaderObject = asf_guid(0x75B22630, 0x668E, 0x11CF, 0xA6D9, 0x00AA0062CE6C);
inline constexpr GUID ASF_ContentDescription = asf_guid(0x75B22633, 0x668E, 0x11CF, 0xA6D9, 0x00AA0062CE6C);
inline constexpr GUID ASF_ExtendedContentDescription =
    asf_guid(0xD2D0A440, 0xE307, 0x11D2, 0x97F0, 0x00A0C95EA850);
inline constexpr GUID ASF_PaddingObject = asf_guid(0x1806D474, 0xCADF, 0x4509, 0xA4BA, 0x9AABCB96AAE8);

inline constexpr GUID ASF_DataObject = asf_guid(0x75B22636, 0x668E, 0x11CF, 0xA6D9, 0x00AA0062CE6C);
inline constexpr GUID ASF_FileProperties = asf_guid(0x8CABDCA1, 0xA947, 0x11CF, 0x8EE4, 0x00C00C205365);
inline constexpr GUID ASF_StreamHeader = asf_guid(0xB7DC0791, 0xA9B7, 0x11CF, 0x8EE6, 0x00C00C205365);
inline constexpr GUID ASF_HeaderExtension = asf_guid(0x5FBF03B5, 0xA92E, 0x11CF, 0x8EE3, 0x00C00C205365);
inline constexpr GUID ASF_CodecList = asf_guid(0x86D15240, 0x311D, 0x11D0, 0xA3A4, 0x00A0C90348F6);
inline constexpr GUID ASF_SimpleIndexObject = asf_guid(0x33000890, 0xE5B1, 0x11CF, 0x89F4, 0x00A0C90349CB);
inline constexpr GUID ASF_AudioStream = asf_guid(0xF8699E40, 0x5B4D, 0x11CF, 0xA8FD, 0x00805F5C442B);
inline constexpr GUID ASF_VideoStream = asf_guid(0xBC19EFC0, 0x5B4D, 0x11CF, 0xA8FD, 0x00805F5C442B);
inline constexpr GUID ASF_NoErrorCorrection = asf_guid(0x20FB5700, 0x5B55, 0x11CF, 0xA8FD, 0x00805F5C442B);
inline constexpr GUID ASF_Reserved1 = asf_guid(0xABD3D211, 0xA9BA, 0x11CF, 0x8EE6, 0x00C00C205365);
inline constexpr GUID ASF_Reserved2 = asf_guid(0x86D15241, 0x311D, 0x11D0, 0xA3A4, 0x00A0C90348F6);
inline constexpr GUID ASF_ClientGuid = asf_guid(0x8D262E32, 0xFC28, 0x11D7, 0xA9EA, 0x00045A6B76C2);

} // namespace velmora
