#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "taglib/avi/load_file_info.h"
#include "taglib/avi/store_file_info.h"
#include "taglib/image_seam/image.h"

#include <gtest/gtest.h>

#include <new>

/** Stands in for images that find no memory. */
namespace velmora {

struct Image {};

Image* image_retain(Image* image) {
    return image;
}

void image_release(Image*) {}

Image* image_from_bytes(const void*, std::size_t) {
    throw std::bad_alloc();
}

Image* image_from_file(const char*) {
    throw std::bad_alloc();
}

std::vector<std::uint8_t> image_to_jpeg(const Image*) {
    throw std::bad_alloc();
}

} // namespace velmora

namespace velmora::test {
namespace {

class PictureOutOfMemory : public testing::Test {
protected:
    /** What a store of a picture and a title makes of a file of BYTES. */
    std::string stored(int (*store)(const char*, _file_info_t*), const std::string& bytes) {
        write_file(path_, bytes);
        char title[] = "New";
        Image picture;
        _file_info_t info{};
        info.title = title;
        info.picture = &picture;
        info.flags = file_info_flag::title | file_info_flag::picture;
        const StreamCapture quiet;
        EXPECT_EQ(1, store(path_.c_str(), &info));
        return read_file(path_);
    }

    const ScratchFolder folder_;
    const std::string path_ = folder_ / "file";
};

// A film of two chunks: INAM "Old", IPIC "jpeg".
const std::string avi_front = hex("52 49 46 46") + hex("2C 00 00 00") + "AVI " +
                              hex("4C 49 53 54 20 00 00 00") + "INFO" + "INAM" + hex("04 00 00 00");
const std::string avi_back = "IPIC" + hex("08 00 00 00") + "jpegjpeg";

TEST_F(PictureOutOfMemory, AnAviFileLoadsWithoutItsPicture) {
    write_file(path_, avi_front + hex("4F 6C 64 00") + avi_back);
    _file_info_t info;
    const StreamCapture quiet;
    EXPECT_EQ(1, avi_load_file_info(path_.c_str(), &info));
    EXPECT_STREQ("Old", info.title);
    EXPECT_EQ(nullptr, info.picture);
    id3_free_file_info(&info);
}

TEST_F(PictureOutOfMemory, AnAviStoreLeavesThePictureThatTheFileHas) {
    EXPECT_EQ(avi_front + hex("4E 65 77 00") + avi_back,
              stored(avi_store_file_info, avi_front + hex("4F 6C 64 00") + avi_back));
}

} // namespace
} // namespace velmora::test
