#include "browser/row_list.h"

#include "row_maker.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <random>
#include <vector>

namespace velmora {
namespace {

using testing::ElementsAre;

std::vector<std::uint64_t> sizesOf(const RowList& list) {
    std::vector<std::uint64_t> sizes;
    for (std::size_t index = 0; index < list.count(); ++index) {
        sizes.push_back(list.at(index)->rawfilesize);
    }
    return sizes;
}

void insertBySize(RowList& list, std::uint64_t size) {
    list.insertBeforeFirst([size](const coldata& existing) { return existing.rawfilesize > size; },
                           test::makeRow({}, size));
}

TEST(RowList, AppendedRowsKeepTheirOrder) {
    RowList list;
    for (const std::uint64_t size : {5, 1, 3}) {
        list.append(test::makeRow({}, size));
    }
    EXPECT_THAT(sizesOf(list), ElementsAre(5U, 1U, 3U));
}

TEST(RowList, InsertsAtTheBeginningInTheMiddleAndAtTheEnd) {
    RowList list;
    for (const std::uint64_t size : {5, 1, 3, 9}) {
        insertBySize(list, size);
    }
    EXPECT_THAT(sizesOf(list), ElementsAre(1U, 3U, 5U, 9U));
}

TEST(RowList, LongListsTakeRowsAnywhereAsAFlatOneWould) {
    RowList list;
    std::vector<std::uint64_t> flat;
    std::mt19937 random(1);
    for (int number = 0; number < 20'000; ++number) {
        const std::uint64_t size = random() % 5'000;
        insertBySize(list, size);
        flat.insert(std::upper_bound(flat.begin(), flat.end(), size), size);
    }
    EXPECT_EQ(flat, sizesOf(list));
    EXPECT_EQ(flat.size(), list.count());
}

TEST(RowList, RowsInsertedInRisingAndFallingOrderAreAllThere) {
    for (const bool rising : {true, false}) {
        RowList list;
        std::vector<std::uint64_t> expected;
        for (std::uint64_t number = 0; number < 5'000; ++number) {
            insertBySize(list, rising ? number : 4'999 - number);
            expected.push_back(number);
        }
        EXPECT_EQ(expected, sizesOf(list));
    }
}

TEST(RowList, SortKeepsEqualRowsInTheirOrder) {
    RowList list;
    std::vector<QString> expected = {"first"};
    for (int number = 0; number < 1000; ++number) {
        expected.push_back(QString::number(number));
        list.append(test::makeRow(expected.back(), 7));
    }
    list.append(test::makeRow("first", 1));
    list.stableSort([](const coldata& a, const coldata& b) { return a.rawfilesize < b.rawfilesize; });
    std::vector<QString> names;
    for (std::size_t index = 0; index < list.count(); ++index) {
        names.push_back(list.at(index)->filename);
    }
    EXPECT_EQ(expected, names);
}

TEST(RowList, SortOfALongListLosesNothing) {
    RowList list;
    std::vector<std::uint64_t> expected;
    std::mt19937 random(2);
    for (int number = 0; number < 10'000; ++number) {
        expected.push_back(random());
        list.append(test::makeRow({}, expected.back()));
    }
    list.stableSort([](const coldata& a, const coldata& b) { return a.rawfilesize < b.rawfilesize; });
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(expected, sizesOf(list));
    insertBySize(list, 0);
    EXPECT_EQ(10'001U, list.count());
    EXPECT_EQ(0U, list.at(0)->rawfilesize);
}

TEST(RowList, SortOfAnEmptyListIsEmpty) {
    RowList list;
    list.stableSort([](const coldata&, const coldata&) { return false; });
    EXPECT_EQ(0U, list.count());
    list.append(test::makeRow("a"));
    EXPECT_EQ("a", list.at(0)->filename);
}

} // namespace
} // namespace velmora
