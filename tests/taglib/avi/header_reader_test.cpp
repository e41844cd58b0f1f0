#include "taglib/avi/header_reader.h"

#include "avi_bytes.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "taglib/byte_file.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>

using namespace std::string_literals;

namespace velmora::test {
namespace {

class AviHeaderReader : public testing::Test {
protected:
    ~AviHeaderReader() override { avi_free_header(&root_); }

    /** avi_read_header's result for a file of these bytes. */
    int read(const std::string& bytes) {
        const std::string path = folder_ / "file.avi";
        write_file(path, bytes);
        ByteFile file;
        EXPECT_TRUE(file.open(path.c_str(), O_RDONLY));
        avi_free_header(&root_);
        StreamCapture log;
        const int result = avi_read_header(file.handle(), &root_);
        error_ = errno;
        log_ = log.text();
        return result;
    }

    const ScratchFolder folder_;
    _avi_item_t root_{};
    std::string log_;
    int error_ = 0;
};

void expect_item(std::uint32_t fourcc, std::uint32_t size, std::uint64_t offset, std::uint32_t list_type,
                 const _avi_item_t& item) {
    EXPECT_EQ(fourcc, item.fourcc);
    EXPECT_EQ(size, item.size);
    EXPECT_EQ(offset, item.offset);
    EXPECT_EQ(list_type, item.list_type);
}

TEST_F(AviHeaderReader, TheRootIsTheRiffChunk) {
    ASSERT_EQ(1, read(avi_without_info()));
    expect_item(fourcc::riff, 88, 0, fourcc::avi, root_);
    EXPECT_EQ(3, root_.child_count);
}

TEST_F(AviHeaderReader, TopLevelChunksHaveAbsoluteOffsetsAndNoData) {
    ASSERT_EQ(1, read(avi_without_info()));
    ASSERT_EQ(3, root_.child_count);
    expect_item(fourcc::list, 20, 12, make_fourcc("hdrl"), root_.children[0]);
    expect_item(fourcc::list, 24, 40, make_fourcc("movi"), root_.children[1]);
    expect_item(make_fourcc("idx1"), 16, 72, 0, root_.children[2]);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(nullptr, root_.children[i].data);
        EXPECT_EQ(0, root_.children[i].child_count);
    }
}

TEST_F(AviHeaderReader, ItsWholeLogNamesEachChunk) {
    read(avi_without_info());
    EXPECT_EQ(log_of_avi_without_info(), log_);
}

TEST_F(AviHeaderReader, TheInfoListsSubChunksAreLoaded) {
    ASSERT_EQ(1, read(avi_with_info_before_movi()));
    ASSERT_EQ(4, root_.child_count);
    const _avi_item_t& info = root_.children[1];
    expect_item(fourcc::list, 28, 40, fourcc::info, info);
    ASSERT_EQ(2, info.child_count);
    expect_item(make_fourcc("INAM"), 4, 52, 0, info.children[0]);
    expect_item(make_fourcc("ISTR"), 4, 64, 0, info.children[1]);
    EXPECT_STREQ("Old", reinterpret_cast<char*>(info.children[0].data));
    EXPECT_STREQ("Ann", reinterpret_cast<char*>(info.children[1].data));
    EXPECT_EQ(log_of_avi_with_info_before_movi(), log_);
}

TEST_F(AviHeaderReader, TheWalkGoesOnBehindAnInfoList) {
    ASSERT_EQ(1, read(avi_with_info_before_movi()));
    expect_item(make_fourcc("idx1"), 16, 108, 0, root_.children[3]);
}

TEST_F(AviHeaderReader, EveryTopLevelInfoListIsLoaded) {
    ASSERT_EQ(1, read(riff(104, hdrl() + old_info() + old_info())));
    ASSERT_EQ(3, root_.child_count);
    EXPECT_EQ(2, root_.children[1].child_count);
    EXPECT_EQ(2, root_.children[2].child_count);
}

TEST_F(AviHeaderReader, AnotherFourccThanRiffIsRefused) {
    EXPECT_EQ(0, read("RIFX" + avi_without_info().substr(4)));
    EXPECT_EQ("avi_read_header: Not a RIFF header\n", log_);
    EXPECT_EQ(0, error_);
}

TEST_F(AviHeaderReader, AnotherFormIsRefused) {
    EXPECT_EQ(0, read("RIFF" + le32(4) + "WAVE"));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "avi_read_header: Not an AVI/X file (WAVE)\n",
              log_);
    EXPECT_EQ(0, error_);
}

TEST_F(AviHeaderReader, AnAvixFormAtTheBeginningIsAccepted) {
    EXPECT_EQ(1, read("RIFF" + le32(32) + "AVIX" + hdrl()));
    EXPECT_EQ(fourcc::avix, root_.list_type);
}

