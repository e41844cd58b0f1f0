#pragma once

#include <QList>
#include <QMap>
#include <QString>

namespace velmora {

class LibraryWindow;

/** How the library table's window looks now, each part by its name: the window's size, how it is divided,
   and, in the order of libraryColumns, the columns' widths (0: not shown) and places; what it is sorted by.
   No number is negative. */
[[nodiscard]] QMap<QString, QList<int>> libraryLayout(LibraryWindow& window);

/** Makes WINDOW look so. Of PARTS, what is not a part of it, or can't be, changes nothing. */
void arrangeLibrary(LibraryWindow& window, const QMap<QString, QList<int>>& parts);

/** What PARTS say of the library table's window. */
[[nodiscard]] QMap<QString, QList<int>> libraryPartsOf(const QMap<QString, QList<int>>& parts);

} // namespace velmora
