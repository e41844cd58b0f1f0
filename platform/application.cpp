#include "application.h"

#include <QApplication>

namespace velmora {

ApplicationTermination::ApplicationTermination(QObject* parent) : QObject(parent) {
    QApplication::setQuitOnLastWindowClosed(false);
    connect(qApp, &QGuiApplication::lastWindowClosed, this, &ApplicationTermination::lastWindowClosed);
}

void ApplicationTermination::terminate() {
    if (asking_ || terminating_) {
        return;
    }
    asking_ = true;
    const bool granted =
        !delegate_ || delegate_->applicationShouldTerminate() == ApplicationDelegate::TerminateReply::Now;
    asking_ = false;
    if (!granted) {
        return;
    }
    terminating_ = true;
    // Not quit(): that would close the windows again, and ask again.
    QCoreApplication::exit(0);
}

void ApplicationTermination::lastWindowClosed() {
    if (!delegate_ || delegate_->applicationShouldTerminateAfterLastWindowClosed()) {
        terminate();
    }
}

} // namespace velmora
