#include "taglib/avi/load_file_info.h"

#include "avi_bytes.h"

#include "fake_image/fake_image.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

namespace velmora::test {
namespace {

class AviLoad : public testing::Test {
protected:
    ~AviLoad() override {
        id3_free_file_info(&info_);
        EXPECT_EQ(0, fake_images_alive());
    }

    int load_path(const std::string& path) {
        id3_free_file_info(&info_);
        std::memset(&info_, 0x5A, sizeof info_);
        StreamCapture log;
        const int result = avi_load_file_info(path.c_str(), &info_);
        error_ = errno;
        log_ = log.text();
        return result;
    }

    int load(const std::string& bytes) {
        const std::string path = folder_ / "file.avi";
        write_file(path, bytes);
        return load_path(path);
    }

    /** Loads a file whose INFO list has that size field and holds those sub-chunks. (Its RIFF
       size is wrong.) */
    int load_info(std::uint32_t size, const std::string& sub_chunks) {
        return load(riff(88, hdrl() + movi() + idx1() + list(size, "INFO", sub_chunks)));
    }

    void expect_zeroed() {
        const _file_info_t zeroed{};
        EXPECT_EQ(0, std::memcmp(&zeroed, &info_, sizeof zeroed));
    }

    const ScratchFolder folder_;
    _file_info_t info_{};
    std::string log_;
    int error_ = 0;
};

TEST_F(AviLoad, EachSubChunkFillsItsField) {
    ASSERT_EQ(1, load_info(0x78, chunk("INAM", 6, z("Title")) + chunk("ISTR", 8, z("Ann, Bo")) +
                                     chunk("ICMT", 9, z("Synopsis") + '\0') + chunk("IGNR", 6, z("Drama")) +
                                     chunk("ICRD", 5, z("1999") + '\0') + chunk("IART", 4, z("Dir")) +
                                     chunk("IRTD", 3, z("PG") + '\0') +
                                     chunk("IPIC", 7, "\xFF\xD8\xFFjpeg" + std::string(1, '\0'))));
    EXPECT_STREQ("Title", info_.title);
    EXPECT_STREQ("Ann, Bo", info_.artist);
    EXPECT_STREQ("Synopsis", info_.desc);
    EXPECT_STREQ("Drama", info_.genre);
    EXPECT_STREQ("Dir", info_.director);
    EXPECT_STREQ("PG", info_.rating);
    EXPECT_EQ(1999, info_.year);
    ASSERT_NE(nullptr, info_.picture);
    EXPECT_EQ("\xFF\xD8\xFFjpeg", fake_image_bytes(info_.picture));
    EXPECT_EQ(nullptr, info_.aux_object);
    EXPECT_EQ(0u, info_.time);
    EXPECT_EQ(0x8000u, info_.flags);
}

TEST_F(AviLoad, TheWholeLogEndsWithTheListing) {
    ASSERT_EQ(1, load(avi_with_info_before_movi()));
    EXPECT_EQ(log_of_avi_with_info_before_movi() + "List <INFO>\n"
                                                   "[00000034] <INAM> size 0x4\n"
                                                   "[00000040] <ISTR> size 0x4\n",
              log_);
}

TEST_F(AviLoad, AListInsideTheInfoListIsListedWithItsType) {
    ASSERT_EQ(1, load(riff(60, hdrl() + list(20, "INFO", list(8, "iner", "....")))));
    EXPECT_EQ("now have 1 RIFF headers\n"
              "[0000000c] <list> type hdrl size 0x14\n"
              "[00000028] <list> type INFO size 0x14\n"
              "[00000034]        <LIST> size 0x8\n"
              "List <INFO>\n"
              "[00000034] <LIST> type <iner> size 0x8\n",
              log_);
}

TEST_F(AviLoad, WithoutAnInfoListTheRecordIsZeroedAndTheResultIsOne) {
    EXPECT_EQ(1, load(avi_without_info()));
    expect_zeroed();
    EXPECT_EQ(log_of_avi_without_info(), log_);
}

TEST_F(AviLoad, AnEmptyInfoListCountsAsATag) {
    EXPECT_EQ(1, load_info(4, ""));
    EXPECT_EQ(0x8000u, info_.flags);
    EXPECT_EQ(nullptr, info_.title);
}

TEST_F(AviLoad, OnlyTheFirstInfoListCounts) {
    ASSERT_EQ(1,
              load(riff(124, hdrl() + list(16, "INFO", chunk("IGNR", 4, z("One"))) + movi() + old_info())));
    EXPECT_STREQ("One", info_.genre);
    EXPECT_EQ(nullptr, info_.title);
}

TEST_F(AviLoad, OnlyTheFirstSubChunkOfAFourccCounts) {
    ASSERT_EQ(1, load_info(28, chunk("INAM", 4, z("One")) + chunk("INAM", 4, z("Two"))));
    EXPECT_STREQ("One", info_.title);
}

TEST_F(AviLoad, AnEmptyTextLeavesTheFieldEmptyEvenWhenASecondSubChunkHasOne) {
    ASSERT_EQ(1, load_info(28, chunk("INAM", 4, std::string(4, '\0')) + chunk("INAM", 4, z("Two"))));
    EXPECT_EQ(nullptr, info_.title);
}

TEST_F(AviLoad, OneCharacterIsAText) {
    ASSERT_EQ(1, load_info(14, chunk("INAM", 2, z("M"))));
    EXPECT_STREQ("M", info_.title);
}

TEST_F(AviLoad, OneByteIsAText) {
    ASSERT_EQ(1, load_info(26, chunk("INAM", 1, "Xp") + chunk("ISTR", 4, z("Ann"))));
    EXPECT_STREQ("X", info_.title);
    EXPECT_STREQ("Ann", info_.artist);
}

TEST_F(AviLoad, ATextNeedsNoTerminatingZero) {
    ASSERT_EQ(1, load_info(16, chunk("INAM", 4, "Four")));
    EXPECT_STREQ("Four", info_.title);
}

TEST_F(AviLoad, BytesAreTakenAsTheyAreWhateverTheirEncoding) {
    ASSERT_EQ(1, load_info(16, chunk("INAM", 4, z("\xE9\xC3\xA9"))));
    EXPECT_STREQ("\xE9\xC3\xA9", info_.title);
}

TEST_F(AviLoad, ATextIsCutTo8191Characters) {
    ASSERT_EQ(1, load_info(9012, chunk("ICMT", 9000, std::string(9000, 'c'))));
    EXPECT_EQ(std::string(8191, 'c'), info_.desc);
}

TEST_F(AviLoad, TheYearIsTheNumberThatTheTextBeginsWith) {
    ASSERT_EQ(1, load_info(24, chunk("ICRD", 11, z("2009-05-01") + '\0')));
    EXPECT_EQ(2009, info_.year);
}

TEST_F(AviLoad, TheYearIsDecimalAndMayHaveASignLeadingZerosAndBlanksInFront) {
    for (const auto& [text, year] :
         {std::pair("0012", 12), std::pair("-44\0", -44), std::pair("0x7D", 0), std::pair(" 7\0\0", 7)}) {
        ASSERT_EQ(1, load_info(16, chunk("ICRD", 4, std::string(text, 4))));
        EXPECT_EQ(year, info_.year) << text;
    }
}

TEST_F(AviLoad, AYearThatIsNoNumberIsZero) {
    ASSERT_EQ(1, load_info(16, chunk("ICRD", 4, z("May"))));
    EXPECT_EQ(0, info_.year);
}

TEST_F(AviLoad, APictureThatIsNoImageGivesNone) {
    ASSERT_EQ(1, load_info(16, chunk("IPIC", 4, "text")));
    EXPECT_EQ(nullptr, info_.picture);
}

TEST_F(AviLoad, AFileThatIsNotThereIsLoggedAndKeepsTheSystemsError) {
    EXPECT_EQ(0, load_path(folder_ / "none.avi"));
    EXPECT_EQ("avi_load_file_info: Couldn't open file\n", log_);
    EXPECT_EQ(ENOENT, error_);
    expect_zeroed();
}

TEST_F(AviLoad, AHeaderThatCantBeReadIsError5) {
    EXPECT_EQ(0, load("no AVI file"));
    EXPECT_EQ("avi_read_header: Not a RIFF header\n", log_);
    EXPECT_EQ(5, error_);
    expect_zeroed();
}

TEST_F(AviLoad, ASecondRiffIsError78) {
    EXPECT_EQ(0, load(avi_with_info_last() + "RIFF" + le32(36) + "AVIX" + movi()));
    EXPECT_EQ(78, error_);
    expect_zeroed();
}

TEST_F(AviLoad, Error78IsNotTakenOverFromAnEarlierFile) {
    ASSERT_EQ(0, load(avi_with_info_last() + "RIFF" + le32(36) + "AVIX" + movi()));
    errno = 78;
    EXPECT_EQ(0, load("no AVI file"));
    EXPECT_EQ(5, error_);
}

TEST_F(AviLoad, AnErrorFromBeforeTheCallDoesNotShowInAGoodLoad) {
    errno = 78;
    ASSERT_EQ(1, load(avi_without_info()));
    EXPECT_EQ(0, error_);
}

// Cost

TEST_F(AviLoad, CostsTwoCallsAPlaceInTheFileAndFourMore) {
    const std::string path = folder_ / "film.avi";
    const std::string even = chunk("INAM", 4, z("Dog"));
    const std::string odd = chunk("ICMT", 5, z("Dogs") + '\0');
    const std::string info =
        list(4 + 4 * 12 + 4 * 14, "INFO", even + odd + even + odd + odd + odd + even + even);
    const std::string large_movi = list(100004, "movi", std::string(100000, 'f'));
    const std::string large_idx1 = chunk("idx1", 8000, std::string(8000, 'i'));
    write_file(path, riff(4 + 28 + 100012 + 8008 + 116, hdrl() + large_movi + large_idx1 + info));
    const StreamCapture log;
    const SystemCallFaults watch;
    _file_info_t read;
    ASSERT_EQ(1, avi_load_file_info(path.c_str(), &read));
    id3_free_file_info(&read);
    // open, close and the length; the start, idx1 and INFO with all that it has
    EXPECT_EQ(3 + 3 * 2, watch.count());
    EXPECT_EQ(0, watch.open_descriptors());
}

TEST_F(AviLoad, AFilmAsEncodersWriteItTakesElevenCalls) {
    const std::string path = folder_ / "film.avi";
    write_file(path, avi_film_with_info_last());
    const StreamCapture log;
    const SystemCallFaults watch;
    _file_info_t read;
    ASSERT_EQ(1, avi_load_file_info(path.c_str(), &read));
    EXPECT_STREQ("Old", read.title);
    id3_free_file_info(&read);
    // open, close and the length; the start, the two JUNK and movi, idx1, INFO
    EXPECT_EQ(3 + 4 * 2, watch.count());
}

} // namespace
} // namespace velmora::test
