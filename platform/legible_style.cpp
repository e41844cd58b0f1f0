#include "legible_style.h"

#include "symbol.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>
#include <cmath>

namespace velmora {
namespace {

constexpr double contrastOfSigns = 3.05; // 3, and what rounding to 8 bits may take
constexpr int steps = 32;
constexpr qreal cornerRadius = 2;

/** How light COLOUR is to the eye, from 0 to 1: the relative luminance of the web's
   accessibility guidelines. */
double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const double lighter = std::max(luminance(a), luminance(b)) + 0.05;
    const double darker = std::min(luminance(a), luminance(b)) + 0.05;
    return lighter / darker;
}

QColor mixed(const QColor& from, const QColor& to, double part) {
    const auto channel = [part](int a, int b) { return static_cast<int>(std::lround(a + (b - a) * part)); };
    return {channel(from.red(), to.red()), channel(from.green(), to.green()),
            channel(from.blue(), to.blue())};
}

QColor farthestFrom(const QColor& ground) {
    return contrast(ground, Qt::white) > contrast(ground, Qt::black) ? Qt::white : Qt::black;
}

/** A line around a field, which lies on the window and has a ground of its own. */
QColor frameColour(const QPalette& palette, bool focused) {
    const QColor window = palette.color(QPalette::Window);
    const QColor line = focused ? palette.color(QPalette::Highlight) : window;
    return legibleOn(palette.color(QPalette::Base), legibleOn(window, line, contrastOfSigns),
                     contrastOfSigns);
}

void drawFrame(const QStyleOption& option, QPainter& painter, qreal radius) {
    if (!option.state.testFlag(QStyle::State_Enabled)) {
        return;
    }
    const bool focused = option.state.testFlag(QStyle::State_HasFocus);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, radius > 0);
    painter.setPen(frameColour(option.palette, focused));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
    painter.restore();
}

/** PALETTE with a selection that can be told from the rows around it. */
QPalette legibleSelection(QPalette palette) {
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor ground = legibleOn(palette.color(group, QPalette::Base),
                                        palette.color(group, QPalette::Highlight), contrastOfSigns);
        palette.setColor(group, QPalette::Highlight, ground);
        if (contrast(ground, palette.color(group, QPalette::HighlightedText)) < contrastOfSigns) {
            palette.setColor(group, QPalette::HighlightedText, farthestFrom(ground));
        }
    }
    return palette;
}

QStyleOptionViewItem legibleItem(const QStyleOption& option) {
    QStyleOptionViewItem item = *qstyleoption_cast<const QStyleOptionViewItem*>(&option);
    item.palette = legibleSelection(item.palette);
    return item;
}

bool isSelectedItem(const QStyleOption* option) {
    return qstyleoption_cast<const QStyleOptionViewItem*>(option) &&
           option->state.testFlag(QStyle::State_Selected);
}

} // namespace

QColor legibleOn(const QColor& ground, const QColor& colour, double ratio) {
    const QColor target = farthestFrom(ground);
    for (int step = 0; step < steps; ++step) {
        const QColor candidate = mixed(colour, target, static_cast<double>(step) / steps);
        if (contrast(ground, candidate) >= ratio) {
            return candidate;
        }
    }
    return target;
}

void LegibleStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    if ((element == PE_PanelItemViewItem || element == PE_PanelItemViewRow) && isSelectedItem(option)) {
        const QStyleOptionViewItem item = legibleItem(*option);
        QProxyStyle::drawPrimitive(element, &item, painter, widget);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_FrameLineEdit) {
        drawFrame(*option, *painter, cornerRadius);
    } else if (element == PE_Frame) {
        drawFrame(*option, *painter, 0);
    }
}

void LegibleStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    if (element == CE_ItemViewItem && isSelectedItem(option)) {
        const QStyleOptionViewItem item = legibleItem(*option);
        QProxyStyle::drawControl(element, &item, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void LegibleStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ComboBox || control == CC_SpinBox) {
        drawFrame(*option, *painter, cornerRadius);
    }
}

/** Some desktops leave the hints in empty fields as dark as on a light ground. */
void LegibleStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        const QColor ground = palette.color(group, QPalette::Base);
        const QColor hint = palette.color(group, QPalette::PlaceholderText);
        if (contrast(ground, mixed(ground, hint, hint.alphaF())) < contrastOfSigns) {
            const QColor faint = mixed(ground, palette.color(group, QPalette::Text), 0.5);
            palette.setColor(group, QPalette::PlaceholderText, legibleOn(ground, faint, contrastOfSigns));
        }
    }
}

QIcon LegibleStyle::standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                                 const QWidget* widget) const {
    // Every menu bar and many a field ask for these before anything is shown. The toolkit's own are files
    // whose format is looked for with the libraries of all formats.
    switch (standardIcon) {
    case SP_ToolBarHorizontalExtensionButton:
        return symbol(QStringLiteral("view-more-horizontal"));
    case SP_LineEditClearButton:
        return symbol(QStringLiteral("edit-clear"));
    default:
        return QProxyStyle::standardIcon(standardIcon, option, widget);
    }
}

void installLegibleStyle() {
    QApplication::setStyle(new LegibleStyle);
}

} // namespace velmora
