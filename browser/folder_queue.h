#pragma once

#include <QString>
#include <QStringList>

#include <atomic>
#include <optional>
#include <semaphore>

namespace velmora {

/** The folders still to be searched, first in first out, shared by the main thread and the search worker.

   The lock is handed over at the end of a search: the worker's last look at the queue and the hold of the
   lock are one step, and the main thread releases the lock only after it has noted that no search runs any
   more. So a folder is never queued in a moment in which the worker has already looked for the last time and
   a search still seems to run. */
class FolderQueue {
public:
    /** Main thread: appends FOLDERS in their order. False, having changed nothing, when the lock is not to be
       had: a worker that finishes holds it until searchDone. */
    [[nodiscard]] bool tryAppend(const QStringList& folders);

    /** Worker: takes the first folder from the queue. When there is none, or RUNNING is false, the answer is
       nothing and the lock stays held, until searchDone. */
    [[nodiscard]] std::optional<QString> takeFirstOrHold(const std::atomic<bool>& running);

    /** Main thread: releases the lock that a worker's takeFirstOrHold left held. Does nothing
       when none did. */
    void searchDone();

    /** Whether a worker has looked for the last time, and the lock waits for searchDone. Any thread. */
    [[nodiscard]] bool isHeld() const { return held_; }

    /** The folders in the queue, for a caller that knows no worker to be running. */
    [[nodiscard]] const QStringList& folders() const { return searchFolders_; }

private:
    // A permit and no mutex: one thread takes it and another one gives it back.
    std::binary_semaphore searchFoldersLock_{1};
    std::atomic<bool> held_ = false;
    QStringList searchFolders_;
};

} // namespace velmora
