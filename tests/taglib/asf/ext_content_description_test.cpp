#include "taglib/asf/ext_content_description.h"

#include "asf_bytes.h"
#include "owned_ecd.h"

#include "support/allocation_faults.h"
#include "support/bytes.h"
#include "support/stream_capture.h"
#include "taglib/asf/descriptor_value.h"
#include "taglib/asf/guids.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace test;

/** Read from bytes. */
Ecd ecd_of(const std::string& bytes) {
    OpenBytes file(bytes);
    StreamCapture quiet;
    return Ecd(asf_read_ext_content_description(file.file(), nullptr));
}

Ecd ecd_with(std::initializer_list<std::string> descriptors) {
    return ecd_of(test::ext_content_description(descriptors));
}

/** The object as it is stored now, its size made true. */
std::string stored(_asf_ext_content_description_t* ecd) {
    OpenBytes file("");
    StreamCapture quiet;
    ecd->size = asf_get_ext_content_description_size(ecd);
    EXPECT_EQ(1, asf_store_ext_content_description(file.file(), ecd));
    return file.bytes();
}

/** "A" = "x", "B" = dword 258. */
const std::string two_descriptors = hex("40 A4 D0 D2 07 E3 D2 11 97 F0 00 A0 C9 5E A8 50"
                                        "36 00 00 00 00 00 00 00"
                                        "02 00"
                                        "04 00 41 00 00 00 00 00 04 00 78 00 00 00"
                                        "04 00 42 00 00 00 03 00 04 00 02 01 00 00");

TEST(AsfExtContentDescription, InitGivesAnEmptyRecordWithTheGuid) {
    const Ecd ecd(asf_init_ext_content_description());
    ASSERT_TRUE(ecd);
    EXPECT_EQ(ASF_ExtendedContentDescription, ecd->guid);
    EXPECT_EQ(0u, ecd->size);
    EXPECT_EQ(0, ecd->count);
    EXPECT_EQ(nullptr, ecd->descriptors);
}

TEST(AsfExtContentDescription, FreeTakesNull) {
    asf_free_ext_content_description(nullptr);
}

TEST(AsfExtContentDescription, ReadTakesTheDescriptorsInFileOrder) {
    OpenBytes file(two_descriptors + "next");
    const Ecd ecd(asf_read_ext_content_description(file.file(), nullptr));
    ASSERT_TRUE(ecd);
    EXPECT_EQ(ASF_ExtendedContentDescription, ecd->guid);
    EXPECT_EQ(0x36u, ecd->size);
    ASSERT_EQ(2, ecd->count);
    EXPECT_EQ(0, ecd->descriptors[0]->type);
    EXPECT_EQ(3, ecd->descriptors[1]->type);
    EXPECT_EQ(0x36, file.position());
}

TEST(AsfExtContentDescription, ReadFillsAGivenRecord) {
    OpenBytes file(two_descriptors);
    const Ecd ecd(asf_init_ext_content_description());
    EXPECT_EQ(ecd.get(), asf_read_ext_content_description(file.file(), ecd.get()));
    EXPECT_EQ(2, ecd->count);
}

TEST(AsfExtContentDescription, ReadLogsTheWholeObject) {
    OpenBytes file("..." + two_descriptors);
    file.seek(3);
    StreamCapture log;
    const Ecd ecd(asf_read_ext_content_description(file.file(), nullptr));
    EXPECT_EQ("[3] {d2d0a440-e307-11d2-97f0-00a0c95ea850} (0x36 bytes)\n"
              "[3] ExtendedContentDescription\n"
              "  Size = 0x36\n"
              "  NumEntries = 2\n"
              "[1d] A\n"
              "  unicode: x\n"
              "[2b] B\n"
              "  dword: 0x102 (258)\n",
              log.text());
}

TEST(AsfExtContentDescription, ReadEndsWhereTheDeclaredSizeSays) {
    OpenBytes file(object_of_size(ecd_guid, 80, u16(1) + text_descriptor("A", "x")) + std::string(100, '.'));
    const Ecd ecd(asf_read_ext_content_description(file.file(), nullptr));
    ASSERT_TRUE(ecd);
    EXPECT_EQ(80, file.position());
}

TEST(AsfExtContentDescription, ReadTakesAnObjectWithoutDescriptors) {
    const Ecd ecd = ecd_with({});
    ASSERT_TRUE(ecd);
    EXPECT_EQ(0, ecd->count);
}

