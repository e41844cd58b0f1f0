#include "platform/legible_style.h"

#include "support/contrast.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QStandardItemModel>
#include <QTableView>

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

double contrastBetween(const QColor& a, const QColor& b) {
    const double lighter = std::max(luminance(a), luminance(b)) + 0.05;
    const double darker = std::min(luminance(a), luminance(b)) + 0.05;
    return lighter / darker;
}

/** Dark, with a selection and frames that a style would hardly set off from it. */
QPalette faintPalette() {
    QPalette palette(QColor(0x31, 0x36, 0x3B), QColor(0x2A, 0x2E, 0x32));
    palette.setColor(QPalette::Base, QColor(0x1B, 0x1E, 0x20));
    palette.setColor(QPalette::AlternateBase, QColor(0x23, 0x26, 0x29));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::HighlightedText}) {
        palette.setColor(role, Qt::white);
    }
    palette.setColor(QPalette::Highlight, QColor(0x20, 0x30, 0x50));
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0x2A, 0x2E, 0x32));
    return palette;
}

/** A control on a window, both in PALETTE, drawn by the style under test. */
template <class Control>
struct Shown {
    explicit Shown(const QPalette& palette) : control(&window) {
        window.setStyle(&style);
        control.setStyle(&style);
        window.setPalette(palette);
        control.setPalette(palette);
        window.resize(300, 200);
        control.setGeometry(20, 20, 200, 120);
        window.show();
    }
    [[nodiscard]] QImage picture() { return window.grab().toImage(); }

    LegibleStyle style;
    QWidget window;
    Control control;
};

/** The contrast of a control's left edge, half way down, with the window beside it. */
template <class Control>
double contrastOfFrame(const QPalette& palette) {
    Shown<Control> shown(palette);
    const QImage picture = shown.picture();
    const int middle = shown.control.geometry().center().y();
    return contrastBetween(picture.pixelColor(shown.control.x(), middle),
                           picture.pixelColor(shown.control.x() - 5, middle));
}

TEST(LegibleStyle, FramesOfFieldsStandOutFromADarkWindow) {
    const QPalette palette = faintPalette();
    EXPECT_GE(contrastOfFrame<QLineEdit>(palette), 3);
    EXPECT_GE(contrastOfFrame<QPlainTextEdit>(palette), 3);
    EXPECT_GE(contrastOfFrame<QComboBox>(palette), 3);
    EXPECT_GE(contrastOfFrame<QDateTimeEdit>(palette), 3);
    EXPECT_GE(contrastOfFrame<QTableView>(palette), 3);
}

TEST(LegibleStyle, FramesOfFieldsStandOutFromALightWindow) {
    const QPalette palette(QColor(0xEF, 0xEF, 0xEF));
    EXPECT_GE(contrastOfFrame<QLineEdit>(palette), 3);
    EXPECT_GE(contrastOfFrame<QPlainTextEdit>(palette), 3);
    EXPECT_GE(contrastOfFrame<QComboBox>(palette), 3);
}

/** A table whose first row of two is selected. */
struct ShownTable : Shown<QTableView> {
    explicit ShownTable(const QPalette& palette) : Shown(palette), model(2, 1) {
        control.setModel(&model);
        control.setShowGrid(false);
        control.setSelectionBehavior(QAbstractItemView::SelectRows);
        control.selectRow(0);
        control.clearFocus();
    }
    [[nodiscard]] QColor row(int index) {
        const QRect cell = control.visualRect(model.index(index, 0));
        const QPoint place = control.viewport()->mapTo(&window, cell.center());
        return picture().pixelColor(place);
    }

    QStandardItemModel model;
};

TEST(LegibleStyle, SelectedRowStandsOutFromTheOthersWithoutTheFocusToo) {
    ShownTable table(faintPalette());
    EXPECT_GE(contrastBetween(table.row(0), table.row(1)), 3);
    table.window.activateWindow();
    table.control.setFocus();
    EXPECT_GE(contrastBetween(table.row(0), table.row(1)), 3);
}

TEST(LegibleStyle, SelectionThatStandsOutAlreadyIsLeftAlone) {
    QPalette palette = faintPalette();
    const QColor own(0xE0, 0x50, 0x30);
    palette.setColor(QPalette::Highlight, own);
    ShownTable table(palette);
    EXPECT_EQ(own, table.row(0));
}

/** The best contrast that a pixel of the style's icon has with a dark window. */
double contrastOfIcon(QStyle::StandardPixmap name) {
    const QPalette before = QApplication::palette();
    QApplication::setPalette(faintPalette());
    const QImage sign = LegibleStyle().standardIcon(name, nullptr, nullptr).pixmap(32).toImage();
    QApplication::setPalette(before);
    double best = 1;
    for (int y = 0; y < sign.height(); ++y) {
        for (int x = 0; x < sign.width(); ++x) {
            if (sign.pixelColor(x, y).alpha() > 200) {
                best = std::max(
                    best, contrastBetween(sign.pixelColor(x, y), faintPalette().color(QPalette::Window)));
            }
        }
    }
    return best;
}

TEST(LegibleStyle, SignsOfBarsAndFieldsStandOutFromADarkWindow) {
    EXPECT_LE(4.5, contrastOfIcon(QStyle::SP_ToolBarHorizontalExtensionButton));
    EXPECT_LE(4.5, contrastOfIcon(QStyle::SP_LineEditClearButton));
}

TEST(LegibleColour, IsTheColourItselfWhereItStandsOut) {
    EXPECT_EQ(QColor(200, 0, 0), legibleOn(Qt::black, QColor(200, 0, 0), 3));
}

TEST(LegibleColour, MovesAwayFromTheGroundUntilItStandsOut) {
    for (const QColor& ground : {QColor(0x25, 0x26, 0x2A), QColor(0x80, 0x80, 0x80), QColor(Qt::white)}) {
        EXPECT_GE(contrastBetween(ground, legibleOn(ground, ground, 3)), 3) << ground.name().toStdString();
    }
}

TEST(LegibleColour, IsWhiteOrBlackWhereNothingStandsOutEnough) {
    EXPECT_EQ(QColor(Qt::white), legibleOn(QColor(0x60, 0x60, 0x60), Qt::red, 21));
}

TEST(LegibleStyleTest, HintsInFieldsStandOutFromADarkGroundAndStayAsTheyAreOnALightOne) {
    LegibleStyle style;
    QPalette dark = faintPalette();
    dark.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128)); // as on a light ground
    style.polish(dark);
    const QColor hint = dark.color(QPalette::PlaceholderText);
    EXPECT_EQ(255, hint.alpha());
    EXPECT_GE(contrastBetween(dark.color(QPalette::Base), hint), 3.0);
    EXPECT_LT(contrastBetween(dark.color(QPalette::Base), hint), 9.0) << "it is no text";
    QPalette light(Qt::lightGray);
    light.setColor(QPalette::Base, Qt::white);
    light.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    style.polish(light);
    EXPECT_EQ(QColor(0, 0, 0, 128), light.color(QPalette::PlaceholderText));
}

} // namespace
} // namespace velmora::test
