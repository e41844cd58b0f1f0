#pragma once

#include "browser/media_row.h"
#include "browser/row_list.h"

#include <QString>

#include <optional>

namespace velmora {

/** A column of the media table. It shows what each row has under its identifier. */
struct TableColumn {
    QString identifier;

    bool operator==(const TableColumn&) const = default;
};

/** How row A stands to row B in the order of COLUMN: -1 before, 0 the same, 1 behind. File names compare
   without regard to case, creation dates as the texts that are shown (not as moments), sizes as numbers; in
   any other column all rows are the same. */
[[nodiscard]] int sort_table_columns(const coldata& a, const coldata& b, const TableColumn& column);

/** All rows of the media table, and the order they are kept and shown in. The list is in ascending order of
   the sort column whatever direction is shown; without a sort column it is in the order of arrival. */
class MediaRows {
public:
    [[nodiscard]] std::size_t count() const { return mediaFiles_.count(); }
    /** The row at INDEX of the list, which is less than count(), whatever direction is shown. */
    [[nodiscard]] const ColdataPointer& at(std::size_t index) const { return mediaFiles_.at(index); }

    /** None until sortBy was called first; there is no way back. */
    [[nodiscard]] const std::optional<TableColumn>& tableSortColumn() const { return tableSortColumn_; }
    /** Whether the table shows the list from its end to its beginning. */
    [[nodiscard]] bool tableSortDescending() const { return tableSortDescending_; }

    /** Inserts ROW behind all rows that do not sort after it; at the end without a sort column. */
    void addColdataSorted(ColdataPointer row);

    /** Takes the row at INDEX off the list. */
    void remove(std::size_t index) { mediaFiles_.remove(index); }
    /** Puts rows in the places of those with the given numbers, each at most once; in a sorted list
       each at its own place. */
    void replace(std::vector<std::pair<std::size_t, ColdataPointer>> rows);

    /** Sorts the list by COLUMN, shown ascending. When it is the sort column already, only the direction is
       turned. */
    void sortBy(const TableColumn& column);

private:
    RowList mediaFiles_;
    std::optional<TableColumn> tableSortColumn_;
    bool tableSortDescending_ = false;
};

} // namespace velmora
