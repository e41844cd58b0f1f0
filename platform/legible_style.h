#pragma once

#include <QColor>
#include <QProxyStyle>

namespace velmora {

/** COLOUR, or, where that stands out too little from GROUND, the nearest to it on the way to white or black
   whose contrast with GROUND is at least RATIO, from 1 to 21. */
[[nodiscard]] QColor legibleOn(const QColor& ground, const QColor& colour, double ratio);

/** The desktop's own style, but for what its palette may leave too faint to see: the frames of fields and the
   ground of selected rows have a contrast of 3 to 1 at least with what lies around them, with and without the
   focus, and so have the hints in empty fields with the fields' ground; the text of a selected row that could
   hardly be read on its ground is white or black; the signs for menus that find no room in their bar, and for
   emptying a field, have the colour of the texts of buttons. */
class LegibleStyle : public QProxyStyle {
    Q_OBJECT
public:
    using QProxyStyle::QProxyStyle;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    /** The program's symbols for what the style would draw dark on a dark ground; otherwise the style's. */
    [[nodiscard]] QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                                     const QWidget* widget) const override;
};

/** Has the whole program drawn in this style. To be called once, at its start. */
void installLegibleStyle();

} // namespace velmora
