#pragma once

#include <QAbstractButton>
#include <QMessageBox>

#include <algorithm>

namespace velmora::test {

/** Whether a button of BOX is being pressed. One that a key presses is down at once, and tells that it was
   pressed when it comes up again, a tenth of a second later. */
[[nodiscard]] inline bool hasButtonDown(const QMessageBox& box) {
    const auto buttons = box.buttons();
    return std::any_of(buttons.begin(), buttons.end(),
                       [](const QAbstractButton* button) { return button->isDown(); });
}

} // namespace velmora::test
