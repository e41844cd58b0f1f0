#pragma once

#include "../taglib/asf/asf_bytes.h"

#include "portable/detail/formats.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

/** ASF files for tests, put together from bytes, and what becomes of them. */
namespace velmora::test {

inline constexpr std::string_view extension_guid = "B5 03 BF 5F 2E A9 CF 11 8E E3 00 C0 0C 20 53 65";
inline constexpr std::string_view metadata_guid = "EA CB F8 C5 AF 5B 77 48 84 67 AA 8C 44 FA 4C CA";
inline constexpr std::string_view library_guid = "94 1C 23 44 98 94 D1 49 A1 41 1D 13 4E 45 70 54";
inline constexpr std::string_view data_guid = "36 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C";

/** A file properties object that says that the file has SIZE bytes. */
[[nodiscard]] std::string file_properties(std::uint64_t size);
/** A record of a metadata or metadata library object. */
[[nodiscard]] std::string metadata_record(std::uint16_t language, std::uint16_t stream, std::string_view name,
                                          std::uint16_t type, std::string_view value);
[[nodiscard]] std::string metadata(std::initializer_list<std::string> records);
[[nodiscard]] std::string metadata_library(std::initializer_list<std::string> records);
[[nodiscard]] std::string header_extension(std::initializer_list<std::string> objects);
/** A data object, and something behind it. */
[[nodiscard]] std::string asf_media();

/** The value of a "WM/Picture". */
[[nodiscard]] std::string asf_picture(std::uint8_t type, std::string_view mime, std::string_view bytes);

/** A header around CHILDREN with a file properties object in front of them, and media behind it. */
[[nodiscard]] std::string asf_file(std::initializer_list<std::string> children);

/** What the tags of BYTES say. */
[[nodiscard]] portable::TagValues asf_values(const std::string& bytes,
                                             portable::Media media = portable::Media::audio);

/** BYTES with EDITS in them. */
[[nodiscard]] std::string asf_with(const std::string& bytes, const portable::TagEdits& edits,
                                   portable::Media media = portable::Media::audio);

/** BYTES without tags. */
[[nodiscard]] std::string asf_without_tags(const std::string& bytes);

[[nodiscard]] portable::TagEdits set_year(int year);
[[nodiscard]] portable::TagEdits set_cover(std::string_view mime, std::string_view bytes);

} // namespace velmora::test
