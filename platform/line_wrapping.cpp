#include "line_wrapping.h"

#include <QPlainTextEdit>
#include <QString>

#include <algorithm>

namespace velmora {

namespace {

/** Longer than what is written without blanks, in whatever language. */
constexpr qsizetype longestWord = 10'000;

bool hasVeryLongWord(const QString& text) {
    const auto isBlank = [](QChar unit) { return unit.isSpace(); };
    for (auto begin = text.begin(); text.end() - begin > longestWord;) {
        const auto end = std::find_if(begin, text.end(), isBlank);
        if (end - begin > longestWord) {
            return true;
        }
        begin = std::find_if_not(end, text.end(), isBlank);
    }
    return false;
}

} // namespace

void setWrappedText(QPlainTextEdit& field, const QString& text) {
    const QTextOption::WrapMode mode =
        hasVeryLongWord(text) ? QTextOption::WrapAnywhere : QTextOption::WrapAtWordBoundaryOrAnywhere;
    if (mode != field.wordWrapMode()) {
        field.clear(); // or the old text is laid out in the new way
        field.setWordWrapMode(mode);
    }
    field.setPlainText(text);
}

} // namespace velmora
