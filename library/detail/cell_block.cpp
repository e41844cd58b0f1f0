#include "cell_block.h"

#include <algorithm>

namespace velmora {

namespace {

bool beginsFormula(QStringView text) {
    if (text.isEmpty() || !QStringView(u"=+-@\t\r\n").contains(text.front())) {
        return false;
    }
    // "-5" and "+5" are what they say.
    const bool sign = text.front() == u'-' || text.front() == u'+';
    const bool number = text.size() > 1 && std::all_of(text.begin() + 1, text.end(), [](QChar unit) {
                            return unit >= u'0' && unit <= u'9';
                        });
    return !(sign && number);
}

QStringView withoutQuotes(QStringView text) {
    while (text.startsWith(u'\'')) {
        text = text.mid(1);
    }
    return text;
}

QString cellText(const QString& cell) {
    QString text = withoutFormula(cell);
    const bool quoted = std::any_of(text.begin(), text.end(),
                                    [](QChar unit) { return QStringView(u"\t\r\n\"").contains(unit); });
    return quoted ? u'"' + text.replace(u'"', u"\"\""_qs) + u'"' : text;
}

/** Reads cells one after the other. */
class BlockReader {
public:
    explicit BlockReader(const QString& text) : text_(text) {}

    CellBlock read() {
        CellBlock block;
        while (at_ < text_.size()) {
            QStringList row;
            do {
                row.append(withFormula(cell()));
            } while (skipped(u'\t'));
            block.push_back(row);
            static_cast<void>(skipped(u'\r'));
            static_cast<void>(skipped(u'\n'));
        }
        return block;
    }

private:
    bool skipped(char16_t unit) {
        const bool there = at_ < text_.size() && text_[at_] == unit;
        at_ += there ? 1 : 0;
        return there;
    }

    QString cell() {
        const qsizetype begin = at_;
        if (skipped(u'"')) {
            QString quoted = quotedCell();
            // Behind the closing mark the cell has to end; else the marks are part of the text.
            if (at_ == text_.size() || isEnd(text_[at_])) {
                return quoted;
            }
            at_ = begin;
        }
        while (at_ < text_.size() && !isEnd(text_[at_])) {
            ++at_;
        }
        return text_.mid(begin, at_ - begin);
    }

    /** The cell behind its opening mark; ends behind the closing one, or at the text's end where there is
       none. */
    QString quotedCell() {
        QString cell;
        while (at_ < text_.size()) {
            const QChar unit = text_[at_++];
            if (unit == u'"' && !skipped(u'"')) {
                break;
            }
            cell += unit;
        }
        return cell;
    }

    static bool isEnd(QChar unit) { return unit == u'\t' || unit == u'\n' || unit == u'\r'; }

    const QString& text_;
    qsizetype at_ = 0;
};

} // namespace

QString withoutFormula(const QString& cell) {
    return beginsFormula(withoutQuotes(cell)) ? u'\'' + cell : cell;
}

QString withFormula(const QString& cell) {
    return cell.startsWith(u'\'') && beginsFormula(withoutQuotes(cell)) ? cell.mid(1) : cell;
}

QString blockText(const CellBlock& block) {
    QString text;
    for (const QStringList& row : block) {
        for (qsizetype column = 0; column < row.size(); ++column) {
            text += column == 0 ? QString() : QString(u'\t');
            text += cellText(row[column]);
        }
        text += u'\n';
    }
    return text;
}

CellBlock blockFromText(const QString& text) {
    return BlockReader(text).read();
}

} // namespace velmora
