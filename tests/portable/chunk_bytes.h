#pragma once

#include <string>
#include <string_view>

/** Chunks of RIFF files for tests, written out. */
namespace velmora::test {

/** A number of 32 bits, the low byte first. */
[[nodiscard]] std::string le32(unsigned long value);

/** FOURCC, size, DATA, and a pad byte where their number is odd. */
[[nodiscard]] std::string chunk(std::string_view fourcc, std::string_view data);

/** A list of TYPE. */
[[nodiscard]] std::string list(std::string_view type, std::string_view chunks);

/** A RIFF file of FORM. */
[[nodiscard]] std::string riff(std::string_view form, std::string_view chunks);

/** The chunk of an AIFF file, whose sizes have the high byte first. */
[[nodiscard]] std::string aiff_chunk(std::string_view fourcc, std::string_view data);

/** An item of an INFO list: TEXT and its zero. */
[[nodiscard]] std::string info(std::string_view fourcc, std::string_view text);

} // namespace velmora::test
