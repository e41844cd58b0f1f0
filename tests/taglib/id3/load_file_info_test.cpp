#include "taglib/id3/load_file_info.h"

#include "id3_bytes.h"
#include "zone.h"

#include "fake_image/fake_image.h"
#include "support/allocation_faults.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <functional>

namespace velmora::test {
namespace {

std::string shown(const char* text) {
    return text ? text : "(null)";
}

/** A loaded record, released with the object. The result and what was logged beside it. */
struct Loaded : _file_info_t {
    explicit Loaded(const std::string& contents) : _file_info_t{} {
        const ScratchFolder folder;
        write_file(folder / "song.mp3", contents);
        load(folder / "song.mp3");
    }
    struct Path {
        std::string path;
    };
    explicit Loaded(const Path& path) : _file_info_t{} { load(path.path); }
    ~Loaded() { id3_free_file_info(this); }
    Loaded(const Loaded&) = delete;
    Loaded& operator=(const Loaded&) = delete;

    void load(const std::string& path) {
        std::memset(static_cast<_file_info_t*>(this), 0xEE,
                    sizeof(_file_info_t)); // the loader zeroes it first
        StreamCapture capture;
        result = id3_load_file_info(path.c_str(), this);
        log = capture.text();
    }
    [[nodiscard]] bool is_zeroed() const {
        const _file_info_t zeroed{};
        return std::memcmp(static_cast<const _file_info_t*>(this), &zeroed, sizeof zeroed) == 0;
    }

