#include "media_table_fixture.h"

#include <QMouseEvent>

namespace velmora {
namespace {

using test::createdColumn;
using test::nameColumn;
using test::sizeColumn;

class MediaTableColumnsTest : public test::MediaTableTest {
protected:
    void widen(int width) {
        view_.resize(width, 300);
        runLoop();
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
    /** As a person does, with the mouse, at the right edge of COLUMN's header. */
    void dragEdge(int column, int distance) const {
        const QHeaderView* const header = view_.horizontalHeader();
        const QPoint edge(header->sectionViewportPosition(column) + header->sectionSize(column) - 1,
                          header->height() / 2);
        QTest::mousePress(header->viewport(), Qt::LeftButton, Qt::NoModifier, edge);
        moveMouse(edge + QPoint(distance / 2, 0));
        moveMouse(edge + QPoint(distance, 0));
        QTest::mouseRelease(header->viewport(), Qt::LeftButton, Qt::NoModifier, edge + QPoint(distance, 0));
        runLoop();
    }
};

TEST_F(MediaTableColumnsTest, AWideTableShowsWholeDatesAndSizes) {
    widen(700);
    EXPECT_TRUE(shows(createdColumn, "12/31/26 23:59:59"));
    EXPECT_TRUE(shows(sizeColumn, "1023.9 KB"));
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

} // namespace
} // namespace velmora
