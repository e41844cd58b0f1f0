#include "library_rows.h"

#include "platform/file_path.h"

#include <algorithm>

namespace velmora {

namespace {

std::uint32_t hashOf(const QByteArray& path) {
    return static_cast<std::uint32_t>(qHash(path));
}

} // namespace

LibraryRow& LibraryRows::change(int row) {
    const auto place = static_cast<std::size_t>(row);
    return pieces_[place / pieceSize][static_cast<qsizetype>(place % pieceSize)];
}

int LibraryRows::find(const QString& path) const {
    const QByteArray bytes = pathBytes(path);
    return numbers_.find(hashOf(bytes), [&](int row) { return at(row).isAt(bytes); });
}

int LibraryRows::add(const QString& path, std::uint64_t size) {
    if (find(path) >= 0) {
        return -1;
    }
    if (static_cast<std::size_t>(end_) == pieces_.size() * pieceSize) {
        pieces_.emplace_back().reserve(pieceSize);
    }
    LibraryRow row(path, size);
    row.shareFolder(folders_);
    pieces_.back().push_back(std::move(row));
    numbers_.insert(hashOf(pathBytes(path)), end_);
    return end_++;
}

void LibraryRows::remove(int row) {
    numbers_.remove(hashOf(pathBytes(at(row).path())), row);
    edits_.erase(row);
    editedTexts_.erase(row);
    change(row) = LibraryRow();
    change(row).removed = true;
}

void LibraryRows::move(int row, const QString& path) {
    numbers_.remove(hashOf(pathBytes(at(row).path())), row);
    numbers_.insert(hashOf(pathBytes(path)), row);
    change(row).setPath(path);
    change(row).shareFolder(folders_);
    editedTexts_.erase(row);
}

TagReader::Request LibraryRows::requestFor(int row) {
    change(row).ticket = ++lastTicket_;
    return lastRequest(row);
}

TagReader::Request LibraryRows::lastRequest(int row) const {
    return {row, at(row).ticket, at(row).path()};
}

bool LibraryRows::take(const RowReading& reading) {
    const LibraryRow& asked = at(reading.row);
    if (asked.removed || asked.ticket != reading.ticket) {
        return false;
    }
    LibraryRow& row = change(reading.row);
    row.state = reading.state;
    row.year = reading.year;
    row.coverHash = reading.coverHash;
    row.size = reading.size;
    row.created = reading.created;
    row.setTexts(reading.texts, reading.tags, reading.filter);
    editedTexts_.erase(reading.row);
    return true;
}

const RowEdits* LibraryRows::edits(int row) const {
    const auto found = edits_.find(row);
    return found == edits_.end() ? nullptr : &found->second;
}

void LibraryRows::setEdits(int row, RowEdits edits) {
    editedTexts_.erase(row);
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

FilterView LibraryRows::filterText(int row) {
    if (const RowEdits* const edited = edits(row)) {
        FilterText& text = editedTexts_[row];
        if (text.folded().empty()) {
            text = filterTextOf(at(row), edited);
        }
        return text;
    }
    if (at(row).filter().folded.empty()) {
        change(row).setFilter(filterTextOf(at(row), nullptr));
    }
    return at(row).filter();
}

bool LibraryRows::isFolded(int row) const {
    return edits(row) ? editedTexts_.contains(row) : !at(row).filter().folded.empty();
}

LibraryRows LibraryRows::snapshot() const {
    LibraryRows copy;
    copy.pieces_ = pieces_;
    copy.end_ = end_;
    copy.edits_ = edits_;
    return copy;
}

} // namespace velmora
