#pragma once

#include "byte_appending.h"

#include "portable/tag_values.h"
#include "taglib/read_cursor.h"

#include <string_view>
#include <vector>

/** FLAC's metadata blocks, in front of the frames (docs/portable-tags.md, "FLAC"). Everything here that
   reads throws a Refusal. */
namespace velmora::portable {

inline constexpr std::string_view flac_marker = "fLaC";

/** BLOCK_TYPE */
namespace flac_block {
inline constexpr std::uint8_t stream_info = 0;
inline constexpr std::uint8_t padding = 1;
inline constexpr std::uint8_t comments = 4;
inline constexpr std::uint8_t picture = 6;
} // namespace flac_block

/** Metadata that would take more bytes of memory than this is refused. */
inline constexpr std::uint64_t flac_largest_metadata = 64UL * 1024 * 1024;

/** METADATA_BLOCK: its type and its data, of padding the number of bytes. */
struct FlacBlock {
    std::uint8_t type = 0;
    Bytes content; ///< of padding: none
    std::size_t padding = 0;
};

using FlacBlocks = std::vector<FlacBlock>;

/** The blocks from the stream's marker, at which CURSOR is, up to the last one, behind which it is
   afterwards. The first of them is the stream's own. */
[[nodiscard]] FlacBlocks read_flac_blocks(ReadCursor& cursor);

/** The places in BLOCKS of the pictures that are the cover, the one that counts first. */
[[nodiscard]] std::vector<std::size_t> flac_covers(const FlacBlocks& blocks);

/** Puts EDIT, which does not leave the cover alone, into BLOCKS: in the place of the first cover, else in
   front of the first padding or at the end. */
void apply_flac_cover(FlacBlocks& blocks, const Edit<Cover>& edit);

/** Lets the last block of padding in BLOCKS take up the difference in size to OLD, so that the frames need
   not move. */
void fit_flac_padding(FlacBlocks& blocks, const FlacBlocks& old);

/** Appends BLOCKS to TARGET as they lie in a file. Throws the Refusal `too_large`. */
void append_flac_blocks(Bytes& target, const FlacBlocks& blocks);

} // namespace velmora::portable
