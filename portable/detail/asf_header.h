#pragma once

#include "asf_attributes.h"
#include "asf_guids.h"
#include "tagged_file.h"

#include <optional>
#include <vector>

/** The header object of an ASF file, taken apart. Ranges of objects have their own headers in them. */
namespace velmora::portable {

/** The header extension object: objects within an object. */
struct AsfHeaderExtension {
    Range range;
    std::uint64_t objects_end = 0; ///< behind its last object
};

struct AsfHeader {
    std::uint64_t size = 0;
    std::uint32_t count = 0;                     ///< of the objects in it
    std::uint64_t objects_end = 0;               ///< behind the last of them
    AsfLists lists;                              ///< in the header and its extension
    std::optional<AsfHeaderExtension> extension; ///< the first
    std::vector<Range> file_properties;
    std::optional<std::uint64_t> file_size; ///< what the last of these says
    std::optional<Range> padding;           ///< the last object, where that is padding
};

/** In front of a header's objects: its own header, their count, two reserved bytes. */
inline constexpr std::uint64_t asf_header_fixed_size = 30;
/** In front of an extension's objects: its own header, a GUID and a number that are always the same, the size
   of its objects in 32 bits. */
inline constexpr std::uint64_t asf_extension_fixed_size = 46;
/** Where the file properties object holds the size of the file, in 64 bits. */
inline constexpr std::uint64_t asf_file_size_offset = 40;

/** Takes apart the header of a file of SIZE bytes that WINDOW shows. Throws a Refusal where it is none,
   contradicts itself, or holds more than 10,000 objects, 64 MiB of attributes or 100,000 of them. */
[[nodiscard]] AsfHeader read_asf_header(ReadWindow& window, std::uint64_t size);

} // namespace velmora::portable
