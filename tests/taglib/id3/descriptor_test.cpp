#include "taglib/id3/descriptor.h"

#include "id3_bytes.h"

#include "support/allocation_faults.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace velmora::test {
namespace {

using Rows = std::vector<std::string>;

TEST(Id3Frame, RecordHasNoGaps) {
    EXPECT_EQ(0u, offsetof(_id3_frame_t, id));
    EXPECT_EQ(4u, offsetof(_id3_frame_t, size));
    EXPECT_EQ(8u, offsetof(_id3_frame_t, flags));
    EXPECT_EQ(10u, offsetof(_id3_frame_t, data));
    EXPECT_EQ(18u, sizeof(_id3_frame_t));
}

TEST(Id3Frame, IdHoldsTheCharactersInFileOrder) {
    const std::uint32_t id = id3_frame_id("TALB");
    EXPECT_EQ(0, std::memcmp(&id, "TALB", 4));
}

TEST(Id3Frame, TagGivesTheCharactersInOneBuffer) {
    const char* const first = id3_tag(id_of("TALB"));
    EXPECT_STREQ("TALB", first);
    EXPECT_EQ(first, id3_tag(id_of("TPE1")));
    EXPECT_STREQ("TPE1", first);
}

TEST(Id3Frame, InitGivesAZeroedFrameOfThatSize) {
    _id3_frame_t frame;
    std::memset(&frame, 0xEE, sizeof frame);
    ASSERT_EQ(&frame, id3_init_frame(&frame, 5));
    EXPECT_EQ(0u, id_in(frame));
    EXPECT_EQ(5, size_in(frame));
    EXPECT_EQ(0, flags_in(frame));
    std::memset(frame.data, 'x', 6); // one byte more than the size
    std::free(frame.data);
}

TEST(Id3Frame, TakesOneByteMoreThanItsSize) {
    const AllocationFaults watch;
    _id3_frame_t frame{};
    ASSERT_NE(nullptr, id3_init_frame(&frame, 1000));
    EXPECT_EQ(1001u, watch.largest());
    const std::string large(2000, 'x');
    EXPECT_EQ(1, id3_set_frame_data(&frame, large.data(), 2000));
    EXPECT_EQ(2001u, watch.largest());
    std::free(frame.data);
}

TEST(Id3Frame, InitOfNegativeSizeFails) {
    _id3_frame_t frame{};
    EXPECT_EQ(nullptr, id3_init_frame(&frame, -1));
}

TEST(Id3Frame, InitWithoutMemoryFailsAndLeavesTheFrame) {
    _id3_frame_t frame{};
    frame.id = 7;
    const AllocationFaults no_memory(1);
    EXPECT_EQ(nullptr, id3_init_frame(&frame, 5));
    EXPECT_EQ(7u, id_in(frame));
}

TEST(Id3Frame, SetDataOfNoMoreBytesReusesTheBuffer) {
    Frame frame("abcdef");
    const std::uint8_t* const before = frame.data;
    EXPECT_EQ(1, id3_set_frame_data(&frame, "xyz", 3));
    EXPECT_EQ(before, data_in(frame));
    EXPECT_EQ("xyz", frame.body());
}

TEST(Id3Frame, SetDataWritesNoTerminator) {
    Frame frame("abcdef");
    ASSERT_EQ(1, id3_set_frame_data(&frame, "xyz", 3));
    EXPECT_EQ(0, std::memcmp(frame.data, "xyzdef", 7));
}

TEST(Id3Frame, SetDataOfMoreBytesGrowsTheBuffer) {
    Frame frame("ab");
    const std::string large(100'000, 'q');
    EXPECT_EQ(1, id3_set_frame_data(&frame, large.data(), static_cast<std::int32_t>(large.size())));
    EXPECT_EQ(large, frame.body());
    frame.data[100'000] = 0; // one byte more than the size
}

TEST(Id3Frame, SetDataOfNothingEmptiesTheFrame) {
    Frame frame("ab");
    EXPECT_EQ(1, id3_set_frame_data(&frame, nullptr, 0));
    EXPECT_EQ(0, size_in(frame));
}

TEST(Id3Frame, SetDataWithoutMemoryLeavesTheFrame) {
    Frame frame("ab");
    {
        const AllocationFaults no_memory(1);
        EXPECT_EQ(0, id3_set_frame_data(&frame, "xyz", 3));
    }
    EXPECT_EQ("ab", frame.body());
}

TEST(Id3Frame, SetDataOfNegativeLengthLeavesTheFrame) {
    Frame frame("ab");
    EXPECT_EQ(0, id3_set_frame_data(&frame, "xyz", -1));
    EXPECT_EQ("ab", frame.body());
}

TEST(Id3Frame, SetDataKeepsIdAndFlags) {
    Frame frame("ab", "TALB");
    frame.flags = 0x1234;
    ASSERT_EQ(1, id3_set_frame_data(&frame, "xyz", 3));
    EXPECT_EQ(id_of("TALB"), id_in(frame));
    EXPECT_EQ(0x1234, flags_in(frame));
}

TEST(Id3Descriptor, FindFrameGivesTheFirstOfThatId) {
    Descriptor tag;
    tag.add("TPE1", "a");
    tag.add("TALB", "b");
    tag.add("TALB", "c");
    EXPECT_EQ(tag.frames + 1, id3_find_frame(&tag, id_of("TALB")));
    EXPECT_EQ(nullptr, id3_find_frame(&tag, id_of("TIT2")));
}

TEST(Id3Descriptor, FindFrameTellsCaseApart) {
    Descriptor tag;
    tag.add("talb", "a");
    EXPECT_EQ(nullptr, id3_find_frame(&tag, id_of("TALB")));
}

TEST(Id3Descriptor, InsertFrameAppendsAndTakesTheDataOver) {
    Descriptor tag;
    _id3_frame_t frame;
    ASSERT_NE(nullptr, id3_init_frame(&frame, 1));
    frame.id = id_of("TALB");
    frame.flags = 0x4321;
    frame.data[0] = 'a';
    const std::uint8_t* const data = frame.data;
    tag.add("TPE1", "x");
    EXPECT_EQ(1, id3_insert_frame(&tag, &frame));
    EXPECT_EQ((Rows{"TPE1:x", "TALB:a"}), tag.list());
    EXPECT_EQ(data, data_in(tag.frames[1]));
    EXPECT_EQ(0x4321, flags_in(tag.frames[1]));
}

TEST(Id3Descriptor, InsertFrameWithoutMemoryLeavesTheDescriptor) {
    Descriptor tag;
    tag.add("TPE1", "x");
    Frame frame("a");
    {
        const AllocationFaults no_memory(1);
        EXPECT_EQ(0, id3_insert_frame(&tag, &frame));
    }
    EXPECT_EQ((Rows{"TPE1:x"}), tag.list());
}

TEST(Id3Descriptor, InsertTagAppendsAFrameWithFlagsZero) {
    Descriptor tag;
    tag.add("TPE1", "x");
    EXPECT_EQ(1, id3_insert_tag(&tag, id_of("TALB"), "ab", 2));
    EXPECT_EQ((Rows{"TPE1:x", "TALB:ab"}), tag.list());
    EXPECT_EQ(0, flags_in(tag.frames[1]));
}

TEST(Id3Descriptor, InsertTagReplacesTheFirstAndLeavesTheSecond) {
    Descriptor tag;
    tag.add("TALB", "first", hex("12 34"));
    tag.add("TPE1", "x");
    tag.add("TALB", "second");
    EXPECT_EQ(1, id3_insert_tag(&tag, id_of("TALB"), "new", 3));
    EXPECT_EQ((Rows{"TALB:new", "TPE1:x", "TALB:second"}), tag.list());
    const std::uint16_t flags = tag.frames[0].flags;
    EXPECT_EQ(0, std::memcmp(&flags, "\x12\x34", 2));
}

TEST(Id3Descriptor, InsertTagWithoutMemoryLeavesTheDescriptor) {
    Descriptor tag;
    tag.add("TPE1", "x");
    for (const int nth : {1, 2}) { // the body, the array
        const AllocationFaults no_memory(nth);
        EXPECT_EQ(0, id3_insert_tag(&tag, id_of("TALB"), "ab", 2));
    }
    {
        const AllocationFaults no_memory(1);
        EXPECT_EQ(0, id3_insert_tag(&tag, id_of("TPE1"), "longer", 6));
    }
    EXPECT_EQ((Rows{"TPE1:x"}), tag.list());
}

TEST(Id3Descriptor, RemoveTagRemovesTheFirstAndKeepsTheOrder) {
    Descriptor tag;
    tag.add("TPE1", "a");
    tag.add("TALB", "b");
    tag.add("TIT2", "c");
    tag.add("TALB", "d");
    EXPECT_EQ(1, id3_remove_tag(&tag, id_of("TALB")));
    EXPECT_EQ((Rows{"TPE1:a", "TIT2:c", "TALB:d"}), tag.list());
    EXPECT_EQ(1, id3_remove_tag(&tag, id_of("TALB")));
    EXPECT_EQ(0, id3_remove_tag(&tag, id_of("TALB")));
    EXPECT_EQ((Rows{"TPE1:a", "TIT2:c"}), tag.list());
}

TEST(Id3Descriptor, RemoveFrameRemovesThatFrame) {
    Descriptor tag;
    tag.add("TALB", "a");
    tag.add("TALB", "b");
    tag.add("TALB", "c");
    EXPECT_EQ(1, id3_remove_frame(&tag, tag.frames + 1));
    EXPECT_EQ((Rows{"TALB:a", "TALB:c"}), tag.list());
    EXPECT_EQ(1, id3_remove_frame(&tag, tag.frames + 1));
    EXPECT_EQ(1, id3_remove_frame(&tag, tag.frames));
    EXPECT_EQ(Rows{}, tag.list());
}

TEST(Id3Descriptor, RemoveFrameOfAnotherDescriptorDoesNothing) {
    Descriptor tag;
    tag.add("TALB", "a");
    Frame stranger("a", "TALB");
    EXPECT_EQ(0, id3_remove_frame(&tag, &stranger));
    EXPECT_EQ(0, id3_remove_frame(&tag, tag.frames + 1));
    EXPECT_EQ((Rows{"TALB:a"}), tag.list());
}

TEST(Id3Descriptor, FreeZeroesItAndMayBeRepeated) {
    Descriptor tag;
    tag.version = 4;
    tag.size = 9;
    tag.add("TALB", "a");
    EXPECT_EQ(0, id3_free_descriptor(&tag));
    const _id3_file_desc_t zeroed{};
    EXPECT_EQ(0, std::memcmp(static_cast<const _id3_file_desc_t*>(&tag), &zeroed, sizeof zeroed));
    EXPECT_EQ(0, id3_free_descriptor(&tag));
}

TEST(Id3PrivFrame, IsFoundInAllThreeSpellings) {
    for (const char* const id : {"PRIV", "Priv", "priv"}) {
        Descriptor tag;
        tag.add("TALB", bytes("owner\0x"));
        tag.add(id, bytes("owner\0x"));
        EXPECT_EQ(tag.frames + 1, id3_find_priv_frame(&tag, "owner")) << id;
    }
    Descriptor tag;
    tag.add("pRIV", bytes("owner\0x"));
    EXPECT_EQ(nullptr, id3_find_priv_frame(&tag, "owner"));
}

TEST(Id3PrivFrame, OwnerMatchesWithoutRegardToCase) {
    Descriptor tag;
    tag.add("PRIV", bytes("wm/parentalRATING\0x"));
    EXPECT_EQ(tag.frames, id3_find_priv_frame(&tag, "WM/ParentalRating"));
    EXPECT_EQ(nullptr, id3_find_priv_frame(&tag, "WM/Parental"));
    EXPECT_EQ(nullptr, id3_find_priv_frame(&tag, "WM/ParentalRatings"));
}

TEST(Id3PrivFrame, FirstOfTheOwnerIsFound) {
    Descriptor tag;
    tag.add("PRIV", bytes("a\0001"));
    tag.add("PRIV", bytes("b\0002"));
    tag.add("PRIV", bytes("b\0003"));
    EXPECT_EQ(tag.frames + 1, id3_find_priv_frame(&tag, "b"));
}

TEST(Id3PrivFrame, OwnerWithoutTerminatorIsTheWholeBody) {
    Descriptor tag;
    tag.add("PRIV", "owner");
    EXPECT_EQ(tag.frames, id3_find_priv_frame(&tag, "owner"));
}

TEST(Id3PrivFrame, EmptyFrameHasAnEmptyOwner) {
    Descriptor tag;
    tag.add("PRIV", "");
    EXPECT_EQ(nullptr, id3_find_priv_frame(&tag, "owner"));
    EXPECT_EQ(tag.frames, id3_find_priv_frame(&tag, ""));
}

TEST(Id3PrivFrame, Only127CharactersOfTheOwnerCount) {
    Descriptor tag;
    tag.add("PRIV", std::string(127, 'a') + "bcd" + '\0' + "x");
    EXPECT_EQ(tag.frames, id3_find_priv_frame(&tag, std::string(127, 'A').c_str()));
    EXPECT_EQ(nullptr, id3_find_priv_frame(&tag, std::string(126, 'a').c_str()));
    EXPECT_EQ(nullptr, id3_find_priv_frame(&tag, (std::string(127, 'a') + "bcd").c_str()));
}

TEST(Id3PrivFrame, SetDataKeepsTheOwnerAndReplacesTheRest) {
    Frame frame(bytes("owner\0old value"));
    EXPECT_EQ(1, id3_set_priv_frame_data(&frame, "new", 3));
    EXPECT_EQ(bytes("owner\0new"), frame.body());
}

TEST(Id3PrivFrame, SetDataKeepsAnOwnerOfAnyLength) {
    for (const std::size_t length : {0u, 17u, 18u, 127u, 128u, 5000u}) {
        const std::string owner = std::string(length, 'o') + '\0';
        Frame frame(owner + "old");
        EXPECT_EQ(1, id3_set_priv_frame_data(&frame, "newer", 5));
        EXPECT_EQ(owner + "newer", frame.body()) << length;
    }
}

TEST(Id3PrivFrame, SetDataThatFitsKeepsTheBuffer) {
    Frame frame(bytes("owner\0old"));
    const std::uint8_t* const before = frame.data;
    EXPECT_EQ(1, id3_set_priv_frame_data(&frame, "new", 3));
    EXPECT_EQ(before, data_in(frame));
}

TEST(Id3PrivFrame, SetDataGrowsTheFrame) {
    Frame frame(bytes("owner\0"));
    const std::string large(100'000, 'q');
    EXPECT_EQ(1, id3_set_priv_frame_data(&frame, large.data(), static_cast<std::int32_t>(large.size())));
    EXPECT_EQ(bytes("owner\0") + large, frame.body());
}

TEST(Id3PrivFrame, SetDataBehindAnOwnerWithoutTerminatorAppends) {
    Frame frame("owner");
    EXPECT_EQ(1, id3_set_priv_frame_data(&frame, "new", 3));
    EXPECT_EQ("ownernew", frame.body());
}

TEST(Id3PrivFrame, SetDataWithoutMemoryLeavesTheFrame) {
    Frame frame(bytes("owner\0ab"));
    {
        const AllocationFaults no_memory(1);
        EXPECT_EQ(0, id3_set_priv_frame_data(&frame, "longer", 6));
    }
    EXPECT_EQ(bytes("owner\0ab"), frame.body());
}

TEST(Id3PrivFrame, SetDataOfLengthsThatNoFrameHoldsLeavesTheFrame) {
    Frame frame(bytes("owner\0ab"));
    EXPECT_EQ(0, id3_set_priv_frame_data(&frame, "x", -1));
    EXPECT_EQ(0, id3_set_priv_frame_data(&frame, "x", std::numeric_limits<std::int32_t>::max()));
    EXPECT_EQ(bytes("owner\0ab"), frame.body());
}

TEST(Id3PrivFrame, InsertAppendsOwnerZeroAndBytes) {
    Descriptor tag;
    tag.add("TALB", "a");
    EXPECT_EQ(1, id3_insert_priv_tag(&tag, "owner", "xy", 2));
    EXPECT_EQ((Rows{"TALB:a", bytes("PRIV:owner\0xy")}), tag.list());
    EXPECT_EQ(0, flags_in(tag.frames[1]));
}

TEST(Id3PrivFrame, InsertReplacesTheFirstOfThatOwner) {
    Descriptor tag;
    tag.add("priv", bytes("OWNER\0old"));
    tag.add("PRIV", bytes("owner\0second"));
    EXPECT_EQ(1, id3_insert_priv_tag(&tag, "owner", "new", 3));
    EXPECT_EQ((Rows{bytes("priv:OWNER\0new"), bytes("PRIV:owner\0second")}), tag.list());
}

TEST(Id3PrivFrame, InsertWithoutMemoryLeavesTheDescriptor) {
    Descriptor tag;
    tag.add("TALB", "a");
    for (const int nth : {1, 2}) { // the body, the array
        const AllocationFaults no_memory(nth);
        EXPECT_EQ(0, id3_insert_priv_tag(&tag, "owner", "xy", 2));
    }
    EXPECT_EQ((Rows{"TALB:a"}), tag.list());
}

TEST(Id3PrivFrame, InsertIntoAFrameThatCanNotGrowFails) {
    Descriptor tag;
    tag.add("PRIV", bytes("owner\0a"));
    {
        const AllocationFaults no_memory(1);
        EXPECT_EQ(0, id3_insert_priv_tag(&tag, "owner", "longer", 6));
    }
    EXPECT_EQ((Rows{bytes("PRIV:owner\0a")}), tag.list());
}

TEST(Id3PrivFrame, InsertOfNegativeLengthLeavesTheDescriptor) {
    Descriptor tag;
    EXPECT_EQ(0, id3_insert_priv_tag(&tag, "owner", "xy", -1));
    EXPECT_EQ(0, tag.frame_count);
}

TEST(Id3PrivFrame, RemoveRemovesTheFirstOfThatOwner) {
    Descriptor tag;
    tag.add("PRIV", bytes("other\0a"));
    tag.add("Priv", bytes("Owner\0b"));
    tag.add("PRIV", bytes("owner\0c"));
    EXPECT_EQ(1, id3_remove_priv_tag(&tag, "owner"));
    EXPECT_EQ((Rows{bytes("PRIV:other\0a"), bytes("PRIV:owner\0c")}), tag.list());
    EXPECT_EQ(0, id3_remove_priv_tag(&tag, "nobody"));
}

} // namespace
} // namespace velmora::test
