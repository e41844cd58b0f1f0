#include "fake_image/fake_image.h"
#include "taglib/file_info.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstring>

namespace velmora {
namespace {

bool is_zeroed(const _file_info_t& info) {
    std::array<unsigned char, sizeof(_file_info_t)> bytes;
    std::memcpy(bytes.data(), &info, sizeof info);
    return std::all_of(bytes.begin(), bytes.end(), [](unsigned char byte) { return byte == 0; });
}

/** A record as a loader leaves it, with every field set, the bytes between the fields included. */
_file_info_t loaded() {
    _file_info_t info;
    std::memset(&info, 0xEE, sizeof info);
    info.title = ::strdup("title");
    info.artist = ::strdup("artist");
    info.desc = ::strdup("desc");
    info.genre = ::strdup("genre");
    info.director = ::strdup("director");
    info.rating = ::strdup("rating");
    info.picture = image_from_bytes("\xFF\xD8\xFF\xE0", 4);
    info.aux_object = image_from_bytes("\xFF\xD8\xFF\xE1", 4);
    return info;
}

TEST(FileInfo, FieldsLieInTheirOrder) {
    const std::array offsets = {
        offsetof(_file_info_t, flags),      offsetof(_file_info_t, title), offsetof(_file_info_t, artist),
        offsetof(_file_info_t, desc),       offsetof(_file_info_t, genre), offsetof(_file_info_t, director),
        offsetof(_file_info_t, rating),     offsetof(_file_info_t, year),  offsetof(_file_info_t, picture),
        offsetof(_file_info_t, aux_object), offsetof(_file_info_t, time)};
    EXPECT_TRUE(std::is_sorted(offsets.begin(), offsets.end()));
}

TEST(FileInfo, FlagsHaveTheirBits) {
    EXPECT_EQ(0x1u, file_info_flag::title);
    EXPECT_EQ(0x2u, file_info_flag::artist);
    EXPECT_EQ(0x4u, file_info_flag::desc);
    EXPECT_EQ(0x8u, file_info_flag::genre);
    EXPECT_EQ(0x10u, file_info_flag::year);
    EXPECT_EQ(0x20u, file_info_flag::picture);
    EXPECT_EQ(0x40u, file_info_flag::director);
    EXPECT_EQ(0x80u, file_info_flag::rating);
    EXPECT_EQ(0x100u, file_info_flag::time);
    EXPECT_EQ(0x8000u, file_info_flag::tag_present);
}

TEST(FileInfo, AFlagThatIsTakenWasSetAndIsClearedAlone) {
    _file_info_t info{};
    info.flags = 0x8011;
    EXPECT_TRUE(take_flag(&info, file_info_flag::year));
    EXPECT_EQ(0x8001u, info.flags);
    EXPECT_FALSE(take_flag(&info, file_info_flag::year));
    EXPECT_EQ(0x8001u, info.flags);
}

TEST(FreeFileInfo, ZeroesTheWholeRecordAndReturnsZero) {
    _file_info_t info = loaded();
    EXPECT_EQ(0, id3_free_file_info(&info));
    EXPECT_TRUE(is_zeroed(info));
}

TEST(FreeFileInfo, ReleasesOneReferenceOfEachObject) {
    _file_info_t info = loaded();
    Image* const picture = image_retain(info.picture);
    Image* const aux_object = image_retain(info.aux_object);
    id3_free_file_info(&info);
    EXPECT_EQ(1, test::fake_image_references(picture));
    EXPECT_EQ(1, test::fake_image_references(aux_object));
    image_release(picture);
    image_release(aux_object);
    EXPECT_EQ(0, test::fake_images_alive());
}

TEST(FreeFileInfo, LeavesAZeroedRecordZeroed) {
    _file_info_t info;
    std::memset(&info, 0, sizeof info);
    EXPECT_EQ(0, id3_free_file_info(&info));
    EXPECT_TRUE(is_zeroed(info));
}

TEST(FreeFileInfo, TwiceIsHarmless) {
    _file_info_t info = loaded();
    id3_free_file_info(&info);
    EXPECT_EQ(0, id3_free_file_info(&info));
    EXPECT_TRUE(is_zeroed(info));
    EXPECT_EQ(0, test::fake_images_alive());
}

TEST(FreeFileInfo, TakesARecordThatIsFilledInPart) {
    _file_info_t info;
    std::memset(&info, 0, sizeof info);
    info.flags = 0x8000;
    info.desc = ::strdup("desc");
    info.aux_object = image_from_bytes("\xFF\xD8\xFF", 3);
    EXPECT_EQ(0, id3_free_file_info(&info));
    EXPECT_TRUE(is_zeroed(info));
    EXPECT_EQ(0, test::fake_images_alive());
}

} // namespace
} // namespace velmora
