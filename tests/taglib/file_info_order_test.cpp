#include "taglib/file_info.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <vector>

namespace {
// What was given back, in that order, while a test watches.
bool watching = false;
std::vector<const void*> released;

void note(const void* object) {
    if (watching && object) {
        released.push_back(object);
    }
}
} // namespace

// NOLINTBEGIN(bugprone-reserved-identifier)
extern "C" void __real_free(void* memory);
extern "C" void __wrap_free(void* memory) {
    note(memory);
    __real_free(memory);
}
// NOLINTEND(bugprone-reserved-identifier)

namespace velmora {

struct Image {
    int unused;
};

void image_release(Image* image) {
    note(image);
}

namespace {

TEST(FreeFileInfo, FreesTheTextsAndThenTheObjectsInTheirOrder) {
    Image picture{};
    Image aux_object{};
    _file_info_t info{};
    info.title = ::strdup("title");
    info.artist = ::strdup("artist");
    info.desc = ::strdup("desc");
    info.genre = ::strdup("genre");
    info.director = ::strdup("director");
    info.rating = ::strdup("rating");
    info.picture = &picture;
    info.aux_object = &aux_object;
    const std::vector<const void*> expected = {info.title,  info.artist, info.desc, info.director,
                                               info.rating, info.genre,  &picture,  &aux_object};
    released.reserve(expected.size());
    watching = true;
    id3_free_file_info(&info);
    watching = false;
    EXPECT_EQ(expected, released);
}

} // namespace
} // namespace velmora
