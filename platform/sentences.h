#pragma once

#include <QStringList>

namespace velmora {

/** PHRASE, a text in the user's language without a full stop, with the full stop of that language. */
[[nodiscard]] QString asSentence(const QString& phrase);

/** SENTENCES one behind the other, with a blank between two of them, but not where the first ends with a
   full-width stop, which brings its own. Empty where there are none. */
[[nodiscard]] QString joinedSentences(const QStringList& sentences);

} // namespace velmora
