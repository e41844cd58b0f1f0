#include "library/row_order.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace velmora {
namespace {

class RowOrderTest : public testing::Test {
protected:
    void add(const QString& path, const QString& artist, int year) {
        const int row = rows_.add(path, static_cast<std::uint64_t>(path.size()));
        RowEdits edits;
        ASSERT_TRUE(editText(edits, rows_.at(row), LibraryColumn::artist, artist));
        ASSERT_TRUE(editText(edits, rows_.at(row), LibraryColumn::year, QString::number(year)));
        rows_.setEdits(row, edits);
    }
    QStringList namesSortedBy(const std::vector<SortKey>& keys,
                              const QLocale& locale = QLocale(QLocale::English)) {
        QStringList names;
        for (const int row : sortedRows(rows_, keys, locale)) {
            names += rows_.at(row).name().chopped(4);
        }
        return names;
    }

    LibraryRows rows_;
};

TEST_F(RowOrderTest, NumbersInNamesCountByTheirValue) {
    for (const char* name : {"/track 10.mp3", "/track 9.mp3", "/Track 100.mp3", "/track 09.mp3"}) {
        add(name, "", 0);
    }
    EXPECT_EQ(QStringList({"track 9", "track 09", "track 10", "Track 100"}),
              namesSortedBy({{LibraryColumn::name}}));
    EXPECT_EQ(QStringList({"track 9", "track 09", "track 10", "Track 100"}),
              namesSortedBy({{LibraryColumn::name}}, QLocale::c()));
}

TEST_F(RowOrderTest, LettersStandWhereTheLocaleHasThem) {
    for (const char* name : {"/z.mp3", "/ä.mp3", "/a.mp3"}) {
        add(name, "", 0);
    }
    EXPECT_EQ(QStringList({"a", "ä", "z"}), namesSortedBy({{LibraryColumn::name}}, QLocale(QLocale::German)));
    EXPECT_EQ(QStringList({"a", "z", "ä"}),
              namesSortedBy({{LibraryColumn::name}}, QLocale(QLocale::Swedish)));
}

TEST_F(RowOrderTest, TheFirstKeyDecidesBeforeTheSecond) {
    add("/1.mp3", "Zoe", 1990);
    add("/2.mp3", "ann", 1980);
    add("/3.mp3", "Zoe", 1970);
    add("/4.mp3", "Ann", 1999);
    EXPECT_EQ(QStringList({"2", "4", "3", "1"}),
              namesSortedBy({{LibraryColumn::artist}, {LibraryColumn::year}}));
    EXPECT_EQ(QStringList({"1", "3", "4", "2"}),
              namesSortedBy({{LibraryColumn::artist, true}, {LibraryColumn::year, true}}));
}

TEST_F(RowOrderTest, WhatIsEmptyComesLastInBothDirections) {
    add("/1.mp3", "", 0);
    add("/2.mp3", "B", 1980);
    add("/3.mp3", "A", 1990);
    EXPECT_EQ(QStringList({"3", "2", "1"}), namesSortedBy({{LibraryColumn::artist}}));
    EXPECT_EQ(QStringList({"2", "3", "1"}), namesSortedBy({{LibraryColumn::artist, true}}));
    EXPECT_EQ(QStringList({"2", "3", "1"}), namesSortedBy({{LibraryColumn::year}}));
    EXPECT_EQ(QStringList({"3", "2", "1"}), namesSortedBy({{LibraryColumn::year, true}}));
}

TEST_F(RowOrderTest, EqualFilesStayAsTheyCameAndRemovedOnesAreNotThere) {
    add("/c.mp3", "A", 0);
    add("/b.mp3", "A", 0);
    add("/a.mp3", "A", 0);
    rows_.remove(1);
    EXPECT_EQ(QStringList({"c", "a"}), namesSortedBy({{LibraryColumn::artist}}));
    EXPECT_EQ(QStringList({"c", "a"}), namesSortedBy({{LibraryColumn::artist, true}}));
    EXPECT_EQ(QStringList({"c", "a"}), namesSortedBy({}));
}

} // namespace
} // namespace velmora
