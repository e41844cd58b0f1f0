#pragma once

#include "browser/media_rows.h"

#include <QAbstractTableModel>
#include <QList>

#include <optional>

namespace velmora {

/** The media table's data source: shows a MediaRows to a table view.

   Views know this model as a number of rows whose contents may change at any time: reloadData never moves or
   removes a row in their eyes, so the row that a user has selected stays the selected one, whatever it
   shows now. */
class MediaTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    /** ROWS must outlive the model. */
    explicit MediaTableModel(const MediaRows& rows, QObject* parent = nullptr);

    /** The columns: "icon", "filename", "filesize", "created". */
    [[nodiscard]] static const QList<TableColumn>& columns();
    /** The place of the column with IDENTIFIER among them; -1 when there is none. */
    [[nodiscard]] static int columnIndex(QStringView identifier);

    /** How many rows there are. */
    [[nodiscard]] int numberOfRowsInTableView() const;
    /** The value to show in COLUMN of the table's row ROW: while the list is shown descending, that of the
       mirrored row. Invalid when the record has nothing under the column's identifier. A row that there is
       not fails an assertion (platform/assertion.h); should that come back, the value is invalid. */
    [[nodiscard]] QVariant tableViewObjectValueForTableColumn(const TableColumn& column, int row) const;

    /** Before and after the row at the list's index ROW is taken off. */
    void beginRemoval(int row);
    void endRemoval();

    /** Tells the views of all that has changed in the rows: new ones, and other contents in any of them. */
    void reloadData();

    /** The record whose file is open: it stands out, wherever it is shown. Null for none, as at first. */
    void setOpenRecord(ColdataPointer record);

    /** The column whose header stands out; none at first. */
    void setHighlightedTableColumn(int column);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    /** Typing into the table finds file names, whatever column the typing user is in. */
    [[nodiscard]] QModelIndexList match(const QModelIndex& start, int role, const QVariant& value, int hits,
                                        Qt::MatchFlags flags) const override;

private:
    /** What assistive technologies say of a cell: of the icon's and the name's, the file's name, kind and
       size, because one of these is where the keyboard is. */
    [[nodiscard]] QString spokenText(const TableColumn& column, int row) const;
    /** The record that ROW, which there is, shows: while the list is shown descending, the mirrored one. */
    [[nodiscard]] const ColdataPointer& recordAt(int row) const;
    [[nodiscard]] bool isOpen(int row) const;

    const MediaRows& rows_;
    /** The rows that views were told of. */
    int reportedRows_ = 0;
    std::optional<int> highlightedColumn_;
    ColdataPointer openRecord_;
};

} // namespace velmora
