#pragma once

#include <QList>
#include <QMap>
#include <QString>

class QWidget;

namespace velmora {

/** How WINDOW is divided now: the sizes of the parts of each splitter, and the widths of each table's
   columns, by the object name of the splitter or table. */
[[nodiscard]] QMap<QString, QList<int>> divisionOf(const QWidget& window);

/** Divides WINDOW so. What it does not have, or has with another number of parts, is left as it is. */
void divide(QWidget& window, const QMap<QString, QList<int>>& parts);

} // namespace velmora
