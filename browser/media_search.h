#pragma once

#include "browser/folder_queue.h"
#include "browser/folder_walk.h"
#include "browser/search_summary.h"
#include "platform/message_port.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

#include <atomic>
#include <optional>
#include <thread>

namespace velmora {

/** The ids of what the search worker tells the main thread. */
enum class SearchMessage : int {
    /** Carries the folder's path. */
    EnteringFolder = 100,
    /** Carries the file's path. */
    FoundFile = 101,
    /** Carries nothing; the worker's last one. */
    SearchDone = 102,
};

/** Sends message ID through PORT and waits until it is queued, until DEADLINE at most. TEXT becomes the
   message's one component, its bytes followed by a zero byte; without a text the message has no component. A
   message that could not be queued is lost: its port is gone. */
void send_port_message_simple(const PortSender& port, SearchMessage id, const std::optional<QByteArray>& text,
                              QDeadlineTimer deadline);

/** The path in the first component of MESSAGE, up to its zero byte; empty when it has no component. */
[[nodiscard]] QString messagePath(const PortMessage& message);

/** The search for media files: a queue of folders, and one worker thread at a time that walks them and sends
   what it meets to the main thread. Knows no window; the signals say what a window should show.

    | state     | searchRunning | worker                                                     |
    | idle      | false         | none                                                       |
    | running   | true          | walks                                                      |
    | stopping  | false         | finishes its entry and unwinds                             |
    | finishing | either        | holds the folder queue's lock, its last message is on its way |

   A stopped search leaves the folders it did not come to in the queue, where the next search finds them
   first. Destroying the object stops the worker and waits for it, without the help of the event loop. */
class MediaSearch : public QObject {
    Q_OBJECT
public:
    explicit MediaSearch(QObject* parent = nullptr);
    ~MediaSearch() override;

    /** Queues FOLDERS behind those that wait already, and sees to it that they will be searched: by the
       search that runs, or else by a new one. Never waits for a worker. No folders: nothing happens. */
    void queueFolders(const QStringList& folders);

    /** Starts a search, also with an empty queue; nothing while one runs. While a stopped worker unwinds, the
       new search begins when that has reported itself done. */
    void startMediaSearch();

    /** Ends a running search: the worker looks at the flag before each entry and reports itself done as
       always. A search that waits for a stopped worker to unwind does not begin. */
    void stopScan();

    /** Acts on one message of the worker, or logs one with an unknown id. Called by the port on the main
       thread. */
    void handlePortMessage(const PortMessage& message);

    /** Whether a search is under way that was not stopped. Nothing in the program calls it. */
    [[nodiscard]] bool isSearchRunning() const { return searchRunning_; }
    /** The port that the worker's messages come through; null while no search is under way. Nothing in the
       program calls it. */
    [[nodiscard]] const MessagePort* mainThreadPort() const { return mainThreadPort_; }
    /** Whether the worker has looked at the queue for the last time: all that it found has been
       sent, and its last message is sent or about to be. Nothing in the program asks; it is the
       event that tests wait for. */
    [[nodiscard]] bool hasWorkerLooked() const { return folderQueue_.isHeld(); }
    /** The folders still to be searched; only while no worker is under way. Nothing in the program
       calls it. */
    [[nodiscard]] QStringList searchFolders() const { return folderQueue_.folders() + foldersKeptAside_; }

signals:
    /** The progress indicator starts or stops. */
    void progressAnimationChanged(bool animating);
    /** Whether the stop button can be pressed. */
    void stopEnabledChanged(bool enabled);
    /** The folder being searched, and at the end the word that the search is done. */
    void scanStatusChanged(const QString& text);
    void fileFound(const QString& path);
    /** The search is done; after the word of that. */
    void searched(const velmora::SearchSummary& summary);

private:
    void mediaSearchThread(const PortSender& port);
    void searchFolder(const QString& folder, const PortSender& port);
    void enteringFolder(const QString& folder);
    void searchDone();
    void startWhatWaited();

    /** Written by the main thread only. The worker reads it without a lock; a late look costs one entry. */
    std::atomic<bool> searchRunning_ = false;
    QPointer<MessagePort> mainThreadPort_;
    FolderQueue folderQueue_;
    QStringList addedFolders_; ///< all since the start
    SearchSummary summary_;
    /** Counted by the worker, and looked at when it is done. */
    std::atomic<int> unreadFolders_ = 0;

    std::thread worker_;
    /** From a worker's start until its last message was handled; outlasts searchRunning_ while the worker
       unwinds. */
    bool workerUnderWay_ = false;
    bool restartWanted_ = false;
    /** Folders that came while a finishing worker held the queue. */
    QStringList foldersKeptAside_;
};

} // namespace velmora
