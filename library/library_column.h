#pragma once

#include <QString>

#include <array>
#include <cstddef>

namespace velmora {

/** The columns of the library table, in the order in which they are shown at first. */
enum class LibraryColumn {
    name,
    folder,
    kind,
    title,
    artist, ///< of a film its cast
    album,  ///< of a film its director
    year,
    genre,
    rating,
    synopsis, ///< of a song its comment
    cover,
    tags, ///< which tags the file has
    size,
    date,
};
inline constexpr int libraryColumnCount = 14;

/** What a row shows, by column. */
using RowTexts = std::array<QString, libraryColumnCount>;

} // namespace velmora
