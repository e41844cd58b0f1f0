#pragma once

#include <QObject>

class QComboBox;

namespace velmora {

/** Combo boxes follow the wheel only while they have the focus, which the wheel does not give them: scrolling
   past one must not change what it says. */
class WheelNeedsFocus : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    void watch(QComboBox& box);
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace velmora
