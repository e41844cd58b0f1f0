// The document's list of files in the library table.

#include "MyDocument.h"

#include "browser/VelmoraController.h"
#include "browser/media_table.h"
#include "library/library_layout.h"
#include "library/library_window.h"
#include "platform/file_path.h"
#include "platform/localisation.h"
#include "platform/settings.h"

#include <QMessageBox>

namespace velmora {

void MyDocument::showLibrary() {
    if (!library_) {
        makeLibrary();
    }
    library_->present();
}

void MyDocument::makeLibrary() {
    library_ = std::make_unique<LibraryWindow>();
    LibraryModel& files = library_->model();
    MediaTable& table = controller_->table();
    const MediaRows& listed = table.mediaFiles();
    for (std::size_t i = 0; i < listed.count(); ++i) {
        files.addFile(listed.at(i)->fullpath, listed.at(i)->rawfilesize);
    }
    connect(&table, &MediaTable::fileAdded, &files,
            [&files](const ColdataPointer& row) { files.addFile(row->fullpath, row->rawfilesize); });
    connect(&table, &MediaTable::fileRemoved, &files, &LibraryModel::removeFile);
    library_->setMayWrite([this](const QStringList& paths) { return mayWriteFiles(paths); });
    connect(library_.get(), &LibraryWindow::openRequested, this, [this, &table](const QString& path) {
        window_->raise();
        window_->activateWindow();
        table.selectFile(path);
    });
    connect(library_.get(), &LibraryWindow::removeRequested, this, &MyDocument::removeFromList);
    connect(library_.get(), &LibraryWindow::filesWritten, this, [this](const QList<WrittenFile>& written) {
        QHash<QString, QString> paths;
        for (const WrittenFile& file : written) {
            paths.insert(file.path, file.newPath);
        }
        filesWritten(paths);
    });
    if (const std::optional<WindowLayout> layout = rememberedLayout()) {
        arrangeLibrary(*library_, layout->parts);
    }
}

QString MyDocument::openPath() const {
    return mediaFile_ && openUrl_ ? pathFromFileUrl(*openUrl_) : QString();
}

bool MyDocument::closeFileForLibrary() {
    window_->raise();
    window_->activateWindow();
    // A question that goes away without an answer leaves the file open, and nothing may be lost by that.
    const bool closed = handleDirtySave() && !mediaFile_;
    library_->present(); // the question was the other window's, and took the keyboard there
    return closed;
}

bool MyDocument::mayWriteFiles(const QStringList& paths) {
    if (saveRun_.isRunning()) {
        library_->showMessage(
            localised("A file is still being saved in the main window. Try again when that is done."));
        return false;
    }
    if (!isDocumentEdited() || !paths.contains(openPath())) {
        return true;
    }
    const QUrl url = *openUrl_;
    if (!closeFileForLibrary()) {
        return false;
    }
    reopen(url);
    return true;
}

void MyDocument::filesWritten(const QHash<QString, QString>& paths) {
    controller_->table().updateFiles(paths);
    const auto path = paths.constFind(openPath());
    if (path == paths.constEnd()) {
        return;
    }
    if (!isDocumentEdited()) {
        reopen(fileUrlFromPath(*path));
    } else if (takeEditsTo(fileUrlFromPath(*path), nullptr)) {
        emit openedAgain(); // what was typed here while the table wrote goes along
    }
}

void MyDocument::removeFromList(const QStringList& paths) {
    for (const QString& path : paths) {
        const bool asks = isDocumentEdited() && openPath() == path;
        if (asks && !closeFileForLibrary()) {
            return;
        }
        controller_->table().removeFile(path);
    }
}

bool MyDocument::libraryMayClose() {
    if (!library_) {
        return true;
    }
    if (library_->isWriting()) {
        library_->cancelWriting();
        return false;
    }
    library_->takeTyped();
    if (!library_->hasEdits()) {
        return true;
    }
    showLibrary();
    QMessageBox question(QMessageBox::Question, localised("Library Table"),
                         localised("Edits in the library table are not applied yet."), QMessageBox::Cancel,
                         library_.get());
    question.setInformativeText(localised("They are lost when the program ends."));
    QAbstractButton* const drop = question.addButton(localised("Drop Them"), QMessageBox::DestructiveRole);
    question.exec();
    if (question.clickedButton() != drop) {
        return false;
    }
    library_->model().revertEdits(library_->model().rows().editedRows());
    return true;
}

} // namespace velmora
