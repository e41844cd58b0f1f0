#include "document_window.h"

#include "modal_loop.h"

#include <QCloseEvent>

namespace velmora {

void DocumentWindow::closeEvent(QCloseEvent* event) {
    if (!delegate_) {
        return;
    }
    if (ModalLoop::depth() > 0 || !delegate_->windowShouldClose()) {
        event->ignore();
        return;
    }
    event->accept();
    delegate_->windowWillClose();
}

} // namespace velmora
