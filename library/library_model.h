#pragma once

#include "filter_query.h"
#include "library_rows.h"
#include "row_order.h"

#include <QAbstractTableModel>
#include <QThreadPool>
#include <QTimer>

#include <deque>
#include <functional>
#include <optional>

namespace velmora {

/** What the library table shows: the listed files, those that the filter lets through, in the
   order that was asked for.

   New files are shown at the end, and what changes stays where it is; both get their places a moment later,
   in an order that is found beside the main thread. */
class LibraryModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit LibraryModel(QObject* parent = nullptr);
    ~LibraryModel() override;

    /** Lists the file at PATH of SIZE bytes, unless it is listed, and reads it: soon, since many may come at
       once. */
    void addFile(const QString& path, std::uint64_t size);
    /** Takes the file off the list: the first one at once, those that follow in the same turn of the event
        loop together at its end, since each pass takes its time where there are many rows. */
    void removeFile(const QString& path);
    /** Reads the file again: it has changed. */
    void readAgain(int row);
    /** The file is at PATH now, and is read again. */
    void moveFile(int row, const QString& path);

    [[nodiscard]] const LibraryRows& rows() const { return rows_; }
    /** The number of the file that is shown in the table's row SHOWN. */
    [[nodiscard]] int fileAt(int shown) const { return shown_[static_cast<std::size_t>(shown)]; }
    [[nodiscard]] const std::vector<int>& shownFiles() const { return shown_; }
    /** How many files are listed, shown or not. */
    [[nodiscard]] std::size_t listed() const { return order_.size() + added_.size() + coming_.size(); }
    /** How many files are still to be read. */
    [[nodiscard]] std::size_t unread() const { return reader_.waiting() + coming_.size(); }

    /** Edits of the file FILE; nothing is written into it. */
    void setEdits(int file, RowEdits edits);
    /** Edits of many files at once, each with its number; nothing is written into them. */
    void setEdits(const std::vector<std::pair<int, RowEdits>>& edits);
    /** Takes the edits of FILES back. */
    void revertEdits(const std::vector<int>& files);

    void sortBy(const std::vector<SortKey>& keys);
    [[nodiscard]] const std::vector<SortKey>& sortKeys() const { return keys_; }
    /** Shows the files that match QUERY. */
    void setFilter(const FilterQuery& query);
    /** Looks now at those files that the filter has not looked at yet, which takes up to a second where there
       are 100,000: what is done with all that are shown is to leave none out. */
    void finishFiltering();
    /** The table's rows FIRST to LAST can be seen: their files are read before others. */
    void setVisibleRows(int first, int last);
    /** Small covers for the files that can be seen; null while there is none, or none yet. */
    void setThumbnails(std::function<QVariant(int file)> thumbnails) { thumbnails_ = std::move(thumbnails); }
    /** The picture of FILE's cover is another one now. */
    void thumbnailChanged(int file);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

signals:
    /** Files were listed, read, edited or are not listed any more; or others than before may be shown. */
    void contentsChanged();
    void sortKeysChanged();
    /** The rows stand in the order that was asked for. */
    void ordered();

private:
    void listComing();
    void list(const QString& path, std::uint64_t size);
    void showAdded();
    void removeGoing();
    void takeReadings(const std::vector<RowReading>& readings);
    void contentsChange(int file);
    void orderLater();
    void startOrdering();
    void takeOrder(std::uint64_t version, std::vector<int> order);
    void show(std::vector<int> files);
    void hide(const std::function<bool(int file)>& isGoing);
    void rearrange(std::vector<int> files);
    void numberShown();
    [[nodiscard]] bool passes(int file);
    [[nodiscard]] std::vector<int> filtered();
    void filterRest();
    [[nodiscard]] bool isDeleted(int file, LibraryColumn column) const;
    [[nodiscard]] QString shownText(int file, LibraryColumn column) const;
    [[nodiscard]] QVariant font(int file, LibraryColumn column) const;
    [[nodiscard]] QString spokenText(int file, LibraryColumn column) const;
    [[nodiscard]] QString tip(int file, LibraryColumn column) const;

    LibraryRows rows_;
    TagReader reader_;
    std::deque<std::pair<QString, std::uint64_t>> coming_; ///< to be listed: paths and sizes
    std::vector<int> added_;                               ///< listed, and not in order_ yet
    std::vector<int> going_;                               ///< listed, and soon not any more
    std::vector<int> order_;                               ///< all others, sorted
    std::vector<int> unfiltered_; ///< those of order_ that the filter has not looked at yet
    std::vector<int> shown_;      ///< those of order_ that the filter lets through
    std::vector<int> shownRowOf_; ///< where a file is shown; -1: not
    std::vector<SortKey> keys_;
    FilterQuery filter_;
    std::function<QVariant(int file)> thumbnails_;
    QTimer comingTimer_;
    QTimer addTimer_;
    QTimer removeTimer_;
    QTimer filterTimer_;
    QTimer orderTimer_;
    std::uint64_t version_ = 0; ///< of what decides on the order
    bool ordering_ = false;
    QThreadPool thread_;
};

} // namespace velmora
