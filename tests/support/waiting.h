#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

#include <functional>

namespace velmora::test {

/** Handles events until CONDITION holds, for at most LIMIT milliseconds. Returns whether it held. */
inline bool waitUntil(const std::function<bool()>& condition, int limit = 30000) {
    const QDeadlineTimer deadline(limit);
    while (!condition() && !deadline.hasExpired()) {
        QEventLoop loop;
        QTimer::singleShot(5, &loop, &QEventLoop::quit);
        loop.exec();
    }
    return condition();
}

/** Handles what is due now. */
inline void settle() {
    // A few passes: what is posted may post again.
    for (int pass = 0; pass < 5; ++pass) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

/** Handles events for a while. */
inline void waitFor(int milliseconds) {
    waitUntil([] { return false; }, milliseconds);
}

} // namespace velmora::test