TEST(AsfExtContentDescription, ReadFailsWithoutAnObjectHeader) {
    OpenBytes file(two_descriptors.substr(0, 15));
    EXPECT_EQ(nullptr, asf_read_ext_content_description(file.file(), nullptr));
}

TEST(AsfExtContentDescription, ReadFailsWhenADescriptorRunsPastTheObject) {
    const std::string body = u16(1) + text_descriptor("A", "x");
    for (std::uint64_t size = 26; size < 24 + body.size(); ++size) {
        OpenBytes file(object_of_size(ecd_guid, size, body) + std::string(100, '\0'));
        EXPECT_EQ(nullptr, asf_read_ext_content_description(file.file(), nullptr)) << size;
    }
}

TEST(AsfExtContentDescription, ReadFailsWhenADescriptorRunsPastTheFile) {
    for (std::size_t length = 26; length < two_descriptors.size(); ++length) {
        OpenBytes file(two_descriptors.substr(0, length));
        EXPECT_EQ(nullptr, asf_read_ext_content_description(file.file(), nullptr)) << length;
    }
}

TEST(AsfExtContentDescription, ReadThatFailsLeavesAGivenRecordWithoutDescriptors) {
    OpenBytes file(two_descriptors.substr(0, two_descriptors.size() - 1));
    _asf_ext_content_description_t ecd{};
    EXPECT_EQ(nullptr, asf_read_ext_content_description(file.file(), &ecd));
    EXPECT_EQ(0, ecd.count);
    EXPECT_EQ(nullptr, ecd.descriptors);
}

TEST(AsfExtContentDescription, ReadFailsOnASizeThatLeadsNowhere) {
    OpenBytes file(object_of_size(ecd_guid, 0x8000000000000000, u16(0)));
    EXPECT_EQ(nullptr, asf_read_ext_content_description(file.file(), nullptr));
}

TEST(AsfExtContentDescription, ReadFailsWithoutMemory) {
    int allocations = 0;
    {
        const AllocationFaults none;
        const Ecd ecd = ecd_of(two_descriptors);
        allocations = none.count();
    }
    for (int nth = 1; nth <= allocations; ++nth) {
        OpenBytes file(two_descriptors);
        const AllocationFaults allocation(nth);
        EXPECT_EQ(nullptr, asf_read_ext_content_description(file.file(), nullptr)) << nth;
    }
}

TEST(AsfExtContentDescription, ALyingCountCostsNoMoreThanTheFileHas) {
    OpenBytes file(object_of_size(ecd_guid, 26, u16(0xFFFF)) + std::string(100000, '\xFF'));
    const AllocationFaults none;
    EXPECT_EQ(nullptr, asf_read_ext_content_description(file.file(), nullptr));
    EXPECT_LT(none.largest(), 256u);
    EXPECT_LT(none.count(), 4);
}

TEST(AsfExtContentDescription, SizeIsTwentySixAndTheDescriptors) {
    const Ecd ecd = ecd_of(two_descriptors);
    ecd->size = 0;
    StreamCapture log;
    EXPECT_EQ(0x36u, asf_get_ext_content_description_size(ecd.get()));
    EXPECT_EQ("asf_get_ext_content_description_size: 36 bytes\n", log.text());
}

TEST(AsfExtContentDescription, StoreWritesWhatWasRead) {
    const Ecd ecd = ecd_of(two_descriptors);
    OpenBytes file("");
    EXPECT_EQ(1, asf_store_ext_content_description(file.file(), ecd.get()));
    EXPECT_EQ(two_descriptors, file.bytes());
}

TEST(AsfExtContentDescription, StoreLogsWhereItWrites) {
    const Ecd ecd = ecd_of(two_descriptors);
    OpenBytes file("");
    file.seek(0x40);
    StreamCapture log;
    (void)asf_store_ext_content_description(file.file(), ecd.get());
    EXPECT_EQ("[40] ExtendedContentDescription\n"
              "  Size = 0x36\n"
              "[40] {d2d0a440-e307-11d2-97f0-00a0c95ea850} (0x36 bytes)\n"
              "[5a] A\n"
              "[68] B\n",
              log.text());
}

