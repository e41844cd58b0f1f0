#include "CoverArtView.h"

#include "platform/accessibility.h"
#include "platform/localisation.h"

#include <QPainter>

namespace velmora {
namespace {

constexpr QSize preferredSize(180, 180);
constexpr QSize smallestSize(80, 80);
/** As large as the view gets on a large screen. */
constexpr QSize largestShown(1280, 1280);
constexpr qreal highlightWidth = 4.0;
constexpr qreal highlightShadow = 0.4;
constexpr qreal placeholderOpacity = 0.5;

/** COLOUR mixed with LEVEL parts of black. */
QColor shadowed(const QColor& colour, qreal level) {
    const qreal rest = 1 - level;
    return QColor::fromRgb(qRound(colour.red() * rest), qRound(colour.green() * rest),
                           qRound(colour.blue() * rest), colour.alpha());
}

/** IMAGE at SIZE. A much larger one is thinned out first: smoothing every pixel would hold up the window. */
QPixmap scaledTo(const QSize& size, const QImage& image) {
    constexpr int oversampling = 4;
    const QSize enough = size * oversampling;
    const bool isMuchLarger = image.width() > enough.width() && image.height() > enough.height();
    const QImage source = isMuchLarger ? image.scaled(enough) : image;
    return QPixmap::fromImage(source.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

QString sizeInPixels(const QSize& size) {
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

/** What an empty view says. */
QString invitation() {
    return localised("Drop an image here");
}

} // namespace

CoverArtView::CoverArtView(QWidget* parent) : QFrame(parent), decode_(this) {
    setAccessibleRole(*this, QAccessible::Graphic); // before anything that assistive technologies ask about
    setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setAccessibleName(localised("Cover art"));
    describe();
    setToolTip(localised("Cover art: drop an image here to store it"));
    makeActions();
    connect(&decode_, &BackgroundDecode::finished, this, &CoverArtView::showDecoded);
    connect(&decode_, &BackgroundDecode::gaveUp, this, &CoverArtView::giveUpShowing);
    setCover({});
}

CoverArtView::~CoverArtView() {
    setAcceptDrops(false);
}

void CoverArtView::setCover(const ImageRef& cover) {
    cover_ = cover;
    decode_.cancel();
    const std::optional<EncodedPicture> slow = cover.slowlyDecoded();
    text_ = slow ? QString() : invitation();
    shown_ = slow ? QImage() : cover.toQImage();
    if (slow) {
        decode_.start(*slow, largestShown);
    }
    scaled_ = QPixmap();
    updateActions();
    describe();
    update();
    emit imageChanged();
    emit shownImageChanged();
}

/** Says what there is to see. */
void CoverArtView::describe() {
    if (!cover_) {
        setAccessibleDescription(localised("No cover art; drop an image here"));
        return;
    }
    const std::optional<EncodedPicture> slow = cover_.slowlyDecoded();
    const QSize size = slow ? slow->header.size : shown_.size();
    setAccessibleDescription(localised("An image of %@ pixels", sizeInPixels(size)));
}

void CoverArtView::changeImage(const ImageRef& cover) {
    setCover(cover);
    emit coverArtImageChanged(cover);
}

void CoverArtView::showDecoded(const QImage& pixels) {
    shown_ = pixels;
    text_ = invitation();
    scaled_ = QPixmap();
    update();
    emit shownImageChanged();
}

void CoverArtView::giveUpShowing() {
    text_ = localised("too large to show");
    update();
    emit tooLargeToShow();
}

void CoverArtView::setFocusRingType(FocusRingType type) {
    focusRingType_ = type;
    update();
}

QSize CoverArtView::sizeHint() const {
    return preferredSize;
}

QSize CoverArtView::minimumSizeHint() const {
    return smallestSize;
}

void CoverArtView::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    QPainter painter(this);
    if (shown_.isNull()) {
        drawText(painter);
    } else {
        drawImage(painter);
    }
    if (focusRingType_ == FocusRingType::Default) {
        drawHighlight(painter);
    }
}

void CoverArtView::drawImage(QPainter& painter) {
    const QRectF area = contentsRect();
    QSizeF shown = shown_.deviceIndependentSize();
    if (shown.width() > area.width() || shown.height() > area.height()) {
        shown.scale(area.size(), Qt::KeepAspectRatio);
    }
    const qreal ratio = devicePixelRatioF();
    const QSize pixels = (shown * ratio).toSize().expandedTo(QSize(1, 1));
    if (scaled_.size() != pixels) {
        scaled_ = scaledTo(pixels, shown_);
    }
    scaled_.setDevicePixelRatio(ratio);
    QRectF target(QPointF(), QSizeF(pixels) / ratio);
    target.moveCenter(area.center());
    painter.drawPixmap(target.topLeft(), scaled_);
}

void CoverArtView::drawText(QPainter& painter) {
    // Not the palette's PlaceholderText: dark themes leave it black.
    QColor colour = palette().color(QPalette::WindowText);
    colour.setAlphaF(placeholderOpacity);
    painter.setPen(colour);
    painter.drawText(contentsRect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, text_);
}

void CoverArtView::drawHighlight(QPainter& painter) {
    // The window that a drag comes from is the active one; the frame keeps its colour all the same.
    const QColor accent = palette().color(QPalette::Active, QPalette::Highlight);
    painter.setPen(
        QPen(shadowed(accent, highlightShadow), highlightWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.setBrush(Qt::NoBrush);
    // Centred on the bounds, so that the outer half of the line is clipped.
    painter.drawRect(QRectF(rect()));
}

} // namespace velmora
