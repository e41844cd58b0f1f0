#include "asf_fixture.h"

#include "portable/reason.h"
#include "support/bytes.h"

#include <gtest/gtest.h>

namespace velmora::portable {
namespace {

using namespace test;

ReasonCode refusal_of(const std::string& bytes) {
    try {
        static_cast<void>(test::asf_values(bytes));
    } catch (const Refusal& refusal) {
        return refusal.reason().code;
    }
    ADD_FAILURE() << "not refused";
    return ReasonCode::system;
}

TEST(AsfValues, OfASongComeFromTheNamesThatOtherProgramsUse) {
    const TagValues values = test::asf_values(asf_file(
        {content_description("Harbour", "Ada", "", "Recorded at sea"),
         ext_content_description(
             {text_descriptor("WM/AlbumTitle", "Ports"), text_descriptor("WM/Genre", "Folk"),
              text_descriptor("WM/Director", "Nobody"), text_descriptor("WM/Year", "1994-05-03")})}));

    EXPECT_EQ("Harbour", values.text(Field::title));
    EXPECT_EQ("Ada", values.text(Field::artist));
    EXPECT_EQ("Recorded at sea", values.text(Field::synopsis));
    EXPECT_EQ("Ports", values.text(Field::album));
    EXPECT_EQ("Folk", values.text(Field::genre));
    EXPECT_EQ(std::nullopt, values.text(Field::director));
    EXPECT_EQ(1994, values.year);
}

TEST(AsfValues, OfAFilmHaveDirectorAndRatingAndNoAlbum) {
    const TagValues values = test::asf_values(
        asf_file({ext_content_description(
            {text_descriptor("WM/AlbumTitle", "Ports"), text_descriptor("WM/Director", "Bo"),
             text_descriptor("WM/ParentalRating", "PG-13"), descriptor("WM/Year", 3, u32(1994))})}),
        Media::video);

    EXPECT_EQ(std::nullopt, values.text(Field::album));
    EXPECT_EQ("Bo", values.text(Field::director));
    EXPECT_EQ("PG-13", values.text(Field::rating));
    EXPECT_EQ(1994, values.year);
}

TEST(AsfValues, ThatAreSeveralAreJoined) {
    const TagValues values = test::asf_values(
        asf_file({header_extension({metadata_library({metadata_record(0, 0, "Author", 0, wide_z("Bo")),
                                                      metadata_record(1, 0, "Author", 0, wide_z("Ada"))})}),
                  content_description("", "Ada")}));

    EXPECT_EQ("Ada; Bo", values.text(Field::artist));
}

TEST(AsfValues, OfAnOlderNameCountWhereTheNewerHasNone) {
    EXPECT_EQ("Folk",
              test::asf_values(asf_file({ext_content_description({text_descriptor("Genre", "Folk")})}))
                  .text(Field::genre));
    EXPECT_EQ("Rock",
              test::asf_values(asf_file({ext_content_description(
                                   {text_descriptor("Genre", "Folk"), text_descriptor("WM/Genre", "Rock")})}))
                  .text(Field::genre));
}

TEST(AsfValues, AreFoundUnderNamesInSmallLetters) {
    const TagValues values = test::asf_values(asf_file(
        {ext_content_description({text_descriptor("title", "Harbour"), text_descriptor("date", "1994")})}));

    EXPECT_EQ("Harbour", values.text(Field::title));
    EXPECT_EQ(1994, values.year);
}

TEST(AsfValues, OfOneStreamAreNotThoseOfTheFile) {
    const TagValues values = test::asf_values(asf_file(
        {header_extension({metadata({metadata_record(0, 1, "Title", 0, wide_z("Left channel"))})})}));

    EXPECT_EQ(std::nullopt, values.text(Field::title));
}

TEST(AsfValues, HaveTheFirstFrontCover) {
    const std::string file = asf_file(
        {ext_content_description({descriptor("WM/Picture", 1, asf_picture(0, "image/png", "other")),
                                  descriptor("WM/Picture", 1, asf_picture(3, "image/jpeg", "front")),
                                  descriptor("WM/Picture", 1, asf_picture(3, "image/jpeg", "second"))})});

    EXPECT_EQ((Cover{{'f', 'r', 'o', 'n', 't'}, "image/jpeg"}), test::asf_values(file).cover);
}

TEST(AsfValues, HaveAPictureOfNoKindWhereThereIsNoFrontCover) {
    const std::string file = asf_file(
        {ext_content_description({descriptor("WM/Picture", 1, asf_picture(4, "image/png", "back")),
                                  descriptor("WM/Picture", 1, asf_picture(0, "image/png", "other"))})});

    EXPECT_EQ((Cover{{'o', 't', 'h', 'e', 'r'}, "image/png"}), test::asf_values(file).cover);
}

TEST(AsfValues, HaveNoDamagedPicture) {
    std::string value = asf_picture(3, "image/jpeg", "front");
    value.pop_back();
    const std::string file = asf_file({ext_content_description({descriptor("WM/Picture", 1, value)})});

    EXPECT_EQ(std::nullopt, test::asf_values(file).cover);
}

TEST(AsfFile, IsReadWholeOrRefusedWhereverItIsCut) {
    const std::string whole =
        asf_file({content_description("Harbour", "Ada"),
                  ext_content_description({text_descriptor("WM/Genre", "Folk")}),
                  header_extension({metadata_library({metadata_record(0, 0, "WM/Mood", 0, wide_z("calm"))})}),
                  padding(40)});
    const std::size_t header_size = whole.size() - asf_media().size();

    for (std::size_t size = 0; size < header_size; ++size) {
        EXPECT_EQ(ReasonCode::damaged, refusal_of(whole.substr(0, size))) << size;
    }
    EXPECT_EQ("Harbour", test::asf_values(whole.substr(0, header_size)).text(Field::title));
}

TEST(AsfFile, IsRefusedWhereItsSizesContradictEachOther) {
    const std::string whole = asf_file({content_description("Harbour", "Ada")});
    const std::size_t object = 30 + file_properties(0).size();
    const auto with = [&](std::size_t position, const std::string& bytes) {
        std::string damaged = whole;
        return damaged.replace(position, bytes.size(), bytes);
    };

    EXPECT_EQ(ReasonCode::damaged, refusal_of(with(0, hex("00"))));
    EXPECT_EQ(ReasonCode::damaged, refusal_of(with(16, u64(29))));
    EXPECT_EQ(ReasonCode::damaged, refusal_of(with(16, u64(whole.size() + 1))));
    EXPECT_EQ(ReasonCode::damaged, refusal_of(with(24, u32(3))));
    EXPECT_EQ(ReasonCode::damaged, refusal_of(with(24, u32(0xffffffff))));
    EXPECT_EQ(ReasonCode::damaged, refusal_of(with(object + 16, u64(23))));
    EXPECT_EQ(ReasonCode::damaged, refusal_of(with(object + 16, u64(UINT64_MAX))));
    EXPECT_EQ(ReasonCode::damaged, refusal_of(with(object + 24, u16(0xffff))));
}

TEST(AsfFile, IsRefusedWhereItHoldsMoreThanAnyoneWrote) {
    std::string objects;
    for (int i = 0; i < 10001; ++i) {
        objects += padding(24);
    }
    const std::string file =
        hex(header_guid) + u64(30 + objects.size()) + u32(10001) + hex("01 02") + objects;

    EXPECT_EQ(ReasonCode::unsupported, refusal_of(file));
}

TEST(AsfTags, AreNamedWhereThereAreAny) {
    const std::string tagged = asf_file({ext_content_description({text_descriptor("WM/Mood", "calm")})});
    const std::string bare =
        asf_file({header_extension({metadata({metadata_record(0, 1, "AspectRatioX", 3, u32(4))})})});
    OpenBytes tagged_file(tagged);
    OpenBytes bare_file(bare);

    EXPECT_EQ(std::vector<std::string>{"ASF"},
              open_asf(tagged_file.file(), tagged.size(), Media::video)->tags());
    EXPECT_EQ(std::vector<std::string>{}, open_asf(bare_file.file(), bare.size(), Media::video)->tags());
}

TEST(AsfPayload, IsEverythingThatASaveLeavesAlone) {
    const std::string record = metadata_record(0, 1, "AspectRatioX", 3, u32(4));
    const std::string file = asf_file(
        {header_extension({metadata({record})}), content_description("Harbour", "Ada"), padding(40)});
    OpenBytes open(file);
    std::string payload;
    for (const Range& range : open_asf(open.file(), file.size(), Media::video)->payload()) {
        payload += file.substr(range.begin, range.size());
    }

    const std::string properties = file_properties(0);
    EXPECT_EQ(hex(header_guid) + hex("01 02") + properties.substr(0, 40) + properties.substr(48) + record +
                  asf_media(),
              payload);
}

TEST(AsfItems, AreTheAttributesOfTheFileAsTheyLie) {
    const std::string picture = descriptor("WM/Picture", 1, asf_picture(4, "image/png", "back"));
    const std::string file =
        asf_file({content_description("Harbour", ""), ext_content_description({picture})});
    OpenBytes open(file);
    const std::vector<TagItem> items = open_asf(open.file(), file.size(), Media::audio)->items();

    ASSERT_EQ(2U, items.size());
    EXPECT_EQ("ASF Title", items[0].name);
    EXPECT_EQ(wide_z("Harbour"), std::string(items[0].bytes.begin(), items[0].bytes.end()));
    EXPECT_EQ(Field::title, items[0].field);
    EXPECT_EQ("ASF WM/Picture", items[1].name);
    EXPECT_EQ(picture, std::string(items[1].bytes.begin(), items[1].bytes.end()));
    EXPECT_EQ(std::nullopt, items[1].field);
}

} // namespace
} // namespace velmora::portable
