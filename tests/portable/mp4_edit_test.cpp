#include "box_bytes.h"
#include "rewriting.h"

#include "support/bytes.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using namespace portable;
using test::be16;
using test::be32;
using test::be64;
using test::box;
using test::edited;
using test::file_type_box;
using test::free_item;
using test::item;
using test::item_list;
using test::media_box;
using test::remove_text;
using test::set_text;
using test::to_hex;
using test::track;

TagEdits cover(const std::string& bytes, const std::string& mime) {
    TagEdits edits;
    edits.cover = Edit<Cover>::set({{bytes.begin(), bytes.end()}, mime});
    return edits;
}

TEST(Mp4Edit, AListIsMadeWhereThereIsNone) {
    // clang-format off
    const std::string expected = test::hex(
        "0000000C 66747970 69736F6D"                                  // ftyp
        "00000070 6D6F6F76"                                           // moov
        "00000068 75647461"                                           // udta
        "00000060 6D657461 00000000"                                  // meta, version and flags
        "00000021 68646C72 00000000 00000000 6D646972 6170706C 00000000 00000000 00" // hdlr "mdir" "appl"
        "00000033 696C7374"                                           // ilst
        "0000002B A96E616D 00000023 64617461 00000001 00000000"       // the item, its data: UTF-8
        "41207469746C6520696E205554462D38 20 C3A9"
        "0000000D 6D646174 6D65646961");                              // mdat
    // clang-format on
    const std::string made = edited(file_type_box + box("moov", "") + media_box, "mp4",
                                    set_text(Field::title, "A title in UTF-8 \xC3\xA9"));
    EXPECT_EQ(to_hex(expected), to_hex(made));
}

TEST(Mp4Edit, OtherItemsStayInTheirPlaces) {
    const std::string before = item("\xA9too", "Encoder") + item("xyzw", "unknown", 77);
    const std::string after = free_item("org.example", "Own", "value") + item("\xA9"
                                                                              "cmt",
                                                                              "Comment");
    const std::string old =
        file_type_box + media_box + box("moov", item_list(before + item("\xA9nam", "Old") + after));
    const std::string expected =
        file_type_box + media_box + box("moov", item_list(before + item("\xA9nam", "Longer") + after));
    EXPECT_EQ(to_hex(expected), to_hex(edited(old, "mp4", set_text(Field::title, "Longer"))));
}

TEST(Mp4Edit, ADeletedItemGoes) {
    const std::string old = file_type_box + media_box +
                            box("moov", item_list(item("\xA9nam", "Old") + item("\xA9"
                                                                                "cmt",
                                                                                "Comment")));
    const std::string expected = file_type_box + media_box +
                                 box("moov", item_list(item("\xA9"
                                                            "cmt",
                                                            "Comment")));
    EXPECT_EQ(to_hex(expected), to_hex(edited(old, "mp4", remove_text(Field::title))));
}

TEST(Mp4Edit, DeletingWhatIsNotThereChangesNothing) {
    const std::string old = file_type_box + box("moov", track(be32(20))) + media_box;
    EXPECT_EQ(to_hex(old), to_hex(edited(old, "mp4", remove_text(Field::title))));
}

TEST(Mp4Edit, OffsetsFollowTheMediaBehindMoov) {
    const std::size_t small = file_type_box.size() + 8 + track(be32(0)).size() + 8;
    const std::string old = file_type_box + box("moov", track(be32(small))) + media_box;
    const std::string list = item_list(item("\xA9nam", "Title"));
    const std::string expected =
        file_type_box + box("moov", track(be32(small + list.size())) + list) + media_box;
    EXPECT_EQ(to_hex(expected), to_hex(edited(old, "mp4", set_text(Field::title, "Title"))));
}

TEST(Mp4Edit, OffsetsInFrontOfMoovStay) {
    const std::string offsets = be32(file_type_box.size() + 8);
    const std::string old = file_type_box + media_box + box("moov", track(offsets));
    const std::string expected =
        file_type_box + media_box + box("moov", track(offsets) + item_list(item("\xA9nam", "Title")));
    EXPECT_EQ(to_hex(expected), to_hex(edited(old, "mp4", set_text(Field::title, "Title"))));
}

