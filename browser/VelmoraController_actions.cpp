// What the buttons and the menu commands do.

#include "VelmoraController.h"

#include "detail/movie_preview.h"
#include "media_document.h"
#include "tag_form.h"

#include "imaging/trim_border.h"
#include "model/MediaFile.h"
#include "platform/alert.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/log.h"
#include "platform/open_panel.h"

namespace velmora {

void VelmoraController::saveTag() {
    Error error;
    if (!document_.saveMediaFile(&error)) {
        appLog(QStringLiteral("failed to save tag for some stupid reason\n"));
        return;
    }
    form_.disableSaveAndRevert();
    document_.updateChangeCount(Document::ChangeType::Cleared);
}

void VelmoraController::revertToSaved() {
    if (!document_.mediaFile()) {
        return;
    }
    table().forgetSelectedRow();
    document_.updateChangeCount(Document::ChangeType::Cleared);
    table().tableViewSelectionDidChange();
}

void VelmoraController::removeTag() {
    formNotices_.changesSettled();
    document_.updateChangeCount(Document::ChangeType::Cleared);
    form_.disableSaveAndRevert();
}

void VelmoraController::deleteCover() {
    if (!document_.mediaFile()) {
        return;
    }
    form_.deleteCover();
    if (!document_.portableTags()) {
        notices_.coverDeleted();
    }
}

void VelmoraController::deleteAllTags() {
    const MediaFile* const file = document_.mediaFile();
    if (!file) {
        return;
    }
    question_ = std::make_unique<Alert>();
    question_->setMessageText(
        localised("Do you want to delete all tags from \"%@\"?", lastPathComponent(file->path())));
    question_->setInformativeText(localised("What other programs read goes, too, and so do the changes that "
                                            "you have made here. This can't be undone."));
    question_->addButton(localised("Delete All Tags"), Qt::CTRL | Qt::Key_D);
    question_->addButton(localised("Cancel"), Qt::Key_Escape);
    question_->beginSheetModalForWindow(document_.windowForSheet(), [this, path = file->path()](int answer) {
        const MediaFile* const open = document_.mediaFile();
        if (answer == Alert::firstButtonReturn && open && open->path() == path) {
            document_.deleteAllTags(false);
        }
    });
}

void VelmoraController::addFile() {
    beginOpenPanelSheet({.title = localised("Add Files"), .allowsMultipleSelection = true},
                        document_.windowForSheet(),
                        [this](int code, const QStringList& paths) { addFileSelected(code, paths); });
}

void VelmoraController::addFileSelected(int returnCode, const QStringList& paths) {
    if (returnCode == openPanelCancelled) {
        return;
    }
    QStringList missed = paths;
    missed.removeIf([this](const QString& path) { return addMediaFile(path); });
    formNotices_.tellNotAdded(missed);
}

void VelmoraController::addFolder() {
    beginOpenPanelSheet(
        {.title = localised("Add Folders"), .choosesFolders = true, .allowsMultipleSelection = true},
        document_.windowForSheet(),
        [this](int code, const QStringList& paths) { addFolderSelected(code, paths); });
}

void VelmoraController::addFolderSelected(int returnCode, const QStringList& paths) {
    if (returnCode != openPanelCancelled) {
        search_.queueFolders(paths);
    }
}

void VelmoraController::loadCoverArt() {
    const MediaFile* const file = document_.mediaFile();
    if (!file) {
        return;
    }
    beginOpenPanelSheet({.title = localised("Load Cover Art"), .startFolder = pathFolder(file->filename())},
                        document_.windowForSheet(),
                        [this](int code, const QStringList& paths) { loadCoverArtSelected(code, paths); });
}

void VelmoraController::loadCoverArtSelected(int returnCode, const QStringList& paths) {
    if (returnCode == openPanelCancelled || paths.size() != 1) {
        return;
    }
    if (const ImageRef image = ImageRef::fromFile(paths.first())) {
        form_.changeCoverArt(image);
    }
}

void VelmoraController::grabFrame() {
    if (!document_.mediaFile() || !form_.preview().holdsMovie()) {
        return;
    }
    const QImage frame = form_.preview().currentFrame();
    if (frame.isNull()) {
        appLog(QStringLiteral("failed to get frame from movie\n"));
        return;
    }
    form_.changeCoverArt(frameForCoverArt(frame));
    form_.allowTrimming();
}

void VelmoraController::trimBorder() {
    const QImage cover = document_.mediaFile() ? form_.coverArt() : QImage();
    if (cover.isNull()) {
        return;
    }
    if (const auto trimmed = trim_border(cover)) {
        form_.changeCoverArt(*trimmed);
        form_.markChange();
    }
}

} // namespace velmora
