#pragma once

#include "taglib/trace.h"

#include <cstddef>
#include <cstdint>

/** Numbers and texts as they stand in a traced message. */
namespace velmora {

/* Each puts into TO as much of its text as ROOM bytes, of which there is at least one, hold beside a
   terminator, which it leaves out, and returns how many bytes these are. */
/** The first LENGTH bytes of TEXT. */
[[nodiscard]] std::size_t put_text(char* to, std::size_t room, const char* text, std::size_t length);
[[nodiscard]] std::size_t put_decimal(char* to, std::size_t room, std::int64_t number);
/** In lower case, without leading zeros. */
[[nodiscard]] std::size_t put_hex(char* to, std::size_t room, std::uint64_t number);
/** Of UTF-16LE text up to its first zero unit, as UTF-8; null is no text. */
[[nodiscard]] std::size_t put_utf16le(char* to, std::size_t room, const void* utf16);

/** Puts UTF-16LE text, up to its first zero unit, into TEXT as UTF-8 with a terminator, and returns its
   length in bytes. It ends behind the character that fills a message; null is no text. */
std::size_t utf8_from_utf16le(const void* utf16, char (&text)[message_capacity + 4]);

} // namespace velmora
