#include "made_locale.h"
#include "media_table_fixture.h"

#include <QMouseEvent>

#include <vector>

namespace velmora {
namespace {

using test::createdColumn;
using test::nameColumn;
using test::settle;
using test::sizeColumn;

class MediaTableColumnsTest : public test::MediaTableTest {
protected:
    void widen(int width) {
        view_.resize(width, 300);
        settle();
    }
    [[nodiscard]] int width(int column) const { return view_.columnWidth(column); }
    /** Whether TEXT can be read in a cell of COLUMN. */
    [[nodiscard]] bool shows(int column, const QString& text) const {
        return width(column) >= view_.fontMetrics().horizontalAdvance(text) + 6;
    }
    void moveMouse(QPoint place) const {
        QWidget* const header = view_.horizontalHeader()->viewport();
        QMouseEvent move(QEvent::MouseMove, place, header->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                         Qt::NoModifier);
        QCoreApplication::sendEvent(header, &move);
    }
    /** As a user does, with the mouse, at the right edge of COLUMN's header. */
    void dragEdge(int column, int distance) const {
        const QHeaderView* const header = view_.horizontalHeader();
        const QPoint edge(header->sectionViewportPosition(column) + header->sectionSize(column) - 1,
                          header->height() / 2);
        QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier, edge);
        moveMouse(edge + QPoint(distance / 2, 0));
        moveMouse(edge + QPoint(distance, 0));
        QTest::mouseRelease(header->viewport(), Qt::LeftButton, Qt::NoModifier, edge + QPoint(distance, 0));
        settle();
    }
};

TEST_F(MediaTableColumnsTest, AWideTableShowsWholeDatesAndSizes) {
    widen(700);
    EXPECT_TRUE(shows(createdColumn, "12/31/26 23:59:59"));
    EXPECT_TRUE(shows(sizeColumn, "1023.9 KB"));
}

TEST_F(MediaTableColumnsTest, SizeAndDateOfTheOpenFileAreWholeInBoldToo) {
    widen(700);
    QFont bold = view_.font();
    bold.setBold(true);
    const QFontMetrics metrics(bold);
    ASSERT_GT(metrics.horizontalAdvance("12/30/26 20:00:00"),
              view_.fontMetrics().horizontalAdvance("12/30/26 20:00:00"));
    EXPECT_GE(width(createdColumn), metrics.horizontalAdvance("12/30/26 20:00:00") + 6);
    EXPECT_GE(width(sizeColumn), metrics.horizontalAdvance("1024.0 KB") + 6);
}

TEST_F(MediaTableColumnsTest, TheDateGivesItsRoomToTheNameFirst) {
    widen(700);
    const int size = width(sizeColumn);
    const int date = width(createdColumn);
    widen(300);
    EXPECT_TRUE(shows(nameColumn, "my films.mp4"));
    EXPECT_EQ(size, width(sizeColumn));
    EXPECT_LT(width(createdColumn), date);
    EXPECT_FALSE(view_.isColumnHidden(createdColumn));
}

TEST_F(MediaTableColumnsTest, TheSizeGivesItsRoomToTheNameNext) {
    widen(170);
    EXPECT_TRUE(shows(nameColumn, "my films.mp4"));
    EXPECT_GT(width(sizeColumn), 0);
    EXPECT_LT(width(createdColumn), 40);
    EXPECT_GT(width(createdColumn), 0);
}

TEST_F(MediaTableColumnsTest, WidthsComeBackWhenTheTableGrows) {
    widen(700);
    const int size = width(sizeColumn);
    const int date = width(createdColumn);
    widen(100);
    ASSERT_LT(width(sizeColumn), size);
    ASSERT_LT(width(createdColumn), date);
    widen(700);
    EXPECT_EQ(size, width(sizeColumn));
    EXPECT_EQ(date, width(createdColumn));
}

TEST_F(MediaTableColumnsTest, TheColumnsFillTheTableAtEveryWidth) {
    for (const int width : {160, 250, 380, 500, 900}) {
        widen(width);
        EXPECT_EQ(view_.viewport()->width(), view_.horizontalHeader()->length());
    }
}

TEST_F(MediaTableColumnsTest, AWidthThatAPersonSetStays) {
    widen(700);
    const int before = width(sizeColumn);
    dragEdge(sizeColumn, 40);
    ASSERT_EQ(before + 40, width(sizeColumn));
    const int date = width(createdColumn);
    widen(300);
    EXPECT_EQ(before + 40, width(sizeColumn));
    EXPECT_EQ(date, width(createdColumn));
}

TEST_F(MediaTableColumnsTest, DatesAreDrawnWithoutAnEllipsis) {
    QStringList dates;
    for (const char16_t digit : u"0123456789") {
        dates += QStringLiteral("11/22/26 06:52:3") + QChar(digit ? digit : u'0');
        dates += QString(QStringLiteral("##/##/## ##:##:##")).replace(u'#', QChar(digit ? digit : u'0'));
    }
    for (const QString& date : dates) {
        add("a", 0, date);
    }
    widen(700);
    const auto drawn = [this](int row, int column, int width) {
        const QRect cell = view_.visualRect(view_.model()->index(row, column));
        return view_.viewport()->grab(QRect(cell.topLeft(), QSize(width, cell.height()))).toImage();
    };
    const int dateWidth = width(createdColumn);
    std::vector<QImage> whole;
    for (int row = 0; row < dates.size(); ++row) {
        whole.push_back(drawn(row, createdColumn, dateWidth));
    }
    view_.setColumnWidth(createdColumn, 2 * dateWidth);
    settle();
    for (int row = 0; row < dates.size(); ++row) {
        EXPECT_EQ(whole[row], drawn(row, createdColumn, dateWidth)) << dates[row].toStdString();
    }
}

TEST_F(MediaTableColumnsTest, DatesOfTheLocaleAreShownWhole) {
    const test::MadeLocale american("en_US", "UTF-8");
    if (!american.isThere()) {
        GTEST_SKIP() << "needs the sources of the American locale";
    }
    table_ = std::make_unique<MediaTable>(view_, document_, form());
    widen(470);
    EXPECT_TRUE(shows(createdColumn, "12/20/2026 10:58:58 AM"));
    EXPECT_TRUE(shows(createdColumn, "11/22/2026 11:28:54 PM"));
    EXPECT_TRUE(shows(nameColumn, "my films.mp4"));
}

TEST_F(MediaTableColumnsTest, MonthsAndDaysOfTheLocaleAreShownWhole) {
    const test::MadeLocale language("cy_GB", "UTF-8");
    if (!language.isThere() || createdText({1'781'438'399, 0}).size() < 12) {
        GTEST_SKIP() << "needs the sources of the Welsh locale";
    }
    table_ = std::make_unique<MediaTable>(view_, document_, form());
    widen(700);
    for (int day = 0; day < 366; ++day) {
        const QString text = createdText({1'767'225'600 + day * 86'400 + day % 24 * 3600, 0});
        EXPECT_TRUE(shows(createdColumn, text)) << text.toStdString();
    }
}

TEST_F(MediaTableColumnsTest, ALargerFontHasItsRoomToo) {
    widen(1200);
    QFont font = view_.font();
    font.setPointSize(2 * font.pointSize());
    view_.setFont(font);
    settle();
    EXPECT_TRUE(shows(createdColumn, "12/31/26 23:59:59"));
    EXPECT_TRUE(shows(sizeColumn, "1024.0 KB"));
}

TEST_F(MediaTableColumnsTest, TextsOfNeighbouringColumnsDontTouch) {
    add("a", 1'048'575, "12/31/26 23:59:59");
    widen(700);
    const QImage picture = view_.viewport()->grab().toImage();
    const QRect size = view_.visualRect(view_.model()->index(0, sizeColumn));
    const QRect date = view_.visualRect(view_.model()->index(0, createdColumn));
    const QRgb ground = picture.pixel(size.right(), size.top() + 2);
    // Columns of pixels to the left and right of the border between the two, without any text.
    int blank = 0;
    const auto isBlank = [&](int x) {
        for (int y = size.top() + 2; y < size.bottom() - 2; ++y) {
            if (picture.pixel(x, y) != ground) {
                return false;
            }
        }
        return true;
    };
    for (int x = date.left() - 1; isBlank(x); --x) {
        ++blank;
    }
    for (int x = date.left(); isBlank(x); ++x) {
        ++blank;
    }
    EXPECT_GE(blank, 12);
    EXPECT_LT(blank, size.width()) << "there are texts";
}

TEST_F(MediaTableColumnsTest, ADateThatIsCutOffKeepsItsBeginning) {
    add("a", 0, "12/31/26 23:59:59");
    widen(700);
    const auto beginning = [this] {
        settle();
        const QRect cell = view_.visualRect(view_.model()->index(0, createdColumn));
        return view_.viewport()->grab(QRect(cell.topLeft(), QSize(42, cell.height()))).toImage();
    };
    const QImage whole = beginning();
    view_.setColumnWidth(createdColumn, 84);
    ASSERT_FALSE(shows(createdColumn, "12/31/26 23:59:59"));
    EXPECT_EQ(whole, beginning());
}

} // namespace
} // namespace velmora
