#include "picture.h"

#include "../detail/image_calls.h"
#include "descriptor_value.h"
#include "detail/owned.h"
#include "detail/utf16.h"

#include "taglib/byte_order.h"
#include "taglib/trace.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

namespace velmora {

namespace {

constexpr const char* picture_name = "WM/Picture";
constexpr const char* jpeg_mime_type = "image/jpeg";
constexpr std::size_t mime_offset = 5;
constexpr std::size_t mime_size = 22;
constexpr std::size_t description_size = 2;
constexpr std::size_t data_offset = mime_offset + mime_size + description_size;
constexpr std::uint8_t front_cover = 3;
constexpr std::size_t longest_mime_type = 255;

/** The low bytes of a MIME type's units, terminated. */
struct MimeType {
    char text[longest_mime_type] = {};
};

/** Walks over the zero-terminated texts of a picture value. Each unit must end before the value does, not
   with it. */
class TextCursor {
public:
    TextCursor(const std::uint8_t* value, std::size_t length) : value_(value), length_(length) {}

    /** The next unit; nothing at the end. */
    [[nodiscard]] std::optional<std::uint16_t> next() {
        if (length_ - position_ <= 2) {
            return std::nullopt;
        }
        position_ += 2;
        return load_le16(value_ + position_ - 2);
    }
    [[nodiscard]] std::size_t position() const { return position_; }

private:
    const std::uint8_t* value_;
    std::size_t length_;
    std::size_t position_ = mime_offset;
};

/** False when the text has no terminator within the value and the units that MIME_TYPE holds. */
bool read_mime_type(TextCursor& cursor, MimeType& mime_type) {
    for (char& character : mime_type.text) {
        const std::optional<std::uint16_t> unit = cursor.next();
        if (!unit) {
            return false;
        }
        character = static_cast<char>(*unit & 0xFF);
        if (*unit == 0) {
            return true;
        }
    }
    return false;
}

/** False when the description has no terminator within the value. */
bool skip_description(TextCursor& cursor) {
    std::optional<std::uint16_t> unit = cursor.next();
    while (unit && *unit != 0) {
        unit = cursor.next();
    }
    return unit.has_value();
}

bool is_jpeg(const MimeType& mime_type) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 'a' - 'A') : c; };
    MimeType lowered;
    std::transform(std::begin(mime_type.text), std::end(mime_type.text), std::begin(lowered.text), lower);
    const std::string_view text(lowered.text);
    return text == jpeg_mime_type || text == "image/jpg";
}

void fill_value(std::uint8_t* value, const std::vector<std::uint8_t>& jpeg) {
    value[0] = front_cover;
    store_le32(value + 1, static_cast<std::uint32_t>(jpeg.size()));
    utf8_to_utf16le(jpeg_mime_type, value + mime_offset, mime_size - 2);
    std::copy(jpeg.begin(), jpeg.end(), value + data_offset);
}

/** The descriptor for the picture, appended when there is none; null when it can't be. */
_asf_content_descriptor_t* find_or_append(_asf_ext_content_description_t* ecd) {
    _asf_content_descriptor_t* descriptor = asf_find_content_descriptor(ecd, picture_name);
    if (descriptor) {
        return descriptor;
    }
    descriptor = asf_init_content_descriptor();
    if (!descriptor) {
        return nullptr;
    }
    descriptor->name_length = asf_store_value(&descriptor->name, asf_value_type::unicode, picture_name);
    descriptor->type = asf_value_type::bytearray;
    if (descriptor->name_length == 0 || !asf_insert_content_descriptor(ecd, descriptor)) {
        asf_free_content_descriptor(descriptor);
        return nullptr;
    }
    return descriptor;
}

} // namespace

Image* asf_load_picture(const _asf_content_descriptor_t* descriptor) {
    const std::size_t length = descriptor->value_length;
    if (descriptor->type != asf_value_type::bytearray || !descriptor->value || length < mime_offset) {
        return nullptr;
    }
    const std::uint32_t data_length = load_le32(descriptor->value + 1);
    TextCursor cursor(descriptor->value, length);
    MimeType mime_type;
    if (!read_mime_type(cursor, mime_type)) {
        return nullptr;
    }
    if (!is_jpeg(mime_type)) {
        DebugError("asf_load_picture: Not a jpeg image (%s)\n", mime_type.text);
        return nullptr;
    }
    if (!skip_description(cursor)) {
        return nullptr;
    }
    if (data_length > length - cursor.position()) {
        DebugError("asf_load_picture: Picture data overrun\n");
        return nullptr;
    }
    return try_image_from_bytes(descriptor->value + cursor.position(), data_length);
}

int asf_store_picture(_asf_ext_content_description_t* ecd, const Image* image) {
    std::vector<std::uint8_t> jpeg;
    if (!image || try_image_to_jpeg(image, &jpeg) != JpegResult::encoded) {
        return 0;
    }
    if (jpeg.size() > std::numeric_limits<std::uint16_t>::max() - data_offset) {
        DebugError("asf_store_picture: Picture data overrun\n");
        return 0;
    }
    const std::size_t length = jpeg.size() + data_offset;
    AsfOwned<std::uint8_t> value(asf_new_bytes(length));
    if (!value) {
        DebugError("asf_store_picture: Couldn't allocate buffer\n");
        return 0;
    }
    fill_value(value.get(), jpeg);
    _asf_content_descriptor_t* const descriptor = find_or_append(ecd);
    if (!descriptor) {
        return 0;
    }
    std::free(descriptor->value);
    descriptor->value = value.release();
    descriptor->value_length = static_cast<std::uint16_t>(length);
    return 1;
}

} // namespace velmora
