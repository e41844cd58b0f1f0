#include "window_layout.h"

#include <QHeaderView>
#include <QSplitter>
#include <QTableView>

namespace velmora {

namespace {

/** Those in WINDOW itself, and not in windows that belong to it. */
template <class Widget>
QList<Widget*> partsOf(const QWidget& window) {
    QList<Widget*> parts = window.findChildren<Widget*>();
    parts.removeIf([&](const QWidget* part) { return part->window() != &window; });
    return parts;
}

} // namespace

QMap<QString, QList<int>> divisionOf(const QWidget& window) {
    QMap<QString, QList<int>> parts;
    for (const QSplitter* splitter : partsOf<QSplitter>(window)) {
        parts[splitter->objectName()] = splitter->sizes();
    }
    for (const QTableView* table : partsOf<QTableView>(window)) {
        QList<int>& widths = parts[table->objectName()];
        for (int column = 0; column < table->horizontalHeader()->count(); ++column) {
            widths += table->columnWidth(column);
        }
    }
    parts.remove(QString()); // what has no name can't be found again
    return parts;
}

void divide(QWidget& window, const QMap<QString, QList<int>>& parts) {
    for (QSplitter* splitter : partsOf<QSplitter>(window)) {
        const QList<int> sizes = parts.value(splitter->objectName());
        if (sizes.size() == splitter->count()) {
            splitter->setSizes(sizes);
        }
    }
    for (QTableView* table : partsOf<QTableView>(window)) {
        QHeaderView& header = *table->horizontalHeader();
        const QList<int> widths = parts.value(table->objectName());
        for (int column = 0; widths.size() == header.count() && column < header.count(); ++column) {
            if (header.sectionResizeMode(column) == QHeaderView::Interactive) {
                // By way of another width: a table that fits its own columns takes the change for the user's.
                header.resizeSection(column, widths[column] + 1);
                header.resizeSection(column, widths[column]);
            }
        }
    }
}

} // namespace velmora
