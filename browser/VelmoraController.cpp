#include "VelmoraController.h"

#include "media_document.h"

#include "imaging/trim_border.h"
#include "model/MediaFile.h"
#include "platform/alert.h"
#include "platform/busy_indicator.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/log.h"
#include "platform/open_panel.h"
#include "weblookup/TagWebBrowser.h"

#include <QLabel>
#include <QPushButton>
#include <QTableView>

namespace velmora {

VelmoraController::VelmoraController(const VelmoraOutlets& outlets, MediaDocument& document, QObject* parent)
    : QObject(parent), outlets_(outlets), document_(document),
      table_(*outlets.tbl_mediaFiles, document,
             {.clearUI = [this] { clearUI(); },
              .fillUI = [this] { fillUI(); },
              .showError =
                  [this](const Error& error) { presentErrorSheet(error, document_.windowForSheet()); }}),
      form_(outlets, document),
      preview_(*outlets.view_preview, *outlets.lbl_previewFailed, *outlets.btn_captureFrame) {
    outlets_.img_coverArt->setController(this);
    connect(&form_, &TagForm::searchTextChanged, outlets_.twb_browser, &TagWebBrowser::setSearchField);
    connectSearch();
    connectButtons();
}

void VelmoraController::connectSearch() {
    connect(&search_, &MediaSearch::progressAnimationChanged, this, [this](bool animating) {
        animating ? outlets_.progress_mediaSearch->startAnimation()
                  : outlets_.progress_mediaSearch->stopAnimation();
    });
    connect(&search_, &MediaSearch::stopEnabledChanged, outlets_.btn_stop, &QWidget::setEnabled);
    connect(&search_, &MediaSearch::scanStatusChanged, outlets_.lbl_scanStatus, &QLabel::setText);
    connect(&search_, &MediaSearch::fileFound, this, &VelmoraController::addMediaFile);
}

void VelmoraController::connectButtons() {
    const auto onClick = [this](QPushButton* button, void (VelmoraController::*action)()) {
        connect(button, &QPushButton::clicked, this, action);
    };
    onClick(outlets_.btn_stop, &VelmoraController::stopScan);
    onClick(outlets_.btn_addFile, &VelmoraController::addFile);
    onClick(outlets_.btn_addFolder, &VelmoraController::addFolder);
    onClick(outlets_.btn_saveTag, &VelmoraController::saveTag);
    onClick(outlets_.btn_revertTag, &VelmoraController::revertToSaved);
    onClick(outlets_.btn_removeTag, &VelmoraController::removeTag);
    onClick(outlets_.btn_loadCoverArt, &VelmoraController::loadCoverArt);
    onClick(outlets_.btn_captureFrame, &VelmoraController::grabFrame);
    onClick(outlets_.btn_trimBorder, &VelmoraController::trimBorder);
}

void VelmoraController::awakeFromNib() {
    const QByteArray home = homeFolder();
    QStringList folders;
    for (const char* name : {"Movies", "Music", "Pictures"}) {
        folders += pathFromBytes(joinedPath(home, name));
    }
    search_.queueFolders(folders);
}

void VelmoraController::clearUI() {
    form_.clearFields();
    preview_.removeMovie();
    form_.clearCoverArt();
    preview_.reset();
    form_.disableButtons();
}

void VelmoraController::fillUI() {
    if (const MediaFile* file = document_.mediaFile()) {
        form_.show(*file);
        preview_.show(file->filename());
        form_.enableFileButtons();
    }
}

bool VelmoraController::addMediaFile(const QString& path) {
    return table_.addMediaFile(path);
}

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
    table_.forgetSelectedRow();
    document_.updateChangeCount(Document::ChangeType::Cleared);
    table_.tableViewSelectionDidChange();
}

void VelmoraController::removeTag() {
    document_.updateChangeCount(Document::ChangeType::Cleared);
    form_.disableSaveAndRevert();
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
    for (const QString& path : paths) {
        addMediaFile(path);
    }
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
    const QImage image = imageFromFile(paths.first());
    if (!image.isNull()) {
        outlets_.img_coverArt->setImage(image);
        coverArtImageChanged(this);
    }
}

void VelmoraController::grabFrame() {
    MediaFile* const file = document_.mediaFile();
    if (!file || !preview_.holdsMovie()) {
        return;
    }
    const QImage frame = preview_.currentFrame();
    if (frame.isNull()) {
        appLog(QStringLiteral("failed to get frame from movie\n"));
        return;
    }
    const QImage image = frameForCoverArt(frame);
    file->setCoverArt(ImageRef::fromQImage(image));
    outlets_.img_coverArt->setImage(image);
    form_.markChange();
    outlets_.btn_trimBorder->setEnabled(true);
}

void VelmoraController::trimBorder() {
    const QImage cover = outlets_.img_coverArt->image();
    if (!document_.mediaFile() || cover.isNull()) {
        return;
    }
    if (const auto trimmed = trim_border(cover)) {
        outlets_.img_coverArt->setImage(*trimmed);
        coverArtImageChanged(this);
        form_.markChange();
    }
}

} // namespace velmora
