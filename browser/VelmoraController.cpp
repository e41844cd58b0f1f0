// How the parts of the window are joined, and what is shown when a file is opened or found.

#include "VelmoraController.h"

#include "detail/movie_preview.h"
#include "detail/start_folders.h"
#include "media_document.h"
#include "media_list.h"
#include "tag_form.h"

#include "model/MediaFile.h"
#include "platform/alert.h"
#include "platform/file_attributes.h"
#include "platform/file_path.h"
#include "platform/log.h"
#include "weblookup/TagWebBrowser.h"
#include "weblookup/form_fill_info.h"

#include <QStandardPaths>

namespace velmora {
namespace {

/** The desktop's folders for media, whether they are there or not. */
QStringList desktopFolders() {
    return {QStandardPaths::writableLocation(QStandardPaths::MoviesLocation),
            QStandardPaths::writableLocation(QStandardPaths::MusicLocation),
            QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)};
}

} // namespace

VelmoraController::VelmoraController(MediaList& list, TagForm& form, TagWebBrowser& browser,
                                     MediaDocument& document, QObject* parent)
    : QObject(parent), list_(list), form_(form), document_(document), notices_(document, form.notice()),
      formNotices_(document, form, form.notice()) {
    connectSearch();
    connectList();
    connectForm();
    connectPortableTags();
    connect(&form_, &TagForm::searchTextChanged, &browser, &TagWebBrowser::setSearchField);
    connect(&browser, &TagWebBrowser::formFillInfoReady, this, &VelmoraController::fillFields);
}

void VelmoraController::connectSearch() {
    connect(&search_, &MediaSearch::progressAnimationChanged, &list_, &MediaList::setSearchAnimated);
    connect(&search_, &MediaSearch::stopEnabledChanged, &list_, &MediaList::setStopEnabled);
    connect(&search_, &MediaSearch::scanStatusChanged, &list_, &MediaList::setScanStatus);
    connect(&search_, &MediaSearch::fileFound, this, &VelmoraController::addMediaFile);
}

void VelmoraController::connectList() {
    connect(&list_, &MediaList::addFileClicked, this, &VelmoraController::addFile);
    connect(&list_, &MediaList::addFolderClicked, this, &VelmoraController::addFolder);
    connect(&list_, &MediaList::stopClicked, this, &VelmoraController::stopScan);
    connect(&list_, &MediaList::formToBeCleared, this, &VelmoraController::clearUI);
    connect(&list_, &MediaList::formToBeFilled, this, &VelmoraController::fillUI);
    connect(&list_, &MediaList::openFailed, this, &VelmoraController::showOpenError);
}

void VelmoraController::connectForm() {
    connect(&form_, &TagForm::saveClicked, this, &VelmoraController::saveTag);
    connect(&form_, &TagForm::revertClicked, this, &VelmoraController::revertToSaved);
    connect(&form_, &TagForm::removeClicked, this, &VelmoraController::removeTag);
    connect(&form_, &TagForm::loadCoverArtClicked, this, &VelmoraController::loadCoverArt);
    connect(&form_, &TagForm::trimBorderClicked, this, &VelmoraController::trimBorder);
    connect(&form_.preview(), &MoviePreview::captureFrameClicked, this, &VelmoraController::grabFrame);
}

void VelmoraController::connectPortableTags() {
    connect(&document_, &MediaDocument::saveEnded, this, &VelmoraController::saveEnded);
    connect(&document_, &MediaDocument::openedAgain, this, &VelmoraController::showFileAgain);
    connect(&notices_, &PortableNotices::copyWanted, this, &VelmoraController::saveCopy);
    connect(&notices_, &PortableNotices::restoreWanted, this, &VelmoraController::restoreUnsavedEdits);
    connect(&notices_, &PortableNotices::placeWanted, this, &VelmoraController::locateFile);
    connect(&notices_, &PortableNotices::placeOfKeptWanted, this, &VelmoraController::locateKeptFile);
}

/** A save with portable tags settles the changes, whichever command began it. */
void VelmoraController::saveEnded(const SaveEnd& end) {
    if (end.portable && end.saved) {
        form_.disableSaveAndRevert();
        document_.updateChangeCount(Document::ChangeType::Cleared);
    }
}

void VelmoraController::showFileAgain() {
    clearUI();
    fillUI();
    if (document_.isDocumentEdited()) {
        form_.markChange();
    }
}

MediaTable& VelmoraController::table() {
    return list_.table();
}

/** The form and the list say which file is open, if one is. */
void VelmoraController::tellOpenFile() {
    form_.tellOpenFile();
    emit document_.openFileChanged();
    if (!document_.mediaFile()) {
        table().showNoneAsOpen();
    }
}

void VelmoraController::showOpenError(const Error& error) {
    tellOpenFile(); // what could not be opened may have taken the open file's place
    presentErrorSheet(error, document_.windowForSheet());
}

void VelmoraController::fillFields(const FormFillInfo* info) {
    form_.fillFields(info);
    if (document_.portableTags()) {
        form_.storeShownValues();
    }
}

void VelmoraController::awakeFromNib() {
    tellOpenFile();
    search_.queueFolders(startFolders(homeFolder(), desktopFolders()));
}

void VelmoraController::clearUI() {
    notices_.fileClosed();
    tellOpenFile();
    form_.clearFields();
    form_.preview().removeMovie();
    form_.clearCoverArt();
    form_.preview().reset();
    form_.disableButtons();
}

void VelmoraController::fillUI() {
    if (const MediaFile* file = document_.mediaFile()) {
        notices_.fileOpened();
        form_.showFile(*file);
        form_.preview().showMovie(file->filename());
        form_.enableFileButtons();
    }
}

bool VelmoraController::addMediaFile(const QString& path) {
    return table().addMediaFile(path);
}

void VelmoraController::addPaths(const QStringList& paths) {
    QStringList folders;
    QStringList missed;
    for (const QString& path : paths) {
        const std::optional<FileAttributes> attributes = fileAttributes(pathBytes(path));
        if (attributes && attributes->isDirectory) {
            folders += path;
        } else if (!addMediaFile(path)) {
            appLog(QStringLiteral("can't add %1\n").arg(path));
            missed += path;
        }
    }
    formNotices_.tellNotAdded(missed);
    search_.queueFolders(folders);
}

void VelmoraController::openPaths(const QStringList& paths) {
    addPaths(paths);
    if (paths.size() == 1) {
        table().selectFile(paths.first());
    }
}

} // namespace velmora
