#include "busy_indicator.h"

#include <QAccessibleWidget>
#include <QPainter>

namespace velmora {

namespace {
constexpr int dotCount = 8;
constexpr int stepMilliseconds = 90;

/** An animation that is there while it is seen to turn. */
class BusyIndicatorInterface : public QAccessibleWidget {
public:
    explicit BusyIndicatorInterface(BusyIndicator& indicator)
        : QAccessibleWidget(&indicator, QAccessible::Animation), indicator_(indicator) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.busy = indicator_.isAnimating();
        state.animated = indicator_.isAnimating();
        state.invisible = state.invisible || !indicator_.isAnimating();
        return state;
    }

private:
    BusyIndicator& indicator_;
};

QAccessibleInterface* busyIndicatorInterface(const QString& /*className*/, QObject* object) {
    auto* const indicator = qobject_cast<BusyIndicator*>(object);
    return indicator ? new BusyIndicatorInterface(*indicator) : nullptr;
}

} // namespace

BusyIndicator::BusyIndicator(QWidget* parent) : QWidget(parent) {
    QAccessible::installFactory(busyIndicatorInterface); // once, however many there are
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    timer_.setInterval(stepMilliseconds);
    connect(&timer_, &QTimer::timeout, this, &BusyIndicator::advance);
}

void BusyIndicator::startAnimation() {
    timer_.start();
    tellState();
    update();
}

void BusyIndicator::stopAnimation() {
    timer_.stop();
    tellState();
    update();
}

void BusyIndicator::tellState() {
    QAccessible::State changed;
    changed.busy = true;
    changed.invisible = true;
    QAccessibleStateChangeEvent event(this, changed);
    QAccessible::updateAccessibility(&event);
}

void BusyIndicator::advance() {
    step_ = (step_ + 1) % dotCount;
    update();
}

QSize BusyIndicator::sizeHint() const {
    const int side = fontMetrics().height() + 2;
    return {side, side};
}

void BusyIndicator::paintEvent(QPaintEvent* /*event*/) {
    if (!isAnimating()) {
        return;
    }
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const qreal side = qMin(width(), height());
    const qreal dot = side / 6;
    painter.translate(rect().toRectF().center());
    for (int i = 0; i < dotCount; ++i) {
        QColor color = palette().color(QPalette::Highlight);
        const int age = (step_ - i + dotCount) % dotCount;
        color.setAlphaF(1.0F - 0.11F * static_cast<float>(age));
        painter.setBrush(color);
        painter.save();
        painter.rotate(360.0 * i / dotCount);
        painter.drawEllipse(QPointF(0, -(side - dot) / 2), dot / 2, dot / 2);
        painter.restore();
    }
}

} // namespace velmora
