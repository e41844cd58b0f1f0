#include "input_block.h"

#include <QApplication>
#include <QEvent>

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

} // namespace

InputBlock::InputBlock() {
    QCoreApplication::instance()->installEventFilter(this);
}

bool InputBlock::eventFilter(QObject* receiver, QEvent* event) {
    if (isInput(event->type()) && QApplication::activeModalWidget() == nullptr) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(receiver, event);
}

} // namespace velmora
