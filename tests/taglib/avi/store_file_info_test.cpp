#include "taglib/avi/store_file_info.h"

#include "avi_bytes.h"

#include "fake_image/fake_image.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"
#include "taglib/avi/remove_file_info.h"

#include <gtest/gtest.h>

#include <cerrno>

using namespace std::string_literals;

namespace velmora::test {
namespace {

class AviStore : public testing::Test {
protected:
    ~AviStore() override {
        fail_fake_image_encoding(false);
        image_release(info_.picture);
        EXPECT_EQ(0, fake_images_alive());
    }

    int store_into(const std::string& bytes) {
        write_file(path_, bytes);
        return store();
    }

    int store() {
        StreamCapture log;
        const int result = avi_store_file_info(path_.c_str(), &info_);
        error_ = errno;
        log_ = log.text();
        return result;
    }

    /** Has the next store write this title, and nothing else. */
    void set_title(const std::string& title) {
        title_ = title;
        info_.title = title_.data();
        info_.flags = file_info_flag::title;
    }

    void expect_file(const std::string& bytes) { EXPECT_EQ(to_hex(bytes), to_hex(read_file(path_))); }

    const ScratchFolder folder_;
    const std::string path_ = folder_ / "file.avi";
    std::string title_;
    _file_info_t info_{};
    std::string log_;
    int error_ = 0;
};

// Where the list goes

TEST_F(AviStore, WithoutAnInfoListOneIsAppendedAndTheRiffSizeRaised) {
    set_title("New");
    EXPECT_EQ(1, store_into(avi_without_info()));
    expect_file(riff(112, hdrl() + movi() + idx1() + list(16, "INFO", chunk("INAM", 4, z("New")))));
    EXPECT_EQ(log_of_avi_without_info() + "Writing <info> at 0x60 size 0x10\n", log_);
}

TEST_F(AviStore, AListThatIsNotLastBecomesJunkAndANewOneGoesToTheEnd) {
    set_title("Newer");
    EXPECT_EQ(1, store_into(avi_with_info_before_movi()));
    expect_file(riff(
        162, hdrl() + chunk("JUNK", 28, "INFO" + chunk("INAM", 4, z("Old")) + chunk("ISTR", 4, z("Ann"))) +
                 movi() + idx1() +
                 list(30, "INFO", chunk("INAM", 6, z("Newer")) + chunk("ISTR", 4, z("Ann")))));
    EXPECT_EQ(log_of_avi_with_info_before_movi() + "Writing <junk> at 0x28 size 0x1c\n"
                                                   "Writing <info> at 0x84 size 0x1e\n",
              log_);
}

TEST_F(AviStore, TheSecondStoreRewritesTheLastListInPlace) {
    set_title("Newer");
    ASSERT_EQ(1, store_into(avi_with_info_before_movi()));
    set_title("Newest title");
    EXPECT_EQ(1, store());
    expect_file(riff(
        170, hdrl() + chunk("JUNK", 28, "INFO" + chunk("INAM", 4, z("Old")) + chunk("ISTR", 4, z("Ann"))) +
                 movi() + idx1() +
                 list(38, "INFO", chunk("INAM", 13, z("Newest title") + '\0') + chunk("ISTR", 4, z("Ann")))));
}

TEST_F(AviStore, AShorterListLeavesTheOldTailBehindTheRiffChunk) {
    set_title("N");
    EXPECT_EQ(1, store_into(avi_with_info_last()));
    expect_file(riff(122, hdrl() + movi() + idx1() +
                              list(26, "INFO", chunk("INAM", 2, z("N")) + chunk("ISTR", 4, z("Ann")))) +
                "n\0"s);
    EXPECT_EQ(log_of_avi_with_info_last() + "Writing <info> at 0x60 size 0x1a\n", log_);
}

TEST_F(AviStore, AnOldTailThatParsesAsAChunkMakesTheListNotTheLastAnyMore) {
    // Without its ICMT the list ends 12 bytes earlier, and the file's last 12 bytes are a whole chunk.
    const std::string sub_chunks = chunk("ICMT", 4, z("Any")) + chunk("INAM", 4, z("Old"));
    info_.flags = file_info_flag::desc;
    ASSERT_EQ(1, store_into(riff(68, hdrl() + list(28, "INFO", sub_chunks))));
    expect_file(riff(56, hdrl() + list(16, "INFO", chunk("INAM", 4, z("Old")))) + chunk("INAM", 4, z("Old")));
    set_title("New");
    EXPECT_EQ(1, store());
    expect_file(riff(92, hdrl() + chunk("JUNK", 16, "INFO" + chunk("INAM", 4, z("Old"))) +
                             chunk("INAM", 4, z("Old")) + list(16, "INFO", chunk("INAM", 4, z("New")))));
}

TEST_F(AviStore, ATailOfMoreThan4096BytesMakesTheFileUnreadable) {
    const std::string picture(5000, '\x01');
    const std::string sub_chunks = chunk("IPIC", 5000, picture) + chunk("INAM", 4, z("Old"));
    info_.flags = file_info_flag::picture;
    ASSERT_EQ(1, store_into(riff(5064, hdrl() + list(5024, "INFO", sub_chunks))));
    set_title("New");
    EXPECT_EQ(0, store());
    EXPECT_EQ(5, error_);
}

TEST_F(AviStore, BytesBehindTheRiffChunkAreOverwrittenNotMoved) {
    set_title("New");
    EXPECT_EQ(1, store_into(riff(32, hdrl()) + std::string(30, '\1')));
    expect_file(riff(56, hdrl() + list(16, "INFO", chunk("INAM", 4, z("New")))) + std::string(6, '\1'));
}

TEST_F(AviStore, AfterAnOddLastChunkTheListBeginsBehindThePadByte) {
    set_title("New");
    EXPECT_EQ(1, store_into(riff(46, hdrl() + chunk("idx1", 5, "12345") + "p")));
    expect_file(
        riff(70, hdrl() + chunk("idx1", 5, "12345") + "p" + list(16, "INFO", chunk("INAM", 4, z("New")))));
    EXPECT_EQ("New", loaded_title(path_));
}

TEST_F(AviStore, AnOddListThatIsNotLastBecomesJunkOfItsOddSize) {
    const std::string odd = chunk("INAM", 3, "Odd"); // its pad byte is not in the list's count
    set_title("New");
    EXPECT_EQ(1, store_into(riff(80, hdrl() + list(15, "INFO", odd + 'p') + idx1())));
    expect_file(riff(104, hdrl() + chunk("JUNK", 15, "INFO" + odd + 'p') + idx1() +
                              list(16, "INFO", chunk("INAM", 4, z("New")))));
    EXPECT_TRUE(log_.ends_with("Writing <junk> at 0x28 size 0xf\n"
                               "Writing <info> at 0x58 size 0x10\n"))
        << log_;
}

TEST_F(AviStore, AnOddListThatIsLastIsRewrittenInPlaceWithAnEvenSize) {
    set_title("New");
    EXPECT_EQ(1, store_into(riff(56, hdrl() + list(15, "INFO", chunk("INAM", 3, "Odd") + 'p'))));
    expect_file(riff(56, hdrl() + list(16, "INFO", chunk("INAM", 4, z("New")))));
}

TEST_F(AviStore, AMissingPadByteOfTheLastChunkBecomesZero) {
    set_title("New");
    EXPECT_EQ(1, store_into(riff(45, hdrl() + chunk("idx1", 5, "12345"))));
    expect_file(
        riff(70, hdrl() + chunk("idx1", 5, "12345") + '\0' + list(16, "INFO", chunk("INAM", 4, z("New")))));
    EXPECT_EQ("New", loaded_title(path_));
}

TEST_F(AviStore, AListInFrontOfAnOddLastChunkGoesBehindItsPadByteToo) {
    set_title("New");
    EXPECT_EQ(1, store_into(riff(57, hdrl() + list(4, "INFO", "") + chunk("idx1", 5, "12345"))));
    expect_file(riff(82, hdrl() + chunk("JUNK", 4, "INFO") + chunk("idx1", 5, "12345") + '\0' +
                             list(16, "INFO", chunk("INAM", 4, z("New")))));
}

TEST_F(AviStore, AChunkThatOverrunsTheFileIsGivenTheBytesThatItClaims) {
    set_title("New");
    EXPECT_EQ(1, store_into(riff(40, hdrl() + chunk("JUNK", 8, ""))));
    expect_file(riff(72, hdrl() + chunk("JUNK", 8, std::string(8, '\0')) +
                             list(16, "INFO", chunk("INAM", 4, z("New")))));
}

TEST_F(AviStore, ARiffWithoutChunksGetsTheListBehindItsFormType) {
    set_title("New");
    EXPECT_EQ(1, store_into(riff(4, "")));
    expect_file(riff(28, list(16, "INFO", chunk("INAM", 4, z("New")))));
}

TEST_F(AviStore, OnlyTheFirstInfoListIsEdited) {
    set_title("New");
    EXPECT_EQ(1, store_into(riff(92, hdrl() + list(16, "INFO", chunk("INAM", 4, z("One"))) + old_info())));
    expect_file(riff(116, hdrl() + chunk("JUNK", 16, "INFO" + chunk("INAM", 4, z("One"))) + old_info() +
                              list(16, "INFO", chunk("INAM", 4, z("New")))));
}

TEST_F(AviStore, AWrongRiffSizeIsPutRight) {
    set_title("New");
    EXPECT_EQ(1, store_into(riff(0xFFFFFFFF, hdrl())));
    expect_file(riff(56, hdrl() + list(16, "INFO", chunk("INAM", 4, z("New")))));
}

TEST_F(AviStore, AnAvixFormKeepsItsType) {
    set_title("New");
    EXPECT_EQ(1, store_into("RIFF" + le32(32) + "AVIX" + hdrl()));
    expect_file("RIFF" + le32(56) + "AVIX" + hdrl() + list(16, "INFO", chunk("INAM", 4, z("New"))));
}

// The fields

TEST_F(AviStore, EachFieldGoesToItsSubChunkInAFixedOrder) {
    std::string texts[] = {"T", "AA", "SSS", "DDDD", "R", "GG"};
    info_.title = texts[0].data();
    info_.artist = texts[1].data();
    info_.desc = texts[2].data();
    info_.director = texts[3].data();
    info_.rating = texts[4].data();
    info_.genre = texts[5].data();
    info_.year = 1984;
    info_.picture = image_from_bytes("\xFF\xD8\xFFjpeg", 7);
    info_.flags = 0xFF;
    EXPECT_EQ(1, store_into(riff(32, hdrl())));
    expect_file(
        riff(144, hdrl() + list(104, "INFO",
                                chunk("INAM", 2, z("T")) +                                          // 10
                                    chunk("ISTR", 3, z("AA") + '\0') +                              // 12
                                    chunk("ICMT", 4, z("SSS")) +                                    // 12
                                    chunk("IART", 5, z("DDDD") + '\0') +                            // 14
                                    chunk("IRTD", 2, z("R")) +                                      // 10
                                    chunk("IGNR", 3, z("GG") + '\0') +                              // 12
                                    chunk("ICRD", 5, z("1984") + '\0') +                            // 14
                                    chunk("IPIC", 7, "\xFF\xD8\xFFjpeg" + std::string(1, '\0'))))); // 16
}

TEST_F(AviStore, AFieldWhoseFlagIsClearIsLeftAsItIs) {
    set_title("New");
    std::string artist = "not written";
    info_.artist = artist.data();
    ASSERT_EQ(1, store_into(riff(68, hdrl() + old_info())));
    expect_file(riff(68, hdrl() + list(28, "INFO", chunk("INAM", 4, z("New")) + chunk("ISTR", 4, z("Ann")))));
}

TEST_F(AviStore, SubChunksOfOthersKeepTheirBytesAndTheirPlaces) {
    set_title("New");
    ASSERT_EQ(1, store_into(riff(82, hdrl() + list(42, "INFO",
                                                   chunk("ISFT", 3, "Lav\0"s) + chunk("INAM", 4, z("Old")) +
                                                       chunk("Ixyz", 6, "\0\1\2\3\4\5"s)))));
    expect_file(riff(82, hdrl() + list(42, "INFO",
                                       chunk("ISFT", 3, "Lav\0"s) + chunk("INAM", 4, z("New")) +
                                           chunk("Ixyz", 6, "\0\1\2\3\4\5"s))));
}

TEST_F(AviStore, AListInsideTheInfoListIsWrittenBackUnchanged) {
    set_title("New");
    const std::string inner = list(17, "iner", chunk("INAM", 5, "inner")) + '\0';
    ASSERT_EQ(1, store_into(riff(70, hdrl() + list(30, "INFO", inner))));
    expect_file(riff(82, hdrl() + list(42, "INFO", inner + chunk("INAM", 4, z("New")))));
}

TEST_F(AviStore, AnEmptyListInsideTheInfoListIsWrittenBackUnchanged) {
    set_title("New");
    ASSERT_EQ(1, store_into(riff(52, hdrl() + list(12, "INFO", chunk("LIST", 0, "")))));
    expect_file(riff(64, hdrl() + list(24, "INFO", chunk("LIST", 0, "") + chunk("INAM", 4, z("New")))));
}

TEST_F(AviStore, ASubChunkOfOneByteIsWrittenBackWithAZeroPadByte) {
    const std::string artist = chunk("ISTR", 4, z("Ann"));
    ASSERT_EQ(1, store_into(riff(66, hdrl() + list(26, "INFO", chunk("INAM", 1, "Xp") + artist))));
    expect_file(riff(66, hdrl() + list(26, "INFO", chunk("INAM", 1, "X\0"s) + artist)));
}

TEST_F(AviStore, AnAbsentTextRemovesItsSubChunk) {
    info_.flags = file_info_flag::title;
    ASSERT_EQ(1, store_into(riff(68, hdrl() + old_info())));
    expect_file(riff(56, hdrl() + list(16, "INFO", chunk("ISTR", 4, z("Ann")))) + chunk("ISTR", 4, z("Ann")));
}

TEST_F(AviStore, AnEmptyTextRemovesItsSubChunk) {
    set_title("");
    ASSERT_EQ(1, store_into(riff(68, hdrl() + old_info())));
    EXPECT_EQ("", loaded_title(path_));
}

TEST_F(AviStore, RemovingAFieldKeepsTheOrderOfTheOthers) {
    const std::string artist = chunk("ISTR", 4, z("Ann"));
    const std::string software = chunk("ISFT", 4, z("Lav"));
    const std::string keyword = chunk("IKEY", 4, z("key"));
    const std::string old = chunk("INAM", 4, z("Old")) + artist + software + keyword;
    info_.flags = file_info_flag::title;
    ASSERT_EQ(1, store_into(riff(92, hdrl() + list(52, "INFO", old))));
    expect_file(riff(80, hdrl() + list(40, "INFO", artist + software + keyword)) + keyword);
}

TEST_F(AviStore, RemovingTakesTheFirstSubChunkOnlySoThatASecondSurfaces) {
    info_.flags = file_info_flag::title;
    ASSERT_EQ(
        1, store_into(
               riff(68, hdrl() + list(28, "INFO", chunk("INAM", 4, z("One")) + chunk("INAM", 4, z("Two"))))));
    EXPECT_EQ("Two", loaded_title(path_));
}

TEST_F(AviStore, Year0RemovesTheYear) {
    info_.flags = file_info_flag::year;
    ASSERT_EQ(1, store_into(riff(58, hdrl() + list(18, "INFO", chunk("ICRD", 5, z("1984") + '\0')))));
    expect_file(riff(44, hdrl() + list(4, "INFO", "")) + chunk("ICRD", 5, z("1984") + '\0'));
}

TEST_F(AviStore, ANegativeYearIsWrittenWithItsSign) {
    info_.flags = file_info_flag::year;
    info_.year = -44;
    ASSERT_EQ(1, store_into(riff(32, hdrl())));
    expect_file(riff(56, hdrl() + list(16, "INFO", chunk("ICRD", 4, z("-44")))));
}

TEST_F(AviStore, TheLongestYearIsWrittenWhole) {
    info_.flags = file_info_flag::year;
    info_.year = -2147483647 - 1;
    ASSERT_EQ(1, store_into(riff(32, hdrl())));
    expect_file(riff(64, hdrl() + list(24, "INFO", chunk("ICRD", 12, z("-2147483648")))));
}

TEST_F(AviStore, NoPictureRemovesThePicture) {
    info_.flags = file_info_flag::picture;
    ASSERT_EQ(1, store_into(riff(56, hdrl() + list(16, "INFO", chunk("IPIC", 4, "\xFF\xD8\xFFj")))));
    expect_file(riff(44, hdrl() + list(4, "INFO", "")) + chunk("IPIC", 4, "\xFF\xD8\xFFj"));
}

TEST_F(AviStore, NoPictureRemovesTheFirstPictureOnly) {
    const std::string second = chunk("IPIC", 4, "\xFF\xD8\xFFk");
    info_.flags = file_info_flag::picture;
    ASSERT_EQ(1, store_into(riff(68, hdrl() + list(28, "INFO", chunk("IPIC", 4, "\xFF\xD8\xFFj") + second))));
    expect_file(riff(56, hdrl() + list(16, "INFO", second)) + second);
}

TEST_F(AviStore, APictureThatCantBeEncodedLeavesTheStoredOne) {
    info_.picture = image_from_bytes("\xFF\xD8\xFFjpeg", 7);
    info_.flags = file_info_flag::picture;
    fail_fake_image_encoding(true);
    const std::string bytes = riff(56, hdrl() + list(16, "INFO", chunk("IPIC", 4, "\xFF\xD8\xFFj")));
    EXPECT_EQ(1, store_into(bytes));
    expect_file(bytes);
}

TEST_F(AviStore, TheCallersPictureIsNotReleased) {
    info_.picture = image_from_bytes("\xFF\xD8\xFFjpeg", 7);
    info_.flags = file_info_flag::picture;
    ASSERT_EQ(1, store_into(avi_without_info()));
    EXPECT_EQ(1, fake_image_references(info_.picture));
}

TEST_F(AviStore, ATextOf100000BytesIsWrittenWhole) {
    const std::string text(100000, 't');
    set_title(text);
    ASSERT_EQ(1, store_into(riff(32, hdrl())));
    expect_file(riff(100054, hdrl() + list(100014, "INFO", chunk("INAM", 100001, z(text) + '\0'))));
}

// The flags

TEST_F(AviStore, HandledFlagsAreClearedInTheCallersRecordAndOthersStay) {
    info_.flags = 0xFFFFFFFF;
    ASSERT_EQ(1, store_into(avi_without_info()));
    EXPECT_EQ(0xFFFFFF00u, info_.flags);
}

TEST_F(AviStore, FlagsStaySetWhenTheHeaderCantBeRead) {
    info_.flags = 0xFF;
    ASSERT_EQ(0, store_into("no AVI file"));
    EXPECT_EQ(0xFFu, info_.flags);
}

TEST_F(AviStore, FlagsStaySetWhenTheFileCantBeOpened) {
    info_.flags = 0xFF;
    ASSERT_EQ(0, store());
    EXPECT_EQ(0xFFu, info_.flags);
}

TEST_F(AviStore, WithoutFlagsAnEmptyListIsStillAppended) {
    EXPECT_EQ(1, store_into(riff(32, hdrl())));
    expect_file(riff(44, hdrl() + list(4, "INFO", "")));
}

TEST_F(AviStore, WithoutFlagsAListThatIsNotLastStillMoves) {
    EXPECT_EQ(1, store_into(riff(100, hdrl() + old_info() + movi())));
    expect_file(riff(
        136, hdrl() + chunk("JUNK", 28, "INFO" + chunk("INAM", 4, z("Old")) + chunk("ISTR", 4, z("Ann"))) +
                 movi() + old_info()));
}

// Cost

TEST_F(AviStore, ATitleInAFilmAsEncodersWriteItTakesSixteenCalls) {
    write_file(path_, avi_film_with_info_last());
    set_title("New");
    {
        const StreamCapture log;
        const SystemCallFaults watch;
        EXPECT_EQ(1, avi_store_file_info(path_.c_str(), &info_));
        EXPECT_EQ(16, watch.count());
        // The list, nothing where a format that shrinks would be cut, and the RIFF header.
        EXPECT_EQ(3, watch.count(SystemCall::write));
    }
    EXPECT_EQ("New", loaded_title(path_));
}

// Failures

TEST_F(AviStore, AFileThatIsNotThereIsLoggedAndKeepsTheSystemsError) {
    EXPECT_EQ(0, store());
    EXPECT_EQ("avi_store_file_info: Couldn't open file\n", log_);
    EXPECT_EQ(ENOENT, error_);
    EXPECT_FALSE(file_exists(path_));
}

TEST_F(AviStore, AHeaderThatCantBeReadIsError5AndNothingChanges) {
    errno = 78;
    set_title("New");
    EXPECT_EQ(0, store_into("no AVI file"));
    EXPECT_EQ(5, error_);
    EXPECT_EQ("avi_read_header: Not a RIFF header\n", log_);
    expect_file("no AVI file");
}

TEST_F(AviStore, ASecondRiffIsError78AndNothingChanges) {
    const std::string bytes = avi_with_info_last() + "RIFF" + le32(36) + "AVIX" + movi();
    set_title("New");
    EXPECT_EQ(0, store_into(bytes));
    EXPECT_EQ(78, error_);
    expect_file(bytes);
}

TEST_F(AviStore, RemovedAndStoredAgainTheListIsRewrittenWhereItWas) {
    write_file(path_, avi_with_info_last());
    {
        StreamCapture quiet;
        ASSERT_EQ(1, avi_remove_file_info(path_.c_str()));
    }
    set_title("New");
    EXPECT_EQ(1, store());
    expect_file(riff(124, hdrl() + movi() + idx1() +
                              list(28, "INFO", chunk("INAM", 4, z("New")) + chunk("ISTR", 4, z("Ann")))));
}

} // namespace
} // namespace velmora::test
