#include "library/library_rows.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using portable::Field;

/** What reading the song ROW gives. */
RowReading readingOf(const LibraryRows& rows, int row, const portable::TagValues& values, int year = 0) {
    RowReading reading;
    reading.row = row;
    reading.ticket = rows.at(row).ticket;
    reading.state = ReadState::read;
    reading.texts = PackedTexts(values);
    reading.year = static_cast<std::int16_t>(year);
    return reading;
}

portable::TagValues titled(const std::string& title) {
    portable::TagValues values;
    values.text(Field::title) = title;
    return values;
}

TEST(PackedTextsTest, EachFieldSaysWhatItWasGiven) {
    portable::TagValues values = titled("Größe");
    values.text(Field::synopsis) = "a\nb";
    values.text(Field::rating) = "PG";
    const PackedTexts texts(values);
    EXPECT_EQ("Größe", texts.text(Field::title));
    EXPECT_EQ("", texts.text(Field::artist));
    EXPECT_EQ("a\nb", texts.text(Field::synopsis));
    EXPECT_EQ("", texts.text(Field::genre));
    EXPECT_EQ("PG", texts.text(Field::rating));
}

TEST(LibraryRowsTest, AFileIsListedOnce) {
    LibraryRows rows;
    EXPECT_EQ(0, rows.add("/a/x.mp3", 10));
    EXPECT_EQ(-1, rows.add("/a/x.mp3", 10));
    EXPECT_EQ(1, rows.add("/b/x.mp3", 10));
    rows.remove(0);
    EXPECT_EQ(-1, rows.find("/a/x.mp3"));
    EXPECT_EQ(2, rows.add("/a/x.mp3", 10));
}

TEST(LibraryRowsTest, AnAnswerToAnOlderRequestChangesNothing) {
    LibraryRows rows;
    const int row = rows.add("/x.mp3", 10);
    static_cast<void>(rows.requestFor(row));
    const RowReading old = readingOf(rows, row, titled("old"));
    static_cast<void>(rows.requestFor(row));
    EXPECT_FALSE(rows.take(old));
    EXPECT_EQ(QString(), rows.text(row, LibraryColumn::title));
    EXPECT_TRUE(rows.take(readingOf(rows, row, titled("new"))));
    EXPECT_EQ("new", rows.text(row, LibraryColumn::title));
}

TEST(LibraryRowsTest, WhatAFileSaysAlreadyIsNoEdit) {
    LibraryRows rows;
    const int row = rows.add("/x.mp3", 10);
    static_cast<void>(rows.requestFor(row));
    ASSERT_TRUE(rows.take(readingOf(rows, row, titled("Title"), 1994)));
    RowEdits edits;
    EXPECT_TRUE(editText(edits, rows.at(row), LibraryColumn::title, "Other"));
    EXPECT_TRUE(editText(edits, rows.at(row), LibraryColumn::year, "2001"));
    EXPECT_FALSE(edits.empty());
    EXPECT_TRUE(editText(edits, rows.at(row), LibraryColumn::title, "Title"));
    EXPECT_TRUE(editText(edits, rows.at(row), LibraryColumn::year, " 1994 "));
    EXPECT_TRUE(edits.empty());
}

TEST(LibraryRowsTest, AnEmptyTextDeletesAndAYearIsANumberOfFourDigits) {
    LibraryRows rows;
    const int row = rows.add("/x.mp3", 10);
    static_cast<void>(rows.requestFor(row));
    ASSERT_TRUE(rows.take(readingOf(rows, row, titled("Title"), 1994)));
    RowEdits edits;
    EXPECT_TRUE(editText(edits, rows.at(row), LibraryColumn::title, ""));
    EXPECT_TRUE(edits.text(Field::title).deletes());
    EXPECT_TRUE(editText(edits, rows.at(row), LibraryColumn::year, ""));
    EXPECT_TRUE(edits.year.deletes());
    for (const char* text : {"199x", "10000", "-3"}) {
        EXPECT_FALSE(editText(edits, rows.at(row), LibraryColumn::year, text)) << text;
    }
}

TEST(LibraryRowsTest, TheAlbumOfAFilmIsItsDirectorAndOnlyFilmsHaveARating) {
    LibraryRows rows;
    const int song = rows.add("/x.mp3", 10);
    const int film = rows.add("/x.mp4", 10);
    RowEdits ofSong;
    RowEdits ofFilm;
    EXPECT_TRUE(editText(ofSong, rows.at(song), LibraryColumn::album, "A"));
    EXPECT_TRUE(editText(ofFilm, rows.at(film), LibraryColumn::album, "D"));
    EXPECT_EQ("A", ofSong.text(Field::album).value());
    EXPECT_EQ("D", ofFilm.text(Field::director).value());
    EXPECT_FALSE(editText(ofSong, rows.at(song), LibraryColumn::rating, "PG"));
    EXPECT_TRUE(editText(ofFilm, rows.at(film), LibraryColumn::rating, "PG"));
}

TEST(LibraryRowsTest, ANewNameKeepsTheExtensionAndBecomesOneThatAFolderTakes) {
    LibraryRows rows;
    const int row = rows.add("/music/x.MP3", 10);
    RowEdits edits;
    EXPECT_TRUE(editText(edits, rows.at(row), LibraryColumn::name, "y.z"));
    EXPECT_EQ("y.z.MP3", edits.name);
    EXPECT_TRUE(editText(edits, rows.at(row), LibraryColumn::name, "AC/DC: live? .mp3"));
    EXPECT_EQ("AC_DC_ live_.MP3", edits.name);
    EXPECT_TRUE(editText(edits, rows.at(row), LibraryColumn::name, ".hidden"));
    EXPECT_EQ("_hidden.MP3", edits.name);
    for (const char* name : {"", " ", ".MP3"}) {
        EXPECT_FALSE(editText(edits, rows.at(row), LibraryColumn::name, name)) << name;
        EXPECT_EQ("_hidden.MP3", edits.name);
    }
    EXPECT_TRUE(editText(edits, rows.at(row), LibraryColumn::name, "x"));
    EXPECT_TRUE(edits.empty());
}

TEST(LibraryRowsTest, ANameThatAFolderShouldNotTakeIsNoEditWhereTheFileHasIt) {
    LibraryRows rows;
    const int row = rows.add("/music/what?.mp3", 10);
    RowEdits edits;
    EXPECT_TRUE(editText(edits, rows.at(row), LibraryColumn::name, "other"));
    EXPECT_TRUE(editText(edits, rows.at(row), LibraryColumn::name, "what?.mp3"));
    EXPECT_TRUE(edits.empty());
}

TEST(LibraryRowsTest, ADiscImageWhoseTagGoesByItsNameKeepsIt) {
    LibraryRows rows;
    const int row = rows.add("/films/disc.iso", 10);
    RowEdits edits;
    EXPECT_FALSE(editText(edits, rows.at(row), LibraryColumn::name, "other"));
    EXPECT_TRUE(edits.empty());
}

} // namespace
} // namespace velmora
