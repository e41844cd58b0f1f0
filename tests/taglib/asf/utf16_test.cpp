#include "taglib/asf/detail/utf16.h"

#include "support/bytes.h"
#include "support/stream_capture.h"
#include "taglib/trace.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmora {
namespace {

using test::hex;
using test::to_hex;

/** What a target of CAPACITY bytes holds afterwards, when it was filled with '.' beforehand. */
std::string to_utf8(const std::string& source, std::size_t capacity) {
    std::string target(capacity + 2, '.');
    utf16le_to_utf8(source.data(), source.size(), target.data(), capacity);
    return target;
}

std::string to_utf16(const char* source, std::size_t capacity) {
    std::string target(capacity + 2, '.');
    utf8_to_utf16le(source, target.data(), capacity);
    return target;
}

TEST(Utf16ToUtf8, ConvertsEveryScript) {
    // "A", e acute, a Chinese character, a character outside the first plane.
    EXPECT_EQ(hex("41 C3 A9 E4 B8 AD F0 9F 98 80") + "......",
              to_utf8(hex("41 00 E9 00 2D 4E 3D D8 00 DE"), 14));
}

TEST(Utf16ToUtf8, StopsAtTheFirstZeroUnitNotAtAZeroByte) {
    EXPECT_EQ(hex("41 C4 80") + "...", to_utf8(hex("41 00 00 01 00 00 42 00"), 4));
}

TEST(Utf16ToUtf8, StopsAtTheEndOfATextWithoutTerminator) {
    EXPECT_EQ("AB....", to_utf8(hex("41 00 42 00"), 4));
}

TEST(Utf16ToUtf8, LeavesALastOddByteOut) {
    EXPECT_EQ("A.....", to_utf8(hex("41 00 42"), 4));
}

TEST(Utf16ToUtf8, WritesNoTerminator) {
    EXPECT_EQ("A.....", to_utf8(hex("41 00 00 00"), 4));
}

TEST(Utf16ToUtf8, FillsTheTargetToItsLastByte) {
    EXPECT_EQ("ABC..", to_utf8(hex("41 00 42 00 43 00 44 00"), 3));
}

TEST(Utf16ToUtf8, DoesNotSplitACharacterAtTheEndOfTheTarget) {
    EXPECT_EQ("A...", to_utf8(hex("41 00 E9 00"), 2));
}

TEST(Utf16ToUtf8, KeepsWhatStandsBeforeAnUnpairedSurrogate) {
    EXPECT_EQ("A.....", to_utf8(hex("41 00 3D D8 42 00"), 4));
    EXPECT_EQ("A.....", to_utf8(hex("41 00 00 DE 42 00"), 4));
    EXPECT_EQ("A.....", to_utf8(hex("41 00 3D D8"), 4));
}

TEST(Utf16ToUtf8, WorksAgainAfterABrokenText) {
    (void)to_utf8(hex("3D D8"), 4);
    EXPECT_EQ("A.....", to_utf8(hex("41 00"), 4));
}

TEST(Utf16ToUtf8, TakesAByteOrderMarkAsACharacter) {
    EXPECT_EQ(hex("EF BB BF") + "A..", to_utf8(hex("FF FE 41 00"), 4));
}

TEST(Utf16ToUtf8, ReadsUnalignedText) {
    const std::string bytes = hex("78 41 00 42 00");
    std::string target(4, '.');
    utf16le_to_utf8(bytes.data() + 1, 4, target.data(), 4);
    EXPECT_EQ("AB..", target);
}

TEST(Utf8ToUtf16, ConvertsEveryScript) {
    EXPECT_EQ(hex("41 00 E9 00 2D 4E 3D D8 00 DE") + "..",
              to_utf16("A\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x98\x80", 10));
}

TEST(Utf8ToUtf16, WritesNoTerminatorAndNoByteOrderMark) {
    EXPECT_EQ(hex("41 00") + "....", to_utf16("A", 4));
}

TEST(Utf8ToUtf16, KeepsWhatStandsBeforeAnInvalidByte) {
    EXPECT_EQ(hex("41 00") + "......", to_utf16("A\xFF\x42", 6));
    EXPECT_EQ(hex("41 00") + "......", to_utf16("A\xC3", 6));
    EXPECT_EQ(hex("41 00") + "......", to_utf16("A\xED\xA0\x80", 6));
}

TEST(Utf8ToUtf16, FillsTheTargetToItsLastByte) {
    EXPECT_EQ(hex("41 00 42 00") + "..", to_utf16("ABC", 4));
}

TEST(Utf8ToUtf16, DoesNotSplitASurrogatePairAtTheEndOfTheTarget) {
    EXPECT_EQ(hex("41 00") + "....", to_utf16("A\xF0\x9F\x98\x80", 4));
}

TEST(Utf8ToUtf16, LeavesTheTargetOfAnEmptyTextAlone) {
    EXPECT_EQ("....", to_utf16("", 2));
}

TEST(Utf16Length, CountsTheBytesBeforeTheFirstZeroUnit) {
    EXPECT_EQ(4u, utf16le_length("a\0b\0\0\0c\0", 8));
    EXPECT_EQ(4u, utf16le_length("a\0b\0c", 5));
    EXPECT_EQ(0u, utf16le_length("\0\0", 2));
    EXPECT_EQ(0u, utf16le_length("", 0));
    EXPECT_EQ(4u, utf16le_length("\0\1\0\1", 4));
}

TEST(Utf16TraceText, ShowsATextWithoutTerminatorAndNotMore) {
    test::StreamCapture log;
    DebugInfo("%S|", Utf16TraceText("A\0B\0C\0", 4).get());
    EXPECT_EQ("AB|", log.text());
}

TEST(Utf16TraceText, ShowsNothingForNoText) {
    test::StreamCapture log;
    DebugInfo("<%S>", Utf16TraceText(nullptr, 0).get());
    EXPECT_EQ("<>", log.text());
}

TEST(Utf16TraceText, FillsAMessageToItsEnd) {
    const std::string text = [] {
        std::string bytes;
        for (int i = 0; i < 1000; ++i) {
            bytes += std::string("x\0", 2);
        }
        return bytes;
    }();
    test::StreamCapture log;
    DebugInfo("%S", Utf16TraceText(text.data(), text.size()).get());
    EXPECT_EQ(std::string(511, 'x'), log.text());
}

} // namespace
} // namespace velmora
