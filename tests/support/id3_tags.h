#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/** ID3v2 tags for tests, put together without the code under test. */
namespace velmora::test {

/** Four bytes of seven bits. */
[[nodiscard]] std::string syncsafe(std::uint32_t value);
[[nodiscard]] std::string big_endian(std::uint32_t value);

/** A header ("ID3") or a footer ("3DI") for a tag of SIZE bytes. */
[[nodiscard]] std::string header(int version, int flags, std::uint32_t size,
                                 std::string_view signature = "ID3");
/** A frame of a version 4 tag, with flags 0. */
[[nodiscard]] std::string frame4(std::string_view id, std::string_view body);
/** A frame of a version 3 tag, with flags 0. */
[[nodiscard]] std::string frame3(std::string_view id, std::string_view body);
/** A frame of a version 4 tag that holds TEXT under encoding byte 0. */
[[nodiscard]] std::string text4(std::string_view id, std::string_view text);
/** A PRIV frame of a version 4 tag that rates a film. */
[[nodiscard]] std::string rating4(std::string_view rating);
/** An APIC frame of a version 4 tag: a front cover that calls DATA a JPEG. */
[[nodiscard]] std::string cover4(std::string_view data);
/** A tag as it stands at a file's start: header and CONTENTS. */
[[nodiscard]] std::string leading_tag(int version, std::string_view contents);
/** A version 4 tag as it stands at a file's end: header, CONTENTS, footer. */
[[nodiscard]] std::string appended_tag(std::string_view contents);

} // namespace velmora::test
