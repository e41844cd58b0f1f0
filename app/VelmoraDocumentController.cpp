#include "VelmoraDocumentController.h"

#include "platform/log.h"

namespace velmora {

void VelmoraDocumentController::reviewUnsavedDocumentsWithAlertTitle(const QString& /*title*/,
                                                                     bool /*cancellable*/,
                                                                     const DidReviewAll& didReviewAll) {
    if (didReviewAll) {
        didReviewAll(*this, true);
    }
}

bool VelmoraDocumentController::reviewUnsavedDocumentsWithAlertTitle(const QString& /*title*/,
                                                                     bool /*cancellable*/) {
    appLog(QStringLiteral("in rudwat (old)\n"));
    return true;
}

} // namespace velmora
