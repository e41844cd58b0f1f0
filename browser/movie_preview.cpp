#include "movie_preview.h"

#include "platform/log.h"
#include "platform/movie/movie_view.h"

#include <QLabel>
#include <QPushButton>

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
    connect(&movie_, &Movie::opened, this, &MoviePreview::movieOpened);
    connect(&movie_, &Movie::failed, this, &MoviePreview::movieFailed);
}

void MoviePreview::clear() {
    movie_.close();
    view_.setMovie(nullptr);
    failedLabel_.hide();
    captureButton_.setEnabled(false);
}

void MoviePreview::show(const QString& path) {
    appLog(QStringLiteral("attempting to create movie from file '") + path + QStringLiteral("'\n"));
    movie_.open(path);
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
    view_.setMovie(&movie_);
}

void MoviePreview::movieFailed() {
    failedLabel_.show();
}

} // namespace velmora
