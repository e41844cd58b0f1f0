#include "chunk_bytes.h"
#include "rewriting.h"

#include "support/bytes.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using namespace portable;
using test::chunk;
using test::edited;
using test::info;
using test::list;
using test::remove_text;
using test::riff;
using test::set_text;
using test::to_hex;
using test::values_in;

const std::string hdrl_list = list("hdrl", chunk("avih", "header"));
const std::string movi_list = list("movi", chunk("00dc", "frame"));
const std::string frames = chunk("idx1", "0123456789abcdef");

std::string film(const std::string& in_front, const std::string& behind) {
    return riff("AVI ", hdrl_list + in_front + movi_list + frames + behind);
}

std::string junk(std::size_t size) {
    return chunk("JUNK", std::string(size, '\0'));
}

TEST(AviTags, EachFieldHasItsCode) {
    const std::string items = info("INAM", "Title") + info("ISTR", "Cast") + info("ICMT", "Synopsis") +
                              info("IART", "Director") + info("IRTD", "PG-13") + info("IGNR", "Drama") +
                              info("ICRD", "2009-05-01") + chunk("IPIC", "\x89PNG\r\n\x1A\n...");
    const TagValues values = values_in(film(list("INFO", items), ""), "avi");
    EXPECT_EQ("Title", values.text(Field::title));
    EXPECT_EQ("Cast", values.text(Field::artist));
    EXPECT_EQ("Synopsis", values.text(Field::synopsis));
    EXPECT_EQ("Director", values.text(Field::director));
    EXPECT_EQ("PG-13", values.text(Field::rating));
    EXPECT_EQ("Drama", values.text(Field::genre));
    EXPECT_EQ(2009, values.year);
    EXPECT_EQ("image/png", values.cover->mime);
    EXPECT_EQ(11U, values.cover->bytes.size());
}

TEST(AviTags, WhatIsNoUtf8IsLatin1) {
    EXPECT_EQ("Jos\xC3\xA9",
              values_in(film("", list("INFO", info("INAM", "Jos\xE9"))), "avi").text(Field::title));
    EXPECT_EQ("Jos\xC3\xA9",
              values_in(film("", list("INFO", info("INAM", "Jos\xC3\xA9"))), "avi").text(Field::title));
}

TEST(AviTags, AListIsMadeDirectlyBehindTheIndex) {
    // clang-format off
    const std::string expected = test::hex(
        "52494646 68000000 41564920"                        // RIFF, 104 bytes, "AVI "
        "4C495354 12000000 6864726C 61766968 06000000 686561646572"
        "4C495354 12000000 6D6F7669 30306463 05000000 6672616D65 00"
        "69647831 10000000 30313233343536373839616263646566"
        "4C495354 10000000 494E464F 494E414D 04000000 4E657700");   // the list: "INAM", "New"
    // clang-format on
    EXPECT_EQ(to_hex(expected), to_hex(edited(film("", ""), "avi", set_text(Field::title, "New"))));
}

TEST(AviTags, AListInFrontOfTheMediaBecomesFreeAndItsOtherItemsGoOver) {
    const std::string old_list =
        list("INFO", info("ICOP", "Copyright") + info("INAM", "Old") + info("ISFT", "Maker"));
    const std::string new_list =
        list("INFO", info("ICOP", "Copyright") + info("INAM", "Longer") + info("ISFT", "Maker"));
    const std::string expected = film(junk(old_list.size() - 8) + junk(20), new_list);
    EXPECT_EQ(to_hex(expected),
              to_hex(edited(film(old_list + junk(20), ""), "avi", set_text(Field::title, "Longer"))));
}

TEST(AviTags, NothingFreeStaysBetweenTheIndexAndTheList) {
    const std::string list_of_title = list("INFO", info("INAM", "New"));
    const std::string expected = film("", list_of_title + chunk("XTRA", "more"));
    EXPECT_EQ(to_hex(expected), to_hex(edited(film("", junk(100) + chunk("XTRA", "more") + junk(2)), "avi",
                                              set_text(Field::title, "New"))));
}

TEST(AviTags, BothOfTwoListsAndOfTwoItemsAreReplaced) {
    const std::string first = list("INFO", info("INAM", "One") + info("IGNR", "Drama"));
    const std::string second = list("INFO", info("INAM", "Two") + info("INAM", "Three") + info("IKEY", "x"));
    const std::string expected =
        film(junk(first.size() - 8),
             list("INFO", info("INAM", "New") + info("IGNR", "Drama") + info("IKEY", "x")));
    EXPECT_EQ("One; Two; Three", values_in(film(first, second), "avi").text(Field::title));
    EXPECT_EQ(to_hex(expected), to_hex(edited(film(first, second), "avi", set_text(Field::title, "New"))));
}

TEST(AviTags, TheLastItemTakesTheListWithIt) {
    const std::string old = film("", list("INFO", info("INAM", "Old")));
    EXPECT_EQ(to_hex(film("", "")), to_hex(edited(old, "avi", remove_text(Field::title))));
    EXPECT_EQ(to_hex(film("", "")), to_hex(test::without_tags(old, "avi")));
}

