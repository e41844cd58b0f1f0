#pragma once

#include <QImage>
#include <QWidget>

#include <memory>

namespace Ui {
class MoviePreview;
}

namespace velmora {

class Movie;

/** Longer side of a frame taken as cover art, in points. */
inline constexpr float coverArtFrameSide = 160;

/** FRAME with all its pixels and a nominal size (device pixel ratio) whose longer side is at most 160. */
[[nodiscard]] QImage frameForCoverArt(QImage frame);

/** The form's preview: shows the open file as a movie, a while after the form was filled, or says that it
   can't. */
class MoviePreview : public QWidget {
    Q_OBJECT
public:
    explicit MoviePreview(QWidget* parent = nullptr);
    ~MoviePreview() override;

    /** Lets the movie go. */
    void removeMovie();
    /** Hides what was said of the movie and lets no frame be taken. */
    void reset();
    /** Opens the file at PATH; the view, the label and the button follow when it is known
       what the file is. */
    void showMovie(const QString& path);

    /** What is shown in the place of the picture of a file that has sound alone: its cover, or a sign for a
       null image. */
    void setCover(const QImage& cover);

    /** Whether the view holds a movie. */
    [[nodiscard]] bool holdsMovie() const;
    /** The frame that the view shows, at its own size; null when there is none. */
    [[nodiscard]] QImage currentFrame() const;

    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    /** The button that takes the frame shown. */
    void captureFrameClicked();

private:
    void makeMovie();
    void movieOpened(bool hasVideo);
    void movieFailed();

    std::unique_ptr<Ui::MoviePreview> ui_;
    std::unique_ptr<Movie> movie_; ///< made once the view has been painted, or earlier when a file is opened
};

} // namespace velmora
