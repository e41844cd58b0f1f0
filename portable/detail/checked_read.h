#pragma once

#include "tagged_file.h"

#include "taglib/read_cursor.h"

#include <cstdint>
#include <string>
#include <vector>

/** Reads that throw a Refusal where bytes do not come, for formats that can't go on without them. */
namespace velmora::portable {

/** Throws unless STATUS is `whole`: that the file is damaged where it ended inside WHAT, otherwise what the
   system said. */
void check_read(ReadStatus status, const std::string& what);

/** The next LENGTH bytes of CURSOR, which are part of WHAT. LENGTH is held against what is left before
   anything is allocated. */
[[nodiscard]] std::vector<std::uint8_t> read_bytes(ReadCursor& cursor, std::uint64_t length,
                                                   const std::string& what);

/** The bytes of RANGE, which CURSOR may go to and which are part of WHAT. The range's size is held against
   what is left before anything is allocated. */
[[nodiscard]] std::vector<std::uint8_t> read_range(ReadCursor cursor, Range range, const std::string& what);

} // namespace velmora::portable
