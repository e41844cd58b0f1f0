#include "taglib/avi/remove_file_info.h"

#include "avi_bytes.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "taglib/avi/load_file_info.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace velmora::test {
namespace {

class AviRemove : public testing::Test {
protected:
    int remove_from(const std::string& bytes) {
        write_file(path_, bytes);
        return remove();
    }

    int remove() {
        StreamCapture log;
        const int result = avi_remove_file_info(path_.c_str());
        error_ = errno;
        log_ = log.text();
        return result;
    }

    void expect_file(const std::string& bytes) { EXPECT_EQ(to_hex(bytes), to_hex(read_file(path_))); }

    const ScratchFolder folder_;
    const std::string path_ = folder_ / "file.avi";
    std::string log_;
    int error_ = 0;
};

TEST_F(AviRemove, AFileWithoutAnInfoListIsLeftAsItIs) {
    EXPECT_EQ(1, remove_from(avi_without_info()));
    expect_file(avi_without_info());
    EXPECT_EQ(log_of_avi_without_info(), log_);
}

TEST_F(AviRemove, ALastListStaysBehindAShorterRiffChunk) {
    EXPECT_EQ(1, remove_from(avi_with_info_last()));
    expect_file(riff(88, hdrl() + movi() + idx1()) + old_info());
    EXPECT_EQ(log_of_avi_with_info_last() + "Writing <EOF> at 0x60\n", log_);
}

TEST_F(AviRemove, ALastListIsFoundAgainByTheNextLoadBecauseTheFileIsReadByItsLength) {
    ASSERT_EQ(1, remove_from(avi_with_info_last()));
    _file_info_t info;
    StreamCapture quiet;
    ASSERT_EQ(1, avi_load_file_info(path_.c_str(), &info));
    EXPECT_EQ(0x8000u, info.flags);
    EXPECT_STREQ("Old", info.title);
    id3_free_file_info(&info);
}

TEST_F(AviRemove, AListThatIsNotLastBecomesJunkOfTheSameSize) {
    EXPECT_EQ(1, remove_from(avi_with_info_before_movi()));
    expect_file(riff(
        124, hdrl() + chunk("JUNK", 28, "INFO" + chunk("INAM", 4, z("Old")) + chunk("ISTR", 4, z("Ann"))) +
                 movi() + idx1()));
    EXPECT_EQ(log_of_avi_with_info_before_movi() + "Writing <junk> at 0x28 size 0x1c\n", log_);
}

TEST_F(AviRemove, AnOddListThatIsNotLastBecomesJunkOfItsOddSize) {
    const std::string odd = chunk("INAM", 3, "Odd"); // its pad byte is not in the list's count
    EXPECT_EQ(1, remove_from(riff(80, hdrl() + list(15, "INFO", odd + 'p') + idx1())));
    expect_file(riff(80, hdrl() + chunk("JUNK", 15, "INFO" + odd + 'p') + idx1()));
}

TEST_F(AviRemove, AnOddListThatIsLastStaysBehindAShorterRiffChunk) {
    const std::string odd = list(15, "INFO", chunk("INAM", 3, "Odd") + 'p');
    EXPECT_EQ(1, remove_from(riff(56, hdrl() + odd)));
    expect_file(riff(32, hdrl()) + odd);
    EXPECT_TRUE(log_.ends_with("Writing <EOF> at 0x28\n")) << log_;
}

TEST_F(AviRemove, AListThatIsNotLastIsGoneForTheNextLoad) {
    ASSERT_EQ(1, remove_from(avi_with_info_before_movi()));
    _file_info_t info;
    StreamCapture quiet;
    ASSERT_EQ(1, avi_load_file_info(path_.c_str(), &info));
    EXPECT_EQ(0u, info.flags);
    id3_free_file_info(&info);
}

TEST_F(AviRemove, OnlyTheFirstInfoListIsRemoved) {
    EXPECT_EQ(1, remove_from(
                     riff(124, hdrl() + list(16, "INFO", chunk("IGNR", 4, z("One"))) + movi() + old_info())));
    expect_file(
        riff(124, hdrl() + chunk("JUNK", 16, "INFO" + chunk("IGNR", 4, z("One"))) + movi() + old_info()));
}

TEST_F(AviRemove, AWrongRiffSizeIsPutRight) {
    EXPECT_EQ(1, remove_from(riff(7, hdrl() + old_info() + movi())));
    expect_file(riff(
        100, hdrl() + chunk("JUNK", 28, "INFO" + chunk("INAM", 4, z("Old")) + chunk("ISTR", 4, z("Ann"))) +
                 movi()));
}

TEST_F(AviRemove, AnAvixFormKeepsItsType) {
    EXPECT_EQ(1, remove_from("RIFF" + le32(68) + "AVIX" + hdrl() + old_info()));
    expect_file("RIFF" + le32(32) + "AVIX" + hdrl() + old_info());
}

TEST_F(AviRemove, AFileThatIsNotThereIsReportedAsByAStore) {
    EXPECT_EQ(0, remove());
    EXPECT_EQ("avi_store_file_info: Couldn't open file\n", log_);
    EXPECT_EQ(ENOENT, error_);
}

TEST_F(AviRemove, AHeaderThatCantBeReadIsError5AndNothingChanges) {
    errno = 78;
    EXPECT_EQ(0, remove_from("no AVI file"));
    EXPECT_EQ(5, error_);
    expect_file("no AVI file");
}

TEST_F(AviRemove, ASecondRiffIsError78AndNothingChanges) {
    const std::string bytes = avi_with_info_last() + "RIFF" + le32(36) + "AVIX" + movi();
    EXPECT_EQ(0, remove_from(bytes));
    EXPECT_EQ(78, error_);
    expect_file(bytes);
}

} // namespace
} // namespace velmora::test
