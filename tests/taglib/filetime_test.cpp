#include "taglib/filetime.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <limits>
#include <string>

namespace velmora {
namespace {

std::uint64_t filetime_of(std::int32_t seconds) {
    FILETIME time{0xEEEEEEEE, 0xEEEEEEEE};
    timet_to_filetime(seconds, &time);
    return filetime_value(time);
}

std::int32_t seconds_of(std::uint64_t value) {
    return filetime_to_timet(filetime_from_value(value));
}

TEST(FileTime, LiesAsTwoHalvesWithTheLowOneFirst) {
    const FILETIME time = filetime_from_value(0x0102030405060708);
    EXPECT_EQ(0x05060708u, time.low);
    EXPECT_EQ(0x01020304u, time.high);
    EXPECT_EQ(0x0102030405060708u, filetime_value(time));
    EXPECT_EQ(8u, sizeof(FILETIME));
    EXPECT_EQ(4u, offsetof(FILETIME, high));
}

TEST(FileTime, Of1970IsTheDistanceOfTheEpochs) {
    EXPECT_EQ(116'444'736'000'000'000u, filetime_of(0));
}

TEST(FileTime, GrowsByTenMillionASecond) {
    EXPECT_EQ(116'444'736'010'000'000u, filetime_of(1));
    EXPECT_EQ(116'444'735'990'000'000u, filetime_of(-1));
}

TEST(FileTime, HoldsTheWholeRangeOf32BitSeconds) {
    EXPECT_EQ(137'919'572'470'000'000u, filetime_of(std::numeric_limits<std::int32_t>::max()));
    EXPECT_EQ(94'969'899'520'000'000u, filetime_of(std::numeric_limits<std::int32_t>::min()));
}

TEST(SecondsOfFileTime, AreZeroUpToAndIncluding1970) {
    EXPECT_EQ(0, seconds_of(0));
    EXPECT_EQ(0, seconds_of(116'444'735'990'000'000));
    EXPECT_EQ(0, seconds_of(116'444'736'000'000'000));
}

TEST(SecondsOfFileTime, CountFrom1970) {
    EXPECT_EQ(1, seconds_of(116'444'736'010'000'000));
    EXPECT_EQ(2'147'483'647, seconds_of(137'919'572'470'000'000));
}

TEST(SecondsOfFileTime, DropPartsOfASecond) {
    EXPECT_EQ(0, seconds_of(116'444'736'009'999'999));
    EXPECT_EQ(1, seconds_of(116'444'736'019'999'999));
}

TEST(SecondsOfFileTime, AreCutTo32Bits) {
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), seconds_of(137'919'572'480'000'000));
    EXPECT_EQ(5, seconds_of(159'394'409'010'000'000)); // 2^32 + 5 seconds
}

TEST(SecondsOfFileTime, TakeTheValueAsUnsigned) {
    // 1,833,029,933,770 seconds after 1970, which is 427 x 2^32 - 921,101,622.
    EXPECT_EQ(-921'101'622, seconds_of(0xFFFFFFFFFFFFFFFF));
}

/** A zone without daylight saving, three hours east of Greenwich. */
class Id3TimeTest : public testing::Test {
protected:
    Id3TimeTest() { set_zone("TST-3"); }
    ~Id3TimeTest() override { set_zone("UTC0"); }

    static void set_zone(const char* zone) {
        ::setenv("TZ", zone, 1);
        ::tzset();
    }
};

TEST_F(Id3TimeTest, IsReadAsLocalTime) {
    EXPECT_EQ(1'209'896'430 - 3 * 3600, ParseID3Time("2008-05-04T:10:20:30"));
}

TEST_F(Id3TimeTest, AddsTheZoneWhenItIsGiven) {
    EXPECT_EQ(1'209'896'430 - 3 * 3600 + (2 * 60 + 30) * 60, ParseID3Time("2008-05-04T:10:20:30+2:30"));
    EXPECT_EQ(1'209'896'430 - 3 * 3600, ParseID3Time("2008-05-04T:10:20:30+0:0"));
}

TEST_F(Id3TimeTest, TakesAZoneOfHoursAlone) {
    EXPECT_EQ(1'209'896'430 - 3 * 3600 + 2 * 3600, ParseID3Time("2008-05-04T:10:20:30+2"));
}

TEST_F(Id3TimeTest, IsZeroWithFewerThanSixValues) {
    EXPECT_EQ(0, ParseID3Time(""));
    EXPECT_EQ(0, ParseID3Time("2008-05-04"));
    EXPECT_EQ(0, ParseID3Time("2008-05-04T:10:20"));
}

TEST_F(Id3TimeTest, IsZeroWithoutTheColonBehindTheT) {
    EXPECT_EQ(0, ParseID3Time("2008-05-04T10:20:30"));
}

TEST_F(Id3TimeTest, IsZeroBefore1900) {
    EXPECT_EQ(0, ParseID3Time("1899-05-04T:10:20:30"));
    EXPECT_EQ(0, ParseID3Time("0-05-04T:10:20:30"));
    EXPECT_EQ(2'085'978'496, ParseID3Time("1900-01-01T:03:00:00")); // -2,208,988,800 in 32 bits
}

TEST_F(Id3TimeTest, IsZeroForAMonthBelowOne) {
    EXPECT_EQ(0, ParseID3Time("2008-0-04T:10:20:30"));
    EXPECT_NE(0, ParseID3Time("2008-1-04T:10:20:30"));
}

TEST_F(Id3TimeTest, IsNegativeBefore1970) {
    EXPECT_EQ(-1, ParseID3Time("1970-01-01T:02:59:59"));
    EXPECT_EQ(-2'147'483'648, ParseID3Time("1901-12-13T:23:45:52"));
}

TEST_F(Id3TimeTest, IsCutTo32Bits) {
    EXPECT_EQ(-2'147'483'648, ParseID3Time("2038-01-19T:06:14:08"));
    EXPECT_EQ(1, ParseID3Time("2106-02-07T:09:28:17"));
}

TEST_F(Id3TimeTest, IsZeroForAYearBeyondTheCalendar) {
    EXPECT_EQ(0, ParseID3Time("2147483647-2147483647-01T:00:00:00"));
    EXPECT_EQ(0, ParseID3Time("2147483647-2147483647-01T:00:00:00+2:00"));
}

std::string formatted(std::int32_t seconds) {
    std::array<char, id3_time_capacity> text{};
    text[0] = 'u';
    EXPECT_EQ(text.data(), FormatID3Time(seconds, text.data()));
    return text.data();
}

TEST_F(Id3TimeTest, IsWrittenAsLocalTimeWithAZoneOfNothing) {
    EXPECT_EQ("2008-05-04T:10:20:30+0:0", formatted(1'209'896'430 - 3 * 3600));
}

TEST_F(Id3TimeTest, IsWrittenWithTwoDigitsButForTheYear) {
    EXPECT_EQ("1970-01-02T:03:04:05+0:0", formatted(24 * 3600 + 4 * 60 + 5));
}

TEST_F(Id3TimeTest, IsWrittenOverTheWholeRangeOf32BitSeconds) {
    EXPECT_EQ("1901-12-13T:23:45:52+0:0", formatted(std::numeric_limits<std::int32_t>::min()));
    EXPECT_EQ("2038-01-19T:06:14:07+0:0", formatted(std::numeric_limits<std::int32_t>::max()));
    EXPECT_EQ("1970-01-01T:02:59:59+0:0", formatted(-1));
}

TEST_F(Id3TimeTest, FollowsAZoneThatChangesWhileTheProgramRuns) {
    EXPECT_EQ("1970-01-02T:03:00:00+0:0", formatted(24 * 3600));
    ::setenv("TZ", "XYZ-5", 1); // and no tzset
    EXPECT_EQ("1970-01-02T:05:00:00+0:0", formatted(24 * 3600));
}

TEST_F(Id3TimeTest, LeavesTheTargetAloneForTheTimeZero) {
    EXPECT_EQ("u", formatted(0));
}

TEST_F(Id3TimeTest, TakesNoTarget) {
    EXPECT_EQ(nullptr, FormatID3Time(1, nullptr));
}

TEST(MulDiv, RoundsTheQuotient) {
    EXPECT_EQ(8, llmuldiv(10, 3, 4));
    EXPECT_EQ(7, llmuldiv(29, 1, 4));
    EXPECT_EQ(8, llmuldiv(30, 1, 4));
}

TEST(MulDiv, RoundsAsItsFormulaSaysForNegativeNumbers) {
    EXPECT_EQ(-7, llmuldiv(-10, 3, 4)); // (-30 + 2) / 4
    EXPECT_EQ(-7, llmuldiv(10, 3, -4)); // (30 - 2) / -4
    EXPECT_EQ(8, llmuldiv(-10, 3, -4));
}

TEST(MulDiv, ByZeroIsZero) {
    EXPECT_EQ(0, llmuldiv(10, 3, 0));
}

TEST(MulDiv, ByMinusOneIsTheNegatedProduct) {
    EXPECT_EQ(-30, llmuldiv(10, 3, -1));
    EXPECT_EQ(30, llmuldiv(-10, 3, -1));
    EXPECT_EQ(std::numeric_limits<std::int64_t>::min(),
              llmuldiv(std::numeric_limits<std::int64_t>::min(), 1, -1));
}

TEST(MulDiv, KeepsTheProductIn64Bits) {
    EXPECT_EQ(0, llmuldiv(std::int64_t{1} << 32, std::int64_t{1} << 32, 1));
    EXPECT_EQ(std::numeric_limits<std::int64_t>::min(), llmuldiv(std::int64_t{1} << 62, 2, 1));
    // 2^63 - 1 plus the half of 3 wraps to -2^63.
    EXPECT_EQ(-3'074'457'345'618'258'602, llmuldiv(std::numeric_limits<std::int64_t>::max(), 1, 3));
}

TEST(MulDiv, GoesBeyond32Bits) {
    EXPECT_EQ(20'000'000'000, llmuldiv(10'000'000'000, 6, 3));
}

} // namespace
} // namespace velmora
