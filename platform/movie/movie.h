#pragma once

#include <QImage>
#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

namespace velmora {

/** A media file opened as a movie, stopped at its first frame until somebody plays it.

   Nothing here waits for a file: open and close return at once, and what was found out arrives as one
   signal, opened or failed, from the event loop. Opening another file, or closing, lets the one before go;
   nothing is heard of it again. The file is looked at a moment after open, so that files opened in quick
   succession cost nothing but the last one. */
class Movie : public QObject {
    Q_OBJECT
public:
    /** Loads the system's movie component, which takes a moment the first time: best made before a window is
       shown. */
    explicit Movie(QObject* parent = nullptr);
    ~Movie() override;

    /** A file that is neither opened nor rejected in this time (one that ends before its first frame, say)
       has failed. 10 seconds when it is not set. Holds for the files that are opened from then
       on. Nothing in the program calls it. */
    void setDecisionTimeLimit(std::chrono::milliseconds limit) { decisionTimeLimit_ = limit; }

    /** Opens the file at PATH in place of the current one, also when it is the same. */
    void open(const QString& path);
    /** Lets the current file go. */
    void close();

    /** True from opened until the next open or close. */
    [[nodiscard]] bool isOpen() const;
    /** Whether the open movie has a video track. */
    [[nodiscard]] bool hasVideo() const;
    /** The picture now shown, in its own pixels and upright; null when there is none (yet). */
    [[nodiscard]] QImage currentFrame() const;

    /** With its sound. Where there is no sound device the movie, or the position in a song,
       moves in silence. */
    void play();
    void pause();
    [[nodiscard]] bool isPlaying() const;
    /** Milliseconds. The length of a file of sound alone is known once it has been played, and 0 before. */
    [[nodiscard]] qint64 position() const;
    [[nodiscard]] qint64 duration() const;
    void setPosition(qint64 milliseconds);

signals:
    /** The file is a movie. Its first frame comes a little later, with frameChanged. */
    void opened(bool hasVideo);
    /** The file can't be opened as a movie. */
    void failed();
    /** currentFrame has changed; also when it has become null. */
    void frameChanged();
    void positionChanged();
    void playingChanged();

private:
    class Player;

    void openNow();
    void letGo();

    QString path_;
    QTimer delay_;
    std::chrono::milliseconds decisionTimeLimit_{10000};
    Player* player_ = nullptr;
};

} // namespace velmora
