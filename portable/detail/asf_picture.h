#pragma once

#include "byte_appending.h"

#include "portable/tag_values.h"

#include <cstdint>
#include <optional>
#include <span>

/** The value of the attribute "WM/Picture": type, size, MIME type, description, picture. */
namespace velmora::portable {

struct AsfPicture {
    std::uint8_t type = 0; ///< as in ID3v2: 0 other, 3 front cover
    Cover cover;
    Bytes description; ///< UTF-16, its terminator included
};

/** The picture that VALUE is. Nothing where it is damaged or empty. */
[[nodiscard]] std::optional<AsfPicture> read_asf_picture(std::span<const std::uint8_t> value);

/** The value that is PICTURE. */
[[nodiscard]] Bytes asf_picture_value(const AsfPicture& picture);

} // namespace velmora::portable
