// Ends the program it is linked into once its window has been painted for the first time: the time that the
// process took is then the time from start to first paint.

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <unistd.h>

namespace {

class FirstPaint : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* const widget = event->type() == QEvent::Paint ? qobject_cast<QWidget*>(watched) : nullptr;
        if (widget && widget->window()->isVisible()) {
            // After the event that paints the whole window and shows it.
            QTimer::singleShot(0, [] { ::_exit(0); });
        }
        return false;
    }
};

void watchForFirstPaint() {
    QCoreApplication::instance()->installEventFilter(new FirstPaint(QCoreApplication::instance()));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchForFirstPaint)
