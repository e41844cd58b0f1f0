// The library table's files as they come, change and go.

#include "library_model.h"

#include <QDeadlineTimer>

#include <algorithm>

namespace velmora {

namespace {

/** Files are listed for so long between two turns of the event loop. */
constexpr std::chrono::milliseconds listingTime{5};
constexpr std::chrono::milliseconds addInterval{50};
/** Rows that jump at every change can't be read. */
constexpr std::chrono::milliseconds orderInterval{300};

} // namespace

LibraryModel::LibraryModel(QObject* parent) : QAbstractTableModel(parent) {
    comingTimer_.setSingleShot(true);
    comingTimer_.setInterval(0);
    addTimer_.setSingleShot(true);
    addTimer_.setInterval(addInterval);
    orderTimer_.setSingleShot(true);
    orderTimer_.setInterval(orderInterval);
    removeTimer_.setSingleShot(true);
    removeTimer_.setInterval(0);
    filterTimer_.setSingleShot(true);
    filterTimer_.setInterval(0);
    thread_.setMaxThreadCount(1);
    connect(&comingTimer_, &QTimer::timeout, this, &LibraryModel::listComing);
    connect(&addTimer_, &QTimer::timeout, this, &LibraryModel::showAdded);
    connect(&removeTimer_, &QTimer::timeout, this, &LibraryModel::removeGoing);
    connect(&filterTimer_, &QTimer::timeout, this, &LibraryModel::filterRest);
    connect(&orderTimer_, &QTimer::timeout, this, &LibraryModel::startOrdering);
    connect(&reader_, &TagReader::rowsRead, this, &LibraryModel::takeReadings);
    connect(&reader_, &TagReader::idle, this, &LibraryModel::contentsChanged);
}

LibraryModel::~LibraryModel() {
    thread_.clear();
    thread_.waitForDone();
}

void LibraryModel::addFile(const QString& path, std::uint64_t size) {
    removeGoing();
    coming_.emplace_back(path, size);
    if (!comingTimer_.isActive()) {
        comingTimer_.start();
    }
}

void LibraryModel::listComing() {
    const QDeadlineTimer end(listingTime);
    while (!coming_.empty() && !end.hasExpired()) {
        list(coming_.front().first, coming_.front().second);
        coming_.pop_front();
    }
    if (!coming_.empty()) {
        comingTimer_.start();
    }
}

void LibraryModel::list(const QString& path, std::uint64_t size) {
    const int file = rows_.add(path, size);
    if (file < 0) {
        return;
    }
    added_.push_back(file);
    shownRowOf_.push_back(-1);
    reader_.request(rows_.requestFor(file));
    if (!addTimer_.isActive()) {
        addTimer_.start();
    }
}

void LibraryModel::showAdded() {
    if (added_.empty()) {
        return;
    }
    std::vector<int> files = shown_;
    for (const int file : added_) {
        order_.push_back(file);
        (filter_.isEmpty() ? files : unfiltered_).push_back(file);
    }
    added_.clear();
    if (!unfiltered_.empty()) {
        filterTimer_.start();
    }
    show(std::move(files));
    ++version_;
    orderLater();
    emit contentsChanged();
}

void LibraryModel::removeFile(const QString& path) {
    std::erase_if(coming_, [&path](const auto& file) { return file.first == path; });
    const int file = rows_.find(path);
    if (file < 0) {
        return;
    }
    going_.push_back(file);
    if (!removeTimer_.isActive()) {
        removeGoing();
        removeTimer_.start();
    }
}

void LibraryModel::removeGoing() {
    if (going_.empty()) {
        return;
    }
    showAdded();
    std::vector<bool> goes(static_cast<std::size_t>(rows_.end()), false);
    for (const int file : going_) {
        goes[static_cast<std::size_t>(file)] = true;
    }
    const auto isGoing = [&](int file) { return goes[static_cast<std::size_t>(file)]; };
    std::erase_if(order_, isGoing);
    std::erase_if(unfiltered_, isGoing);
    hide(isGoing);
    for (int file = 0; file < rows_.end(); ++file) {
        if (isGoing(file)) {
            rows_.remove(file);
        }
    }
    going_.clear();
    ++version_;
    emit contentsChanged();
}

void LibraryModel::readAgain(int file) {
    reader_.request(rows_.requestFor(file));
}

void LibraryModel::moveFile(int file, const QString& path) {
    rows_.move(file, path);
    readAgain(file);
    contentsChange(file);
}

void LibraryModel::takeReadings(const std::vector<RowReading>& readings) {
    int first = rowCount();
    int last = -1;
    for (const RowReading& reading : readings) {
        if (!rows_.take(reading)) {
            continue;
        }
        const int shown = shownRowOf_[static_cast<std::size_t>(reading.row)];
        if (shown >= 0) {
            first = std::min(first, shown);
            last = std::max(last, shown);
        }
    }
    ++version_;
    if (last >= 0) {
        emit dataChanged(index(first, 0), index(last, libraryColumnCount - 1));
    }
    orderLater();
    emit contentsChanged();
}

void LibraryModel::setEdits(int file, RowEdits edits) {
    rows_.setEdits(file, std::move(edits));
    contentsChange(file);
    emit contentsChanged();
}

void LibraryModel::setEdits(const std::vector<std::pair<int, RowEdits>>& edits) {
    for (const auto& [file, of] : edits) {
        rows_.setEdits(file, of);
        contentsChange(file);
    }
    emit contentsChanged();
}

void LibraryModel::revertEdits(const std::vector<int>& files) {
    for (const int file : files) {
        rows_.setEdits(file, {});
        contentsChange(file);
    }
    emit contentsChanged();
}

/** An edited row stays where it is: one that jumps away from under the cursor helps nobody. */
void LibraryModel::contentsChange(int file) {
    const int shown = shownRowOf_[static_cast<std::size_t>(file)];
    if (shown >= 0) {
        emit dataChanged(index(shown, 0), index(shown, libraryColumnCount - 1));
    }
}

void LibraryModel::thumbnailChanged(int file) {
    const int shown = shownRowOf_[static_cast<std::size_t>(file)];
    if (shown >= 0) {
        const QModelIndex cell = index(shown, static_cast<int>(LibraryColumn::cover));
        emit dataChanged(cell, cell, {Qt::DecorationRole});
    }
}

void LibraryModel::sortBy(const std::vector<SortKey>& keys) {
    keys_ = keys;
    ++version_;
    emit headerDataChanged(Qt::Horizontal, 0, libraryColumnCount - 1);
    emit sortKeysChanged();
    startOrdering();
}

void LibraryModel::setFilter(const FilterQuery& query) {
    showAdded();
    filter_ = query;
    show(filtered());
    emit contentsChanged();
}

void LibraryModel::setVisibleRows(int first, int last) {
    std::vector<TagReader::Request> requests;
    for (int row = std::min(last, rowCount() - 1); row >= std::max(first, 0); --row) {
        if (rows_.at(fileAt(row)).state == ReadState::waiting) {
            requests.push_back(rows_.lastRequest(fileAt(row)));
        }
    }
    reader_.prefer(std::move(requests));
}

} // namespace velmora
