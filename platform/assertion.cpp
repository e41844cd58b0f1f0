#include "assertion.h"

#include "log.h"

#include <cstdlib>
#include <utility>

namespace velmora {
namespace {

void logAndAbort(const AssertionFailure& failure) {
    appLog(QStringLiteral("*** Assertion failure in %1, line %2: %3\n")
               .arg(failure.source, QString::number(failure.line), failure.description));
    std::abort();
}

AssertionHandler& currentHandler() {
    static AssertionHandler handler = logAndAbort;
    return handler;
}

} // namespace

void assertionFailed(const AssertionFailure& failure) {
    // A copy: the handler may replace itself.
    const AssertionHandler handler = currentHandler();
    handler(failure);
}

AssertionHandler setAssertionHandler(AssertionHandler handler) {
    if (!handler) {
        handler = logAndAbort;
    }
    return std::exchange(currentHandler(), std::move(handler));
}

} // namespace velmora
