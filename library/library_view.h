#pragma once

#include "library_model.h"

#include <QTableView>

namespace velmora {

/** The table of the library window. A click on a header sorts by its column, and once more the other way
   round; with Shift it makes it a further key. The headers' menu chooses columns; they can be moved. */
class LibraryView : public QTableView {
    Q_OBJECT
public:
    /** MODEL outlives the view. */
    explicit LibraryView(LibraryModel& model, QWidget* parent = nullptr);

    /** The numbers of the files whose rows are selected, from the top. */
    [[nodiscard]] std::vector<int> selectedFiles() const;
    /** The columns that are shown, as they stand. */
    [[nodiscard]] QList<LibraryColumn> shownColumns() const;
    /** Shows or hides COLUMN; the last one stays. The current cell is always in a column that is shown. */
    void showColumn(LibraryColumn column, bool shown);
    /** Sorts by COLUMN, the other way round where it does already; ALSO: behind the keys that there are. */
    void sortByColumn(LibraryColumn column, bool also);

    /** Also those rows that the filter has not come to yet. */
    void selectAll() override;
    /** Moves the current cell's column BY places among those that are shown. */
    void moveCurrentColumn(int by);

signals:
    void selectedFilesChanged();

protected:
    void scrollContentsBy(int dx, int dy) override;
    void resizeEvent(QResizeEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

private:
    void setUpHeader();
    void tellVisibleRows();
    void showSortKeys();

    LibraryModel& model_;
    QTimer visibleTimer_;
};

} // namespace velmora
