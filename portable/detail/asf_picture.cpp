#include "asf_picture.h"

#include "text.h"

namespace velmora::portable {

namespace {

constexpr std::size_t fixed_size = 5;

/** The text at OFFSET of VALUE, its terminator included, and OFFSET behind it. Nothing where it has no
   terminator. */
std::optional<std::span<const std::uint8_t>> terminated_text(std::span<const std::uint8_t> value,
                                                             std::size_t& offset) {
    for (std::size_t end = offset; end + 2 <= value.size(); end += 2) {
        if (value[end] == 0 && value[end + 1] == 0) {
            const auto text = value.subspan(offset, end + 2 - offset);
            offset = end + 2;
            return text;
        }
    }
    return std::nullopt;
}

} // namespace

std::optional<AsfPicture> read_asf_picture(std::span<const std::uint8_t> value) {
    if (value.size() < fixed_size) {
        return std::nullopt;
    }
    const std::uint32_t size = load_le32(value.data() + 1);
    std::size_t offset = fixed_size;
    const auto mime = terminated_text(value, offset);
    const auto description = mime ? terminated_text(value, offset) : std::nullopt;
    if (!description || size == 0 || size > value.size() - offset) {
        return std::nullopt;
    }
    AsfPicture picture;
    picture.type = value[0];
    picture.cover.mime = utf8_from_utf16(*mime, std::endian::little);
    picture.description.assign(description->begin(), description->end());
    const auto bytes = value.subspan(offset, size);
    picture.cover.bytes.assign(bytes.begin(), bytes.end());
    return picture;
}

Bytes asf_picture_value(const AsfPicture& picture) {
    Bytes value = {picture.type};
    append_le32(value, static_cast<std::uint32_t>(picture.cover.bytes.size()));
    append(value, utf16_from_utf8(picture.cover.mime, std::endian::little));
    append_le16(value, 0);
    append(value, picture.description);
    append(value, picture.cover.bytes);
    return value;
}

} // namespace velmora::portable