TEST_F(AviHeaderReader, AFileOfNothingIsNoRiff) {
    EXPECT_EQ(0, read(""));
    EXPECT_EQ("avi_read_header: Not a RIFF header\n", log_);
}

TEST_F(AviHeaderReader, AFileThatEndsInsideTheFormTypeIsNoAvi) {
    EXPECT_EQ(0, read("RIFF" + le32(3) + "AVI"));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "avi_read_header: Not an AVI/X file (AVI)\n",
              log_);
}

TEST_F(AviHeaderReader, ARiffWithoutChunksIsRead) {
    EXPECT_EQ(1, read(riff(4, "")));
    EXPECT_EQ(4u, root_.size);
    EXPECT_EQ(0, root_.child_count);
    EXPECT_EQ("now have 1 RIFF headers\n", log_);
}

TEST_F(AviHeaderReader, AWrongRiffSizeIsLoggedWithTheFilesCountFirstAndReplacedByTheParsedLength) {
    EXPECT_EQ(1, read(riff(0x1234, hdrl() + movi() + idx1())));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "avi_read_header: Corrupt size in riff header (0x58, file size 0x1234)\n"
              "[0000000c] <list> type hdrl size 0x14\n"
              "[00000028] <list> type movi size 0x18\n"
              "[00000048] <idx1> size 0x10\n",
              log_);
    EXPECT_EQ(88u, root_.size);
}

TEST_F(AviHeaderReader, ChunksBehindTheRiffSizeAreStillRead) {
    EXPECT_EQ(1, read(riff(32, hdrl() + movi() + idx1())));
    EXPECT_EQ(3, root_.child_count);
}

TEST_F(AviHeaderReader, AChunkAfterAnOddOneBeginsAtAnEvenOffset) {
    ASSERT_EQ(1, read(riff(42, chunk("JUNK", 1, "x.") + hdrl())));
    ASSERT_EQ(2, root_.child_count);
    expect_item(make_fourcc("JUNK"), 1, 12, 0, root_.children[0]);
    expect_item(fourcc::list, 20, 22, make_fourcc("hdrl"), root_.children[1]);
    EXPECT_EQ(42u, root_.size);
}

TEST_F(AviHeaderReader, ThePadByteOfAnOddLastChunkIsNotCounted) {
    EXPECT_EQ(1, read(riff(14, chunk("JUNK", 1, "x."))));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "[0000000c] <JUNK> size 0x1\n"
              "avi_read_header: Actual AVI end at 0xd (EOF = 0xe)\n",
              log_);
    EXPECT_EQ(13u, root_.size);
}

TEST_F(AviHeaderReader, AnOddLastChunkMayLackItsPadByte) {
    EXPECT_EQ(1, read(riff(13, chunk("JUNK", 1, "x"))));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "[0000000c] <JUNK> size 0x1\n",
              log_);
    EXPECT_EQ(13u, root_.size);
}

TEST_F(AviHeaderReader, AHeaderThatTheFileEndsInEndsTheWalk) {
    EXPECT_EQ(1, read(riff(21, chunk("JUNK", 1, "x.") + "LIST\4\0\0"s)));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "[0000000c] <JUNK> size 0x1\n"
              "avi_read_header: Error reading at 16\n"
              "avi_read_header: Actual AVI end at 0xe (EOF = 0x15)\n",
              log_);
    EXPECT_EQ(14u, root_.size);
    EXPECT_FALSE(avi_is_incomplete(&root_));
}

TEST_F(AviHeaderReader, AFourccWithAControlByteEndsTheWalk) {
    EXPECT_EQ(1, read(riff(88, hdrl() + movi() + "id\1x" + idx1().substr(4))));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "[0000000c] <list> type hdrl size 0x14\n"
              "[00000028] <list> type movi size 0x18\n"
              "avi_read_header: Invalid tag 'id\1x' at 48\n"
              "avi_read_header: Actual AVI end at 0x40 (EOF = 0x58)\n",
              log_);
    EXPECT_EQ(2, root_.child_count);
    EXPECT_EQ(64u, root_.size);
}

TEST_F(AviHeaderReader, AZeroFourccIsInvalidAndEndsTheWalkToo) {
    EXPECT_EQ(1, read(riff(72, hdrl() + le32(0) + le32(0) + movi())));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "[0000000c] <list> type hdrl size 0x14\n"
              "avi_read_header: Invalid tag '' at 28\n"
              "avi_read_header: Actual AVI end at 0x20 (EOF = 0x48)\n",
              log_);
    EXPECT_EQ(1, root_.child_count);
}

TEST_F(AviHeaderReader, AChunkMayOverrunTheFileByEightBytes) {
    EXPECT_EQ(1, read(riff(40, hdrl() + chunk("JUNK", 8, ""))));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "[0000000c] <list> type hdrl size 0x14\n"
              "[00000028] <JUNK> size 0x8\n"
              "avi_read_header: Actual AVI end at 0x30 (EOF = 0x28)\n",
              log_);
    EXPECT_EQ(48u, root_.size);
}