TEST(AsfExtContentDescription, StoreFailsWhenTheObjectHeaderCanNotBeWritten) {
    FIOFUNCSTRUCT nowhere{-1};
    const Ecd ecd = ecd_of(two_descriptors);
    EXPECT_EQ(0, asf_store_ext_content_description(&nowhere, ecd.get()));
}

TEST(AsfInsertDescriptor, AppendsAndAddsToCountAndSize) {
    const Ecd ecd = ecd_of(two_descriptors);
    _asf_content_descriptor_t* const added = asf_init_content_descriptor();
    added->name_length = asf_store_value(&added->name, 0, "Name");
    added->value_length = asf_store_value(&added->value, 5, "1");
    EXPECT_EQ(1, asf_insert_content_descriptor(ecd.get(), added));
    ASSERT_EQ(3, ecd->count);
    EXPECT_EQ(added, ecd->descriptors[2]);
    EXPECT_EQ(0x36u + 6 + 10 + 2, ecd->size);
}

TEST(AsfInsertDescriptor, FailsWithoutMemory) {
    const Ecd ecd = ecd_of(two_descriptors);
    _asf_content_descriptor_t added{};
    const AllocationFaults array(1);
    EXPECT_EQ(0, asf_insert_content_descriptor(ecd.get(), &added));
    EXPECT_EQ(2, ecd->count);
    EXPECT_EQ(0x36u, ecd->size);
}

TEST(AsfInsertDescriptor, FailsWhenTheCountIsExhausted) {
    std::string descriptors;
    for (int i = 0; i < 0xFFFF; ++i) {
        descriptors += hex("00 00 00 00 00 00");
    }
    const Ecd ecd = ecd_of(test::object(ecd_guid, u16(0xFFFF) + descriptors));
    ASSERT_TRUE(ecd);
    ASSERT_EQ(0xFFFF, ecd->count);
    _asf_content_descriptor_t added{};
    EXPECT_EQ(0, asf_insert_content_descriptor(ecd.get(), &added));
    EXPECT_EQ(0xFFFF, ecd->count);
    EXPECT_EQ(0, asf_set_content_descriptor_str(ecd.get(), "Name", 0, "text"));
    EXPECT_EQ(0xFFFF, ecd->count);
}

TEST(AsfFindDescriptor, TheFirstMatchWins) {
    const Ecd ecd =
        ecd_with({text_descriptor("A", "1"), text_descriptor("B", "2"), text_descriptor("B", "3")});
    EXPECT_EQ(ecd->descriptors[1], asf_find_content_descriptor(ecd.get(), "B"));
}

TEST(AsfFindDescriptor, GivesNoneForANameThatIsNotThere) {
    const Ecd ecd = ecd_with({text_descriptor("Name", "1")});
    EXPECT_EQ(nullptr, asf_find_content_descriptor(ecd.get(), "Nam"));
    EXPECT_EQ(nullptr, asf_find_content_descriptor(ecd.get(), "Names"));
    EXPECT_EQ(nullptr, asf_find_content_descriptor(ecd.get(), "name"));
}

TEST(AsfFindDescriptor, AStoredNameWithoutTerminatorNeverMatches) {
    const Ecd ecd = ecd_with({u16(2) + wide("A") + u16(0) + u16(0)});
    ASSERT_TRUE(ecd);
    EXPECT_EQ(nullptr, asf_find_content_descriptor(ecd.get(), "A"));
}

TEST(AsfFindDescriptor, AStoredNameWithBytesBehindItsTerminatorMatches) {
    const Ecd ecd = ecd_with({u16(7) + hex("41 00 00 00 FF FF FF") + u16(0) + u16(0)});
    ASSERT_TRUE(ecd);
    EXPECT_NE(nullptr, asf_find_content_descriptor(ecd.get(), "A"));
}

TEST(AsfFindDescriptor, ADescriptorWithoutANameMatchesNothing) {
    const Ecd ecd = ecd_with({u16(0) + u16(0) + u16(0)});
    ASSERT_TRUE(ecd);
    EXPECT_EQ(nullptr, asf_find_content_descriptor(ecd.get(), ""));
    EXPECT_EQ(nullptr, asf_find_content_descriptor(ecd.get(), "A"));
}

