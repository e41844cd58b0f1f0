#include "avi_bytes.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "taglib/avi/header_reader.h"
#include "taglib/byte_file.h"

#include <gtest/gtest.h>

#include <fcntl.h>

namespace velmora::test {
namespace {

/** Loads lists that stand at the beginning of a file: their first sub-chunk is at 12. */
class AviItemList : public testing::Test {
protected:
    ~AviItemList() override { avi_free_item(&list_); }

    /** Loads the list with that size field from a file that holds the sub-chunks' BYTES behind it. */
    void load(std::uint32_t size, const std::string& bytes) {
        const std::string path = folder_ / "list";
        write_file(path, list(size, "INFO", bytes));
        ByteFile file;
        EXPECT_TRUE(file.open(path.c_str(), O_RDONLY));
        fio_lseek(file.handle(), 12, SEEK_SET);
        list_.fourcc = fourcc::list;
        list_.size = size;
        StreamCapture log;
        EXPECT_EQ(1, avi_load_item_list(file.handle(), &list_));
        log_ = log.text();
    }

    [[nodiscard]] std::string data(int index) const {
        const _avi_item_t& item = list_.children[index];
        return {reinterpret_cast<const char*>(item.data), item.size};
    }

    const ScratchFolder folder_;
    _avi_item_t list_{};
    std::string log_;
};

TEST_F(AviItemList, SubChunksAreLoadedWithDataAndAbsoluteOffset) {
    load(28, chunk("INAM", 4, z("Old")) + chunk("ISTR", 4, z("Ann")));
    ASSERT_EQ(2, list_.child_count);
    EXPECT_EQ(make_fourcc("INAM"), list_.children[0].fourcc);
    EXPECT_EQ(12u, list_.children[0].offset);
    EXPECT_EQ(24u, list_.children[1].offset);
    EXPECT_EQ(z("Old"), data(0));
    EXPECT_EQ(z("Ann"), data(1));
    EXPECT_EQ("[0000000c]        <INAM> size 0x4\n"
              "[00000018]        <ISTR> size 0x4\n",
              log_);
}

TEST_F(AviItemList, ASubChunkAfterAnOddOneBeginsAtAnEvenOffset) {
    load(26, chunk("INAM", 3, "Odd.") + chunk("ISTR", 2, "ok"));
    ASSERT_EQ(2, list_.child_count);
    EXPECT_EQ("Odd", data(0));
    EXPECT_EQ(24u, list_.children[1].offset);
    EXPECT_EQ("ok", data(1));
}

TEST_F(AviItemList, ASubChunkWithoutDataIsLoadedEmpty) {
    load(20, chunk("INAM", 0, "") + chunk("ISTR", 0, ""));
    ASSERT_EQ(2, list_.child_count);
    EXPECT_EQ(0u, list_.children[0].size);
}

TEST_F(AviItemList, WhatFollowsTheListIsNotRead) {
    load(16, chunk("INAM", 4, z("Old")) + chunk("JUNK", 4, "...."));
    EXPECT_EQ(1, list_.child_count);
}

TEST_F(AviItemList, AListTooShortForASubChunkIsEmpty) {
    for (const std::uint32_t size : {0u, 3u, 4u, 11u}) {
        load(size, chunk("INAM", 4, z("Old")));
        EXPECT_EQ(0, list_.child_count) << size;
        EXPECT_EQ("", log_) << size;
    }
}

TEST_F(AviItemList, AHeaderThatTheFileEndsInIsLoggedAndEndsTheList) {
    load(28, chunk("INAM", 4, z("Old")));
    EXPECT_EQ(1, list_.child_count);
    EXPECT_EQ("[0000000c]        <INAM> size 0x4\n"
              "avi_load_item_list: Error reading at 18\n",
              log_);
    EXPECT_FALSE(avi_is_incomplete(&list_));
}

TEST_F(AviItemList, AnInvalidFourccIsLoggedAndEndsTheList) {
    load(40, chunk("INAM", 4, z("Old")) + chunk("IS\x7FR", 4, z("Ann")) + chunk("ICMT", 4, z("Any")));
    EXPECT_EQ(1, list_.child_count);
    EXPECT_EQ("[0000000c]        <INAM> size 0x4\n"
              "avi_load_item_list: Invalid tag 'IS\x7FR' at 18\n",
              log_);
}

TEST_F(AviItemList, AZeroFourccIsInvalidToo) {
    load(28, le32(0) + le32(4) + "...." + chunk("INAM", 4, z("Old")));
    EXPECT_EQ(0, list_.child_count);
    EXPECT_EQ("avi_load_item_list: Invalid tag '' at c\n", log_);
}

TEST_F(AviItemList, ASubChunkMayOverrunTheListByFourBytes) {
    load(16, chunk("INAM", 8, "12345678") + "more");
    ASSERT_EQ(1, list_.child_count);
    EXPECT_EQ("12345678", data(0));
}

TEST_F(AviItemList, BytesThatTheFileDoesNotHaveReadAsZeros) {
    load(16, chunk("INAM", 8, "12345"));
    ASSERT_EQ(1, list_.child_count);
    EXPECT_EQ(std::string("12345\0\0\0", 8), data(0));
    EXPECT_FALSE(avi_is_incomplete(&list_));
}

TEST_F(AviItemList, ASubChunkThatOverrunsTheListByFiveBytesIsLoggedUnderAnotherFunctionsName) {
    load(16, chunk("INAM", 9, "123456789") + "more");
    EXPECT_EQ(0, list_.child_count);
    EXPECT_EQ("avi_load_info_list: Invalid tag 'INAM' size at c\n", log_);
}

TEST_F(AviItemList, SizesAtThe32BitLimitDoNotWrap) {
    for (const std::uint32_t size : {0xFFFFFFFFu, 0xFFFFFFFCu, 0xFFFFFFF8u, 0x80000000u}) {
        load(28, chunk("INAM", size, z("Old")) + chunk("ISTR", 4, z("Ann")));
        EXPECT_EQ(0, list_.child_count) << size;
    }
}

TEST_F(AviItemList, ALyingListSizeDoesNotLetASubChunkClaimMoreThanTheFileHas) {
    load(0xFFFFFFFF, chunk("INAM", 4, z("Old")) + chunk("ISTR", 0xF0000000, z("Ann")));
    EXPECT_EQ(1, list_.child_count);
    EXPECT_EQ("[0000000c]        <INAM> size 0x4\n"
              "avi_load_info_list: Invalid tag 'ISTR' size at 18\n",
              log_);
}

TEST_F(AviItemList, ALyingListReachesEightBytesPastTheFileAndItsLastSubChunkFourMore) {
    // The data begins at 20 and the file ends at 24.
    load(0xFFFFFFFF, chunk("INAM", 16, "1234"));
    ASSERT_EQ(1, list_.child_count);
    EXPECT_EQ("1234" + std::string(12, '\0'), data(0));
    avi_free_item(&list_);
    load(0xFFFFFFFF, chunk("INAM", 17, "1234"));
    EXPECT_EQ(0, list_.child_count);
    EXPECT_EQ("avi_load_info_list: Invalid tag 'INAM' size at c\n", log_);
}

TEST_F(AviItemList, AFileThatIsNotOpenGivesAnIncompleteListWithoutSubChunks) {
    FIOFUNCSTRUCT closed{-1};
    list_.fourcc = fourcc::list;
    list_.size = 100;
    EXPECT_EQ(1, avi_load_item_list(&closed, &list_));
    EXPECT_TRUE(avi_is_incomplete(&list_));
    EXPECT_EQ(0, list_.child_count);
}

TEST_F(AviItemList, AListInsideTheListIsKeptAsBytes) {
    load(24, list(12, "iner", chunk("INAM", 0, "")));
    ASSERT_EQ(1, list_.child_count);
    EXPECT_EQ(0, list_.children[0].child_count);
    EXPECT_EQ(make_fourcc("iner"), list_.children[0].list_type);
    EXPECT_EQ("iner" + chunk("INAM", 0, ""), data(0));
    EXPECT_EQ("[0000000c]        <LIST> size 0xc\n", log_);
}

TEST_F(AviItemList, AListInsideTheListMayBeItsTypeOnly) {
    load(16, list(4, "iner", ""));
    ASSERT_EQ(1, list_.child_count);
    EXPECT_EQ(make_fourcc("iner"), list_.children[0].list_type);
    EXPECT_EQ("iner", data(0));
}

TEST_F(AviItemList, ARiffInsideTheListIsKeptAsBytesToo) {
    load(16, chunk("RIFF", 4, "AVIX"));
    ASSERT_EQ(1, list_.child_count);
    EXPECT_EQ("AVIX", data(0));
}

} // namespace
} // namespace velmora::test
