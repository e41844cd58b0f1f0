#include "folded_text.h"

#include <QTextBoundaryFinder>

#include <algorithm>

namespace velmora {

namespace {

/** Texts are folded in pieces: normalized() takes time in proportion to the square of the length. */
constexpr qsizetype foldedAtOnce = 4096;

bool isAscii(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar unit) { return unit.unicode() < 0x80; });
}

std::string foldedAscii(const QString& text) {
    std::string folded(static_cast<std::size_t>(text.size()), '\0');
    std::transform(text.begin(), text.end(), folded.begin(), [](QChar unit) {
        const char letter = unit.toLatin1();
        const bool upper = letter >= 'A' && letter <= 'Z';
        return letter == '\n' || letter == '\r' ? ' '
               : upper                          ? static_cast<char>(letter - 'A' + 'a')
                                                : letter;
    });
    return folded;
}

/** The plain spelling of a letter or sign that no decomposition leads to; null where UNIT is spelt as it
   is. */
const char* plainSpelling(char16_t unit) {
    switch (unit) {
    case u'ß':
        return "ss";
    case u'æ':
        return "ae";
    case u'œ':
        return "oe";
    case u'ø':
        return "o";
    case u'đ':
    case u'ð':
        return "d";
    case u'ł':
        return "l";
    case u'ı':
        return "i";
    case u'þ':
        return "th";
    case u'\u2018':
    case u'\u2019':
    case u'\u02BC':
        return "'";
    case u'\u201C':
    case u'\u201D':
    case u'\u201E':
        return "\"";
    case u'\u2010':
    case u'\u2011':
    case u'\u2012':
    case u'\u2013':
    case u'\u2014':
    case u'\u2212':
        return "-";
    case u'\n':
    case u'\r':
    case u'\u2028':
    case u'\u2029':
        return " ";
    default:
        return nullptr;
    }
}

/** Accents and the like of the European scripts. */
bool isAccent(char16_t unit) {
    return unit >= 0x0300 && unit <= 0x036F;
}

/** Where the piece of TEXT ends that starts at BEGIN: in front of what the user takes for a character, of
   which no part becomes one with what stands before it. */
qsizetype pieceEnd(const QString& text, qsizetype begin) {
    if (text.size() - begin <= foldedAtOnce) {
        return text.size();
    }
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, QStringView(text).mid(begin, foldedAtOnce));
    finder.toEnd();
    const qsizetype lastCharacter = finder.toPreviousBoundary();
    const qsizetype longest = text[begin + foldedAtOnce].isLowSurrogate() ? foldedAtOnce - 1 : foldedAtOnce;
    return begin + (lastCharacter > 0 ? lastCharacter : longest);
}

std::string foldedPiece(const QString& text) {
    QString folded;
    folded.reserve(text.size());
    const QString parts = text.normalized(QString::NormalizationForm_KD).toCaseFolded();
    for (const QChar unit : parts) {
        if (const char* const plain = plainSpelling(unit.unicode())) {
            folded += QLatin1String(plain);
        } else if (!isAccent(unit.unicode())) {
            folded += unit;
        }
    }
    return folded.normalized(QString::NormalizationForm_C).toStdString();
}

} // namespace

std::string foldedText(const QString& text) {
    if (isAscii(text)) {
        return foldedAscii(text);
    }
    std::string folded;
    for (qsizetype begin = 0; begin < text.size();) {
        const qsizetype end = pieceEnd(text, begin);
        folded += foldedPiece(text.mid(begin, end - begin));
        begin = end;
    }
    return folded;
}

} // namespace velmora
