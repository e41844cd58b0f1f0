#include "document_controller.h"

namespace velmora {

namespace {
DocumentController* sharedController = nullptr;
}

DocumentController::DocumentController() {
    if (!sharedController) {
        sharedController = this;
    }
}

DocumentController::~DocumentController() {
    if (sharedController == this) {
        sharedController = nullptr;
    }
}

DocumentController* DocumentController::shared() {
    return sharedController;
}

} // namespace velmora
