#include "image_file_drops.h"

#include "imaging/CoverArtView.h"
#include "imaging/image_data.h"

#include <QDropEvent>
#include <QWidget>

namespace velmora {

ImageFileDrops::ImageFileDrops(QWidget& form, CoverArtView& view) : QObject(&form), view_(view) {
    for (QWidget* control : form.findChildren<QWidget*>()) {
        if (control->acceptDrops() && control != &view) {
            control->installEventFilter(this);
        }
    }
    form.setAcceptDrops(true);
    form.installEventFilter(this);
}

bool ImageFileDrops::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        return takeFiles(static_cast<QDropEvent*>(event));
    case QEvent::DragLeave:
        if (hovering_) {
            hovering_ = false;
            return view().event(event);
        }
        return false;
    default:
        return QObject::eventFilter(watched, event);
    }
}

/** The view as the receiver of an event that is handed on. Not by way of the application: it offers what a
   widget does not take to the widgets around it, and so to this filter again. */
QObject& ImageFileDrops::view() {
    return view_;
}

/** Whether EVENT is about files, and has been dealt with. */
bool ImageFileDrops::takeFiles(QDropEvent* event) {
    if (!offersFiles(*event->mimeData())) {
        return false;
    }
    if (event->type() == QEvent::DragEnter) {
        hovering_ = offersImageFile(*event->mimeData());
    }
    if (hovering_) {
        view().event(event);
    } else {
        event->ignore();
    }
    hovering_ = hovering_ && event->type() != QEvent::Drop;
    return true;
}

} // namespace velmora
