#include "taglib/id3/time_text.h"

#include "zone.h"

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <utility>

namespace velmora::test {
namespace {

constexpr std::uint64_t epoch_1970 = 116'444'736'000'000'000;
constexpr std::uint64_t second = 10'000'000;
constexpr std::uint64_t untouched = 0x0123456789ABCDEF;

std::pair<int, std::uint64_t> parse(const char* text) {
    FILETIME time = filetime_from_value(untouched);
    const int result = id3_parse_time(text, &time);
    return {result, filetime_value(time)};
}

std::string format(std::int64_t seconds) {
    char text[64];
    const FILETIME time = filetime_from_value(epoch_1970 + static_cast<std::uint64_t>(seconds) * second);
    const int length = id3_store_time(time, text, sizeof text);
    EXPECT_EQ(static_cast<int>(std::strlen(text)), length);
    return text;
}

TEST(Id3TimeText, YearIsReadAsYearsSince1900AndCutTo32BitSeconds) {
    const Zone zone("UTC");
    // Year 2008 stands for 3908, month 5 for June: 3908-06-04 10:20:30 is 61170718830 seconds, 1041176686 in
    // 32 bits.
    EXPECT_EQ(std::pair(1, epoch_1970 + 1'041'176'686 * second), parse("2008-05-04T:10:20:30"));
}

TEST(Id3TimeText, TextWithoutColonBehindTheTIsRefused) {
    EXPECT_EQ(std::pair(0, untouched), parse("2008-05-04T10:20:30"));
}

TEST(Id3TimeText, FewerThanSixNumbersAreRefused) {
    EXPECT_EQ(std::pair(0, untouched), parse(""));
    EXPECT_EQ(std::pair(0, untouched), parse("2008"));
    EXPECT_EQ(std::pair(0, untouched), parse("2008-05-04T:10:20"));
}

TEST(Id3TimeText, YearBelow1900IsRefused) {
    EXPECT_EQ(std::pair(0, untouched), parse("1899-05-04T:10:20:30"));
    EXPECT_EQ(1, parse("1900-05-04T:10:20:30").first);
}

TEST(Id3TimeText, MonthBelow1IsRefused) {
    EXPECT_EQ(std::pair(0, untouched), parse("2008-00-04T:10:20:30"));
    EXPECT_EQ(1, parse("2008-01-04T:10:20:30").first);
}

TEST(Id3TimeText, WhatIsWrittenIsNotReadBack) {
    EXPECT_EQ(std::pair(0, untouched), parse("108-04-04T:10:20:30+0:0"));
}

TEST(Id3TimeText, ZoneIsNotUsed) {
    const Zone zone("UTC");
    const auto without = parse("2008-05-04T:10:20:30");
    EXPECT_EQ(without, parse("2008-05-04T:10:20:30+5:30"));
    EXPECT_EQ(without, parse("2008-05-04T:10:20:30+2147483647:2147483647"));
}

TEST(Id3TimeText, TimeIsLocal) {
    std::uint64_t in_utc = 0;
    {
        const Zone zone("UTC");
        in_utc = parse("2008-05-04T:10:20:30").second;
    }
    const Zone zone("XXX-2"); // two hours east
    EXPECT_EQ(in_utc - 7200 * second, parse("2008-05-04T:10:20:30").second);
}

TEST(Id3TimeText, NumbersThatNoCalendarHasAreHarmless) {
    const Zone zone("UTC");
    EXPECT_EQ(1, parse("2147483647-2147483647-2147483647T:2147483647:2147483647:2147483647+1:1").first);
}

TEST(Id3TimeText, IsWrittenWithYearsSince1900AndMonthsFrom0) {
    const Zone zone("UTC");
    EXPECT_EQ("108-04-04T:10:20:30+0:0", format(1'209'896'430)); // 2008-05-04 10:20:30
    EXPECT_EQ("70-00-01T:00:00:01+0:0", format(1));
    EXPECT_EQ("138-00-19T:03:14:07+0:0", format(2'147'483'647));
}

TEST(Id3TimeText, IsWrittenInLocalTimeWithTheZone) {
    {
        const Zone zone("XXX-5:30");
        EXPECT_EQ("108-04-04T:15:50:30+5:30", format(1'209'896'430));
    }
    const Zone zone("XXX3:30"); // west
    EXPECT_EQ("108-04-04T:06:50:30+-3:-30", format(1'209'896'430));
}

TEST(Id3TimeText, TimeUpTo1970IsWrittenAs1970) {
    const Zone zone("UTC");
    char text[64];
    id3_store_time(filetime_from_value(5), text, sizeof text);
    EXPECT_STREQ("70-00-01T:00:00:00+0:0", text);
}

TEST(Id3TimeText, TooLittleCapacityCutsTheTextAndGivesItsLength) {
    const Zone zone("UTC");
    char text[8];
    EXPECT_EQ(23,
              id3_store_time(filetime_from_value(epoch_1970 + 1'209'896'430 * second), text, sizeof text));
    EXPECT_STREQ("108-04-", text);
}

} // namespace
} // namespace velmora::test
