#pragma once

#include "fault_table_files.h"

#include <cstdint>
#include <optional>
#include <string>

/** A reading of the fault table's files that owes nothing to the code under test. */
namespace velmora::test {

enum class MediaFormat { id3, asf, avi };

/** The fields of the tag in BYTES, in the file's order; none where there is no tag that can be walked. */
[[nodiscard]] TagFields tag_fields_in(MediaFormat format, const std::string& bytes);

/** Where a player that reads BYTES from the front finds the media data: behind an ID3 tag in front, behind an
   ASF header whose objects add up to its size, in the AVI file's first list "movi". Nothing where that way
   leads nowhere. */
[[nodiscard]] std::optional<std::uint64_t> media_position_in(MediaFormat format, const std::string& bytes);

} // namespace velmora::test
