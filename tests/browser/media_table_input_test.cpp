#include "media_table_fixture.h"

#include <QAccessible>
#include <QLineEdit>
#include <QMouseEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace velmora {
namespace {

using Answer = test::FakeMediaDocument::Answer;
using test::createdColumn;
using test::makeRow;
using test::MediaTableTest;
using test::settle;

TEST_F(MediaTableTest, KeyAsksOnceAlsoWhenItIsRefused) {
    addAll({"a", "b", "c"});
    select(0);
    document_.requests.clear();
    document_.answer = Answer::Cancel;
    press(Qt::Key_Down);
    EXPECT_EQ(QStringList{"/media/b"}, document_.requests);
    EXPECT_EQ(0, selectedRow());
    EXPECT_EQ(0, view_.currentIndex().row());
}

TEST_F(MediaTableTest, KeysMoveFromRowToRow) {
    addAll({"a", "b", "c"});
    select(0);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Up);
    EXPECT_EQ((QStringList{"/media/a", "/media/b", "/media/c", "/media/b"}), document_.requests);
    EXPECT_EQ(1, table_->curSelectedRow());
}

TEST_F(MediaTableTest, ArrowKeysSpeakTheFilesFromTheStart) {
    add("song.mp3", 102'401);
    add("film.avi", 500'000);
    const auto spoken = [this] {
        QAccessibleInterface* const cell = QAccessible::queryAccessibleInterface(&view_)->focusChild();
        return cell ? cell->text(QAccessible::Name) : QString();
    };
    press(Qt::Key_Down);
    EXPECT_EQ("song.mp3, Song, 100.0 KB", spoken());
    press(Qt::Key_Down);
    EXPECT_EQ("film.avi, Film, 488.3 KB", spoken());
    press(Qt::Key_Up);
    EXPECT_EQ("song.mp3, Song, 100.0 KB", spoken());
    press(Qt::Key_F); // found by its name
    EXPECT_EQ("film.avi, Film, 488.3 KB", spoken());
}

TEST_F(MediaTableTest, ClickAsksOnceAlsoWhenItIsRefused) {
    addAll({"a", "b", "c"});
    click(0);
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
    document_.requests.clear();
    document_.answer = Answer::Cancel;
    click(2);
    EXPECT_EQ(QStringList{"/media/c"}, document_.requests);
    EXPECT_EQ(0, selectedRow());
}

TEST_F(MediaTableTest, ClearingAndSelectingAnotherRowAsksOnce) {
    addAll({"a", "b"});
    select(0);
    document_.requests.clear();
    view_.clearSelection();
    view_.selectRow(1);
    settle();
    EXPECT_EQ(QStringList{"/media/b"}, document_.requests);
}

TEST_F(MediaTableTest, ControlClickOnTheSelectedRowClosesTheFile) {
    addAll({"a", "b"});
    click(0);
    click(0, Qt::ControlModifier);
    EXPECT_EQ((QStringList{"/media/a", "close"}), document_.requests);
    EXPECT_EQ(-1, table_->curSelectedRow());
}

TEST_F(MediaTableTest, OpensNothingWhileTheButtonIsHeld) {
    addAll({"a", "b", "c"});
    QTest::mousePress(view_.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(0));
    settle();
    EXPECT_EQ(0, selectedRow());
    EXPECT_EQ(QStringList(), document_.requests);
    QTest::mouseRelease(view_.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(0));
    settle();
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
}

TEST_F(MediaTableTest, DraggingOverRowsOpensTheLastOneOnly) {
    addAll({"a", "b", "c"});
    QTest::mousePress(view_.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(0));
    for (int row : {1, 2}) {
        QMouseEvent move(QEvent::MouseMove, middleOf(row), view_.viewport()->mapToGlobal(middleOf(row)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view_.viewport(), &move);
        settle();
    }
    EXPECT_EQ(2, selectedRow());
    QTest::mouseRelease(view_.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(2));
    settle();
    EXPECT_EQ(QStringList{"/media/c"}, document_.requests);
}

TEST_F(MediaTableTest, HeldButtonIsForgottenWhenTheTableIsHidden) {
    addAll({"a"});
    QTest::mousePress(view_.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(0));
    view_.viewport()->hide();
    settle();
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
}

TEST_F(MediaTableTest, HeldButtonIsForgottenWhenTheWindowIsLeft) {
    addAll({"a"});
    QTest::mousePress(view_.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(0));
    QEvent left(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&view_, &left);
    settle();
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
}

TEST_F(MediaTableTest, RightButtonHoldsNothingBack) {
    addAll({"a", "b"});
    QTest::mousePress(view_.viewport(), Qt::RightButton, Qt::NoModifier, middleOf(1));
    settle();
    EXPECT_EQ(QStringList{"/media/b"}, document_.requests);
    QTest::mouseRelease(view_.viewport(), Qt::RightButton, Qt::NoModifier, middleOf(1));
}

TEST_F(MediaTableTest, QuestionsAreNeverStacked) {
    addAll({"a", "b", "c"});
    int depth = 0;
    int deepest = 0;
    document_.whileOpening = [&] {
        const ModalLoop question;
        deepest = std::max(deepest, ++depth);
        if (document_.requests.size() == 1) {
            view_.selectRow(2);
        }
        settle();
        --depth;
    };
    select(1);
    EXPECT_EQ(1, deepest);
    // The row that was selected during the question is opened after it.
    EXPECT_EQ((QStringList{"/media/b", "/media/c"}), document_.requests);
    EXPECT_EQ(2, table_->curSelectedRow());
}

TEST_F(MediaTableTest, HandlerThatIsCalledFromItselfRunsAgainAfterwards) {
    addAll({"a", "b", "c"});
    document_.whileOpening = [&] {
        if (document_.requests.size() == 1) {
            view_.selectRow(2);
            table_->tableViewSelectionDidChange();
            EXPECT_EQ(1, document_.requests.size());
        }
    };
    select(1);
    EXPECT_EQ((QStringList{"/media/b", "/media/c"}), document_.requests);
}

TEST_F(MediaTableTest, RowSelectedInALoopOfTheHandlersOwnIsOpenedAfterIt) {
    addAll({"a", "b", "c"});
    document_.whileOpening = [&] {
        if (document_.requests.size() == 1) {
            view_.selectRow(2);
            settle();
            EXPECT_EQ(1, document_.requests.size());
        }
    };
    select(1);
    EXPECT_EQ((QStringList{"/media/b", "/media/c"}), document_.requests);
}

TEST_F(MediaTableTest, SelectionDuringAnotherQuestionWaitsForItsEnd) {
    addAll({"a"});
    {
        const ModalLoop question;
        select(0);
        EXPECT_EQ(QStringList(), document_.requests);
    }
    settle();
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
}

TEST_F(MediaTableTest, TypingFindsAFileByTheBeginningOfItsName) {
    addAll({"alpha", "beta", "gamma"});
    select(0);
    view_.setCurrentIndex(view_.model()->index(0, createdColumn));
    QTest::keyClicks(&view_, "ga");
    settle();
    EXPECT_EQ(2, selectedRow());
    EXPECT_EQ("/media/gamma", document_.requests.last());
}

TEST_F(MediaTableTest, TypingGoesOnFromTheTop) {
    addAll({"alpha", "beta", "gamma"});
    select(2);
    QTest::keyClicks(&view_, "al");
    settle();
    EXPECT_EQ(0, selectedRow());
}

TEST_F(MediaTableTest, TabLeavesTheTableAndSelectsNothing) {
    QWidget window;
    QTableView inner;
    QLineEdit next;
    QVBoxLayout layout(&window);
    layout.addWidget(&inner);
    layout.addWidget(&next);
    MediaTable table(inner, document_, form());
    table.addColdataSorted(makeRow("a"));
    table.addColdataSorted(makeRow("b"));
    table.reloadData();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QApplication::setActiveWindow(&window);
    inner.setFocus();
    inner.selectRow(0);
    QTest::keyClick(&inner, Qt::Key_Tab);
    settle();
    EXPECT_TRUE(next.hasFocus());
    EXPECT_EQ(0, inner.selectionModel()->selectedRows().first().row());
}

TEST_F(MediaTableTest, FocusAloneSelectsNothing) {
    addAll({"a"});
    view_.clearFocus();
    view_.setFocus();
    settle();
    EXPECT_EQ(-1, selectedRow());
    EXPECT_EQ(QStringList(), document_.requests);
}

TEST_F(MediaTableTest, CellsCannotBeEdited) {
    addAll({"a"});
    select(0);
    press(Qt::Key_F2);
    EXPECT_EQ(nullptr, view_.indexWidget(view_.currentIndex()));
    EXPECT_FALSE(view_.model()->flags(view_.currentIndex()) & Qt::ItemIsEditable);
}

TEST_F(MediaTableTest, WholeRowsAreSelectedOneAtATime) {
    addAll({"a", "b", "c"});
    click(0);
    click(2, Qt::ShiftModifier);
    EXPECT_EQ(1, view_.selectionModel()->selectedRows().size());
    EXPECT_EQ(4, view_.selectionModel()->selectedIndexes().size());
}

TEST_F(MediaTableTest, NoColumnFollowsItsContents) {
    for (int column = 0; column < 4; ++column) {
        EXPECT_NE(QHeaderView::ResizeToContents, view_.horizontalHeader()->sectionResizeMode(column));
    }
    EXPECT_EQ(QHeaderView::Fixed, view_.verticalHeader()->sectionResizeMode(0));
}

TEST_F(MediaTableTest, TableThatIsGoneLeavesTheViewEmptyAndAlive) {
    addAll({"a"});
    view_.selectRow(0);
    table_.reset();
    settle();
    EXPECT_EQ(QStringList(), document_.requests);
    QTest::mouseClick(view_.viewport(), Qt::LeftButton);
    QTest::keyClick(&view_, Qt::Key_Down);
    settle();
}

} // namespace
} // namespace velmora
