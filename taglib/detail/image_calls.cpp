#include "image_calls.h"

#include <cerrno>

namespace velmora {

Image* try_image_from_bytes(const void* bytes, std::size_t size) noexcept {
    try {
        return image_from_bytes(bytes, size);
    } catch (...) {
        errno = ENOMEM;
        return nullptr;
    }
}

Image* try_image_from_file(const char* path) noexcept {
    try {
        return image_from_file(path);
    } catch (...) {
        errno = ENOMEM;
        return nullptr;
    }
}

JpegResult try_image_to_jpeg(const Image* image, std::vector<std::uint8_t>* jpeg) noexcept {
    try {
        *jpeg = image_to_jpeg(image);
    } catch (...) {
        jpeg->clear();
        errno = ENOMEM;
        return JpegResult::no_memory;
    }
    return jpeg->empty() ? JpegResult::no_image : JpegResult::encoded;
}

} // namespace velmora