TEST(AsfFindDescriptor, FindsNamesInEveryScript) {
    const Ecd ecd = ecd_with({u16(8) + hex("E9 00 2D 4E") + hex("3D D8") + hex("00 00") + u16(0) + u16(0),
                              u16(6) + hex("E9 00 2D 4E 00 00") + u16(3) + u16(0)});
    ASSERT_TRUE(ecd);
    EXPECT_EQ(ecd->descriptors[1], asf_find_content_descriptor(ecd.get(), "\xC3\xA9\xE4\xB8\xAD"));
}

TEST(AsfFindDescriptor, ANameOfAHundredAndTwentyEightUnitsIsFound) {
    const std::string name(128, 'n');
    const Ecd ecd = ecd_with({text_descriptor(name, "1")});
    EXPECT_NE(nullptr, asf_find_content_descriptor(ecd.get(), name.c_str()));
}

TEST(AsfFindDescriptor, ALongerNameIsLookedForByItsFirstHundredAndTwentyEightUnits) {
    const std::string longer(129, 'n');
    const Ecd ecd = ecd_with({text_descriptor(longer, "1"), text_descriptor(std::string(128, 'n'), "2")});
    EXPECT_EQ(ecd->descriptors[1], asf_find_content_descriptor(ecd.get(), longer.c_str()));
}

TEST(AsfRemoveDescriptor, ClosesTheGap) {
    const Ecd ecd =
        ecd_with({text_descriptor("A", "1"), text_descriptor("B", "2"), text_descriptor("C", "3")});
    const std::uint64_t size = ecd->size;
    EXPECT_EQ(1, asf_remove_content_descriptor(ecd.get(), "B"));
    EXPECT_EQ(2, ecd->count);
    EXPECT_EQ(size, ecd->size);
    EXPECT_EQ(test::ext_content_description({text_descriptor("A", "1"), text_descriptor("C", "3")}),
              stored(ecd.get()));
}

TEST(AsfRemoveDescriptor, RemovesTheFirstOfTwo) {
    const Ecd ecd = ecd_with({text_descriptor("A", "1"), text_descriptor("A", "2")});
    EXPECT_EQ(1, asf_remove_content_descriptor(ecd.get(), "A"));
    EXPECT_EQ(test::ext_content_description({text_descriptor("A", "2")}), stored(ecd.get()));
}

TEST(AsfRemoveDescriptor, RemovesTheLast) {
    const Ecd ecd = ecd_with({text_descriptor("A", "1")});
    EXPECT_EQ(1, asf_remove_content_descriptor(ecd.get(), "A"));
    EXPECT_EQ(test::ext_content_description({}), stored(ecd.get()));
}

TEST(AsfRemoveDescriptor, OfANameThatIsNotThereChangesNothing) {
    const Ecd ecd = ecd_of(two_descriptors);
    EXPECT_EQ(0, asf_remove_content_descriptor(ecd.get(), "C"));
    EXPECT_EQ(two_descriptors, stored(ecd.get()));
}

TEST(AsfGetDescriptor, WritesTheTextAndReturnsTheValuesLength) {
    const Ecd ecd = ecd_of(two_descriptors);
    char text[10] = {};
    EXPECT_EQ(4, asf_get_content_descriptor_str(ecd.get(), "A", text, sizeof text));
    EXPECT_STREQ("x", text);
    EXPECT_EQ(4, asf_get_content_descriptor_str(ecd.get(), "B", text, sizeof text));
    EXPECT_STREQ("258", text);
}

TEST(AsfGetDescriptor, OfANameThatIsNotThereIsZero) {
    const Ecd ecd = ecd_of(two_descriptors);
    char text[] = "untouched";
    EXPECT_EQ(0, asf_get_content_descriptor_str(ecd.get(), "C", text, sizeof text));
    EXPECT_STREQ("untouched", text);
}

TEST(AsfGetDescriptor, WithoutAValueIsZero) {
    const Ecd ecd = ecd_with({test::descriptor("A", 0, "")});
    char text[] = "untouched";
    EXPECT_EQ(0, asf_get_content_descriptor_str(ecd.get(), "A", text, sizeof text));
    EXPECT_STREQ("untouched", text);
}

