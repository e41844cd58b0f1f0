#pragma once

#include <QApplication>
#include <QDragEnterEvent>
#include <QDragLeaveEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QWidget>
#include <QWindow>

namespace velmora::test {

/** A drag from another program over WIDGET, which must be shown: the events go to its window, as the system
   sends them, and find the widget under the pointer from there. */
class DragSession {
public:
    DragSession(QWidget& widget, const QMimeData& data,
                Qt::DropActions actions = Qt::CopyAction | Qt::MoveAction,
                Qt::DropAction proposed = Qt::MoveAction)
        : widget_(widget), data_(data), actions_(actions), proposed_(proposed) {}

    /** Whether the drag is welcome; ACTION then has what a drop would do. */
    bool enter() {
        QDragEnterEvent event(place().toPoint(), actions_, &data_, Qt::LeftButton, Qt::NoModifier);
        event.setDropAction(proposed_);
        QApplication::sendEvent(window(), &event);
        action_ = event.dropAction();
        return event.isAccepted();
    }

    bool move() {
        QDragMoveEvent event(place().toPoint() + QPoint(3, 3), actions_, &data_, Qt::LeftButton,
                             Qt::NoModifier);
        event.setDropAction(proposed_);
        QApplication::sendEvent(window(), &event);
        action_ = event.dropAction();
        return event.isAccepted();
    }

    void leave() {
        QDragLeaveEvent event;
        QApplication::sendEvent(window(), &event);
    }

    bool drop() {
        QDropEvent event(place(), actions_, &data_, Qt::LeftButton, Qt::NoModifier);
        event.setDropAction(proposed_);
        QApplication::sendEvent(window(), &event);
        action_ = event.dropAction();
        return event.isAccepted();
    }

    [[nodiscard]] Qt::DropAction action() const { return action_; }

private:
    [[nodiscard]] QWindow* window() const { return widget_.window()->windowHandle(); }
    [[nodiscard]] QPointF place() const { return widget_.mapTo(widget_.window(), widget_.rect().center()); }

    QWidget& widget_;
    const QMimeData& data_;
    Qt::DropActions actions_;
    Qt::DropAction proposed_;
    Qt::DropAction action_ = Qt::IgnoreAction;
};

} // namespace velmora::test