TEST(Mp4Edit, MediaOnBothSidesOfMoovAreFoundAgain) {
    const std::string other = box("mdat", "others");
    const std::size_t first = file_type_box.size() + 8;
    const std::size_t moov = 8 + track(std::string(8, '\0')).size();
    const std::size_t second = file_type_box.size() + media_box.size() + moov + 8;
    const std::string list = item_list(item("\xA9nam", "Title"));
    const std::string old =
        file_type_box + media_box + box("moov", track(be32(second) + be32(first))) + other;
    const std::string expected = file_type_box + media_box +
                                 box("moov", track(be32(second + list.size()) + be32(first)) + list) + other;
    EXPECT_EQ(to_hex(expected), to_hex(edited(old, "mov", set_text(Field::title, "Title"))));
}

TEST(Mp4Edit, OffsetsOf64BitsFollowToo) {
    const auto with = [](std::size_t offset, const std::string& list) {
        const std::string table = box("co64", be32(0) + be32(1) + be64(offset));
        return file_type_box + box("moov", box("trak", box("mdia", box("minf", box("stbl", table)))) + list) +
               media_box;
    };
    const std::string list = item_list(item("\xA9nam", "Title"));
    const std::size_t place = with(0, "").size() - 5;
    EXPECT_EQ(to_hex(with(place + list.size(), list)),
              to_hex(edited(with(place, ""), "mp4", set_text(Field::title, "Title"))));
}

TEST(Mp4Edit, AnOffsetThatWouldNotFitIsRefused) {
    const std::string old = file_type_box + box("moov", track(be32(0xFFFFFFF0))) + media_box;
    EXPECT_EQ("the file is damaged (an offset points behind the end of the file)", test::refusal_of([&] {
                  static_cast<void>(edited(old, "mp4", set_text(Field::title, "Title")));
              }));
}

TEST(Mp4Edit, OffsetsIntoOtherFilesStay) {
    const auto with = [](const std::string& list) {
        const std::string table = box("stco", be32(0) + be32(1) + be32(4711));
        const std::string reference =
            box("dinf", box("dref", be32(0) + be32(1) + box("url ", be32(0) + "x.mp4")));
        return file_type_box +
               box("moov", box("trak", box("mdia", box("minf", reference + box("stbl", table)))) + list) +
               media_box;
    };
    const std::string list = item_list(item("\xA9nam", "Title"));
    EXPECT_EQ(to_hex(with(list)), to_hex(edited(with(""), "mov", set_text(Field::title, "Title"))));
}

/** A film in fragments, with offsets that count from the file's beginning in their headers and behind
   them. */
std::string fragments(const std::string& list) {
    const std::string moov = box("moov", list);
    const std::string index =
        box("sidx", be32(0) + be32(1) + be32(1000) + be32(0) + be32(0) + be16(0) + be16(0));
    const std::size_t fragment = file_type_box.size() + moov.size() + index.size();
    const std::string header = box("tfhd", be32(1) + be32(1) + be64(fragment));
    const std::string access =
        box("tfra", be32(0x01000000) + be32(1) + be32(0) + be32(1) + be64(0) + be64(fragment) + "\1\1\1");
    return file_type_box + moov + index + box("moof", box("traf", header)) + media_box + box("mfra", access);
}

TEST(Mp4Edit, OffsetsOfFragmentsFollow) {
    const std::string list = item_list(item("\xA9nam", "Title"));
    EXPECT_EQ(to_hex(fragments(list)), to_hex(edited(fragments(""), "mp4", set_text(Field::title, "Title"))));
}

