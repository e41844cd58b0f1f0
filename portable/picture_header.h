#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace velmora::portable {

/** What the first bytes of an encoded picture say. */
struct PictureHeader {
    std::string mime;
    std::uint32_t width = 0; ///< pixels
    std::uint32_t height = 0;
    std::uint32_t depth = 0; ///< bits of a pixel; 0: not told
};

/** The header of a JPEG, PNG, GIF, BMP or WebP picture. Nothing for other bytes, and where the size is not
   told. */
[[nodiscard]] std::optional<PictureHeader> picture_header(std::span<const std::uint8_t> bytes);

} // namespace velmora::portable
