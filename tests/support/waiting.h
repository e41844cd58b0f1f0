#pragma once

#include <QDeadlineTimer>
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

/** Handles events for a while. */
inline void waitFor(int milliseconds) {
    waitUntil([] { return false; }, milliseconds);
}

} // namespace velmora::test
