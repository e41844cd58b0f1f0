#pragma once

#include <cstdint>
#include <string_view>

/** The ten-byte records that an ID3v2 tag is made of in a file (docs/id3.md, "Header and footer" and
   "Frames"). */
namespace velmora {

inline constexpr std::uint8_t id3_newest_version = 4;

/** A tag's header, and its footer, which differs in the signature alone. */
struct Id3TagHeader {
    char signature[3];
    std::uint8_t version;
    std::uint8_t revision;
    std::uint8_t flags;
    std::uint8_t size[4]; ///< syncsafe; without header and footer

    [[nodiscard]] bool has_signature(std::string_view name) const {
        return name == std::string_view(signature, 3);
    }
};
static_assert(sizeof(Id3TagHeader) == 10);

struct Id3FrameHeader {
    char id[4];
    std::uint8_t size[4]; ///< syncsafe from version 4 on, a plain big-endian number before
    std::uint8_t flags[2];
};
static_assert(sizeof(Id3FrameHeader) == 10);

} // namespace velmora
