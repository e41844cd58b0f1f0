#include "taglib/asf/content_description.h"

#include "asf_bytes.h"

#include "support/allocation_faults.h"
#include "support/bytes.h"
#include "support/stream_capture.h"
#include "taglib/asf/guids.h"

#include <gtest/gtest.h>

#include <memory>

namespace velmora {
namespace {

using namespace test;

struct FreeCd {
    void operator()(_asf_content_description_t* cd) const { asf_free_content_description(cd); }
};
using Cd = std::unique_ptr<_asf_content_description_t, FreeCd>;

/** Title "Ti", author "A", no copyright, description "D" without terminator, rating "R". */
const std::string five_strings = hex("33 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C"
                                     "34 00 00 00 00 00 00 00"
                                     "06 00 04 00 00 00 02 00 06 00"
                                     "54 00 69 00 00 00"
                                     "41 00 00 00"
                                     "44 00"
                                     "52 00 00 00 FF FF");

TEST(AsfContentDescription, InitGivesAnEmptyRecordWithTheGuid) {
    const Cd cd(asf_init_content_description());
    ASSERT_TRUE(cd);
    EXPECT_EQ(ASF_ContentDescription, cd->guid);
    EXPECT_EQ(0u, cd->size);
    EXPECT_EQ(0, cd->title_length + cd->author_length + cd->copyright_length + cd->description_length +
                     cd->rating_length);
    EXPECT_TRUE(!cd->title && !cd->author && !cd->copyright && !cd->description && !cd->rating);
}

TEST(AsfContentDescription, FreeTakesNull) {
    asf_free_content_description(nullptr);
}

TEST(AsfContentDescription, ReadTakesTheFiveStringsAsTheyAre) {
    OpenBytes file(five_strings + "next");
    const Cd cd(asf_read_content_description(file.file(), nullptr));
    ASSERT_TRUE(cd);
    EXPECT_EQ(ASF_ContentDescription, cd->guid);
    EXPECT_EQ(0x34u, cd->size);
    EXPECT_EQ(hex("54 00 69 00 00 00"), bytes_of(cd->title, cd->title_length));
    EXPECT_EQ(hex("41 00 00 00"), bytes_of(cd->author, cd->author_length));
    EXPECT_EQ(0, cd->copyright_length);
    EXPECT_EQ(nullptr, cd->copyright);
    EXPECT_EQ(hex("44 00"), bytes_of(cd->description, cd->description_length));
    EXPECT_EQ(hex("52 00 00 00 FF FF"), bytes_of(cd->rating, cd->rating_length));
    EXPECT_EQ(0x34, file.position());
}

TEST(AsfContentDescription, ReadLogsTheWholeObject) {
    OpenBytes file("..." + five_strings);
    file.seek(3);
    StreamCapture log;
    const Cd cd(asf_read_content_description(file.file(), nullptr));
    EXPECT_EQ("[3] {75b22633-668e-11cf-a6d9-00aa0062ce6c} (0x34 bytes)\n"
              "[3] ContentDescription\n"
              "  Size = 0x34\n"
              "  Title = Ti\n"
              "  Author = A\n"
              "  Copyright = \n"
              "  Description = D\n"
              "  Rating = R\n",
              log.text());
}

TEST(AsfContentDescription, ReadFillsAGivenRecord) {
    OpenBytes file(five_strings);
    const Cd cd(asf_init_content_description());
    cd->rating_length = 99;
    EXPECT_EQ(cd.get(), asf_read_content_description(file.file(), cd.get()));
    EXPECT_EQ(6, cd->rating_length);
}

TEST(AsfContentDescription, ReadEndsWhereTheDeclaredSizeSaysBehindSlack) {
    OpenBytes file(object_of_size(cd_guid, 100, std::string(10, '\0')) + std::string(200, 'x'));
    const Cd cd(asf_read_content_description(file.file(), nullptr));
    ASSERT_TRUE(cd);
    EXPECT_EQ(100u, cd->size);
    EXPECT_EQ(100, file.position());
}

TEST(AsfContentDescription, ReadEndsWhereTheDeclaredSizeSaysInsideTheStrings) {
    OpenBytes file(object_of_size(cd_guid, 34, u16(4) + std::string(8, '\0') + wide_z("T")) + "next");
    const Cd cd(asf_read_content_description(file.file(), nullptr));
    ASSERT_TRUE(cd);
    EXPECT_EQ(wide_z("T"), bytes_of(cd->title, cd->title_length));
    EXPECT_EQ(34, file.position());
}

TEST(AsfContentDescription, ReadFillsUpWithZerosBehindTheEndOfTheFile) {
    OpenBytes file(
        object_of_size(cd_guid, 44, u16(4) + u16(6) + std::string(6, '\0') + wide("TX") + wide("A")));
    const Cd cd(asf_read_content_description(file.file(), nullptr));
    ASSERT_TRUE(cd);
    EXPECT_EQ(wide("TX"), bytes_of(cd->title, cd->title_length));
    EXPECT_EQ(hex("41 00 00 00 00 00"), bytes_of(cd->author, cd->author_length));
}

TEST(AsfContentDescription, ReadTakesLengthsBehindTheEndOfTheFileAsZero) {
    OpenBytes file(object_of_size(cd_guid, 34, u16(0)));
    const Cd cd(asf_read_content_description(file.file(), nullptr));
    ASSERT_TRUE(cd);
    EXPECT_EQ(0, cd->author_length);
    EXPECT_EQ(nullptr, cd->author);
}

TEST(AsfContentDescription, ReadFailsWithoutAnObjectHeader) {
    OpenBytes file(five_strings.substr(0, 15));
    EXPECT_EQ(nullptr, asf_read_content_description(file.file(), nullptr));
}

TEST(AsfContentDescription, ReadFailsOnASizeThatLeadsNowhere) {
    OpenBytes file(object_of_size(cd_guid, 0x8000000000000000, u16(2) + std::string(8, '\0') + wide("T")));
    _asf_content_description_t cd{};
    EXPECT_EQ(nullptr, asf_read_content_description(file.file(), &cd));
    EXPECT_EQ(nullptr, cd.title);
}

TEST(AsfContentDescription, AStringThatFindsNoMemoryIsAbsentAndTheOthersAreRead) {
    OpenBytes file(five_strings);
    _asf_content_description_t* cd = nullptr;
    {
        const AllocationFaults second_string(3);
        cd = asf_read_content_description(file.file(), nullptr);
    }
    const Cd owner(cd);
    ASSERT_TRUE(cd);
    EXPECT_EQ(hex("54 00 69 00 00 00"), bytes_of(cd->title, cd->title_length));
    EXPECT_EQ(nullptr, cd->author);
    EXPECT_EQ(0, cd->author_length);
    EXPECT_EQ(hex("44 00"), bytes_of(cd->description, cd->description_length));
    EXPECT_EQ(0x34, file.position());
}

TEST(AsfContentDescription, ReadWithoutMemoryForTheRecordFails) {
    OpenBytes file(five_strings);
    const AllocationFaults record(1);
    EXPECT_EQ(nullptr, asf_read_content_description(file.file(), nullptr));
}

TEST(AsfContentDescription, SizeIsThirtyFourAndTheFiveLengths) {
    _asf_content_description_t cd{};
    cd.title_length = 1;
    cd.author_length = 0x20;
    cd.copyright_length = 0x300;
    cd.description_length = 0x4000;
    cd.rating_length = 0x8000;
    StreamCapture log;
    EXPECT_EQ(0xC343u, asf_get_content_description_size(&cd));
    EXPECT_EQ("asf_get_content_description_size: c343 bytes\n", log.text());
}

TEST(AsfContentDescription, SizeOfTheLongestStringsIsNotCut) {
    _asf_content_description_t cd{};
    cd.title_length = cd.author_length = cd.copyright_length = cd.description_length = cd.rating_length =
        0xFFFF;
    EXPECT_EQ(34u + 5u * 65535u, asf_get_content_description_size(&cd));
}

TEST(AsfContentDescription, EmptyOneIsThirtyFourBytes) {
    const Cd cd(asf_init_content_description());
    cd->size = asf_get_content_description_size(cd.get());
    OpenBytes file("");
    EXPECT_EQ(1, asf_store_content_description(file.file(), cd.get()));
    EXPECT_EQ(hex("33 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C"
                  "22 00 00 00 00 00 00 00"
                  "00 00 00 00 00 00 00 00 00 00"),
              file.bytes());
}

TEST(AsfContentDescription, StoreWritesWhatWasRead) {
    OpenBytes from(five_strings);
    const Cd cd(asf_read_content_description(from.file(), nullptr));
    ASSERT_TRUE(cd);
    OpenBytes to("");
    EXPECT_EQ(1, asf_store_content_description(to.file(), cd.get()));
    EXPECT_EQ(five_strings, to.bytes());
}

TEST(AsfContentDescription, StoreWritesTheSizeFieldAsItStands) {
    const Cd cd(asf_init_content_description());
    cd->size = 0x0102030405060708;
    OpenBytes file("");
    (void)asf_store_content_description(file.file(), cd.get());
    EXPECT_EQ(hex("08 07 06 05 04 03 02 01"), file.bytes().substr(16, 8));
}

TEST(AsfContentDescription, StoreLogsWhereItWrites) {
    OpenBytes from(five_strings);
    const Cd cd(asf_read_content_description(from.file(), nullptr));
    ASSERT_TRUE(cd);
    OpenBytes to("");
    to.seek(0x40);
    StreamCapture log;
    (void)asf_store_content_description(to.file(), cd.get());
    EXPECT_EQ("[40] ContentDescription\n"
              "  Size = 0x34\n"
              "[40] {75b22633-668e-11cf-a6d9-00aa0062ce6c} (0x34 bytes)\n",
              log.text());
}

TEST(AsfContentDescription, StoreFailsWhenTheObjectHeaderCanNotBeWritten) {
    FIOFUNCSTRUCT nowhere{-1};
    const Cd cd(asf_init_content_description());
    EXPECT_EQ(0, asf_store_content_description(&nowhere, cd.get()));
}

} // namespace
} // namespace velmora
