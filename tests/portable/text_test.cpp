#include "portable/detail/text.h"

#include "support/bytes.h"

#include <gtest/gtest.h>

namespace velmora::portable {
namespace {

using test::hex;

std::vector<std::uint8_t> bytes(std::string_view digits) {
    const std::string text = hex(digits);
    return {text.begin(), text.end()};
}

TEST(Utf16, IsReadInTheOrderThatIsSaid) {
    EXPECT_EQ("H\xc3\xa4", utf8_from_utf16(bytes("4800 e400"), std::endian::little));
    EXPECT_EQ("H\xc3\xa4", utf8_from_utf16(bytes("0048 00e4"), std::endian::big));
}

TEST(Utf16, ObeysAByteOrderMarkMoreThanWhatIsSaid) {
    EXPECT_EQ("H", utf8_from_utf16(bytes("feff 0048"), std::endian::little));
    EXPECT_EQ("H", utf8_from_utf16(bytes("fffe 4800"), std::endian::little));
}

TEST(Utf16, EndsAtAZeroAndLeavesOutAnOddByte) {
    EXPECT_EQ("H", utf8_from_utf16(bytes("4800 0000 4900"), std::endian::little));
    EXPECT_EQ("H", utf8_from_utf16(bytes("4800 49"), std::endian::little));
    EXPECT_EQ("", utf8_from_utf16({}, std::endian::little));
}

TEST(Utf16, HasCharactersOfTwoUnits) {
    EXPECT_EQ("\xf0\x9f\x8e\xac", utf8_from_utf16(bytes("3cd8 acdf"), std::endian::little));
    EXPECT_EQ(bytes("3cd8 acdf"), utf16_from_utf8("\xf0\x9f\x8e\xac", std::endian::little));
}

TEST(Utf16, ShowsHalfACharacterAsDamaged) {
    EXPECT_EQ("\xef\xbf\xbdH", utf8_from_utf16(bytes("3cd8 4800"), std::endian::little));
    EXPECT_EQ("\xef\xbf\xbd", utf8_from_utf16(bytes("acdf"), std::endian::little));
    EXPECT_EQ("\xef\xbf\xbd", utf8_from_utf16(bytes("3cd8"), std::endian::little));
}

TEST(Utf16, IsWrittenWithoutMarkAndTerminator) {
    EXPECT_EQ(bytes("4800 e400"), utf16_from_utf8("H\xc3\xa4", std::endian::little));
    EXPECT_EQ(bytes("0048 00e4"), utf16_from_utf8("H\xc3\xa4", std::endian::big));
}

TEST(Latin1, IsReadAndWrittenWithAQuestionMarkForWhatItLacks) {
    EXPECT_EQ("\xc3\xa4", utf8_from_latin1(bytes("e4 00 41")));
    EXPECT_EQ(bytes("e4 3f"), latin1_from_utf8("\xc3\xa4\xe2\x82\xac"));
}

TEST(ValidUtf8, KeepsWhatIsWhole) {
    EXPECT_EQ("H\xc3\xa4\xf0\x9f\x8e\xac", valid_utf8("H\xc3\xa4\xf0\x9f\x8e\xac"));
    EXPECT_EQ("H", valid_utf8(std::string_view("H\0I", 3)));
}

TEST(ValidUtf8, ReplacesWhatIsDamaged) {
    EXPECT_EQ("\xef\xbf\xbdH", valid_utf8("\xe4H"));                               // Latin-1
    EXPECT_EQ("H\xef\xbf\xbd", valid_utf8("H\xc3"));                               // cut
    EXPECT_EQ("\xef\xbf\xbd\xef\xbf\xbd", valid_utf8("\xc0\x80"));                 // longer than needed
    EXPECT_EQ("\xef\xbf\xbd\xef\xbf\xbd\xef\xbf\xbd", valid_utf8("\xed\xa0\x80")); // a surrogate
    EXPECT_EQ("\xef\xbf\xbd", valid_utf8("\xff"));
}

TEST(CodePoints, AreCountedAsCharacters) {
    EXPECT_EQ(U"H\u00e4\U0001f3ac", code_points("H\xc3\xa4\xf0\x9f\x8e\xac"));
    EXPECT_EQ("H\xc3\xa4\xf0\x9f\x8e\xac", utf8_from_code_points(U"H\u00e4\U0001f3ac"));
}

TEST(Joined, HasEachValueOnce) {
    const std::vector<std::string> values = {"Drama", "", "Crime", "Drama"};
    EXPECT_EQ("Drama; Crime", joined(values));
    EXPECT_EQ("", joined({}));
}

} // namespace
} // namespace velmora::portable
