#include "movie_preview.h"

#include "ui_movie_preview.h"

#include "platform/log.h"
#include "platform/movie/movie.h"
#include "platform/symbol.h"

#include <QEvent>
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

MoviePreview::MoviePreview(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::MoviePreview>()) {
    ui_->setupUi(this);
    ui_->btn_captureFrame->setIcon(symbol(QStringLiteral("camera-photo")));
    ui_->view_preview->installEventFilter(this);
    connect(ui_->btn_captureFrame, &QPushButton::clicked, this, &MoviePreview::captureFrameClicked);
}

MoviePreview::~MoviePreview() = default;

bool MoviePreview::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Paint) {
        // The multimedia component takes longer to load than all the rest of a start: the window is shown
        // first.
        ui_->view_preview->removeEventFilter(this);
        QTimer::singleShot(0, this, &MoviePreview::makeMovie);
    }
    return QWidget::eventFilter(watched, event);
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
    ui_->view_preview->setMovie(nullptr);
}

void MoviePreview::reset() {
    ui_->lbl_previewFailed->hide();
    ui_->btn_captureFrame->setEnabled(false);
}

void MoviePreview::showMovie(const QString& path) {
    appLog(QStringLiteral("attempting to create movie from file '") + path + QStringLiteral("'\n"));
    makeMovie();
    movie_->open(path);
}

void MoviePreview::setCover(const QImage& cover) {
    ui_->view_preview->setCover(cover);
}

bool MoviePreview::holdsMovie() const {
    return ui_->view_preview->movie() != nullptr;
}

QImage MoviePreview::currentFrame() const {
    return ui_->view_preview->movie() ? ui_->view_preview->movie()->currentFrame() : QImage();
}

void MoviePreview::movieOpened(bool hasVideo) {
    appLog(QStringLiteral("got movie\n"));
    ui_->btn_captureFrame->setEnabled(hasVideo);
    ui_->view_preview->setMovie(movie_.get());
}

void MoviePreview::movieFailed() {
    ui_->lbl_previewFailed->show();
}

} // namespace velmora
