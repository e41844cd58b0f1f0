#include "taglib/asf/store_file_info.h"

#include "asf_bytes.h"

#include "fake_image/fake_image.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "taglib/asf/load_file_info.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <list>
#include <string>

namespace velmora {
namespace {

using namespace test;

const std::string media_data = "the media data";

/** What a store makes of the two descriptions, in a file whose padding takes up every change. */
class AsfStoreFields : public testing::Test {
protected:
    /** Stores INFO into a file with this content description and these attributes. */
    void store(const std::string& cd, std::initializer_list<std::string> descriptors) {
        const std::string header =
            header_object({other_object(), cd, ext_content_description(descriptors), padding(4000)});
        write_file(path_, header + media_data);
        const StreamCapture quiet;
        ASSERT_EQ(1, asf_store_file_info(path_.c_str(), &info_));
        stored_ = read_file(path_);
        ASSERT_EQ(header.size() + media_data.size(), stored_.size());
        EXPECT_EQ(media_data, stored_.substr(header.size()));
        old_size_ = header.size();
    }

    /** The header now has this content description, these attributes, and a padding that fills the old size
       up. */
    void expect(const std::string& cd, std::initializer_list<std::string> descriptors) {
        const std::string children = other_object() + cd + ext_content_description(descriptors);
        const std::string begin = object_of_size(header_guid, old_size_, u32(4) + hex("01 02") + children) +
                                  object_of_size(padding_guid, old_size_ - 30 - children.size(), "");
        EXPECT_EQ(to_hex(begin), to_hex(stored_.substr(0, begin.size())));
    }

    void expect_attributes(std::initializer_list<std::string> descriptors) {
        expect(content_description("", ""), descriptors);
    }

    /** A copy that lives as long as the test. */
    char* text(const char* utf8) {
        texts_.push_back(utf8);
        return texts_.back().data();
    }

