#pragma once

#include <QStringList>

namespace velmora {

/** The genres that the genre box suggests, in list order, each in the user's language. */
[[nodiscard]] QStringList localisedGenres();

/** The parental ratings, the empty one (no rating) first. They are names of their own and are
   not translated. */
[[nodiscard]] QStringList ratingTitles();

} // namespace velmora
