#pragma once

#include "platform/document_controller.h"

namespace velmora {

/** Switches off the review of unsaved documents that ends an application: there is one document, and it asks
   its own question. */
class VelmoraDocumentController : public DocumentController {
public:
    void reviewUnsavedDocumentsWithAlertTitle(const QString& title, bool cancellable,
                                              const DidReviewAll& didReviewAll) override;
    [[nodiscard]] bool reviewUnsavedDocumentsWithAlertTitle(const QString& title, bool cancellable) override;
};

} // namespace velmora
