#include "media_rows.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <utility>

namespace velmora {
namespace {

int sign(int order) {
    return (order > 0) - (order < 0);
}

/** How many code units A and B begin with in common, counted four at a time and so rounded down. */
qsizetype commonBeginning(const QString& a, const QString& b) {
    constexpr qsizetype step = sizeof(std::uint64_t) / sizeof(QChar);
    const qsizetype length = std::min(a.size(), b.size());
    qsizetype same = 0;
    while (same + step <= length &&
           std::memcmp(a.constData() + same, b.constData() + same, sizeof(std::uint64_t)) == 0) {
        same += step;
    }
    return same;
}

/** QString::compare without regard to case. That is slow on the long beginnings that the names of a folder
   share, which are passed over here. */
int compareNames(const QString& a, const QString& b) {
    qsizetype same = commonBeginning(a, b);
    if (same > 0 && a[same - 1].isHighSurrogate()) {
        // It and what follows are one character.
        --same;
    }
    return QStringView(a).sliced(same).compare(QStringView(b).sliced(same), Qt::CaseInsensitive);
}

int compareSizes(std::uint64_t a, std::uint64_t b) {
    return (a > b) - (a < b);
}

} // namespace

int sort_table_columns(const coldata& a, const coldata& b, const TableColumn& column) {
    if (column.identifier == u"filename") {
        return sign(compareNames(a.filename, b.filename));
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

void MediaRows::replace(std::vector<std::pair<std::size_t, ColdataPointer>> rows) {
    if (!tableSortColumn_) {
        for (auto& [index, row] : rows) {
            mediaFiles_.replace(index, std::move(row));
        }
        return;
    }
    // From the end, so that the numbers of those in front stay what they are.
    std::sort(rows.begin(), rows.end(),
              [](const auto& left, const auto& right) { return left.first > right.first; });
    for (const auto& [index, row] : rows) {
        mediaFiles_.remove(index);
    }
    for (auto& [index, row] : rows) {
        addColdataSorted(std::move(row));
    }
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
