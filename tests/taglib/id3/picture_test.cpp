#include "taglib/id3/picture.h"

#include "id3_bytes.h"

#include "fake_image/fake_image.h"
#include "support/allocation_faults.h"
#include "support/stream_capture.h"

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace velmora::test {
namespace {

using Rows = std::vector<std::string>;

const std::string body_in_front = bytes("\0image/jpeg\0\x03\0");

/** What id3_load_picture makes of a frame with that body: the image's bytes, or nothing, and
   what is logged. */
struct Picture {
    explicit Picture(const std::string& body) {
        const Frame frame(body, "APIC");
        StreamCapture capture;
        if (Image* const image = id3_load_picture(&frame)) {
            found = true;
            bytes = fake_image_bytes(image);
            references = fake_image_references(image);
            image_release(image);
        }
        log = capture.text();
    }
    bool found = false;
    std::string bytes;
    int references = 0;
    std::string log;
};

TEST(Id3Picture, ImageIsMadeFromTheBytesBehindTheDescription) {
    const Picture picture(body_in_front + fake_jpeg);
    EXPECT_EQ(fake_jpeg, picture.bytes);
    EXPECT_EQ(1, picture.references);
    EXPECT_EQ("", picture.log);
    EXPECT_EQ(0, fake_images_alive());
}

TEST(Id3Picture, BothJpegTypesAreAcceptedInAnyCase) {
    for (const char* const type : {"image/jpg", "image/jpeg", "IMAGE/JPG", "Image/Jpeg"}) {
        EXPECT_EQ(fake_jpeg, Picture(std::string(1, '\0') + type + bytes("\0\x03\0") + fake_jpeg).bytes)
            << type;
    }
}

TEST(Id3Picture, AnyPictureTypeAndDescriptionIsAccepted) {
    for (int type = 0; type < 256; ++type) {
        const std::string body =
            bytes("\0image/jpeg\0") + static_cast<char>(type) + bytes("Front\0") + fake_jpeg;
        EXPECT_EQ(fake_jpeg, Picture(body).bytes) << type;
    }
}

TEST(Id3Picture, DescriptionOfAnyLengthIsSkipped) {
    for (const std::size_t length : {0u, 255u, 256u, 257u, 8192u, 20'000u}) {
        const std::string description = std::string(length, 'd') + '\0';
        EXPECT_EQ(fake_jpeg, Picture(bytes("\0image/jpeg\0\x03") + description + fake_jpeg).bytes) << length;
    }
}

TEST(Id3Picture, EmptyFrameIsRefused) {
    const Picture picture("");
    EXPECT_FALSE(picture.found);
    EXPECT_EQ("id3_load_picture: Frame size too small\n", picture.log);
}

TEST(Id3Picture, OtherTextEncodingIsRefused) {
    for (const int encoding : {1, 2, 3, 255}) {
        const Picture picture(static_cast<char>(encoding) + body_in_front.substr(1) + fake_jpeg);
        EXPECT_FALSE(picture.found);
        EXPECT_EQ("id3_load_picture: Unexpected encoding " + std::to_string(encoding) + "\n", picture.log);
    }
}

TEST(Id3Picture, OtherTypeIsRefused) {
    const Picture picture(bytes("\0image/png\0\x03\0") + fake_jpeg);
    EXPECT_FALSE(picture.found);
    EXPECT_EQ("id3_load_picture: Not a jpeg image (image/png)\n", picture.log);
    EXPECT_EQ("id3_load_picture: Not a jpeg image ()\n", Picture(bytes("\0")).log);
    EXPECT_EQ("id3_load_picture: Not a jpeg image (image/jpegs)\n", Picture(bytes("\0image/jpegs")).log);
}

TEST(Id3Picture, TypeIsShownUpTo255Bytes) {
    const Picture picture(bytes("\0") + std::string(300, 'x'));
    EXPECT_EQ("id3_load_picture: Not a jpeg image (" + std::string(255, 'x') + ")\n", picture.log);
}

TEST(Id3Picture, FrameCutAnywhereInFrontOfThePictureHasNoData) {
    const std::string body = bytes("\0image/jpeg\0\x03"
                                   "Front\0");
    ASSERT_EQ(19u, body.size());
    for (std::size_t length = 11; length <= body.size(); ++length) { // from the end of the type's text on
        const Picture picture(body.substr(0, length));
        EXPECT_FALSE(picture.found);
        EXPECT_EQ("id3_load_picture: Missing picture data\n", picture.log) << length;
    }
}

TEST(Id3Picture, BytesThatAreNoImageGiveNothingSilently) {
    const Picture picture(body_in_front + "GIF89a");
    EXPECT_FALSE(picture.found);
    EXPECT_EQ("", picture.log);
}

TEST(Id3Picture, IsStoredAsJpegOfPictureType16WithoutDescription) {
    Descriptor tag;
    Image* const image = image_from_bytes(fake_jpeg.data(), fake_jpeg.size());
    EXPECT_EQ(1, id3_store_picture(&tag, id3_frame_id("APIC"), image));
    EXPECT_EQ((Rows{bytes("APIC:\0image/jpeg\0\x10\0") + fake_jpeg}), tag.list());
    EXPECT_EQ(1, fake_image_references(image));
    image_release(image);
}

TEST(Id3Picture, IsStoredUnderTheGivenIdInPlaceOfTheFirst) {
    Descriptor tag;
    tag.add("PIC1", "old");
    tag.add("PIC1", "second");
    Image* const image = image_from_bytes(fake_jpeg.data(), fake_jpeg.size());
    EXPECT_EQ(1, id3_store_picture(&tag, id3_frame_id("PIC1"), image));
    EXPECT_EQ((Rows{bytes("PIC1:\0image/jpeg\0\x10\0") + fake_jpeg, "PIC1:second"}), tag.list());
    image_release(image);
}

TEST(Id3Picture, ThatCanNotBeEncodedLeavesTheTagSilently) {
    Descriptor tag;
    tag.add("APIC", "old");
    Image* const image = image_from_bytes(fake_jpeg.data(), fake_jpeg.size());
    fail_fake_image_encoding(true);
    StreamCapture log;
    EXPECT_EQ(0, id3_store_picture(&tag, id3_frame_id("APIC"), image));
    EXPECT_EQ("", log.text());
    fail_fake_image_encoding(false);
    EXPECT_EQ((Rows{"APIC:old"}), tag.list());
    image_release(image);
}

TEST(Id3Picture, WithoutMemoryForTheBodyIsLogged) {
    Descriptor tag;
    Image* const image = image_from_bytes(fake_jpeg.data(), fake_jpeg.size());
    StreamCapture log;
    {
        const AllocationFaults no_memory(1);
        EXPECT_EQ(0, id3_store_picture(&tag, id3_frame_id("APIC"), image));
    }
    EXPECT_EQ("id3_encode_picture: Couldn't allocate buffer\n", log.text());
    EXPECT_EQ(0, tag.frame_count);
    image_release(image);
}

const GUID guid = {
    {0x30, 0x26, 0xB2, 0x75, 0x8E, 0x66, 0x12, 0x00, 0xA6, 0xD9, 0x00, 0xAA, 0x00, 0x62, 0xCE, 0x6C}};
const std::string art_name = "AlbumArt_{75b22630-668e-12  -a6d9-00aa0062ce6c}_"; // blanks in the third group

std::string album_art(const std::string& media_path) {
    Image* const image = id3_load_albumart(media_path.c_str(), guid);
    const std::string found = image ? fake_image_bytes(image) : "";
    image_release(image);
    return found;
}

TEST(Id3AlbumArt, LargeFileBesideTheMediaIsTaken) {
    const ScratchFolder folder;
    write_file(folder / (art_name + "Large.jpg"), fake_jpeg + "large");
    write_file(folder / (art_name + "Small.jpg"), fake_jpeg + "small");
    EXPECT_EQ(fake_jpeg + "large", album_art(folder / "song.mp3"));
}

TEST(Id3AlbumArt, SmallFileIsTakenWhenTheLargeOneIsMissingOrNoImage) {
    const ScratchFolder folder;
    write_file(folder / (art_name + "Small.jpg"), fake_jpeg + "small");
    EXPECT_EQ(fake_jpeg + "small", album_art(folder / "song.mp3"));
    write_file(folder / (art_name + "Large.jpg"), "no image");
    EXPECT_EQ(fake_jpeg + "small", album_art(folder / "song.mp3"));
}

TEST(Id3AlbumArt, WithoutFilesThereIsNone) {
    const ScratchFolder folder;
    EXPECT_EQ(nullptr, id3_load_albumart((folder / "song.mp3").c_str(), guid));
}

TEST(Id3AlbumArt, PathWithoutSlashIsTakenAsTheFolder) {
    const ScratchFolder folder;
    ASSERT_EQ(0, ::chdir(folder.path().c_str()));
    write_file(art_name + "Large.jpg", fake_jpeg);
    EXPECT_EQ(nullptr, id3_load_albumart("song.mp3", guid));
    ASSERT_EQ(0, ::mkdir("song.mp3", 0755));
    write_file("song.mp3/" + art_name + "Large.jpg", fake_jpeg);
    EXPECT_EQ(fake_jpeg, album_art("song.mp3"));
    ASSERT_EQ(0, ::chdir("/"));
}

} // namespace
} // namespace velmora::test
