#include "browser/media_table_model.h"

#include "row_maker.h"

#include "platform/assertion.h"
#include "support/qt_printing.h"

#include <QAbstractItemModelTester>
#include <QFont>
#include <QSignalSpy>
#include <QStringList>

#include <gmock/gmock.h>

namespace velmora {
namespace {

using test::byName;
using test::bySize;
using test::makeRow;

class MediaTableModelTest : public testing::Test {
protected:
    void add(const QString& name, std::uint64_t size = 0) { rows_.addColdataSorted(makeRow(name, size)); }
    void addAndReload(const QString& name) {
        add(name);
        model_.reloadData();
    }
    [[nodiscard]] QStringList shownNames() const {
        QStringList names;
        for (int row = 0; row < model_.numberOfRowsInTableView(); ++row) {
            names += model_.tableViewObjectValueForTableColumn(byName, row).toString();
        }
        return names;
    }
    [[nodiscard]] QVariant shown(int row, const char16_t* column, int role = Qt::DisplayRole) const {
        return model_.index(row, MediaTableModel::columnIndex(column)).data(role);
    }

    MediaRows rows_;
    MediaTableModel model_{rows_};
};

TEST_F(MediaTableModelTest, KeepsTheRulesOfItemModels) {
    const QAbstractItemModelTester tester(&model_, QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const char* name : {"b", "a", "c"}) {
        addAndReload(name);
    }
    rows_.sortBy(byName);
    model_.reloadData();
    addAndReload("aa");
    add("x");
    add("y");
    model_.reloadData();
    EXPECT_EQ(6, model_.rowCount());
}

TEST_F(MediaTableModelTest, ColumnsAreIconNameSizeAndDate) {
    ASSERT_EQ(4, model_.columnCount());
    EXPECT_EQ(0, MediaTableModel::columnIndex(u"icon"));
    EXPECT_EQ(1, MediaTableModel::columnIndex(u"filename"));
    EXPECT_EQ(2, MediaTableModel::columnIndex(u"filesize"));
    EXPECT_EQ(3, MediaTableModel::columnIndex(u"created"));
    EXPECT_EQ(-1, MediaTableModel::columnIndex(u"rawfilesize"));
}

TEST_F(MediaTableModelTest, CountsTheRows) {
    EXPECT_EQ(0, model_.numberOfRowsInTableView());
    add("a");
    add("b");
    EXPECT_EQ(2, model_.numberOfRowsInTableView());
}

TEST_F(MediaTableModelTest, ValueIsWhatTheRecordHasUnderTheColumnsIdentifier) {
    add("a.mp3", 102'401);
    const auto value = [this](const char16_t* identifier) {
        return model_.tableViewObjectValueForTableColumn(TableColumn{QString::fromUtf16(identifier)}, 0);
    };
    EXPECT_EQ(QVariant("a.mp3"), value(u"filename"));
    EXPECT_EQ(QVariant("100.0 KB"), value(u"filesize"));
    EXPECT_EQ(QVariant("/media/a.mp3"), value(u"fullpath"));
    EXPECT_EQ(QVariant::fromValue<quint64>(102'401), value(u"rawfilesize"));
    EXPECT_FALSE(value(u"artist").isValid());
}

TEST_F(MediaTableModelTest, DescendingDisplayMirrorsTheRows) {
    for (const char* name : {"b", "a", "c"}) {
        add(name);
    }
    rows_.sortBy(byName);
    EXPECT_EQ((QStringList{"a", "b", "c"}), shownNames());
    rows_.sortBy(byName);
    EXPECT_EQ((QStringList{"c", "b", "a"}), shownNames());
}

TEST_F(MediaTableModelTest, RowAddedWhileDescendingIsShownAtItsMirroredPlace) {
    rows_.sortBy(byName);
    rows_.sortBy(byName);
    for (const char* name : {"b", "a", "c"}) {
        add(name);
    }
    EXPECT_EQ((QStringList{"c", "b", "a"}), shownNames());
}

class RowAssertionTest : public MediaTableModelTest {
protected:
    RowAssertionTest() {
        former_ = setAssertionHandler([this](const AssertionFailure& failure) { failures_.append(failure); });
        add("a");
        add("b");
    }
    ~RowAssertionTest() override { setAssertionHandler(former_); }

    QList<AssertionFailure> failures_;

private:
    AssertionHandler former_;
};

TEST_F(RowAssertionTest, RowsOfTheListPass) {
    EXPECT_TRUE(model_.tableViewObjectValueForTableColumn(byName, 0).isValid());
    EXPECT_TRUE(model_.tableViewObjectValueForTableColumn(byName, 1).isValid());
    EXPECT_EQ(0, failures_.size());
}

TEST_F(RowAssertionTest, RowBehindTheListFails) {
    EXPECT_FALSE(model_.tableViewObjectValueForTableColumn(byName, 2).isValid());
    ASSERT_EQ(1, failures_.size());
    EXPECT_EQ("Invalid parameter not satisfying: rowIndex >= 0 && rowIndex < [mediaFiles count]",
              failures_[0].description);
    EXPECT_EQ("VelmoraController", failures_[0].source);
    EXPECT_EQ(430, failures_[0].line);
}

TEST_F(RowAssertionTest, NegativeRowFails) {
    EXPECT_FALSE(model_.tableViewObjectValueForTableColumn(byName, -1).isValid());
    EXPECT_EQ(1, failures_.size());
}

TEST_F(RowAssertionTest, EveryRowOfAnEmptyTableFails) {
    const MediaRows none;
    const MediaTableModel empty(none);
    EXPECT_FALSE(empty.tableViewObjectValueForTableColumn(byName, 0).isValid());
    EXPECT_EQ(1, failures_.size());
}

TEST_F(RowAssertionTest, RowIsCheckedBeforeItIsMirrored) {
    rows_.sortBy(byName);
    rows_.sortBy(byName);
    EXPECT_FALSE(model_.tableViewObjectValueForTableColumn(byName, 2).isValid());
    EXPECT_FALSE(model_.tableViewObjectValueForTableColumn(byName, -1).isValid());
    EXPECT_EQ(2, failures_.size());
}

TEST_F(RowAssertionTest, InvalidIndexIsNoRowAndShowsNothing) {
    EXPECT_FALSE(model_.data(QModelIndex(), Qt::DisplayRole).isValid());
    EXPECT_EQ(0, failures_.size());
}

TEST_F(MediaTableModelTest, ViewsKnowOfNewRowsFromTheReloadOn) {
    add("a");
    EXPECT_EQ(0, model_.rowCount());
    model_.reloadData();
    EXPECT_EQ(1, model_.rowCount());
}

TEST_F(MediaTableModelTest, ModelOfAListThatHasRowsKnowsThem) {
    add("a");
    const MediaTableModel model(rows_);
    EXPECT_EQ(1, model.rowCount());
}

TEST_F(MediaTableModelTest, RowsHaveNoRowsBelow) {
    addAndReload("a");
    EXPECT_EQ(0, model_.rowCount(model_.index(0, 0)));
    EXPECT_EQ(0, model_.columnCount(model_.index(0, 0)));
}

TEST_F(MediaTableModelTest, NewRowIsReportedAtTheEndWhereverItIsInserted) {
    rows_.sortBy(byName);
    addAndReload("b");
    const QSignalSpy inserted(&model_, &QAbstractItemModel::rowsInserted);
    addAndReload("a");
    ASSERT_EQ(1, inserted.size());
    EXPECT_EQ(1, inserted[0][1].toInt());
    EXPECT_EQ(1, inserted[0][2].toInt());
}

TEST_F(MediaTableModelTest, EveryReloadReportsAllCellsAsChanged) {
    addAndReload("b");
    add("a");
    const QSignalSpy changed(&model_, &QAbstractItemModel::dataChanged);
    model_.reloadData();
    ASSERT_EQ(1, changed.size());
    EXPECT_EQ(model_.index(0, 0), changed[0][0].toModelIndex());
    EXPECT_EQ(model_.index(1, 3), changed[0][1].toModelIndex());
}

TEST_F(MediaTableModelTest, NoReloadMovesRemovesOrResetsRows) {
    const QSignalSpy reset(&model_, &QAbstractItemModel::modelReset);
    const QSignalSpy layout(&model_, &QAbstractItemModel::layoutChanged);
    const QSignalSpy moved(&model_, &QAbstractItemModel::rowsMoved);
    const QSignalSpy removed(&model_, &QAbstractItemModel::rowsRemoved);
    for (const char* name : {"b", "a", "c"}) {
        addAndReload(name);
    }
    rows_.sortBy(byName);
    model_.reloadData();
    EXPECT_EQ(0, reset.size() + layout.size() + moved.size() + removed.size());
}

TEST_F(MediaTableModelTest, ReloadOfAnEmptyTableReportsNothing) {
    const QSignalSpy changed(&model_, &QAbstractItemModel::dataChanged);
    model_.reloadData();
    EXPECT_EQ(0, changed.size());
}

TEST_F(MediaTableModelTest, TextColumnsShowTexts) {
    rows_.addColdataSorted(makeRow("a.mp3", 500'000, "05/04/08 10:20:30"));
    model_.reloadData();
    EXPECT_EQ(QVariant("a.mp3"), shown(0, u"filename"));
    EXPECT_EQ(QVariant("488.3 KB"), shown(0, u"filesize"));
    EXPECT_EQ(QVariant("05/04/08 10:20:30"), shown(0, u"created"));
}

TEST_F(MediaTableModelTest, NamesWithLineBreaksAreShownOnOneLine) {
    const QString name = QString("two\nlines\tand") + QChar(QChar::LineSeparator) + "more\x7F.mp3";
    addAndReload(name);
    EXPECT_EQ(QVariant("two lines and more .mp3"), shown(0, u"filename"));
    EXPECT_EQ(QVariant(name), model_.tableViewObjectValueForTableColumn(byName, 0));
}

TEST_F(MediaTableModelTest, EveryOtherCharacterOfANameIsShownAsItIs) {
    const QString name = QString::fromUtf8("Stra\u00DFe  \u00A0\U0001F3AC\u200D e\u0301 \u05D0.mp3");
    addAndReload(name);
    EXPECT_EQ(QVariant(name), shown(0, u"filename"));
}

TEST_F(MediaTableModelTest, IconColumnShowsAnIconAndNoText) {
    coldata row = *makeRow("a.mp3");
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    row.icon = QIcon(pixmap);
    rows_.addColdataSorted(std::make_shared<const coldata>(row));
    model_.reloadData();
    EXPECT_FALSE(shown(0, u"icon").isValid());
    EXPECT_EQ(row.icon.cacheKey(), shown(0, u"icon", Qt::DecorationRole).value<QIcon>().cacheKey());
    EXPECT_FALSE(shown(0, u"filename", Qt::DecorationRole).isValid());
}

TEST_F(MediaTableModelTest, CellsOfDescendingRowsShowTheMirroredRecord) {
    addAndReload("a");
    addAndReload("b");
    rows_.sortBy(byName);
    rows_.sortBy(byName);
    EXPECT_EQ(QVariant("b"), shown(0, u"filename"));
    EXPECT_EQ(QVariant("a"), shown(1, u"filename"));
}

TEST_F(MediaTableModelTest, SizesStandAtTheRight) {
    addAndReload("a");
    EXPECT_EQ(int(Qt::AlignRight | Qt::AlignVCenter), shown(0, u"filesize", Qt::TextAlignmentRole).toInt());
    EXPECT_EQ(int(Qt::AlignLeft | Qt::AlignVCenter), shown(0, u"filename", Qt::TextAlignmentRole).toInt());
}

TEST_F(MediaTableModelTest, ToolTipIsThePathAndNeverTakenForRichText) {
    addAndReload("<b>x</b> & y");
    EXPECT_EQ(QVariant("<span>/media/&lt;b&gt;x&lt;/b&gt; &amp; y</span>"),
              shown(0, u"filename", Qt::ToolTipRole));
}

TEST_F(MediaTableModelTest, ToolTipOfADateIsTheWholeDate) {
    rows_.addColdataSorted(makeRow("a.mp3", 500'000, "11/22/2026 11:28:54 AM"));
    model_.reloadData();
    EXPECT_EQ(QVariant("<span>11/22/2026 11:28:54 AM</span>"), shown(0, u"created", Qt::ToolTipRole));
    EXPECT_EQ(QVariant("<span>/media/a.mp3</span>"), shown(0, u"filesize", Qt::ToolTipRole));
}

TEST_F(MediaTableModelTest, CellsThatTheKeyboardIsInSpeakNameKindAndSize) {
    add("song.mp3", 102'401);
    add("film.avi", 500'000);
    add("two\nlines.txt");
    add("cover.jpg");
    model_.reloadData();
    for (const char16_t* column : {u"icon", u"filename"}) {
        EXPECT_EQ(QVariant("song.mp3, Song, 100.0 KB"), shown(0, column, Qt::AccessibleTextRole));
        EXPECT_EQ(QVariant("film.avi, Film, 488.3 KB"), shown(1, column, Qt::AccessibleTextRole));
        EXPECT_EQ(QVariant("two lines.txt, Other file, 0.0 B"), shown(2, column, Qt::AccessibleTextRole));
        EXPECT_EQ(QVariant("cover.jpg, Picture, 0.0 B"), shown(3, column, Qt::AccessibleTextRole));
    }
    EXPECT_EQ(QVariant("100.0 KB"), shown(0, u"filesize", Qt::AccessibleTextRole));
}

TEST_F(MediaTableModelTest, HeadersNameTheirColumns) {
    const auto title = [this](int column) {
        return model_.headerData(column, Qt::Horizontal, Qt::DisplayRole);
    };
    EXPECT_EQ(QVariant(""), title(0));
    EXPECT_EQ(QVariant("Name"), title(1));
    EXPECT_EQ(QVariant("Size"), title(2));
    EXPECT_EQ(QVariant("Date"), title(3));
    EXPECT_FALSE(title(4).isValid());
    EXPECT_FALSE(model_.headerData(0, Qt::Vertical, Qt::DisplayRole).isValid());
}

TEST_F(MediaTableModelTest, OnlyTheHighlightedColumnsHeaderStandsOut) {
    const auto isBold = [this](int column) {
        return model_.headerData(column, Qt::Horizontal, Qt::FontRole).value<QFont>().bold();
    };
    EXPECT_FALSE(isBold(1));
    const QSignalSpy changed(&model_, &QAbstractItemModel::headerDataChanged);
    model_.setHighlightedTableColumn(1);
    EXPECT_EQ(1, changed.size());
    EXPECT_TRUE(isBold(1));
    model_.setHighlightedTableColumn(2);
    EXPECT_FALSE(isBold(1));
    EXPECT_TRUE(isBold(2));
}

TEST_F(MediaTableModelTest, TypingFindsNamesFromAnyColumn) {
    for (const char* name : {"alpha", "beta", "gamma"}) {
        addAndReload(name);
    }
    for (int column = 0; column < model_.columnCount(); ++column) {
        const QModelIndexList found = model_.match(model_.index(0, column), Qt::DisplayRole, "GA", 1,
                                                   Qt::MatchStartsWith | Qt::MatchWrap);
        ASSERT_EQ(1, found.size());
        EXPECT_EQ(model_.index(2, 1), found[0]);
    }
}

TEST_F(MediaTableModelTest, SearchForAnotherRoleStaysInItsColumn) {
    addAndReload("alpha");
    const QModelIndexList found =
        model_.match(model_.index(0, 2), Qt::ToolTipRole, "<span>", 1, Qt::MatchStartsWith);
    ASSERT_EQ(1, found.size());
    EXPECT_EQ(2, found[0].column());
}

} // namespace
} // namespace velmora
