#pragma once

#include <QString>

namespace velmora {

/** The user's wording of ENGLISH_TEXT, which is its own key in the localisation table (Qt Linguist files,
   context "Velmora"). Without a translation the English text stands. */
[[nodiscard]] QString localised(const char* englishText);

/** The wording of ENGLISH_TEXT, as above, with its "%@" replaced by ARGUMENT, whatever the argument contains. */
[[nodiscard]] QString localised(const char* englishText, const QString& argument);

/** Loads the table of the user's language, if there is one, for the application's lifetime. */
void installLocalisation();

} // namespace velmora