    int result = -1;
    std::string log;
};

std::string genre_of(const std::string& tcon_body) {
    return shown(Loaded(leading_tag(4, frame4("TCON", tcon_body))).genre);
}

std::int32_t year_of(const std::string& tyer_body) {
    return Loaded(leading_tag(4, frame4("TYER", tyer_body))).year;
}

TEST(Id3LoadInfo, EveryFrameFillsItsSlot) {
    const Loaded info(leading_tag(4, text4("TALB", "album") + text4("TPE1", "artist") +
                                         text4("TIT2", "song") + text4("TPE3", "director") +
                                         text4("TCON", "genre") + text4("TYER", "1999") +
                                         frame4("PRIV", bytes("WM/ParentalRating\0PG-13")) +
                                         frame4("APIC", bytes("\0image/jpeg\0\x03\0") + fake_jpeg)));
    EXPECT_EQ(1, info.result);
    EXPECT_EQ(0x8000u, info.flags);
    EXPECT_STREQ("album", info.title);
    EXPECT_STREQ("artist", info.artist);
    EXPECT_STREQ("song", info.desc);
    EXPECT_STREQ("director", info.director);
    EXPECT_STREQ("PG-13", info.rating);
    EXPECT_STREQ("genre", info.genre);
    EXPECT_EQ(1999, info.year);
    ASSERT_NE(nullptr, info.picture);
    EXPECT_EQ(fake_jpeg, fake_image_bytes(info.picture));
    EXPECT_EQ(1, fake_image_references(info.picture));
    EXPECT_EQ(nullptr, info.aux_object);
    EXPECT_EQ(0u, info.time);
}

TEST(Id3LoadInfo, PicturesAreReleasedWithTheRecord) {
    { const Loaded info(leading_tag(4, frame4("APIC", bytes("\0image/jpeg\0\x03\0") + fake_jpeg))); }
    EXPECT_EQ(0, fake_images_alive());
}

TEST(Id3LoadInfo, AbsentFramesLeaveTheirSlotsEmpty) {
    const Loaded info(leading_tag(4, ""));
    EXPECT_EQ(1, info.result);
    _file_info_t expected{};
    expected.flags = 0x8000;
    EXPECT_EQ(0, std::memcmp(&expected, static_cast<const _file_info_t*>(&info), sizeof expected));
}

TEST(Id3LoadInfo, EmptyTextsLeaveTheirSlotsEmpty) {
    const Loaded info(leading_tag(4, frame4("TALB", "") + text4("TPE1", "") + text4("TIT2", bytes("\0x")) +
                                         frame4("TCON", "") + frame4("PRIV", bytes("WM/ParentalRating\0"))));
    EXPECT_EQ(nullptr, info.title);
    EXPECT_EQ(nullptr, info.artist);
    EXPECT_EQ(nullptr, info.desc);
    EXPECT_EQ(nullptr, info.genre);
    EXPECT_EQ(nullptr, info.rating);
}

TEST(Id3LoadInfo, FirstOfSeveralFramesCountsEvenWhenEmpty) {
    EXPECT_STREQ("one", Loaded(leading_tag(4, text4("TALB", "one") + text4("TALB", "two"))).title);
    EXPECT_EQ(nullptr, Loaded(leading_tag(4, text4("TALB", "") + text4("TALB", "two"))).title);
}

TEST(Id3LoadInfo, TextsAreTheFramesOwnBytes) {
    EXPECT_STREQ("caf\xE9", Loaded(leading_tag(4, frame4("TALB", bytes("\0caf\xE9")))).title);
    EXPECT_STREQ("caf\xE9", Loaded(leading_tag(4, frame4("TALB", bytes("\3caf\xE9")))).title);
    EXPECT_STREQ("caf\xC3\xA9", Loaded(leading_tag(4, frame4("TALB", bytes("\0caf\xC3\xA9")))).title);
}

TEST(Id3LoadInfo, TextEndsAtItsFirstZero) {
    EXPECT_STREQ("one", Loaded(leading_tag(4, text4("TPE1", bytes("one\0two")))).artist);
}

TEST(Id3LoadInfo, TextIsCutAt8191Bytes) {
    const Loaded info(leading_tag(4, text4("TALB", std::string(9000, 'x'))));
    EXPECT_EQ(std::string(8191, 'x'), shown(info.title));
}

TEST(Id3LoadInfo, Utf16TextIsEmptyAndLoggedAndLaterFramesAreFound) {
    const Loaded info(leading_tag(3, frame3("TALB", hex("01 FF FE 41 00")) + frame3("TPE1", bytes("\0b"))));
    EXPECT_EQ(nullptr, info.title);
    EXPECT_STREQ("b", info.artist);
    EXPECT_EQ("TALB = \"\xFF\xFE"
              "A\"\nTPE1 = \"b\"\nid3_load_string: encoding 1 not handled\n",
              info.log);
}

TEST(Id3LoadInfo, TextOfUnknownEncodingIsEmptyAndLogged) {
    const Loaded info(leading_tag(3, frame3("TIT2", bytes("\x07song"))));
    EXPECT_EQ(nullptr, info.desc);
    EXPECT_EQ("TIT2 = \"song\"\nid3_load_string: unknown encoding 7\n", info.log);
}

TEST(Id3LoadInfo, FrameOfNothingButItsEncodingByteIsDecodedToo) {
    const struct {
        std::string body;
        std::string log;
    } cases[] = {{"", "TALB = (empty)\n"},
                 {bytes("\0"), "TALB = \"\"\n"},
                 {"\1", "TALB = \"\"\nid3_load_string: encoding 1 not handled\n"},
                 {"\2", "TALB = \"\"\nid3_load_string: encoding 2 not handled\n"},
                 {"\3", "TALB = \"\"\n"},
                 {"\4", "TALB = \"\"\nid3_load_string: unknown encoding 4\n"}};
    for (const auto& frame : cases) {
        const Loaded info(leading_tag(4, frame4("TALB", frame.body)));
        EXPECT_EQ(1, info.result);
        EXPECT_EQ(nullptr, info.title);
        EXPECT_EQ(frame.log, info.log);
    }
}

// Which tag

TEST(Id3LoadInfo, AppendedTagIsTakenAloneWhereThereAreTwo) {
    const Loaded info(leading_tag(3, frame3("TALB", bytes("\0old")) + frame3("TPE1", bytes("\0artist"))) +
                      "media data" + appended_tag(text4("TALB", "new")));
    EXPECT_EQ(1, info.result);
    EXPECT_STREQ("new", info.title);
    EXPECT_EQ(nullptr, info.artist);
    EXPECT_EQ("TALB = \"new\"\n", info.log);
}

TEST(Id3LoadInfo, BadAppendedTagLeavesTheLeadingOne) {
    const Loaded info(leading_tag(3, frame3("TALB", bytes("\0lead"))) + "media" + header(4, 0x10, 3, "3DI"));
    EXPECT_STREQ("lead", info.title);
    EXPECT_EQ("id3_load_descriptor_v2: Invalid header sig\nTALB = \"lead\"\n", info.log);
}

TEST(Id3LoadInfo, FileThatIsNothingButATagIsReadOnce) {
    const Loaded info(appended_tag(text4("TALB", "a")));
    EXPECT_STREQ("a", info.title);
    EXPECT_EQ("TALB = \"a\"\n", info.log);
}

TEST(Id3LoadInfo, TagOutsideTheEndAndTheStartIsNotFound) {
    const Loaded info("x" + leading_tag(4, text4("TALB", "a")));
    EXPECT_EQ(0, info.result);
    EXPECT_TRUE(info.is_zeroed());
}

TEST(Id3LoadInfo, FileWithoutTagFails) {
    const Loaded info("this file has no tag at all");
    EXPECT_EQ(0, info.result);
    EXPECT_TRUE(info.is_zeroed());
    EXPECT_EQ("id3_load_descriptor_v2: Invalid header sig\n"
              "id3_load_header_v1: Failed to read header\n",
              info.log);
}

TEST(Id3LoadInfo, EmptyFileFails) {
    const Loaded info("");
    EXPECT_EQ(0, info.result);
    EXPECT_EQ("id3_load_descriptor_v2: Failed to read footer\n"
              "id3_load_descriptor_v2: Failed to read header\n"
              "id3_load_header_v1: Failed to read header\n",
              info.log);
}

TEST(Id3LoadInfo, MissingFileFails) {
    const ScratchFolder folder;
    const Loaded info(Loaded::Path{folder / "nothing.mp3"});
    EXPECT_EQ(0, info.result);
    EXPECT_TRUE(info.is_zeroed());
    EXPECT_EQ("id3_load_file_info: Couldn't open file\n", info.log);
}

TEST(Id3LoadInfo, FolderFails) {
    const ScratchFolder folder;
    const Loaded info(Loaded::Path{folder.path()});
    EXPECT_EQ(0, info.result);
    EXPECT_EQ("id3_load_descriptor_v2: Failed to read footer\n"
              "id3_load_descriptor_v2: Failed to read header\n"
              "id3_load_header_v1: Failed to read header\n",
              info.log);
}

TEST(Id3LoadInfo, PathMayHoldAnyByte) {
    const ScratchFolder folder;
    const std::string path = folder / "a #?%<b>\n\xFF\xFE.mp3";
    write_file(path, leading_tag(4, text4("TALB", "a")));
    EXPECT_STREQ("a", Loaded(Loaded::Path{path}).title);
}

// Rating

TEST(Id3LoadInfo, RatingIsTheTextBehindItsOwner) {
    EXPECT_STREQ("R", Loaded(leading_tag(4, frame4("priv", bytes("wm/parentalrating\0R\0rest")))).rating);
    EXPECT_EQ(nullptr, Loaded(leading_tag(4, frame4("PRIV", "WM/ParentalRating"))).rating);
    EXPECT_EQ(nullptr, Loaded(leading_tag(4, frame4("PRIV", bytes("WM/Other\0R")))).rating);
}

// Genre

TEST(Id3LoadInfo, OneByteGenreIsAnIndex) {
    EXPECT_EQ("Rock", genre_of("\x11"));
    EXPECT_EQ("Blues", genre_of(bytes("\0")));
    EXPECT_EQ("Dance Hall", genre_of("\x7D"));
    EXPECT_EQ("(null)", genre_of("\x7E"));
    EXPECT_EQ("(null)", genre_of("\xFF"));
}

TEST(Id3LoadInfo, GenreInParenthesesIsAnIndex) {
    EXPECT_EQ("Rock", genre_of(bytes("\0(17)")));
    EXPECT_EQ("Rock", genre_of(bytes("\3(17)Other text")));
    EXPECT_EQ("Dance Hall", genre_of(bytes("\0(125)")));
    EXPECT_EQ("(null)", genre_of(bytes("\0(126)")));
    EXPECT_EQ("(null)", genre_of(bytes("\0(200)")));
    EXPECT_EQ("(null)", genre_of(bytes("\0(-1)")));
    EXPECT_EQ("(null)", genre_of(bytes("\0(99999999999999999999)")));
}

TEST(Id3LoadInfo, ParenthesisWithoutNumberCountsAsIndex0) {
    EXPECT_EQ("Blues", genre_of(bytes("\0(RX)")));
    EXPECT_EQ("Blues", genre_of(bytes("\0(")));
}

TEST(Id3LoadInfo, OtherGenreTextIsKept) {
    EXPECT_EQ("Trip Hop", genre_of(bytes("\0Trip Hop")));
    EXPECT_EQ("17", genre_of(bytes("\00017")));
    EXPECT_EQ("Rock (17)", genre_of(bytes("\0Rock (17)")));
}

// Year

TEST(Id3LoadInfo, YearIsALeadingNumber) {
    EXPECT_EQ(2008, year_of(bytes("\0002008-05-04")));
    EXPECT_EQ(1999, year_of(bytes("\0  1999")));
    EXPECT_EQ(-5, year_of(bytes("\0-5")));
    EXPECT_EQ(0, year_of(bytes("\0next year")));
    EXPECT_EQ(0, year_of(""));
    EXPECT_EQ(0, year_of("1"));
}

TEST(Id3LoadInfo, YearThatIsTooLargeIsTheLargest) {
    EXPECT_EQ(2'147'483'647, year_of(bytes("\00099999999999999999999")));
}

TEST(Id3LoadInfo, YearIgnoresItsEncodingByteSoThatUtf16HasNone) {
    EXPECT_EQ(0, year_of(hex("01 FF FE 31 00 39 00 39 00 39 00")));
    EXPECT_EQ(1, year_of(hex("01 31 00 39 00 39 00 39 00"))); // without a byte order mark
    EXPECT_EQ(0, year_of(hex("02 00 31 00 39")));
    EXPECT_EQ("TYER = \"1\"\n", Loaded(leading_tag(4, frame4("TYER", hex("01 31 00")))).log);
}

// Picture

TEST(Id3LoadInfo, FirstPictureIsTaken) {
    const std::string lead = bytes("\0image/jpeg\0\x03\0");
    const Loaded info(
        leading_tag(4, frame4("APIC", lead + fake_jpeg + "1") + frame4("APIC", lead + fake_jpeg + "2")));
    ASSERT_NE(nullptr, info.picture);
    EXPECT_EQ(fake_jpeg + "1", fake_image_bytes(info.picture));
}

const std::string group_guid = hex("30 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C");
const char* const large_art = "AlbumArt_{75b22630-668e-11cf-a6d9-00aa0062ce6c}_Large.jpg";

/** The picture that a file with these FRAMES has beside an album-art file. */
std::string picture_beside_album_art(const std::string& frames) {
    const ScratchFolder folder;
    write_file(folder / large_art, fake_jpeg + "art");
    write_file(folder / "song.mp3", leading_tag(4, frames));
    const Loaded info(Loaded::Path{folder / "song.mp3"});
    return info.picture ? fake_image_bytes(info.picture) : "";
}

TEST(Id3LoadInfo, AlbumArtFileStandsInForAMissingPicture) {
    EXPECT_EQ(fake_jpeg + "art",
              picture_beside_album_art(frame4("PRIV", bytes("WM/WMCollectionGroupID\0") + group_guid)));
    EXPECT_EQ(fake_jpeg + "art", picture_beside_album_art(frame4("PRIV", bytes("WM/WMCollectionGroupID\0") +
                                                                             group_guid + "more")));
}

TEST(Id3LoadInfo, AlbumArtFileStandsInForAPictureOfAnotherType) {
    EXPECT_EQ(fake_jpeg + "art",
              picture_beside_album_art(frame4("APIC", bytes("\0image/png\0\x03\0") + fake_jpeg) +
                                       frame4("PRIV", bytes("WM/WMCollectionGroupID\0") + group_guid)));
}

TEST(Id3LoadInfo, AttachedPictureGoesBeforeTheAlbumArtFile) {
    EXPECT_EQ(fake_jpeg,
              picture_beside_album_art(frame4("PRIV", bytes("WM/WMCollectionGroupID\0") + group_guid) +
                                       frame4("APIC", bytes("\0image/jpeg\0\x03\0") + fake_jpeg)));
}

TEST(Id3LoadInfo, AlbumArtNeedsAWholeGuid) {
    EXPECT_EQ("", picture_beside_album_art(
                      frame4("PRIV", bytes("WM/WMCollectionGroupID\0") + group_guid.substr(0, 15))));
    EXPECT_EQ("", picture_beside_album_art(""));
}

// Time

TEST(Id3LoadInfo, TimeIsRead) {
    const Zone zone("UTC");
    const Loaded info(leading_tag(4, text4("TDRC", "2008-05-04T:10:20:30")));
    EXPECT_EQ(126'856'502'860'000'000u, info.time);
}

TEST(Id3LoadInfo, TimeThatIsNotUnderstoodIsNone) {
    EXPECT_EQ(0u, Loaded(leading_tag(4, text4("TDRC", "2008-05-04T10:20:30"))).time);
    EXPECT_EQ(0u, Loaded(leading_tag(4, frame4("TDRC", ""))).time);
}

// ID3v1

TEST(Id3LoadInfo, FileWithOnlyAnId3v1TagHasNone) {
    const Loaded info(std::string(1000, 'm') + "TAG" + std::string(30, 'T') + std::string(95, 'x'));
    EXPECT_EQ(0, info.result);
    EXPECT_TRUE(info.is_zeroed());
    EXPECT_EQ("id3_load_descriptor_v2: Invalid header sig\n"
              "id3_load_header_v1: Failed to read header\n",
              info.log);
}

TEST(Id3LoadInfo, DeviceWhoseLastBytesAreNoId3v1TagHasNone) {
    const Loaded info(Loaded::Path{"/dev/zero"}); // gives 128 bytes wherever it is read
    EXPECT_EQ(0, info.result);
    EXPECT_TRUE(info.is_zeroed());
    EXPECT_EQ("id3_load_descriptor_v2: Invalid header sig\n", info.log);
}

// Cost and failing calls

/** System calls that a load of CONTENTS makes. */
int calls_of_load(const std::string& contents) {
    const ScratchFolder folder;
    const std::string path = folder / "song.mp3";
    write_file(path, contents);
    const StreamCapture log;
    const SystemCallFaults watch;
    _file_info_t info;
    EXPECT_EQ(1, id3_load_file_info(path.c_str(), &info));
    EXPECT_NE(nullptr, info.picture);
    id3_free_file_info(&info);
    EXPECT_EQ(0, watch.open_descriptors());
    return watch.count();
}

TEST(Id3LoadInfo, CostsEightCallsWithATagInFront) {
    EXPECT_EQ(8, calls_of_load(leading_tag(4, frames_with_cover() + std::string(1024, '\0')) +
                               std::string(300'000, 'm')));
}

TEST(Id3LoadInfo, CostsEightCallsWithAnAppendedTag) {
    EXPECT_EQ(8, calls_of_load(std::string(300'000, 'm') + appended_tag(frames_with_cover())));
}

TEST(Id3LoadInfo, ReadsNoMoreOfTheMediaThanABlock) {
    const ScratchFolder folder;
    const std::string path = folder / "song.mp3";
    write_sparse_file(path, 500'000'000, leading_tag(4, text4("TALB", "a") + text4("TPE1", "b")), 0);
    const StreamCapture log;
    const SystemCallFaults watch;
    _file_info_t info;
    ASSERT_EQ(1, id3_load_file_info(path.c_str(), &info));
    id3_free_file_info(&info);
    EXPECT_EQ(6, watch.count());
    EXPECT_LE(watch.bytes(SystemCall::read), 10 + 4096);
}

/** What a load under a fault is to give. */
struct ExpectedLoad {
    int result;
    std::string title;
    std::string artist;
    std::string log;
};

void expect_load(const ExpectedLoad& wanted, const std::string& path,
                 const std::function<void(SystemCallFaults&)>& inject, const std::string& where) {
    SystemCallFaults faults;
    inject(faults);
    const Loaded info(Loaded::Path{path});
    EXPECT_EQ(wanted.result, info.result) << where;
    EXPECT_EQ(wanted.title, shown(info.title)) << where;
    EXPECT_EQ(wanted.artist, shown(info.artist)) << where;
    EXPECT_EQ(wanted.log, info.log) << where;
    EXPECT_EQ(0, faults.open_descriptors()) << where;
}

const std::string footer_log = "id3_load_descriptor_v2: Failed to read footer\n";
const std::string frames_log = "TALB = \"a\"\nTPE1 = \"b\"\n";

TEST(Id3LoadInfo, BytesThatCanNotBeReadGiveADocumentedResultAndLeaveNothingOpen) {
    const ScratchFolder folder;
    const std::string path = folder / "song.mp3";
    write_file(path, leading_tag(4, text4("TALB", "a") + text4("TPE1", "b")) + std::string(100, 'm'));
    const std::string header = "id3_load_descriptor_v2: Failed to read header\n";
    const std::string header_v1 = "id3_load_header_v1: Failed to read header\n";
    const std::string album = "TALB = \"a\"\n";
    const std::string frame = "id3_load_descriptor_v2: Failed to read frame\n";
    const std::string data = "id3_load_descriptor_v2: Failed to read frame data\n";
    const struct {
        std::int64_t begin;
        std::int64_t end;
        ExpectedLoad expected;
    } fields[] = {
        {0, 10, {0, "(null)", "(null)", header + header_v1}},
        {10, 20, {1, "(null)", "(null)", frame}},
        {20, 22, {1, "(null)", "(null)", data}},
        {22, 32, {1, "a", "(null)", album + frame}},
        {32, 34, {1, "a", "(null)", album + data}},
        {34, 124, {1, "a", "b", frames_log}},
        {124, 134, {1, "a", "b", footer_log + frames_log}}, // where a footer would be
    };
    for (const auto& field : fields) {
        for (const int error : {EIO, EINTR, 0}) {
            for (std::int64_t byte = field.begin; byte < field.end; ++byte) {
                const auto inject = [&](SystemCallFaults& faults) {
                    faults.refuse_bytes(SystemCall::read, byte, byte + 1, error);
                };
                expect_load(field.expected, path, inject, "byte " + std::to_string(byte));
            }
        }
    }
}

TEST(Id3LoadInfo, AnyFailingCallGivesADocumentedResultAndLeavesNothingOpen) {
    const ScratchFolder folder;
    const std::string path = folder / "song.mp3";
    write_file(path, leading_tag(4, text4("TALB", "a") + text4("TPE1", "b")));
    const ExpectedLoad expected[] = {
        {0, "(null)", "(null)", "id3_load_file_info: Couldn't open file\n"}, // open
        {1, "a", "b", footer_log + frames_log},                              // seek to the footer
        {1, "a", "b", footer_log + frames_log},                              // read it
        {1, "a", "b", frames_log},                                           // seek to the header, done again
        {1, "a", "b", frames_log}, // read the tag, then done field by field
        {1, "a", "b", frames_log}, // close
    };
    int nth = 0;
    for (const ExpectedLoad& wanted : expected) {
        ++nth;
        expect_load(
            wanted, path, [=](SystemCallFaults& faults) { faults.fail(nth, EIO); },
            "call " + std::to_string(nth));
    }
}

TEST(Id3LoadInfo, WithoutMemoryASlotStaysEmptyAndNothingIsLost) {
    const ScratchFolder folder;
    const std::string path = folder / "song.mp3";
    write_file(path, leading_tag(4, text4("TALB", "a") + text4("TCON", "(17)") +
                                        frame4("APIC", bytes("\0image/jpeg\0\x03\0") + fake_jpeg)));
    const StreamCapture log;
    constexpr int requests = 3 * 2 + 2; // a body and a place for each frame, a copy of each text
    for (int nth = 0; nth <= requests; ++nth) {
        _file_info_t info;
        {
            const AllocationFaults no_memory(nth);
            EXPECT_EQ(1, id3_load_file_info(path.c_str(), &info)) << nth;
            EXPECT_TRUE(nth > 0 || no_memory.count() == requests);
        }
        EXPECT_EQ(nth == 0, info.title && info.genre && info.picture) << nth;
        id3_free_file_info(&info);
    }
    EXPECT_EQ(0, fake_images_alive());
}

} // namespace
} // namespace velmora::test
