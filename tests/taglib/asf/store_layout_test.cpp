#include "taglib/asf/store_file_info.h"

#include "asf_bytes.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"
#include "taglib/asf/load_file_info.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <vector>

namespace velmora {
namespace {

using namespace test;

/** Where a store puts what: header, padding and media data. The field that changes is the genre, in an
   object of attributes that has only "WM/Genre". */
class AsfStoreLayout : public testing::Test {
protected:
    /** Stores GENRE, or removes it when that is empty, in a file of these bytes. */
    int store(const std::string& bytes, std::string genre) {
        write_file(path_, bytes);
        _file_info_t info{};
        info.flags = file_info_flag::genre;
        info.genre = genre.empty() ? nullptr : genre.data();
        StreamCapture log;
        const int result = asf_store_file_info(path_.c_str(), &info);
        stored_ = read_file(path_);
        const std::string all = log.text();
        const std::size_t begin = all.find("Old size");
        log_ = begin == std::string::npos ? all : all.substr(begin);
        return result;
    }

    ScratchFolder folder_;
    std::string path_ = folder_ / "file.wma";
    std::string stored_;
    std::string log_; ///< from "Old size" on
};

std::string genre_object(const std::string& genre) {
    return genre.empty() ? ext_content_description({})
                         : ext_content_description({text_descriptor("WM/Genre", genre)});
}

const std::string cd = content_description("T", "A");

/** A header of three children; the size that it gives is that of what it has. */
std::string header_with(const std::string& genre, const std::string& last) {
    return header_object({cd, genre_object(genre), last});
}

/** BYTES with their beginning replaced. */
std::string overlaid(std::string bytes, const std::string& begin) {
    bytes.resize(std::max(bytes.size(), begin.size()));
    return bytes.replace(0, begin.size(), begin);
}

/** Only the object header of a padding of SIZE bytes. */
std::string padding_header(std::uint64_t size) {
    return object_of_size(padding_guid, size, "");
}

/** A header that declares SIZE and ends with the object header of a padding. */
std::string header_before_padding(const std::string& genre, std::uint64_t padding_size, std::uint64_t size) {
    return header_object_of_size(size, {cd, genre_object(genre), padding_header(padding_size)});
}

TEST_F(AsfStoreLayout, GrowthBelowThePaddingIsTakenFromIt) {
    const std::string file = header_with("Pop", padding(100)) + "media";
    EXPECT_EQ(1, store(file, "Popular"));
    EXPECT_EQ(overlaid(file, header_before_padding("Popular", 92, file.size() - 5)), stored_);
}

TEST_F(AsfStoreLayout, GrowthBelowThePaddingIsTraced) {
    const std::string file = header_with("Pop", padding(100)) + "media";
    ASSERT_EQ(1, store(file, "Popular"));
    // 30 + 42 + 58 + 100 bytes; the last description grows by 8.
    EXPECT_EQ("Old size = e6\n"
              "asf_get_content_description_size: 2a bytes\n"
              "asf_get_ext_content_description_size: 42 bytes\n"
              "asf_get_header_object_size: ee bytes\n"
              "Diff size = 8\n"
              "asf_store_file_info: Reducing pad size\n"
              "New pad size = 5c\n"
              "asf_get_content_description_size: 2a bytes\n"
              "asf_get_ext_content_description_size: 42 bytes\n"
              "asf_get_header_object_size: e6 bytes\n"
              "Final diff size = 0\n"
              "[0] {75b22630-668e-11cf-a6d9-00aa0062ce6c} (0xe6 bytes)\n"
              "[1e] ContentDescription\n"
              "  Size = 0x2a\n"
              "[1e] {75b22633-668e-11cf-a6d9-00aa0062ce6c} (0x2a bytes)\n"
              "[48] ExtendedContentDescription\n"
              "  Size = 0x42\n"
              "[48] {d2d0a440-e307-11d2-97f0-00a0c95ea850} (0x42 bytes)\n"
              "[62] WM/Genre\n"
              "[8a] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x5c bytes)\n"
              "[8a] PaddingObject\n"
              "  Size = 0x5c\n"
              "Size after writing header: e6\n",
              log_);
}

TEST_F(AsfStoreLayout, AStoreThatFitsThePaddingTouchesTheHeaderAlone) {
    const std::string header = header_with("Pop", padding(5000));
    const SystemCallFaults calls;
    EXPECT_EQ(1, store(header + pattern(100000), "Popular"));
    std::int64_t written = 0;
    std::int64_t read = 0;
    for (const SystemCallRecord& record : calls.records()) {
        if (record.path == path_ && record.position >= 0) {
            std::int64_t& reach = record.call == SystemCall::read ? read : written;
            reach = std::max(reach, record.position + record.result);
        }
    }
    // 30 + 42 + 66 + the padding's own 24.
    EXPECT_EQ(162, written);
    EXPECT_LT(read, static_cast<std::int64_t>(header.size()));
    EXPECT_EQ(0, calls.open_descriptors());
}

TEST_F(AsfStoreLayout, GrowthByOneLessThanThePaddingLeavesAPaddingOfOneByteOverTheData) {
    const std::string file = header_with("Pop", padding(41)) + "these twenty-three bytes|the rest";
    EXPECT_EQ(1, store(file, "Popular and more, so 40"));
    const std::uint64_t size = file.size() - 33;
    EXPECT_EQ(overlaid(file, header_before_padding("Popular and more, so 40", 1, size)), stored_);
    EXPECT_EQ("s|the rest", stored_.substr(stored_.size() - 10));
    EXPECT_NE(std::string::npos, log_.find("New pad size = 1\n"));
    EXPECT_NE(std::string::npos, log_.find("Final diff size = 0\n"));
}

TEST_F(AsfStoreLayout, APaddingReducedBelowItsOwnHeaderCanBeReadAndStoredAgain) {
    ASSERT_EQ(1, store(header_with("Pop", padding(41)) + "these twenty-three bytes|the rest",
                       "Popular and more, so 40"));
    const std::string before = stored_;
    _file_info_t info{};
    EXPECT_EQ(1, asf_load_file_info(path_.c_str(), &info));
    EXPECT_STREQ("Popular and more, so 40", info.genre);
    id3_free_file_info(&info);
    EXPECT_EQ(1, store(before, "Popular and more, so 40"));
    EXPECT_EQ(before, stored_);
}

TEST_F(AsfStoreLayout, GrowthByExactlyThePaddingLeavesItAndMovesTheData) {
    const std::string media = pattern(70000);
    const std::string file = header_with("Pop", padding(40)) + media;
    ASSERT_EQ(1, store(file, "Popular and more, so 40"));
    const std::string header = header_before_padding("Popular and more, so 40", 40, file.size() - 70000 + 40);
    // The padding's body is what lies in the file at its new place.
    EXPECT_EQ(overlaid(file, header + file.substr(header.size(), 16)).substr(0, header.size() + 16) + media,
              stored_);
}

TEST_F(AsfStoreLayout, GrowthByExactlyThePaddingIsTraced) {
    ASSERT_EQ(1, store(header_with("Pop", padding(40)) + pattern(70000), "Popular and more, so 40"));
    EXPECT_TRUE(log_.starts_with("Old size = aa\n"
                                 "asf_get_content_description_size: 2a bytes\n"
                                 "asf_get_ext_content_description_size: 62 bytes\n"
                                 "asf_get_header_object_size: d2 bytes\n"
                                 "Diff size = 28\n"
                                 "asf_get_content_description_size: 2a bytes\n"
                                 "asf_get_ext_content_description_size: 62 bytes\n"
                                 "asf_get_header_object_size: d2 bytes\n"
                                 "Final diff size = 28\n"
                                 "asf_move_file: from aa to d2\n"
                                 "[0] {75b22630-668e-11cf-a6d9-00aa0062ce6c} (0xd2 bytes)\n"))
        << log_;
    EXPECT_TRUE(log_.ends_with("[aa] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x28 bytes)\n"
                               "[aa] PaddingObject\n"
                               "  Size = 0x28\n"
                               "Size after writing header: d2\n"))
        << log_;
}

TEST_F(AsfStoreLayout, GrowthWithoutPaddingGainsOneAndMovesTheData) {
    const std::string media = pattern(65536);
    const std::string file = header_with("Pop", other_object()) + media;
    const std::uint64_t old_size = file.size() - media.size();
    ASSERT_EQ(1, store(file, "Popular"));
    const std::uint64_t new_size = old_size + 8 + 1024;
    const std::string begin =
        header_object_of_size(new_size, {cd, genre_object("Popular"), other_object(), padding_header(1024)});
    EXPECT_EQ(overlaid(file, begin).substr(0, new_size) + media, stored_);
    EXPECT_NE(std::string::npos, log_.find("Diff size = 8\nNew pad size = 400\n"));
    EXPECT_NE(std::string::npos, log_.find("Final diff size = 408\n"
                                           "asf_move_file: from b7 to 4bf\n"));
    EXPECT_TRUE(log_.ends_with("Size after writing header: 4bf\n")) << log_;
}

TEST_F(AsfStoreLayout, OnlyALastPaddingIsUsed) {
    const std::string media = pattern(65536);
    const std::string file = header_object({padding(500), cd, genre_object("Pop")}) + media;
    ASSERT_EQ(1, store(file, "Popular"));
    const std::uint64_t new_size = file.size() - media.size() + 8 + 1024;
    const std::string begin =
        header_object_of_size(new_size, {padding(500), cd, genre_object("Popular"), padding_header(1024)});
    EXPECT_EQ(overlaid(file, begin).substr(0, new_size) + media, stored_);
}

TEST_F(AsfStoreLayout, WhatIsSavedGoesToThePadding) {
    const std::string file = header_with("Popular", padding(100)) + "media";
    EXPECT_EQ(1, store(file, "Pop"));
    EXPECT_EQ(overlaid(file, header_before_padding("Pop", 108, file.size() - 5)), stored_);
    EXPECT_NE(std::string::npos, log_.find("Diff size = fffffffffffffff8\n"
                                           "asf_store_file_info: Increasing pad size\n"
                                           "New pad size = 6c\n"));
    EXPECT_NE(std::string::npos, log_.find("Final diff size = 0\n"));
}

TEST_F(AsfStoreLayout, NoChangeLogsThePaddingAsItIs) {
    const std::string file = header_with("Pop", padding(100)) + "media";
    EXPECT_EQ(1, store(file, "Pop"));
    EXPECT_EQ(file, stored_);
    EXPECT_NE(std::string::npos, log_.find("Diff size = 0\n"
                                           "New pad size = 64\n"
                                           "asf_get_content_description_size: 2a bytes\n"));
}

TEST_F(AsfStoreLayout, NoChangeWithoutPaddingLogsNone) {
    const std::string file = header_with("Pop", other_object()) + "media";
    EXPECT_EQ(1, store(file, "Pop"));
    EXPECT_EQ(file, stored_);
    EXPECT_NE(std::string::npos, log_.find("Diff size = 0\n"
                                           "asf_get_content_description_size: 2a bytes\n"));
}

TEST_F(AsfStoreLayout, WithoutPaddingTheHeaderShrinksAndTheDataMovesBack) {
    const std::string media = pattern(70000);
    const std::string file = header_with("Popular", other_object()) + media;
    ASSERT_EQ(1, store(file, "Pop"));
    const std::string header = header_with("Pop", other_object());
    ASSERT_EQ(file.size() - media.size() - 8, header.size());
    EXPECT_EQ(header + media + media.substr(media.size() - 8), stored_);
}

TEST_F(AsfStoreLayout, WithoutPaddingTheHeaderIsWrittenBeforeTheDataMovesBack) {
    ASSERT_EQ(1, store(header_with("Popular", other_object()) + pattern(70000), "Pop"));
    EXPECT_EQ("Old size = bf\n"
              "asf_get_content_description_size: 2a bytes\n"
              "asf_get_ext_content_description_size: 3a bytes\n"
              "asf_get_header_object_size: b7 bytes\n"
              "Diff size = fffffffffffffff8\n"
              "New pad size = 400\n"
              "asf_get_content_description_size: 2a bytes\n"
              "asf_get_ext_content_description_size: 3a bytes\n"
              "asf_get_header_object_size: b7 bytes\n"
              "Final diff size = fffffffffffffff8\n"
              "[0] {75b22630-668e-11cf-a6d9-00aa0062ce6c} (0xb7 bytes)\n"
              "[1e] ContentDescription\n"
              "  Size = 0x2a\n"
              "[1e] {75b22633-668e-11cf-a6d9-00aa0062ce6c} (0x2a bytes)\n"
              "[48] ExtendedContentDescription\n"
              "  Size = 0x3a\n"
              "[48] {d2d0a440-e307-11d2-97f0-00a0c95ea850} (0x3a bytes)\n"
              "[62] WM/Genre\n"
              "[82] {8cabdca1-a947-11cf-8ee4-00c00c205365} (0x35 bytes)\n"
              "Size after writing header: b7\n"
              "asf_move_file: from bf to b7\n",
              log_);
}

TEST_F(AsfStoreLayout, ThePaddingThatIsOnlyComputedHasWhatIsSavedBeyondItsHeader) {
    // One UTF-16 unit is two bytes: 22 give 1,024, 24 give 0, 26 give 2.
    const auto logged = [&](std::size_t units) {
        EXPECT_EQ(1, store(header_with(std::string(3 + units, 'g'), other_object()) + pattern(70000), "ggg"));
        const std::size_t at = log_.find("New pad size = ");
        return at == std::string::npos ? "none" : log_.substr(at, log_.find('\n', at) - at);
    };
    EXPECT_EQ("New pad size = 400", logged(11));
    EXPECT_EQ("New pad size = 0", logged(12));
    EXPECT_EQ("New pad size = 2", logged(13));
}

TEST_F(AsfStoreLayout, TwentyThreeBytesSavedAreTooFewForThePaddingThatIsOnlyComputed) {
    const auto logged = [&](std::uint64_t slack) {
        const std::string header = header_with("Pop", other_object());
        EXPECT_EQ(
            1, store(header_object_of_size(header.size() + slack, {cd, genre_object("Pop"), other_object()}) +
                         std::string(slack, 's') + pattern(70000),
                     "Pop"));
        const std::size_t at = log_.find("New pad size = ");
        return at == std::string::npos ? "none" : log_.substr(at, log_.find('\n', at) - at);
    };
    EXPECT_EQ("New pad size = 400", logged(23));
    EXPECT_EQ("New pad size = 0", logged(24));
    EXPECT_EQ("New pad size = 1", logged(25));
}

TEST_F(AsfStoreLayout, AShrinkingHeaderBeforeLittleDataIsWrittenAndThenFails) {
    const std::string media = pattern(1000);
    const std::string file = header_with("Popular", other_object()) + media;
    EXPECT_EQ(0, store(file, "Pop"));
    EXPECT_EQ(overlaid(file, header_with("Pop", other_object())), stored_);
    EXPECT_TRUE(log_.ends_with("Size after writing header: b7\n"
                               "asf_move_file: from bf to b7\n"
                               "asf_move_file: Error reading file\n"))
        << log_;
}

TEST_F(AsfStoreLayout, AGrowingHeaderBeforeLittleDataFailsWithNothingWritten) {
    const std::string file = header_with("Pop", other_object()) + pattern(1000);
    EXPECT_EQ(0, store(file, "Popular"));
    EXPECT_EQ(file, stored_);
    EXPECT_TRUE(log_.ends_with("Final diff size = 408\n"
                               "asf_move_file: from b7 to 4bf\n"
                               "asf_move_file: Error reading file\n"))
        << log_;
}

TEST_F(AsfStoreLayout, AGrowingHeaderBeforeNearlySixtyFourKilobytesFailsAfterAPieceWasCopied) {
    // The piece is the file's last 65,536 bytes: 36 bytes of the header come with the data.
    const std::string file = header_with("Pop", other_object()) + pattern(65500);
    EXPECT_EQ(0, store(file, "Popular"));
    const std::size_t begin = file.size() - 65536;
    EXPECT_EQ(file.substr(0, begin + 8 + 1024) + file.substr(begin), stored_);
    EXPECT_TRUE(log_.ends_with("asf_move_file: from b7 to 4bf\n")) << log_;
}

TEST_F(AsfStoreLayout, AGrowingHeaderThatEndsTheFileIsStored) {
    const std::string file = header_with("Pop", other_object());
    EXPECT_EQ(1, store(file, "Popular"));
    const std::string begin = header_object_of_size(
        file.size() + 8 + 1024, {cd, genre_object("Popular"), other_object(), padding_header(1024)});
    EXPECT_EQ(begin, stored_);
}

TEST_F(AsfStoreLayout, AGrowingHeaderThatEndsTheFileInItsLastPaddingIsStored) {
    const std::string file = header_with("Pop", padding(40));
    EXPECT_EQ(1, store(file, "Popular and more, so 40"));
    EXPECT_EQ(header_before_padding("Popular and more, so 40", 40, file.size() + 40), stored_);
}

TEST_F(AsfStoreLayout, SlackBehindTheChildrenIsGivenToThePadding) {
    const std::string slack(20, '\x55');
    const std::string children = cd + genre_object("Pop") + padding(100);
    const std::string file =
        object_of_size(header_guid, 30 + children.size() + 20, u32(3) + hex("01 02") + children) + slack +
        "media";
    EXPECT_EQ(1, store(file, "Pop"));
    EXPECT_EQ(overlaid(file, header_before_padding("Pop", 120, file.size() - 5)), stored_);
}

TEST_F(AsfStoreLayout, SlackInsideAContentDescriptionIsGivenToThePadding) {
    const std::string loose =
        object_of_size(cd_guid, cd.size() + 10, cd.substr(24) + std::string(10, '\x55'));
    const std::string file = header_object({loose, genre_object("Pop"), padding(100)}) + "media";
    EXPECT_EQ(1, store(file, "Pop"));
    EXPECT_EQ(overlaid(file, header_before_padding("Pop", 110, file.size() - 5)), stored_);
}

TEST_F(AsfStoreLayout, WithoutExtContentDescriptionTheContentDescriptionIsWrittenTwice) {
    const std::string media = pattern(65536);
    const std::string file = header_object({content_description("T", "A"), other_object()}) + media;
    write_file(path_, file);
    _file_info_t info{};
    std::string desc = "new";
    std::string genre = "lost";
    info.flags = file_info_flag::desc | file_info_flag::genre;
    info.desc = desc.data();
    info.genre = genre.data();
    const StreamCapture quiet;
    ASSERT_EQ(1, asf_store_file_info(path_.c_str(), &info));
    const std::string edited = content_description("new", "A");
    const std::uint64_t new_size = 30 + 2 * edited.size() + other_object().size() + 1024;
    const std::string begin =
        header_object_of_size(new_size, {edited, other_object(), edited, padding_header(1024)});
    EXPECT_EQ(overlaid(file, begin).substr(0, new_size) + media, read_file(path_));
}

TEST_F(AsfStoreLayout, WithoutExtContentDescriptionEveryStoreAddsAnotherCopyAndAnotherPadding) {
    const std::string media = pattern(65536);
    ASSERT_EQ(1, store(header_object({cd, padding(100)}) + media, "lost"));
    const std::string once = stored_;
    EXPECT_EQ(30 + 2 * cd.size() + 100 + 1024 + media.size(), once.size());
    ASSERT_EQ(1, store(once, "lost"));
    EXPECT_EQ(once.size() + cd.size() + 1024, stored_.size());
    EXPECT_EQ(media, stored_.substr(stored_.size() - media.size()));
    EXPECT_EQ(hex("06 00 00 00"), stored_.substr(24, 4));
}

TEST_F(AsfStoreLayout, WithoutAnyDescriptionAnEmptyContentDescriptionIsWrittenTwice) {
    const std::string media = pattern(65536);
    const std::string file = header_object({other_object()}) + media;
    ASSERT_EQ(1, store(file, "lost"));
    const std::string empty = content_description("", "");
    const std::uint64_t new_size = 30 + other_object().size() + 2 * 34 + 1024;
    const std::string begin =
        header_object_of_size(new_size, {other_object(), empty, empty, padding_header(1024)});
    EXPECT_EQ(overlaid(file, begin).substr(0, new_size) + media, stored_);
}

TEST_F(AsfStoreLayout, AContentDescriptionAppendedBehindThePaddingPutsItOutOfUse) {
    const std::string media = pattern(65536);
    const std::string file = header_object({genre_object("Pop"), padding(5000)}) + media;
    ASSERT_EQ(1, store(file, "Popular"));
    const std::uint64_t new_size = 30 + genre_object("Popular").size() + 5000 + 34 + 1024;
    const std::string begin =
        header_object_of_size(new_size, {genre_object("Popular"), padding_header(5000)});
    const std::string children = genre_object("Popular") + padding_header(5000);
    // The old padding's body is what lies in the file at its place.
    std::string expected = overlaid(file, begin.substr(0, 24) + u32(4) + hex("01 02") + children);
    expected = expected.substr(0, 30 + genre_object("Popular").size() + 5000);
    expected += content_description("", "") + padding_header(1024);
    expected += file.substr(expected.size(), new_size - expected.size()) + media;
    EXPECT_EQ(expected.size(), stored_.size());
    EXPECT_TRUE(expected == stored_);
}

TEST_F(AsfStoreLayout, ReservedBytesAndUnknownChildrenStayInTheirPlaces) {
    const std::string file = header_object({other_object(), cd, object(header_guid, "nested"),
                                            genre_object("Pop"), padding(100)}) +
                             "media";
    EXPECT_EQ(1, store(file, "Popular"));
    const std::string begin =
        header_object_of_size(file.size() - 5, {other_object(), cd, object(header_guid, "nested"),
                                                genre_object("Popular"), padding_header(92)});
    EXPECT_EQ(overlaid(file, begin), stored_);
}

TEST_F(AsfStoreLayout, SaysThatAFileCanNotBeOpened) {
    const _file_info_t info{};
    StreamCapture log;
    EXPECT_EQ(0, asf_store_file_info((folder_ / "missing.wma").c_str(), &info));
    EXPECT_EQ(ENOENT, errno);
    EXPECT_EQ("asf_store_file_info: Couldn't open file\n", log.text());
    EXPECT_FALSE(file_exists(folder_ / "missing.wma"));
}

TEST_F(AsfStoreLayout, GivesErrorFiveForAFileOfAnotherKindAndLeavesItAlone) {
    const std::string file = "RIFF, and more than thirty bytes of it";
    write_file(path_, file);
    const _file_info_t info{};
    const SystemCallFaults calls;
    const StreamCapture quiet;
    EXPECT_EQ(0, asf_store_file_info(path_.c_str(), &info));
    EXPECT_EQ(5, errno);
    EXPECT_EQ(0, calls.open_descriptors());
    EXPECT_EQ(0, calls.count(SystemCall::write));
    EXPECT_EQ(file, read_file(path_));
}

TEST_F(AsfStoreLayout, RemoveReturnsWhatTheStoreReturns) {
    const StreamCapture quiet;
    EXPECT_EQ(0, asf_remove_file_info((folder_ / "missing.wma").c_str()));
    write_file(path_, "no header");
    EXPECT_EQ(0, asf_remove_file_info(path_.c_str()));
    EXPECT_EQ(5, errno);
    write_file(path_, header_with("Pop", padding(100)));
    EXPECT_EQ(1, asf_remove_file_info(path_.c_str()));
}

// Cost

/** The calls that storing a title into a file of these bytes makes, from open to close. */
std::vector<SystemCallRecord> calls_of_title_store(const std::string& bytes) {
    const ScratchFolder folder;
    const std::string path = folder / "file.wma";
    write_file(path, bytes);
    char title[] = "A new title";
    _file_info_t info{};
    info.flags = file_info_flag::title;
    info.title = title;
    const StreamCapture quiet;
    const SystemCallFaults watch;
    EXPECT_EQ(1, asf_store_file_info(path.c_str(), &info));
    return watch.records();
}

std::string nine_attributes(std::size_t comment) {
    return ext_content_description(
        {text_descriptor("WM/AlbumTitle", "a"), text_descriptor("WM/AlbumArtist", "b"),
         text_descriptor("WM/Genre", "c"), text_descriptor("WM/Year", "1999"),
         text_descriptor("WM/Director", "d"), text_descriptor("Description", "e"),
         text_descriptor("WM/ParentalRating", "f"), text_descriptor("Comment", std::string(comment, 'g')),
         text_descriptor("WM/Track", "1")});
}

TEST(AsfStoreCost, ATitleIntoThePaddingOfASmallHeaderCostsSixCalls) {
    const std::string bytes =
        header_object({other_object(), cd, other_object(), nine_attributes(10), padding(1000)}) +
        pattern(100'000);
    // Open, a read, the file's length; back to the beginning, a write, close.
    EXPECT_EQ(6u, calls_of_title_store(bytes).size());
}

TEST(AsfStoreCost, ATitleIntoThePaddingBehindALargeAttributeCostsAtMostFourteenCalls) {
    const std::string bytes =
        header_object({other_object(), cd, other_object(), nine_attributes(20'000), padding(1000)}) +
        pattern(100'000);
    const std::vector<SystemCallRecord> calls = calls_of_title_store(bytes);
    EXPECT_LE(calls.size(), 14u);
    EXPECT_EQ(12u, calls.size()); // what follows the attribute is read, and the attribute written, by itself
}

} // namespace
} // namespace velmora
