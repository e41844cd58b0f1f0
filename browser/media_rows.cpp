#include "media_rows.h"

#include <utility>

namespace velmora {
namespace {

int sign(int order) {
    return (order > 0) - (order < 0);
}

int compareSizes(std::uint64_t a, std::uint64_t b) {
    return (a > b) - (a < b);
}

} // namespace

int sort_table_columns(const coldata& a, const coldata& b, const TableColumn& column) {
    if (column.identifier == u"filename") {
        return sign(QString::compare(a.filename, b.filename, Qt::CaseInsensitive));
    }
    if (column.identifier == u"created") {
        return sign(QString::compare(a.created, b.created, Qt::CaseSensitive));
    }
    if (column.identifier == u"filesize") {
        return compareSizes(a.rawfilesize, b.rawfilesize);
    }
    return 0;
}

void MediaRows::addColdataSorted(ColdataPointer row) {
    if (!tableSortColumn_) {
        mediaFiles_.append(std::move(row));
        return;
    }
    const ColdataPointer added = row;
    mediaFiles_.insertBeforeFirst(
        [&](const coldata& existing) { return sort_table_columns(existing, *added, *tableSortColumn_) == 1; },
        std::move(row));
}

void MediaRows::sortBy(const TableColumn& column) {
    if (column == tableSortColumn_) {
        tableSortDescending_ = !tableSortDescending_;
        return;
    }
    tableSortDescending_ = false;
    tableSortColumn_ = column;
    mediaFiles_.stableSort(
        [&](const coldata& a, const coldata& b) { return sort_table_columns(a, b, column) == -1; });
}

} // namespace velmora
