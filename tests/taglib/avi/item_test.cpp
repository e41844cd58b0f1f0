#include "avi_bytes.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "taglib/avi/item.h"
#include "taglib/avi/item_data.h"
#include "taglib/byte_file.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <limits>

namespace velmora::test {
namespace {

constexpr auto at_the_end = static_cast<std::uint32_t>(-1);

_avi_item_t plain(std::uint32_t fourcc, std::uint32_t size) {
    _avi_item_t item{};
    item.fourcc = fourcc;
    item.size = size;
    return item;
}

/** A list whose children have the sizes 1, 2, 3, ... and the FOURCCs of TAGS. */
class AviItem : public testing::Test {
protected:
    AviItem() {
        list_.fourcc = fourcc::list;
        list_.list_type = fourcc::info;
    }
    ~AviItem() override { avi_free_item(&list_); }

    void add(std::uint32_t fourcc) {
        const _avi_item_t item = plain(fourcc, static_cast<std::uint32_t>(list_.child_count) + 1);
        ASSERT_NE(nullptr, avi_insert_item(&list_, &item, at_the_end));
    }

    /** The children's sizes, which tell them apart. */
    [[nodiscard]] std::string order() const {
        std::string text;
        for (int i = 0; i < list_.child_count; ++i) {
            text += std::to_string(list_.children[i].size);
        }
        return text;
    }

    /** What avi_store_item writes for ITEM into a new file. */
    [[nodiscard]] std::string written(const _avi_item_t& item) const {
        const std::string path = folder_ / "item";
        ByteFile file;
        EXPECT_TRUE(file.open(path.c_str(), O_RDWR | O_CREAT | O_TRUNC, 0644));
        EXPECT_EQ(1, avi_store_item(file.handle(), &item));
        return read_file(path);
    }

