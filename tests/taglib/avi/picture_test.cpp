#include "taglib/avi/picture.h"

#include "fake_image/fake_image.h"
#include "taglib/avi/item_data.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

constexpr std::uint32_t ipic = make_fourcc("IPIC");

class AviPicture : public testing::Test {
protected:
    AviPicture() { list_.fourcc = fourcc::list; }
    ~AviPicture() override {
        fail_fake_image_encoding(false);
        avi_free_item(&list_);
        EXPECT_EQ(0, fake_images_alive());
    }

    _avi_item_t list_{};
};

TEST_F(AviPicture, ItIsMadeFromAllOfTheItemsBytes) {
    ASSERT_EQ(1, avi_set_item_data(&list_, ipic, "\xFF\xD8\xFF\0jpeg", 8));
    Image* const image = avi_load_picture(list_.children);
    ASSERT_NE(nullptr, image);
    EXPECT_EQ(std::string("\xFF\xD8\xFF\0jpeg", 8), fake_image_bytes(image));
    EXPECT_EQ(1, fake_image_references(image));
    image_release(image);
}

TEST_F(AviPicture, BytesThatAreNoImageGiveNone) {
    ASSERT_EQ(1, avi_set_item_data(&list_, ipic, "text", 4));
    EXPECT_EQ(nullptr, avi_load_picture(list_.children));
}

TEST_F(AviPicture, AnItemWithoutDataGivesNone) {
    _avi_item_t item{};
    item.size = 4;
    EXPECT_EQ(nullptr, avi_load_picture(&item));
}

TEST_F(AviPicture, TheJpegStreamIsStoredWithoutAHeaderOrTerminator) {
    Image* const image = image_from_bytes("\xFF\xD8\xFFjpeg", 7);
    EXPECT_EQ(1, avi_store_picture(&list_, ipic, image));
    ASSERT_EQ(1, list_.child_count);
    EXPECT_EQ(ipic, list_.children[0].fourcc);
    EXPECT_EQ("\xFF\xD8\xFFjpeg",
              std::string(reinterpret_cast<char*>(list_.children[0].data), list_.children[0].size));
    image_release(image);
}

TEST_F(AviPicture, AnImageThatCantBeEncodedGivesZeroAndLeavesTheListAlone) {
    ASSERT_EQ(1, avi_set_item_data(&list_, ipic, "old", 3));
    Image* const image = image_from_bytes("\xFF\xD8\xFFjpeg", 7);
    fail_fake_image_encoding(true);
    EXPECT_EQ(0, avi_store_picture(&list_, ipic, image));
    EXPECT_EQ(3u, list_.children[0].size);
    image_release(image);
}

} // namespace
} // namespace velmora::test
