#pragma once

#include "content_descriptor.h"

#include <cstddef>
#include <cstdint>

/** A descriptor's value from and to the text that the tag record holds (docs/asf.md, "Extended Content
   Description"). */
namespace velmora {

/** The integer that TEXT begins with, as atoi takes it: blanks, a sign and digits; 0 for none; cut to 32
   bits. */
[[nodiscard]] std::int32_t asf_text_as_integer(const char* text);

/** The value's first bytes as a little-endian number: two of a word, eight of a qword, four of all others.
   Bytes that the value does not have count as zero. */
[[nodiscard]] std::uint64_t asf_value_as_number(const _asf_content_descriptor_t* descriptor);

/** Writes DESCRIPTOR's value as text into TEXT, at most CAPACITY bytes of it. Nothing is written for a
   number shorter than its type, for an unknown type and for no value. Texts and byte arrays that fill TEXT
   are not terminated, a unicode text never is: callers zero TEXT beforehand. */
void asf_value_as_text(const _asf_content_descriptor_t* descriptor, char* text, std::size_t capacity);

/** Replaces the buffer that SLOT owns (malloc family) by a value of TYPE made from TEXT and returns its
   length in bytes. An empty TEXT and null leave no buffer and give 0. The length is 16 bits in the file: a
   longer value is cut, a unicode text to 65,534 bytes and a byte array to 65,535, each with its
   terminator. An unknown type and exhausted memory give 0 and leave SLOT alone. */
std::uint16_t asf_store_value(std::uint8_t** slot, std::uint16_t type, const char* text);

} // namespace velmora
