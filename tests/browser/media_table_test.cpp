#include "browser/media_table.h"

#include "fake_media_document.h"
#include "row_maker.h"
#include "support/bytes.h"
#include "support/qt_printing.h"
#include "support/scratch_folder.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace velmora {
namespace {

using test::FakeMediaDocument;
using test::makeRow;
using Answer = FakeMediaDocument::Answer;

constexpr int iconColumn = 0;
constexpr int nameColumn = 1;
constexpr int sizeColumn = 2;
constexpr int createdColumn = 3;

/** A shown table with a document that opens nothing. */
class MediaTableTest : public testing::Test {
protected:
    MediaTableTest() {
        view_.resize(700, 300);
        view_.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view_));
        QApplication::setActiveWindow(&view_);
        view_.setFocus();
    }

    MediaTable::Form form() {
        return {[this] { events_ += "clear"; }, [this] { events_ += "fill"; },
                [this](const Error& error) {
                    events_ += error.userInfo.value(NSLocalizedDescriptionKey).toString();
                }};
    }

    void add(const QString& name, std::uint64_t size = 0, const QString& created = {}) {
        table_->addColdataSorted(makeRow(name, size, created));
        table_->reloadData();
    }
    void addAll(const QStringList& names) {
        for (const QString& name : names) {
            add(name);
        }
    }
    static void runLoop() {
        for (int pass = 0; pass < 5; ++pass) {
            QCoreApplication::processEvents();
        }
    }
    void select(int row) {
        view_.selectRow(row);
        runLoop();
    }
    void deselect() {
        view_.clearSelection();
        runLoop();
    }
    [[nodiscard]] int selectedRow() const {
        const QModelIndexList rows = view_.selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.first().row();
    }
    [[nodiscard]] QStringList shownNames() const {
        QStringList names;
        for (int row = 0; row < view_.model()->rowCount(); ++row) {
            names += view_.model()->index(row, nameColumn).data().toString();
        }
        return names;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(&view_, key, modifiers);
        runLoop();
    }
    [[nodiscard]] QPoint middleOf(int row) const {
        return view_.visualRect(view_.model()->index(row, nameColumn)).center();
    }
    void click(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mouseClick(view_.viewport(), Qt::LeftButton, modifiers, middleOf(row));
        runLoop();
    }
    /** As a person clicks: with the mouse, on the header. */
    void clickHeader(int column) {
        QHeaderView* const header = view_.horizontalHeader();
        const QPoint middle(header->sectionViewportPosition(column) + header->sectionSize(column) / 2,
                            header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier, middle);
        runLoop();
    }

    QTableView view_;
    FakeMediaDocument document_;
    QStringList events_;
    std::unique_ptr<MediaTable> table_ = std::make_unique<MediaTable>(view_, document_, form());
};

TEST_F(MediaTableTest, NothingIsSelectedOrSortedAtFirst) {
    EXPECT_EQ(-1, table_->curSelectedRow());
    EXPECT_EQ(std::nullopt, table_->mediaFiles().tableSortColumn());
    EXPECT_FALSE(view_.horizontalHeader()->isSortIndicatorShown());
    runLoop();
    EXPECT_EQ(QStringList(), document_.requests);
}

// Rows.

TEST_F(MediaTableTest, AddedFileIsARowAtOnce) {
    const test::ScratchFolder scratch;
    test::write_file(scratch / "a.txt", "abc");
    EXPECT_TRUE(table_->addMediaFile(QString::fromStdString(scratch / "a.txt")));
    EXPECT_EQ(QStringList{"a.txt"}, shownNames());
    EXPECT_EQ(QString::fromStdString(scratch / "a.txt"), table_->mediaFiles().at(0)->fullpath);
    EXPECT_EQ("3.0 B", table_->mediaFiles().at(0)->filesize);
}

TEST_F(MediaTableTest, AddedFileIsShownAtItsSortedPlace) {
    const test::ScratchFolder scratch;
    table_->tableViewDidClickTableColumn(nameColumn);
    for (const char* name : {"b", "c", "a"}) {
        test::write_file(scratch / name, "abc");
        EXPECT_TRUE(table_->addMediaFile(QString::fromStdString(scratch / name)));
    }
    EXPECT_EQ((QStringList{"a", "b", "c"}), shownNames());
}

TEST_F(MediaTableTest, MissingFileIsNotAdded) {
    EXPECT_FALSE(table_->addMediaFile("/no/such/file.mp3"));
    EXPECT_FALSE(table_->addMediaFile(QString()));
    EXPECT_EQ(0U, table_->mediaFiles().count());
    EXPECT_EQ(0, view_.model()->rowCount());
}

