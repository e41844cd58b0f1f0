#include "taglib/asf/load_file_info.h"

#include "asf_bytes.h"

#include "fake_image/fake_image.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <fcntl.h>

namespace velmora {
namespace {

using namespace test;

class AsfLoadFileInfo : public testing::Test {
protected:
    ~AsfLoadFileInfo() override {
        id3_free_file_info(&info_);
        EXPECT_EQ(0, fake_images_alive());
    }

    /** Loads a file of these bytes. */
    int load(const std::string& bytes) {
        id3_free_file_info(&info_);
        write_file(path_, bytes);
        const StreamCapture quiet;
        errno = 0;
        const int result = asf_load_file_info(path_.c_str(), &info_);
        error_ = errno;
        return result;
    }
    /** Loads a file with these attributes and nothing else. */
    int load_attributes(std::initializer_list<std::string> descriptors) {
        return load(header_object({other_object(), ext_content_description(descriptors), padding(100)}));
    }

    ScratchFolder folder_;
    std::string path_ = folder_ / "file.wma";
    _file_info_t info_{};
    int error_ = 0;
};

const std::string picture_descriptor =
    descriptor("WM/Picture", 1, hex("03 0B 00 00 00") + wide_z("image/jpeg") + u16(0) + fake_jpeg);

TEST_F(AsfLoadFileInfo, FillsEveryField) {
    ASSERT_EQ(1, load_attributes(
                     {text_descriptor("WM/AlbumArtist", "artist"), text_descriptor("WM/AlbumTitle", "album"),
                      text_descriptor("Description", "desc"), text_descriptor("WM/Genre", "genre"),
                      descriptor("WM/Year", 3, u32(1999)), text_descriptor("WM/Director", "director"),
                      text_descriptor("WM/ParentalRating", "rating"),
                      descriptor("WM/EncodingTime", 4, hex("08 07 06 05 04 03 02 01")), picture_descriptor}));
    EXPECT_STREQ("artist", info_.artist);
    EXPECT_STREQ("album", info_.title);
    EXPECT_STREQ("desc", info_.desc);
    EXPECT_STREQ("genre", info_.genre);
    EXPECT_EQ(1999, info_.year);
    EXPECT_STREQ("director", info_.director);
    EXPECT_STREQ("rating", info_.rating);
    EXPECT_EQ(0x0102030405060708u, info_.time);
    ASSERT_TRUE(info_.picture);
    EXPECT_EQ(fake_jpeg, fake_image_bytes(info_.picture));
    EXPECT_EQ(1, fake_image_references(info_.picture));
    EXPECT_EQ(nullptr, info_.aux_object);
    EXPECT_EQ(0x8000u, info_.flags);
}

TEST_F(AsfLoadFileInfo, FirstNamesWin) {
    ASSERT_EQ(1, load_attributes({text_descriptor("AlbumArtist", "2"), text_descriptor("AlbumTitle", "2"),
                                  text_descriptor("WM/Track", "2"), text_descriptor("Genre", "2"),
                                  text_descriptor("Year", "2"), text_descriptor("WM/AlbumArtist", "1"),
                                  text_descriptor("WM/AlbumTitle", "1"), text_descriptor("Description", "1"),
                                  text_descriptor("WM/Genre", "1"), text_descriptor("WM/Year", "1")}));
    EXPECT_STREQ("1", info_.artist);
    EXPECT_STREQ("1", info_.title);
    EXPECT_STREQ("1", info_.desc);
    EXPECT_STREQ("1", info_.genre);
    EXPECT_EQ(1, info_.year);
}

TEST_F(AsfLoadFileInfo, SecondNamesFillIn) {
    ASSERT_EQ(1, load_attributes({text_descriptor("AlbumArtist", "a"), text_descriptor("AlbumTitle", "t"),
                                  text_descriptor("WM/Track", "d"), text_descriptor("Genre", "g"),
                                  text_descriptor("Year", "2001")}));
    EXPECT_STREQ("a", info_.artist);
    EXPECT_STREQ("t", info_.title);
    EXPECT_STREQ("d", info_.desc);
    EXPECT_STREQ("g", info_.genre);
    EXPECT_EQ(2001, info_.year);
}

TEST_F(AsfLoadFileInfo, AnAttributeWithoutAValueDoesNotHideTheSecondName) {
    ASSERT_EQ(1, load_attributes({descriptor("WM/AlbumArtist", 0, ""), text_descriptor("AlbumArtist", "2")}));
    EXPECT_STREQ("2", info_.artist);
}

TEST_F(AsfLoadFileInfo, AnAttributeWhoseValueMakesNoTextHidesTheSecondName) {
    for (const std::string& first :
         {descriptor("WM/AlbumArtist", 3, hex("01 02")), descriptor("WM/AlbumArtist", 0, hex("00 00")),
          descriptor("WM/AlbumArtist", 77, "text")}) {
        ASSERT_EQ(1, load_attributes({first, text_descriptor("AlbumArtist", "hidden")}));
        EXPECT_STREQ("", info_.artist);
        EXPECT_EQ(0u, info_.flags);
    }
}

TEST_F(AsfLoadFileInfo, AValueThatMakesNoTextDoesNotShowThePreviousFieldsText) {
    ASSERT_EQ(1, load_attributes(
                     {text_descriptor("WM/AlbumArtist", "artist"), descriptor("WM/AlbumTitle", 3, "xy")}));
    EXPECT_STREQ("", info_.title);
}

TEST_F(AsfLoadFileInfo, TextsOfEveryScript) {
    ASSERT_EQ(1, load_attributes({descriptor("WM/Genre", 0, hex("E9 00 2D 4E 3D D8 00 DE 00 00"))}));
    EXPECT_STREQ("\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80", info_.genre);
}

TEST_F(AsfLoadFileInfo, TextsWithoutTerminatorOrOfOddLength) {
    ASSERT_EQ(1, load_attributes({descriptor("WM/Genre", 0, wide("Rock")),
                                  descriptor("WM/Director", 0, wide("D") + "x")}));
    EXPECT_STREQ("Rock", info_.genre);
    EXPECT_STREQ("D", info_.director);
}

TEST_F(AsfLoadFileInfo, TextsOfEveryType) {
    ASSERT_EQ(
        1, load_attributes({descriptor("WM/AlbumArtist", 1, "bytes"), descriptor("WM/AlbumTitle", 2, u32(1)),
                            descriptor("Description", 3, u32(0xFFFFFFFF)),
                            descriptor("WM/Genre", 4, u64(0x0123456789ABCDEF)),
                            descriptor("WM/Director", 5, u16(65535))}));
    EXPECT_STREQ("bytes", info_.artist);
    EXPECT_STREQ("1", info_.title);
    EXPECT_STREQ("-1", info_.desc);
    EXPECT_STREQ("81985529216486895", info_.genre);
    EXPECT_STREQ("65535", info_.director);
}

TEST_F(AsfLoadFileInfo, LongTextsAreCutBeforeTheBuffersLastByte) {
    ASSERT_EQ(1, load_attributes({text_descriptor("WM/Genre", std::string(9000, 'g')),
                                  descriptor("WM/Director", 1, std::string(9000, 'd'))}));
    EXPECT_EQ(std::string(8191, 'g'), info_.genre);
    EXPECT_EQ(std::string(8191, 'd'), info_.director);
}

TEST_F(AsfLoadFileInfo, YearOfATextIsTheNumberThatItBeginsWith) {
    ASSERT_EQ(1, load_attributes({text_descriptor("WM/Year", "1984-05-01")}));
    EXPECT_EQ(1984, info_.year);
}

TEST_F(AsfLoadFileInfo, TimeOfAnotherLengthIsNotTaken) {
    for (const std::size_t length : {0u, 4u, 7u, 9u}) {
        ASSERT_EQ(1, load_attributes({descriptor("WM/EncodingTime", 4, std::string(length, '\x01'))}));
        EXPECT_EQ(0u, info_.time) << length;
    }
}

TEST_F(AsfLoadFileInfo, TimeIsTakenFromEightBytesOfAnyType) {
    ASSERT_EQ(1, load_attributes({descriptor("WM/EncodingTime", 1, hex("01 00 00 00 00 00 00 80"))}));
    EXPECT_EQ(0x8000000000000001u, info_.time);
}

TEST_F(AsfLoadFileInfo, ATimeAloneIsNoTag) {
    ASSERT_EQ(1, load_attributes({descriptor("WM/EncodingTime", 4, u64(1))}));
    EXPECT_EQ(1u, info_.time);
    EXPECT_EQ(0u, info_.flags);
}

TEST_F(AsfLoadFileInfo, EveryOtherFieldAloneIsATag) {
    for (const std::string& attribute :
         {text_descriptor("WM/AlbumArtist", "x"), text_descriptor("WM/AlbumTitle", "x"),
          text_descriptor("WM/Track", "x"), text_descriptor("WM/Genre", "x"),
          descriptor("WM/Year", 3, u32(1)), text_descriptor("WM/Director", "x"),
          text_descriptor("WM/ParentalRating", "x"), picture_descriptor}) {
        ASSERT_EQ(1, load_attributes({attribute}));
        EXPECT_EQ(0x8000u, info_.flags) << to_hex(attribute);
    }
}

TEST_F(AsfLoadFileInfo, APictureThatIsNoneIsNoTag) {
    ASSERT_EQ(1, load_attributes({descriptor("WM/Picture", 1, "no picture")}));
    EXPECT_EQ(nullptr, info_.picture);
    EXPECT_EQ(0u, info_.flags);
}

TEST_F(AsfLoadFileInfo, ContentDescriptionFillsWhatIsStillEmpty) {
    ASSERT_EQ(1, load(header_object(
                     {content_description("title", "author", "copyright", "description", "rating")})));
    EXPECT_STREQ("title", info_.desc);
    EXPECT_STREQ("author", info_.artist);
    EXPECT_EQ(nullptr, info_.title);
    EXPECT_EQ(nullptr, info_.rating);
    EXPECT_EQ(0x8000u, info_.flags);
}

TEST_F(AsfLoadFileInfo, AttributesComeBeforeTheContentDescription) {
    ASSERT_EQ(1, load(header_object({content_description("title", "author"),
                                     ext_content_description({text_descriptor("WM/AlbumArtist", "artist"),
                                                              text_descriptor("WM/Track", "track")})})));
    EXPECT_STREQ("track", info_.desc);
    EXPECT_STREQ("artist", info_.artist);
}

TEST_F(AsfLoadFileInfo, ContentDescriptionFillsAnAttributeWithoutText) {
    ASSERT_EQ(1, load(header_object({content_description("title", "author"),
                                     ext_content_description({descriptor("WM/AlbumArtist", 0, hex("00 00")),
                                                              descriptor("Description", 3, hex("01"))})})));
    EXPECT_STREQ("title", info_.desc);
    EXPECT_STREQ("author", info_.artist);
}

TEST_F(AsfLoadFileInfo, LongContentDescriptionIsCutBeforeTheBuffersLastByte) {
    ASSERT_EQ(1, load(header_object({content_description(std::string(9000, 't'), "")})));
    EXPECT_EQ(std::string(8191, 't'), info_.desc);
}

TEST_F(AsfLoadFileInfo, TheFirstOfTwoDescriptionsCounts) {
    ASSERT_EQ(1, load(header_object({content_description("1", ""), content_description("2", "2"),
                                     ext_content_description({text_descriptor("Genre", "1")}),
                                     ext_content_description({text_descriptor("WM/Genre", "2")})})));
    EXPECT_STREQ("1", info_.desc);
    EXPECT_EQ(nullptr, info_.artist);
    EXPECT_STREQ("1", info_.genre);
}

TEST_F(AsfLoadFileInfo, AFileWithoutTagsLoadsAsNothing) {
    ASSERT_EQ(1, load(header_object({other_object()}) + "data"));
    const _file_info_t nothing{};
    EXPECT_EQ(0, std::memcmp(&nothing, &info_, sizeof info_));
}

TEST_F(AsfLoadFileInfo, ZeroesTheRecordFirst) {
    write_file(path_, header_object({}));
    _file_info_t info{};
    info.year = 1234;
    info.flags = 0xFFFF;
    EXPECT_EQ(1, asf_load_file_info(path_.c_str(), &info));
    EXPECT_EQ(0, info.year);
    EXPECT_EQ(0u, info.flags);
}

TEST_F(AsfLoadFileInfo, SaysThatAFileCanNotBeOpened) {
    StreamCapture log;
    info_.year = 7;
    EXPECT_EQ(0, asf_load_file_info((folder_ / "missing.wma").c_str(), &info_));
    EXPECT_EQ(ENOENT, errno);
    EXPECT_EQ("asf_load_file_info: Couldn't open file\n", log.text());
    EXPECT_EQ(0, info_.year);
}

TEST_F(AsfLoadFileInfo, GivesErrorFiveForAFileOfAnotherKind) {
    EXPECT_EQ(0, load("RIFF, and more than thirty bytes of it"));
    EXPECT_EQ(5, error_);
}

TEST_F(AsfLoadFileInfo, LeavesNothingBehindForAFileOfAnotherKind) {
    write_file(path_, "RIFF, and more than thirty bytes of it");
    const SystemCallFaults calls;
    const StreamCapture quiet;
    EXPECT_EQ(0, asf_load_file_info(path_.c_str(), &info_));
    EXPECT_EQ(0, calls.open_descriptors());
}

TEST_F(AsfLoadFileInfo, GivesErrorFiveForAFolder) {
    const StreamCapture quiet;
    EXPECT_EQ(0, asf_load_file_info(folder_.path().c_str(), &info_));
    EXPECT_EQ(5, errno);
}

TEST_F(AsfLoadFileInfo, ReadsTheHeaderAlone) {
    const std::string header =
        header_object({other_object(), content_description("t", "a"),
                       ext_content_description({text_descriptor("Genre", "g")}), padding(5000)});
    write_file(path_, header + pattern(1000000));
    const StreamCapture quiet;
    const SystemCallFaults calls;
    EXPECT_EQ(1, asf_load_file_info(path_.c_str(), &info_));
    EXPECT_LE(calls.reach(SystemCall::read), static_cast<std::int64_t>(header.size()));
    EXPECT_EQ(0, calls.count(SystemCall::write));
    EXPECT_EQ(0, calls.open_descriptors());
}

TEST_F(AsfLoadFileInfo, OpensAFileThatMayOnlyBeRead) {
    write_file(path_, header_object({}));
    const SystemCallFaults calls;
    EXPECT_EQ(1, asf_load_file_info(path_.c_str(), &info_));
    EXPECT_EQ(O_RDONLY, calls.records().front().requested & O_ACCMODE);
}

// Cost

TEST_F(AsfLoadFileInfo, CostsTenCalls) {
    // The header, five children and nine attributes, one of them larger than what is read ahead.
    write_file(path_, header_object(
                          {other_object(), content_description("Title", "Author"), other_object(),
                           ext_content_description(
                               {text_descriptor("WM/AlbumTitle", "a"), text_descriptor("WM/AlbumArtist", "b"),
                                text_descriptor("WM/Genre", "c"), text_descriptor("WM/Year", "1999"),
                                text_descriptor("WM/Director", "d"), text_descriptor("Description", "e"),
                                text_descriptor("WM/ParentalRating", "f"),
                                text_descriptor("Comment", std::string(20'000, 'g')),
                                text_descriptor("WM/Track", "1")}),
                           padding(100)}) +
                          pattern(100'000));
    const StreamCapture log;
    const SystemCallFaults watch;
    ASSERT_EQ(1, asf_load_file_info(path_.c_str(), &info_));
    // Open and close; the file's length; what the header begins with, the large attribute from there on, and
    // what follows it. The length is asked for behind the first piece, hence a seek.
    EXPECT_LE(watch.count(), 10);
    EXPECT_EQ(8, watch.count());
    EXPECT_EQ(0, watch.open_descriptors());
}

} // namespace
} // namespace velmora
