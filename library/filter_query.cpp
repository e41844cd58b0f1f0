#include "filter_query.h"

#include "detail/folded_text.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <optional>
#include <string_view>
#include <tuple>
#include <utility>

namespace velmora {

namespace {

using portable::Field;

struct ColumnName {
    std::string_view name;
    LibraryColumn column;
};

constexpr std::array columnNames = {
    ColumnName{"name", LibraryColumn::name},        ColumnName{"folder", LibraryColumn::folder},
    ColumnName{"kind", LibraryColumn::kind},        ColumnName{"title", LibraryColumn::title},
    ColumnName{"artist", LibraryColumn::artist},    ColumnName{"cast", LibraryColumn::artist},
    ColumnName{"album", LibraryColumn::album},      ColumnName{"director", LibraryColumn::album},
    ColumnName{"year", LibraryColumn::year},        ColumnName{"genre", LibraryColumn::genre},
    ColumnName{"rating", LibraryColumn::rating},    ColumnName{"synopsis", LibraryColumn::synopsis},
    ColumnName{"comment", LibraryColumn::synopsis}, ColumnName{"tags", LibraryColumn::tags},
    ColumnName{"size", LibraryColumn::size},        ColumnName{"date", LibraryColumn::date},
};

struct MissingName {
    std::string_view name;
    MissingBits bit;
};

constexpr std::array missingNames = {
    MissingName{"title", missingBit(Field::title)},
    MissingName{"artist", missingBit(Field::artist)},
    MissingName{"cast", missingBit(Field::artist)},
    MissingName{"album", missingBit(Field::album)},
    MissingName{"director", missingBit(Field::director)},
    MissingName{"synopsis", missingBit(Field::synopsis)},
    MissingName{"comment", missingBit(Field::synopsis)},
    MissingName{"genre", missingBit(Field::genre)},
    MissingName{"rating", missingBit(Field::rating)},
    MissingName{"year", missingBit(Field::year)},
    MissingName{"cover", missingBit(Field::cover)},
    MissingName{"tags", missingTag},
};

/** A word of the box as it was typed. */
struct TypedWord {
    QString prefix; ///< in front of the first colon outside quotes; empty where there is none
    QString word;   ///< behind it, without the quotes
    QString whole;  ///< both with the colon
};

/** The words of TEXT. An open quote reaches to the end. */
std::vector<TypedWord> typedWords(const QString& text) {
    std::vector<TypedWord> words;
    TypedWord word;
    bool quoted = false;
    bool started = false;
    const auto finish = [&] {
        if (started) {
            words.push_back(std::exchange(word, {}));
        }
        started = false;
    };
    for (const QChar unit : text) {
        if (unit == u'"') {
            quoted = !quoted;
            started = true;
        } else if (unit.isSpace() && !quoted) {
            finish();
        } else if (unit == u':' && !quoted && word.prefix.isEmpty() && !word.word.isEmpty()) {
            word.prefix = std::exchange(word.word, {});
            word.whole += unit;
        } else {
            word.word += unit;
            word.whole += unit;
            started = true;
        }
    }
    finish();
    return words;
}

/** The year that DIGITS begin, filled up to four digits with FILLER; nothing where they are no year's. */
std::optional<int> filledYear(const QString& digits, QChar filler) {
    const bool numeric =
        std::all_of(digits.begin(), digits.end(), [](QChar unit) { return unit >= u'0' && unit <= u'9'; });
    return numeric && digits.size() <= 4 ? std::optional(digits.leftJustified(4, filler).toInt())
                                         : std::nullopt;
}

/** The first and the last of the YEARS asked for; nothing where they are none. */
std::optional<std::pair<int, int>> yearsOf(const QString& years) {
    const qsizetype dash = years.indexOf(u'-');
    const std::optional<int> first = filledYear(years.left(dash), u'0');
    const std::optional<int> last = filledYear(dash < 0 ? years : years.mid(dash + 1), u'9');
    if (!first || !last) {
        return std::nullopt;
    }
    // A row without a year is in no span of years.
    return std::pair(std::max(*first, 1), *last);
}

MissingBits missingThatBegin(std::string_view beginning) {
    MissingBits bits = 0;
    for (const MissingName& row : missingNames) {
        if (row.name.starts_with(beginning)) {
            bits = static_cast<MissingBits>(bits | row.bit);
        }
    }
    return bits;
}

bool contains(std::string_view text, std::string_view word) {
    return ::memmem(text.data(), text.size(), word.data(), word.size()) != nullptr;
}

/** The text of COLUMN in a row's FOLDED text. */
std::string_view columnOf(std::string_view folded, LibraryColumn column) {
    for (std::size_t left = static_cast<std::size_t>(column); left > 0; --left) {
        folded.remove_prefix(std::min(folded.find('\n'), folded.size() - 1) + 1);
    }
    return folded.substr(0, folded.find('\n'));
}

} // namespace

std::optional<FilterQuery::Term> FilterQuery::termOf(const QString& prefix, const QString& word,
                                                     const QString& whole) {
    const std::string name = foldedText(prefix);
    const auto* const column = std::find_if(columnNames.begin(), columnNames.end(),
                                            [&name](const ColumnName& row) { return row.name == name; });
    const bool known = column != columnNames.end() || name == "missing";
    if (whole.isEmpty() || (known && word.isEmpty())) {
        return std::nullopt;
    }
    Term term;
    term.word = foldedText(word);
    const auto years = name == "year" ? yearsOf(word) : std::nullopt;
    const MissingBits missing = name == "missing" ? missingThatBegin(term.word) : MissingBits{0};
    if (years) {
        term.kind = Term::Kind::year;
        std::tie(term.firstYear, term.lastYear) = *years;
    } else if (missing != 0) {
        term.kind = Term::Kind::missing;
        term.missing = missing;
    } else if (column != columnNames.end() && name != "year") {
        term.kind = Term::Kind::inColumn;
        term.column = column->column;
    } else {
        term.word = foldedText(whole);
    }
    return term;
}

FilterQuery::FilterQuery(const QString& text) {
    for (const TypedWord& typed : typedWords(text)) {
        if (std::optional<Term> term = termOf(typed.prefix, typed.word, typed.whole)) {
            terms_.push_back(std::move(*term));
        }
    }
    // What costs least comes first, then what few rows have.
    std::stable_sort(terms_.begin(), terms_.end(), [](const Term& left, const Term& right) {
        const auto cost = [](const Term& term) {
            return term.kind == Term::Kind::year || term.kind == Term::Kind::missing ? 0 : 1;
        };
        return std::pair(cost(left), right.word.size()) < std::pair(cost(right), left.word.size());
    });
}

bool FilterQuery::matches(const Term& term, const FilterView& row) {
    switch (term.kind) {
    case Term::Kind::year:
        return row.year >= term.firstYear && row.year <= term.lastYear;
    case Term::Kind::missing:
        return (row.missing & term.missing) != 0;
    case Term::Kind::inColumn:
        // Most rows have the word nowhere, which is found out faster than where the column is.
        return contains(row.folded, term.word) && contains(columnOf(row.folded, term.column), term.word);
    default:
        return contains(row.folded, term.word);
    }
}

bool FilterQuery::matches(const FilterView& row) const {
    return std::all_of(terms_.begin(), terms_.end(), [&row](const Term& term) { return matches(term, row); });
}

} // namespace velmora