    ScratchFolder folder_;
    std::string path_ = folder_ / "file.wma";
    _file_info_t info_{};
    std::list<std::string> texts_;
    std::string stored_;
    std::uint64_t old_size_ = 0;
};

TEST_F(AsfStoreFields, TitleGoesToTheAlbumTitleAndToNoString) {
    info_.flags = file_info_flag::title;
    info_.title = text("album");
    store(content_description("", ""), {});
    expect_attributes({text_descriptor("WM/AlbumTitle", "album")});
}

TEST_F(AsfStoreFields, ArtistGoesToTheAuthorAndTheAlbumArtist) {
    info_.flags = file_info_flag::artist;
    info_.artist = text("artist");
    store(content_description("t", "a", "c", "d", "r"), {});
    expect(content_description("t", "artist", "c", "d", "r"), {text_descriptor("WM/AlbumArtist", "artist")});
}

TEST_F(AsfStoreFields, DescGoesToTheTitleAndTheTrack) {
    info_.flags = file_info_flag::desc;
    info_.desc = text("desc");
    store(content_description("t", "a", "c", "d", "r"), {});
    expect(content_description("desc", "a", "c", "d", "r"), {text_descriptor("WM/Track", "desc")});
}

TEST_F(AsfStoreFields, Genre) {
    info_.flags = file_info_flag::genre;
    info_.genre = text("Rock");
    store(content_description("", ""), {});
    expect_attributes({text_descriptor("WM/Genre", "Rock")});
}

TEST_F(AsfStoreFields, YearIsADword) {
    info_.flags = file_info_flag::year;
    info_.year = 1999;
    store(content_description("", ""), {});
    expect_attributes({descriptor("WM/Year", 3, hex("CF 07 00 00"))});
}

TEST_F(AsfStoreFields, YearMayBeNegative) {
    info_.flags = file_info_flag::year;
    info_.year = -44;
    store(content_description("", ""), {});
    expect_attributes({descriptor("WM/Year", 3, hex("D4 FF FF FF"))});
}

TEST_F(AsfStoreFields, Director) {
    info_.flags = file_info_flag::director;
    info_.director = text("D");
    store(content_description("", ""), {});
    expect_attributes({text_descriptor("WM/Director", "D")});
}

TEST_F(AsfStoreFields, Rating) {
    info_.flags = file_info_flag::rating;
    info_.rating = text("PG");
    store(content_description("", ""), {});
    expect_attributes({text_descriptor("WM/ParentalRating", "PG")});
}

TEST_F(AsfStoreFields, TimeIsAQword) {
    info_.flags = file_info_flag::time;
    info_.time = 0x0102030405060708;
    store(content_description("", ""), {});
    expect_attributes({descriptor("WM/EncodingTime", 4, hex("08 07 06 05 04 03 02 01"))});
}

TEST_F(AsfStoreFields, TimeKeepsAllItsBits) {
    info_.flags = file_info_flag::time;
    info_.time = 0xFFFFFFFFFFFFFFFE;
    store(content_description("", ""), {});
    expect_attributes({descriptor("WM/EncodingTime", 4, hex("FE FF FF FF FF FF FF FF"))});
}

TEST_F(AsfStoreFields, PictureIsAByteArray) {
    const std::string jpeg = hex("FF D8 FF 00");
    info_.flags = file_info_flag::picture;
    info_.picture = image_from_bytes(jpeg.data(), jpeg.size());
    store(content_description("", ""), {});
    expect_attributes(
        {descriptor("WM/Picture", 1, hex("03 04 00 00 00") + wide_z("image/jpeg") + u16(0) + jpeg)});
    EXPECT_EQ(1, fake_image_references(info_.picture));
    image_release(info_.picture);
}

TEST_F(AsfStoreFields, APictureThatCanNotBeEncodedLeavesTheOldOne) {
    const std::string jpeg = hex("FF D8 FF 00");
    info_.flags = file_info_flag::picture;
    info_.picture = image_from_bytes(jpeg.data(), jpeg.size());
    fail_fake_image_encoding(true);
    store(content_description("", ""), {descriptor("WM/Picture", 1, "old")});
    fail_fake_image_encoding(false);
    expect_attributes({descriptor("WM/Picture", 1, "old")});
    image_release(info_.picture);
}

TEST_F(AsfStoreFields, AppliesTheFieldsInTheirOrder) {
    info_.flags = 0x1FF;
    info_.title = text("1");
    info_.artist = text("2");
    info_.desc = text("3");
    info_.genre = text("4");
    info_.year = 5;
    info_.director = text("6");
    info_.rating = text("7");
    info_.time = 8;
    const std::string jpeg = hex("FF D8 FF 09");
    info_.picture = image_from_bytes(jpeg.data(), jpeg.size());
    store(content_description("", ""), {text_descriptor("other", "0")});
    expect(content_description("3", "2"),
           {text_descriptor("other", "0"), text_descriptor("WM/AlbumTitle", "1"),
            text_descriptor("WM/AlbumArtist", "2"), text_descriptor("WM/Track", "3"),
            text_descriptor("WM/Genre", "4"), descriptor("WM/Year", 3, u32(5)),
            text_descriptor("WM/Director", "6"), text_descriptor("WM/ParentalRating", "7"),
            descriptor("WM/EncodingTime", 4, u64(8)),
            descriptor("WM/Picture", 1, hex("03 04 00 00 00") + wide_z("image/jpeg") + u16(0) + jpeg)});
    image_release(info_.picture);
}

TEST_F(AsfStoreFields, WithoutTheirFlagFieldsAreNotLookedAt) {
    info_.title = info_.artist = info_.desc = info_.genre = info_.director = info_.rating = text("ignored");
    info_.year = 1;
    info_.time = 1;
    store(content_description("t", "a"), {text_descriptor("WM/Genre", "kept")});
    expect(content_description("t", "a"), {text_descriptor("WM/Genre", "kept")});
}

TEST_F(AsfStoreFields, TheTagPresentFlagStoresNothing) {
    info_.flags = file_info_flag::tag_present;
    store(content_description("t", "a"), {text_descriptor("WM/Genre", "kept")});
    expect(content_description("t", "a"), {text_descriptor("WM/Genre", "kept")});
}

TEST_F(AsfStoreFields, TextsOfEveryScript) {
    info_.flags = file_info_flag::artist | file_info_flag::genre;
    info_.artist = text("\xC3\xA9");
    info_.genre = text("\xF0\x9F\x98\x80");
    store(content_description("", ""), {});
    expect(object(cd_guid, hex("00 00 06 00 00 00 00 00 00 00 E9 00 00 00 00 00")),
           {descriptor("WM/AlbumArtist", 0, hex("E9 00 00 00 00 00")),
            descriptor("WM/Genre", 0, hex("3D D8 00 DE 00 00 00 00 00 00"))});
}

/** The five pairs of names. */
class AsfStorePairs : public AsfStoreFields {
protected:
    struct Pair {
        std::uint32_t flag;
        const char* older;
        const char* newer;
    };
    static constexpr Pair pairs[] = {{0x1, "AlbumTitle", "WM/AlbumTitle"},
                                     {0x2, "AlbumArtist", "WM/AlbumArtist"},
                                     {0x4, "Description", "WM/Track"},
                                     {0x8, "Genre", "WM/Genre"},
                                     {0x10, "Year", "WM/Year"}};

