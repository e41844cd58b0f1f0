#pragma once

#include "library_columns.h"
#include "tag_reader.h"

#include <QHash>

#include <unordered_map>
#include <vector>

namespace velmora {

/** The files of the library table in the order in which they came, and what is to become of them. A file's number stays
    what it is. */
class LibraryRows {
public:
    /** Lists the file at PATH of SIZE bytes and gives its number; -1 where it is listed already. */
    int add(const QString& path, std::uint64_t size);
    /** Takes the file off the list, with its edits. */
    void remove(int row);
    /** The file has another path now. */
    void move(int row, const QString& path);

    /** One more than the largest number; those of removed files are among them. */
    [[nodiscard]] int end() const { return static_cast<int>(rows_.size()); }
    [[nodiscard]] const LibraryRow& at(int row) const { return rows_[static_cast<std::size_t>(row)]; }
    /** The number of the file at PATH; -1 for none. */
    [[nodiscard]] int find(const QString& path) const { return numbers_.value(path, -1); }

    /** A request to read the file, which makes all earlier ones void. */
    [[nodiscard]] TagReader::Request requestFor(int row);
    /** The request that was made last. */
    [[nodiscard]] TagReader::Request lastRequest(int row) const;
    /** False, with nothing changed, where READING answers a void request. */
    bool take(const RowReading& reading);

    /** Null where there are none. Good until edits change. */
    [[nodiscard]] const RowEdits* edits(int row) const;
    void setEdits(int row, RowEdits edits);
    /** The rows that have edits, in their order. */
    [[nodiscard]] std::vector<int> editedRows() const;
    [[nodiscard]] std::size_t editedCount() const { return edits_.size(); }

    /** What a filter looks at in the file, its edits taken for done. Good until the file or its edits change. */
    [[nodiscard]] const FilterText& filterText(int row);

    /** A copy to be read on another thread, in which no paths are found. */
    [[nodiscard]] LibraryRows snapshot() const;

    [[nodiscard]] QString text(int row, LibraryColumn column) const {
        return columnText(at(row), edits(row), column);
    }

private:
    std::vector<LibraryRow> rows_;
    QHash<QString, int> numbers_;
    std::unordered_map<int, RowEdits> edits_;
    std::uint32_t lastTicket_ = 0;
};

} // namespace velmora
