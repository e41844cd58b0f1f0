#include "folder_queue.h"

#include <chrono>

namespace velmora {
namespace {

/** Longer than a running worker ever keeps the lock, and too short to be noticed. */
constexpr std::chrono::milliseconds patience{5};

} // namespace

bool FolderQueue::tryAppend(const QStringList& folders) {
    if (!searchFoldersLock_.try_acquire_for(patience)) {
        return false;
    }
    searchFolders_ += folders;
    searchFoldersLock_.release();
    return true;
}

std::optional<QString> FolderQueue::takeFirstOrHold(const std::atomic<bool>& running) {
    searchFoldersLock_.acquire();
    if (!running || searchFolders_.isEmpty()) {
        held_ = true;
        return std::nullopt;
    }
    QString first = searchFolders_.takeFirst();
    searchFoldersLock_.release();
    return first;
}

void FolderQueue::searchDone() {
    if (held_.exchange(false)) {
        searchFoldersLock_.release();
    }
}

} // namespace velmora
