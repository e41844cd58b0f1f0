#pragma once

#include "id3v2_tag.h"

#include "portable/tag_values.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/** What lies in the frames of the tag that is written in place, decoded and put together as that way does it
    (docs/id3.md). */
namespace velmora::portable {

inline constexpr std::size_t in_place_record_size = 10; ///< of a header, a footer and a frame's header
inline constexpr std::string_view in_place_rating_owner = "WM/ParentalRating";

/** Whether the private FRAME is OWNER's, in any case. */
[[nodiscard]] bool has_owner(const Id3v2Frame& frame, std::string_view owner);

/* What a frame says; nothing in it, or nothing, where it says none of that. */
[[nodiscard]] std::string text_of(const Id3v2Frame& frame);
[[nodiscard]] std::string rating_of(const Id3v2Frame& frame);
[[nodiscard]] std::string genre_of(const Id3v2Frame& frame);
[[nodiscard]] std::optional<int> year_of_frame(const Id3v2Frame& frame);
/** A JPEG under the encoding 0. */
[[nodiscard]] std::optional<Cover> cover_of(const Id3v2Frame& frame);

/* The bodies of frames. They throw a Refusal for what could not be read back. */
[[nodiscard]] Bytes text_body(std::string_view text);
[[nodiscard]] Bytes rating_body(std::string_view rating);
[[nodiscard]] Bytes cover_body(const Cover& cover);

/** The frames of a tag of VERSION with CONTENT; what can't be one ends them. */
[[nodiscard]] std::vector<Id3v2Frame> in_place_frames(ByteView content, std::uint8_t version);

} // namespace velmora::portable
