#include "library/filter_query.h"

#include "library/library_columns.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace velmora {
namespace {

using portable::Field;

RowTexts textsOfSong() {
    RowTexts texts;
    const auto set = [&texts](LibraryColumn column, const char* text) {
        texts[static_cast<std::size_t>(column)] = text;
    };
    set(LibraryColumn::name, "07 dancing.mp3");
    set(LibraryColumn::folder, "/home/me/Music/Arrival");
    set(LibraryColumn::kind, "Song");
    set(LibraryColumn::title, "Dancing Queen");
    set(LibraryColumn::artist, "ABBA");
    set(LibraryColumn::album, "Arrivée");
    set(LibraryColumn::year, "1976");
    set(LibraryColumn::genre, "Pop");
    set(LibraryColumn::synopsis, "Live in Melbourne");
    set(LibraryColumn::tags, "ID3v2.3, ID3v1");
    set(LibraryColumn::size, "4.1 MB");
    set(LibraryColumn::date, "2020-05-04 11:12");
    return texts;
}

FilterText song(int year = 1976, MissingBits missing = 0) {
    return {textsOfSong(), year, missing};
}

bool matches(const char* query, const FilterText& row = song()) {
    return FilterQuery(QString::fromUtf8(query)).matches(row);
}

TEST(FilterQuery, NothingTypedMatchesEverything) {
    EXPECT_TRUE(FilterQuery().matches(song()));
    EXPECT_TRUE(FilterQuery("  ").isEmpty());
    EXPECT_TRUE(FilterQuery("\"\"").isEmpty());
    EXPECT_FALSE(FilterQuery("a").isEmpty());
}

TEST(FilterQuery, AWordMayStandInAnyColumnAndWithinAWord) {
    EXPECT_TRUE(matches("queen"));
    EXPECT_TRUE(matches("ncin"));
    EXPECT_TRUE(matches("music/arr"));
    EXPECT_TRUE(matches("id3v2.3"));
    EXPECT_FALSE(matches("waterloo"));
}

TEST(FilterQuery, EveryWordMustBeThere) {
    EXPECT_TRUE(matches("abba queen pop"));
    EXPECT_TRUE(matches("pop abba"));
    EXPECT_FALSE(matches("abba waterloo"));
}

TEST(FilterQuery, CaseAndAccentsDoNotMatter) {
    EXPECT_TRUE(matches("aBBa ARRIVEE"));
    EXPECT_TRUE(matches("arrivée"));
    EXPECT_TRUE(matches("Ábba"));
}

TEST(FilterQuery, QuotesMakeOneWordOfSeveral) {
    EXPECT_TRUE(matches("\"dancing queen\""));
    EXPECT_FALSE(matches("\"queen dancing\""));
    EXPECT_TRUE(matches("\"dancing que"));
    EXPECT_TRUE(matches("title:\"dancing queen\" abba"));
    EXPECT_FALSE(matches("artist:\"dancing queen\""));
}

TEST(FilterQuery, NoWordReachesFromOneColumnIntoTheNext) {
    EXPECT_FALSE(matches("\"queen abba\""));
    EXPECT_FALSE(matches("queenabba"));
}

TEST(FilterQuery, ANameNarrowsAWordToItsColumn) {
    EXPECT_TRUE(matches("artist:abba"));
    EXPECT_TRUE(matches("ARTIST:abba"));
    EXPECT_TRUE(matches("cast:abba"));
    EXPECT_FALSE(matches("title:abba"));
    EXPECT_TRUE(matches("album:arrivee"));
    EXPECT_FALSE(matches("album:music"));
    EXPECT_TRUE(matches("name:dancing folder:arrival kind:song genre:pop tags:id3v1 size:4.1 date:2020"));
    EXPECT_TRUE(matches("comment:melbourne synopsis:live"));
    EXPECT_FALSE(matches("date:2021"));
    EXPECT_FALSE(matches("rating:pg"));
}

TEST(FilterQuery, ANameAloneIsStillBeingTyped) {
    EXPECT_TRUE(FilterQuery("artist:").isEmpty());
    EXPECT_TRUE(FilterQuery("year:").isEmpty());
    EXPECT_TRUE(FilterQuery("missing:").isEmpty());
}

TEST(FilterQuery, AnUnknownNameIsPartOfAnOrdinaryWord) {
    EXPECT_TRUE(matches("11:12"));
    EXPECT_FALSE(matches("11:13"));
    EXPECT_FALSE(matches("composer:abba"));
    EXPECT_FALSE(matches("composer:"));
}

TEST(FilterQuery, QuotedNamesAreText) {
    EXPECT_FALSE(matches("\"artist:abba\""));
}

TEST(FilterQuery, AYearIsThatYear) {
    EXPECT_TRUE(matches("year:1976"));
    EXPECT_FALSE(matches("year:1977"));
    EXPECT_FALSE(matches("year:1976", song(0)));
}

TEST(FilterQuery, YearsReachFromTheFirstToTheLast) {
    EXPECT_TRUE(matches("year:1970-1979"));
    EXPECT_TRUE(matches("year:1976-1976"));
    EXPECT_FALSE(matches("year:1977-1990"));
    EXPECT_FALSE(matches("year:1960-1975"));
    EXPECT_TRUE(matches("year:1976-"));
    EXPECT_FALSE(matches("year:1977-"));
    EXPECT_TRUE(matches("year:-1976"));
    EXPECT_FALSE(matches("year:-1975"));
    EXPECT_FALSE(matches("year:-1990", song(0)));
}

TEST(FilterQuery, TheBeginningOfAYearStandsForAllThatBeginSo) {
    EXPECT_TRUE(matches("year:197"));
    EXPECT_TRUE(matches("year:1"));
    EXPECT_FALSE(matches("year:198"));
    EXPECT_TRUE(matches("year:1960-19"));
    EXPECT_TRUE(matches("year:19-1976"));
}

TEST(FilterQuery, AYearThatIsNoneIsAnOrdinaryWord) {
    EXPECT_FALSE(matches("year:soon"));
    EXPECT_FALSE(matches("year:19761"));
    RowTexts texts = textsOfSong();
    texts[static_cast<std::size_t>(LibraryColumn::title)] = "Year:Soon";
    EXPECT_TRUE(matches("year:soon", FilterText(texts, 0, 0)));
}

TEST(FilterQuery, WhatIsMissingIsFound) {
    const FilterText row = song(1976, missingBit(Field::cover) | missingBit(Field::year));
    EXPECT_TRUE(matches("missing:cover", row));
    EXPECT_TRUE(matches("missing:Year", row));
    EXPECT_TRUE(matches("abba missing:cover missing:year", row));
    EXPECT_FALSE(matches("missing:title", row));
    EXPECT_FALSE(matches("missing:cover", song()));
    EXPECT_TRUE(matches("missing:tags", song(0, missingTag)));
}

TEST(FilterQuery, TheBeginningOfAMissingNameStandsForAllThatBeginSo) {
    EXPECT_TRUE(matches("missing:co", song(0, missingBit(Field::cover))));
    EXPECT_TRUE(matches("missing:co", song(0, missingBit(Field::synopsis))));
    EXPECT_FALSE(matches("missing:co", song(0, missingBit(Field::title))));
    EXPECT_FALSE(matches("missing:nothing", song(0, missingBit(Field::title))));
}

TEST(FilterQuery, AWrongNumberOfColumnsIsNoDanger) {
    EXPECT_FALSE(matches("date:x", FilterText()));
    EXPECT_FALSE(matches("x", FilterText()));
    EXPECT_TRUE(matches("", FilterText()));
}

LibraryRow readRow(portable::Media media, const portable::TagValues& values, const QString& tags) {
    LibraryRow row("/home/me/film", 1);
    row.media = media;
    row.state = ReadState::read;
    row.year = static_cast<std::int16_t>(values.year.value_or(0));
    row.coverHash = values.cover ? coverHash(*values.cover) : 0;
    row.setTexts(PackedTexts(values), tags, {});
    return row;
}

MissingBits missingIn(const LibraryRow& row, const RowEdits* edits = nullptr) {
    return filterTextOf(row, edits).missing();
}

TEST(MissingFields, AFieldThatTheKindDoesNotHaveIsNotMissing) {
    EXPECT_EQ(0b11'1011'0111 & ~missingBit(Field::director),
              missingIn(readRow(portable::Media::audio, {}, "")));
    EXPECT_EQ(0b11'1111'1011, missingIn(readRow(portable::Media::video, {}, "")));
}

TEST(MissingFields, WhatIsThereIsNotMissing) {
    portable::TagValues values;
    values.text(Field::title) = "a";
    values.text(Field::artist) = "a";
    values.text(Field::album) = "a";
    values.text(Field::synopsis) = "a";
    values.text(Field::genre) = "a";
    values.year = 1;
    EXPECT_EQ(missingBit(Field::cover), missingIn(readRow(portable::Media::audio, values, "ID3v2.3")));
    values.cover = portable::Cover{};
    EXPECT_EQ(0, missingIn(readRow(portable::Media::audio, values, "ID3v2.3")));
}

TEST(MissingFields, WhatAnEditBringsOrDeletesCounts) {
    portable::TagValues values;
    values.text(Field::title) = "a";
    const LibraryRow row = readRow(portable::Media::audio, values, "ID3v2.3");
    RowEdits edits;
    ASSERT_TRUE(editText(edits, row, LibraryColumn::title, ""));
    ASSERT_TRUE(editText(edits, row, LibraryColumn::year, "1976"));
    EXPECT_NE(0, missingIn(row) & missingBit(Field::year));
    EXPECT_EQ(0, missingIn(row, &edits) & missingBit(Field::year));
    EXPECT_EQ(0, missingIn(row) & missingBit(Field::title));
    EXPECT_NE(0, missingIn(row, &edits) & missingBit(Field::title));
}

TEST(MissingFields, OfAFileThatCanNotBeReadNothingIsKnown) {
    LibraryRow row = readRow(portable::Media::audio, {}, "");
    row.state = ReadState::failed;
    EXPECT_EQ(0, missingIn(row));
    EXPECT_EQ(0, missingIn(LibraryRow("/home/me/film", 1)));
}

} // namespace
} // namespace velmora
