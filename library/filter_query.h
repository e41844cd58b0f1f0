#pragma once

#include "filter_text.h"

#include <QString>

#include <optional>
#include <string>
#include <vector>

namespace velmora {

/** What the filter box asks for. Words are divided by blanks, and a row must have all of them, in any column;
   they may stand within longer words. Case and accents do not matter. "Quotes" make one word of several.

   A word may be narrowed to a column by its name and a colon: name, folder, kind, title, artist (or cast),
   album (or director), year, genre, rating, synopsis (or comment), tags, size, date, as in artist:bach or
   album:"kind of blue". These are their own:
   - year:1994, year:1990-1999, year:1990-, year:-1990. Each end may be the beginning of a year, so that
     year:199 is the nineties.
   - missing:cover, missing:title, missing:tags and so on: what the row could have and does not. The
     beginning of a name stands for all that begin with it.
   A column's name without a word is not looked at: it is still being typed. A name that is none of these
   makes the whole an ordinary word, and so does a year that is none.

   Compiled once, then matched against any number of rows, on any thread. */
class FilterQuery {
public:
    /** Every row matches. */
    FilterQuery() = default;
    explicit FilterQuery(const QString& text);

    /** Whether every row matches. */
    [[nodiscard]] bool isEmpty() const { return terms_.empty(); }
    [[nodiscard]] bool matches(const FilterView& row) const;

private:
    struct Term {
        enum class Kind { anywhere, inColumn, year, missing };
        Kind kind = Kind::anywhere;
        std::string word; ///< folded; anywhere and inColumn
        LibraryColumn column = LibraryColumn::name;
        int firstYear = 0;
        int lastYear = 0;
        MissingBits missing = 0; ///< one of these is enough
    };

    static std::optional<Term> termOf(const QString& prefix, const QString& word, const QString& whole);
    static bool matches(const Term& term, const FilterView& row);

    std::vector<Term> terms_;
};

} // namespace velmora
