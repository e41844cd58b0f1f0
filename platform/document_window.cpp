#include "document_window.h"

#include <QCloseEvent>

namespace velmora {

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
