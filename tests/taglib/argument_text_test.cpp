#include "taglib/argument_text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <string>

namespace velmora {
namespace {

/** An owned string, as strxchg takes it. */
class Slot {
public:
    explicit Slot(const char* text) : text_(text ? ::strdup(text) : nullptr) {}
    ~Slot() { std::free(text_); }
    Slot(const Slot&) = delete;
    Slot& operator=(const Slot&) = delete;

    char** operator*() { return &text_; }
    [[nodiscard]] char* text() const { return text_; }

private:
    char* text_;
};

TEST(StrXchg, StoresACopyAndReturnsIt) {
    char text[] = "new";
    Slot slot("old");
    char* const result = strxchg(*slot, text);
    text[0] = 'X';
    EXPECT_STREQ("new", slot.text());
    EXPECT_EQ(slot.text(), result);
}

TEST(StrXchg, FillsAnEmptySlot) {
    Slot slot(nullptr);
    strxchg(*slot, "new");
    EXPECT_STREQ("new", slot.text());
}

TEST(StrXchg, EmptiesTheSlotForAMissingText) {
    Slot slot("old");
    EXPECT_EQ(nullptr, strxchg(*slot, nullptr));
    EXPECT_EQ(nullptr, slot.text());
}

TEST(StrXchg, EmptiesTheSlotForAnEmptyText) {
    Slot slot("old");
    EXPECT_EQ(nullptr, strxchg(*slot, ""));
    EXPECT_EQ(nullptr, slot.text());
}

TEST(StrXchg, TakesTheSlotsOwnString) {
    Slot slot("same text");
    strxchg(*slot, slot.text());
    EXPECT_STREQ("same text", slot.text());
}

TEST(StrXchg, TakesAPartOfTheSlotsOwnString) {
    Slot slot("same text");
    strxchg(*slot, slot.text() + 5);
    EXPECT_STREQ("text", slot.text());
}

std::string filter_of(std::string text) {
    const std::size_t length = text.size();
    Util_StrToFilter(text.data());
    EXPECT_EQ(length, text.size());
    return text;
}

TEST(StrToFilter, MakesEveryBarAZeroByte) {
    EXPECT_EQ(std::string("MP3\0*.mp3\0\0", 11), filter_of("MP3|*.mp3||"));
}

TEST(StrToFilter, LeavesATextWithoutBarsAsItIs) {
    EXPECT_EQ("MP3 files", filter_of("MP3 files"));
    EXPECT_EQ("", filter_of(""));
}

std::string unquoted(std::string text) {
    Util_UnquoteSpaces(text.data());
    return text.c_str();
}

TEST(UnquoteSpaces, RemovesTheQuotesAtBothEnds) {
    EXPECT_EQ("a b", unquoted("\"a b\""));
}

TEST(UnquoteSpaces, LeavesATextThatDoesNotBeginWithAQuote) {
    EXPECT_EQ("a b\"", unquoted("a b\""));
    EXPECT_EQ(" \"a\"", unquoted(" \"a\""));
    EXPECT_EQ("", unquoted(""));
}

TEST(UnquoteSpaces, RemovesALeadingQuoteThatHasNoPartner) {
    EXPECT_EQ("a b", unquoted("\"a b"));
    EXPECT_EQ("", unquoted("\""));
}

TEST(UnquoteSpaces, RemovesOneQuoteAtEachEndAndNoneInside) {
    EXPECT_EQ("", unquoted("\"\""));
    EXPECT_EQ("\"a\"b\"", unquoted("\"\"a\"b\"\""));
}

TEST(UnquoteSpaces, TouchesNothingBeforeASingleQuote) {
    char text[] = "\"\"";
    Util_UnquoteSpaces(text + 1);
    EXPECT_STREQ("\"", text);
}

/** The copied argument, or "(none)" with the target checked to be untouched. */
std::string copied(const char* command_line) {
    char argument[64];
    std::memset(argument, 'u', sizeof argument);
    const char* const result = Util_CopyArg(command_line, argument);
    if (!result) {
        EXPECT_EQ('u', argument[0]);
        return "(none)";
    }
    EXPECT_EQ(argument, result);
    EXPECT_EQ('u', argument[std::strlen(argument) + 1]);
    return argument;
}

TEST(CopyArg, SkipsEveryKindOfBlankAndCopiesUpToTheNext) {
    EXPECT_EQ("one", copied(" \t\r\none two"));
    EXPECT_EQ("one", copied("one\ttwo"));
    EXPECT_EQ("one", copied("one\rtwo"));
    EXPECT_EQ("one", copied("one\ntwo"));
}

TEST(CopyArg, GivesNothingWhenOnlyBlanksRemain) {
    EXPECT_EQ("(none)", copied(""));
    EXPECT_EQ("(none)", copied(" \t\r\n"));
}

TEST(CopyArg, KeepsBlanksInQuotesAndCopiesTheQuotes) {
    EXPECT_EQ("\"a b\"", copied("\"a b\" c"));
    EXPECT_EQ("x\"a b\"y", copied("x\"a b\"y c"));
}

TEST(CopyArg, RunsToTheEndWhenAQuoteIsNotClosed) {
    EXPECT_EQ("\"a b c", copied("\"a b c"));
}

TEST(CopyArg, KnowsNoBackslash) {
    EXPECT_EQ("a\\", copied("a\\ b"));
    EXPECT_EQ("\"a\\\"", copied("\"a\\\" b\""));
}

TEST(CopyArg, DoesNotTakeAVerticalTabOrAFormFeedForABlank) {
    EXPECT_EQ("\va\fb", copied("\va\fb c"));
}

TEST(GetNextArg, StandsWhereTheNextArgumentBegins) {
    EXPECT_STREQ("two three", Util_GetNextArg("one two three"));
    EXPECT_STREQ("two", Util_GetNextArg(" \t\r\none \t\r\ntwo"));
}

TEST(GetNextArg, StandsAtTheEndAfterTheLastArgument) {
    EXPECT_STREQ("", Util_GetNextArg("one"));
    EXPECT_STREQ("", Util_GetNextArg("one  "));
    EXPECT_STREQ("", Util_GetNextArg("  "));
    EXPECT_STREQ("", Util_GetNextArg(""));
}

TEST(GetNextArg, PassesOverBlanksInQuotes) {
    EXPECT_STREQ("c", Util_GetNextArg("\"a b\" c"));
    EXPECT_STREQ("c", Util_GetNextArg("x\"a b\"y c"));
    EXPECT_STREQ("", Util_GetNextArg("\"a b c"));
}

TEST(GetNextArg, TakesTheCharacterAfterABackslashAsOrdinary) {
    EXPECT_STREQ("c", Util_GetNextArg("a\\ b c"));
    EXPECT_STREQ("b\" c", Util_GetNextArg("\\\"a b\" c"));
    EXPECT_STREQ("c", Util_GetNextArg("\"a\\\" b\" c"));
    EXPECT_STREQ("b", Util_GetNextArg("a\\\\ b"));
}

TEST(GetNextArg, StopsAtTheEndBehindALastBackslash) {
    const char command_line[] = "a\\\0 b";
    EXPECT_EQ(command_line + 2, Util_GetNextArg(command_line));
}

} // namespace
} // namespace velmora
