#pragma once

#include <cstddef>

/** Conversion between the platform's wide characters (iconv's "WCHAR_T", four bytes each) and UTF-8. The two
   converters share a process-wide handle each, so they are used on one thread only. Nothing in the program
   calls them. */
namespace velmora {

/** Wide characters to UTF-8. The source is measured as a byte string: only what stands before its first zero
   byte is converted. CAPACITY is in bytes; no terminator is written, so callers zero TARGET beforehand.
   Returns iconv's result, the count of irreversible conversions or (size_t)-1; 0 when no converter could be
   opened. */
std::size_t unitobcs(const wchar_t* source, char* target, std::size_t capacity);

/** UTF-8 to wide characters. The source ends at its first zero byte. CAPACITY is in bytes; no terminator is
   written, so callers zero TARGET beforehand. Returns iconv's result, the count of irreversible conversions
   or (size_t)-1; 0 when no converter could be opened. */
std::size_t bcstouni(const char* source, wchar_t* target, std::size_t capacity);

} // namespace velmora
