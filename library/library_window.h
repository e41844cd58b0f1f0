#pragma once

#include "apply_dialog.h"
#include "apply_run.h"
#include "cover_thumbnails.h"
#include "library_model.h"
#include "library_view.h"

#include "platform/alert.h"
#include "platform/document_window.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace velmora {

class EditPanel;
struct ExportTable;

/** A file that was written, and where it was and is. */
struct WrittenFile {
    QString path;
    QString newPath;
};

/** The library table's window: all listed files with their tags, a filter, and the fields of those
   that are selected. Edits are kept until they are applied or reverted. It hides when it is closed,
   and stays what it is. */
class LibraryWindow : public DocumentWindow {
    Q_OBJECT
public:
    explicit LibraryWindow(QWidget* parent = nullptr);

    [[nodiscard]] LibraryModel& model() { return model_; }
    [[nodiscard]] LibraryView& view() { return *view_; }
    [[nodiscard]] EditPanel& panel() { return *panel_; }

    /** Shows the window in front of others, with the keyboard in the table. */
    void present();

    /** Asked before files are written; false: they are not to be. */
    void setMayWrite(std::function<bool(const QStringList& paths)> mayWrite) {
        mayWrite_ = std::move(mayWrite);
    }
    /** Says TEXT for some seconds at the window's foot. */
    void showMessage(const QString& text);
    /** What is being typed, in the panel or in a cell, becomes an edit now. */
    void takeTyped();
    /** Whether there are edits that are in no file. */
    [[nodiscard]] bool hasEdits() const { return model_.rows().editedCount() > 0; }
    /** Whether files are being written. */
    [[nodiscard]] bool isWriting() const { return dialog_ && dialog_->isRunning(); }
    /** What is being written is to end soon; each file is old or new. */
    void cancelWriting();

    /** Writes all edits into their files. */
    void apply();
    /** Takes the last apply back. */
    void undoApply();
    /** Drops the edits of the selected files, or all where none is selected. */
    void revert();
    /** How many applies can be taken back. Nothing in the program calls it. */
    [[nodiscard]] std::size_t undoCount() const { return undo_.size(); }

    /** Copies the selected rows with the shown columns, or of these the current one alone. */
    void copy(bool currentColumnOnly);
    /** Puts the clipboard's cells into the table from the current one on; a single one
       into all selected rows. */
    void paste();
    /** Writes the rows shown and the columns shown into the file at PATH, as its extension says: JSON or else
       CSV. Empty, or why that failed, in the user's language and without a full stop; there is no such file
       then, or the old one. */
    [[nodiscard]] QString exportTo(const QString& path);

signals:
    /** Files were written. */
    void filesWritten(const QList<velmora::WrittenFile>& files);
    /** The file at PATH is to be opened in the editor. */
    void openRequested(const QString& path);
    /** The files are not to be listed any more. */
    void removeRequested(const QStringList& paths);

private:
    void makeLayout();
    void showThumbnails();
    QWidget* makeSide(QWidget* parent);
    QWidget* makeFilter();
    QWidget* makeButtons();
    void makeMenus();
    void makeFileMenu();
    void makeEditMenu();
    void makeViewMenu();
    void makeContextMenu();
    QAction* addCommand(QMenu& menu, const QString& text, const QString& tip, const QKeySequence& keys,
                        void (LibraryWindow::*command)());
    void filterTyped();
    void takeTypedFilter();
    void showStatus();
    void refreshPanelLater();
    void refreshPanel();
    void updateCommands();

    /** Whether the files at PATHS may be written now; asks whoever has them open. */
    [[nodiscard]] bool mayWrite(const QStringList& paths) const;
    void runApply();
    void runUndo();
    void showDialog(const QString& title);
    void applyEnded(const std::vector<ApplyResult>& results);
    void undoEnded(const std::vector<ApplyResult>& results);
    void takeResults(const std::vector<ApplyResult>& results);
    [[nodiscard]] std::vector<ApplyItem> items() const;

    void findText();
    void editCell();
    void copyRows() { copy(false); }
    void copyColumn() { copy(true); }
    void exportTable();
    [[nodiscard]] ExportTable tableToExport();
    void exportAndTell(const QString& path);
    void openSelected();
    void showInFolder();
    void copyPaths();
    void removeSelected();
    void removeFromList(const QStringList& paths);
    void showColumnMenu(const QPoint& position);
    [[nodiscard]] QStringList selectedPaths() const;

    LibraryModel model_;
    LibraryView* view_ = nullptr;
    EditPanel* panel_ = nullptr;
    std::unique_ptr<CoverThumbnails> thumbnails_;
    QLineEdit* filter_ = nullptr;
    QPushButton* applyButton_ = nullptr;
    QPushButton* revertButton_ = nullptr;
    QLabel* status_ = nullptr;
    QAction* undoAction_ = nullptr;
    QMenu* columnMenu_ = nullptr;
    QMenu* rowMenu_ = nullptr;
    QTimer panelTimer_;
    QTimer filterTimer_;

    std::function<bool(const QStringList& paths)> mayWrite_;
    std::unique_ptr<Alert> question_;
    std::unique_ptr<ApplyDialog> dialog_;
    portable::KeptBytes kept_;   ///< for the undo; used by the worker while it runs
    std::vector<UndoStep> undo_; ///< the last apply is the last one
    UndoStep running_;           ///< of the worker that runs
};

} // namespace velmora
