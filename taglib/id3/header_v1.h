#pragma once

#include "taglib/fio.h"

#include <cstdint>

namespace velmora {

/** The ID3v1 block (docs/id3.md, "What is deliberately not done"). Its texts fill their fields and are
   zero-terminated only when shorter. */
struct _id3_header_v1_t {
    char signature[3]; ///< "TAG"
    char title[30];
    char artist[30];
    char album[30];
    char year[4];
    char comment[30];
    std::uint8_t genre;
};
static_assert(sizeof(_id3_header_v1_t) == 128);

/** Reads the block and returns the file offset at which it was read, or -1, logged. The signature is not
   looked at.

   It seeks to 4 bytes, not 128, in front of the end of the file, so that the read comes up short and no
   ID3v1 tag is ever found: files that carry nothing else count as untagged, and a new tag goes behind the
   block, which stays as it is. */
[[nodiscard]] std::int64_t id3_load_header_v1(FIOFUNCSTRUCT* file, _id3_header_v1_t* header);

/** The file offset at which an ID3v1 block can be read, or -1, logged: what id3_load_header_v1 returns, for
   who does not want the block. */
[[nodiscard]] std::int64_t id3_is_present_v1(FIOFUNCSTRUCT* file);

} // namespace velmora
