#include "asf_fixture.h"
#include "rewriting.h"

#include "portable/reason.h"
#include "support/bytes.h"

#include <gtest/gtest.h>

namespace velmora::portable {
namespace {

using namespace test;

TagEdits remove_cover() {
    TagEdits edits;
    edits.cover = Edit<Cover>::remove();
    return edits;
}

TEST(AsfEdit, WithNothingToDoGivesTheSameBytes) {
    const std::string file = asf_file({content_description("Harbour", "Ada"), padding(40)});

    EXPECT_EQ(to_hex(file), to_hex(asf_with(file, {})));
    EXPECT_EQ(to_hex(file), to_hex(asf_with(file, set_text(Field::title, "Harbour"))));
}

TEST(AsfEdit, SetsATextOfTheContentDescription) {
    const std::string mood = ext_content_description({text_descriptor("WM/Mood", "calm")});

    EXPECT_EQ(to_hex(asf_file({content_description("Evening", "Ada", "c", "d", "r"), mood})),
              to_hex(asf_with(asf_file({content_description("Harbour", "Ada", "c", "d", "r"), mood}),
                              set_text(Field::title, "Evening"))));
}

TEST(AsfEdit, SetsAnAttributeInItsPlace) {
    const auto file = [](std::string_view genre) {
        return asf_file({ext_content_description(
            {text_descriptor("WM/Genre", genre), text_descriptor("WM/Mood", "calm")})});
    };

    EXPECT_EQ(to_hex(file("Rock")), to_hex(asf_with(file("Folk"), set_text(Field::genre, "Rock"))));
}

TEST(AsfEdit, AddsAnObjectThatIsMissingInFrontOfThePadding) {
    EXPECT_EQ(to_hex(asf_file({content_description("Harbour", ""), padding(24)})),
              to_hex(asf_with(asf_file({padding(24)}), set_text(Field::title, "Harbour"))));
    EXPECT_EQ(to_hex(asf_file({ext_content_description({text_descriptor("WM/Genre", "Folk")})})),
              to_hex(asf_with(asf_file({}), set_text(Field::genre, "Folk"))));
}

TEST(AsfEdit, TakesTheDifferenceFromThePaddingSoThatTheMediaStays) {
    const std::string old = asf_file({content_description("Harbour", ""), padding(100)});
    const std::string longer = asf_with(old, set_text(Field::title, "Harbour lights"));
    const std::string zeros = hex(padding_guid) + u64(86) + std::string(62, '\0');

    EXPECT_EQ(to_hex(asf_file({content_description("Harbour lights", ""), zeros})), to_hex(longer));
    EXPECT_EQ(old.size(), longer.size());
}

TEST(AsfEdit, LeavesPaddingAloneThatIsTooSmall) {
    EXPECT_EQ(to_hex(asf_file({content_description("Harbour lights", ""), padding(30)})),
              to_hex(asf_with(asf_file({content_description("Harbour", ""), padding(30)}),
                              set_text(Field::title, "Harbour lights"))));
}

TEST(AsfEdit, MovesTheMediaOfALargeFileByWholeBlocks) {
    const std::string large =
        hex("0102030405060708090A0B0C0D0E0F10") + u64(24 + (1 << 20)) + pattern(1 << 20);
    const auto zeros = [](std::size_t size) {
        return hex(padding_guid) + u64(size) + std::string(size - 24, '\0');
    };
    const std::string old = asf_file({content_description("Harbour", ""), large});
    const std::string longer = asf_with(old, set_text(Field::title, "Harbour lights"));
    EXPECT_TRUE(asf_file({content_description("Harbour lights", ""), large, zeros(4082)}) == longer);
    EXPECT_EQ(old.size() + 4096, longer.size());
    // 6 bytes fewer would leave no room for the padding's own header.
    EXPECT_TRUE(asf_file({content_description("Harb", ""), large, zeros(4102)}) ==
                asf_with(old, set_text(Field::title, "Harb")));
    // 14 bytes are more than the padding can give.
    EXPECT_TRUE(asf_file({content_description("Harbour lights", ""), large, zeros(30 + 4082)}) ==
                asf_with(asf_file({content_description("Harbour", ""), large, zeros(30)}),
                         set_text(Field::title, "Harbour lights")));
}

TEST(AsfEdit, DeletesAFieldInEveryPlace) {
    const std::string old = asf_file(
        {content_description("Harbour", "Ada"),
         ext_content_description({text_descriptor("Title", "Harbour"), text_descriptor("WM/Mood", "calm"),
                                  text_descriptor("Title", "Port")}),
         header_extension({metadata_library({metadata_record(1, 0, "Title", 0, wide_z("Hafen")),
                                             metadata_record(0, 2, "Title", 0, wide_z("Stream"))})})});

    EXPECT_EQ(
        to_hex(asf_file(
            {content_description("", "Ada"), ext_content_description({text_descriptor("WM/Mood", "calm")}),
             header_extension({metadata_library({metadata_record(0, 2, "Title", 0, wide_z("Stream"))})})})),
        to_hex(asf_with(old, remove_text(Field::title))));
}

TEST(AsfEdit, UpdatesASecondPlaceOfTheValueAndTakesOutOtherValues) {
    const std::string old = asf_file(
        {content_description("", "Ada"),
         ext_content_description({text_descriptor("Author", "Ada"), text_descriptor("WM/Mood", "calm")}),
         header_extension({metadata_library({metadata_record(0, 0, "Author", 0, wide_z("Bo")),
                                             metadata_record(0, 0, "Mood", 0, wide_z("calm"))})})});

    EXPECT_EQ(
        to_hex(asf_file(
            {content_description("", "Cy"),
             ext_content_description({text_descriptor("Author", "Cy"), text_descriptor("WM/Mood", "calm")}),
             header_extension({metadata_library({metadata_record(0, 0, "Mood", 0, wide_z("calm"))})})})),
        to_hex(asf_with(old, set_text(Field::artist, "Cy"))));
}

TEST(AsfEdit, UpdatesAnOlderNameWhereItExists) {
    const std::string old = asf_file({ext_content_description({text_descriptor("Genre", "Folk")})});

    EXPECT_EQ(to_hex(asf_file({ext_content_description(
                  {text_descriptor("Genre", "Rock"), text_descriptor("WM/Genre", "Rock")})})),
              to_hex(asf_with(old, set_text(Field::genre, "Rock"))));
    EXPECT_EQ(to_hex(asf_file({})), to_hex(asf_with(old, remove_text(Field::genre))));
}

TEST(AsfEdit, UpdatesNamesInSmallLettersThatOtherProgramsRead) {
    const auto file = [](std::string_view title, std::string_view year, const std::string& added) {
        return asf_file({content_description(title, "", "", "", ""),
                         object(ecd_guid, u16(added.empty() ? 2 : 3) + text_descriptor("title", title) +
                                              text_descriptor("date", year) + added)});
    };
    TagEdits edits = set_text(Field::title, "Evening");
    edits.year = Edit<int>::set(1995);

    EXPECT_EQ(to_hex(file("Evening", "1995", text_descriptor("WM/Year", "1995"))),
              to_hex(asf_with(file("Harbour", "1994", ""), edits)));
}

TEST(AsfEdit, KeepsMonthAndDayWhileTheYearStays) {
    const auto file = [](std::string_view date) {
        return asf_file({ext_content_description({text_descriptor("WM/Year", date)})});
    };

    EXPECT_EQ(to_hex(file("1994-05-03")), to_hex(asf_with(file("1994-05-03"), set_year(1994))));
    EXPECT_EQ(to_hex(file("1995")), to_hex(asf_with(file("1994-05-03"), set_year(1995))));
}

TEST(AsfEdit, SetsAYearThatWasANumberAsAText) {
    EXPECT_EQ(to_hex(asf_file({ext_content_description({text_descriptor("WM/Year", "1995")})})),
              to_hex(asf_with(asf_file({ext_content_description({descriptor("WM/Year", 3, u32(1994))})}),
                              set_year(1995))));
}

TEST(AsfEdit, TakesATextOf65534BytesAndRefusesALongerOne) {
    const std::string longest(32767, 'x');
    const std::string file = asf_with(asf_file({}), set_text(Field::title, longest));

    EXPECT_EQ(
        to_hex(asf_file({object(cd_guid, u16(65534) + u16(0) + u16(0) + u16(0) + u16(0) + wide(longest))})),
        to_hex(file));
    try {
        static_cast<void>(asf_with(asf_file({}), set_text(Field::title, longest + "x")));
        FAIL() << "not refused";
    } catch (const Refusal& refusal) {
        EXPECT_EQ(ReasonCode::too_large, refusal.reason().code);
    }
}

TEST(AsfEdit, WritesEveryScript) {
    const std::string file = asf_with(asf_file({}), set_text(Field::title, "\xc3\xa4\xf0\x9f\x8e\xac"));

    EXPECT_EQ(to_hex(asf_file({object(cd_guid, u16(8) + u16(0) + u16(0) + u16(0) + u16(0) +
                                                   hex("e400 3cd8 acdf 0000"))})),
              to_hex(file));
}

TEST(AsfCover, IsReplacedInItsPlaceAndOtherPicturesStay) {
    const std::string back = descriptor("WM/Picture", 1, asf_picture(4, "image/png", "back"));
    const auto file = [&](const std::string& picture) {
        return asf_file({ext_content_description({back, descriptor("WM/Picture", 1, picture)})});
    };

    EXPECT_EQ(
        to_hex(file(asf_picture(3, "image/png", "new one"))),
        to_hex(asf_with(file(asf_picture(3, "image/jpeg", "front")), set_cover("image/png", "new one"))));
}

TEST(AsfCover, OfNoKindBecomesTheFrontCover) {
    const auto file = [](const std::string& picture) {
        return asf_file({ext_content_description({descriptor("WM/Picture", 1, picture)})});
    };

    EXPECT_EQ(to_hex(file(asf_picture(3, "image/png", "new"))),
              to_hex(asf_with(file(asf_picture(0, "image/jpeg", "old")), set_cover("image/png", "new"))));
}

TEST(AsfCover, ThatIsLargeGoesIntoTheMetadataLibrary) {
    const std::string large = pattern(70000);
    const std::string record = metadata_record(0, 0, "WM/Picture", 1, asf_picture(3, "image/jpeg", large));
    const std::string old =
        ext_content_description({descriptor("WM/Picture", 1, asf_picture(3, "image/jpeg", "front")),
                                 text_descriptor("WM/Mood", "calm")});
    const std::string rest = ext_content_description({text_descriptor("WM/Mood", "calm")});

    EXPECT_EQ(to_hex(asf_file({rest, header_extension({metadata_library({record})})})),
              to_hex(asf_with(asf_file({old}), set_cover("image/jpeg", large))));
    EXPECT_EQ(
        to_hex(asf_file({header_extension({padding(30), metadata_library({record})}), rest})),
        to_hex(asf_with(asf_file({header_extension({padding(30)}), old}), set_cover("image/jpeg", large))));
}

TEST(AsfCover, IsDeletedWithAllFrontCoversAndNoOther) {
    const std::string other = descriptor("WM/Picture", 1, asf_picture(0, "image/png", "other"));
    const std::string front = descriptor("WM/Picture", 1, asf_picture(3, "image/png", "front"));

    const std::string file =
        asf_with(asf_file({ext_content_description({front, other, front})}), remove_cover());

    EXPECT_EQ(to_hex(asf_file({ext_content_description({other})})), to_hex(file));
}

TEST(AsfCover, ThatIsDeletedLetsAPictureOfNoKindShow) {
    const std::string other = descriptor("WM/Picture", 1, asf_picture(0, "image/png", "other"));
    const std::string front = descriptor("WM/Picture", 1, asf_picture(3, "image/png", "front"));
    const std::string file = asf_file({ext_content_description({other, front})});
    OpenBytes open(file);

    EXPECT_EQ((Cover{{'o', 't', 'h', 'e', 'r'}, "image/png"}),
              open_asf(open.file(), file.size(), Media::audio)->values_with(remove_cover()).cover);
}

TEST(AsfWithoutTags, KeepsWhatTheStreamsNeed) {
    const std::string aspect = metadata_record(0, 1, "AspectRatioX", 3, u32(4));
    const std::string old = asf_file(
        {content_description("Harbour", "Ada"), ext_content_description({text_descriptor("WM/Mood", "calm")}),
         header_extension({metadata({metadata_record(0, 0, "WM/Mood", 0, wide_z("calm")), aspect}),
                           metadata_library({metadata_record(0, 0, "WM/Mood", 0, wide_z("calm"))})})});

    EXPECT_EQ(to_hex(asf_file({header_extension({metadata({aspect})})})), to_hex(asf_without_tags(old)));
}

TEST(AsfFileSize, IsThatOfTheNewFileEvenIfTheOldOneWasWrong) {
    std::string old = asf_file({content_description("Harbour", "")});
    old.replace(30 + 40, 8, u64(12));

    EXPECT_EQ(to_hex(asf_file({content_description("Evening star", "")})),
              to_hex(asf_with(old, set_text(Field::title, "Evening star"))));
}

TEST(AsfFileSize, IsCheckedInTheNewFile) {
    std::string wrong = asf_file({});
    wrong.replace(30 + 40, 8, u64(12));
    OpenBytes open(wrong);
    const auto file = open_asf(open.file(), wrong.size(), Media::audio);

    EXPECT_THROW(file->check_against(*file), Refusal);
}

} // namespace
} // namespace velmora::portable
