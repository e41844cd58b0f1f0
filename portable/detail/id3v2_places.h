#pragma once

#include "id3v2_tag.h"

#include "portable/media_kind.h"
#include "portable/tag_values.h"

#include <optional>
#include <string>
#include <vector>

/** Which frame of an ID3v2 tag is a place of which field (docs/portable-tags.md, "Fields"). */
namespace velmora::portable {

/** What a frame is to the fields, by its identifier. */
enum class Id3v2Place { title, artist, album, genre, comment, user_text, picture, date, year, day, time };

/* The descriptions of the user-defined texts of films. */
inline constexpr const char* id3v2_director = "DIRECTOR";
inline constexpr const char* id3v2_rating = "CONTENTRATING";

/** The identifier of PLACE in a tag of VERSION; empty where that has none. */
[[nodiscard]] std::string id_of(Id3v2Place place, std::uint8_t version);
/** Nothing for the identifiers of other things. */
[[nodiscard]] std::optional<Id3v2Place> place_of(const Id3v2Frame& frame);

/** What FRAME of TAG holds; nothing in it where that does not come out. */
[[nodiscard]] Bytes content_of(const Id3v2Tag& tag, const Id3v2Frame& frame);

/** The field that FRAME of TAG is a place of, but for pictures. */
[[nodiscard]] std::optional<Field> field_of(const Id3v2Tag& tag, const Id3v2Frame& frame, Media media);
/** The indexes of the frames of TAG that are the cover. */
[[nodiscard]] std::vector<std::size_t> cover_frames(const Id3v2Tag& tag);

} // namespace velmora::portable
