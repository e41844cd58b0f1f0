#pragma once

#include "byte_appending.h"
#include "tagged_file.h"

#include "taglib/read_cursor.h"

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace velmora::portable {

namespace ogg_flag {
inline constexpr std::uint8_t continued = 0x01; ///< its first packet began on a page in front
inline constexpr std::uint8_t first = 0x02;     ///< of its stream
inline constexpr std::uint8_t last = 0x04;
} // namespace ogg_flag

/** What stands in front of a page's body. */
struct OggPageHeader {
    static constexpr std::size_t fixed_size = 27;            ///< without the sizes of the segments
    static constexpr std::uint64_t no_position = UINT64_MAX; ///< no packet ends on the page

    std::uint8_t flags = 0;
    std::uint64_t position = 0; ///< in samples
    std::uint32_t serial = 0;   ///< of the stream
    std::uint32_t sequence = 0;
    std::uint32_t checksum = 0;
    Bytes segments; ///< their sizes

    [[nodiscard]] std::uint32_t body_size() const;
    [[nodiscard]] std::uint32_t size() const {
        return static_cast<std::uint32_t>(fixed_size + segments.size()) + body_size();
    }
};

/** Where in a page the two numbers lie that change when pages are counted anew. */
inline constexpr Range ogg_counted_bytes{18, 26};

/** The header at CURSOR, which goes behind it. Nothing where there is no whole one. Throws a Refusal
   where it can't be read. */
[[nodiscard]] std::optional<OggPageHeader> read_ogg_page_header(ReadCursor& cursor);

/** The whole page of HEADER, whose checksum is computed, and BODY. */
[[nodiscard]] Bytes ogg_page(const OggPageHeader& header, std::span<const std::uint8_t> body);

/** The checksum of a page's BYTES, that in them taken for zero. */
[[nodiscard]] std::uint32_t ogg_checksum(std::span<const std::uint8_t> page);

/** The pages of a stream that hold PACKETS, the first with the number SEQUENCE; AT_LEAST so many where that
   can be. */
[[nodiscard]] std::vector<Bytes> ogg_pages(const std::vector<Bytes>& packets, std::uint32_t serial,
                                           std::uint32_t sequence, std::size_t at_least);

} // namespace velmora::portable