TEST(Mp4Edit, AnIndexInFrontOfMoovFindsItsMediaAgain) {
    const auto with = [](const std::string& list) {
        const std::string moov = box("moov", list);
        const std::string index =
            box("sidx", be32(0) + be32(1) + be32(1000) + be32(0) + be32(moov.size()) + be32(0));
        return file_type_box + index + moov + media_box;
    };
    const std::string list = item_list(item("\xA9nam", "Title"));
    EXPECT_EQ(to_hex(with(list)), to_hex(edited(with(""), "mp4", set_text(Field::title, "Title"))));
}

TEST(Mp4Edit, FreeBytesBesideTheListTakeUpTheDifference) {
    const auto with = [](const std::string& title, std::size_t padding) {
        const std::string free = box("free", std::string(padding, '\0'));
        return file_type_box +
               box("moov", track(be32(file_type_box.size())) + item_list(item("\xA9nam", title), free)) +
               media_box;
    };
    EXPECT_EQ(to_hex(with("Longer", 97)),
              to_hex(edited(with("Old", 100), "mp4", set_text(Field::title, "Longer"))));
    EXPECT_EQ(to_hex(with("X", 102)), to_hex(edited(with("Old", 100), "mp4", set_text(Field::title, "X"))));
}

TEST(Mp4Edit, FreeBytesBehindMoovTakeUpTheDifference) {
    const std::string list = item_list(item("\xA9nam", "Title"));
    const std::string old =
        file_type_box + box("moov", "") + box("free", std::string(list.size() + 10, '\0')) + media_box;
    const std::string expected =
        file_type_box + box("moov", list) + box("free", std::string(10, '\0')) + media_box;
    EXPECT_EQ(to_hex(expected), to_hex(edited(old, "mp4", set_text(Field::title, "Title"))));
}

TEST(Mp4Edit, WhatATagNoLongerNeedsBecomesFreeWhereMediaFollow) {
    const std::string rest = item("\xA9too", "Encoder");
    const std::string gone = item("\xA9nam", "Title");
    const std::string old = file_type_box + box("moov", item_list(rest + gone)) + media_box;
    const std::string expected =
        file_type_box + box("moov", item_list(rest, box("free", std::string(gone.size() - 8, '\0')))) +
        media_box;
    EXPECT_EQ(to_hex(expected), to_hex(edited(old, "mp4", remove_text(Field::title))));
}

TEST(Mp4Edit, MediaInFreeBytesAreNotOverwritten) {
    const std::string free = box("free", std::string(200, 'm'));
    const std::size_t moov = 8 + track(be32(0)).size();
    const std::string old =
        file_type_box + box("moov", track(be32(file_type_box.size() + moov + 8))) + free + media_box;
    EXPECT_EQ(
        "the file is of a sort that can't be saved safely (media among the tags)",
        test::refusal_of([&] { static_cast<void>(edited(old, "mp4", set_text(Field::title, "Title"))); }));
}

TEST(Mp4Edit, ASynopsisIsWrittenWholeAndInShort) {
    std::string text;
    std::string beginning;
    for (int i = 0; i < 300; ++i) {
        text += "\xC3\xA9";
        beginning += i < 255 ? "\xC3\xA9" : "";
    }
    const std::string old = file_type_box + media_box + box("moov", item_list(item("desc", "Old")));
    const std::string expected =
        file_type_box + media_box + box("moov", item_list(item("desc", beginning) + item("ldes", text)));
    EXPECT_EQ(to_hex(expected), to_hex(edited(old, "mp4", set_text(Field::synopsis, text))));
}

TEST(Mp4Edit, ANumberedGenreGivesWayToItsName) {
    const std::string old = file_type_box + media_box + box("moov", item_list(item("gnre", be16(18), 0)));
    const std::string expected = file_type_box + media_box + box("moov", item_list(item("\xA9gen", "Jazz")));
    EXPECT_EQ(to_hex(expected), to_hex(edited(old, "m4a", set_text(Field::genre, "Jazz"))));
}

