#include "fake_image.h"

#include <fstream>
#include <iterator>

namespace velmora {

struct Image {
    std::string bytes;
    int references = 1;
};

namespace {
int alive = 0;
bool fail_encoding = false;
} // namespace

Image* image_retain(Image* image) {
    if (image) {
        ++image->references;
    }
    return image;
}

void image_release(Image* image) {
    if (image && --image->references == 0) {
        --alive;
        delete image;
    }
}

Image* image_from_bytes(const void* bytes, std::size_t size) {
    const std::string_view view(static_cast<const char*>(bytes), size);
    if (!view.starts_with("\xFF\xD8\xFF")) {
        return nullptr;
    }
    auto* const image = new Image{std::string(view)};
    ++alive;
    return image;
}

Image* image_from_file(const char* path) {
    std::ifstream stream(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(stream), {}};
    return image_from_bytes(bytes.data(), bytes.size());
}

std::vector<std::uint8_t> image_to_jpeg(const Image* image) {
    if (!image || fail_encoding) {
        return {};
    }
    return {image->bytes.begin(), image->bytes.end()};
}

namespace test {

std::string fake_image_bytes(const Image* image) {
    return image->bytes;
}

int fake_image_references(const Image* image) {
    return image->references;
}

int fake_images_alive() {
    return alive;
}

void fail_fake_image_encoding(bool fail) {
    fail_encoding = fail;
}

} // namespace test
} // namespace velmora
