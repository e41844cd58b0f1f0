#pragma once

#include "byte_appending.h"

#include "taglib/asf/guids.h"

#include <cstdint>

/** The objects of an ASF header beyond those that the tag library knows. */
namespace velmora::portable {

inline constexpr GUID ASF_Metadata = asf_guid(0xC5F8CBEA, 0x5BAF, 0x4877, 0x8467, 0xAA8C44FA4CCA);
inline constexpr GUID ASF_MetadataLibrary = asf_guid(0x44231C94, 0x9498, 0x49D1, 0xA141, 0x1D134E457054);

/** Every object begins with its GUID and its size in 64 bits, which counts them. */
inline constexpr std::uint64_t asf_object_header_size = 24;

[[nodiscard]] inline Bytes asf_object_header(const GUID& guid, std::uint64_t size) {
    Bytes header;
    append(header, guid.bytes);
    append_le64(header, size);
    return header;
}

} // namespace velmora::portable
