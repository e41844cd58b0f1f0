#include "chunk_bytes.h"
#include "rewriting.h"

#include "portable/portable_tags.h"
#include "support/bytes.h"
#include "support/id3_tags.h"
#include "support/scratch_folder.h"
#include "taglib/id3/load_file_info.h"
#include "taglib/id3/store_file_info.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using namespace portable;
using test::appended_tag;
using test::edited;
using test::frame3;
using test::frame4;
using test::hex;
using test::le32;
using test::leading_tag;
using test::pattern;
using test::refusal_of;
using test::remove_text;
using test::set_text;
using test::to_hex;
using test::values_in;

const std::string frames = hex("FFFB9064") + pattern(500);

const std::string latin1(1, '\0');
const std::string padding(40, '\0');

TEST(Mp3Tags, AFileWithoutOneGetsATagOfVersion4InFront) {
    const std::string content = frame4("TIT2", "\x03Größe");
    EXPECT_EQ(to_hex(leading_tag(4, content + std::string(1024, '\0')) + frames),
              to_hex(edited(frames, "mp3", set_text(Field::title, "Größe"))));
}

TEST(Mp3Tags, ANewValueTakesThePlaceOfTheOldOneAndThePaddingMakesUpForIt) {
    const std::string kept = frame3("TPE1", latin1 + "Ann") + frame3("RVAD", "\x03\x10\x01\x02");
    const std::string old = leading_tag(3, frame3("TIT2", latin1 + "Harbour") + kept + padding);
    const std::string made =
        leading_tag(3, frame3("TIT2", latin1 + "Harb") + kept + padding + std::string(3, '\0'));
    EXPECT_EQ(to_hex(made + frames), to_hex(edited(old + frames, "mp3", set_text(Field::title, "Harb"))));
}

TEST(Mp3Tags, Version3TakesUtf16WithAMark) {
    const std::string old = leading_tag(3, frame3("TIT2", latin1 + "Harbour") + padding);
    const std::string made =
        leading_tag(3, frame3("TIT2", hex("01 FFFE F600 1E26")) + padding + std::string(1, '\0'));
    EXPECT_EQ(to_hex(made + frames), to_hex(edited(old + frames, "mp3", set_text(Field::title, "ö☞"))));
}

TEST(Mp3Tags, EveryEncodingIsRead) {
    for (const std::string& body :
         {hex("00 F6 7A"), hex("01 FFFE F600 7A00"), hex("01 FEFF 00F6 007A"), hex("01 F600 7A00"),
          hex("02 00F6 007A"), hex("03 C3B6 7A"), hex("01 FFFE F600 7A00 0000")}) {
        const TagValues values = values_in(leading_tag(4, frame4("TIT2", body)) + frames, "mp3");
        EXPECT_EQ("öz", values.text(Field::title)) << to_hex(body);
    }
}

TEST(Mp3Tags, SeveralValuesAreJoined) {
    const std::string artists = hex("01 FFFE 4100 0000 FFFE 4200");
    const std::string content = frame3("TPE1", artists) + frame3("TCON", latin1 + "(17)(4)Italo");
    const TagValues values = values_in(leading_tag(3, content) + frames, "mp3");
    EXPECT_EQ("A; B", values.text(Field::artist));
    EXPECT_EQ("Rock; Disco; Italo", values.text(Field::genre));
}

TEST(Mp3Tags, ACommentWithADescriptionIsNoSynopsis) {
    const std::string described = frame3("COMM", latin1 + "engiTunNORM" + latin1 + "0000");
    const std::string comment = frame3("COMM", latin1 + "deu" + latin1 + "Old");
    const std::string old = leading_tag(3, described + comment + padding);
    EXPECT_EQ("Old", values_in(old + frames, "mp3").text(Field::synopsis));
    const std::string made =
        leading_tag(3, described + frame3("COMM", latin1 + "deu" + latin1 + "New") + padding);
    EXPECT_EQ(to_hex(made + frames), to_hex(edited(old + frames, "mp3", set_text(Field::synopsis, "New"))));
}

