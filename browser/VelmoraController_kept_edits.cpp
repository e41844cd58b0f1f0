// Edits that could not be saved: put back into the form where their file was, or where the user finds it now,
// and saved into a copy.

#include "VelmoraController.h"

#include "media_document.h"
#include "media_list.h"
#include "tag_form.h"

#include "model/MediaFile.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/open_panel.h"

#include <algorithm>

namespace velmora {

namespace {

/** PATH's folder, or the first one above it that is still there. */
QString folderThatIsThere(const QString& path) {
    QString folder = pathFolder(path);
    while (!folder.isEmpty() && folder != u"/" && !fileExists(folder)) {
        folder = pathFolder(folder);
    }
    return folder;
}

} // namespace

void VelmoraController::restoreUnsavedEdits() {
    Error error;
    if (document_.restoreUnsavedEdits(&error)) {
        showRestoredEdits();
    } else if (!error.domain.isEmpty()) {
        showOpenError(error);
        const QString path = pathFromFileUrl(error.userInfo.value(NSURLErrorKey).toUrl());
        if (!fileExists(path)) {
            notices_.editsKept(path, localised("It is not there any more"));
        }
    }
}

/** Their file stands in the list again if it was taken off: what is open can be gone back to. */
void VelmoraController::showRestoredEdits() {
    const QString path = document_.mediaFile()->path();
    if (!isListed(path)) {
        addMediaFile(path);
    }
    clearUI();
    fillUI();
    form_.markChange();
    table().showAsOpen(path);
    notices_.editsRestored();
}

void VelmoraController::saveCopy() {
    if (const MediaFile* const file = document_.mediaFile()) {
        askForCopyPlace(file->path());
    }
}

void VelmoraController::askForCopyPlace(const QString& start) {
    beginSavePanelSheet(localised("Save as a Copy"), start, document_.windowForSheet(),
                        [this](int code, const QStringList& paths) { copyPlaceSelected(code, paths); });
}

void VelmoraController::copyPlaceSelected(int returnCode, const QStringList& paths) {
    const MediaFile* const file = document_.mediaFile();
    if (returnCode == openPanelCancelled || paths.size() != 1 || !file) {
        return;
    }
    const QString extension = u'.' + pathExtension(file->path());
    const QString copy =
        paths.first().endsWith(extension, Qt::CaseInsensitive) ? paths.first() : paths.first() + extension;
    if (copy != paths.first() && fileExists(copy)) {
        askForCopyPlace(copy); // whether that may be replaced, nobody has asked yet
        return;
    }
    if (document_.saveCopy(copy) && document_.readFromURL(fileUrlFromPath(copy), QString(), nullptr)) {
        addMediaFile(copy);
        clearUI();
        fillUI();
        table().showAsOpen(copy);
    }
}

void VelmoraController::locateFile() {
    if (const MediaFile* const file = document_.mediaFile()) {
        askForPlace(file->path(), &MediaDocument::takeEditsTo);
    }
}

void VelmoraController::locateKeptFile() {
    askForPlace(document_.pathOfUnsavedEdits(), &MediaDocument::restoreUnsavedEditsAt);
}

void VelmoraController::askForPlace(const QString& former, OpenWithEdits open) {
    beginOpenPanelSheet({.title = localised("Locate \"%@\"", lastPathComponent(former)),
                         .startFolder = folderThatIsThere(former)},
                        document_.windowForSheet(), [this, open](int code, const QStringList& paths) {
                            if (code == openPanelOk && paths.size() == 1) {
                                openWithEdits(paths.first(), open);
                            }
                        });
}

void VelmoraController::openWithEdits(const QString& path, OpenWithEdits open) {
    Error error;
    if (!(document_.*open)(fileUrlFromPath(path), &error)) {
        if (!error.domain.isEmpty()) {
            showOpenError(error);
        }
        return;
    }
    showRestoredEdits();
}

bool VelmoraController::isListed(const QString& path) {
    const MediaRows& rows = table().mediaFiles();
    for (std::size_t row = 0; row < rows.count(); ++row) {
        if (rows.at(row)->fullpath == path) {
            return true;
        }
    }
    return false;
}

} // namespace velmora
