#include "library_layout.h"

#include "library_window.h"

#include <QHeaderView>
#include <QSplitter>

#include <algorithm>

namespace velmora {

namespace {

const QString sizePart = QStringLiteral("library_size");
const QString divisionPart = QStringLiteral("library_division");
const QString widthsPart = QStringLiteral("library_widths");
const QString placesPart = QStringLiteral("library_places");
const QString sortPart = QStringLiteral("library_sort"); ///< a column and whether it descends, for each key

QSplitter& splitterOf(LibraryWindow& window) {
    return *window.findChild<QSplitter*>();
}

QHeaderView& columnHeader(LibraryWindow& window) {
    return *window.view().horizontalHeader();
}

bool isColumn(int number) {
    return number >= 0 && number < libraryColumnCount;
}

void setWidths(LibraryWindow& window, const QList<int>& widths) {
    if (widths.size() != libraryColumnCount || std::count(widths.begin(), widths.end(), 0) == widths.size()) {
        return;
    }
    for (int column = 0; column < libraryColumnCount; ++column) {
        columnHeader(window).setSectionHidden(column, widths[column] == 0);
        if (widths[column] > 0) {
            columnHeader(window).resizeSection(column, widths[column]);
        }
    }
}

void setPlaces(LibraryWindow& window, const QList<int>& positions) {
    QList<int> columns(libraryColumnCount, -1); // by place
    for (int column = 0; positions.size() == libraryColumnCount && column < libraryColumnCount; ++column) {
        if (isColumn(positions[column])) {
            columns[positions[column]] = column;
        }
    }
    if (columns.contains(-1)) {
        return;
    }
    for (int place = 0; place < libraryColumnCount; ++place) {
        columnHeader(window).moveSection(columnHeader(window).visualIndex(columns[place]), place);
    }
}

void setSort(LibraryWindow& window, const QList<int>& numbers) {
    std::vector<SortKey> keys;
    for (qsizetype i = 0; i + 1 < numbers.size(); i += 2) {
        if (isColumn(numbers[i])) {
            keys.push_back({static_cast<LibraryColumn>(numbers[i]), numbers[i + 1] != 0});
        }
    }
    if (!keys.empty()) {
        window.model().sortBy(keys);
    }
}

} // namespace

QMap<QString, QList<int>> libraryLayout(LibraryWindow& window) {
    QMap<QString, QList<int>> parts;
    const QSize size = window.isMaximized() ? window.normalGeometry().size() : window.size();
    parts[sizePart] = {size.width(), size.height()};
    parts[divisionPart] = splitterOf(window).sizes();
    for (int column = 0; column < libraryColumnCount; ++column) {
        parts[widthsPart] += columnHeader(window).sectionSize(column);
        parts[placesPart] += columnHeader(window).visualIndex(column);
    }
    for (const SortKey& key : window.model().sortKeys()) {
        parts[sortPart] += {static_cast<int>(key.column), key.descending ? 1 : 0};
    }
    return parts;
}

void arrangeLibrary(LibraryWindow& window, const QMap<QString, QList<int>>& parts) {
    if (const QList<int> size = parts.value(sizePart); size.size() == 2) {
        window.resize(QSize(size[0], size[1]).expandedTo(window.minimumSizeHint()));
    }
    if (const QList<int> sizes = parts.value(divisionPart); sizes.size() == splitterOf(window).count()) {
        splitterOf(window).setSizes(sizes);
    }
    setWidths(window, parts.value(widthsPart));
    setPlaces(window, parts.value(placesPart));
    setSort(window, parts.value(sortPart));
}

QMap<QString, QList<int>> libraryPartsOf(const QMap<QString, QList<int>>& parts) {
    QMap<QString, QList<int>> found;
    for (const QString& name : {sizePart, divisionPart, widthsPart, placesPart, sortPart}) {
        if (parts.contains(name)) {
            found.insert(name, parts.value(name));
        }
    }
    return found;
}

} // namespace velmora
