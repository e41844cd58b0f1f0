#pragma once

#include <cstdint>

/** Integers and strings as they lie in ID3v2 frames (docs/id3.md, "Frames that are understood"). Lengths and
   capacities are in bytes; a negative one counts as 0 unless said otherwise. */
namespace velmora {

/** Text encodings of a frame's first byte. */
namespace id3_encoding {
inline constexpr std::uint8_t latin1 = 0;
inline constexpr std::uint8_t utf16 = 1; ///< with a byte order mark
inline constexpr std::uint8_t utf16be = 2;
inline constexpr std::uint8_t utf8 = 3;
} // namespace id3_encoding

/** VALUE with its four bytes reversed. Nothing in the program calls it. */
[[nodiscard]] std::uint32_t be32_to_long(std::uint32_t value);

/** Four bytes of seven bits each, the highest first. The last byte counts whole, with its top bit, so that
   0x80 there is 128: sizes that other programs write that way are kept readable. */
[[nodiscard]] std::uint32_t syncsafe_to_long(const std::uint8_t* bytes);
/** Writes the low 28 bits of VALUE as four bytes of seven. The result means nothing. */
int long_to_syncsafe(std::uint32_t value, std::uint8_t* bytes);

/** Stores SOURCE's first byte in BYTE and returns 1; without one it stores 0 and returns 0. */
int id3_load_byte(const std::uint8_t* source, std::int32_t length, std::uint8_t* byte);

/** Decodes one string from frame data into TARGET, which is always zero-terminated (when CAPACITY is at least
   1). Returns the source bytes consumed, terminator included.

   - Encodings 0 and 3: the bytes up to a zero byte or the end, unchanged (ISO-8859-1 is not converted); what
     does not fit into CAPACITY - 1 is skipped but counted as consumed.
   - Encodings 1 and 2: logged as not handled, empty; consumed up to and with the first 16-bit zero unit, or
     all whole units.
   - Any other: logged as unknown, empty, nothing consumed. */
std::int32_t id3_load_string(const std::uint8_t* source, std::int32_t length, std::uint8_t encoding,
                             char* target, std::int32_t capacity);
/** What id3_load_string would consume. Only an unknown encoding is logged. */
[[nodiscard]] std::int32_t id3_string_size(const std::uint8_t* source, std::int32_t length,
                                           std::uint8_t encoding);

/** Writes BYTE when there is room. Returns the bytes written, 1 or 0. */
int id3_store_byte(std::uint8_t* target, std::int32_t capacity, std::uint8_t byte);
/** Copies LENGTH bytes, as many as fit, without a terminator. A LENGTH of -1 means SOURCE's string length.
   Returns the bytes written. */
std::int32_t id3_store_bytes(std::uint8_t* target, std::int32_t capacity, const void* source,
                             std::int32_t length);
/** Copies a string and its terminator. One that is too long is cut, with the terminator as the last byte that
   fits. Returns the bytes written, terminator included; 0 when CAPACITY is below 1. */
std::int32_t id3_store_string(std::uint8_t* target, std::int32_t capacity, const char* source);

/** Whether two strings are equal when the letters A to Z and a to z are not told apart, in every locale. */
[[nodiscard]] bool id3_equal_ignoring_case(const char* left, const char* right);

} // namespace velmora
