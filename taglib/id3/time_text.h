#pragma once

#include "taglib/filetime.h"

#include <cstddef>

/** The time text of the TDRC frame (docs/id3.md, "Time text"). */
namespace velmora {

/** Reads TEXT as local time; the zone is not used. Returns 1; 0, with TIME left alone, when fewer than six
   numbers are there, the year is below 1900 or the month below 1. */
[[nodiscard]] int id3_parse_time(const char* text, FILETIME* time);

/** Writes TIME as local time with its zone. Returns what snprintf returns: the text's length, also when
   CAPACITY bytes were too few for it. */
int id3_store_time(FILETIME time, char* text, std::size_t capacity);

} // namespace velmora