    const ScratchFolder folder_;
    _avi_item_t list_{};
};

TEST_F(AviItem, AnIndexBeyondTheCountAppends) {
    add(make_fourcc("AAAA"));
    add(make_fourcc("BBBB"));
    const _avi_item_t third = plain(make_fourcc("CCCC"), 3);
    const _avi_item_t* const slot = avi_insert_item(&list_, &third, 77);
    EXPECT_EQ(list_.children + 2, slot);
    EXPECT_EQ("123", order());
}

TEST_F(AviItem, InsertingShiftsTheLaterChildrenUpAndReturnsTheNewSlot) {
    add(make_fourcc("AAAA"));
    add(make_fourcc("BBBB"));
    const _avi_item_t third = plain(make_fourcc("CCCC"), 3);
    const _avi_item_t* const slot = avi_insert_item(&list_, &third, 1);
    EXPECT_EQ(list_.children + 1, slot);
    EXPECT_EQ("132", order());
    EXPECT_EQ(3, list_.child_count);
}

TEST_F(AviItem, AnItemOfTheSameArrayCanBeInsertedAgain) {
    add(make_fourcc("AAAA"));
    ASSERT_NE(nullptr, avi_insert_item(&list_, list_.children, at_the_end));
    EXPECT_EQ("11", order());
}

TEST_F(AviItem, ThousandsOfInsertsAtTheFrontKeepTheirOrder) {
    for (std::uint32_t i = 0; i < 3000; ++i) {
        const _avi_item_t item = plain(make_fourcc("AAAA"), i);
        ASSERT_NE(nullptr, avi_insert_item(&list_, &item, 0));
    }
    for (int i = 0; i < 3000; ++i) {
        ASSERT_EQ(2999u - static_cast<unsigned>(i), list_.children[i].size);
    }
}

TEST_F(AviItem, AnArrayThatCantGrowGivesNoSlot) {
    _avi_item_t full{};
    full.child_count = std::numeric_limits<std::int32_t>::max();
    const _avi_item_t item = plain(make_fourcc("AAAA"), 1);
    EXPECT_EQ(nullptr, avi_insert_item(&full, &item, at_the_end));
}

TEST_F(AviItem, RemovingShiftsTheLaterChildrenDown) {
    add(make_fourcc("AAAA"));
    add(make_fourcc("BBBB"));
    add(make_fourcc("CCCC"));
    EXPECT_EQ(1, avi_remove_item(&list_, list_.children + 1));
    EXPECT_EQ("13", order());
}

TEST_F(AviItem, RemovingGoesByIdentityNotByContents) {
    add(make_fourcc("AAAA"));
    _avi_item_t twin = list_.children[0];
    EXPECT_EQ(0, avi_remove_item(&list_, &twin));
    EXPECT_EQ("1", order());
}

TEST_F(AviItem, RemovingATagTakesTheFirstWithThatFourccOnly) {
    add(make_fourcc("AAAA"));
    add(make_fourcc("BBBB"));
    add(make_fourcc("BBBB"));
    EXPECT_EQ(1, avi_remove_tag(&list_, make_fourcc("BBBB")));
    EXPECT_EQ("13", order());
}

TEST_F(AviItem, RemovingATagThatIsNotThereGivesZero) {
    add(make_fourcc("AAAA"));
    EXPECT_EQ(0, avi_remove_tag(&list_, make_fourcc("BBBB")));
}

TEST_F(AviItem, FindGivesTheFirstWithThatFourcc) {
    add(make_fourcc("AAAA"));
    add(make_fourcc("BBBB"));
    add(make_fourcc("BBBB"));
    EXPECT_EQ(list_.children + 1, avi_find_item(&list_, make_fourcc("BBBB")));
}

TEST_F(AviItem, FindGivesNothingForAFourccThatIsNotThere) {
    EXPECT_EQ(nullptr, avi_find_item(&list_, make_fourcc("BBBB")));
}

TEST_F(AviItem, FindListGivesTheFirstListOfThatType) {
    add(fourcc::info); // a plain chunk of that name is none
    add(fourcc::riff); // nor is a RIFF of that type
    add(fourcc::list);
    add(fourcc::list);
    add(fourcc::list);
    list_.children[1].list_type = fourcc::info;
    list_.children[2].list_type = make_fourcc("movi");
    list_.children[3].list_type = fourcc::info;
    list_.children[4].list_type = fourcc::info;
    EXPECT_EQ(list_.children + 3, avi_find_list_item(&list_, fourcc::info));
}

TEST_F(AviItem, FindListGivesNothingForATypeThatIsNotThere) {
    add(fourcc::list);
    EXPECT_EQ(nullptr, avi_find_list_item(&list_, fourcc::info));
}

TEST_F(AviItem, TheIndexGoesByIdentity) {
    add(make_fourcc("AAAA"));
    add(make_fourcc("AAAA"));
    const _avi_item_t stranger = list_.children[1];
    EXPECT_EQ(1, avi_get_item_index(&list_, list_.children + 1));
    EXPECT_EQ(-1, avi_get_item_index(&list_, &stranger));
}

TEST_F(AviItem, ASlotBehindTheChildrenHasNoIndex) {
    add(make_fourcc("AAAA"));
    add(make_fourcc("AAAA"));
    ASSERT_EQ(1, avi_remove_item(&list_, list_.children));
    EXPECT_EQ(-1, avi_get_item_index(&list_, list_.children + 1));
}

TEST_F(AviItem, MovingTowardsTheFrontKeepsTheOthersOrder) {
    for (int i = 0; i < 5; ++i) {
        add(make_fourcc("AAAA"));
    }
    EXPECT_EQ(1, avi_move_item(&list_, list_.children + 3, 1));
    EXPECT_EQ("14235", order());
}

TEST_F(AviItem, MovingTowardsTheEndGivesTheChildThatIndex) {
    for (int i = 0; i < 5; ++i) {
        add(make_fourcc("AAAA"));
    }
    EXPECT_EQ(1, avi_move_item(&list_, list_.children + 1, 3));
    EXPECT_EQ("13425", order());
}

TEST_F(AviItem, MovingBeyondTheEndMakesTheChildTheLast) {
    for (int i = 0; i < 3; ++i) {
        add(make_fourcc("AAAA"));
    }
    EXPECT_EQ(1, avi_move_item(&list_, list_.children, at_the_end));
    EXPECT_EQ("231", order());
}

TEST_F(AviItem, MovingToItsOwnIndexChangesNothing) {
    add(make_fourcc("AAAA"));
    add(make_fourcc("AAAA"));
    EXPECT_EQ(1, avi_move_item(&list_, list_.children + 1, 1));
    EXPECT_EQ("12", order());
}

TEST_F(AviItem, OnlyAChildCanBeMoved) {
    add(make_fourcc("AAAA"));
    _avi_item_t stranger = list_.children[0];
    EXPECT_EQ(0, avi_move_item(&list_, &stranger, 0));
}

TEST_F(AviItem, APlainChunkMeasuresItsSizeField) {
    const _avi_item_t item = plain(make_fourcc("movi"), 7);
    EXPECT_EQ(7u, avi_sizeof_item(&item));
}

TEST_F(AviItem, AnEmptyListMeasuresItsType) {
    EXPECT_EQ(4u, avi_sizeof_item(&list_));
}

TEST_F(AviItem, AListCountsEachChildsHeaderSizeAndPadByte) {
    add(make_fourcc("AAAA")); // 1: 8 + 1 + 1
    add(make_fourcc("BBBB")); // 2: 8 + 2
    add(make_fourcc("CCCC")); // 3: 8 + 3 + 1
    EXPECT_EQ(36u, avi_sizeof_item(&list_));
}

TEST_F(AviItem, ARiffIsMeasuredByItsChildrensSizeFieldsNotByGrandchildren) {
    _avi_item_t root{};
    root.fourcc = fourcc::riff;
    _avi_item_t movi_item = plain(fourcc::list, 1000);
    movi_item.list_type = make_fourcc("movi");
    ASSERT_NE(nullptr, avi_insert_item(&root, &movi_item, at_the_end));
    EXPECT_EQ(1012u, avi_sizeof_item(&root));
    avi_free_header(&root);
}

TEST_F(AviItem, SizesBeyond32BitsAreAddedUpWhole) {
    for (int i = 0; i < 2; ++i) {
        const _avi_item_t item = plain(make_fourcc("AAAA"), 0xFFFFFFFF);
        ASSERT_NE(nullptr, avi_insert_item(&list_, &item, at_the_end));
    }
    EXPECT_EQ(0x200000014u, avi_sizeof_item(&list_));
}

TEST_F(AviItem, AStoredChunkIsHeaderAndData) {
    ASSERT_EQ(1, avi_set_item_data(&list_, make_fourcc("INAM"), "abc", 3));
    EXPECT_EQ(to_hex(hex("49 4E 41 4D 03 00 00 00 61 62 63")), to_hex(written(list_.children[0])));
}

TEST_F(AviItem, AStoredItemWithoutDataIsItsHeaderOnly) {
    EXPECT_EQ(to_hex(hex("4A 55 4E 4B 00 10 00 00")), to_hex(written(plain(fourcc::junk, 4096))));
}

TEST_F(AviItem, AStoredRiffIsItsHeaderOnly) {
    _avi_item_t root = plain(fourcc::riff, 0x58);
    root.list_type = fourcc::avi;
    const _avi_item_t child = plain(fourcc::junk, 2);
    ASSERT_NE(nullptr, avi_insert_item(&root, &child, at_the_end));
    EXPECT_EQ(to_hex(hex("52 49 46 46 58 00 00 00")), to_hex(written(root)));
    avi_free_header(&root);
}

TEST_F(AviItem, AStoredListHasItsTypeItsChildrenAndAZeroByteAfterEachOddOne) {
    ASSERT_EQ(1, avi_set_item_data(&list_, make_fourcc("INAM"), "abc", 3));
    ASSERT_EQ(1, avi_set_item_data(&list_, make_fourcc("ISTR"), "de", 2));
    ASSERT_EQ(1, avi_set_item_data(&list_, make_fourcc("ICMT"), "f", 1));
    list_.size = 38;
    EXPECT_EQ(to_hex(hex("4C 49 53 54 26 00 00 00 49 4E 46 4F"
                         "49 4E 41 4D 03 00 00 00 61 62 63 00"
                         "49 53 54 52 02 00 00 00 64 65"
                         "49 43 4D 54 01 00 00 00 66 00")),
              to_hex(written(list_)));
}

TEST_F(AviItem, TheSizeFieldIsWrittenAsItStands) {
    list_.size = 0x12345678;
    EXPECT_EQ(to_hex(hex("4C 49 53 54 78 56 34 12 49 4E 46 4F")), to_hex(written(list_)));
}

TEST_F(AviItem, AListThatIsKeptAsBytesIsWrittenAsThoseBytes) {
    ASSERT_EQ(1, avi_set_item_data(&list_, fourcc::list, "inerJUNK", 8));
    EXPECT_EQ(to_hex(hex("4C 49 53 54 08 00 00 00 69 6E 65 72 4A 55 4E 4B")),
              to_hex(written(list_.children[0])));
}

TEST_F(AviItem, AnItemIsWrittenAtTheFilesPosition) {
    const std::string path = folder_ / "item";
    write_file(path, "................");
    ByteFile file;
    EXPECT_TRUE(file.open(path.c_str(), O_RDWR));
    fio_lseek(file.handle(), 4, SEEK_SET);
    const _avi_item_t item = plain(fourcc::junk, 1);
    EXPECT_EQ(1, avi_store_item(file.handle(), &item));
    EXPECT_EQ(std::string("....JUNK\1\0\0\0....", 16), read_file(path));
}

TEST_F(AviItem, AFailingWriteIsLoggedOnceAndGivesZero) {
    const std::string path = folder_ / "item";
    write_file(path, "");
    ByteFile file;
    EXPECT_TRUE(file.open(path.c_str(), O_RDONLY));
    add(make_fourcc("AAAA"));
    StreamCapture log;
    EXPECT_EQ(0, avi_store_item(file.handle(), &list_));
    EXPECT_EQ("avi_store_item: Error writing file\n", log.text());
}

TEST_F(AviItem, FreeingAnItemTwiceIsHarmlessAndLeavesItZeroed) {
    ASSERT_EQ(1, avi_set_item_data(&list_, make_fourcc("INAM"), "abc", 3));
    list_.offset = 40;
    avi_free_item(&list_);
    avi_free_item(&list_);
    _avi_item_t zeroed{};
    EXPECT_EQ(0, std::memcmp(&zeroed, &list_, sizeof zeroed));
}

TEST_F(AviItem, FreeingAHeaderFreesItsListsAndTheirData) { // the leak checker is the witness
    _avi_item_t root{};
    root.fourcc = fourcc::riff;
    ASSERT_EQ(1, avi_set_item_data(&list_, make_fourcc("INAM"), "abc", 3));
    ASSERT_NE(nullptr, avi_insert_item(&root, &list_, at_the_end));
    list_ = {};
    avi_free_header(&root);
    EXPECT_EQ(0, root.child_count);
    EXPECT_EQ(nullptr, root.children);
}

TEST_F(AviItem, ListingNamesTheTypeAndEachChild) {
    ASSERT_EQ(1, avi_set_item_data(&list_, make_fourcc("INAM"), "abc", 3));
    ASSERT_EQ(1, avi_set_item_data(&list_, fourcc::list, "iner........", 12));
    list_.children[0].offset = 0x12;
    list_.children[1].offset = 0xABCDEF01;
    list_.children[1].list_type = make_fourcc("iner");
    StreamCapture log;
    avi_list_items(&list_);
    EXPECT_EQ("List <INFO>\n"
              "[00000012] <INAM> size 0x3\n"
              "[abcdef01] <LIST> type <iner> size 0xc\n",
              log.text());
}

} // namespace
} // namespace velmora::test
