#include "picture.h"

#include "../detail/image_calls.h"
#include "text.h"

#include "taglib/path.h"
#include "taglib/trace.h"

#include <climits>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <memory>
#include <vector>

namespace velmora {

namespace {

constexpr std::uint8_t stored_picture_type = 0x10;

bool is_jpeg(const char* mime_type) {
    return id3_equal_ignoring_case(mime_type, "image/jpeg") ||
           id3_equal_ignoring_case(mime_type, "image/jpg");
}

struct Free {
    void operator()(void* block) const { std::free(block); }
};

/** The image in FOLDER's album-art file of that GUID text and SIZE; a name that no file can
   have gives none. */
Image* load_albumart_file(const char* folder, const char* guid, const char* size) {
    char path[PATH_MAX];
    const int length = std::snprintf(path, sizeof path, "%s/AlbumArt_%s_%s.jpg", folder, guid, size);
    return length < PATH_MAX ? try_image_from_file(path) : nullptr;
}

} // namespace

Image* id3_load_picture(const _id3_frame_t* frame) {
    const std::uint8_t* const data = frame->data;
    const std::int32_t size = frame->size;
    std::uint8_t encoding = 0;
    std::int32_t at = id3_load_byte(data, size, &encoding);
    if (at == 0) {
        DebugError("id3_load_picture: Frame size too small\n");
        return nullptr;
    }
    if (encoding != id3_encoding::latin1) {
        DebugError("id3_load_picture: Unexpected encoding %d\n", encoding);
        return nullptr;
    }
    char mime_type[256];
    at += id3_load_string(data + at, size - at, encoding, mime_type, sizeof mime_type);
    if (!is_jpeg(mime_type)) {
        DebugError("id3_load_picture: Not a jpeg image (%s)\n", mime_type);
        return nullptr;
    }
    std::uint8_t picture_type = 0;
    at += id3_load_byte(data + at, size - at, &picture_type);
    at += id3_string_size(data + at, size - at, encoding);
    if (at >= size) {
        DebugError("id3_load_picture: Missing picture data\n");
        return nullptr;
    }
    return try_image_from_bytes(data + at, static_cast<std::size_t>(size - at));
}

Image* id3_load_albumart(const char* media_path, const GUID& guid) {
    const OwnedText folder = folder_of_file(media_path);
    if (!folder) {
        return nullptr;
    }
    const char* const text = GUIDNAME(guid);
    Image* const large = load_albumart_file(folder.get(), text, "Large");
    return large ? large : load_albumart_file(folder.get(), text, "Small");
}

int id3_store_picture(_id3_file_desc_t* descriptor, std::uint32_t id, const Image* image) {
    std::vector<std::uint8_t> jpeg;
    constexpr std::size_t room_in_front = 20;
    if (try_image_to_jpeg(image, &jpeg) != JpegResult::encoded ||
        jpeg.size() > std::numeric_limits<std::int32_t>::max() - room_in_front) {
        return 0;
    }
    const auto capacity = static_cast<std::int32_t>(jpeg.size() + room_in_front);
    const std::unique_ptr<std::uint8_t, Free> buffer(
        static_cast<std::uint8_t*>(std::malloc(static_cast<std::size_t>(capacity))));
    if (!buffer) {
        DebugError("id3_encode_picture: Couldn't allocate buffer\n");
        return 0;
    }
    std::uint8_t* const body = buffer.get();
    std::int32_t at = id3_store_byte(body, capacity, id3_encoding::latin1);
    at += id3_store_string(body + at, capacity - at, "image/jpeg");
    at += id3_store_byte(body + at, capacity - at, stored_picture_type);
    at += id3_store_string(body + at, capacity - at, "");
    at += id3_store_bytes(body + at, capacity - at, jpeg.data(), static_cast<std::int32_t>(jpeg.size()));
    return id3_insert_tag(descriptor, id, body, at);
}

} // namespace velmora
