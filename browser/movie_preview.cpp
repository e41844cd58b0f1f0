#include "movie_preview.h"

#include "platform/log.h"
#include "platform/movie/movie_view.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

namespace velmora {

QImage frameForCoverArt(QImage frame) {
    const auto width = static_cast<float>(frame.width());
    const auto height = static_cast<float>(frame.height());
    const float longer = width >= height ? width : height;
    // The ratio sets the nominal size of both sides at once and leaves the pixels alone.
    frame.setDevicePixelRatio(longer > coverArtFrameSide ? longer / coverArtFrameSide : 1);
    return frame;
}

MoviePreview::MoviePreview(MovieView& view, QLabel& failedLabel, QPushButton& captureButton, QObject* parent)
    : QObject(parent), view_(view), failedLabel_(failedLabel), captureButton_(captureButton) {
    view_.installEventFilter(this);
}

bool MoviePreview::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        // The multimedia component takes longer to load than all the rest of a start: the window is shown
        // first.
        view_.removeEventFilter(this);
        QTimer::singleShot(0, this, &MoviePreview::makeMovie);
    }
    return QObject::eventFilter(watched, event);
}

void MoviePreview::makeMovie() {
    if (!movie_) {
        movie_ = std::make_unique<Movie>();
        connect(movie_.get(), &Movie::opened, this, &MoviePreview::movieOpened);
        connect(movie_.get(), &Movie::failed, this, &MoviePreview::movieFailed);
    }
}

void MoviePreview::removeMovie() {
    if (movie_) {
        movie_->close();
    }
    view_.setMovie(nullptr);
}

void MoviePreview::reset() {
    failedLabel_.hide();
    captureButton_.setEnabled(false);
}

void MoviePreview::show(const QString& path) {
    appLog(QStringLiteral("attempting to create movie from file '") + path + QStringLiteral("'\n"));
    makeMovie();
    movie_->open(path);
}

bool MoviePreview::holdsMovie() const {
    return view_.movie() != nullptr;
}

QImage MoviePreview::currentFrame() const {
    return view_.movie() ? view_.movie()->currentFrame() : QImage();
}

void MoviePreview::movieOpened(bool hasVideo) {
    appLog(QStringLiteral("got movie\n"));
    captureButton_.setEnabled(hasVideo);
    view_.setMovie(movie_.get());
}

void MoviePreview::movieFailed() {
    failedLabel_.show();
}

} // namespace velmora
