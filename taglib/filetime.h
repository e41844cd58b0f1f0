#pragma once

#include <cstddef>
#include <cstdint>

/** Time of the tag library. A FILETIME is an unsigned count of 100-nanosecond units since 1601-01-01 00:00
   UTC; seconds since 1970 are 32-bit signed. */
namespace velmora {

struct FILETIME {
    std::uint32_t low;
    std::uint32_t high;
};

[[nodiscard]] constexpr std::uint64_t filetime_value(FILETIME time) {
    return (std::uint64_t{time.high} << 32) | time.low;
}
[[nodiscard]] constexpr FILETIME filetime_from_value(std::uint64_t value) {
    return {static_cast<std::uint32_t>(value), static_cast<std::uint32_t>(value >> 32)};
}

void timet_to_filetime(std::int32_t seconds, FILETIME* time);
/** 0 for every time up to and including 1970-01-01 00:00:00 UTC; later seconds are cut to 32 bits. */
[[nodiscard]] std::int32_t filetime_to_timet(FILETIME time);

/* Nothing in the program calls what follows. */

/** Reads "%d-%d-%dT:%d:%d:%d+%d:%d" (local time, zone optional) the ordinary way. Returns seconds since 1970,
   or 0 when fewer than six values are there, the year is below 1900, the month below 1 or no calendar has the
   time. The ID3 frames have rules of their own and do not use this pair. */
[[nodiscard]] std::int32_t ParseID3Time(const char* text);
/** Bytes that FormatID3Time's target must hold. */
inline constexpr std::size_t id3_time_capacity = 64;
/** Writes SECONDS as local time in the same pattern, with a zone of +0:0, and returns TEXT. TEXT is left
   alone when the time is 0 or TEXT is null. */
char* FormatID3Time(std::int32_t seconds, char* text);

/** A wrapping count of milliseconds, kept in 32 bits and sign-extended: no FILETIME, but stored in one. */
void GetSystemTimeAsFileTime(FILETIME* time);
/** Milliseconds since an arbitrary point, computed in 32 bits and wrapping. */
[[nodiscard]] std::uint32_t GetTickCount();

/** (a x b + c / 2) / c with a 64-bit product; 0 for c = 0, the negated product for c = -1. */
[[nodiscard]] std::int64_t llmuldiv(std::int64_t a, std::int64_t b, std::int64_t c);

} // namespace velmora