    static std::string value_of(const Pair& pair, const char* name) {
        return pair.flag == 0x10 ? descriptor(name, 3, u32(7)) : text_descriptor(name, "7");
    }
    static std::string strings_of(const Pair& pair) {
        return content_description(pair.flag == 0x4 ? "7" : "", pair.flag == 0x2 ? "7" : "");
    }
    /** Stores 7 into the pair's field, in a file with these attributes. */
    void store_pair(const Pair& pair, std::initializer_list<std::string> descriptors) {
        info_.flags = pair.flag;
        info_.title = info_.artist = info_.desc = info_.genre = text("7");
        info_.year = 7;
        store(content_description("", ""), descriptors);
    }
};

TEST_F(AsfStorePairs, NeitherThereTheNewerIsMade) {
    for (const Pair& pair : pairs) {
        store_pair(pair, {});
        expect(strings_of(pair), {value_of(pair, pair.newer)});
    }
}

TEST_F(AsfStorePairs, OnlyTheOlderThereItAloneIsSet) {
    for (const Pair& pair : pairs) {
        store_pair(pair, {text_descriptor(pair.older, "old")});
        expect(strings_of(pair), {value_of(pair, pair.older)});
    }
}

TEST_F(AsfStorePairs, OnlyTheNewerThereItAloneIsSet) {
    for (const Pair& pair : pairs) {
        store_pair(pair, {text_descriptor(pair.newer, "old")});
        expect(strings_of(pair), {value_of(pair, pair.newer)});
    }
}

TEST_F(AsfStorePairs, BothThereBothAreSetInTheirPlaces) {
    for (const Pair& pair : pairs) {
        store_pair(pair, {text_descriptor(pair.newer, "old"), text_descriptor("other", "0"),
                          text_descriptor(pair.older, "old")});
        expect(strings_of(pair),
               {value_of(pair, pair.newer), text_descriptor("other", "0"), value_of(pair, pair.older)});
    }
}

TEST_F(AsfStorePairs, AnAbsentValueRemovesBoth) {
    for (const Pair& pair : pairs) {
        info_.flags = pair.flag;
        store(content_description("", ""), {text_descriptor(pair.newer, "old"), text_descriptor("other", "0"),
                                            text_descriptor(pair.older, "old")});
        expect_attributes({text_descriptor("other", "0")});
    }
}

TEST_F(AsfStoreFields, AnAbsentValueRemovesSingleNames) {
    info_.flags =
        file_info_flag::director | file_info_flag::rating | file_info_flag::time | file_info_flag::picture;
    store(content_description("t", "a"),
          {text_descriptor("WM/Director", "1"), text_descriptor("WM/ParentalRating", "2"),
           descriptor("WM/EncodingTime", 4, u64(3)), descriptor("WM/Picture", 1, "4")});
    expect(content_description("t", "a"), {});
}

TEST_F(AsfStoreFields, AnAbsentArtistEmptiesTheAuthorAlone) {
    info_.flags = file_info_flag::artist;
    store(content_description("t", "a", "c", "d", "r"), {});
    expect(content_description("t", "", "c", "d", "r"), {});
}

TEST_F(AsfStoreFields, AnAbsentDescEmptiesTheTitleAlone) {
    info_.flags = file_info_flag::desc;
    store(content_description("t", "a", "c", "d", "r"), {});
    expect(content_description("", "a", "c", "d", "r"), {});
}

TEST_F(AsfStoreFields, AnEmptyTextLeavesTheAttributeWithoutAValue) {
    info_.flags = file_info_flag::artist | file_info_flag::genre | file_info_flag::director;
    info_.artist = info_.genre = info_.director = text("");
    store(content_description("", "author"), {text_descriptor("Genre", "old")});
    expect_attributes(
        {descriptor("Genre", 0, ""), descriptor("WM/AlbumArtist", 0, ""), descriptor("WM/Director", 0, "")});
}

TEST_F(AsfStoreFields, UnknownAttributesStayAsTheyAre) {
    const std::string unknown = u16(3) + "odd" + u16(99) + u16(5) + "value";
    info_.flags = file_info_flag::genre;
    info_.genre = text("Rock");
    store(content_description("", ""), {unknown, descriptor("WM/Unknown", 1, std::string("\0\1\2", 3))});
    expect_attributes({unknown, descriptor("WM/Unknown", 1, std::string("\0\1\2", 3)),
                       text_descriptor("WM/Genre", "Rock")});
}

TEST_F(AsfStoreFields, LongTextsAreCutToWhatTheLengthFieldHolds) {
    info_.flags = file_info_flag::artist;
    info_.artist = text(std::string(40000, 'x').c_str());
    const std::string header =
        header_object({content_description("", ""), ext_content_description({}), padding(200000)});
    write_file(path_, header + media_data);
    const StreamCapture quiet;
    ASSERT_EQ(1, asf_store_file_info(path_.c_str(), &info_));
    const std::string value = wide_z(std::string(32766, 'x'));
    const std::string expected = object(cd_guid, hex("00 00 FE FF 00 00 00 00 00 00") + value) +
                                 ext_content_description({descriptor("WM/AlbumArtist", 0, value)});
    EXPECT_TRUE(read_file(path_).substr(30, expected.size()) == expected);
}

TEST_F(AsfStoreFields, RemoveTakesEveryMappedAttributeAndEmptiesTitleAndAuthor) {
    const auto all = {text_descriptor("AlbumTitle", "x"),
                      text_descriptor("WM/AlbumTitle", "x"),
                      text_descriptor("AlbumArtist", "x"),
                      text_descriptor("WM/AlbumArtist", "x"),
                      text_descriptor("Description", "x"),
                      text_descriptor("WM/Track", "x"),
                      text_descriptor("Genre", "x"),
                      text_descriptor("WM/Genre", "x"),
                      text_descriptor("Year", "x"),
                      text_descriptor("WM/Year", "x"),
                      text_descriptor("WM/Director", "x"),
                      text_descriptor("WM/ParentalRating", "x"),
                      descriptor("WM/EncodingTime", 4, u64(1)),
                      descriptor("WM/Picture", 1, "x"),
                      text_descriptor("WM/Composer", "kept")};
    const std::string header = header_object({other_object(), content_description("t", "a", "c", "d", "r"),
                                              ext_content_description(all), padding(4000)});
    write_file(path_, header + media_data);
    const StreamCapture quiet;
    EXPECT_EQ(1, asf_remove_file_info(path_.c_str()));
    stored_ = read_file(path_);
    old_size_ = header.size();
    expect(content_description("", "", "c", "d", "r"), {text_descriptor("WM/Composer", "kept")});
    _file_info_t info{};
    EXPECT_EQ(1, asf_load_file_info(path_.c_str(), &info));
    EXPECT_EQ(0u, info.flags);
    EXPECT_EQ(0u, info.time);
    id3_free_file_info(&info);
}

TEST_F(AsfStoreFields, WhatWasStoredLoadsAgain) {
    info_.flags = 0x1DF;
    info_.title = text("\xC3\xA9");
    info_.artist = text("\xE4\xB8\xAD");
    info_.desc = text("\xF0\x9F\x98\x80");
    info_.genre = text("genre");
    info_.director = text("director");
    info_.rating = text("rating");
    info_.year = 2024;
    info_.time = 0xFFFFFFFFFFFFFFFE;
    store(content_description("", ""), {});
    _file_info_t info{};
    const StreamCapture quiet;
    EXPECT_EQ(1, asf_load_file_info(path_.c_str(), &info));
    EXPECT_STREQ(info_.title, info.title);
    EXPECT_STREQ(info_.artist, info.artist);
    EXPECT_STREQ(info_.desc, info.desc);
    EXPECT_STREQ(info_.genre, info.genre);
    EXPECT_STREQ(info_.director, info.director);
    EXPECT_STREQ(info_.rating, info.rating);
    EXPECT_EQ(2024, info.year);
    EXPECT_EQ(0xFFFFFFFFFFFFFFFEu, info.time);
    id3_free_file_info(&info);
}

} // namespace
} // namespace velmora
