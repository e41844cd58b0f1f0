#include "library/detail/name_pattern.h"

#include "platform/file_path.h"

#include <gmock/gmock.h>

#include <map>
#include <string>

namespace velmora {
namespace {

using portable::Field;
using portable::TagEdits;
using testing::ElementsAre;
using testing::Pair;
using Use = NamePattern::Use;

NamePattern reading(const char* text) {
    return std::get<NamePattern>(NamePattern::parsed(QString::fromUtf8(text), Use::read));
}
NamePattern writing(const char* text) {
    return std::get<NamePattern>(NamePattern::parsed(QString::fromUtf8(text), Use::write));
}
/** What is wrong with TEXT; empty where nothing is. */
QString mistakeIn(const char* text, Use use) {
    const auto parsed = NamePattern::parsed(QString::fromUtf8(text), use);
    const auto* const mistake = std::get_if<NamePattern::Mistake>(&parsed);
    return mistake ? mistake->sentence : QString();
}

/** The fields that a path gives; one "none" where it does not fit. */
std::map<Field, std::string> fieldsOf(const NamePattern& pattern, const QString& path) {
    const std::optional<TagEdits> edits = pattern.tagsFrom(path);
    if (!edits) {
        return {{Field::cover, "none"}};
    }
    std::map<Field, std::string> fields;
    for (std::size_t index = 0; index < portable::text_field_count; ++index) {
        if (edits->texts[index].sets()) {
            fields[static_cast<Field>(index)] = *edits->texts[index].value();
        }
    }
    if (edits->year.sets()) {
        fields[Field::year] = std::to_string(*edits->year.value());
    }
    return fields;
}
std::map<Field, std::string> fieldsOf(const char* pattern, const char* path) {
    return fieldsOf(reading(pattern), QString::fromUtf8(path));
}

const std::map<Field, std::string> nothing = {{Field::cover, "none"}};

TEST(TagsFromNames, PlacesAreDividedByTheTextBetweenThem) {
    EXPECT_THAT(fieldsOf("%artist% - %title%", "/m/ABBA - Waterloo.mp3"),
                ElementsAre(Pair(Field::title, "Waterloo"), Pair(Field::artist, "ABBA")));
    EXPECT_THAT(fieldsOf("%title%", "/m/Waterloo.mp3"), ElementsAre(Pair(Field::title, "Waterloo")));
}

TEST(TagsFromNames, EveryFieldHasAPlace) {
    EXPECT_THAT(fieldsOf("%title%,%artist%,%album%,%director%,%synopsis%,%genre%,%rating%,%year%",
                         "/m/a,b,c,d,e,f,g,1999.mp3"),
                ElementsAre(Pair(Field::title, "a"), Pair(Field::artist, "b"), Pair(Field::album, "c"),
                            Pair(Field::director, "d"), Pair(Field::synopsis, "e"), Pair(Field::genre, "f"),
                            Pair(Field::rating, "g"), Pair(Field::year, "1999")));
    EXPECT_THAT(fieldsOf("%CAST%,%Comment%", "/m/a,b.mp4"),
                ElementsAre(Pair(Field::artist, "a"), Pair(Field::synopsis, "b")));
}

TEST(TagsFromNames, APlaceTakesAsLittleAsItCan) {
    EXPECT_THAT(fieldsOf("%artist% - %title%", "/m/ABBA - Live - Waterloo.mp3"),
                ElementsAre(Pair(Field::title, "Live - Waterloo"), Pair(Field::artist, "ABBA")));
}

TEST(TagsFromNames, APlaceTakesMoreWhereTheRestWouldNotFit) {
    EXPECT_THAT(fieldsOf("%title% (%year%)", "/m/Alien (Cut) (1979).avi"),
                ElementsAre(Pair(Field::title, "Alien (Cut)"), Pair(Field::year, "1979")));
    EXPECT_THAT(fieldsOf("%title% [x]", "/m/a [x] b [x].avi"), ElementsAre(Pair(Field::title, "a [x] b")));
}

TEST(TagsFromNames, AYearIsANumber) {
    EXPECT_EQ(nothing, fieldsOf("%title% (%year%)", "/m/Alien (cut).avi"));
    EXPECT_EQ(nothing, fieldsOf("%title% (%year%)", "/m/Alien (19791).avi"));
    EXPECT_EQ(nothing, fieldsOf("%title% (%year%)", "/m/Alien (0).avi"));
}

TEST(TagsFromNames, SkippedTextSetsNothing) {
    EXPECT_THAT(fieldsOf("%skip% - %title%", "/m/07 - Waterloo.mp3"),
                ElementsAre(Pair(Field::title, "Waterloo")));
    EXPECT_THAT(fieldsOf("%skip%-%title%-%skip%", "/m/1-b-2.mp3"), ElementsAre(Pair(Field::title, "b")));
}

TEST(TagsFromNames, ASlashLooksAtFolders) {
    EXPECT_THAT(
        fieldsOf("%artist%/%album%/%title%", "/m/ABBA/Arrival/Tiger.mp3"),
        ElementsAre(Pair(Field::title, "Tiger"), Pair(Field::artist, "ABBA"), Pair(Field::album, "Arrival")));
    EXPECT_THAT(
        fieldsOf("%album% (%year%)/%title%", "/m/Vol. 1.5 (1976)/Tiger.mp3"),
        ElementsAre(Pair(Field::title, "Tiger"), Pair(Field::album, "Vol. 1.5"), Pair(Field::year, "1976")));
    EXPECT_EQ(nothing, fieldsOf("%artist%/%album%/%title%", "/Arrival/Tiger.mp3"));
    EXPECT_THAT(fieldsOf("%folder%/%title%", "/m/x/Tiger.mp3"), ElementsAre(Pair(Field::title, "Tiger")));
}

TEST(TagsFromNames, WhatDoesNotFitGivesNothing) {
    EXPECT_EQ(nothing, fieldsOf("%artist% - %title%", "/m/Waterloo.mp3"));
    EXPECT_EQ(nothing, fieldsOf("%artist% - %title%", "/m/ - Waterloo.mp3"));
    EXPECT_EQ(nothing, fieldsOf("%artist% - %title%", "/m/ABBA - .mp3"));
    EXPECT_EQ(nothing, fieldsOf("%artist% - %title%", "/m/ABBA -  .mp3"));
    EXPECT_EQ(nothing, fieldsOf("%title%", ""));
}

TEST(TagsFromNames, BlanksAroundAValueAreNotPartOfIt) {
    EXPECT_THAT(fieldsOf("%artist%-%title%", "/m/ABBA  -  Waterloo .mp3"),
                ElementsAre(Pair(Field::title, "Waterloo"), Pair(Field::artist, "ABBA")));
}

TEST(TagsFromNames, TextOfThePatternHasNoCase) {
    EXPECT_THAT(fieldsOf("Live %title%", "/m/LIVE Waterloo.mp3"),
                ElementsAre(Pair(Field::title, "Waterloo")));
}

TEST(TagsFromNames, TwoPercentSignsAreOne) {
    EXPECT_THAT(fieldsOf("100%% %title%", "/m/100% Pop.mp3"), ElementsAre(Pair(Field::title, "Pop")));
}

TEST(TagsFromNames, TheNameNeedsNoExtension) {
    EXPECT_THAT(fieldsOf("%title%", "/m/Waterloo"), ElementsAre(Pair(Field::title, "Waterloo")));
    EXPECT_THAT(fieldsOf("%title%", "/m/Vol. 2.mp3"), ElementsAre(Pair(Field::title, "Vol. 2")));
}

TEST(TagsFromNames, ValuesAreComposed) {
    EXPECT_THAT(fieldsOf("%title%", "/m/e\xCC\x81.mp3"), ElementsAre(Pair(Field::title, "\xC3\xA9")));
}

TEST(TagsFromNames, BytesThatAreNoTextAreNoValue) {
    EXPECT_EQ(nothing, fieldsOf(reading("%title%"), pathFromBytes("/m/caf\xe9.mp3")));
    EXPECT_THAT(fieldsOf(reading("%skip% - %title%"), pathFromBytes("/m/caf\xe9 - b.mp3")),
                ElementsAre(Pair(Field::title, "b")));
}

TEST(TagsFromNames, ALongNameThatAlmostFitsIsLookedThroughOnce) {
    const QString path = "/m/" + QString("a-").repeated(120) + ".mp3";
    EXPECT_EQ(
        nothing,
        fieldsOf(reading("%title%-%artist%-%album%-%director%-%synopsis%-%genre%-%rating%-%year%"), path));
}

TEST(NamePattern, TellsWhatIsWrong) {
    for (const Use use : {Use::read, Use::write}) {
        EXPECT_EQ("The pattern is empty.", mistakeIn("", use));
        EXPECT_EQ("A percent sign stands alone. Write %% for a percent sign.", mistakeIn("%title% 50%", use));
        EXPECT_EQ("There is no field \"track\".", mistakeIn("%track%", use));
        EXPECT_EQ("There is no field in the pattern.", mistakeIn("name", use));
        EXPECT_EQ("There is nothing beside a slash.", mistakeIn("%artist%/", use));
        EXPECT_EQ("", mistakeIn("%artist% - %title%", use));
    }
    EXPECT_EQ("Nothing divides one field from the next.", mistakeIn("%artist%%title%", Use::read));
    EXPECT_EQ("", mistakeIn("%artist%%title%", Use::write));
    EXPECT_EQ("A field comes twice.", mistakeIn("%title%/%title%", Use::read));
    EXPECT_EQ("", mistakeIn("%title% %title%", Use::write));
    EXPECT_EQ("%skip% has no place in a new name.", mistakeIn("%skip% %title%", Use::write));
    EXPECT_EQ("A name has no slash: files stay in their folders.", mistakeIn("%artist%/%title%", Use::write));
}

TEST(NamePattern, KnowsItsFields) {
    EXPECT_THAT(writing("%year% %title% %year% %folder%").fields(), ElementsAre(Field::year, Field::title));
}

portable::TagValues someValues() {
    portable::TagValues values;
    values.text(Field::title) = "Waterloo";
    values.text(Field::artist) = " ABBA ";
    values.text(Field::genre) = "  ";
    values.year = 1974;
    return values;
}

TEST(NamesFromTags, ValuesTakeTheirPlaces) {
    const auto name = writing("%artist% - %title% (%year%) 100%% %folder%").nameFrom(someValues(), "x/y");
    ASSERT_TRUE(std::holds_alternative<QString>(name));
    EXPECT_EQ("ABBA - Waterloo (1974) 100% x/y", std::get<QString>(name));
}

TEST(NamesFromTags, TellWhichValueIsMissing) {
    EXPECT_EQ(Field::album, std::get<Field>(writing("%title% %album%").nameFrom(someValues(), "")));
    EXPECT_EQ(Field::genre, std::get<Field>(writing("%title% %genre%").nameFrom(someValues(), "")));
    portable::TagValues values = someValues();
    values.year.reset();
    EXPECT_EQ(Field::year, std::get<Field>(writing("%title% %year%").nameFrom(values, "")));
}

} // namespace
} // namespace velmora
