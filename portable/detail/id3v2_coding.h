#pragma once

#include "byte_appending.h"

#include <cstdint>
#include <optional>
#include <span>

/** How numbers and bodies lie in ID3v2 tags: synchsafe, unsynchronised, compressed. */
namespace velmora::portable {

/** Four bytes of seven bits each, the highest first; nothing where a top bit is set. */
[[nodiscard]] std::optional<std::uint32_t> from_synchsafe(std::span<const std::uint8_t> bytes);
/** The low 28 bits of VALUE as a big-endian number whose bytes have seven bits each. */
[[nodiscard]] std::uint32_t to_synchsafe(std::uint32_t value);

/** Undoes unsynchronisation: a zero behind a byte 0xFF goes. */
[[nodiscard]] Bytes without_unsynchronisation(std::span<const std::uint8_t> bytes);
/** Puts a zero behind each 0xFF that a zero or three set bits follow, or that is the last byte. */
[[nodiscard]] Bytes with_unsynchronisation(std::span<const std::uint8_t> bytes);

/** An extended header, which may stand in front of the frames. */
struct Id3v2ExtendedHeader {
    Bytes bytes; ///< without its checksum, which would not hold any more; in 2.3 its padding comes last
    std::size_t size = 0; ///< bytes that it has in the tag
};
/** The one that CONTENT, of a tag of version 3 or 4, begins with; nothing where it is damaged. */
[[nodiscard]] std::optional<Id3v2ExtendedHeader> id3v2_extended_header(std::span<const std::uint8_t> content,
                                                                       std::uint8_t version);

/** The flags of a frame of 2.4 that is unsynchronised and otherwise plain. */
inline constexpr std::uint16_t id3v2_unsynchronised_frame = 0x0002;

/** What a frame with BODY and FLAGS holds in a tag of VERSION; ALL_UNSYNCHRONISED: the tag says it of
   all its frames. Nothing where it is encrypted, does not come out whole, or is larger than this
   program has a use for. */
[[nodiscard]] std::optional<Bytes> id3v2_frame_content(std::span<const std::uint8_t> body,
                                                       std::uint16_t flags, std::uint8_t version,
                                                       bool all_unsynchronised);

} // namespace velmora::portable
