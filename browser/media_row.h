#pragma once

#include "platform/file_attributes.h"

#include <QIcon>
#include <QString>
#include <QStringView>
#include <QVariant>

#include <cstdint>
#include <memory>
#include <optional>

namespace velmora {

/** One row of the media table, a record that never changes once it is built. Each member is the value under
   the key of its name; a text that is null (and not merely empty) means that the record has no such key. */
struct coldata {
    QString fullpath;
    QIcon icon;
    /** The last component of the path. */
    QString filename;
    /** In bytes. */
    std::uint64_t rawfilesize = 0;
    /** The size as the user reads it, as sizeText has it. */
    QString filesize;
    /** The creation date, as createdText has it. */
    QString created;

    /** The value under KEY: "fullpath", "icon", "filename", "rawfilesize", "filesize" or "created". Invalid
       when the record has no such key. */
    [[nodiscard]] QVariant valueForKey(QStringView key) const;
};

/** Rows are shared by whoever needs one for longer than the list keeps still. */
using ColdataPointer = std::shared_ptr<const coldata>;

/** A size in bytes with one decimal and its unit, each 1024 times the one before: "100.0 KB". It stays in
   "TB" however large it is. */
[[nodiscard]] QString sizeText(std::uint64_t size);

/** A moment in the local time zone as date, a blank, and time, both in the form of the process's locale. A
   fraction of a second is cut off toward 1970. Empty for a year that the calendar can't hold. */
[[nodiscard]] QString createdText(FileTime created);

/** The row of the file at PATH, of which the file system says ATTRIBUTES. Null when there are none, or they
   lack the size or the creation date. */
[[nodiscard]] ColdataPointer mediaRow(const QString& path, const std::optional<FileAttributes>& attributes);

} // namespace velmora
