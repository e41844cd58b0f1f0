#include "wheel_needs_focus.h"

#include <QComboBox>
#include <QEvent>

namespace velmora {

void WheelNeedsFocus::watch(QComboBox& box) {
    box.setFocusPolicy(Qt::StrongFocus);
    box.installEventFilter(this);
}

bool WheelNeedsFocus::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Wheel || static_cast<QWidget*>(watched)->hasFocus()) {
        return false;
    }
    event->ignore(); // whatever the box lies on may scroll
    return true;
}

} // namespace velmora
