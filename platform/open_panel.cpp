#include "open_panel.h"

#include "file_path.h"

#include <QAbstractItemView>
#include <QFileDialog>

#include <utility>

namespace velmora {

namespace {

/** A folder dialog selects one folder only; its two views are told otherwise. */
void allowSeveralFolders(QFileDialog& dialog) {
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    for (const char* name : {"listView", "treeView"}) {
        if (auto* view = dialog.findChild<QAbstractItemView*>(QString::fromLatin1(name))) {
            view->setSelectionMode(QAbstractItemView::ExtendedSelection);
        }
    }
}

void showPanel(QFileDialog& dialog, std::function<void(int returnCode, const QStringList& paths)> didEnd) {
    dialog.setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(&dialog, &QFileDialog::finished, &dialog,
                     [&dialog, end = std::move(didEnd)](int result) {
                         const bool accepted = result == QFileDialog::Accepted;
                         end(accepted ? openPanelOk : openPanelCancelled,
                             accepted ? dialog.selectedFiles() : QStringList());
                     });
    dialog.setWindowModality(Qt::WindowModal);
    dialog.open();
}

} // namespace

void beginSavePanelSheet(const QString& title, const QString& start, QWidget* window,
                         std::function<void(int returnCode, const QStringList& paths)> didEnd) {
    auto* dialog = new QFileDialog(window, title);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setDirectory(pathFolder(start));
    dialog->selectFile(start);
    dialog->setDefaultSuffix(pathExtension(start));
    showPanel(*dialog, std::move(didEnd));
}

void beginOpenPanelSheet(const OpenPanel& panel, QWidget* window,
                         std::function<void(int returnCode, const QStringList& paths)> didEnd) {
    auto* dialog = new QFileDialog(window, panel.title);
    if (panel.choosesFolders) {
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        if (panel.allowsMultipleSelection) {
            allowSeveralFolders(*dialog);
        }
    } else {
        dialog->setFileMode(panel.allowsMultipleSelection ? QFileDialog::ExistingFiles
                                                          : QFileDialog::ExistingFile);
    }
    if (!panel.startFolder.isEmpty()) {
        dialog->setDirectory(panel.startFolder);
    }
    showPanel(*dialog, std::move(didEnd));
}

} // namespace velmora