TEST(Mp4Edit, ARatingHasItsSystemAndNumber) {
    const auto with = [](const std::string& value) {
        return file_type_box + media_box +
               box("moov", item_list(free_item("com.apple.iTunes", "iTunEXTC", value)));
    };
    EXPECT_EQ(to_hex(with("mpaa|PG-13|300|")),
              to_hex(edited(with("mpaa|R|400|violence"), "mp4", set_text(Field::rating, "PG-13"))));
    EXPECT_EQ(to_hex(with("us-tv|TV-MA|600|x")),
              to_hex(edited(with("us-tv|TV-MA|600|x"), "mp4", set_text(Field::rating, "TV-MA"))));
    EXPECT_EQ(to_hex(with("mpaa|Other|0|")),
              to_hex(edited(with("mpaa|R|400|"), "mp4", set_text(Field::rating, "Other"))));
}

TEST(Mp4Edit, ADateKeepsItsMonthWhileItsYearStays) {
    const auto with = [](const std::string& date) {
        return file_type_box + media_box +
               box("moov", item_list(item("\xA9"
                                          "day",
                                          date)));
    };
    TagEdits edits;
    edits.year = Edit<int>::set(2009);
    EXPECT_EQ(to_hex(with("2009-05-01")), to_hex(edited(with("2009-05-01"), "mp4", edits)));
    EXPECT_EQ(to_hex(with("2009")), to_hex(edited(with("2008-05-01"), "mp4", edits)));
}

TEST(Mp4Edit, ACoverReplacesTheFirstPictureAndLeavesTheOthers) {
    const auto picture = [](unsigned kind, const std::string& bytes) {
        return box("data", be32(kind) + be32(0) + bytes);
    };
    const auto with = [&](const std::string& first) {
        return file_type_box + media_box + box("moov", item_list(box("covr", first + picture(13, "second"))));
    };
    EXPECT_EQ(to_hex(with(picture(14, "new"))),
              to_hex(edited(with(picture(13, "old")), "mp4", cover("new", "image/png"))));
    TagEdits edits;
    edits.cover = Edit<Cover>::remove();
    EXPECT_EQ(to_hex(file_type_box + media_box + box("moov", item_list(""))),
              to_hex(edited(with(picture(13, "old")), "mp4", edits)));
}

TEST(Mp4Edit, ACoverOfAKindThatMp4DoesNotKnowIsRefused) {
    EXPECT_EQ(
        "the file is of a sort that can't be saved safely (a cover that is no JPEG, PNG, BMP or GIF picture)",
        test::refusal_of([] {
            static_cast<void>(edited(file_type_box + box("moov", ""), "mp4", cover("x", "image/webp")));
        }));
}

TEST(Mp4Edit, QuickTimeUserDataAreUpdatedWhereTheyExist) {
    const auto user_data = [](const std::string& title, const std::string& list) {
        return box("udta", box("\xA9nam", be16(static_cast<unsigned>(title.size())) + be16(0x55C4) + title) +
                               box("\xA9xyz", "place") + list + be32(0));
    };
    const std::string old = file_type_box + media_box + box("moov", user_data("Old", ""));
    const std::string list = item_list(item("\xA9nam", "New title")).substr(8);
    const std::string expected = file_type_box + media_box + box("moov", user_data("New title", list));
    EXPECT_EQ(to_hex(expected), to_hex(edited(old, "mov", set_text(Field::title, "New title"))));
}

TEST(Mp4Edit, QuickTimeKeysAreUpdatedWhereTheyExist) {
    const auto keys = [](const std::string& items) {
        const std::string names =
            box("keys", be32(0) + be32(2) + box("mdta", "title") + box("mdta", "location"));
        const std::string handler = box("hdlr", be32(0) + be32(0) + "mdta" + std::string(13, '\0'));
        return box("meta", handler + names + box("ilst", items));
    };
    const std::string place = item(be32(2), "Rome");
    const std::string old = file_type_box + media_box + box("moov", keys(item(be32(1), "Old") + place));
    const std::string expected =
        file_type_box + media_box +
        box("moov", keys(item(be32(1), "New") + place) + item_list(item("\xA9nam", "New")));
    EXPECT_EQ(to_hex(expected), to_hex(edited(old, "mov", set_text(Field::title, "New"))));
    EXPECT_EQ(to_hex(file_type_box + media_box + box("moov", keys(place))),
              to_hex(edited(old, "mov", remove_text(Field::title))));
}

