#pragma once

#include <bit>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/** Texts of tags: to and from UTF-8. Nothing here refuses a damaged text: what is not of its encoding becomes
   U+FFFD. Bytes read end at the first zero, which no text of a tag has in it. */
namespace velmora::portable {

/** The UTF-8 of UTF-16 units in ORDER. A byte order mark in front is obeyed and taken off; an odd last byte
   counts for nothing. */
[[nodiscard]] std::string utf8_from_utf16(std::span<const std::uint8_t> bytes, std::endian order);

/** The UTF-16 units of TEXT (UTF-8) in ORDER, without a byte order mark and without a terminator. */
[[nodiscard]] std::vector<std::uint8_t> utf16_from_utf8(std::string_view text, std::endian order);

/** The UTF-8 of ISO 8859-1 bytes. */
[[nodiscard]] std::string utf8_from_latin1(std::span<const std::uint8_t> bytes);

/** The ISO 8859-1 bytes of TEXT (UTF-8), with "?" for each character that has none. */
[[nodiscard]] std::vector<std::uint8_t> latin1_from_utf8(std::string_view text);

/** TEXT up to its first zero, with U+FFFD for what is not UTF-8. */
[[nodiscard]] std::string valid_utf8(std::string_view text);

/** The code points of TEXT (UTF-8); U+FFFD for what is not UTF-8. */
[[nodiscard]] std::u32string code_points(std::string_view text);

/** The UTF-8 of TEXT. */
[[nodiscard]] std::string utf8_from_code_points(std::u32string_view text);

/** Whether the two are equal when the letters A to Z and a to z are not told apart. */
[[nodiscard]] bool equal_ignoring_case(std::string_view left, std::string_view right);

/** Several values of one field as one text: in their order, each once, without empty ones, with "; "
   between. */
[[nodiscard]] std::string joined(std::span<const std::string> values);

} // namespace velmora::portable
