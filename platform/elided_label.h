#pragma once

#include <QLabel>

namespace velmora {

/** A label of one line of plain text that shows as much of it as it has room for, the middle left out where
   it must be, and that never asks for room of its own. text() stays whole. */
class ElidedLabel : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace velmora
