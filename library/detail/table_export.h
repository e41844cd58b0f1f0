#pragma once

#include <QIODevice>
#include <QString>
#include <QVariant>

#include <functional>
#include <vector>

namespace velmora {

/** A column as an export has it. */
struct ExportColumn {
    QString key;   ///< the same in all languages: "artist"
    QString title; ///< in the user's language
};

/** What is exported. */
struct ExportTable {
    std::vector<ExportColumn> columns;
    int rows = 0;
    /** What stands in a cell, by row and index of the column: a text, a number, a truth value, or an invalid
       value for nothing. */
    std::function<QVariant(int row, int column)> cell;
};

/** Writes TABLE as comma-separated values (RFC 4180): UTF-8 with a byte order mark, without which
   spreadsheets take it for another encoding; lines end with CR LF; the first has the columns' titles. What a
   spreadsheet would take for a formula is made harmless (cell_block.h). Bytes that are no text, in names of
   files, are question marks. False where DEVICE refuses a write. */
[[nodiscard]] bool exportCsv(const ExportTable& table, QIODevice& device);

/** Writes TABLE as JSON in UTF-8: an array with an object for each row, whose members are named by the
   columns' keys. Texts are exact but for the bytes that are none, which are U+FFFD; numbers are numbers; what
   is nothing is null. False where DEVICE refuses a write. */
[[nodiscard]] bool exportJson(const ExportTable& table, QIODevice& device);

} // namespace velmora
