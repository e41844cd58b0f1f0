#pragma once

#include "mp4_layout.h"

/** The items of MP4 and QuickTime tags: which is the place of which field, what they say, and how they are
   made (docs/portable-tags.md, "MP4 and QuickTime"). */
namespace velmora::portable {

/** The field of which an item of this kind of list and of NAME is a place; nothing for all others, and for
   fields that files of MEDIA don't have. */
[[nodiscard]] std::optional<Field> mp4_field(Mp4ItemList::Kind kind, std::string_view name, Media media);

/** The names of the items of this kind of list that are places of FIELD, the one that counts first comes
   first. */
[[nodiscard]] std::vector<std::string_view> mp4_places(Mp4ItemList::Kind kind, Field field);

/** The names of the items of `ilst` in which FIELD is written, one for most. */
[[nodiscard]] std::vector<std::string> mp4_names(Field field);

/** Whether items of these names are the same to programs: the letters of free ones may differ in case. */
[[nodiscard]] bool mp4_same_name(std::string_view left, std::string_view right);

/** The name of an item of `ilst` whose box is BYTES: its type, and for a free one its domain and name behind
   that. */
[[nodiscard]] std::string mp4_item_name(std::span<const std::uint8_t> bytes);

/** What ITEM says, a text of its field; several values are joined. Empty where it says nothing. */
[[nodiscard]] std::string mp4_text(Mp4ItemList::Kind kind, const Mp4Item& item);

/** The picture in ITEM; nothing where there is none. */
[[nodiscard]] std::optional<Cover> mp4_cover(const Mp4Item& item);

/** The box that says TEXT in place of ITEM, or, where that is null, in a new one of NAME in a list of
   `items`. TEXT is what belongs into this item of the field (a rating with its system). Throws a Refusal
   where it is too large. */
[[nodiscard]] Bytes mp4_text_box(Mp4ItemList::Kind kind, const Mp4Item* item, std::string_view name,
                                 std::string_view text);

/** The box that holds COVER as the first picture, and the others of ITEM, which may be null. Throws a Refusal
   where COVER is of a sort that has no number in this format. */
[[nodiscard]] Bytes mp4_cover_box(const Mp4Item* item, std::string_view name, const Cover& cover);

} // namespace velmora::portable
