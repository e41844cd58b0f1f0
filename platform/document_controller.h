#pragma once

#include <functional>

#include <QString>

namespace velmora {

/** What the application does with all its documents at once. There is one object of this class, or of a class
   derived from it; the first one made is the shared one. */
class DocumentController {
public:
    /** Told once a review has ended: the controller and whether all documents were reviewed. */
    using DidReviewAll = std::function<void(DocumentController&, bool didReviewAll)>;

    DocumentController();
    virtual ~DocumentController();
    DocumentController(const DocumentController&) = delete;
    DocumentController& operator=(const DocumentController&) = delete;

    /** The application's one controller; null before it is made. Nothing in the program calls it. */
    [[nodiscard]] static DocumentController* shared();

    /** Asks about every document with unsaved changes and then calls DID_REVIEW_ALL (may be empty). */
    virtual void reviewUnsavedDocumentsWithAlertTitle(const QString& title, bool cancellable,
                                                      const DidReviewAll& didReviewAll) = 0;
    /** The older form of the same request: whether all documents may close. */
    [[nodiscard]] virtual bool reviewUnsavedDocumentsWithAlertTitle(const QString& title,
                                                                    bool cancellable) = 0;
};

} // namespace velmora
