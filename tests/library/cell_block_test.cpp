#include "library/cell_block.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

TEST(CellBlock, CellsAreDividedByTabsAndRowsByLineFeeds) {
    EXPECT_EQ("a\tb\nc\t\n", blockText({{"a", "b"}, {"c", ""}}));
    EXPECT_EQ(blockFromText("a\tb\nc\t\n"), (CellBlock{{"a", "b"}, {"c", ""}}));
    EXPECT_EQ("", blockText({}));
    EXPECT_EQ(blockFromText(""), CellBlock{});
}

TEST(CellBlock, TheLastRowNeedsNoLineFeed) {
    EXPECT_EQ(blockFromText("a\nb"), (CellBlock{{"a"}, {"b"}}));
    EXPECT_EQ(blockFromText("a\t"), (CellBlock{{"a", ""}}));
}

TEST(CellBlock, LineBreaksOfOtherSystemsDivideRows) {
    EXPECT_EQ(blockFromText("a\r\nb\rc\n"), (CellBlock{{"a"}, {"b"}, {"c"}}));
}

TEST(CellBlock, AnEmptyRowIsARowOfOneEmptyCell) {
    EXPECT_EQ(blockFromText("a\n\nb\n"), (CellBlock{{"a"}, {""}, {"b"}}));
}

TEST(CellBlock, WhatWouldDivideIsQuoted) {
    EXPECT_EQ("\"one\ntwo\"\t\"a\tb\"\t\"say \"\"so\"\"\"\n",
              blockText({{"one\ntwo", "a\tb", "say \"so\""}}));
    EXPECT_EQ(blockFromText("\"one\ntwo\"\t\"a\tb\"\t\"say \"\"so\"\"\"\n"),
              (CellBlock{{"one\ntwo", "a\tb", "say \"so\""}}));
}

TEST(CellBlock, QuotationMarksWithinATextAreText) {
    EXPECT_EQ(blockFromText("7\" single\t\"Heroes\" live\n"), (CellBlock{{"7\" single", "\"Heroes\" live"}}));
}

TEST(CellBlock, AQuotationMarkThatIsNeverClosedEndsWithTheText) {
    EXPECT_EQ(blockFromText("\"a\tb\n"), (CellBlock{{"a\tb\n"}}));
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
        EXPECT_EQ(withoutFormula(text), text);
        EXPECT_EQ(withFormula(text), text);
    }
}

TEST(CellBlock, HarmlessFormulasComeBackAsTheyWere) {
    EXPECT_EQ("=1", withFormula("'=1"));
    EXPECT_EQ("=1", withFormula("=1"));
    EXPECT_EQ("''=1", withoutFormula("'=1"));
    EXPECT_EQ("'=1", withFormula("''=1"));
    EXPECT_EQ(blockFromText("'=1\t'tis\n"), (CellBlock{{"=1", "'tis"}}));
}

} // namespace
} // namespace velmora
