#include "taglib/avi/item_data.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace velmora::test {
namespace {

constexpr std::uint32_t inam = make_fourcc("INAM");

class AviItemData : public testing::Test {
protected:
    AviItemData() { list_.fourcc = fourcc::list; }
    ~AviItemData() override { avi_free_item(&list_); }

    /** The text of an item that holds BYTES, read with that capacity. */
    std::string loaded(const std::string& bytes, std::size_t capacity) {
        EXPECT_EQ(1, avi_set_item_data(&list_, inam, bytes.data(), static_cast<std::uint32_t>(bytes.size())));
        text_.fill('#');
        count_ = avi_load_string(list_.children, text_.data(), capacity);
        return text_.data();
    }

    _avi_item_t list_{};
    std::array<char, 64> text_{};
    std::size_t count_ = 0;
};

std::string data_of(const _avi_item_t& item) {
    return {reinterpret_cast<const char*>(item.data), item.size};
}

TEST_F(AviItemData, ATextEndsAtItsZeroByte) {
    EXPECT_EQ("abc", loaded(std::string("abc\0def", 7), 64));
    EXPECT_EQ(3u, count_);
}

TEST_F(AviItemData, ATextWithoutAZeroByteEndsWithTheItem) {
    EXPECT_EQ("abc", loaded("abc", 64));
    EXPECT_EQ(3u, count_);
}

TEST_F(AviItemData, ATextIsCutToTheCapacityLessItsTerminator) {
    EXPECT_EQ("abc", loaded("abcdef", 4));
    EXPECT_EQ(3u, count_);
    EXPECT_EQ('#', text_[4]);
}

TEST_F(AviItemData, ACapacityOfOneGivesTheTerminatorOnly) {
    EXPECT_EQ("", loaded("abcdef", 1));
    EXPECT_EQ(0u, count_);
}

TEST_F(AviItemData, AnItemOfNoBytesGivesAnEmptyText) {
    EXPECT_EQ("", loaded("", 64));
}

TEST_F(AviItemData, AnItemWithoutLoadedDataGivesAnEmptyTextWhateverItsSize) {
    _avi_item_t movi_item{};
    movi_item.size = 4096;
    text_.fill('#');
    EXPECT_EQ(0u, avi_load_string(&movi_item, text_.data(), text_.size()));
    EXPECT_STREQ("", text_.data());
}

TEST_F(AviItemData, ANewItemIsAppendedWithoutOffsetOrListType) {
    ASSERT_EQ(1, avi_set_item_data(&list_, make_fourcc("ISTR"), "x", 1));
    ASSERT_EQ(1, avi_set_item_data(&list_, inam, "a\0b", 3));
    ASSERT_EQ(2, list_.child_count);
    const _avi_item_t& item = list_.children[1];
    EXPECT_EQ(inam, item.fourcc);
    EXPECT_EQ(std::string("a\0b", 3), data_of(item));
    EXPECT_EQ(0u, item.offset);
    EXPECT_EQ(0u, item.list_type);
    EXPECT_EQ(0, item.child_count);
}

TEST_F(AviItemData, ATextIsStoredWithItsTerminatingZero) {
    ASSERT_EQ(1, avi_set_item_data(&list_, inam, "abc", avi_text_size));
    EXPECT_EQ(std::string("abc\0", 4), data_of(list_.children[0]));
}

TEST_F(AviItemData, TheFirstItemOfThatFourccIsReplacedInPlace) {
    ASSERT_EQ(1, avi_set_item_data(&list_, inam, "first", 5));
    ASSERT_EQ(1, avi_set_item_data(&list_, make_fourcc("ISTR"), "x", 1));
    const _avi_item_t twin = [] {
        _avi_item_t item{};
        item.fourcc = inam;
        return item;
    }();
    ASSERT_NE(nullptr, avi_insert_item(&list_, &twin, 9));
    list_.children[0].offset = 52;
    ASSERT_EQ(1, avi_set_item_data(&list_, inam, "longer text", 11));
    EXPECT_EQ(3, list_.child_count);
    EXPECT_EQ("longer text", data_of(list_.children[0]));
    EXPECT_EQ(52u, list_.children[0].offset);
    EXPECT_EQ(nullptr, list_.children[2].data);
}

TEST_F(AviItemData, TheDataMayBeTheItemsOwn) {
    ASSERT_EQ(1, avi_set_item_data(&list_, inam, "abcdef", 6));
    ASSERT_EQ(1, avi_set_item_data(&list_, inam, list_.children[0].data + 2, 3));
    EXPECT_EQ("cde", data_of(list_.children[0]));
}

TEST_F(AviItemData, ReplacingAListThatHasChildrenFreesThem) { // the leak checker is the witness
    _avi_item_t inner{};
    inner.fourcc = fourcc::list;
    ASSERT_EQ(1, avi_set_item_data(&inner, inam, "abc", 3));
    ASSERT_NE(nullptr, avi_insert_item(&list_, &inner, 0));
    ASSERT_EQ(1, avi_set_item_data(&list_, fourcc::list, "type", 4));
    EXPECT_EQ(0, list_.children[0].child_count);
    EXPECT_EQ("type", data_of(list_.children[0]));
}

TEST_F(AviItemData, TheListsOwnSizeFieldIsLeftAlone) {
    list_.size = 99;
    ASSERT_EQ(1, avi_set_item_data(&list_, inam, "abc", 3));
    EXPECT_EQ(99u, list_.size);
}

TEST_F(AviItemData, NoBytesMakeAnItemOfSizeZero) {
    ASSERT_EQ(1, avi_set_item_data(&list_, inam, "", 0));
    EXPECT_EQ(0u, list_.children[0].size);
}

} // namespace
} // namespace velmora::test
