#include "library/detail/cell_block.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

TEST(CellBlock, CellsAreDividedByTabsAndRowsByLineFeeds) {
    EXPECT_EQ("a\tb\nc\t\n", blockText({{"a", "b"}, {"c", ""}}));
    EXPECT_EQ((CellBlock{{"a", "b"}, {"c", ""}}), blockFromText("a\tb\nc\t\n"));
    EXPECT_EQ("", blockText({}));
    EXPECT_EQ(CellBlock{}, blockFromText(""));
}

TEST(CellBlock, TheLastRowNeedsNoLineFeed) {
    EXPECT_EQ((CellBlock{{"a"}, {"b"}}), blockFromText("a\nb"));
    EXPECT_EQ((CellBlock{{"a", ""}}), blockFromText("a\t"));
}

TEST(CellBlock, LineBreaksOfOtherSystemsDivideRows) {
    EXPECT_EQ((CellBlock{{"a"}, {"b"}, {"c"}}), blockFromText("a\r\nb\rc\n"));
}

TEST(CellBlock, AnEmptyRowIsARowOfOneEmptyCell) {
    EXPECT_EQ((CellBlock{{"a"}, {""}, {"b"}}), blockFromText("a\n\nb\n"));
}

TEST(CellBlock, WhatWouldDivideIsQuoted) {
    EXPECT_EQ("\"one\ntwo\"\t\"a\tb\"\t\"say \"\"so\"\"\"\n",
              blockText({{"one\ntwo", "a\tb", "say \"so\""}}));
    EXPECT_EQ((CellBlock{{"one\ntwo", "a\tb", "say \"so\""}}),
              blockFromText("\"one\ntwo\"\t\"a\tb\"\t\"say \"\"so\"\"\"\n"));
}

TEST(CellBlock, QuotationMarksWithinATextAreText) {
    EXPECT_EQ((CellBlock{{"7\" single", "\"Heroes\" live"}}), blockFromText("7\" single\t\"Heroes\" live\n"));
}

TEST(CellBlock, AQuotationMarkThatIsNeverClosedEndsWithTheText) {
    EXPECT_EQ((CellBlock{{"a\tb\n"}}), blockFromText("\"a\tb\n"));
}

TEST(CellBlock, AFormulaIsMadeHarmless) {
    EXPECT_EQ("'=HYPERLINK(\"x\")", withoutFormula("=HYPERLINK(\"x\")"));
    EXPECT_EQ("'+1+cmd", withoutFormula("+1+cmd"));
    EXPECT_EQ("'-x", withoutFormula("-x"));
    EXPECT_EQ("'@SUM", withoutFormula("@SUM"));
    EXPECT_EQ("'\t=1", withoutFormula("\t=1"));
    EXPECT_EQ("'=1\ta=1\n", blockText({{"=1", "a=1"}}));
}

TEST(CellBlock, WhatIsNoFormulaStays) {
    for (const char* text : {"", "a", "a=b", "-5", "+44", "'tis", "1-2", "' =1"}) {
        EXPECT_EQ(text, withoutFormula(text));
        EXPECT_EQ(text, withFormula(text));
    }
}

TEST(CellBlock, HarmlessFormulasComeBackAsTheyWere) {
    EXPECT_EQ("=1", withFormula("'=1"));
    EXPECT_EQ("=1", withFormula("=1"));
    EXPECT_EQ("''=1", withoutFormula("'=1"));
    EXPECT_EQ("'=1", withFormula("''=1"));
    EXPECT_EQ((CellBlock{{"=1", "'tis"}}), blockFromText("'=1\t'tis\n"));
}

} // namespace
} // namespace velmora
