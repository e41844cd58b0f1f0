#pragma once

#include "name_pattern.h"

#include "library/library_row.h"
#include "library/rename_files.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace velmora {

/** A file whose name or tags are to follow a pattern. */
struct NamesSource {
    int file = 0; ///< its number in the library table
    QString path;
    QString name; ///< in its folder; the one that it is to get, where the table has one not applied yet
    portable::Media media = portable::Media::other;
    ReadState state = ReadState::waiting;
    /** With the edits that the table has not applied yet; without the cover. */
    portable::TagValues values;
};

/** The file ROW with the number FILE, with EDITS, which may be null, taken for done. */
[[nodiscard]] NamesSource namesSource(int file, const LibraryRow& row, const RowEdits* edits);

/** What becomes of a file. */
struct NamesPreviewRow {
    int file = 0;
    QString name; ///< as the table has it
    /** Of tags from names the value of each field of the pattern; of names from tags the new name alone, also
       one that clashes. Empty where there is none. */
    QStringList texts;
    QString note;         ///< why it is left alone, or what else there is to say; in the user's language
    bool applies = false; ///< it is not left alone
    bool fails = false;   ///< it is left alone because of what NOTE says
};

/** What the names of SOURCES say by PATTERN, one for each. */
[[nodiscard]] std::vector<NamesPreviewRow> previewTagsFromNames(const std::vector<NamesSource>& sources,
                                                                const NamePattern& pattern);

/** The names that the tags of SOURCES give by PATTERN, one for each, beside those that OTHERS, further files,
    are to get. Looks at the folders. */
[[nodiscard]] std::vector<NamesPreviewRow> previewNamesFromTags(const std::vector<NamesSource>& sources,
                                                                const NamePattern& pattern,
                                                                const std::vector<FileRename>& others);

/** EDITS of the file ROW and what PREVIEW, which applies, says of the fields in FIELDS. */
[[nodiscard]] RowEdits withTags(RowEdits edits, const LibraryRow& row,
                                const std::vector<portable::Field>& fields, const NamesPreviewRow& preview);
/** EDITS of the file ROW and the name that PREVIEW, which applies, gives it. */
[[nodiscard]] RowEdits withName(RowEdits edits, const LibraryRow& row, const NamesPreviewRow& preview);

/** What a field is called in the table's head. */
[[nodiscard]] QString fieldTitle(portable::Field field);

} // namespace velmora
