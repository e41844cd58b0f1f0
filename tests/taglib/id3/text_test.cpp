#include "taglib/id3/text.h"

#include "id3_bytes.h"

#include "support/stream_capture.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cstring>

namespace velmora::test {
namespace {

const std::uint8_t* raw(const std::string& bytes) {
    return reinterpret_cast<const std::uint8_t*>(bytes.data());
}

std::uint32_t decode_syncsafe(const std::string& digits) {
    return syncsafe_to_long(raw(hex(digits)));
}

std::string encode_syncsafe(std::uint32_t value) {
    std::uint8_t bytes[4] = {0xEE, 0xEE, 0xEE, 0xEE};
    long_to_syncsafe(value, bytes);
    return to_hex({reinterpret_cast<const char*>(bytes), 4});
}

struct Loaded {
    std::int32_t consumed = 0;
    std::string text;
    std::string log;
};

Loaded load(const std::string& source, int encoding, std::int32_t capacity = 64) {
    char target[65] = {};
    std::memset(target, 'x', 64);
    StreamCapture log;
    Loaded loaded;
    loaded.consumed = id3_load_string(raw(source), static_cast<std::int32_t>(source.size()),
                                      static_cast<std::uint8_t>(encoding), target, capacity);
    loaded.text = target;
    loaded.log = log.text();
    return loaded;
}

std::int32_t measure(const std::string& source, int encoding) {
    return id3_string_size(raw(source), static_cast<std::int32_t>(source.size()),
                           static_cast<std::uint8_t>(encoding));
}

TEST(Id3Text, Be32ToLongReversesTheBytes) {
    EXPECT_EQ(0x04030201u, be32_to_long(0x01020304u));
    EXPECT_EQ(0xFF0000FEu, be32_to_long(0xFE0000FFu));
}

TEST(Id3Text, SyncsafeJoinsSevenBitsOfEachByte) {
    EXPECT_EQ(257u, decode_syncsafe("00 00 02 01"));
    EXPECT_EQ(0x0FFFFFFFu, decode_syncsafe("7F 7F 7F 7F"));
    EXPECT_EQ(0x00204081u, decode_syncsafe("01 01 01 01"));
}

TEST(Id3Text, SyncsafeIgnoresTheTopBitOfTheFirstThreeBytes) {
    EXPECT_EQ(0x00204081u, decode_syncsafe("81 81 81 01"));
}

TEST(Id3Text, SyncsafeTakesTheLastByteWhole) {
    EXPECT_EQ(128u, decode_syncsafe("00 00 00 80"));
    EXPECT_EQ(128u, decode_syncsafe("00 00 01 80"));
    EXPECT_EQ(0x0FFFFFFFu, decode_syncsafe("FF FF FF FF"));
    EXPECT_EQ(384u, decode_syncsafe("00 00 02 80"));
}

TEST(Id3Text, LongToSyncsafeWritesSevenBitsAByte) {
    EXPECT_EQ("00 00 02 01 ", encode_syncsafe(257));
    EXPECT_EQ("7f 7f 7f 7f ", encode_syncsafe(0x0FFFFFFF));
    EXPECT_EQ("01 01 01 01 ", encode_syncsafe(0x00204081));
    EXPECT_EQ("00 00 01 00 ", encode_syncsafe(128));
}

TEST(Id3Text, LongToSyncsafeDropsTheHighFourBits) {
    EXPECT_EQ("00 00 00 01 ", encode_syncsafe(0xF0000001u));
}

TEST(Id3Text, LoadByteTakesTheFirstByte) {
    std::uint8_t byte = 0x55;
    EXPECT_EQ(1, id3_load_byte(raw("\xFE!"), 2, &byte));
    EXPECT_EQ(0xFE, byte);
}

TEST(Id3Text, LoadByteWithoutSourceStoresZero) {
    std::uint8_t byte = 0x55;
    EXPECT_EQ(0, id3_load_byte(nullptr, 0, &byte));
    EXPECT_EQ(0, byte);
    byte = 0x55;
    EXPECT_EQ(0, id3_load_byte(nullptr, -3, &byte));
    EXPECT_EQ(0, byte);
}

TEST(Id3Text, LoadStringEndsBehindTheFirstZeroByte) {
    for (const int encoding : {0, 3}) {
        const Loaded loaded = load(bytes("ab\0cd"), encoding);
        EXPECT_EQ(3, loaded.consumed);
        EXPECT_EQ("ab", loaded.text);
        EXPECT_EQ("", loaded.log);
    }
}

TEST(Id3Text, LoadStringWithoutTerminatorTakesTheWholeSource) {
    const Loaded loaded = load("abcd", 0);
    EXPECT_EQ(4, loaded.consumed);
    EXPECT_EQ("abcd", loaded.text);
}

TEST(Id3Text, LoadStringDoesNotConvertLatin1) {
    EXPECT_EQ("caf\xE9", load("caf\xE9", 0).text);
    EXPECT_EQ("caf\xC3\xA9", load("caf\xC3\xA9", 3).text);
}

TEST(Id3Text, LoadStringStoresOneByteLessThanTheCapacityAndConsumesAll) {
    const Loaded loaded = load(bytes("abcdef\0gh"), 0, 4);
    EXPECT_EQ(7, loaded.consumed);
    EXPECT_EQ("abc", loaded.text);
}

TEST(Id3Text, LoadStringThatFillsTheCapacityExactly) {
    EXPECT_EQ("abc", load(bytes("abc\0"), 0, 4).text);
    EXPECT_EQ("", load("abc", 0, 1).text);
}

TEST(Id3Text, LoadStringWithoutCapacityStoresNothing) {
    const Loaded loaded = load("abc", 0, 0);
    EXPECT_EQ(3, loaded.consumed);
    EXPECT_EQ('x', loaded.text[0]);
}

TEST(Id3Text, LoadStringOfNothingIsEmpty) {
    const Loaded loaded = load("", 0);
    EXPECT_EQ(0, loaded.consumed);
    EXPECT_EQ("", loaded.text);
    char target[4] = "abc";
    EXPECT_EQ(0, id3_load_string(nullptr, -1, 0, target, sizeof target));
    EXPECT_STREQ("", target);
}

TEST(Id3Text, LoadStringOfUtf16IsEmptyLoggedAndMeasured) {
    for (const int encoding : {1, 2}) {
        const Loaded loaded = load(hex("FF FE 41 00 00 00 42 00"), encoding);
        EXPECT_EQ(6, loaded.consumed);
        EXPECT_EQ("", loaded.text);
        EXPECT_EQ("id3_load_string: encoding " + std::to_string(encoding) + " not handled\n", loaded.log);
    }
}

TEST(Id3Text, Utf16ZeroBytesThatAreNoUnitDoNotEndTheString) {
    EXPECT_EQ(8, load(hex("41 00 00 42 43 00 00 00"), 1).consumed);
}

TEST(Id3Text, Utf16WithoutTerminatorIsMeasuredInWholeUnits) {
    EXPECT_EQ(4, load(hex("41 00 42 00"), 1).consumed);
    EXPECT_EQ(4, load(hex("41 00 42 00 43"), 1).consumed);
    EXPECT_EQ(0, load(hex("41"), 1).consumed);
    EXPECT_EQ(0, load("", 2).consumed);
}

TEST(Id3Text, LoadStringOfUnknownEncodingIsEmptyLoggedAndConsumesNothing) {
    Loaded loaded = load("abc", 4);
    EXPECT_EQ(0, loaded.consumed);
    EXPECT_EQ("", loaded.text);
    EXPECT_EQ("id3_load_string: unknown encoding 4\n", loaded.log);
    loaded = load("abc", 255);
    EXPECT_EQ("id3_load_string: unknown encoding 255\n", loaded.log);
}

TEST(Id3Text, StringSizeIsWhatLoadStringConsumes) {
    EXPECT_EQ(3, measure(bytes("ab\0cd"), 0));
    EXPECT_EQ(5, measure("abcde", 0));
    EXPECT_EQ(3, measure(bytes("ab\0cd"), 3));
    EXPECT_EQ(6, measure(hex("FF FE 41 00 00 00 42 00"), 1));
    EXPECT_EQ(4, measure(hex("00 41 00 42 00"), 2));
    EXPECT_EQ(0, measure("", 0));
}

TEST(Id3Text, StringSizeLogsUnknownEncodingsOnly) {
    StreamCapture log;
    EXPECT_EQ(2, measure(hex("00 00 41 00"), 1));
    EXPECT_EQ("", log.text());
    EXPECT_EQ(0, measure("abc", 9));
    EXPECT_EQ("id3_strsize: unknown encoding 9\n", log.text());
}

TEST(Id3Text, StoreByteNeedsRoom) {
    std::uint8_t byte = 0;
    EXPECT_EQ(1, id3_store_byte(&byte, 1, 0x42));
    EXPECT_EQ(0x42, byte);
    EXPECT_EQ(0, id3_store_byte(&byte, 0, 0x43));
    EXPECT_EQ(0, id3_store_byte(&byte, -1, 0x43));
    EXPECT_EQ(0x42, byte);
}

/** Runs STORE on eight bytes of "#" and gives its result and the bytes. */
template <typename Store>
std::pair<std::int32_t, std::string> stored(Store store) {
    std::string target = "########";
    const std::int32_t count = store(reinterpret_cast<std::uint8_t*>(target.data()));
    return {count, target};
}

TEST(Id3Text, StoreBytesCopiesWithoutTerminator) {
    EXPECT_EQ(std::pair(3, std::string("abc#####")),
              stored([](std::uint8_t* t) { return id3_store_bytes(t, 8, "abcdef", 3); }));
}

TEST(Id3Text, StoreBytesOfLengthMinusOneTakesTheString) {
    EXPECT_EQ(std::pair(6, std::string("abcdef##")),
              stored([](std::uint8_t* t) { return id3_store_bytes(t, 8, "abcdef", -1); }));
}

TEST(Id3Text, StoreBytesIsCutToTheCapacity) {
    EXPECT_EQ(std::pair(2, std::string("ab######")),
              stored([](std::uint8_t* t) { return id3_store_bytes(t, 2, "abcdef", -1); }));
    EXPECT_EQ(std::pair(2, std::string("ab######")),
              stored([](std::uint8_t* t) { return id3_store_bytes(t, 2, "abcdef", 6); }));
    EXPECT_EQ(std::pair(1, std::string("a#######")),
              stored([](std::uint8_t* t) { return id3_store_bytes(t, 1, "abcdef", 6); }));
}

TEST(Id3Text, StoreBytesWithoutRoomOrLengthStoresNothing) {
    const std::pair nothing(0, std::string("########"));
    EXPECT_EQ(nothing, stored([](std::uint8_t* t) { return id3_store_bytes(t, 0, "abc", -1); }));
    EXPECT_EQ(nothing, stored([](std::uint8_t* t) { return id3_store_bytes(t, -5, "abc", -1); }));
    EXPECT_EQ(nothing, stored([](std::uint8_t* t) { return id3_store_bytes(t, 8, "abc", 0); }));
    EXPECT_EQ(nothing, stored([](std::uint8_t* t) { return id3_store_bytes(t, 8, "abc", -2); }));
}

TEST(Id3Text, StoreStringCopiesTheTerminator) {
    EXPECT_EQ(std::pair(4, bytes("abc\0####")),
              stored([](std::uint8_t* t) { return id3_store_string(t, 8, "abc"); }));
    EXPECT_EQ(std::pair(1, bytes("\0#######")),
              stored([](std::uint8_t* t) { return id3_store_string(t, 8, ""); }));
}

TEST(Id3Text, StoreStringThatIsTooLongEndsWithAZeroInPlaceOfItsLastCharacter) {
    EXPECT_EQ(std::pair(3, bytes("ab\0#####")),
              stored([](std::uint8_t* t) { return id3_store_string(t, 3, "abc"); }));
    EXPECT_EQ(std::pair(4, bytes("abc\0####")),
              stored([](std::uint8_t* t) { return id3_store_string(t, 4, "abc"); }));
    EXPECT_EQ(std::pair(1, bytes("\0#######")),
              stored([](std::uint8_t* t) { return id3_store_string(t, 1, "abc"); }));
}

TEST(Id3Text, StoreStringWithoutCapacityStoresNothing) {
    EXPECT_EQ(std::pair(0, std::string("########")),
              stored([](std::uint8_t* t) { return id3_store_string(t, 0, "abc"); }));
}

TEST(Id3Text, EqualIgnoringCaseFoldsAsciiLettersOnly) {
    EXPECT_TRUE(id3_equal_ignoring_case("Image/JPEG", "image/jpeg"));
    EXPECT_TRUE(id3_equal_ignoring_case("", ""));
    EXPECT_FALSE(id3_equal_ignoring_case("abc", "abcd"));
    EXPECT_FALSE(id3_equal_ignoring_case("abcd", "abc"));
    EXPECT_FALSE(id3_equal_ignoring_case("[", "{"));
    EXPECT_FALSE(id3_equal_ignoring_case("\xC9", "\xE9"));
}

TEST(Id3Text, EqualIgnoringCaseDoesNotFollowTheLocale) {
    // In a Turkish locale the lower case of I is another letter.
    const char* const locale = std::setlocale(LC_ALL, "tr_TR.UTF-8");
    EXPECT_TRUE(id3_equal_ignoring_case("IMAGE/JPEG", "image/jpeg"));
    if (locale) {
        std::setlocale(LC_ALL, "C");
    }
}

} // namespace
} // namespace velmora::test
