#include "media_table_fixture.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"

#include <QSignalSpy>

#include <unistd.h>

namespace velmora {
namespace {

using test::createdColumn;
using test::iconColumn;
using test::MediaTableTest;
using test::nameColumn;
using test::settle;
using test::sizeColumn;

TEST_F(MediaTableTest, NothingIsSelectedOrSortedAtFirst) {
    EXPECT_EQ(-1, table_->curSelectedRow());
    EXPECT_EQ(std::nullopt, table_->mediaFiles().tableSortColumn());
    EXPECT_FALSE(view_.horizontalHeader()->isSortIndicatorShown());
    settle();
    EXPECT_EQ(QStringList(), document_.requests);
}

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

TEST_F(MediaTableTest, EveryFileOfAFloodIsTheViewsAtOnce) {
    const test::ScratchFolder scratch;
    test::write_file(scratch / "a.mp3", "abc");
    const QString path = QString::fromStdString(scratch / "a.mp3");
    const QSignalSpy inserted(view_.model(), &QAbstractItemModel::rowsInserted);
    const QSignalSpy changed(view_.model(), &QAbstractItemModel::dataChanged);
    const QSignalSpy reset(view_.model(), &QAbstractItemModel::modelReset);
    for (int number = 1; number <= 1000; ++number) {
        ASSERT_TRUE(table_->addMediaFile(path));
        ASSERT_EQ(number, view_.model()->rowCount());
        ASSERT_EQ(number, inserted.count());
        ASSERT_EQ(number, changed.count());
    }
    EXPECT_EQ(0, reset.count());
}

TEST_F(MediaTableTest, AskedForReloadIsNeverPutOff) {
    for (int number = 0; number < 1000; ++number) {
        add("a");
    }
    EXPECT_EQ(1000, view_.model()->rowCount());
}

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

TEST_F(MediaTableTest, EachHeaderClickReloadsTheTable) {
    addAll({"b", "a", "c"});
    for (const char* which : {"first", "second", "third"}) {
        const QSignalSpy reloads(view_.model(), &QAbstractItemModel::dataChanged);
        clickHeader(nameColumn);
        ASSERT_EQ(1, reloads.count()) << which;
        EXPECT_EQ(view_.model()->index(0, iconColumn), reloads[0][0].toModelIndex()) << which;
        EXPECT_EQ(view_.model()->index(2, createdColumn), reloads[0][1].toModelIndex()) << which;
    }
}

TEST_F(MediaTableTest, DoubleClickOnAHeaderIsTwoClicks) {
    addAll({"b", "a", "c"});
    doubleClickHeader(nameColumn);
    EXPECT_EQ((QStringList{"c", "b", "a"}), shownNames());
    EXPECT_EQ(nameColumn, view_.horizontalHeader()->sortIndicatorSection());
    EXPECT_EQ(Qt::DescendingOrder, view_.horizontalHeader()->sortIndicatorOrder());
    doubleClickHeader(nameColumn);
    EXPECT_EQ((QStringList{"c", "b", "a"}), shownNames());
    doubleClickHeader(iconColumn);
    EXPECT_EQ((QStringList{"c", "b", "a"}), shownNames());
    EXPECT_EQ(nameColumn, view_.horizontalHeader()->sortIndicatorSection());
    clickHeader(nameColumn);
    EXPECT_EQ((QStringList{"a", "b", "c"}), shownNames());
}

TEST_F(MediaTableTest, ThreeQuickClicksOnAHeaderAreThree) {
    addAll({"b", "a", "c"});
    doubleClickHeader(nameColumn);
    QTest::mouseClick(view_.windowHandle(), Qt::LeftButton, Qt::NoModifier, middleOfHeader(nameColumn));
    settle();
    EXPECT_EQ((QStringList{"a", "b", "c"}), shownNames());
    EXPECT_EQ(Qt::AscendingOrder, view_.horizontalHeader()->sortIndicatorOrder());
}

TEST_F(MediaTableTest, DoubleClickWithAnotherButtonSortsNothing) {
    addAll({"b", "a"});
    doubleClickHeader(nameColumn, Qt::RightButton);
    EXPECT_EQ((QStringList{"b", "a"}), shownNames());
    EXPECT_EQ(std::nullopt, table_->mediaFiles().tableSortColumn());
}

TEST_F(MediaTableTest, DoubleClickBesideTheHeadersSortsNothing) {
    addAll({"b", "a"});
    view_.horizontalHeader()->setSectionResizeMode(nameColumn, QHeaderView::Fixed);
    view_.horizontalHeader()->resizeSection(nameColumn, 50);
    const QPoint beside(view_.width() - 10, middleOfHeader(nameColumn).y());
    ASSERT_EQ(-1, view_.horizontalHeader()->logicalIndexAt(beside));
    QTest::mouseDClick(view_.windowHandle(), Qt::LeftButton, Qt::NoModifier, beside);
    settle();
    EXPECT_EQ(std::nullopt, table_->mediaFiles().tableSortColumn());
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

} // namespace
} // namespace velmora
