#include "taglib/asf/picture.h"

#include "asf_bytes.h"
#include "owned_ecd.h"

#include "fake_image/fake_image.h"
#include "support/allocation_faults.h"
#include "support/bytes.h"
#include "support/stream_capture.h"

#include <gtest/gtest.h>

#include <memory>

namespace velmora {
namespace {

using namespace test;

struct ReleaseImage {
    void operator()(Image* image) const { image_release(image); }
};
using OwnedImage = std::unique_ptr<Image, ReleaseImage>;

OwnedImage image_of(const std::string& bytes) {
    return OwnedImage(image_from_bytes(bytes.data(), bytes.size()));
}

OwnedImage load(std::string value, std::uint16_t type = 1) {
    _asf_content_descriptor_t descriptor{};
    descriptor.type = type;
    descriptor.value_length = static_cast<std::uint16_t>(value.size());
    // A buffer of its own, so that a byte read behind its end is noticed.
    const auto buffer = std::make_unique<std::uint8_t[]>(value.size());
    std::copy(value.begin(), value.end(), buffer.get());
    descriptor.value = value.empty() ? nullptr : buffer.get();
    return OwnedImage(asf_load_picture(&descriptor));
}

/** A picture value in the form that is written. */
std::string picture_value(const std::string& mime = "image/jpeg", const std::string& description = wide(""),
                          const std::string& data = fake_jpeg) {
    return hex("03") + u32(static_cast<std::uint32_t>(data.size())) + wide(mime) + u16(0) + description +
           u16(0) + data;
}

TEST(AsfLoadPicture, GivesTheImageInTheValue) {
    const OwnedImage image = load(hex("03 0B 00 00 00"
                                      "69 00 6D 00 61 00 67 00 65 00 2F 00 6A 00 70 00 65 00 67 00 00 00"
                                      "00 00") +
                                  fake_jpeg);
    ASSERT_TRUE(image);
    EXPECT_EQ(fake_jpeg, fake_image_bytes(image.get()));
    EXPECT_EQ(1, fake_image_references(image.get()));
}

TEST(AsfLoadPicture, DoesNotLookAtThePictureType) {
    for (const char* const type : {"00", "04", "FF"}) {
        EXPECT_TRUE(load(hex(type) + picture_value().substr(1))) << type;
    }
}

TEST(AsfLoadPicture, TakesBothNamesOfTheTypeInAnyCase) {
    for (const char* const mime : {"image/jpeg", "image/jpg", "IMAGE/JPEG", "Image/Jpg"}) {
        EXPECT_TRUE(load(picture_value(mime))) << mime;
    }
}

TEST(AsfLoadPicture, TakesTheLowByteOfEachUnit) {
    std::string value = picture_value();
    value[6] = '\x01';
    EXPECT_TRUE(load(value));
}

TEST(AsfLoadPicture, TypeEndsForItsReaderAtAZeroLowByteAndInTheValueAtAZeroUnit) {
    // "image/jpeg", U+0100, "x": the description begins behind the unit that is zero as a whole.
    EXPECT_TRUE(load(hex("03") + u32(static_cast<std::uint32_t>(fake_jpeg.size())) + wide("image/jpeg") +
                     hex("00 01") + wide("x") + u16(0) + u16(0) + fake_jpeg));
}

TEST(AsfLoadPicture, SkipsADescriptionWithUnitsWhoseLowByteIsZero) {
    EXPECT_TRUE(load(picture_value("image/jpeg", hex("00 4E 41 00 00 01"))));
}

TEST(AsfLoadPicture, SkipsTheDescription) {
    const OwnedImage image = load(picture_value("image/jpeg", wide("Front cover")));
    ASSERT_TRUE(image);
    EXPECT_EQ(fake_jpeg, fake_image_bytes(image.get()));
}

TEST(AsfLoadPicture, SkipsADescriptionOfAnyLength) {
    EXPECT_TRUE(load(picture_value("image/jpeg", wide(std::string(300, 'd')))));
}

TEST(AsfLoadPicture, TakesBytesBehindThePicture) {
    const OwnedImage image = load(picture_value() + "more");
    ASSERT_TRUE(image);
    EXPECT_EQ(fake_jpeg, fake_image_bytes(image.get()));
}

TEST(AsfLoadPicture, GivesNoneForAnotherValueType) {
    for (const std::uint16_t type : {0, 2, 3, 4, 5, 6}) {
        StreamCapture log;
        EXPECT_FALSE(load(picture_value(), type)) << type;
        EXPECT_EQ("", log.text());
    }
}

TEST(AsfLoadPicture, RefusesAnotherMimeType) {
    StreamCapture log;
    EXPECT_FALSE(load(picture_value("image/png")));
    EXPECT_EQ("asf_load_picture: Not a jpeg image (image/png)\n", log.text());
}

TEST(AsfLoadPicture, RefusesTypesThatOnlyBeginTheSame) {
    for (const char* const mime : {"", "image/jpe", "image/jpegs", "-->"}) {
        StreamCapture log;
        EXPECT_FALSE(load(picture_value(mime))) << mime;
        EXPECT_EQ("asf_load_picture: Not a jpeg image (" + std::string(mime) + ")\n", log.text());
    }
}

TEST(AsfLoadPicture, TakesAMimeTypeOfTwoHundredAndFiftyFourUnitsAndItsTerminator) {
    StreamCapture log;
    EXPECT_FALSE(load(picture_value(std::string(254, 'm'))));
    EXPECT_EQ("asf_load_picture: Not a jpeg image (" + std::string(254, 'm') + ")\n", log.text());
}

TEST(AsfLoadPicture, GivesNoneForALongerMimeTypeWithoutAWord) {
    StreamCapture log;
    EXPECT_FALSE(load(picture_value(std::string(255, 'm'))));
    EXPECT_EQ("", log.text());
}

TEST(AsfLoadPicture, GivesNoneForAValueThatIsCutBeforeTheDataWithoutAWord) {
    // 29 bytes end with the description, strictly before which it had to end.
    for (std::size_t length = 0; length <= 29; ++length) {
        StreamCapture log;
        EXPECT_FALSE(load(picture_value().substr(0, length))) << length;
        EXPECT_EQ("", log.text()) << length;
    }
}

TEST(AsfLoadPicture, RefusesDataThatRunsPastTheValue) {
    for (std::size_t length = 30; length < picture_value().size(); ++length) {
        StreamCapture log;
        EXPECT_FALSE(load(picture_value().substr(0, length))) << length;
        EXPECT_EQ("asf_load_picture: Picture data overrun\n", log.text()) << length;
    }
}

TEST(AsfLoadPicture, RefusesADataLengthThatWraps) {
    for (const std::uint32_t length : {0xFFFFFFFFu, 0xFFFFFFE3u, 0x80000000u}) {
        StreamCapture log;
        EXPECT_FALSE(load(hex("03") + u32(length) + picture_value().substr(5)));
        EXPECT_EQ("asf_load_picture: Picture data overrun\n", log.text());
    }
}

TEST(AsfLoadPicture, GivesNoneForDataThatIsNoImage) {
    EXPECT_FALSE(load(picture_value("image/jpeg", "", "no picture")));
}

TEST(AsfStorePicture, AppendsAByteArrayOfTheWrittenForm) {
    const Ecd ecd(asf_init_ext_content_description());
    const OwnedImage image = image_of(fake_jpeg);
    EXPECT_EQ(1, asf_store_picture(ecd.get(), image.get()));
    OpenBytes file("");
    ASSERT_EQ(1, ecd->count);
    asf_store_content_descriptor(file.file(), ecd->descriptors[0]);
    EXPECT_EQ(hex("16 00" // "WM/Picture"
                  "57 00 4D 00 2F 00 50 00 69 00 63 00 74 00 75 00 72 00 65 00 00 00"
                  "01 00 28 00"
                  "03 0B 00 00 00" // "image/jpeg", ""
                  "69 00 6D 00 61 00 67 00 65 00 2F 00 6A 00 70 00 65 00 67 00 00 00"
                  "00 00") +
                  fake_jpeg,
              file.bytes());
    EXPECT_EQ(1, fake_image_references(image.get()));
}

TEST(AsfStorePicture, ReplacesTheValueAndKeepsTypeAndPlace) {
    OpenBytes from(test::ext_content_description(
        {text_descriptor("A", "1"), test::descriptor("WM/Picture", 0, "old"), text_descriptor("B", "2")}));
    const Ecd ecd(asf_read_ext_content_description(from.file(), nullptr));
    const OwnedImage image = image_of(fake_jpeg);
    EXPECT_EQ(1, asf_store_picture(ecd.get(), image.get()));
    ecd->size = asf_get_ext_content_description_size(ecd.get());
    OpenBytes to("");
    EXPECT_EQ(1, asf_store_ext_content_description(to.file(), ecd.get()));
    EXPECT_EQ(test::ext_content_description({text_descriptor("A", "1"),
                                             test::descriptor("WM/Picture", 0, picture_value()),
                                             text_descriptor("B", "2")}),
              to.bytes());
}

TEST(AsfStorePicture, APictureStoredOverATextDoesNotLoadAgain) {
    OpenBytes from(test::ext_content_description({test::descriptor("WM/Picture", 0, "old")}));
    const Ecd ecd(asf_read_ext_content_description(from.file(), nullptr));
    const OwnedImage image = image_of(fake_jpeg);
    EXPECT_EQ(1, asf_store_picture(ecd.get(), image.get()));
    EXPECT_EQ(nullptr, asf_load_picture(ecd->descriptors[0]));
}

TEST(AsfStorePicture, TakesThemUpToTheSixteenBitLength) {
    const Ecd ecd(asf_init_ext_content_description());
    const OwnedImage image = image_of(hex("FF D8 FF") + pattern(65506 - 3));
    EXPECT_EQ(1, asf_store_picture(ecd.get(), image.get()));
    ASSERT_EQ(1, ecd->count);
    EXPECT_EQ(65535, ecd->descriptors[0]->value_length);
    const OwnedImage again(asf_load_picture(ecd->descriptors[0]));
    ASSERT_TRUE(again);
    EXPECT_EQ(fake_image_bytes(image.get()), fake_image_bytes(again.get()));
}

TEST(AsfStorePicture, RefusesLargerOnesAndKeepsTheOldOne) {
    OpenBytes from(test::ext_content_description({test::descriptor("WM/Picture", 1, "old")}));
    const Ecd ecd(asf_read_ext_content_description(from.file(), nullptr));
    const OwnedImage image = image_of(hex("FF D8 FF") + pattern(65507 - 3));
    StreamCapture log;
    EXPECT_EQ(0, asf_store_picture(ecd.get(), image.get()));
    EXPECT_EQ("asf_store_picture: Picture data overrun\n", log.text());
    EXPECT_EQ("old", std::string(reinterpret_cast<char*>(ecd->descriptors[0]->value), 3));
}

TEST(AsfStorePicture, FailsWithoutAnImage) {
    const Ecd ecd(asf_init_ext_content_description());
    EXPECT_EQ(0, asf_store_picture(ecd.get(), nullptr));
    EXPECT_EQ(0, ecd->count);
}

TEST(AsfStorePicture, FailsWhenTheImageCanNotBeEncoded) {
    const Ecd ecd(asf_init_ext_content_description());
    const OwnedImage image = image_of(fake_jpeg);
    fail_fake_image_encoding(true);
    EXPECT_EQ(0, asf_store_picture(ecd.get(), image.get()));
    fail_fake_image_encoding(false);
    EXPECT_EQ(0, ecd->count);
}

TEST(AsfStorePicture, SaysSoWhenThereIsNoMemoryForTheValue) {
    const Ecd ecd(asf_init_ext_content_description());
    const OwnedImage image = image_of(fake_jpeg);
    StreamCapture log;
    const AllocationFaults value(1);
    EXPECT_EQ(0, asf_store_picture(ecd.get(), image.get()));
    EXPECT_EQ("asf_store_picture: Couldn't allocate buffer\n", log.text());
    EXPECT_EQ(0, ecd->count);
}

TEST(AsfStorePicture, FailsWithoutMemoryForTheDescriptor) {
    for (int nth = 2; nth <= 4; ++nth) {
        const Ecd ecd(asf_init_ext_content_description());
        const OwnedImage image = image_of(fake_jpeg);
        const AllocationFaults allocation(nth);
        EXPECT_EQ(0, asf_store_picture(ecd.get(), image.get())) << nth;
        EXPECT_EQ(0, ecd->count) << nth;
    }
}

TEST(AsfPicture, LeavesNoImageBehind) {
    EXPECT_EQ(0, fake_images_alive());
}

} // namespace
} // namespace velmora
