// The document's files with the tags that other programs read.

#include "MyDocument.h"

#include "browser/VelmoraController.h"
#include "browser/tag_form.h"
#include "model/portable_removal.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/settings.h"

namespace velmora {

namespace {

SaveObstacle obstacleOf(const PortableSaveResult& result) {
    return {result.reason,
            result.anotherPlaceHelps ? SaveObstacle::Remedy::AnotherPlace : SaveObstacle::Remedy::None};
}

} // namespace

bool MyDocument::savePortably(bool breakLinks) {
    if (!mediaFile_ || saveRun_.isRunning()) {
        return false;
    }
    if (form_) {
        form_->storeShownValues();
    }
    const PortableSaveResult result = saveRun_.run(
        mediaFile_->portableSave(breakLinks), lastPathComponent(mediaFile_->filename()), windowForSheet());
    const bool saved = result.isSaved();
    if (saved) {
        mediaFile_->settleChanges();
        updateChangeCount(ChangeType::Cleared);
    }
    emit saveEnded({saved, result, mediaFile_->filename(), obstacleOf(result)});
    return saved;
}

bool MyDocument::saveCopy(const QString& path) {
    if (!mediaFile_ || saveRun_.isRunning()) {
        return false;
    }
    if (form_) {
        form_->storeShownValues();
    }
    const PortableSaveResult result =
        saveRun_.run(mediaFile_->portableCopy(path), lastPathComponent(path), windowForSheet());
    const bool saved = result.isSaved();
    if (saved) {
        updateChangeCount(ChangeType::Cleared);
    }
    emit saveEnded({saved, result, path, obstacleOf(result)});
    return saved;
}

bool MyDocument::deleteAllTags(bool breakLinks) {
    if (!mediaFile_ || !openUrl_ || saveRun_.isRunning()) {
        return false;
    }
    const QString path = mediaFile_->path();
    const PortableSaveResult result =
        saveRun_.run(portableRemoval(path, breakLinks), lastPathComponent(path), windowForSheet());
    const bool deleted = result.isSaved();
    if (deleted) {
        reopen(*openUrl_);
    }
    emit saveEnded({deleted, result, path, obstacleOf(result), true});
    return deleted;
}

bool MyDocument::setPortableTags(bool portable) {
    if (portable == portableTags_) {
        return true;
    }
    const std::optional<QUrl> url = mediaFile_ ? openUrl_ : std::nullopt;
    const bool asks = mediaFile_ && isDocumentEdited();
    // A question that goes away without an answer leaves the file open, and nothing may be lost by that.
    if (asks && (!handleDirtySave() || mediaFile_)) {
        emit portableTagsChanged(portableTags_);
        return false;
    }
    portableTags_ = portable;
    emit portableTagsChanged(portable);
    if (url) {
        reopen(*url);
    }
    return true;
}

void MyDocument::switchPortableTags(bool portable) {
    if (setPortableTags(portable) && !portable && !rememberPortableTags(false)) {
        tell(false, localised("The settings file can't be removed."));
    }
}

} // namespace velmora