TEST(Mp3Tags, MonthAndDayStayWithTheYearAndGoWithIt) {
    const std::string date = frame3("TYER", latin1 + "1994") + frame3("TDAT", latin1 + "0405");
    const std::string old = leading_tag(3, date + padding) + frames;
    TagEdits edits;
    edits.year = Edit<int>::set(1994);
    EXPECT_EQ(to_hex(old), to_hex(edited(old, "mp3", edits)));
    edits.year = Edit<int>::set(1995);
    const std::string made =
        leading_tag(3, frame3("TYER", latin1 + "1995") + padding + std::string(15, '\0'));
    EXPECT_EQ(to_hex(made + frames), to_hex(edited(old, "mp3", edits)));
}

TEST(Mp3Tags, ATagThatHasNothingLeftGoes) {
    EXPECT_EQ(to_hex(frames), to_hex(edited(leading_tag(4, frame4("TIT2", "\x03X") + padding) + frames, "mp3",
                                            remove_text(Field::title))));
}

TEST(Mp3Tags, TheCoverIsTheFrontOneAndOthersStay) {
    const auto picture = [](char type, const std::string& bytes) {
        return frame4("APIC", latin1 + "image/png" + latin1 + type + latin1 + bytes);
    };
    const std::string back = picture(4, "back");
    const std::string old = leading_tag(4, back + picture(0, "icon") + picture(3, "front") + padding);
    EXPECT_EQ((Cover{{'f', 'r', 'o', 'n', 't'}, "image/png"}), values_in(old + frames, "mp3").cover);
    TagEdits edits;
    edits.cover = Edit<Cover>::remove();
    const std::string made = leading_tag(4, back + picture(0, "icon") + padding + std::string(28, '\0'));
    const test::ScratchFolder folder;
    const std::string path = folder / "song.mp3";
    test::write_file(path, old + frames);
    ASSERT_EQ(SaveResult::saved, save_tags(path, edits).result);
    EXPECT_EQ(to_hex(made + frames), to_hex(test::read_file(path)));
    EXPECT_EQ((Cover{{'i', 'c', 'o', 'n'}, "image/png"}), read_tags(path).values.cover); // it shows now
}

TEST(Mp3Tags, AFrameThatReachesBeyondTheTagIsReadPastAndNotSaved) {
    const std::string broken =
        leading_tag(3, frame3("TIT2", latin1 + "Old") + "TALB" + hex("00001000 0000 00"));
    EXPECT_EQ("Old", values_in(broken + frames, "mp3").text(Field::title));
    EXPECT_EQ("the file is damaged (ID3v2 frame)", test::refusal_of([&] {
                  static_cast<void>(edited(broken + frames, "mp3", set_text(Field::title, "X")));
              }));
}

TEST(Mp3Tags, MoreFramesThanAnyTagHasAreRefused) {
    std::string content;
    for (int i = 0; i < 300'000; ++i) {
        content += "XYZW" + hex("00000000 0000");
    }
    // 3,000,000 bytes in seven bits each
    EXPECT_EQ("too large for this kind of file (frames of an ID3v2 tag)", refusal_of([&] {
                  static_cast<void>(values_in("ID3" + hex("040000 01370D40") + content + "x", "mp3"));
              }));
}

