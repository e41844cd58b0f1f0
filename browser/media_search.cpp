#include "media_search.h"

#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/log.h"

#include <cstdio>
#include <utility>

namespace velmora {
namespace {

/** Passes on what a walk meets: to the log and to the main thread. */
class WalkReporter : public FolderWalkListener {
public:
    WalkReporter(const std::atomic<bool>& running, std::atomic<int>& unreadFolders, const PortSender& port)
        : running_(running), unreadFolders_(unreadFolders), port_(port) {}

    bool searchRunning() const override { return running_; }

    void enteringFolder(const QByteArray& folder) override {
        appLog(QStringLiteral("search: entering ") + pathFromBytes(folder) + QLatin1Char('\n'));
        send_port_message_simple(port_, SearchMessage::EnteringFolder, folder, QDeadlineTimer::Forever);
    }

    void foundFile(const QByteArray& path) override {
        send_port_message_simple(port_, SearchMessage::FoundFile, path, QDeadlineTimer::Forever);
    }

    void unreadableFolder(const QByteArray& /*folder*/) override { ++unreadFolders_; }

private:
    const std::atomic<bool>& running_;
    std::atomic<int>& unreadFolders_;
    const PortSender& port_;
};

} // namespace

void send_port_message_simple(const PortSender& port, SearchMessage id, const std::optional<QByteArray>& text,
                              QDeadlineTimer deadline) {
    PortMessage message;
    message.id = static_cast<int>(id);
    if (text) {
        QByteArray component = *text;
        component.append('\0');
        message.components.append(component);
    }
    static_cast<void>(port.send(std::move(message), deadline));
}

QString messagePath(const PortMessage& message) {
    const QByteArray component = message.components.value(0);
    const qsizetype end = component.indexOf('\0');
    return pathFromBytes(end < 0 ? component : component.left(end));
}

MediaSearch::MediaSearch(QObject* parent) : QObject(parent) {}

MediaSearch::~MediaSearch() {
    searchRunning_ = false;
    if (worker_.joinable()) {
        worker_.join();
    }
}

void MediaSearch::queueFolders(const QStringList& folders) {
    if (folders.isEmpty()) {
        return;
    }
    addedFolders_ += folders;
    if (!foldersKeptAside_.isEmpty() || !folderQueue_.tryAppend(folders)) {
        // A worker that has looked for the last time holds the queue until its last message is handled.
        foldersKeptAside_ += folders;
        restartWanted_ = true;
        return;
    }
    if (!searchRunning_) {
        startMediaSearch();
    }
}

void MediaSearch::startMediaSearch() {
    if (searchRunning_) {
        return;
    }
    if (workerUnderWay_) {
        restartWanted_ = true;
        return;
    }
    if (worker_.joinable()) {
        // It has sent its last message and only its thread has yet to end.
        worker_.join();
    }
    mainThreadPort_ = new MessagePort(this);
    mainThreadPort_->setDelegate([this](const PortMessage& message) { handlePortMessage(message); });
    mainThreadPort_->addToMainLoop();
    searchRunning_ = true;
    summary_.filesFound = 0;
    unreadFolders_ = 0;
    emit progressAnimationChanged(true);
    workerUnderWay_ = true;
    worker_ = std::thread([this, port = mainThreadPort_->sender()] { mediaSearchThread(port); });
    emit stopEnabledChanged(true);
}

void MediaSearch::mediaSearchThread(const PortSender& port) {
    appLog(QStringLiteral("search thread started up\n"));
    while (const std::optional<QString> folder = folderQueue_.takeFirstOrHold(searchRunning_)) {
        searchFolder(*folder, port);
    }
    send_port_message_simple(port, SearchMessage::SearchDone, std::nullopt, QDeadlineTimer::Forever);
    appLog(QStringLiteral("search thread exiting\n"));
}

void MediaSearch::searchFolder(const QString& folder, const PortSender& port) {
    WalkReporter reporter(searchRunning_, unreadFolders_, port);
    velmora::searchFolder(pathBytes(folder), reporter);
}

void MediaSearch::stopScan() {
    searchRunning_ = false;
    restartWanted_ = false;
}

void MediaSearch::handlePortMessage(const PortMessage& message) {
    switch (static_cast<SearchMessage>(message.id)) {
    case SearchMessage::EnteringFolder:
        enteringFolder(messagePath(message));
        return;
    case SearchMessage::FoundFile:
        ++summary_.filesFound;
        emit fileFound(messagePath(message));
        return;
    case SearchMessage::SearchDone:
        searchDone();
        return;
    }
    appLog(QStringLiteral("Bad msg in main thread: %1\n").arg(message.id));
}

void MediaSearch::enteringFolder(const QString& folder) {
    if (addedFolders_.contains(folder) && !summary_.folders.contains(folder)) {
        summary_.folders += folder;
    }
    emit scanStatusChanged(folder);
}

void MediaSearch::searchDone() {
    if (mainThreadPort_) {
        // It is the port that calls: it may go only after that.
        mainThreadPort_->deleteLater();
        mainThreadPort_ = nullptr;
    }
    searchRunning_ = false;
    emit progressAnimationChanged(false);
    emit stopEnabledChanged(false);
    emit scanStatusChanged(localised("Search Done."));
    summary_.unreadFolders = unreadFolders_;
    emit searched(summary_);
    folderQueue_.searchDone();
    std::puts("***** GOT SEARCH DONE MESSAGE *****");
    std::fflush(stdout);

    workerUnderWay_ = false;
    startWhatWaited();
}

void MediaSearch::startWhatWaited() {
    if (!foldersKeptAside_.isEmpty() && folderQueue_.tryAppend(foldersKeptAside_)) {
        foldersKeptAside_.clear();
    }
    if (std::exchange(restartWanted_, false)) {
        startMediaSearch();
    }
}

} // namespace velmora