TEST(AviTags, ACoverHasItsOwnBytes) {
    TagEdits edits;
    edits.cover = Edit<Cover>::set({{0xFF, 0xD8, 0xFF, 0xE0, 0x00}, "image/jpeg"});
    const std::string expected = film("", list("INFO", chunk("IPIC", std::string("\xFF\xD8\xFF\xE0\0", 5))));
    EXPECT_EQ(to_hex(expected), to_hex(edited(film("", ""), "avi", edits)));
}

TEST(AviTags, AWrongSizeInFrontIsPutRight) {
    std::string old = film("", "");
    old.replace(4, 4, test::le32(0));
    EXPECT_EQ(to_hex(film("", list("INFO", info("INAM", "New")))),
              to_hex(edited(old, "avi", set_text(Field::title, "New"))));
}

TEST(AviTags, AFilmThatIsCutOffIsShownAndNotSaved) {
    const std::string whole = film(list("INFO", info("INAM", "Title")), "");
    for (const std::size_t less : {1U, 20U, 30U}) {
        const std::string cut = whole.substr(0, whole.size() - less);
        EXPECT_EQ("Title", values_in(cut, "avi").text(Field::title));
        EXPECT_EQ(
            "the file is damaged (the last chunk reaches behind the end of the file)",
            test::refusal_of([&] { static_cast<void>(edited(cut, "avi", set_text(Field::title, "New"))); }));
    }
}

TEST(AviTags, AnItemThatReachesOutOfItsListIsNotLost) {
    std::string items = info("INAM", "Old") + chunk("IKEY", "1234");
    items[items.size() - 8] = 9;
    const std::string old = film("", list("INFO", items));
    EXPECT_EQ("the file is damaged (an item reaches out of the INFO list)", test::refusal_of([&] {
                  static_cast<void>(edited(old, "avi", set_text(Field::title, "New")));
              }));
}

TEST(AviTags, AnotherFormIsNoFilm) {
    EXPECT_EQ("the file is damaged (no AVI file)",
              test::refusal_of([] { static_cast<void>(values_in(riff("WAVE", ""), "avi")); }));
}

TEST(AviTags, FilesOfManyShapesAreReadOrRefused) {
    const std::string whole = film(list("INFO", info("INAM", "Title") + chunk("IPIC", "xyz")), junk(8));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        static_cast<void>(
            test::refusal_of([&] { static_cast<void>(values_in(whole.substr(0, length), "avi")); }));
        for (const char wrong : {'\0', '\x7F', '\xFF'}) {
            std::string bytes = whole;
            bytes[length] = wrong;
            static_cast<void>(test::refusal_of([&] { static_cast<void>(values_in(bytes, "avi")); }));
        }
    }
}

TEST(AviTags, MediaThatMovedAreFound) {
    EXPECT_EQ("",
              test::refusal_of([] { test::check_moved(film(junk(8), ""), film(junk(8), junk(4)), "avi"); }));
    EXPECT_EQ("the new file would have lost something (where the media are)",
              test::refusal_of([] { test::check_moved(film(junk(8), ""), film(junk(10), ""), "avi"); }));
}

/** A film in two RIFF chunks. */
std::string long_film(const std::string& in_front, const std::string& behind = "") {
    return film(in_front, behind) + riff("AVIX", movi_list);
}

TEST(OpenDmlTags, AListGoesIntoTheRoomOfTheOldOneAndTheFreeChunkBesideIt) {
    const std::string old_list = list("INFO", info("INAM", "Old") + info("ISFT", "Maker"));
    const std::string new_list = list("INFO", info("INAM", "Longer") + info("ISFT", "Maker"));
    const std::size_t more = new_list.size() - old_list.size();
    EXPECT_EQ(to_hex(long_film(new_list + junk(20 - more))),
              to_hex(edited(long_film(old_list + junk(20)), "avi", set_text(Field::title, "Longer"))));
}

TEST(OpenDmlTags, AListMayFillItsRoom) {
    const std::string new_list = list("INFO", info("INAM", "Title"));
    EXPECT_EQ(to_hex(long_film(new_list)),
              to_hex(edited(long_film(junk(new_list.size() - 8)), "avi", set_text(Field::title, "Title"))));
}

TEST(OpenDmlTags, AListBehindTheMediaMovesToTheRoomInFront) {
    const std::string old_list = list("INFO", info("INAM", "Old"));
    const std::string new_list = list("INFO", info("INAM", "New"));
    EXPECT_EQ(to_hex(long_film(new_list + junk(100 - new_list.size()), junk(old_list.size() - 8))),
              to_hex(edited(long_film(junk(100), old_list), "avi", set_text(Field::title, "New"))));
}

TEST(OpenDmlTags, WithoutRoomItIsRefused) {
    for (const std::string& in_front : {std::string(), junk(2), list("INFO", info("INAM", "Old"))}) {
        EXPECT_EQ("the file is of a sort that can't be saved safely (no room for the tag in an OpenDML film, "
                  "whose media "
                  "can't be moved)",
                  test::refusal_of([&] {
                      static_cast<void>(
                          edited(long_film(in_front), "avi", set_text(Field::title, "A longer title")));
                  }));
    }
}

TEST(OpenDmlTags, AListIsRemovedWithoutMovingAnything) {
    const std::string old_list = list("INFO", info("INAM", "Old"));
    EXPECT_EQ(to_hex(long_film(junk(old_list.size() - 8))),
              to_hex(test::without_tags(long_film(old_list), "avi")));
}

} // namespace
} // namespace velmora
