#include "browser/media_rows.h"

#include "row_maker.h"

#include "support/qt_printing.h"

#include <QStringList>

#include <gmock/gmock.h>

namespace velmora {
namespace {

using test::byName;
using test::bySize;
using test::makeRow;

const TableColumn byDate{QStringLiteral("created")};
const TableColumn byIcon{QStringLiteral("icon")};

int compareNames(const QString& a, const QString& b) {
    return sort_table_columns(*makeRow(a), *makeRow(b), byName);
}
int compareDates(const QString& a, const QString& b) {
    return sort_table_columns(*makeRow({}, 0, a), *makeRow({}, 0, b), byDate);
}
int compareSizes(std::uint64_t a, std::uint64_t b) {
    return sort_table_columns(*makeRow({}, a), *makeRow({}, b), bySize);
}

TEST(SortTableColumns, NamesCompareWithoutRegardToCase) {
    EXPECT_EQ(0, compareNames("Song.mp3", "sONG.MP3"));
    EXPECT_EQ(-1, compareNames("a", "B"));
    EXPECT_EQ(1, compareNames("b", "A"));
    EXPECT_EQ(0, compareNames(QString::fromUtf8("\u00C9tude"), QString::fromUtf8("\u00E9tude")));
}

TEST(SortTableColumns, NamesCompareByTheirCharactersAndNotAsAPersonWould) {
    EXPECT_EQ(-1, compareNames("10.mp3", "9.mp3"));
    EXPECT_EQ(1, compareNames(QString::fromUtf8("\u00E9"), "z"));
    EXPECT_EQ(-1, compareNames("a b", "ab"));
}

TEST(SortTableColumns, NameThatBeginsAnotherComesBeforeIt) {
    EXPECT_EQ(-1, compareNames("", "a"));
    EXPECT_EQ(-1, compareNames("abcdefgh", "abcdefghi"));
    EXPECT_EQ(1, compareNames("abcdefghi", "abcdefgh"));
    EXPECT_EQ(0, compareNames("", ""));
}

TEST(SortTableColumns, LongNamesCompareLikeTheStringsThatTheyAre) {
    const QString beginnings[] = {"",
                                  "a",
                                  "abc",
                                  "abcd",
                                  "abcdefg",
                                  "ABCDEFGH",
                                  QString::fromUtf8("\U00010400bcd"),
                                  QString::fromUtf8("abc\U00010400"),
                                  QString::fromUtf8("abc\U00010428")};
    const QString ends[] = {"",
                            "x",
                            "X",
                            "y",
                            "xyz",
                            "xyzw",
                            QString::fromUtf8("\U00010400"),
                            QString::fromUtf8("\U00010428z"),
                            QString::fromUtf8("\U00010428"),
                            QString::fromUtf8("\U00010400z"),
                            QString(QChar(0xDC80)),
                            QString(QChar(0xD801))};
    for (const QString& beginning : beginnings) {
        for (const QString& first : ends) {
            for (const QString& second : ends) {
                const QString a = beginning + first;
                const QString b = beginning + second;
                const int expected = QString::compare(a, b, Qt::CaseInsensitive);
                EXPECT_EQ((expected > 0) - (expected < 0), compareNames(a, b))
                    << a.toStdString() << b.toStdString();
            }
        }
    }
}

TEST(SortTableColumns, DatesCompareAsTexts) {
    EXPECT_EQ(-1, compareDates("12/01/05 10:00:00", "12/02/05 09:00:00"));
    EXPECT_EQ(1, compareDates("12/01/05 10:00:00", "01/15/07 10:00:00"));
    EXPECT_EQ(0, compareDates("12/01/05 10:00:00", "12/01/05 10:00:00"));
}

TEST(SortTableColumns, DatesCompareWithRegardToCase) {
    EXPECT_EQ(-1, compareDates("1 PM", "1 am"));
}

TEST(SortTableColumns, SizesCompareAsNumbersAndNotAsTexts) {
    EXPECT_EQ(-1, compareSizes(921'600, 1'258'291));
    EXPECT_EQ(1, compareSizes(1'258'291, 921'600));
    EXPECT_EQ(0, compareSizes(5, 5));
}

TEST(SortTableColumns, SizesAreUnsigned) {
    EXPECT_EQ(-1, compareSizes(1, 0xFFFF'FFFF'FFFF'FFFF));
    EXPECT_EQ(1, compareSizes(0x8000'0000'0000'0000, 0x7FFF'FFFF'FFFF'FFFF));
}

TEST(SortTableColumns, EveryOtherColumnFindsAllRowsTheSame) {
    for (const char16_t* identifier : {u"icon", u"rawfilesize", u"fullpath", u"Filename", u""}) {
        EXPECT_EQ(0, sort_table_columns(*makeRow("a", 1, "1"), *makeRow("b", 2, "2"),
                                        TableColumn{QString::fromUtf16(identifier)}));
    }
}

class MediaRowsTest : public testing::Test {
protected:
    void add(const QString& name, std::uint64_t size = 0, const QString& created = {}) {
        rows_.addColdataSorted(makeRow(name, size, created));
    }
    [[nodiscard]] QStringList names() const {
        QStringList list;
        for (std::size_t index = 0; index < rows_.count(); ++index) {
            list += rows_.at(index)->filename;
        }
        return list;
    }

    MediaRows rows_;
};

TEST_F(MediaRowsTest, ThereIsNoSortColumnAtFirst) {
    EXPECT_EQ(std::nullopt, rows_.tableSortColumn());
    EXPECT_FALSE(rows_.tableSortDescending());
    EXPECT_EQ(0U, rows_.count());
}

TEST_F(MediaRowsTest, WithoutASortColumnRowsKeepTheOrderOfArrival) {
    for (const char* name : {"c", "a", "b", "a"}) {
        add(name);
    }
    EXPECT_EQ((QStringList{"c", "a", "b", "a"}), names());
}

TEST_F(MediaRowsTest, SortByANewColumnIsAscendingAndSortsTheList) {
    for (const char* name : {"c", "A", "b"}) {
        add(name);
    }
    rows_.sortBy(byName);
    EXPECT_EQ(byName, rows_.tableSortColumn());
    EXPECT_FALSE(rows_.tableSortDescending());
    EXPECT_EQ((QStringList{"A", "b", "c"}), names());
}

TEST_F(MediaRowsTest, SameColumnAgainTurnsTheDirectionAndLeavesTheList) {
    add("a");
    add("b");
    rows_.sortBy(byName);
    rows_.sortBy(byName);
    EXPECT_TRUE(rows_.tableSortDescending());
    EXPECT_EQ((QStringList{"a", "b"}), names());
    rows_.sortBy(byName);
    EXPECT_FALSE(rows_.tableSortDescending());
    EXPECT_EQ((QStringList{"a", "b"}), names());
}

TEST_F(MediaRowsTest, AnotherColumnIsAscendingAgain) {
    add("a", 2);
    add("b", 1);
    rows_.sortBy(byName);
    rows_.sortBy(byName);
    rows_.sortBy(bySize);
    EXPECT_FALSE(rows_.tableSortDescending());
    EXPECT_EQ(bySize, rows_.tableSortColumn());
    EXPECT_EQ((QStringList{"b", "a"}), names());
}

TEST_F(MediaRowsTest, RowsThatCompareEqualKeepTheirOrderInASort) {
    add("first", 7);
    add("second", 7);
    add("zeroth", 1);
    add("third", 7);
    rows_.sortBy(bySize);
    EXPECT_EQ((QStringList{"zeroth", "first", "second", "third"}), names());
}

TEST_F(MediaRowsTest, SortByDateGoesByTheText) {
    add("2005", 0, "12/01/05 10:00:00");
    add("2007", 0, "01/15/07 10:00:00");
    rows_.sortBy(byDate);
    EXPECT_EQ((QStringList{"2007", "2005"}), names());
}

TEST_F(MediaRowsTest, NewRowIsInsertedAtItsPlace) {
    rows_.sortBy(byName);
    for (const char* name : {"m", "z", "A", "n"}) {
        add(name);
    }
    EXPECT_EQ((QStringList{"A", "m", "n", "z"}), names());
}

TEST_F(MediaRowsTest, NewRowGoesBehindAllThatCompareEqual) {
    rows_.sortBy(bySize);
    add("first", 7);
    add("behind", 9);
    add("second", 7);
    add("third", 7);
    EXPECT_EQ((QStringList{"first", "second", "third", "behind"}), names());
}

TEST_F(MediaRowsTest, NewRowGoesByTheAscendingListAlsoWhileItIsShownDescending) {
    rows_.sortBy(byName);
    rows_.sortBy(byName);
    for (const char* name : {"b", "c", "a"}) {
        add(name);
    }
    EXPECT_TRUE(rows_.tableSortDescending());
    EXPECT_EQ((QStringList{"a", "b", "c"}), names());
}

TEST_F(MediaRowsTest, ColumnWithoutAnOrderKeepsTheOrderOfArrival) {
    add("b");
    add("a");
    rows_.sortBy(byIcon);
    add("0");
    EXPECT_EQ((QStringList{"b", "a", "0"}), names());
}

} // namespace
} // namespace velmora