TEST_F(MediaTableTest, SameFileMayBeAddedTwice) {
    const test::ScratchFolder scratch;
    test::write_file(scratch / "a.mp3", "abc");
    EXPECT_TRUE(table_->addMediaFile(QString::fromStdString(scratch / "a.mp3")));
    EXPECT_TRUE(table_->addMediaFile(QString::fromStdString(scratch / "a.mp3")));
    EXPECT_EQ((QStringList{"a.mp3", "a.mp3"}), shownNames());
}

TEST_F(MediaTableTest, LinkShowsItsOwnNameAndItsTargetsSize) {
    const test::ScratchFolder scratch;
    test::write_file(scratch / "target", "abcd");
    ASSERT_EQ(0, symlink("target", (scratch / "link.mp3").c_str()));
    EXPECT_TRUE(table_->addMediaFile(QString::fromStdString(scratch / "link.mp3")));
    EXPECT_EQ(QStringList{"link.mp3"}, shownNames());
    EXPECT_EQ(4U, table_->mediaFiles().at(0)->rawfilesize);
}

TEST_F(MediaTableTest, FloodOfFilesIsAllShownSoonAfter) {
    const test::ScratchFolder scratch;
    test::write_file(scratch / "a.mp3", "abc");
    const QString path = QString::fromStdString(scratch / "a.mp3");
    for (int number = 0; number < 1000; ++number) {
        ASSERT_TRUE(table_->addMediaFile(path));
    }
    EXPECT_EQ(1000U, table_->mediaFiles().count());
    EXPECT_TRUE(QTest::qWaitFor([this] { return view_.model()->rowCount() == 1000; }, 5000));
}

TEST_F(MediaTableTest, AskedForReloadIsNeverPutOff) {
    for (int number = 0; number < 1000; ++number) {
        add("a");
    }
    EXPECT_EQ(1000, view_.model()->rowCount());
}

// Sorting.

TEST_F(MediaTableTest, HeaderClickSortsAscendingAndShowsIt) {
    addAll({"b", "a", "c"});
    clickHeader(nameColumn);
    EXPECT_EQ((QStringList{"a", "b", "c"}), shownNames());
    EXPECT_TRUE(view_.horizontalHeader()->isSortIndicatorShown());
    EXPECT_EQ(nameColumn, view_.horizontalHeader()->sortIndicatorSection());
    EXPECT_EQ(Qt::AscendingOrder, view_.horizontalHeader()->sortIndicatorOrder());
}

TEST_F(MediaTableTest, SecondClickShowsTheListBackwardsAndAThirdForwards) {
    addAll({"b", "a", "c"});
    clickHeader(nameColumn);
    clickHeader(nameColumn);
    EXPECT_EQ((QStringList{"c", "b", "a"}), shownNames());
    EXPECT_EQ("a", table_->mediaFiles().at(0)->filename);
    EXPECT_EQ(Qt::DescendingOrder, view_.horizontalHeader()->sortIndicatorOrder());
    clickHeader(nameColumn);
    EXPECT_EQ((QStringList{"a", "b", "c"}), shownNames());
    EXPECT_EQ(Qt::AscendingOrder, view_.horizontalHeader()->sortIndicatorOrder());
}