TEST_F(AviHeaderReader, AChunkThatOverrunsTheFileByNineBytesEndsTheWalk) {
    EXPECT_EQ(1, read(riff(40, hdrl() + chunk("JUNK", 9, ""))));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "[0000000c] <list> type hdrl size 0x14\n"
              "avi_read_header: Invalid tag 'JUNK' size at 28\n"
              "avi_read_header: Actual AVI end at 0x20 (EOF = 0x28)\n",
              log_);
    EXPECT_EQ(32u, root_.size);
}

TEST_F(AviHeaderReader, SizesAtThe32BitLimitDoNotWrap) {
    for (const std::uint32_t size : {0xFFFFFFFFu, 0xFFFFFFF8u, 0xFFFFFFE0u, 0x80000000u}) {
        EXPECT_EQ(1, read(riff(40, hdrl() + chunk("JUNK", size, "")))) << size;
        EXPECT_EQ(1, root_.child_count) << size;
        EXPECT_EQ(32u, root_.size) << size;
    }
}

TEST_F(AviHeaderReader, UpTo4096BytesBehindTheLastChunkAreTolerated) {
    EXPECT_EQ(1, read(avi_without_info() + std::string(4096, '\0')));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "avi_read_header: Corrupt size in riff header (0x1058, file size 0x58)\n"
              "[0000000c] <list> type hdrl size 0x14\n"
              "[00000028] <list> type movi size 0x18\n"
              "[00000048] <idx1> size 0x10\n"
              "avi_read_header: Invalid tag '' at 60\n"
              "avi_read_header: Actual AVI end at 0x58 (EOF = 0x1058)\n",
              log_);
    EXPECT_EQ(88u, root_.size);
}

TEST_F(AviHeaderReader, MoreThan4096BytesBehindTheLastChunkAreNot) {
    EXPECT_EQ(0, read(avi_without_info() + std::string(4097, '\0')));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "avi_read_header: Corrupt size in riff header (0x1059, file size 0x58)\n"
              "[0000000c] <list> type hdrl size 0x14\n"
              "[00000028] <list> type movi size 0x18\n"
              "[00000048] <idx1> size 0x10\n"
              "avi_read_header: Invalid tag '' at 60\n",
              log_);
    EXPECT_EQ(0, error_);
}

TEST_F(AviHeaderReader, ASecondRiffRefusesTheFileWithError78) {
    EXPECT_EQ(0, read(avi_without_info() + "RIFF" + le32(36) + "AVIX" + movi()));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "avi_read_header: Corrupt size in riff header (0x84, file size 0x58)\n"
              "[0000000c] <list> type hdrl size 0x14\n"
              "[00000028] <list> type movi size 0x18\n"
              "[00000048] <idx1> size 0x10\n"
              "[00000060] <RIFF> size 0x24\n"
              "now have 2 RIFF headers\n"
              "More than one RIFF header; we don't handle this yet\n",
              log_);
    EXPECT_EQ(78, error_);
}

TEST_F(AviHeaderReader, TheWalkEndsAtTheSecondRiffWhateverFollowsIt) {
    EXPECT_EQ(0, read(riff(80, hdrl() + chunk("RIFF", 4, "AVIX") + chunk("RIFF", 4, "AVIX") + idx1())));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "[0000000c] <list> type hdrl size 0x14\n"
              "[00000028] <RIFF> size 0x4\n"
              "now have 2 RIFF headers\n"
              "More than one RIFF header; we don't handle this yet\n",
              log_);
    EXPECT_EQ(78, error_);
}

TEST_F(AviHeaderReader, ASecondRiffWhoseSizeOverrunsTheFileOnlyEndsTheWalk) {
    EXPECT_EQ(1, read(avi_without_info() + "RIFF" + le32(0xFFFFFFFF) + "AVIX" + movi()));
    EXPECT_EQ(3, root_.child_count);
    EXPECT_EQ(88u, root_.size);
}

TEST_F(AviHeaderReader, AnEarlierError78DoesNotSurviveAnotherRefusal) {
    errno = 78;
    EXPECT_EQ(0, read("RIFX"));
    EXPECT_EQ(0, error_);
}

TEST_F(AviHeaderReader, AListTooShortForItsTypeReadsTheBytesThatFollow) {
    EXPECT_EQ(1, read(riff(40, "LIST" + le32(0) + hdrl())));
    ASSERT_EQ(2, root_.child_count);
    expect_item(fourcc::list, 0, 12, make_fourcc("LIST"), root_.children[0]);
    expect_item(fourcc::list, 20, 20, make_fourcc("hdrl"), root_.children[1]);
}

} // namespace
} // namespace velmora::test
