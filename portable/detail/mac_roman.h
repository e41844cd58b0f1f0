#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace velmora::portable {

/** The UTF-8 of BYTES in the character set "Mac OS Roman", which old QuickTime texts are in. They end at the
   first zero. */
[[nodiscard]] std::string utf8_from_mac_roman(std::span<const std::uint8_t> bytes);

} // namespace velmora::portable
