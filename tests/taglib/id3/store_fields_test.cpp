#include "taglib/id3/detail/store_fields.h"

#include "id3_bytes.h"
#include "stored_info.h"
#include "zone.h"

#include "fake_image/fake_image.h"
#include "support/allocation_faults.h"

#include <gtest/gtest.h>

#include <cstring>

namespace velmora::test {
namespace {

using Rows = std::vector<std::string>;

constexpr std::uint32_t all_fields = 0x1FF;

TEST(Id3StoreFields, EveryFieldBecomesItsFrameInOrder) {
    const Zone zone("UTC");
    char title[] = "album", artist[] = "artist", desc[] = "song", genre[] = "Rock", director[] = "director",
         rating[] = "PG-13";
    _file_info_t info{};
    info.flags = all_fields;
    info.title = title;
    info.artist = artist;
    info.desc = desc;
    info.genre = genre;
    info.director = director;
    info.rating = rating;
    info.year = 1999;
    info.picture = image_from_bytes(fake_jpeg.data(), fake_jpeg.size());
    info.time = 128'543'700'300'000'000; // 2008-05-04 10:20:30
    Descriptor tag;
    EXPECT_EQ(1, id3_store_fields(&tag, &info));
    EXPECT_EQ(
        (Rows{bytes("TALB:\0album"), bytes("TPE1:\0artist"), bytes("TIT2:\0song"), bytes("TPE3:\0director"),
              bytes("PRIV:WM/ParentalRating\0PG-13"), bytes("TCON:\0Rock"), bytes("TYER:\0001999"),
              bytes("APIC:\0image/jpeg\0\x10\0") + fake_jpeg, bytes("TDRC:\000108-04-04T:10:20:30+0:0")}),
        tag.list());
    EXPECT_EQ(0u, info.flags);
    EXPECT_EQ(1, fake_image_references(info.picture));
    image_release(info.picture);
}

/** A tag with a frame of every kind. */
void fill(Descriptor& tag) {
    for (const char* const id : {"TALB", "TPE1", "TIT2", "TPE3", "TCON", "TYER", "APIC", "TDRC"}) {
        tag.add(id, "old");
    }
    tag.add("PRIV", bytes("WM/ParentalRating\0old"));
    tag.add("PRIV", bytes("WM/Other\0old"));
}

TEST(Id3StoreFields, FieldsWithoutTheirFlagAreLeftAlone) {
    Descriptor tag;
    fill(tag);
    const Rows before = tag.list();
    char text[] = "new";
    _file_info_t info{};
    info.title = info.artist = info.desc = info.genre = info.director = info.rating = text;
    info.year = 1999;
    EXPECT_EQ(1, id3_store_fields(&tag, &info));
    EXPECT_EQ(before, tag.list());
}

TEST(Id3StoreFields, FieldsWithoutAValueRemoveTheirFrames) {
    Descriptor tag;
    fill(tag);
    _file_info_t info{};
    info.flags = all_fields;
    EXPECT_EQ(1, id3_store_fields(&tag, &info));
    EXPECT_EQ((Rows{bytes("PRIV:WM/Other\0old")}), tag.list());
    EXPECT_EQ(0u, info.flags);
}

TEST(Id3StoreFields, EmptyTextsCountAsNoValue) {
    Descriptor tag;
    fill(tag);
    char empty[] = "";
    _file_info_t info{};
    info.flags = all_fields;
    info.title = info.artist = info.desc = info.genre = info.director = info.rating = empty;
    EXPECT_EQ(1, id3_store_fields(&tag, &info));
    EXPECT_EQ((Rows{bytes("PRIV:WM/Other\0old")}), tag.list());
}

TEST(Id3StoreFields, EachFlagTouchesItsOwnFrameOnly) {
    const struct {
        std::uint32_t flag;
        std::string removed;
    } cases[] = {{0x1, "TALB:old"},
                 {0x2, "TPE1:old"},
                 {0x4, "TIT2:old"},
                 {0x40, "TPE3:old"},
                 {0x80, bytes("PRIV:WM/ParentalRating\0old")},
                 {0x8, "TCON:old"},
                 {0x10, "TYER:old"},
                 {0x20, "APIC:old"},
                 {0x100, "TDRC:old"}};
    for (const auto& field : cases) {
        Descriptor tag;
        fill(tag);
        Rows expected = tag.list();
        std::erase(expected, field.removed);
        _file_info_t info{};
        info.flags = field.flag;
        EXPECT_EQ(1, id3_store_fields(&tag, &info));
        EXPECT_EQ(expected, tag.list()) << field.flag;
    }
}

TEST(Id3StoreFields, OnlyTheFirstFrameOfAnIdIsRemoved) {
    Descriptor tag;
    tag.add("TALB", "one");
    tag.add("TPE1", "x");
    tag.add("TALB", "two");
    StoredInfo info;
    info.with_title("");
    EXPECT_EQ(1, id3_store_fields(&tag, &info));
    EXPECT_EQ((Rows{"TPE1:x", "TALB:two"}), tag.list());
}

TEST(Id3StoreFields, OnlyTheFirstRatingAndPictureAreRemoved) {
    Descriptor tag;
    tag.add("PRIV", bytes("WM/ParentalRating\0one"));
    tag.add("APIC", "one");
    tag.add("PRIV", bytes("WM/ParentalRating\0two"));
    tag.add("APIC", "two");
    _file_info_t info{};
    info.flags = file_info_flag::rating | file_info_flag::picture;
    EXPECT_EQ(1, id3_store_fields(&tag, &info));
    EXPECT_EQ((Rows{bytes("PRIV:WM/ParentalRating\0two"), "APIC:two"}), tag.list());
}

TEST(Id3StoreFields, FrameKeepsItsPlaceAndFlags) {
    Descriptor tag;
    tag.add("TALB", "old", hex("12 34"));
    tag.add("TPE1", "x");
    StoredInfo info;
    info.with_title("new");
    EXPECT_EQ(1, id3_store_fields(&tag, &info));
    EXPECT_EQ((Rows{bytes("TALB:\0new"), "TPE1:x"}), tag.list());
    const std::uint16_t flags = tag.frames[0].flags;
    EXPECT_EQ(0, std::memcmp(&flags, "\x12\x34", 2));
}

TEST(Id3StoreFields, TextsAreWrittenAsTheyAreUnderEncodingByte0) {
    Descriptor tag;
    StoredInfo info;
    info.with_title("caf\xC3\xA9 \xE4\xB8\x87");
    EXPECT_EQ(1, id3_store_fields(&tag, &info));
    EXPECT_EQ((Rows{bytes("TALB:\0caf\xC3\xA9 \xE4\xB8\x87")}), tag.list());
}

TEST(Id3StoreFields, TextIsCutAt8191Bytes) {
    for (const std::size_t length : {8190u, 8191u, 8192u, 20'000u}) {
        Descriptor tag;
        StoredInfo info;
        info.with_title(std::string(length, 'x'));
        EXPECT_EQ(1, id3_store_fields(&tag, &info));
        EXPECT_EQ((Rows{bytes("TALB:\0") + std::string(std::min<std::size_t>(length, 8191), 'x')}),
                  tag.list());
    }
}

TEST(Id3StoreFields, RatingIsCutAt8192Bytes) {
    for (const std::size_t length : {8191u, 8192u, 8193u}) {
        Descriptor tag;
        StoredInfo info;
        info.with_rating(std::string(length, 'x'));
        EXPECT_EQ(1, id3_store_fields(&tag, &info));
        EXPECT_EQ(
            (Rows{bytes("PRIV:WM/ParentalRating\0") + std::string(std::min<std::size_t>(length, 8192), 'x')}),
            tag.list());
    }
}

TEST(Id3StoreFields, RatingReplacesWhatFollowsItsOwner) {
    Descriptor tag;
    tag.add("priv", bytes("wm/parentalrating\0old rating"));
    StoredInfo info;
    info.with_rating("R");
    EXPECT_EQ(1, id3_store_fields(&tag, &info));
    EXPECT_EQ((Rows{bytes("priv:wm/parentalrating\0R")}), tag.list());
}

TEST(Id3StoreFields, YearIsWrittenAsADecimalNumber) {
    const struct {
        std::int32_t year;
        std::string row;
    } cases[] = {{7, bytes("TYER:\0007")},
                 {-5, bytes("TYER:\0-5")},
                 {2'147'483'647, bytes("TYER:\0002147483647")},
                 {-2'147'483'647 - 1, bytes("TYER:\0-2147483648")}};
    for (const auto& value : cases) {
        Descriptor tag;
        StoredInfo info;
        info.with_year(value.year);
        EXPECT_EQ(1, id3_store_fields(&tag, &info));
        EXPECT_EQ(Rows{value.row}, tag.list());
    }
}

TEST(Id3StoreFields, AnyTimeButZeroIsWritten) {
    const Zone zone("UTC");
    const std::uint64_t year_1970 = 116'444'736'000'000'000; // what lies before it is written as this
    for (const std::uint64_t time : {std::uint64_t{1}, year_1970}) {
        Descriptor tag;
        _file_info_t info{};
        info.flags = file_info_flag::time;
        info.time = time;
        EXPECT_EQ(1, id3_store_fields(&tag, &info));
        EXPECT_EQ((Rows{bytes("TDRC:\00070-00-01T:00:00:00+0:0")}), tag.list());
    }
}

TEST(Id3StoreFields, UnknownFlagsAndTagPresentStay) {
    Descriptor tag;
    _file_info_t info{};
    info.flags = 0xFFFF'FFFF;
    EXPECT_EQ(1, id3_store_fields(&tag, &info));
    EXPECT_EQ(0xFFFF'FE00u, info.flags);
}

TEST(Id3StoreFields, PictureThatCanNotBeEncodedLeavesItsFrameAndTheRestIsStored) {
    Descriptor tag;
    tag.add("APIC", "old");
    Image* const image = image_from_bytes(fake_jpeg.data(), fake_jpeg.size());
    StoredInfo info;
    info.with_title("a").with_picture(image);
    fail_fake_image_encoding(true);
    EXPECT_EQ(1, id3_store_fields(&tag, &info));
    fail_fake_image_encoding(false);
    EXPECT_EQ((Rows{"APIC:old", bytes("TALB:\0a")}), tag.list());
    EXPECT_EQ(0u, info.flags);
    image_release(image);
}

/** Stores all fields but the picture into TAG once for each of the memory requests, with that one failing. */
void expect_each_request_to_be_needed(int requests, void (*prepare)(Descriptor& tag)) {
    char text[] = "longer than before";
    for (int nth = 0; nth <= requests; ++nth) {
        Descriptor tag;
        prepare(tag);
        _file_info_t info{};
        info.flags = all_fields & ~file_info_flag::picture;
        info.title = info.artist = info.desc = info.genre = info.director = info.rating = text;
        info.year = 1999;
        info.time = 128'543'700'300'000'000;
        const AllocationFaults no_memory(nth);
        EXPECT_EQ(nth == 0 ? 1 : 0, id3_store_fields(&tag, &info)) << nth;
        EXPECT_EQ(0u, info.flags) << nth;
        EXPECT_TRUE(nth > 0 || no_memory.count() == requests);
    }
}

TEST(Id3StoreFields, WithoutMemoryForAnyFrameFailsWithTheFlagsClearedWhateverFollows) {
    expect_each_request_to_be_needed(8 * 2, [](Descriptor&) {}); // a body and a place for each
    expect_each_request_to_be_needed(8, fill);                   // each frame grows
}

TEST(Id3StoreFields, PictureDoesNotMakeUpForAFieldThatFailed) {
    Image* const image = image_from_bytes(fake_jpeg.data(), fake_jpeg.size());
    Descriptor tag;
    StoredInfo info;
    info.with_title("a").with_picture(image);
    {
        const AllocationFaults no_memory(1); // the title's frame
        EXPECT_EQ(0, id3_store_fields(&tag, &info));
    }
    image_release(image);
}

TEST(Id3StoreFields, WithoutMemoryForThePictureStoresTheRest) {
    Image* const image = image_from_bytes(fake_jpeg.data(), fake_jpeg.size());
    const StreamCapture log;
    for (const int nth : {1, 2, 3}) { // its body, its frame, the array
        Descriptor tag;
        StoredInfo info;
        info.with_picture(image);
        const AllocationFaults no_memory(nth);
        EXPECT_EQ(1, id3_store_fields(&tag, &info)) << nth;
        EXPECT_EQ(0, tag.frame_count);
    }
    image_release(image);
}

} // namespace
} // namespace velmora::test
