#pragma once

#include "byte_appending.h"

#include "portable/tag_values.h"

#include <optional>
#include <span>
#include <string>

namespace velmora::portable {

/** A picture as FLAC keeps it in a block, and Ogg in a comment. */
struct FlacPicture {
    std::uint32_t type = 0;
    std::string mime;
    Bytes description; ///< UTF-8, as it lies there
    Bytes bytes;

    [[nodiscard]] Cover cover() const { return {bytes, mime}; }
};

/** The picture that BLOCK is; nothing where it is damaged, or only a link. */
[[nodiscard]] std::optional<FlacPicture> flac_picture(std::span<const std::uint8_t> block);
/** The block of PICTURE; its size and depth are those that its bytes tell. */
[[nodiscard]] Bytes flac_picture_block(const FlacPicture& picture);

/** BYTES in base64, and back; nothing where TEXT is none. */
[[nodiscard]] std::string base64(std::span<const std::uint8_t> bytes);
[[nodiscard]] std::optional<Bytes> from_base64(std::string_view text);

} // namespace velmora::portable
