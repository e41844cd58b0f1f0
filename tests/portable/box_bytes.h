#pragma once

#include <string>
#include <string_view>

/** Boxes for tests, written out. */
namespace velmora::test {

/** A number of 16, 32 or 64 bits, the high byte first. */
[[nodiscard]] std::string be16(unsigned value);
[[nodiscard]] std::string be32(unsigned long value);
[[nodiscard]] std::string be64(unsigned long long value);

/** Size, TYPE (four bytes; the sign (c) as the one byte A9), CONTENT. */
[[nodiscard]] std::string box(std::string_view type, std::string_view content);

/** What a file of the family begins with, and its media data. */
inline const std::string file_type_box = box("ftyp", "isom");
inline const std::string media_box = box("mdat", "media");

/** An item of `ilst` with a value of KIND (1: UTF-8). */
[[nodiscard]] std::string item(std::string_view type, std::string_view value, unsigned kind = 1);

/** An item with a domain and a name of its own. */
[[nodiscard]] std::string free_item(std::string_view domain, std::string_view name, std::string_view value);

/** `udta` with ITEMS in `meta`, and AFTER behind the list. */
[[nodiscard]] std::string item_list(std::string_view items, std::string_view after = {});

/** A track whose chunks are at OFFSETS, numbers of 32 bits. */
[[nodiscard]] std::string track(std::string_view offsets);

} // namespace velmora::test
