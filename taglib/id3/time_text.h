#pragma once

#include "../filetime.h"

#include <cstddef>

/** The time text of the TDRC frame: "%d-%d-%dT:%d:%d:%d+%d:%d", that is year, month, day, hour, minute,
   second, zone hours and zone minutes, with a colon behind the "T".

    Year and month are those of the broken-down time as they stand: years since 1900 and months from 0. The
   text of a moment in June 2008 begins "108-05-". The reader takes the numbers in the same way, but refuses a
   year below 1900, and so reads a calendar year as one 1900 years later. Seconds since 1970 have 32 bits, so
   what such a year gives is cut to them. */
namespace velmora {

/** Reads TEXT as local time; the zone is not used. Returns 1; 0, with TIME left alone, when fewer than six
   numbers are there, the year is below 1900 or the month below 1. */
[[nodiscard]] int id3_parse_time(const char* text, FILETIME* time);

/** Writes TIME as local time with its zone. Returns what snprintf returns: the text's length, also when
   CAPACITY bytes were too few for it. */
int id3_store_time(FILETIME time, char* text, std::size_t capacity);

} // namespace velmora
