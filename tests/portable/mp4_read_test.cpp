#include "box_bytes.h"
#include "rewriting.h"

#include "support/bytes.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

using namespace portable;
using namespace std::string_literals;
using test::be16;
using test::be32;
using test::box;
using test::file_type_box;
using test::free_item;
using test::item;
using test::item_list;
using test::media_box;
using test::values_in;

std::string file_with(const std::string& in_moov) {
    return file_type_box + box("moov", in_moov) + media_box;
}

TEST(Mp4Read, EachFieldOfAFilmComesFromItsItem) {
    const std::string items = item("\xA9nam", "Title") +
                              item("\xA9"
                                   "ART",
                                   "Cast") +
                              free_item("com.apple.iTunes", "DIRECTOR", "Director") + item("desc", "Short") +
                              item("ldes", "Long") + item("\xA9gen", "Drama") +
                              free_item("com.apple.iTunes", "iTunEXTC", "mpaa|PG-13|300|note") +
                              item("\xA9"
                                   "day",
                                   "2009-05-01T07:00:00Z") +
                              item("covr", "\xFF\xD8pic", 13);
    const TagValues values = values_in(file_with(item_list(items)), "mp4");
    EXPECT_EQ("Title", values.text(Field::title));
    EXPECT_EQ("Cast", values.text(Field::artist));
    EXPECT_EQ("Director", values.text(Field::director));
    EXPECT_EQ("Long", values.text(Field::synopsis));
    EXPECT_EQ("Drama", values.text(Field::genre));
    EXPECT_EQ("PG-13", values.text(Field::rating));
    EXPECT_EQ(2009, values.year);
    EXPECT_EQ("image/jpeg", values.cover->mime);
    EXPECT_EQ((std::vector<std::uint8_t>{0xFF, 0xD8, 'p', 'i', 'c'}), values.cover->bytes);
}

TEST(Mp4Read, ASongHasAnAlbumAndNoDirector) {
    const std::string items = item("\xA9"
                                   "alb",
                                   "Album") +
                              free_item("com.apple.iTunes", "DIRECTOR", "Director");
    const TagValues values = values_in(file_with(item_list(items)), "m4a");
    EXPECT_EQ("Album", values.text(Field::album));
    EXPECT_EQ(std::nullopt, values.text(Field::director));
}

TEST(Mp4Read, SeveralValuesOfAnItemAreJoined) {
    const std::string two =
        box("\xA9nam", box("data", be32(1) + be32(0) + "One") + box("data", be32(1) + be32(0) + "Two"));
    EXPECT_EQ("One; Two", values_in(file_with(item_list(two)), "m4a").text(Field::title));
}

TEST(Mp4Read, ANumberedGenreIsReadAsItsName) {
    EXPECT_EQ("Rock", values_in(file_with(item_list(item("gnre", be16(18), 0))), "m4a").text(Field::genre));
}

TEST(Mp4Read, ATextInUtf16IsRead) {
    const std::string title = "\x00"
                              "A\x04\x16"s;
    EXPECT_EQ("A\xD0\x96",
              values_in(file_with(item_list(item("\xA9nam", title, 2))), "m4a").text(Field::title));
}

TEST(Mp4Read, DamagedUtf8ShowsTheReplacementCharacter) {
    EXPECT_EQ("a\xEF\xBF\xBD",
              values_in(file_with(item_list(item("\xA9nam", "a\xFF"))), "m4a").text(Field::title));
}

TEST(Mp4Read, TheKindOfACoverWithoutOneIsToldByItsBytes) {
    const TagValues values = values_in(file_with(item_list(item("covr", "\x89PNG\r\n\x1A\n", 0))), "m4a");
    EXPECT_EQ("image/png", values.cover->mime);
}

TEST(Mp4Read, QuickTimeUserDataCountWhereNoItemSaysMore) {
    const std::string texts =
        box("\xA9nam", be16(2) + be16(0x55C4) + "QT") + box("\xA9"
                                                            "ART",
                                                            be16(4) + be16(0) + "Jos\x8E");
    const std::string list = item_list(item("\xA9nam", "Item"));
    const std::string user_data = box("udta", texts + list.substr(8) + be32(0));
    const TagValues values = values_in(file_with(user_data), "mov");
    EXPECT_EQ("Item", values.text(Field::title));
    EXPECT_EQ("Jos\xC3\xA9", values.text(Field::artist)); // Mac Roman
}

TEST(Mp4Read, QuickTimeKeysAreRead) {
    const std::string keys = box("keys", be32(0) + be32(2) + box("mdta", "com.apple.quicktime.title") +
                                             box("mdta", "com.apple.quicktime.director"));
    const std::string handler = box("hdlr", be32(0) + be32(0) + "mdta" + std::string(13, '\0'));
    const std::string list = box("ilst", item(be32(2), "Director") + item(be32(1), "Title"));
    const TagValues values = values_in(file_with(box("meta", handler + keys + list)), "mov");
    EXPECT_EQ("Title", values.text(Field::title));
    EXPECT_EQ("Director", values.text(Field::director));
}

TEST(Mp4Read, AFileWithoutATagSaysNothing) {
    EXPECT_EQ(TagValues{}, values_in(file_with(""), "mp4"));
}

TEST(Mp4Read, AFileWithoutMoovIsDamaged) {
    EXPECT_EQ("the file is damaged (no moov box)",
              test::refusal_of([] { static_cast<void>(values_in(file_type_box + media_box, "mp4")); }));
}

TEST(Mp4Read, ABoxThatReachesOutOfMoovIsDamaged) {
    std::string list = item_list(item("\xA9nam", "Title"));
    list[3] = static_cast<char>(list[3] + 1);
    EXPECT_EQ("the file is damaged (a box in moov reaches out of it)",
              test::refusal_of([&] { static_cast<void>(values_in(file_with(list), "mp4")); }));
}

TEST(Mp4Read, AFileCutAnywhereIsReadOrRefused) {
    const std::string whole = file_with(item_list(item("\xA9nam", "Title") + item("covr", "\xFF\xD8", 13)));
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string why = test::refusal_of(
            [&] { static_cast<void>(values_in(std::string_view(whole).substr(0, length), "mp4")); });
        const bool has_moov = length >= whole.size() - media_box.size();
        EXPECT_EQ(has_moov, why.empty()) << length << ": " << why;
    }
}

TEST(Mp4Read, EachByteOfTheTagMayBeWrong) {
    const std::string whole = file_with(item_list(item("\xA9nam", "Title") + free_item("a", "b", "c")));
    for (std::size_t at = file_type_box.size(); at < whole.size() - media_box.size(); ++at) {
        for (const char wrong : {'\0', '\1', '\x7F', '\xFF'}) {
            std::string bytes = whole;
            bytes[at] = wrong;
            static_cast<void>(test::refusal_of([&] { static_cast<void>(values_in(bytes, "mp4")); }));
        }
    }
}

} // namespace
} // namespace velmora
