#pragma once

#include "library_columns.h"
#include "path_index.h"
#include "tag_reader.h"

#include <QList>

#include <unordered_map>
#include <vector>

namespace velmora {

/** The files of the library table in the order in which they came, and what is to become of them. A file's
   number stays what it is. */
class LibraryRows {
public:
    /** Lists the file at PATH of SIZE bytes and gives its number; -1 where it is listed already. */
    int add(const QString& path, std::uint64_t size);
    /** Takes the file off the list, with its edits. */
    void remove(int row);
    /** The file has another path now. */
    void move(int row, const QString& path);

    /** One more than the largest number; those of removed files are among them. */
    [[nodiscard]] int end() const { return end_; }
    [[nodiscard]] const LibraryRow& at(int row) const {
        const auto place = static_cast<std::size_t>(row);
        return pieces_[place / pieceSize][static_cast<qsizetype>(place % pieceSize)];
    }
    /** The number of the file at PATH; -1 for none. */
    [[nodiscard]] int find(const QString& path) const;

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

    /** What a filter looks at in the file, its edits taken for done. Good until the file or its edits
       change. */
    [[nodiscard]] FilterView filterText(int row);
    /** Whether filterText() has nothing to make, which takes about 10 microseconds. */
    [[nodiscard]] bool isFolded(int row) const;

    /** A copy to be read on another thread, in which no paths are found. Takes a moment only,
       however many rows there are. */
    [[nodiscard]] LibraryRows snapshot() const;

    [[nodiscard]] QString text(int row, LibraryColumn column) const {
        return columnText(at(row), edits(row), column);
    }

private:
    /** So many rows are copied when one of them changes and a snapshot has it, too. */
    static constexpr std::size_t pieceSize = 256;

    [[nodiscard]] LibraryRow& change(int row);
    void setPath(int row, const QString& path);

    std::vector<QList<LibraryRow>> pieces_; ///< shared with snapshots
    int end_ = 0;
    PathIndex numbers_;
    QSet<QByteArray> folders_;
    std::unordered_map<int, RowEdits> edits_;
    std::unordered_map<int, FilterText> editedTexts_; ///< of rows that have edits, once a filter has asked
    std::uint32_t lastTicket_ = 0;
};

} // namespace velmora
