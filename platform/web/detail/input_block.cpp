#include "input_block.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>

namespace velmora {

namespace {

bool isInput(QEvent::Type type) {
    switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
    case QEvent::NativeGesture:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return true;
    default:
        return false;
    }
}

bool isMouse(QEvent::Type type) {
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
           type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove;
}

bool isEscape(const QEvent& event) {
    return event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

} // namespace

InputBlock::InputBlock(QAbstractButton* wayOut) : wayOut_(wayOut) {
    QCoreApplication::instance()->installEventFilter(this);
}

/** The mouse's events come to the window first, which hands them to the widget under the mouse. */
bool InputBlock::isForWayOut(const QObject* receiver, const QEvent& event) const {
    if (!wayOut_) {
        return false;
    }
    if (receiver->isWidgetType()) {
        return receiver == wayOut_ && (isMouse(event.type()) || event.type() == QEvent::Shortcut);
    }
    return isMouse(event.type()) &&
           QApplication::widgetAt(static_cast<const QMouseEvent&>(event).globalPosition().toPoint()) ==
               wayOut_;
}

bool InputBlock::eventFilter(QObject* receiver, QEvent* event) {
    if (isInput(event->type()) && !QApplication::activeModalWidget() && !isForWayOut(receiver, *event)) {
        event->ignore();
        if (wayOut_ && isEscape(*event)) {
            wayOut_->click();
        }
        return true;
    }
    return QObject::eventFilter(receiver, event);
}

} // namespace velmora
