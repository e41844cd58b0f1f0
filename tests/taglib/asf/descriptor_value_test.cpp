#include "taglib/asf/descriptor_value.h"

#include "asf_bytes.h"

#include "support/allocation_faults.h"
#include "support/bytes.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace velmora {
namespace {

using namespace test;

/** The value that asf_store_value makes. */
std::string value_from(std::uint16_t type, const std::string& text) {
    std::uint8_t* slot = nullptr;
    const std::uint16_t length = asf_store_value(&slot, type, text.c_str());
    std::string value(reinterpret_cast<const char*>(slot), length);
    std::free(slot);
    return value;
}

/** What a zeroed text buffer of CAPACITY bytes holds afterwards. */
std::string text_from(std::uint16_t type, std::string value, std::size_t capacity = 40) {
    _asf_content_descriptor_t descriptor{};
    descriptor.type = type;
    descriptor.value_length = static_cast<std::uint16_t>(value.size());
    descriptor.value = reinterpret_cast<std::uint8_t*>(value.data());
    std::string text(capacity, '\0');
    asf_value_as_text(&descriptor, text.data(), capacity);
    text.resize(text.find_last_not_of('\0') + 1);
    return text;
}

TEST(AsfStoreValue, UnicodeTakesTwoBytesForEachTextByteAndForTheTerminator) {
    EXPECT_EQ(hex("41 00 62 00 00 00"), value_from(0, "Ab"));
}

TEST(AsfStoreValue, UnicodeTailBehindMultibyteCharactersIsZero) {
    EXPECT_EQ(hex("E9 00 00 00 00 00"), value_from(0, "\xC3\xA9"));
    EXPECT_EQ(hex("2D 4E 00 00 00 00 00 00"), value_from(0, "\xE4\xB8\xAD"));
    EXPECT_EQ(hex("3D D8 00 DE 00 00 00 00 00 00"), value_from(0, "\xF0\x9F\x98\x80"));
}

TEST(AsfStoreValue, UnicodeKeepsWhatStandsBeforeAnInvalidByte) {
    EXPECT_EQ(hex("41 00 00 00 00 00 00 00"), value_from(0, "A\xFF"
                                                            "B"));
}

TEST(AsfStoreValue, UnicodeOfThirtyTwoThousandBytesIsWhole) {
    const std::string value = value_from(0, std::string(32766, 'x'));
    ASSERT_EQ(65534u, value.size());
    EXPECT_EQ(hex("78 00 00 00"), value.substr(65530));
}

TEST(AsfStoreValue, LongerUnicodeIsCutWithItsTerminator) {
    for (const std::size_t length : {32767u, 32768u, 40000u, 200000u}) {
        const std::string value = value_from(0, std::string(length, 'x'));
        ASSERT_EQ(65534u, value.size()) << length;
        EXPECT_EQ(hex("78 00 00 00"), value.substr(65530)) << length;
    }
}

TEST(AsfStoreValue, BytearrayIsTheTextWithItsTerminator) {
    EXPECT_EQ(std::string("Ab\xC3\xA9\0", 5), value_from(1, "Ab\xC3\xA9"));
}

TEST(AsfStoreValue, LongerBytearrayIsCutWithItsTerminator) {
    EXPECT_EQ(std::string(65534, 'x') + '\0', value_from(1, std::string(65534, 'x')));
    EXPECT_EQ(std::string(65534, 'x') + '\0', value_from(1, std::string(70000, 'x')));
}

TEST(AsfStoreValue, BoolIsOneForAnIntegerThatIsNotZero) {
    EXPECT_EQ(hex("01 00 00 00"), value_from(2, "7"));
    EXPECT_EQ(hex("01 00 00 00"), value_from(2, "-1"));
    EXPECT_EQ(hex("00 00 00 00"), value_from(2, "0"));
    EXPECT_EQ(hex("00 00 00 00"), value_from(2, "true"));
}

TEST(AsfStoreValue, DwordIsTheTextsInteger) {
    EXPECT_EQ(hex("D8 07 00 00"), value_from(3, "2008"));
    EXPECT_EQ(hex("FE FF FF FF"), value_from(3, " -2 and more"));
    EXPECT_EQ(hex("00 00 00 00"), value_from(3, "none"));
}

TEST(AsfStoreValue, QwordHasAllSixtyFourBits) {
    EXPECT_EQ(hex("EF CD AB 89 67 45 23 01"), value_from(4, "81985529216486895"));
    EXPECT_EQ(hex("FF FF FF FF FF FF FF FF"), value_from(4, "-1"));
    EXPECT_EQ(hex("00 00 00 00 00 00 00 00"), value_from(4, "none"));
}

TEST(AsfStoreValue, WordIsTheLowHalfOfTheInteger) {
    EXPECT_EQ(hex("70 11"), value_from(5, "70000"));
    EXPECT_EQ(hex("FF FF"), value_from(5, "-1"));
}

TEST(AsfStoreValue, ReplacesTheSlotsBuffer) {
    auto* slot = static_cast<std::uint8_t*>(std::malloc(10));
    EXPECT_EQ(2, asf_store_value(&slot, 5, "258"));
    EXPECT_EQ(hex("02 01"), std::string(reinterpret_cast<char*>(slot), 2));
    std::free(slot);
}

TEST(AsfStoreValue, EmptyAndAbsentTextLeaveNoBuffer) {
    for (const char* const text : {"", static_cast<const char*>(nullptr)}) {
        for (std::uint16_t type = 0; type <= 5; ++type) {
            auto* slot = static_cast<std::uint8_t*>(std::malloc(10));
            EXPECT_EQ(0, asf_store_value(&slot, type, text)) << type;
            EXPECT_EQ(nullptr, slot) << type;
        }
    }
}

TEST(AsfStoreValue, UnknownTypeLeavesTheSlotAlone) {
    for (const char* const text : {"text", "", static_cast<const char*>(nullptr)}) {
        std::uint8_t buffer[1] = {42};
        std::uint8_t* slot = buffer;
        EXPECT_EQ(0, asf_store_value(&slot, 6, text));
        EXPECT_EQ(buffer, slot);
    }
}

TEST(AsfStoreValue, ExhaustedMemoryLeavesTheSlotAlone) {
    std::uint8_t buffer[1] = {42};
    std::uint8_t* slot = buffer;
    const AllocationFaults value(1);
    EXPECT_EQ(0, asf_store_value(&slot, 0, "text"));
    EXPECT_EQ(buffer, slot);
}

TEST(AsfValueAsText, Unicode) {
    EXPECT_EQ("A\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80",
              text_from(0, hex("41 00 E9 00 2D 4E 3D D8 00 DE 00 00")));
    EXPECT_EQ("A", text_from(0, hex("41 00 00 00 42 00")));
    EXPECT_EQ("AB", text_from(0, hex("41 00 42 00")));
    EXPECT_EQ("A", text_from(0, hex("41 00 3D D8")));
    EXPECT_EQ("", text_from(0, hex("00 00")));
    EXPECT_EQ("AB", text_from(0, hex("41 00 42 00 43 00"), 2));
}

TEST(AsfValueAsText, BytearrayIsCopiedUpToItsZeroByteOrItsEnd) {
    EXPECT_EQ("abc", text_from(1, std::string("abc\0def", 7)));
    EXPECT_EQ("abc", text_from(1, "abc"));
}

TEST(AsfValueAsText, BytearrayFillsTheBufferWithoutTerminator) {
    _asf_content_descriptor_t descriptor{};
    std::string value = "abcdef";
    descriptor.type = 1;
    descriptor.value_length = 6;
    descriptor.value = reinterpret_cast<std::uint8_t*>(value.data());
    char text[] = "......";
    asf_value_as_text(&descriptor, text, 4);
    EXPECT_STREQ("abcd..", text);
}

TEST(AsfValueAsText, BytearrayIsFollowedByZerosUpToTheCapacity) {
    _asf_content_descriptor_t descriptor{};
    std::string value = "ab";
    descriptor.type = 1;
    descriptor.value_length = 2;
    descriptor.value = reinterpret_cast<std::uint8_t*>(value.data());
    char text[] = "......";
    asf_value_as_text(&descriptor, text, 4);
    EXPECT_EQ(std::string("ab\0\0..", 6), std::string(text, 6));
}

TEST(AsfValueAsText, BoolAndDwordAreSigned) {
    for (const std::uint16_t type : {2, 3}) {
        EXPECT_EQ("2008", text_from(type, u32(2008)));
        EXPECT_EQ("-2", text_from(type, u32(0xFFFFFFFE)));
        EXPECT_EQ("1", text_from(type, hex("01 00 00 00 FF FF")));
    }
}

TEST(AsfValueAsText, QwordIsSigned) {
    EXPECT_EQ("81985529216486895", text_from(4, u64(0x0123456789ABCDEF)));
    EXPECT_EQ("-1", text_from(4, u64(0xFFFFFFFFFFFFFFFF)));
}

TEST(AsfValueAsText, WordIsUnsigned) {
    EXPECT_EQ("65535", text_from(5, hex("FF FF")));
    EXPECT_EQ("258", text_from(5, hex("02 01 FF FF")));
}

TEST(AsfValueAsText, NumbersShorterThanTheirTypeGiveNoText) {
    EXPECT_EQ("", text_from(2, hex("01 00 00")));
    EXPECT_EQ("", text_from(3, hex("01 00")));
    EXPECT_EQ("", text_from(4, hex("01 00 00 00 00 00 00")));
    EXPECT_EQ("", text_from(5, hex("01")));
}

TEST(AsfValueAsText, UnknownTypeGivesNoText) {
    EXPECT_EQ("", text_from(6, "text"));
}

TEST(AsfValueAsText, NumbersAreCutToTheCapacity) {
    EXPECT_EQ("200", text_from(3, u32(2008), 4));
    EXPECT_EQ("8198", text_from(4, u64(0x0123456789ABCDEF), 5));
    EXPECT_EQ("655", text_from(5, hex("FF FF"), 4));
}

TEST(AsfValueAsText, NothingIsWrittenWithoutAValue) {
    _asf_content_descriptor_t descriptor{};
    char text[] = "untouched";
    asf_value_as_text(&descriptor, text, sizeof text);
    EXPECT_STREQ("untouched", text);
}

TEST(AsfTextAsInteger, ReadsWhatTheTextBeginsWith) {
    EXPECT_EQ(1999, asf_text_as_integer("1999-12-31"));
    EXPECT_EQ(-5, asf_text_as_integer("  -5"));
    EXPECT_EQ(0, asf_text_as_integer("year"));
    EXPECT_EQ(0, asf_text_as_integer(""));
    EXPECT_EQ(1, asf_text_as_integer("4294967297"));
}

TEST(AsfValueAsNumber, TakesMissingBytesAsZero) {
    std::uint8_t bytes[] = {1, 2, 3, 4, 5, 6, 7, 8};
    _asf_content_descriptor_t descriptor{};
    descriptor.value = bytes;
    descriptor.type = asf_value_type::qword;
    descriptor.value_length = 3;
    EXPECT_EQ(0x030201u, asf_value_as_number(&descriptor));
    descriptor.value_length = 8;
    EXPECT_EQ(0x0807060504030201u, asf_value_as_number(&descriptor));
    descriptor.type = asf_value_type::dword;
    EXPECT_EQ(0x04030201u, asf_value_as_number(&descriptor));
    descriptor.type = asf_value_type::word;
    EXPECT_EQ(0x0201u, asf_value_as_number(&descriptor));
}

} // namespace
} // namespace velmora
