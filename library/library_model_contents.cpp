// The library table's files as they come, change and go, and the order in which they are shown.

#include "library_model.h"

#include "background_thread.h"

#include <QDeadlineTimer>
#include <QLocale>

#include <algorithm>
#include <numeric>

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
    thread_.setMaxThreadCount(1);
    connect(&comingTimer_, &QTimer::timeout, this, &LibraryModel::listComing);
    connect(&addTimer_, &QTimer::timeout, this, &LibraryModel::showAdded);
    connect(&orderTimer_, &QTimer::timeout, this, &LibraryModel::startOrdering);
    connect(&reader_, &TagReader::rowsRead, this, &LibraryModel::takeReadings);
    connect(&reader_, &TagReader::idle, this, &LibraryModel::contentsChanged);
}

LibraryModel::~LibraryModel() {
    thread_.clear();
    thread_.waitForDone();
}

void LibraryModel::addFile(const QString& path, std::uint64_t size) {
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
        if (passes(file)) {
            files.push_back(file);
        }
    }
    added_.clear();
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
    showAdded();
    ++version_;
    order_.erase(std::remove(order_.begin(), order_.end(), file), order_.end());
    const int shown = shownRowOf_[static_cast<std::size_t>(file)];
    if (shown >= 0) {
        beginRemoveRows({}, shown, shown);
        shown_.erase(shown_.begin() + shown);
        numberShown();
        rows_.remove(file);
        endRemoveRows();
    } else {
        rows_.remove(file);
    }
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

void LibraryModel::revert(const std::vector<int>& files) {
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

void LibraryModel::orderLater() {
    if ((!keys_.empty() || !filter_.isEmpty()) && !orderTimer_.isActive()) {
        orderTimer_.start();
    }
}

void LibraryModel::startOrdering() {
    if (ordering_) {
        return; // takes it up again by itself
    }
    ordering_ = true;
    thread_.start([this, version = version_, keys = keys_, rows = rows_.snapshot()] {
        stayInBackground();
        std::vector<int> order = sortedRows(rows, keys, QLocale());
        QMetaObject::invokeMethod(
            this, [this, version, order = std::move(order)] { takeOrder(version, order); },
            Qt::QueuedConnection);
    });
}

void LibraryModel::takeOrder(std::uint64_t version, std::vector<int> order) {
    ordering_ = false;
    // What came meanwhile is behind the rest until it is sorted, too; what went is left out.
    showAdded();
    std::vector<bool> isOrdered(static_cast<std::size_t>(rows_.end()), false);
    for (const int file : order) {
        isOrdered[static_cast<std::size_t>(file)] = true;
    }
    order.erase(
        std::remove_if(order.begin(), order.end(), [this](int file) { return rows_.at(file).removed; }),
        order.end());
    std::copy_if(order_.begin(), order_.end(), std::back_inserter(order),
                 [&](int file) { return !isOrdered[static_cast<std::size_t>(file)]; });
    order_ = std::move(order);
    show(filtered());
    if (version == version_) {
        emit ordered();
    } else {
        orderLater();
    }
}

bool LibraryModel::passes(int file) {
    return filter_.isEmpty() || filter_.matches(rows_.filterText(file));
}

std::vector<int> LibraryModel::filtered() {
    std::vector<int> files;
    std::copy_if(order_.begin(), order_.end(), std::back_inserter(files),
                 [this](int file) { return passes(file); });
    return files;
}

/** Shows FILES instead of what is shown, in such steps that the views' selections, their current cell and an
   editor in it stay with their files. */
void LibraryModel::show(std::vector<int> files) {
    std::vector<bool> stays(static_cast<std::size_t>(rows_.end()), false);
    for (const int file : files) {
        stays[static_cast<std::size_t>(file)] = true;
    }
    const auto isStaying = [&](int file) { return stays[static_cast<std::size_t>(file)]; };
    if (!std::all_of(shown_.begin(), shown_.end(), isStaying)) {
        std::vector<int> goingLast = shown_;
        const auto going = std::stable_partition(goingLast.begin(), goingLast.end(), isStaying);
        const int staying = static_cast<int>(going - goingLast.begin());
        rearrange(std::move(goingLast));
        beginRemoveRows({}, staying, rowCount() - 1);
        for (auto file = shown_.begin() + staying; file != shown_.end(); ++file) {
            shownRowOf_[static_cast<std::size_t>(*file)] = -1;
        }
        shown_.resize(static_cast<std::size_t>(staying));
        endRemoveRows();
    }
    std::vector<int> coming;
    std::copy_if(files.begin(), files.end(), std::back_inserter(coming),
                 [this](int file) { return shownRowOf_[static_cast<std::size_t>(file)] < 0; });
    if (!coming.empty()) {
        beginInsertRows({}, rowCount(), rowCount() + static_cast<int>(coming.size()) - 1);
        shown_.insert(shown_.end(), coming.begin(), coming.end());
        numberShown();
        endInsertRows();
    }
    rearrange(std::move(files));
}

/** Shows FILES, which are those that are shown, in their order. */
void LibraryModel::rearrange(std::vector<int> files) {
    if (files == shown_) {
        return;
    }
    emit layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList before = persistentIndexList();
    std::vector<int> filesBefore;
    for (const QModelIndex& cell : before) {
        filesBefore.push_back(fileAt(cell.row()));
    }
    shown_ = std::move(files);
    numberShown();
    QModelIndexList after;
    for (qsizetype i = 0; i < before.size(); ++i) {
        const int file = filesBefore[static_cast<std::size_t>(i)];
        after += index(shownRowOf_[static_cast<std::size_t>(file)], before[i].column());
    }
    changePersistentIndexList(before, after);
    emit layoutChanged({}, VerticalSortHint);
}

void LibraryModel::numberShown() {
    std::fill(shownRowOf_.begin(), shownRowOf_.end(), -1);
    for (std::size_t i = 0; i < shown_.size(); ++i) {
        shownRowOf_[static_cast<std::size_t>(shown_[i])] = static_cast<int>(i);
    }
}

} // namespace velmora
