// The order in which the library table's files are shown, and how rows get there.

#include "library_model.h"

#include "background_thread.h"

#include <QLocale>

#include <algorithm>

namespace velmora {

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
