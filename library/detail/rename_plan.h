#pragma once

#include "name_pattern.h"

#include "library/rename_files.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace velmora {

/** What a plan says of a file's name. */
enum class RenameMark {
    unchanged,       ///< it has that name already
    renamed,         ///< it gets the name
    shortened,       ///< it gets the name, which is cut: it would be too long
    missingValue,    ///< the file lacks a value that the pattern asks for
    noName,          ///< the values leave no text for a name, or no room for it beside the extension
    fixedName,       ///< its tag lies in another file, which goes by this one's name
    clashesWithRow,  ///< another file of the plan has the name or is to get it
    clashesWithFile, ///< a file that is not in the plan has the name
};

/** Whether the file gets another name. */
[[nodiscard]] constexpr bool isRenamed(RenameMark mark) {
    return mark == RenameMark::renamed || mark == RenameMark::shortened;
}

/** A file that a plan is about. */
struct RenameRow {
    QString path; ///< absolute, as platform/file_path.h has paths
    portable::TagValues values;
};

struct PlannedRename {
    QByteArray from;
    QByteArray to; ///< absolute; the name that was wanted where it clashes; as FROM where there is none
    RenameMark mark = RenameMark::unchanged;
    portable::Field missing = portable::Field::title; ///< with missingValue: what

    [[nodiscard]] bool isRenamed() const { return velmora::isRenamed(mark); }
};

/** The new names of ROWS, which are different files, by PATTERN. Each file stays in its folder and keeps its
   extension. A name that another row leaves may be taken, also in a circle; two rows never get names that
   differ in case alone, which some file systems do not tell apart. OTHERS are further files, which get their
   names whatever becomes of ROWS. Looks at the folders, and changes nothing. One for each row. */
[[nodiscard]] std::vector<PlannedRename> planRenames(const std::vector<RenameRow>& rows,
                                                     const NamePattern& pattern,
                                                     const std::vector<FileRename>& others = {});

} // namespace velmora
