#pragma once

#include "library_rows.h"

#include <QLocale>

#include <vector>

namespace velmora {

/** One of several columns to sort by. */
struct SortKey {
    LibraryColumn column = LibraryColumn::name;
    bool descending = false;

    bool operator==(const SortKey&) const = default;
};

/** The files of ROWS, but for removed ones, sorted by KEYS, the first of which decides before the second:
   texts as they are sorted where LOCALE is, without regard to case, and numbers in them by their value;
   empty ones last, whatever the direction. Files that all keys find equal stay as they came. Takes its
   time; for any thread. */
[[nodiscard]] std::vector<int> sortedRows(const LibraryRows& rows, const std::vector<SortKey>& keys,
                                          const QLocale& locale);

} // namespace velmora
