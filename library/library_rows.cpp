#include "library_rows.h"

#include "platform/file_path.h"
#include "portable/media_kind.h"

#include <algorithm>

namespace velmora {

namespace {

portable::Media mediaOf(const QString& path) {
    const auto kind = portable::media_kind(pathBytes(path).toStdString());
    return kind ? kind->media : portable::Media::other;
}

} // namespace

int LibraryRows::add(const QString& path, std::uint64_t size) {
    if (numbers_.contains(path)) {
        return -1;
    }
    const int number = end();
    numbers_.insert(path, number);
    LibraryRow row;
    row.path = path;
    row.media = mediaOf(path);
    row.size = size;
    rows_.push_back(std::move(row));
    return number;
}

void LibraryRows::remove(int row) {
    LibraryRow& removed = rows_[static_cast<std::size_t>(row)];
    numbers_.remove(removed.path);
    edits_.erase(row);
    removed = LibraryRow();
    removed.removed = true;
}

void LibraryRows::move(int row, const QString& path) {
    LibraryRow& moved = rows_[static_cast<std::size_t>(row)];
    // Another file may have got this one's old path already.
    if (find(moved.path) == row) {
        numbers_.remove(moved.path);
    }
    numbers_.insert(path, row);
    moved.path = path;
    moved.filter = {};
}

TagReader::Request LibraryRows::requestFor(int row) {
    rows_[static_cast<std::size_t>(row)].ticket = ++lastTicket_;
    return lastRequest(row);
}

TagReader::Request LibraryRows::lastRequest(int row) const {
    return {row, at(row).ticket, at(row).path};
}

bool LibraryRows::take(const RowReading& reading) {
    LibraryRow& row = rows_[static_cast<std::size_t>(reading.row)];
    if (row.removed || row.ticket != reading.ticket) {
        return false;
    }
    row.state = reading.state;
    row.year = reading.year;
    row.texts = reading.texts;
    row.tags = reading.tags;
    row.coverHash = reading.coverHash;
    row.size = reading.size;
    row.created = reading.created;
    row.filter = edits(reading.row) ? FilterText() : reading.filter;
    return true;
}

const RowEdits* LibraryRows::edits(int row) const {
    const auto found = edits_.find(row);
    return found == edits_.end() ? nullptr : &found->second;
}

void LibraryRows::setEdits(int row, RowEdits edits) {
    rows_[static_cast<std::size_t>(row)].filter = {};
    if (edits.empty()) {
        edits_.erase(row);
    } else {
        edits_.insert_or_assign(row, std::move(edits));
    }
}

std::vector<int> LibraryRows::editedRows() const {
    std::vector<int> rows;
    rows.reserve(edits_.size());
    for (const auto& [row, edits] : edits_) {
        rows.push_back(row);
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

const FilterText& LibraryRows::filterText(int row) {
    LibraryRow& asked = rows_[static_cast<std::size_t>(row)];
    if (asked.filter.folded().empty()) {
        asked.filter = filterTextOf(asked, edits(row));
    }
    return asked.filter;
}

LibraryRows LibraryRows::snapshot() const {
    LibraryRows copy;
    copy.rows_ = rows_;
    copy.edits_ = edits_;
    return copy;
}

} // namespace velmora
