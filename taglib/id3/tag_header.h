#pragma once

#include "../fio.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/** The ten-byte records that an ID3v2 tag is made of in a file. */
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

/** What a read gave. */
enum class Id3Read {
    whole,
    cut,    ///< the file ends first
    failed, ///< nobody knows what is there: a call failed, or gave fewer bytes than the file has
};

/** Reads SIZE bytes at the current position, which is undefined afterwards unless they were read whole. */
[[nodiscard]] Id3Read id3_read_bytes(FIOFUNCSTRUCT* file, void* bytes, std::size_t size);
/** Reads the header at OFFSET. */
[[nodiscard]] Id3Read id3_read_tag_header(FIOFUNCSTRUCT* file, std::int64_t offset, Id3TagHeader* header);
/** Reads the file's last ten bytes as a footer and stores in OFFSET where they begin. */
[[nodiscard]] Id3Read id3_read_tag_footer(FIOFUNCSTRUCT* file, Id3TagHeader* footer, std::int64_t* offset);
/** Where the header of the tag that ends with FOOTER at FOOTER_OFFSET lies; negative when that is in front of
   the file. */
[[nodiscard]] std::int64_t id3_header_offset(const Id3TagHeader& footer, std::int64_t footer_offset);

} // namespace velmora
