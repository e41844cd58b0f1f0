#pragma once

#include "taglib/fio.h"

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

/** ASF files for tests, put together from bytes without the code under test. */
namespace velmora::test {

/* GUIDs as they lie in a file. */
inline constexpr std::string_view header_guid = "30 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C";
inline constexpr std::string_view cd_guid = "33 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C";
inline constexpr std::string_view ecd_guid = "40 A4 D0 D2 07 E3 D2 11 97 F0 00 A0 C9 5E A8 50";
inline constexpr std::string_view padding_guid = "74 D4 06 18 DF CA 09 45 A4 BA 9A AB CB 96 AA E8";
/** File properties: to the module just another object. */
inline constexpr std::string_view other_guid = "A1 DC AB 8C 47 A9 CF 11 8E E4 00 C0 0C 20 53 65";

/* The same as messages show them. */
inline constexpr std::string_view header_name = "{75b22630-668e-11cf-a6d9-00aa0062ce6c}";
inline constexpr std::string_view cd_name = "{75b22633-668e-11cf-a6d9-00aa0062ce6c}";
inline constexpr std::string_view ecd_name = "{d2d0a440-e307-11d2-97f0-00a0c95ea850}";
inline constexpr std::string_view padding_name = "{1806d474-cadf-4509-a4ba-9aabcb96aae8}";
inline constexpr std::string_view other_name = "{8cabdca1-a947-11cf-8ee4-00c00c205365}";

/* Little-endian numbers. */
[[nodiscard]] std::string u16(std::uint16_t value);
[[nodiscard]] std::string u32(std::uint32_t value);
[[nodiscard]] std::string u64(std::uint64_t value);

/** PARTS one behind the other. */
[[nodiscard]] std::string joined(std::initializer_list<std::string> parts);
/** LENGTH bytes from BYTES on. */
[[nodiscard]] std::string bytes_of(const std::uint8_t* bytes, std::size_t length);

/** ASCII text as UTF-16LE without a terminator. */
[[nodiscard]] std::string wide(std::string_view ascii);
/** ASCII text as UTF-16LE with its terminating zero unit; nothing for an empty text. */
[[nodiscard]] std::string wide_z(std::string_view ascii);

/** An object whose size field tells the truth. */
[[nodiscard]] std::string object(std::string_view guid_digits, std::string_view body);
/** An object with this size field. */
[[nodiscard]] std::string object_of_size(std::string_view guid_digits, std::uint64_t size,
                                         std::string_view body);

/** A content description of five ASCII texts with terminators; an empty one has length 0. */
[[nodiscard]] std::string content_description(std::string_view title, std::string_view author,
                                              std::string_view copyright = "",
                                              std::string_view description = "",
                                              std::string_view rating = "");
/** A descriptor with a terminated ASCII name. */
[[nodiscard]] std::string descriptor(std::string_view name, std::uint16_t type, std::string_view value);
/** A descriptor of type 0 with a terminated ASCII text. */
[[nodiscard]] std::string text_descriptor(std::string_view name, std::string_view text);
[[nodiscard]] std::string ext_content_description(std::initializer_list<std::string> descriptors);
/** A padding object of SIZE bytes in all, with a body of AA bytes. */
[[nodiscard]] std::string padding(std::size_t size);
/** An object that the module passes through, with a recognisable body. */
[[nodiscard]] std::string other_object();

/** A header object around CHILDREN, with reserved bytes 01 02. */
[[nodiscard]] std::string header_object(std::initializer_list<std::string> children);
/** A header object around CHILDREN, with reserved bytes 01 02 and this size field. */
[[nodiscard]] std::string header_object_of_size(std::uint64_t size,
                                                std::initializer_list<std::string> children);

/** A file of its own with these bytes, open for reading and writing at its start; closed and removed with
   the object. */
class OpenBytes {
public:
    explicit OpenBytes(std::string_view bytes);
    ~OpenBytes();
    OpenBytes(const OpenBytes&) = delete;
    OpenBytes& operator=(const OpenBytes&) = delete;

    [[nodiscard]] FIOFUNCSTRUCT* file() { return &file_; }
    /** All bytes of the file. */
    [[nodiscard]] std::string bytes() const;
    [[nodiscard]] std::int64_t position() const;
    void seek(std::int64_t position);

private:
    FIOFUNCSTRUCT file_;
};

} // namespace velmora::test