TEST(Mp4Edit, AMoovOf64BitsOfSizeStaysOne) {
    const auto with = [](const std::string& content) {
        return file_type_box + media_box + be32(1) + "moov" + be64(16 + content.size()) + content;
    };
    const std::string expected = with(item_list(item("\xA9nam", "Title")));
    EXPECT_EQ(to_hex(expected), to_hex(edited(with(""), "mp4", set_text(Field::title, "Title"))));
}

TEST(Mp4Edit, AFileWhoseMediaWereCutOffIsRefused) {
    const std::string old = file_type_box + box("moov", "") + media_box.substr(0, media_box.size() - 1);
    EXPECT_EQ("the file is damaged (the last box reaches behind the end of the file)", test::refusal_of([&] {
                  static_cast<void>(edited(old, "mp4", set_text(Field::title, "Title")));
              }));
}

TEST(Mp4Edit, RemovalTakesEveryTag) {
    const std::string text = box("\xA9nam", be16(2) + be16(0x55C4) + "QT");
    const std::string list = item_list(item("\xA9nam", "Title")).substr(8);
    const std::string old = file_type_box + media_box +
                            box("moov", track(be32(20)) + box("udta", text + box("chpl", "chapters") + list));
    const std::string expected =
        file_type_box + media_box + box("moov", track(be32(20)) + box("udta", box("chpl", "chapters")));
    EXPECT_EQ(to_hex(expected), to_hex(test::without_tags(old, "mov")));
}

TEST(Mp4Edit, AMetaBoxWithoutAListGetsOne) {
    const std::string handler = box("hdlr", be32(0) + be32(0) + "mdir" + std::string(13, '\0'));
    const auto with = [&](const std::string& in_meta) {
        return file_type_box + media_box + box("moov", box("udta", box("meta", be32(0) + handler + in_meta)));
    };
    EXPECT_EQ(to_hex(with(box("ilst", item("\xA9nam", "Title")))),
              to_hex(edited(with(""), "mp4", set_text(Field::title, "Title"))));
}

TEST(Mp4Edit, AListOfKeysInUserDataStaysBehindTheNewList) {
    const std::string handler = box("hdlr", be32(0) + be32(0) + "mdta" + std::string(13, '\0'));
    const std::string keys = box("meta", handler + box("keys", be32(0) + be32(1) + box("mdta", "mood")) +
                                             box("ilst", item(be32(1), "calm")));
    const std::string list = item_list(item("\xA9nam", "Title")).substr(8);
    const std::string expected = file_type_box + media_box + box("moov", box("udta", list + keys));
    EXPECT_EQ(to_hex(expected), to_hex(edited(file_type_box + media_box + box("moov", box("udta", keys)),
                                              "mov", set_text(Field::title, "Title"))));
}

TEST(Mp4Edit, AnOffsetThatDidNotFollowIsFound) {
    const std::size_t place = file_type_box.size() + 8 + track(be32(0)).size() + 8;
    const std::string list = item_list(item("\xA9nam", "Title"));
    const std::string old = file_type_box + box("moov", track(be32(place))) + media_box;
    const auto made = [&](std::size_t offset) {
        return file_type_box + box("moov", track(be32(offset)) + list) + media_box;
    };
    EXPECT_EQ("", test::refusal_of([&] { test::check_moved(old, made(place + list.size()), "mp4"); }));
    for (const std::size_t wrong : {place, place + list.size() + 1, place + list.size() - 1}) {
        EXPECT_EQ("the new file would have lost something (where the media are)",
                  test::refusal_of([&] { test::check_moved(old, made(wrong), "mp4"); }));
    }
}

} // namespace
} // namespace velmora
