#include "document_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QScreen>
#include <QScrollArea>
#include <QTimer>

namespace velmora {

namespace {

/** What a window's frame may take of the screen, as far as that is known before the window is shown. */
constexpr QSize frameRoom(16, 48);
/** What is shown around a control that is scrolled into view. */
constexpr int scrollMargin = 4;

} // namespace

DocumentWindow::DocumentWindow(QWidget* parent) : QMainWindow(parent) {
    connect(qApp, &QApplication::focusChanged, this, [this] {
        // Not for the mouse: a control that moves away under a pressed button is not clicked.
        if (QGuiApplication::mouseButtons() == Qt::NoButton) {
            QTimer::singleShot(0, this, [this] { showFocus(QApplication::focusWidget()); });
        }
    });
}

void DocumentWindow::fitScreen() {
    resize(size().boundedTo(screen()->availableGeometry().size() - frameRoom));
}

void DocumentWindow::showFocus(QWidget* focused) {
    if (!focused || !isAncestorOf(focused)) {
        return;
    }
    for (QWidget* around = focused->parentWidget(); around; around = around->parentWidget()) {
        if (auto* const area = qobject_cast<QScrollArea*>(around)) {
            // The whole control, and its beginning where there is no room for all of it.
            const QRect place(focused->mapTo(area->widget(), QPoint()), focused->size());
            area->ensureVisible(place.right(), place.bottom(), scrollMargin, scrollMargin);
            area->ensureVisible(place.left(), place.top(), scrollMargin, scrollMargin);
        }
    }
}

void DocumentWindow::closeEvent(QCloseEvent* event) {
    if (!delegate_) {
        return;
    }
    if (!delegate_->windowShouldClose()) {
        event->ignore();
        return;
    }
    event->accept();
    delegate_->windowWillClose();
}

} // namespace velmora
