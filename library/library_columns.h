#pragma once

#include "library_column.h"
#include "library_row.h"

#include <QList>
#include <QString>

namespace velmora {

/** All columns, in the order in which they are shown at first. */
[[nodiscard]] QList<LibraryColumn> libraryColumns();
/** What stands above the column, in the user's language. */
[[nodiscard]] QString columnTitle(LibraryColumn column);
/** The column's name in files and in the filter, the same in all languages: "artist". */
[[nodiscard]] QString columnKey(LibraryColumn column);
/** Whether the column is one of those that are shown at first. */
[[nodiscard]] bool isShownAtFirst(LibraryColumn column);
/** Whether the column's values are numbers or moments, which are sorted as such. */
[[nodiscard]] bool isNumeric(LibraryColumn column);
/** Whether the user can change the column's texts in files of MEDIA. */
[[nodiscard]] bool isEditable(LibraryColumn column, portable::Media media);

/** The field that the texts of COLUMN are in files of MEDIA. Nothing for columns and files without one. */
[[nodiscard]] std::optional<portable::Field> fieldOf(LibraryColumn column, portable::Media media);

/** What the column says of the file ROW, with EDITS, unless null, taken for done: whole, in the user's
   language. Of the cover, whether there is one. */
[[nodiscard]] QString columnText(const LibraryRow& row, const RowEdits* edits, LibraryColumn column);
/** Whether EDITS, which may be null, change what COLUMN says of ROW. */
[[nodiscard]] bool isEdited(const LibraryRow& row, const RowEdits* edits, LibraryColumn column);
/** The year with EDITS, unless null, taken for done; 0: none. */
[[nodiscard]] int yearOf(const LibraryRow& row, const RowEdits* edits);
/** Whether there is a cover with EDITS, unless null, taken for done. */
[[nodiscard]] bool hasCover(const LibraryRow& row, const RowEdits* edits);

/** The hash of the cover that ROW has with EDITS, unless null, taken for done; 0: none. */
[[nodiscard]] std::uint64_t coverHashOf(const LibraryRow& row, const RowEdits* edits);

/** What a filter looks at in ROW with EDITS, unless null, taken for done. Takes about 10
   microseconds; for any thread. */
[[nodiscard]] FilterText filterTextOf(const LibraryRow& row, const RowEdits* edits);

/** Puts into EDITS that COLUMN is to say TEXT of ROW; an empty text deletes. What ROW says already is no
   edit. False, with EDITS as they were, where the column can't say that. */
[[nodiscard]] bool editText(RowEdits& edits, const LibraryRow& row, LibraryColumn column,
                            const QString& text);
/** Puts into EDITS what BEFORE says of COLUMN, one of those that are editable, of ROW. */
void copyEdit(RowEdits& edits, const RowEdits& before, const LibraryRow& row, LibraryColumn column);
/** Puts into EDITS that ROW is to have COVER; null deletes it. */
void editCover(RowEdits& edits, const LibraryRow& row, const CoverPointer& cover);

} // namespace velmora
