#pragma once

#include "movie.h"

#include <QImage>
#include <QPointer>
#include <QWidget>

class QSlider;
class QToolButton;

namespace velmora {

/** Shows a movie's picture, its proportions kept, above a play button and a position slider. */
class MovieView : public QWidget {
    Q_OBJECT
public:
    explicit MovieView(QWidget* parent = nullptr);
    ~MovieView() override;

    /** Shows MOVIE, which stays its owner's; null shows none. */
    void setMovie(Movie* movie);
    /** The movie shown; null when there is none, or when it has been destroyed. */
    [[nodiscard]] Movie* movie() const { return movie_; }

    /** What is shown in the place of the picture while the movie has sound alone: COVER, or a sign for a null
       image. */
    void setCover(const QImage& cover);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    class Screen;

    void updateControls();
    void updatePosition();
    void togglePlaying();
    void seek(int milliseconds);

    QPointer<Movie> movie_;
    QImage cover_;
    Screen* screen_;
    QToolButton* playButton_;
    QSlider* positionSlider_;
};

} // namespace velmora
