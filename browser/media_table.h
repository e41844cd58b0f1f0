#pragma once

#include "browser/media_document.h"
#include "browser/media_rows.h"
#include "browser/media_table_model.h"
#include "platform/error.h"
#include "platform/modal_loop.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QTableView>

#include <functional>

namespace velmora {

/** The media table: joins the rows to a table view, opens the file of the row that the user selects in the
   document, and tells the editor form about it.

   The selection handler runs once per act of the user, from the event loop: however often the view reports
   a change, after the left button was released, and never while the handler itself or another modal loop is
   at work. */
class MediaTable : public QObject {
    Q_OBJECT
public:
    /** What the editor form does for the table. */
    struct Form {
        /** Empties the form. */
        std::function<void()> clearUI;
        /** Fills the form from the document's open file. */
        std::function<void()> fillUI;
        /** Shows an alert sheet on the document's window, and returns at once. */
        std::function<void(const Error&)> showError;
    };

    /** Takes VIEW over: model, header, selection. VIEW and DOCUMENT live as long as events still reach the
       table. */
    MediaTable(QTableView& view, MediaDocument& document, Form form, QObject* parent = nullptr);

    /** Adds a row for the file at PATH at its sorted place and reloads the table. False, with nothing added,
       when the file's attributes can't be read or lack the size or the creation date. Looks neither at the
       extension nor at the size. */
    bool addMediaFile(const QString& path);

    /** Takes the rows of the file at PATH off the list. What is selected stays so; a selected row that
       goes closes its file. */
    void removeFile(const QString& path);
    /** The files at the keys of PATHS have changed and are at their values now: their rows say so. Files may
       have got their paths from one another. */
    void updateFiles(const QHash<QString, QString>& paths);

    /** Inserts ROW into the list at its sorted place; the views don't know of it before reloadData. */
    void addColdataSorted(ColdataPointer row);
    void reloadData();

    /** Selects the row of the file at PATH, the last where there are several, and so opens it. Nothing where
       there is none. */
    void selectFile(const QString& path);

    /** The document has opened the file at PATH by itself: selects its row, the last where there are several,
       which opens nothing; no row where there is none. */
    void showAsOpen(const QString& path);

    /** The document has no file open any more, whatever row is selected. */
    void showNoneAsOpen() { model_.setOpenRecord(nullptr); }

    /** Sorts by the column of that index in MediaTableModel::columns, or turns the direction when it is the
       sort column; the icon column stands for the file name's. */
    void tableViewDidClickTableColumn(int column);

    /** Opens the file of the selected row, or closes the open file when no row is selected. Nothing when that
       row's file is the open one already. When the document refuses, the former row is selected again. */
    void tableViewSelectionDidChange();

    /** The row whose file is open in the editor; -1 for none. An index and not a file: sorting, turning and
       inserting rows leave it as it is. Nothing in the program calls it. */
    [[nodiscard]] int curSelectedRow() const { return curSelectedRow_; }
    /** Makes no row the open one, so that the next tableViewSelectionDidChange opens the selected row's file
       anew. */
    void forgetSelectedRow() { curSelectedRow_ = -1; }

    [[nodiscard]] const MediaRows& mediaFiles() const { return mediaFiles_; }
    [[nodiscard]] const MediaTableModel& model() const { return model_; }

signals:
    /** A file was listed. */
    void fileAdded(const velmora::ColdataPointer& row);
    /** The file at PATH is not listed any more. */
    void fileRemoved(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setUpView();
    void setUpHeader();
    void noteSelectionChange();
    void handleLater();
    void handleSelectionChange();
    [[nodiscard]] bool mustWait() const;
    [[nodiscard]] int selectedRow() const;
    [[nodiscard]] bool closeFile();
    [[nodiscard]] bool openFile(int row);
    void restoreSelection();
    /** The place in the list of the last row of the file at PATH; -1 when there is none. */
    [[nodiscard]] int rowOf(const QString& path) const;

    QTableView& view_;
    MediaDocument& document_;
    Form form_;
    MediaRows mediaFiles_;
    MediaTableModel model_{mediaFiles_};
    int curSelectedRow_ = -1;

    /** The selection may have changed since the handler ran last. */
    bool changeNoted_ = false;
    bool handlingPosted_ = false;
    bool handling_ = false;
    bool leftButtonDown_ = false;
    ModalLoopWatch modalLoopWatch_;
};

} // namespace velmora
