#pragma once

#include <QIcon>
#include <QString>

namespace velmora {

/** The icon of that name in the desktop's icon theme, or, where the theme has none, the program's own drawing
   in the colour of the texts of buttons. NAME is one of those in platform/symbols. */
[[nodiscard]] QIcon symbol(const QString& name);

/** The program's own drawing alone, SIDE device pixels wide and high, in COLOUR. */
[[nodiscard]] QPixmap drawnSymbol(const QString& name, int side, const QColor& colour);

} // namespace velmora
