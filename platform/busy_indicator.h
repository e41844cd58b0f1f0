#pragma once

#include <QTimer>
#include <QWidget>

namespace velmora {

/** An indeterminate progress indicator: dots that turn while something runs, and nothing at rest. It keeps
   its place in the layout either way. */
class BusyIndicator : public QWidget {
    Q_OBJECT
public:
    explicit BusyIndicator(QWidget* parent = nullptr);

    void startAnimation();
    void stopAnimation();
    [[nodiscard]] bool isAnimating() const { return timer_.isActive(); }

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void advance();
    void tellState();

    QTimer timer_;
    int step_ = 0;
};

} // namespace velmora
