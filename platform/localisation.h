#pragma once

#include <QString>

namespace velmora {

/** The user's wording of ENGLISH_TEXT, which is its own key in the localisation table (Qt Linguist files,
   context "Velmora"). Without a translation the English text stands. */
[[nodiscard]] QString localised(const char* englishText);

/** The user's wording of ENGLISH_TEXT, a key of that table, with its "%@" replaced by ARGUMENT, whatever the
   argument contains. Without a translation the English text stands. */
[[nodiscard]] QString localised(const char* englishText, const QString& argument);

/** The wording of ENGLISH_TEXT for COUNT of something, with its "%Ln" replaced by COUNT as the user writes
   numbers: in the language's own plural forms, English ones included ("%Ln file(s)" is a key, and stands in
   the English table, too). */
[[nodiscard]] QString localised(const char* englishText, int count);

/** Loads the table of the user's language, if there is one, for the application's lifetime. The toolkit's own
   texts come in the same language, and in English where the program has no table. */
void installLocalisation();

} // namespace velmora