TEST_F(MediaTableTest, AnotherColumnsClickIsAscendingAndTakesTheIndicator) {
    add("a", 1'258'291);
    add("b", 921'600);
    clickHeader(nameColumn);
    clickHeader(nameColumn);
    clickHeader(sizeColumn);
    EXPECT_EQ((QStringList{"b", "a"}), shownNames());
    EXPECT_EQ(sizeColumn, view_.horizontalHeader()->sortIndicatorSection());
    EXPECT_EQ(Qt::AscendingOrder, view_.horizontalHeader()->sortIndicatorOrder());
}

TEST_F(MediaTableTest, DateColumnSortsByTheText) {
    add("2005", 0, "12/01/05 10:00:00");
    add("2007", 0, "01/15/07 10:00:00");
    clickHeader(createdColumn);
    EXPECT_EQ((QStringList{"2007", "2005"}), shownNames());
}

TEST_F(MediaTableTest, IconColumnStandsForTheNames) {
    addAll({"b", "a"});
    clickHeader(iconColumn);
    EXPECT_EQ((QStringList{"a", "b"}), shownNames());
    EXPECT_EQ(nameColumn, view_.horizontalHeader()->sortIndicatorSection());
    EXPECT_EQ(Qt::AscendingOrder, view_.horizontalHeader()->sortIndicatorOrder());
    clickHeader(iconColumn);
    EXPECT_EQ((QStringList{"b", "a"}), shownNames());
    EXPECT_EQ(nameColumn, view_.horizontalHeader()->sortIndicatorSection());
    EXPECT_EQ(Qt::DescendingOrder, view_.horizontalHeader()->sortIndicatorOrder());
    clickHeader(nameColumn);
    EXPECT_EQ((QStringList{"a", "b"}), shownNames());
}

TEST_F(MediaTableTest, SortColumnsHeaderIsHighlighted) {
    const auto isBold = [this](int column) {
        return view_.model()->headerData(column, Qt::Horizontal, Qt::FontRole).value<QFont>().bold();
    };
    EXPECT_FALSE(isBold(nameColumn));
    clickHeader(iconColumn);
    EXPECT_TRUE(isBold(nameColumn));
    EXPECT_FALSE(isBold(iconColumn));
    clickHeader(sizeColumn);
    EXPECT_FALSE(isBold(nameColumn));
    EXPECT_TRUE(isBold(sizeColumn));
}

TEST_F(MediaTableTest, HeaderClickSelectsNothing) {
    addAll({"b", "a"});
    select(1);
    document_.requests.clear();
    clickHeader(sizeColumn);
    EXPECT_EQ(1, selectedRow());
    EXPECT_EQ(QStringList(), document_.requests);
}

// Selection.

TEST_F(MediaTableTest, SelectedRowsFileIsOpenedAndShown) {
    addAll({"a", "b"});
    select(1);
    EXPECT_EQ(QStringList{"/media/b"}, document_.requests);
    EXPECT_EQ(QStringList{"mediafile"}, document_.types);
    EXPECT_TRUE(document_.hadErrorSlot);
    EXPECT_EQ((QStringList{"clear", "fill"}), events_);
    EXPECT_EQ(1, table_->curSelectedRow());
}

TEST_F(MediaTableTest, RowIsRememberedOnlyAfterTheFormWasFilled) {
    QList<int> remembered;
    table_ = std::make_unique<MediaTable>(view_, document_,
                                          MediaTable::Form{[&] { remembered += table_->curSelectedRow(); },
                                                           [&] { remembered += table_->curSelectedRow(); },
                                                           [](const Error&) {}});
    addAll({"a", "b"});
    select(1);
    EXPECT_EQ((QList<int>{-1, -1}), remembered);
    EXPECT_EQ(1, table_->curSelectedRow());
}

TEST_F(MediaTableTest, ErrorSlotIsClearBeforeEachOpen) {
    addAll({"a", "b"});
    document_.answer = Answer::Fail;
    select(0);
    select(1);
    EXPECT_TRUE(document_.errorWasClear);
}

TEST_F(MediaTableTest, RememberedRowIsNotOpenedAgain) {
    addAll({"a", "b"});
    select(1);
    table_->tableViewSelectionDidChange();
    EXPECT_EQ(1, document_.requests.size());
}

TEST_F(MediaTableTest, HandlerWithoutASelectionAndAFileDoesNothing) {
    addAll({"a"});
    table_->tableViewSelectionDidChange();
    EXPECT_EQ(QStringList(), document_.requests);
    EXPECT_EQ(QStringList(), events_);
}

TEST_F(MediaTableTest, DeselectingClosesTheFileAndClearsTheForm) {
    addAll({"a"});
    select(0);
    events_.clear();
    deselect();
    EXPECT_EQ((QStringList{"/media/a", "close"}), document_.requests);
    EXPECT_EQ("", document_.types.last());
    EXPECT_FALSE(document_.hadErrorSlot);
    EXPECT_EQ(QStringList{"clear"}, events_);
    EXPECT_EQ(-1, table_->curSelectedRow());
}

TEST_F(MediaTableTest, RowIsForgottenBeforeTheFormIsCleared) {
    int remembered = 99;
    table_ = std::make_unique<MediaTable>(
        view_, document_,
        MediaTable::Form{[&] { remembered = table_->curSelectedRow(); }, [] {}, [](const Error&) {}});
    addAll({"a"});
    select(0);
    deselect();
    EXPECT_EQ(-1, remembered);
}

TEST_F(MediaTableTest, RefusedClosingSelectsTheRowAgain) {
    addAll({"a", "b"});
    select(1);
    events_.clear();
    document_.answer = Answer::Cancel;
    deselect();
    EXPECT_EQ(1, selectedRow());
    EXPECT_EQ(1, table_->curSelectedRow());
    EXPECT_EQ(QStringList(), events_);
    EXPECT_EQ((QStringList{"/media/b", "close"}), document_.requests);
}

TEST_F(MediaTableTest, RefusedOpeningSelectsTheOldRowAgainSilently) {
    addAll({"a", "b"});
    select(0);
    events_.clear();
    document_.answer = Answer::Cancel;
    select(1);
    EXPECT_EQ(0, selectedRow());
    EXPECT_EQ(0, table_->curSelectedRow());
    EXPECT_EQ(QStringList(), events_);
    EXPECT_EQ((QStringList{"/media/a", "/media/b"}), document_.requests);
}

TEST_F(MediaTableTest, FailedOpeningShowsItsErrorAndSelectsTheOldRowAgain) {
    addAll({"a", "b"});
    select(0);
    events_.clear();
    document_.answer = Answer::Fail;
    select(1);
    EXPECT_EQ(QStringList{"no"}, events_);
    EXPECT_EQ(0, selectedRow());
    EXPECT_EQ(0, table_->curSelectedRow());
    EXPECT_EQ(2, document_.requests.size());
}

TEST_F(MediaTableTest, ErrorIsShownBeforeTheSelectionIsRestored) {
    int selectedAtError = -2;
    table_ = std::make_unique<MediaTable>(
        view_, document_,
        MediaTable::Form{[] {}, [] {}, [&](const Error&) { selectedAtError = selectedRow(); }});
    addAll({"a", "b"});
    document_.answer = Answer::Fail;
    select(1);
    EXPECT_EQ(1, selectedAtError);
    EXPECT_EQ(-1, selectedRow());
}

TEST_F(MediaTableTest, ErrorOfAnyContentIsShown) {
    addAll({"a"});
    document_.answer = Answer::Fail;
    for (const Error& error :
         {Error{QStringLiteral("domain"), 0, {}}, Error{QString(), 5, {}}, Error{QString(), 0, {{"k", 1}}}}) {
        document_.failure = error;
        events_.clear();
        select(0);
        EXPECT_EQ(1, events_.size());
    }
}

TEST_F(MediaTableTest, FailedFirstOpeningLeavesNothingSelected) {
    addAll({"a"});
    document_.answer = Answer::Fail;
    select(0);
    EXPECT_EQ(-1, selectedRow());
    EXPECT_EQ(-1, table_->curSelectedRow());
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
}

TEST_F(MediaTableTest, RowWithoutAPathIsNotOpenedAndTheOldRowIsSelectedAgain) {
    addAll({"a"});
    table_->addColdataSorted(std::make_shared<const coldata>());
    table_->reloadData();
    select(0);
    events_.clear();
    select(1);
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
    EXPECT_EQ(QStringList(), events_);
    EXPECT_EQ(0, selectedRow());
}

TEST_F(MediaTableTest, DescendingDisplayOpensTheMirroredRowsFile) {
    addAll({"a", "b", "c"});
    clickHeader(nameColumn);
    clickHeader(nameColumn);
    ASSERT_EQ((QStringList{"c", "b", "a"}), shownNames());
    select(0);
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
    EXPECT_EQ(0, table_->curSelectedRow());
}

TEST_F(MediaTableTest, SortingTurningAndInsertingOpenNothingAndKeepTheRow) {
    addAll({"b", "c"});
    select(1);
    document_.requests.clear();
    clickHeader(nameColumn);
    add("a");
    runLoop();
    clickHeader(nameColumn);
    EXPECT_EQ(QStringList(), document_.requests);
    EXPECT_EQ(1, table_->curSelectedRow());
    EXPECT_EQ(1, selectedRow());
    EXPECT_EQ(1, view_.currentIndex().row());
}

TEST_F(MediaTableTest, InsertingAboveTheSelectedRowKeepsTheSelectedIndex) {
    clickHeader(nameColumn);
    addAll({"m"});
    select(0);
    document_.requests.clear();
    addAll({"a", "b", "c"});
    runLoop();
    EXPECT_EQ(0, selectedRow());
    EXPECT_EQ("a", shownNames().at(0));
    EXPECT_EQ(QStringList(), document_.requests);
    select(1);
    EXPECT_EQ(QStringList{"/media/b"}, document_.requests);
}

TEST_F(MediaTableTest, ForgottenRowIsOpenedAgainByTheNextCall) {
    addAll({"a", "b"});
    select(1);
    table_->forgetSelectedRow();
    EXPECT_EQ(-1, table_->curSelectedRow());
    table_->tableViewSelectionDidChange();
    EXPECT_EQ((QStringList{"/media/b", "/media/b"}), document_.requests);
    EXPECT_EQ(1, table_->curSelectedRow());
}

TEST_F(MediaTableTest, ForgottenRowWithoutASelectionOpensNothing) {
    addAll({"a"});
    table_->forgetSelectedRow();
    table_->tableViewSelectionDidChange();
    EXPECT_EQ(QStringList(), document_.requests);
}

TEST_F(MediaTableTest, FailedOpeningOfAForgottenRowDeselectsIt) {
    addAll({"a"});
    select(0);
    table_->forgetSelectedRow();
    document_.answer = Answer::Fail;
    table_->tableViewSelectionDidChange();
    EXPECT_EQ(-1, selectedRow());
    EXPECT_EQ(-1, table_->curSelectedRow());
}

TEST_F(MediaTableTest, PathsOfAnyBytesAreOpenedByteForByte) {
    const QByteArray path = "/f\xE4/<b>caf\xE9\n#1?100%41.mp3";
    coldata row = *makeRow("x");
    row.fullpath = pathFromBytes(path);
    table_->addColdataSorted(std::make_shared<const coldata>(row));
    table_->reloadData();
    select(0);
    ASSERT_EQ(1, document_.requests.size());
    EXPECT_EQ(path, pathBytes(document_.requests[0]));
}

// One request for each act of the person.

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
    runLoop();
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
    runLoop();
    EXPECT_EQ(0, selectedRow());
    EXPECT_EQ(QStringList(), document_.requests);
    QTest::mouseRelease(view_.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(0));
    runLoop();
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
}

