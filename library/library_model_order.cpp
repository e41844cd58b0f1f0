// The order in which the library table's files are shown, and how rows get there.

#include "library_model.h"

#include "detail/background_thread.h"

#include <QDeadlineTimer>
#include <QLocale>

#include <algorithm>

namespace velmora {

namespace {

/** Texts are folded for so long between two turns of the event loop. */
constexpr std::chrono::milliseconds foldingTime{10};
/** A range of rows that goes takes a fraction of a millisecond where there are many rows. */
constexpr std::size_t mostRanges = 100;

} // namespace

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
    emit contentsChanged(); // others may pass the filter now
    if (version == version_) {
        emit ordered();
    } else {
        orderLater();
    }
}

bool LibraryModel::passes(int file) {
    return filter_.isEmpty() || filter_.matches(rows_.filterText(file));
}

/** Those of order_ that pass. Some texts have to be folded first; where there are too many, filterRest() goes
    on. */
std::vector<int> LibraryModel::filtered() {
    const QDeadlineTimer end(foldingTime);
    std::vector<int> files;
    unfiltered_.clear();
    for (const int file : order_) {
        if (!filter_.isEmpty() && !rows_.isFolded(file) && end.hasExpired()) {
            unfiltered_.push_back(file);
        } else if (passes(file)) {
            files.push_back(file);
        }
    }
    if (!unfiltered_.empty()) {
        filterTimer_.start();
    }
    return files;
}

/** Looks at some of the files that the filter has not looked at. Those that pass are shown at the end, as new
    ones are. */
void LibraryModel::filterRest() {
    const QDeadlineTimer end(foldingTime);
    std::vector<int> files = shown_;
    while (!unfiltered_.empty() && !end.hasExpired()) {
        const int file = unfiltered_.back();
        unfiltered_.pop_back();
        if (shownRowOf_[static_cast<std::size_t>(file)] < 0 && passes(file)) {
            files.push_back(file);
        }
    }
    show(std::move(files));
    if (!unfiltered_.empty()) {
        filterTimer_.start();
    }
    orderLater();
    emit contentsChanged();
}

void LibraryModel::finishFiltering() {
    showAdded();
    if (unfiltered_.empty()) {
        return;
    }
    for (const int file : order_) {
        static_cast<void>(rows_.filterText(file)); // folded now, filtered() leaves none out
    }
    filterTimer_.stop();
    show(filtered());
    emit contentsChanged();
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

/** Shows those files no longer. Neighbours of theirs become the views' current cells, unless they stand in
    very many places. */
void LibraryModel::hide(const std::function<bool(int file)>& isGoing) {
    std::vector<std::pair<int, int>> ranges;
    for (int row = 0; row < rowCount(); ++row) {
        if (isGoing(fileAt(row)) && !ranges.empty() && ranges.back().second == row - 1) {
            ranges.back().second = row;
        } else if (isGoing(fileAt(row))) {
            ranges.emplace_back(row, row);
        }
    }
    if (ranges.size() > mostRanges) {
        std::vector<int> files = shown_;
        std::erase_if(files, isGoing);
        show(std::move(files));
        return;
    }
    for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
        beginRemoveRows({}, range->first, range->second);
        shown_.erase(shown_.begin() + range->first, shown_.begin() + range->second + 1);
        numberShown();
        endRemoveRows();
    }
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