TEST(AsfGetDescriptor, OfAValueThatMakesNoTextStillReturnsItsLength) {
    const Ecd ecd =
        ecd_with({test::descriptor("short", 3, hex("01 02")), test::descriptor("unknown", 9, "abc"),
                  test::descriptor("zero", 0, hex("00 00"))});
    char text[10] = {};
    EXPECT_EQ(2, asf_get_content_descriptor_str(ecd.get(), "short", text, sizeof text));
    EXPECT_EQ(3, asf_get_content_descriptor_str(ecd.get(), "unknown", text, sizeof text));
    EXPECT_EQ(2, asf_get_content_descriptor_str(ecd.get(), "zero", text, sizeof text));
    EXPECT_STREQ("", text);
}

TEST(AsfSetDescriptor, ReplacesValueAndTypeInPlace) {
    const Ecd ecd = ecd_with({text_descriptor("A", "1"), text_descriptor("B", "2")});
    EXPECT_EQ(1, asf_set_content_descriptor_str(ecd.get(), "A", 5, "258"));
    EXPECT_EQ(
        test::ext_content_description({test::descriptor("A", 5, hex("02 01")), text_descriptor("B", "2")}),
        stored(ecd.get()));
}

TEST(AsfSetDescriptor, AppendsANewName) {
    const Ecd ecd = ecd_with({text_descriptor("A", "1")});
    EXPECT_EQ(1, asf_set_content_descriptor_str(ecd.get(), "WM/Year", 3, "2008"));
    EXPECT_EQ(test::ext_content_description(
                  {text_descriptor("A", "1"), test::descriptor("WM/Year", 3, hex("D8 07 00 00"))}),
              stored(ecd.get()));
}

TEST(AsfSetDescriptor, RewritesTheNameOfAnExistingOne) {
    const Ecd ecd = ecd_with({u16(7) + hex("41 00 00 00 FF FF FF") + u16(0) + u16(0)});
    EXPECT_EQ(1, asf_set_content_descriptor_str(ecd.get(), "A", 0, "x"));
    EXPECT_EQ(test::ext_content_description({text_descriptor("A", "x")}), stored(ecd.get()));
}

TEST(AsfSetDescriptor, EmptyTextLeavesTheDescriptorWithoutAValue) {
    const Ecd ecd = ecd_with({text_descriptor("A", "1")});
    EXPECT_EQ(1, asf_set_content_descriptor_str(ecd.get(), "A", 0, ""));
    EXPECT_EQ(test::ext_content_description({test::descriptor("A", 0, "")}), stored(ecd.get()));
    EXPECT_EQ(nullptr, ecd->descriptors[0]->value);
}

TEST(AsfSetDescriptor, UnknownTypeLeavesNothingToStore) {
    const Ecd ecd = ecd_with({text_descriptor("A", "1")});
    EXPECT_EQ(1, asf_set_content_descriptor_str(ecd.get(), "A", 9, "text"));
    EXPECT_EQ(test::ext_content_description({test::descriptor("A", 9, "")}), stored(ecd.get()));
}

TEST(AsfSetDescriptor, ANameOfMultibyteCharactersIsFoundAgain) {
    const Ecd ecd = ecd_with({});
    EXPECT_EQ(1, asf_set_content_descriptor_str(ecd.get(), "\xC3\xA9", 5, "1"));
    EXPECT_EQ(1, asf_set_content_descriptor_str(ecd.get(), "\xC3\xA9", 5, "2"));
    EXPECT_EQ(
        test::ext_content_description({u16(6) + hex("E9 00 00 00 00 00") + u16(5) + u16(2) + hex("02 00")}),
        stored(ecd.get()));
}

TEST(AsfSetDescriptor, ANameLongerThanAHundredAndTwentyEightUnitsIsAppendedEachTime) {
    const Ecd ecd = ecd_with({});
    const std::string name(129, 'n');
    EXPECT_EQ(1, asf_set_content_descriptor_str(ecd.get(), name.c_str(), 5, "1"));
    EXPECT_EQ(1, asf_set_content_descriptor_str(ecd.get(), name.c_str(), 5, "1"));
    EXPECT_EQ(2, ecd->count);
}

TEST(AsfSetDescriptor, WithoutMemoryForTheDescriptorFails) {
    for (int nth = 1; nth <= 2; ++nth) {
        const Ecd ecd(asf_init_ext_content_description());
        const AllocationFaults allocation(nth);
        EXPECT_EQ(0, asf_set_content_descriptor_str(ecd.get(), "A", 0, "x")) << nth;
        EXPECT_EQ(0, ecd->count) << nth;
    }
}

} // namespace
} // namespace velmora