TEST_F(MediaTableTest, DraggingOverRowsOpensTheLastOneOnly) {
    addAll({"a", "b", "c"});
    QTest::mousePress(view_.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(0));
    for (int row : {1, 2}) {
        QMouseEvent move(QEvent::MouseMove, middleOf(row), view_.viewport()->mapToGlobal(middleOf(row)),
                         Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view_.viewport(), &move);
        runLoop();
    }
    EXPECT_EQ(2, selectedRow());
    QTest::mouseRelease(view_.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(2));
    runLoop();
    EXPECT_EQ(QStringList{"/media/c"}, document_.requests);
}

TEST_F(MediaTableTest, HeldButtonIsForgottenWhenTheTableIsHidden) {
    addAll({"a"});
    QTest::mousePress(view_.viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(0));
    view_.hide();
    runLoop();
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
}

TEST_F(MediaTableTest, RightButtonHoldsNothingBack) {
    addAll({"a", "b"});
    QTest::mousePress(view_.viewport(), Qt::RightButton, Qt::NoModifier, middleOf(1));
    runLoop();
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
        runLoop();
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

TEST_F(MediaTableTest, SelectionDuringAnotherQuestionWaitsForItsEnd) {
    addAll({"a"});
    {
        const ModalLoop question;
        select(0);
        EXPECT_EQ(QStringList(), document_.requests);
    }
    runLoop();
    EXPECT_EQ(QStringList{"/media/a"}, document_.requests);
}

// The keyboard.

TEST_F(MediaTableTest, TypingFindsAFileByTheBeginningOfItsName) {
    addAll({"alpha", "beta", "gamma"});
    select(0);
    view_.setCurrentIndex(view_.model()->index(0, createdColumn));
    QTest::keyClicks(&view_, "ga");
    runLoop();
    EXPECT_EQ(2, selectedRow());
    EXPECT_EQ("/media/gamma", document_.requests.last());
}

TEST_F(MediaTableTest, TypingGoesOnFromTheTop) {
    addAll({"alpha", "beta", "gamma"});
    select(2);
    QTest::keyClicks(&view_, "al");
    runLoop();
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
    runLoop();
    EXPECT_TRUE(next.hasFocus());
    EXPECT_EQ(0, inner.selectionModel()->selectedRows().first().row());
}

TEST_F(MediaTableTest, FocusAloneSelectsNothing) {
    addAll({"a"});
    view_.clearFocus();
    view_.setFocus();
    runLoop();
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
    runLoop();
    EXPECT_EQ(QStringList(), document_.requests);
    QTest::mouseClick(view_.viewport(), Qt::LeftButton);
    QTest::keyClick(&view_, Qt::Key_Down);
    runLoop();
}

} // namespace
} // namespace velmora
