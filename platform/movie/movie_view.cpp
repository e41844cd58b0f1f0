#include "movie_view.h"

#include "platform/accessibility.h"
#include "platform/alt_letters.h"
#include "platform/localisation.h"
#include "platform/symbol.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QPainter>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

namespace velmora {
namespace {

constexpr QSize preferredSize(320, 220);
constexpr QSize smallestSize(120, 100);
constexpr int stepMilliseconds = 1000;
constexpr int pageMilliseconds = 10000;

// The screen is dark in every palette, also without a picture.
constexpr QColor screenGround(0x20, 0x22, 0x26);
constexpr QColor standInSign(0x8A, 0x90, 0x98);
constexpr int standInMargin = 8;
constexpr int largestStandIn = 96;

constexpr int sideOfSign = 32;

int sliderValue(qint64 milliseconds) {
    return static_cast<int>(std::clamp<qint64>(milliseconds, 0, std::numeric_limits<int>::max()));
}

/** The symbol NAME in the colours of PALETTE's buttons' texts. */
QIcon coloured(const QString& name, const QPalette& palette) {
    QIcon icon;
    const auto add = [&](QIcon::Mode mode, QPalette::ColorGroup group) {
        icon.addPixmap(drawnSymbol(name, sideOfSign, palette.color(group, QPalette::ButtonText)), mode);
    };
    add(QIcon::Normal, QPalette::Active);
    add(QIcon::Disabled, QPalette::Disabled);
    return icon;
}

} // namespace

/** The picture alone. */
class MovieView::Screen : public QWidget {
public:
    explicit Screen(const MovieView& view) : view_(view) { setAttribute(Qt::WA_OpaquePaintEvent); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), view_.movie() ? QColor(Qt::black) : screenGround);
        const QImage frame = view_.movie() ? view_.movie()->currentFrame() : QImage();
        if (!frame.isNull()) {
            drawCentred(painter, frame, frame.size().scaled(size(), Qt::KeepAspectRatio));
        } else if (view_.movie() && view_.movie()->isOpen() && !view_.movie()->hasVideo()) {
            drawStandIn(painter);
        }
    }

private:
    void drawCentred(QPainter& painter, const QImage& image, const QSize& shownSize) const {
        QRect target({}, shownSize);
        target.moveCenter(rect().center());
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(target, image);
    }

    /** What has sound alone shows its cover, or else a note. */
    void drawStandIn(QPainter& painter) const {
        painter.fillRect(rect(), screenGround);
        const int side = qMin(width(), height());
        if (!view_.cover_.isNull()) {
            const QSize room = size() - QSize(2 * standInMargin, 2 * standInMargin);
            drawCentred(painter, view_.cover_, view_.cover_.size().scaled(room, Qt::KeepAspectRatio));
            return;
        }
        const int signSide = qMin(side / 2, largestStandIn);
        const auto pixels = static_cast<int>(signSide * devicePixelRatioF());
        drawCentred(painter, drawnSymbol(QStringLiteral("audio-x-generic"), pixels, standInSign).toImage(),
                    QSize(signSide, signSide));
    }

    const MovieView& view_;
};

MovieView::MovieView(QWidget* parent)
    : QWidget(parent), screen_(new Screen(*this)), playButton_(new QToolButton),
      positionSlider_(new QSlider(Qt::Horizontal)) {
    setAccessibleName(localised("Preview"));
    setAccessibleRole(*screen_, QAccessible::Graphic);
    screen_->setAccessibleName(localised("Preview picture"));
    screen_->setToolTip(localised("Preview of the selected file"));
    playButton_->setToolTip(localised("Play or pause the preview"));
    giveAltLetter(*playButton_, localised("Alt+W"));
    playButton_->setAutoRaise(true);
    positionSlider_->setAccessibleName(localised("Position in the preview"));
    positionSlider_->setToolTip(localised("Position in the preview"));
    positionSlider_->setSingleStep(stepMilliseconds);
    positionSlider_->setPageStep(pageMilliseconds);
    connect(playButton_, &QToolButton::clicked, this, &MovieView::togglePlaying);
    connect(positionSlider_, &QSlider::valueChanged, this, &MovieView::seek);

    auto* controls = new QHBoxLayout;
    controls->addWidget(playButton_);
    controls->addWidget(positionSlider_, 1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(screen_, 1);
    layout->addLayout(controls);
    updateControls();
}

MovieView::~MovieView() = default;

void MovieView::setMovie(Movie* movie) {
    if (movie_) {
        movie_->disconnect(this);
        movie_->disconnect(screen_);
    }
    movie_ = movie;
    if (movie_) {
        connect(movie_, &Movie::opened, this, &MovieView::updateControls);
        connect(movie_, &Movie::playingChanged, this, &MovieView::updateControls);
        connect(movie_, &Movie::positionChanged, this, &MovieView::updatePosition);
        connect(movie_, &Movie::frameChanged, screen_, qOverload<>(&QWidget::update));
        connect(movie_, &QObject::destroyed, this, &MovieView::updateControls);
    }
    updateControls();
}

void MovieView::setCover(const QImage& cover) {
    cover_ = cover;
    screen_->update();
}

QSize MovieView::sizeHint() const {
    return preferredSize;
}

QSize MovieView::minimumSizeHint() const {
    return smallestSize;
}

void MovieView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange) {
        updateControls();
    }
    QWidget::changeEvent(event);
}

void MovieView::updateControls() {
    const bool playing = movie_ && movie_->isPlaying();
    playButton_->setEnabled(movie_ && movie_->isOpen());
    playButton_->setAccessibleName(playing ? localised("Pause") : localised("Play"));
    const QString sign =
        playing ? QStringLiteral("media-playback-pause") : QStringLiteral("media-playback-start");
    playButton_->setIcon(coloured(sign, palette()));
    updatePosition();
    screen_->update();
}

void MovieView::updatePosition() {
    // The movie's own progress moves the slider; only the user's hand moves the movie.
    const QSignalBlocker blocker(positionSlider_);
    positionSlider_->setEnabled(movie_ && (movie_->hasVideo() || movie_->duration() > 0));
    positionSlider_->setRange(0, movie_ ? sliderValue(movie_->duration()) : 0);
    if (!positionSlider_->isSliderDown()) {
        positionSlider_->setValue(movie_ ? sliderValue(movie_->position()) : 0);
    }
}

void MovieView::togglePlaying() {
    if (!movie_) {
        return;
    }
    if (movie_->isPlaying()) {
        movie_->pause();
    } else {
        movie_->play();
    }
}

void MovieView::seek(int milliseconds) {
    if (movie_) {
        movie_->setPosition(milliseconds);
    }
}

} // namespace velmora
