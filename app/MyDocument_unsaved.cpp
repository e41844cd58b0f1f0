// Edits that a failed save would have lost, kept until the program ends.

#include "MyDocument.h"

#include "browser/VelmoraController.h"
#include "browser/tag_form.h"
#include "platform/file_path.h"

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

QString MyDocument::pathOfUnsavedEdits() const {
    return unsavedEdits_.empty() ? QString() : pathFromFileUrl(unsavedEdits_.back().url);
}

bool MyDocument::restoreUnsavedEdits(Error* error) {
    return !unsavedEdits_.empty() && restoreUnsavedEditsAt(QUrl(unsavedEdits_.back().url), error);
}

bool MyDocument::restoreUnsavedEditsAt(const QUrl& place, Error* error) {
    if (unsavedEdits_.empty()) {
        return false;
    }
    // Out of the way: what is open now may have to be kept first.
    UnsavedEdits edits = std::move(unsavedEdits_.back());
    unsavedEdits_.pop_back();
    const bool opened = readFromURL(place, QString(), error);
    if (opened) {
        mediaFile_->takeEditsOf(*edits.file);
        updateChangeCount(ChangeType::Done);
    } else {
        unsavedEdits_.push_back(std::move(edits));
    }
    emit hasUnsavedEditsChanged(hasUnsavedEdits());
    return opened;
}

bool MyDocument::takeEditsTo(const QUrl& place, Error* error) {
    if (!mediaFile_ || saveRun_.isRunning()) {
        return false;
    }
    if (form_ && portableTags_) {
        form_->storeShownValues();
    }
    // Out of the way, so that nobody asks about the changes: they go along.
    std::unique_ptr<MediaFile> edited = std::move(mediaFile_);
    const std::optional<QUrl> formerPlace = openUrl_;
    if (!readFromURL(place, QString(), error)) {
        mediaFile_ = std::move(edited);
        openUrl_ = formerPlace;
        return false;
    }
    mediaFile_->takeEditsOf(*edited);
    updateChangeCount(ChangeType::Done);
    return true;
}

} // namespace velmora
