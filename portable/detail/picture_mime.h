#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace velmora::portable {

/** The MIME type of the picture that BYTES are, told by the first of them; empty where they are none that is
   known. For formats that don't say it. */
[[nodiscard]] std::string picture_mime(std::span<const std::uint8_t> bytes);

} // namespace velmora::portable