TEST(Mp3Tags, MoreItemsThanAnyApeTagHasAreRefused) {
    const std::string end = "APETAGEX" + le32(2000) + le32(3'000'032) + le32(300'000) + std::string(12, '\0');
    std::string items;
    for (int i = 0; i < 300'000; ++i) {
        items += std::string(8, '\0') + "k" + '\0';
    }
    EXPECT_EQ("too large for this kind of file (items of an APE tag)",
              refusal_of([&] { static_cast<void>(values_in(std::string(100, 'x') + items + end, "mp3")); }));
}

/** An item of an APE tag. */
std::string ape_item(const std::string& key, const std::string& value) {
    return le32(value.size()) + le32(0) + key + '\0' + value;
}

/** An APE tag, of version 2 and without a header. */
std::string ape_tag(const std::vector<std::string>& items) {
    std::string content;
    for (const std::string& item : items) {
        content += item;
    }
    return content + "APETAGEX" + le32(2000) + le32(content.size() + 32) + le32(items.size()) +
           std::string(12, '\0');
}

TEST(Mp3Tags, SeveralValuesOfAnApeTagStaySeveralInTheFirstTagInFront) {
    const std::string two = std::string("Ann") + '\0' + "Bo";
    const std::string genres = std::string("Rock") + '\0' + "Pop";
    const std::string ape =
        ape_tag({ape_item("Artist", two), ape_item("Genre", genres), ape_item("Album", "Sea")});
    const std::string content =
        frame4("TIT2", "\x03X") + frame4("TPE1", hex("03 416E6E 00 426F")) +      // Ann, Bo
        frame4("TALB", "\x03Sea") + frame4("TCON", hex("03 526F636B 00 506F70")); // Rock, Pop
    const std::string made = edited(frames + ape, "mp3", set_text(Field::title, "X"));
    EXPECT_EQ(to_hex(leading_tag(4, content + std::string(1024, '\0')) + frames + ape), to_hex(made));
    EXPECT_EQ("Ann; Bo", values_in(made, "mp3").text(Field::artist));
}

TEST(Mp3Tags, SeveralValuesOfAnApeTagThatAreSetBecomeOne) {
    const std::string two = std::string("Ann") + '\0' + "Bo";
    const std::string made =
        edited(frames + ape_tag({ape_item("Artist", two)}), "mp3", set_text(Field::artist, "Cy"));
    EXPECT_EQ(to_hex(leading_tag(4, frame4("TPE1", "\x03"
                                                   "Cy") +
                                        std::string(1024, '\0')) +
                     frames + ape_tag({ape_item("Artist", "Cy")})),
              to_hex(made));
}

TEST(Mp3Tags, GenresOfAnApeTagThatWouldBeNumbersElsewhereAreOneText) {
    const std::string genres = std::string("17") + '\0' + "Pop";
    const std::string made =
        edited(frames + ape_tag({ape_item("Genre", genres)}), "mp3", set_text(Field::title, "X"));
    EXPECT_EQ("17; Pop", values_in(made, "mp3").text(Field::genre));
}

TEST(Mp3Tags, WhatHoldsAnotherFormatIsNotTouched) {
    const std::string film = hex("00000018") + "ftypisom" + pattern(100);
    EXPECT_THAT(
        test::refusal_of([&] { static_cast<void>(edited(film, "mp3", set_text(Field::title, "X"))); }),
        testing::HasSubstr("another format"));
}

/** A file at whose end the program wrote in place. */
class TagAtTheEnd : public testing::Test {
protected:
    void store(const std::string& media, const char* album, const char* artist, const char* title) {
        test::write_file(path_, media);
        _file_info_t info{};
        info.title = const_cast<char*>(album);
        info.artist = const_cast<char*>(artist);
        info.desc = const_cast<char*>(title);
        info.flags = file_info_flag::title | file_info_flag::artist | file_info_flag::desc;
        ASSERT_EQ(1, id3_store_file_info(path_.c_str(), &info));
    }

    test::ScratchFolder folder_;
    std::string path_ = folder_ / "song.mp3";
};

TEST_F(TagAtTheEnd, IsReadFirst) {
    store(frames, "Alb\xC3\xBCm", "", "Later title");
    const ReadOutcome outcome = read_tags(path_);
    EXPECT_EQ("Later title", outcome.values.text(Field::title));
    EXPECT_EQ("Alb\xC3\xBCm", outcome.values.text(Field::album));
    EXPECT_THAT(outcome.tags, testing::ElementsAre("ID3v2.4 at the end"));
}

TEST_F(TagAtTheEnd, IsFoldedIntoTheOneInFrontAndGone) {
    store(frames, "Album", "Ann", "Later");
    TagEdits edits;
    edits.text(Field::artist) = Edit<std::string>::set("Bo");
    ASSERT_EQ(SaveResult::saved, save_tags(path_, edits).result);
    const std::string content = frame4("TIT2", "\x03Later") +
                                frame4("TPE1", "\x03"
                                               "Bo") +
                                frame4("TALB", "\x03"
                                               "Album");
    EXPECT_EQ(to_hex(leading_tag(4, content + std::string(1024, '\0')) + frames),
              to_hex(test::read_file(path_)));
}

TEST_F(TagAtTheEnd, KeepsItsOtherFramesInFront) {
    const std::string other = frame4("TPE3", latin1 + "Cy");
    const std::string content = frame4("TIT2", latin1 + "Later") + other;
    test::write_file(path_,
                     leading_tag(4, frame4("TALB", "\x03X") + padding) + frames + appended_tag(content));
    TagEdits edits;
    edits.text(Field::album) = Edit<std::string>::set("Y");
    ASSERT_EQ(SaveResult::saved, save_tags(path_, edits).result);
    const std::string made = frame4("TALB", "\x03Y") + frame4("TIT2", "\x03Later") + other;
    EXPECT_EQ(to_hex(leading_tag(4, made + std::string(40 - 16 - 13, '\0')) + frames),
              to_hex(test::read_file(path_)));
}

TEST_F(TagAtTheEnd, OfAFilmThatHasNoOtherIsWrittenSoThatBothWaysReadIt) {
    const std::string film = folder_ / "film.mpg";
    test::write_file(film, frames);
    TagEdits edits;
    edits.text(Field::title) = Edit<std::string>::set("Häfen");
    edits.text(Field::director) = Edit<std::string>::set("Cy");
    edits.text(Field::rating) = Edit<std::string>::set("PG");
    const SaveOutcome saved = save_tags(film, edits);
    ASSERT_EQ(SaveResult::saved, saved.result);
    EXPECT_FALSE(saved.others_read_it);
    _file_info_t info{};
    ASSERT_EQ(1, id3_load_file_info(film.c_str(), &info));
    EXPECT_STREQ("H\xC3\xA4"
                 "fen",
                 info.title);
    EXPECT_STREQ("Cy", info.director);
    EXPECT_STREQ("PG", info.rating);
    id3_free_file_info(&info);

    edits = {};
    edits.text(Field::title) = Edit<std::string>::set("H");
    ASSERT_EQ(SaveResult::saved, save_tags(film, edits).result);
    const std::string content = frame4("TALB", latin1 + "H") + frame4("TPE3", latin1 + "Cy") +
                                frame4("PRIV", "WM/ParentalRating" + latin1 + "PG");
    EXPECT_EQ(to_hex(frames + appended_tag(content)), to_hex(test::read_file(film)));
}

TEST_F(TagAtTheEnd, OfADiscIsAFileBesideIt) {
    const std::string disc = folder_ / "film.iso";
    test::write_file(disc, "disc");
    TagEdits edits;
    edits.text(Field::title) = Edit<std::string>::set("Harbour");
    ASSERT_EQ(SaveResult::saved, save_tags(disc, edits).result);
    EXPECT_EQ("disc", test::read_file(disc));
    _file_info_t info{};
    ASSERT_EQ(1, id3_load_file_info((folder_ / "film.TAG").c_str(), &info));
    EXPECT_STREQ("Harbour", info.title);
    id3_free_file_info(&info);
    EXPECT_EQ("Harbour", read_tags(disc).values.text(Field::title));
    ASSERT_EQ(SaveResult::saved, remove_tags(disc).result);
    EXPECT_FALSE(test::file_exists(folder_ / "film.TAG"));
    EXPECT_EQ(SaveResult::unchanged, remove_tags(disc).result);
}

} // namespace
} // namespace velmora
