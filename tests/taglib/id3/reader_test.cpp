#include "taglib/id3/reader.h"

#include "id3_bytes.h"

#include "support/allocation_faults.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <fcntl.h>

namespace velmora::test {
namespace {

using Rows = std::vector<std::string>;

constexpr bool at_start = false;
constexpr bool at_end = true;

struct Found {
    std::int64_t offset = 0;
    std::string log;
};

Found find(const std::string& contents, bool end) {
    OpenFile file(contents);
    StreamCapture log;
    const std::int64_t offset = id3_is_present_v2(file.handle(), end);
    return {offset, log.text()};
}

/** What a load gives. */
struct Load {
    explicit Load(OpenFile& file, bool end = at_start) { run(file, end); }
    explicit Load(const std::string& contents, bool end = at_start) {
        OpenFile file(contents);
        run(file, end);
    }
    void run(OpenFile& file, bool end) {
        StreamCapture capture;
        offset = id3_load_descriptor_v2(file.handle(), &tag, end);
        log = capture.text();
    }
    [[nodiscard]] bool is_zeroed() const {
        const _id3_file_desc_t zeroed{};
        return std::memcmp(static_cast<const _id3_file_desc_t*>(&tag), &zeroed, sizeof zeroed) == 0;
    }

    Descriptor tag;
    std::int64_t offset = 0;
    std::string log;
};

void expect_refused(const std::string& contents, bool end, const std::string& log) {
    const Load load(contents, end);
    EXPECT_EQ(-1, load.offset);
    EXPECT_EQ(log, load.log);
    EXPECT_TRUE(load.is_zeroed());
}

// Presence

TEST(Id3Presence, HeaderAtTheStartIsOffset0) {
    const Found found = find(header(3, 0, 0), at_start);
    EXPECT_EQ(0, found.offset);
    EXPECT_EQ("", found.log);
}

TEST(Id3Presence, OtherSignatureIsRefusedSilently) {
    const Found found = find("ID4 and more bytes", at_start);
    EXPECT_EQ(-1, found.offset);
    EXPECT_EQ("", found.log);
}

TEST(Id3Presence, HeaderVersionAbove4IsRefusedSilently) {
    EXPECT_EQ(0, find(header(4, 0, 0), at_start).offset);
    const Found found = find(header(5, 0, 0), at_start);
    EXPECT_EQ(-1, found.offset);
    EXPECT_EQ("", found.log);
}

TEST(Id3Presence, ShortFileHasNoHeader) {
    for (const char* const contents : {"", "ID3", "ID3456789"}) {
        const Found found = find(contents, at_start);
        EXPECT_EQ(-1, found.offset);
        EXPECT_EQ("id3_is_present_v2: Failed to read header\n", found.log);
    }
}

TEST(Id3Presence, FooterLeadsToTheHeader) {
    const Found found = find("media" + appended_tag(text4("TALB", "a")), at_end);
    EXPECT_EQ(5, found.offset);
    EXPECT_EQ("", found.log);
}

TEST(Id3Presence, FileThatIsNothingButAnAppendedTagIsOffset0) {
    EXPECT_EQ(0, find(appended_tag(""), at_end).offset);
}

TEST(Id3Presence, NoFooterIsRefusedSilently) {
    const Found found = find(leading_tag(4, text4("TALB", "a")), at_end);
    EXPECT_EQ(-1, found.offset);
    EXPECT_EQ("", found.log);
}

TEST(Id3Presence, ShortFileHasNoFooter) {
    for (const char* const contents : {"", "3DI", "3DI456789"}) {
        const Found found = find(contents, at_end);
        EXPECT_EQ(-1, found.offset);
        EXPECT_EQ("id3_is_present_v2: Failed to read footer\n", found.log);
    }
}

TEST(Id3Presence, FooterThatPointsInFrontOfTheFileIsRefused) {
    const Found found = find("123456789" + header(4, 0x10, 0, "3DI"), at_end);
    EXPECT_EQ(-1, found.offset);
    EXPECT_EQ("id3_is_present_v2: Invalid footer offset\n", found.log);
}

TEST(Id3Presence, FileThatIsNothingButAFooterPointsInFrontOfItself) {
    const Found found = find(header(4, 0x10, 0, "3DI"), at_end);
    EXPECT_EQ(-1, found.offset);
    EXPECT_EQ("id3_is_present_v2: Invalid footer offset\n", found.log);
}

TEST(Id3Presence, FooterThatLeadsToNoHeaderIsRefusedSilently) {
    const Found found = find("1234567890" + header(4, 0x10, 0, "3DI"), at_end);
    EXPECT_EQ(-1, found.offset);
    EXPECT_EQ("", found.log);
}

TEST(Id3Presence, FooterVersionDoesNotMatter) {
    EXPECT_EQ(0, find(header(4, 0x10, 0) + header(9, 0x10, 0, "3DI"), at_end).offset);
}

TEST(Id3Presence, UnreadableHeaderBehindAFooterIsLogged) {
    OpenFile file(appended_tag(""));
    StreamCapture log;
    SystemCallFaults faults;
    faults.fail(SystemCall::read, 2, EIO);
    EXPECT_EQ(-1, id3_is_present_v2(file.handle(), at_end));
    EXPECT_EQ("id3_is_present_v2: Failed to read header\n", log.text());
}

// Locating

TEST(Id3Locate, FileWithoutSignatureIsRefused) {
    expect_refused("no tag in this file", at_start, "id3_load_descriptor_v2: Invalid header sig\n");
    expect_refused("iD3" + header(4, 0, 0).substr(3), at_start,
                   "id3_load_descriptor_v2: Invalid header sig\n");
}

TEST(Id3Locate, ShortHeaderIsRefused) {
    for (std::size_t length = 0; length < 10; ++length) {
        expect_refused(header(4, 0, 0).substr(0, length), at_start,
                       "id3_load_descriptor_v2: Failed to read header\n");
    }
}

TEST(Id3Locate, HeaderVersionAbove4IsRefused) {
    for (const int version : {5, 255}) {
        expect_refused(header(version, 0, 0), at_start,
                       "id3_load_descriptor_v2: Unsupported header version\n");
    }
}

TEST(Id3Locate, EveryVersionUpTo4IsAccepted) {
    for (const int version : {0, 1, 2, 3, 4}) {
        const Load load(header(version, 0, 0));
        EXPECT_EQ(0, load.offset);
        EXPECT_EQ(version, load.tag.version);
        EXPECT_EQ("", load.log);
    }
}

TEST(Id3Locate, ShortFooterIsRefused) {
    for (std::size_t length = 0; length < 10; ++length) {
        expect_refused(header(4, 0x10, 0, "3DI").substr(0, length), at_end,
                       "id3_load_descriptor_v2: Failed to read footer\n");
    }
}

TEST(Id3Locate, MissingFooterIsRefusedSilently) {
    expect_refused(leading_tag(4, text4("TALB", "a")), at_end, "");
}

TEST(Id3Locate, FooterVersionAbove4IsRefused) {
    expect_refused(header(4, 0x10, 0) + header(5, 0x10, 0, "3DI"), at_end,
                   "id3_load_descriptor_v2: Unsupported footer version\n");
}

TEST(Id3Locate, FooterThatPointsInFrontOfTheFileIsRefused) {
    expect_refused(header(4, 0x10, 0) + header(4, 0x10, 1, "3DI"), at_end,
                   "id3_load_descriptor_v2: Invalid footer offset\n");
    expect_refused(header(4, 0x10, 0) + header(4, 0x10, 0x0FFFFFFF, "3DI"), at_end,
                   "id3_load_descriptor_v2: Invalid footer offset\n");
}

TEST(Id3Locate, FileThatIsNothingButAFooterIsRefused) {
    expect_refused(header(4, 0x10, 0, "3DI"), at_end, "id3_load_descriptor_v2: Invalid footer offset\n");
}

TEST(Id3Locate, FooterThatLeadsToNoHeaderIsRefused) {
    expect_refused("x" + header(4, 0x10, 0) + header(4, 0x10, 1, "3DI"), at_end,
                   "id3_load_descriptor_v2: Invalid header sig\n");
}

TEST(Id3Locate, FooterSizeTakesItsLastByteWhole) {
    // 00 00 00 80 is 128 bytes between header and footer.
    const std::string footer = "3DI" + hex("04 00 10 00 00 00 80");
    const Load load("media" + header(4, 0x10, 128) + std::string(128, '\0') + footer, at_end);
    EXPECT_EQ(5, load.offset);
}

TEST(Id3Locate, HeaderBehindAFooterIsCheckedLikeAnyOther) {
    expect_refused(header(5, 0x10, 0) + header(4, 0x10, 0, "3DI"), at_end,
                   "id3_load_descriptor_v2: Unsupported header version\n");
}

TEST(Id3Locate, UnreadableHeaderBehindAFooterIsRefused) {
    OpenFile file(appended_tag(""));
    StreamCapture log;
    SystemCallFaults faults;
    faults.refuse_bytes(SystemCall::read, 9, 10, 0);
    Descriptor tag;
    EXPECT_EQ(-1, id3_load_descriptor_v2(file.handle(), &tag, at_end));
    EXPECT_EQ("id3_load_descriptor_v2: Failed to read header\n", log.text());
}

TEST(Id3Locate, FailingReadCountsAsShort) {
    OpenFile file(appended_tag(""));
    for (const bool end : {at_end, at_start}) {
        StreamCapture log;
        SystemCallFaults faults;
        faults.fail_from(SystemCall::read, 1, EIO);
        Descriptor tag;
        EXPECT_EQ(-1, id3_load_descriptor_v2(file.handle(), &tag, end));
        EXPECT_EQ(end ? "id3_load_descriptor_v2: Failed to read footer\n"
                      : "id3_load_descriptor_v2: Failed to read header\n",
                  log.text());
    }
}

TEST(Id3Locate, FailingSeekCountsAsUnreadable) {
    OpenFile file(appended_tag(""));
    for (const bool end : {at_end, at_start}) {
        StreamCapture log;
        SystemCallFaults faults;
        faults.fail_from(SystemCall::lseek, 1, EIO);
        Descriptor tag;
        EXPECT_EQ(-1, id3_load_descriptor_v2(file.handle(), &tag, end));
        EXPECT_EQ(end ? "id3_load_descriptor_v2: Failed to read footer\n"
                      : "id3_load_descriptor_v2: Failed to read header\n",
                  log.text());
    }
}

TEST(Id3Locate, FolderCanNotBeRead) {
    const ScratchFolder folder;
    FIOFUNCSTRUCT file{-1};
    ASSERT_EQ(0, fio_open(folder.path().c_str(), O_RDONLY, 0, &file));
    StreamCapture log;
    Descriptor tag;
    EXPECT_EQ(-1, id3_load_descriptor_v2(&file, &tag, at_start));
    EXPECT_EQ("id3_load_descriptor_v2: Failed to read header\n", log.text());
    fio_close(&file);
}

TEST(Id3Locate, PositionOfTheHandleDoesNotMatter) {
    OpenFile file(leading_tag(4, text4("TALB", "a")));
    fio_lseek(file.handle(), 7, SEEK_SET);
    EXPECT_EQ(0, Load(file).offset);
    EXPECT_EQ(0, id3_is_present_v2(file.handle(), at_start));
}

// Header fields

TEST(Id3Load, HeaderFieldsAreKeptAsRead) {
    const Load load(hex("49 44 33 03 07 E5 00 00 02 01") + std::string(257, '\0'));
    EXPECT_EQ(0, load.offset);
    EXPECT_EQ("ID3", std::string(load.tag.signature, 3));
    EXPECT_EQ(3, load.tag.version);
    EXPECT_EQ(7, load.tag.revision);
    EXPECT_EQ(0xE5, load.tag.header_flags);
    EXPECT_EQ(257u, load.tag.size);
    EXPECT_EQ(257u, load.tag.padding);
    EXPECT_EQ(0, load.tag.frame_count);
    EXPECT_EQ("", load.log);
}

TEST(Id3Load, LargestTagLoads) {
    OpenFile file(10 + 0x40000, hex("49 44 33 04 00 00 00 10 00 00"), 0);
    const Load load(file);
    EXPECT_EQ(0, load.offset);
    EXPECT_EQ(0x40000u, load.tag.size);
    EXPECT_EQ(0x40000u, load.tag.padding);
}

TEST(Id3Load, LargerTagIsRefused) {
    OpenFile file(10 + 0x40001, hex("49 44 33 04 00 00 00 10 00 01"), 0);
    const Load load(file);
    EXPECT_EQ(-1, load.offset);
    EXPECT_EQ("id3_load_descriptor_v2: header too large\n", load.log);
    EXPECT_TRUE(load.is_zeroed());
}

TEST(Id3Load, AppendedTagGivesItsOffsetAndFrames) {
    const Load load("media data" + appended_tag(text4("TALB", "a") + text4("TPE1", "b")), at_end);
    EXPECT_EQ(10, load.offset);
    EXPECT_EQ((Rows{bytes("TALB:\0a"), bytes("TPE1:\0b")}), load.tag.list());
    EXPECT_EQ("TALB = \"a\"\nTPE1 = \"b\"\n", load.log);
}

TEST(Id3Load, SizeOfTheHeaderCountsWhereTheFooterDiffers) {
    // The footer of 34 bytes in front of it leads to the header, whose own size leaves the second frame out.
    const std::string frames = text4("TALB", "a") + text4("TPE1", "b");
    const Load load(header(4, 0x10, 12) + frames + header(4, 0x10, 24, "3DI"), at_end);
    EXPECT_EQ(0, load.offset);
    EXPECT_EQ(12u, load.tag.size);
    EXPECT_EQ((Rows{bytes("TALB:\0a")}), load.tag.list());
}

// Frames

TEST(Id3Load, FrameSizeIsPlainInVersion3AndSyncsafeInVersion4) {
    const std::string frame = "TALB" + hex("00 00 01 00 00 00") + std::string(256, 'x');
    const Load version3(leading_tag(3, frame));
    ASSERT_EQ(1, version3.tag.frame_count);
    EXPECT_EQ(256, size_in(version3.tag.frames[0]));
    const Load version4(leading_tag(4, frame.substr(0, 10 + 128)));
    ASSERT_EQ(1, version4.tag.frame_count);
    EXPECT_EQ(128, size_in(version4.tag.frames[0]));
}

TEST(Id3Load, FrameSizeTakesItsLastByteWhole) {
    const Load load(leading_tag(4, "TALB" + hex("00 00 00 80 00 00") + std::string(128, 'x')));
    ASSERT_EQ(1, load.tag.frame_count);
    EXPECT_EQ(128, size_in(load.tag.frames[0]));
}

TEST(Id3Load, Version2IsReadWithTenByteFrameHeaders) {
    const Load load(leading_tag(2, "TALB" + hex("00 00 00 02 00 00") + bytes("\0a")));
    EXPECT_EQ((Rows{bytes("TALB:\0a")}), load.tag.list());
}

TEST(Id3Load, FrameFlagsAreKeptAsRead) {
    const Load load(leading_tag(4, "TALB" + hex("00 00 00 01 12 34") + "x"));
    ASSERT_EQ(1, load.tag.frame_count);
    const std::uint16_t flags = load.tag.frames[0].flags;
    EXPECT_EQ(0, std::memcmp(&flags, "\x12\x34", 2));
}

TEST(Id3Load, BodyIsFollowedByAZero) {
    const Load load(leading_tag(4, frame4("TALB", "abc") + frame4("TPE1", "")));
    ASSERT_EQ(2, load.tag.frame_count);
    EXPECT_EQ(0, load.tag.frames[0].data[3]);
    EXPECT_EQ(0, load.tag.frames[1].data[0]);
}

TEST(Id3Load, FramesKeepTheirOrderAlsoWhenAnIdOccursTwice) {
    const Load load(leading_tag(3, frame3("TALB", "a") + frame3("TPE1", "b") + frame3("TALB", "c")));
    EXPECT_EQ((Rows{"TALB:a", "TPE1:b", "TALB:c"}), load.tag.list());
    EXPECT_EQ(0u, load.tag.padding);
}

TEST(Id3Load, TraceShowsEachBodyFromItsSecondByteToItsFirstZero) {
    const Load load(leading_tag(4, frame4("TALB", bytes("\0ab")) + frame4("TPE1", "x") + frame4("TIT2", "") +
                                       frame4("PRIV", bytes("owner\0rest"))));
    EXPECT_EQ("TALB = \"ab\"\nTPE1 = \"\"\nTIT2 = (empty)\nPRIV = \"wner\"\n", load.log);
}

TEST(Id3Load, TraceIsCutAt511Bytes) {
    const Load load(leading_tag(4, text4("TALB", std::string(600, 'x'))));
    EXPECT_EQ("TALB = \"" + std::string(503, 'x'), load.log);
}

// Padding and damage

TEST(Id3Load, ZeroIdIsPadding) {
    const Load load(leading_tag(4, text4("TALB", "a") + std::string(30, '\0')));
    EXPECT_EQ((Rows{bytes("TALB:\0a")}), load.tag.list());
    EXPECT_EQ(30u, load.tag.padding);
    EXPECT_EQ("TALB = \"a\"\n", load.log);
}

TEST(Id3Load, IdThatOnlyBeginsWithZeroIsAFrame) {
    for (const std::string& id : {bytes("\0ALB"), bytes("\0\0LB"), bytes("\0\0\0B")}) {
        const Load load(leading_tag(4, frame4(id, "x") + text4("TALB", "a")));
        EXPECT_EQ((Rows{id + ":x", bytes("TALB:\0a")}), load.tag.list());
        EXPECT_EQ(0u, load.tag.padding);
        EXPECT_EQ(" = \"\"\nTALB = \"a\"\n", load.log);
    }
}

TEST(Id3Load, PaddingBelowAFrameHeaderIsStillPadding) {
    // The frame header read here reaches beyond the tag into the media data.
    const Load load(leading_tag(4, text4("TALB", "a") + std::string(4, '\0')) + "media data");
    EXPECT_EQ(4u, load.tag.padding);
    EXPECT_EQ("TALB = \"a\"\n", load.log);
}

TEST(Id3Load, FrameRunningPastTheTagEndsTheLoadButKeepsEarlierFrames) {
    const Load load(leading_tag(4, text4("TALB", "a") + "TPE1" + hex("00 00 00 07 00 00") + "123456") +
                    "media");
    EXPECT_EQ(0, load.offset);
    EXPECT_EQ((Rows{bytes("TALB:\0a")}), load.tag.list());
    EXPECT_EQ(6u, load.tag.padding); // what follows the bad frame's header
    EXPECT_EQ("TALB = \"a\"\nid3_load_descriptor_v2: Invalid frame size\n", load.log);
}

TEST(Id3Load, FrameHeaderCrossingTheTagsEndIsAnInvalidSizeWithoutPadding) {
    const Load load(leading_tag(4, text4("TALB", "a") + "TPE1") + hex("00 00 00 00 00 00") + "media");
    EXPECT_EQ((Rows{bytes("TALB:\0a")}), load.tag.list());
    EXPECT_EQ(0u, load.tag.padding);
    EXPECT_EQ("TALB = \"a\"\nid3_load_descriptor_v2: Invalid frame size\n", load.log);
}

TEST(Id3Load, FrameEndingWithTheTagIsWhole) {
    const Load load(leading_tag(4, frame4("TALB", "abcdef")));
    EXPECT_EQ((Rows{"TALB:abcdef"}), load.tag.list());
    EXPECT_EQ(0u, load.tag.padding);
}

TEST(Id3Load, SizesNearTwoToThe32AreInvalid) {
    for (const char* const size :
         {"FF FF FF FF", "FB 90 00 00", "80 00 00 00", "7F FF FF FF", "FF FF FF F6"}) {
        const Load load(leading_tag(3, "TALB" + hex(size) + hex("00 00") + std::string(50, 'x')));
        EXPECT_EQ(0, load.offset);
        EXPECT_EQ(0, load.tag.frame_count) << size;
        EXPECT_EQ(50u, load.tag.padding);
        EXPECT_EQ("id3_load_descriptor_v2: Invalid frame size\n", load.log);
    }
}

TEST(Id3Load, FileEndingInAFrameHeaderEndsTheLoad) {
    const Load load(header(4, 0, 100) + text4("TALB", "a") + "TPE1" + hex("00 00 00"));
    EXPECT_EQ(0, load.offset);
    EXPECT_EQ((Rows{bytes("TALB:\0a")}), load.tag.list());
    EXPECT_EQ(88u, load.tag.padding); // the header was not counted
    EXPECT_EQ("TALB = \"a\"\nid3_load_descriptor_v2: Failed to read frame\n", load.log);
}

TEST(Id3Load, FileEndingInAFrameBodyEndsTheLoad) {
    const Load load(header(4, 0, 100) + text4("TALB", "a") + "TPE1" + hex("00 00 00 05 00 00") + "1234");
    EXPECT_EQ(0, load.offset);
    EXPECT_EQ((Rows{bytes("TALB:\0a")}), load.tag.list());
    EXPECT_EQ(78u, load.tag.padding); // the header was counted, the body was not
    EXPECT_EQ("TALB = \"a\"\nid3_load_descriptor_v2: Failed to read frame data\n", load.log);
}

TEST(Id3Load, SmallFileThatClaimsTheLargestTagGivesWhatItHas) {
    const Load load(header(4, 0, 0x40000) + "TALB" + hex("00 0F 7F 76 00 00") + "abc");
    EXPECT_EQ(0, load.offset);
    EXPECT_EQ(0, load.tag.frame_count);
    EXPECT_EQ(0x40000u - 10u, load.tag.padding);
    EXPECT_EQ("id3_load_descriptor_v2: Failed to read frame data\n", load.log);
}

TEST(Id3Load, FailingReadOfAFrameKeepsEarlierFrames) {
    OpenFile file(leading_tag(4, text4("TALB", "a") + text4("TPE1", "b")));
    const struct {
        std::int64_t begin; ///< of the field that can't be read
        std::int64_t end;
        const char* log;
    } cases[] = {{22, 32, "TALB = \"a\"\nid3_load_descriptor_v2: Failed to read frame\n"},
                 {32, 34, "TALB = \"a\"\nid3_load_descriptor_v2: Failed to read frame data\n"}};
    for (const auto& failing : cases) {
        for (const int error : {EIO, 0}) {
            for (std::int64_t byte = failing.begin; byte < failing.end; ++byte) {
                StreamCapture log;
                SystemCallFaults faults;
                faults.refuse_bytes(SystemCall::read, byte, byte + 1, error);
                Descriptor tag;
                EXPECT_EQ(0, id3_load_descriptor_v2(file.handle(), &tag, at_start));
                EXPECT_EQ((Rows{bytes("TALB:\0a")}), tag.list()) << byte;
                EXPECT_EQ(failing.log, log.text()) << byte;
            }
        }
    }
}

TEST(Id3Load, BlockThatCanNotBeReadIsReadFieldByField) {
    const std::string contents = leading_tag(4, text4("TALB", "a") + text4("TPE1", "b"));
    for (int nth = 1; nth <= 2; ++nth) { // the block, or what a short read of it left
        OpenFile file(contents);
        StreamCapture log;
        SystemCallFaults faults;
        if (nth == 1) {
            faults.fail(SystemCall::read, 1, EIO);
        } else {
            faults.cut_short(SystemCall::read, 1, 25);
        }
        Descriptor tag;
        EXPECT_EQ(0, id3_load_descriptor_v2(file.handle(), &tag, at_start));
        EXPECT_EQ((Rows{bytes("TALB:\0a"), bytes("TPE1:\0b")}), tag.list());
        EXPECT_EQ("TALB = \"a\"\nTPE1 = \"b\"\n", log.text());
    }
}

TEST(Id3Load, FileCutAtEveryLengthGivesTheFramesThatAreWhole) {
    const std::string whole = leading_tag(3, frame3("TALB", bytes("\0alb")) + frame3("TPE1", "") +
                                                 frame3("TIT2", bytes("\0t")) + std::string(12, '\0'));
    const std::string lead = "id3_load_descriptor_v2: Failed to read ";
    ASSERT_EQ(58u, whole.size()); // frames end at 24, 34 and 46
    for (std::size_t length = 10; length < whole.size(); ++length) {
        const Load load(whole.substr(0, length));
        std::string log;
        log += length >= 24 ? "TALB = \"alb\"\n" : "";
        log += length >= 34 ? "TPE1 = (empty)\n" : "";
        log += length >= 46 ? "TIT2 = \"t\"\n" : "";
        const bool in_body = (length >= 20 && length < 24) || (length >= 44 && length < 46);
        const bool in_padding = length >= 56; // ten bytes of it make a frame header
        log += in_body ? lead + "frame data\n" : in_padding ? "" : lead + "frame\n";
        EXPECT_EQ(0, load.offset);
        EXPECT_EQ(log, load.log) << length;
        const std::int32_t frames = length >= 46 ? 3 : length >= 34 ? 2 : length >= 24 ? 1 : 0;
        EXPECT_EQ(frames, load.tag.frame_count) << length;
    }
}

// Cost

TEST(Id3Load, CostsOneReadForASmallTag) {
    OpenFile file(leading_tag(4, text4("TALB", "a") + text4("TPE1", "b") + text4("TIT2", "c")) +
                  std::string(300'000, 'm'));
    const StreamCapture log;
    const SystemCallFaults watch;
    Descriptor tag;
    ASSERT_EQ(0, id3_load_descriptor_v2(file.handle(), &tag, at_start));
    EXPECT_EQ(1, watch.count(SystemCall::read));
    EXPECT_LE(watch.bytes(SystemCall::read), 4096);
}

TEST(Id3Load, NoFrameTakesMoreMemoryThanTheLargestTag) {
    for (const char* const size : {"FF FF FF FF", "00 04 00 01", "00 03 FF F6"}) {
        OpenFile file(header(3, 0, 0x40000) + "TALB" + hex(size) + hex("00 00") + "abc");
        const StreamCapture log;
        const AllocationFaults watch;
        Descriptor tag;
        EXPECT_EQ(0, id3_load_descriptor_v2(file.handle(), &tag, at_start));
        EXPECT_LE(watch.largest(), 0x40000u);
    }
}

TEST(Id3Load, WithoutMemoryTheFramesReadSoFarAreKept) {
    OpenFile file(leading_tag(4, text4("TALB", "a") + text4("TPE1", "b")));
    const struct {
        int request;
        std::int32_t frames;
        const char* log;
    } cases[] = {
        {1, 0, "id3_load_descriptor_v2: Failed to read frame data\n"},
        {2, 0, "TALB = \"a\"\n"},
        {3, 1, "TALB = \"a\"\nid3_load_descriptor_v2: Failed to read frame data\n"},
        {4, 1, "TALB = \"a\"\nTPE1 = \"b\"\n"},
    };
    for (const auto& failing : cases) {
        StreamCapture log;
        Descriptor tag;
        {
            const AllocationFaults no_memory(failing.request);
            EXPECT_EQ(0, id3_load_descriptor_v2(file.handle(), &tag, at_start));
        }
        EXPECT_EQ(failing.frames, tag.frame_count);
        EXPECT_EQ(failing.log, log.text());
    }
}

TEST(Id3Load, TagFullOfEmptyFramesLoadsWhole) {
    constexpr int count = 26'214;
    std::string contents;
    for (int i = 0; i < count; ++i) {
        contents += bytes("XXXX\0\0\0\0\0\0");
    }
    const Load load(leading_tag(3, contents));
    EXPECT_EQ(count, load.tag.frame_count);
    EXPECT_EQ(0u, load.tag.padding);
}

} // namespace
} // namespace velmora::test
