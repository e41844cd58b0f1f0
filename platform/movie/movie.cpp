#include "movie.h"

#include "platform/file_path.h"

#include <QAudioDevice>
#include <QAudioOutput>
#include <QMediaDevices>
#include <QMediaPlayer>
#include <QVideoFrame>
#include <QVideoSink>

#include <chrono>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace velmora {
namespace {

/** Longer than the pause between two rows when an arrow key is held down, shorter than a user's patience. */
constexpr std::chrono::milliseconds openDelay(150);

/** An open regular file. Pipes and devices, which could block for ever, are not opened. */
class RegularFile {
public:
    explicit RegularFile(const QString& path)
        : descriptor_(::open(pathBytes(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)) {
        struct stat status {};
        isRegular_ = descriptor_ >= 0 && ::fstat(descriptor_, &status) == 0 && S_ISREG(status.st_mode);
    }
    ~RegularFile() {
        if (descriptor_ >= 0) {
            ::close(descriptor_);
        }
    }
    RegularFile(const RegularFile&) = delete;
    RegularFile& operator=(const RegularFile&) = delete;

    [[nodiscard]] bool isOpen() const { return isRegular_; }

    /** An address for the file while this object lives. The player reads addresses as UTF-8: a path of other
       bytes goes by the open file's number instead. */
    [[nodiscard]] QUrl url(const QString& path) const {
        const bool isUtf8 = path.toUtf8() == pathBytes(path);
        return isUtf8 ? fileUrlFromPath(path)
                      : QUrl(QStringLiteral("file:///proc/self/fd/%1").arg(descriptor_));
    }

private:
    int descriptor_;
    bool isRegular_;
};

} // namespace

/** One file in the system's media player. Each file gets a player of its own, so that a late word about a
   file that was let go can't be taken for one about the file that followed. */
class Movie::Player : public QObject {
public:
    Player(Movie& movie, const QString& path) : movie_(movie), file_(path), address_(file_.url(path)) {
        player_.setVideoSink(&sink_);
        deadline_.setSingleShot(true);
        connect(&deadline_, &QTimer::timeout, this, &Player::fail);
        connect(&player_, &QMediaPlayer::mediaStatusChanged, this, &Player::statusChanged);
        connect(&player_, &QMediaPlayer::errorOccurred, this, &Player::errorOccurred);
        connect(&player_, &QMediaPlayer::positionChanged, &movie_, &Movie::positionChanged);
        connect(&player_, &QMediaPlayer::durationChanged, &movie_, &Movie::positionChanged);
        connect(&player_, &QMediaPlayer::playbackStateChanged, &movie_, &Movie::playingChanged);
        connect(&sink_, &QVideoSink::videoFrameChanged, &movie_, &Movie::frameChanged);
    }

    void load() {
        if (!file_.isOpen()) {
            fail();
            return;
        }
        deadline_.start(movie_.decisionTimeLimit_);
        player_.setSource(address_);
    }

    /** Nothing is heard of the file any more; the object goes as soon as none of its own calls is running. */
    void letGo() {
        player_.disconnect(this);
        player_.disconnect(&movie_);
        sink_.disconnect(&movie_);
        deadline_.stop();
        player_.setSource(QUrl());
        deleteLater();
    }

    [[nodiscard]] bool isOpen() const { return outcome_ == Outcome::Opened; }
    [[nodiscard]] bool hasVideo() const { return hasVideo_; }
    [[nodiscard]] QImage frame() const { return sink_.videoFrame().toImage(); }
    [[nodiscard]] QMediaPlayer& media() { return player_; }

    void play() {
        if (!player_.audioOutput()) {
            connectSound();
        }
        player_.play();
    }

private:
    enum class Outcome { Undecided, Opened, Failed };

    void statusChanged(QMediaPlayer::MediaStatus status) {
        if (status == QMediaPlayer::LoadedMedia) {
            succeed();
        } else if (status == QMediaPlayer::InvalidMedia) {
            errorOccurred();
        }
    }

    /** Sound is connected when somebody wants to hear it: to choose a file opens no device. */
    void connectSound() {
        if (!hasVideo_) {
            // What stands in for a missing sound device keeps the time. The player has given the file up by
            // now, for want of an output, and begins anew.
            player_.setAudioOutput(new QAudioOutput(this));
            player_.setSource(QUrl());
            player_.setSource(address_);
        } else if (!QMediaDevices::defaultAudioOutput().isNull()) {
            // A film plays in silence on a machine without a sound device: a sound output that can't be
            // opened would end it.
            player_.setAudioOutput(new QAudioOutput(this));
        }
    }

    /** A file of sound alone always ends in an error, because its track is connected to no output, and now
       and then the error is heard of before the success. A file that can't be opened never gets as far as to
       have a track. */
    void errorOccurred() {
        if (player_.hasAudio() && !player_.hasVideo()) {
            succeed();
        } else {
            fail();
        }
    }

    // The first event that decides counts; whatever the player says later changes nothing.

    void succeed() {
        if (outcome_ != Outcome::Undecided) {
            return;
        }
        outcome_ = Outcome::Opened;
        deadline_.stop();
        hasVideo_ = player_.hasVideo();
        if (hasVideo_) {
            player_.pause(); // a movie that neither plays nor pauses has no frame
        }
        emit movie_.opened(hasVideo_);
    }

    void fail() {
        if (outcome_ == Outcome::Undecided) {
            outcome_ = Outcome::Failed;
            deadline_.stop();
            emit movie_.failed();
        }
    }

    Movie& movie_;
    RegularFile file_;
    QUrl address_;
    QTimer deadline_;
    QVideoSink sink_;
    QMediaPlayer player_;
    Outcome outcome_ = Outcome::Undecided;
    bool hasVideo_ = false;
};

Movie::Movie(QObject* parent) : QObject(parent) {
    // The first player of a process loads the component, which can take longer than an event loop should
    // wait.
    const QMediaPlayer first;
    delay_.setSingleShot(true);
    delay_.setInterval(openDelay);
    connect(&delay_, &QTimer::timeout, this, &Movie::openNow);
}

Movie::~Movie() {
    letGo();
}

void Movie::open(const QString& path) {
    close();
    path_ = path;
    delay_.start();
}

void Movie::close() {
    delay_.stop();
    if (player_) {
        letGo();
        emit frameChanged();
    }
}

void Movie::openNow() {
    player_ = new Player(*this, path_);
    player_->load();
}

void Movie::letGo() {
    if (Player* player = std::exchange(player_, nullptr)) {
        player->letGo();
    }
}

bool Movie::isOpen() const {
    return player_ && player_->isOpen();
}

bool Movie::hasVideo() const {
    return isOpen() && player_->hasVideo();
}

QImage Movie::currentFrame() const {
    return hasVideo() ? player_->frame() : QImage();
}

void Movie::play() {
    if (isOpen()) {
        player_->play();
    }
}

void Movie::pause() {
    if (isOpen()) {
        player_->media().pause();
    }
}

bool Movie::isPlaying() const {
    return isOpen() && player_->media().playbackState() == QMediaPlayer::PlayingState;
}

qint64 Movie::position() const {
    return isOpen() ? player_->media().position() : 0;
}

qint64 Movie::duration() const {
    return isOpen() ? player_->media().duration() : 0;
}

void Movie::setPosition(qint64 milliseconds) {
    if (isOpen()) {
        player_->media().setPosition(milliseconds);
    }
}

} // namespace velmora
