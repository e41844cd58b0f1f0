#pragma once

#include "taglib/fio.h"

#include <cstdint>
#include <string>
#include <string_view>

/** The pieces that the AVI tests' files are written out with. Every size field stands in the tests as a
   number. */
namespace velmora::test {

/** Four bytes, low byte first. */
[[nodiscard]] std::string le32(std::uint32_t value);

/** TEXT and a zero byte. */
[[nodiscard]] std::string z(std::string_view text);

/** FOURCC, size field, data: SIZE is written as it is given. */
[[nodiscard]] std::string chunk(std::string_view fourcc, std::uint32_t size, std::string_view data);

/** "LIST", size field, type, sub-chunks. */
[[nodiscard]] std::string list(std::uint32_t size, std::string_view type, std::string_view sub_chunks);

/** "RIFF", size field, "AVI ", chunks. */
[[nodiscard]] std::string riff(std::uint32_t size, std::string_view chunks);

/** A header list of 28 bytes, a media list of 32 and an index of 24: what every file here holds. */
[[nodiscard]] std::string hdrl();
[[nodiscard]] std::string movi();
[[nodiscard]] std::string idx1();
/** An INFO list of 36 bytes: INAM "Old", ISTR "Ann". */
[[nodiscard]] std::string old_info();

/** 96 bytes: hdrl at 12, movi at 40, idx1 at 72. */
[[nodiscard]] std::string avi_without_info();
/** 132 bytes: hdrl at 12, INFO at 40, movi at 76, idx1 at 108. */
[[nodiscard]] std::string avi_with_info_before_movi();
/** 132 bytes: hdrl at 12, movi at 40, idx1 at 72, INFO at 96. */
[[nodiscard]] std::string avi_with_info_last();

/** 113,594 bytes with the chunks and sizes of an encoder's file: hdrl at 12, JUNK at 4480 and 4514, movi at
   5538, idx1 at 105550, INFO (old_info) at 113558. */
[[nodiscard]] std::string avi_film_with_info_last();

/** What reading the header of the three files logs. */
[[nodiscard]] std::string log_of_avi_without_info();
[[nodiscard]] std::string log_of_avi_with_info_before_movi();
[[nodiscard]] std::string log_of_avi_with_info_last();

/** The title that a load finds in the file; empty when it has none. A load that fails, fails the test. */
[[nodiscard]] std::string loaded_title(const std::string& path);

} // namespace velmora::test
