#include "portable/detail/date_text.h"

#include <gtest/gtest.h>

namespace velmora::portable {
namespace {

TEST(YearOf, IsFoundInEveryWayToWriteADate) {
    EXPECT_EQ(1994, year_of("1994"));
    EXPECT_EQ(1994, year_of("1994-05-03T10:00:00"));
    EXPECT_EQ(1994, year_of("19940503"));
    EXPECT_EQ(1994, year_of("3.5.1994"));
    EXPECT_EQ(94, year_of("94"));
}

TEST(YearOf, IsNothingWhereThereIsNone) {
    EXPECT_EQ(std::nullopt, year_of(""));
    EXPECT_EQ(std::nullopt, year_of("May"));
    EXPECT_EQ(std::nullopt, year_of("3/5/94"));
    EXPECT_EQ(std::nullopt, year_of("0000"));
}

TEST(DateWithYear, KeepsMonthAndDayOfTheSameYear) {
    EXPECT_EQ("1994-05-03", date_with_year("1994-05-03", 1994));
}

TEST(DateWithYear, IsTheYearAloneOtherwise) {
    EXPECT_EQ("1995", date_with_year("1994-05-03", 1995));
    EXPECT_EQ("0095", date_with_year("", 95));
}

} // namespace
} // namespace velmora::portable
