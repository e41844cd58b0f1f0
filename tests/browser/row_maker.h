#pragma once

#include "browser/media_rows.h"

#include <memory>

namespace velmora::test {

/* Columns to sort by. */
inline const TableColumn byName{QStringLiteral("filename")};
inline const TableColumn bySize{QStringLiteral("filesize")};

/** A row with what the sort order looks at. */
inline ColdataPointer makeRow(const QString& name, std::uint64_t size = 0, const QString& created = {}) {
    coldata row;
    row.fullpath = QStringLiteral("/media/") + name;
    row.filename = name;
    row.rawfilesize = size;
    row.filesize = sizeText(size);
    row.created = created;
    return std::make_shared<const coldata>(row);
}

} // namespace velmora::test
