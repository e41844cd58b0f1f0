// Edits that a failed save would have lost, kept until the program ends.

#include "MyDocument.h"

#include "browser/VelmoraController.h"

#include <utility>

namespace velmora {

void MyDocument::keepEdits() {
    if (!mediaFile_ || !openUrl_) {
        return;
    }
    const QString path = mediaFile_->filename();
    const QString reason = mediaFile_->whyNotSaved().reason;
    unsavedEdits_.push_back({std::move(mediaFile_), *openUrl_});
    emit hasUnsavedEditsChanged(true);
    emit editsKept(path, reason);
}

bool MyDocument::restoreUnsavedEdits(Error* error) {
    if (unsavedEdits_.empty()) {
        return false;
    }
    // Out of the way: what is open now may have to be kept first.
    UnsavedEdits edits = std::move(unsavedEdits_.back());
    unsavedEdits_.pop_back();
    const bool opened = readFromURL(edits.url, QString(), error);
    if (opened) {
        mediaFile_->takeEditsOf(*edits.file);
        updateChangeCount(ChangeType::Done);
    } else {
        unsavedEdits_.push_back(std::move(edits));
    }
    emit hasUnsavedEditsChanged(hasUnsavedEdits());
    return opened;
}

} // namespace velmora
