#pragma once

#include <array>
#include <cstdint>

namespace velmora {

inline constexpr int id3_genre_count = 126;

/** The genre names of ID3v1 with the Winamp extensions, by index. "Psychadelic", "Bebob" and "Acapella" are
   spelled as the list has them. */
extern const std::array<const char*, id3_genre_count> GenreTable;

/** The name of a genre, or null for an index that has none. */
[[nodiscard]] const char* id3_genre_name(std::int64_t index);

} // namespace velmora
