#include "flac_blocks.h"

#include "checked_read.h"
#include "cover_choice.h"
#include "flac_picture.h"

#include "portable/reason.h"

#include <algorithm>
#include <numeric>

namespace velmora::portable {

namespace {

constexpr std::uint8_t last_block = 0x80;
constexpr std::size_t block_header_size = 4;
constexpr std::size_t largest_block = (1u << 24) - 1;
/** Padding beyond this and beyond what was there before is given back. */
constexpr std::size_t most_padding = 8192;
constexpr std::size_t new_padding = 4096;

std::size_t size_of(const FlacBlocks& blocks) {
    return std::accumulate(blocks.begin(), blocks.end(), std::size_t{0},
                           [](std::size_t sum, const FlacBlock& block) {
                               return sum + block_header_size + block.content.size() + block.padding;
                           });
}

} // namespace

FlacBlocks read_flac_blocks(ReadCursor& cursor) {
    const Bytes marker = read_bytes(cursor, flac_marker.size(), "FLAC stream");
    if (std::string_view(reinterpret_cast<const char*>(marker.data()), marker.size()) != flac_marker) {
        throw Refusal({ReasonCode::damaged, 0, "no FLAC stream"});
    }
    FlacBlocks blocks;
    std::uint64_t left = flac_largest_metadata;
    std::uint8_t first = 0;
    while ((first & last_block) == 0) {
        std::uint32_t length = 0;
        check_read(cursor.read_byte(&first), "FLAC metadata");
        check_read(cursor.read_be24(&length), "FLAC metadata");
        const auto type = static_cast<std::uint8_t>(first & ~last_block);
        const std::uint64_t taken = sizeof(FlacBlock) + (type == flac_block::padding ? 0 : length);
        if (taken > left) {
            throw Refusal({ReasonCode::too_large, 0, "FLAC metadata"});
        }
        left -= taken;
        if (type == flac_block::padding) {
            if (!cursor.skip(length)) {
                throw Refusal({ReasonCode::damaged, 0, "FLAC metadata is cut off"});
            }
            blocks.push_back({type, {}, length});
            continue;
        }
        blocks.push_back({type, read_bytes(cursor, length, "FLAC metadata"), 0});
    }
    if (blocks.front().type != flac_block::stream_info) {
        throw Refusal({ReasonCode::damaged, 0, "FLAC metadata"});
    }
    return blocks;
}

std::vector<std::size_t> flac_covers(const FlacBlocks& blocks) {
    std::vector<std::optional<std::uint32_t>> types;
    for (const FlacBlock& block : blocks) {
        const auto picture = block.type == flac_block::picture ? flac_picture(block.content) : std::nullopt;
        types.push_back(picture ? std::optional(picture->type) : std::nullopt);
    }
    return cover_places(types);
}

void apply_flac_cover(FlacBlocks& blocks, const Edit<Cover>& edit) {
    const std::vector<std::size_t> covers = flac_covers(blocks);
    if (edit.deletes()) {
        for (auto place = covers.rbegin(); place != covers.rend(); ++place) {
            blocks.erase(blocks.begin() + static_cast<std::ptrdiff_t>(*place));
        }
        return;
    }
    FlacPicture picture;
    if (!covers.empty()) {
        picture = *flac_picture(blocks[covers.front()].content);
    }
    if (picture.cover() == *edit.value() && picture.type == picture_type::front_cover) {
        return;
    }
    picture = {picture_type::front_cover, edit.value()->mime, picture.description, edit.value()->bytes};
    FlacBlock block{flac_block::picture, flac_picture_block(picture), 0};
    if (covers.empty()) {
        const auto padding = std::find_if(blocks.begin(), blocks.end(), [](const FlacBlock& candidate) {
            return candidate.type == flac_block::padding;
        });
        blocks.insert(padding, std::move(block));
    } else {
        blocks[covers.front()] = std::move(block);
    }
}

void fit_flac_padding(FlacBlocks& blocks, const FlacBlocks& old) {
    const std::size_t old_size = size_of(old);
    const auto padding = std::find_if(blocks.rbegin(), blocks.rend(), [](const FlacBlock& block) {
        return block.type == flac_block::padding;
    });
    const std::size_t size = size_of(blocks);
    if (padding == blocks.rend() || size == old_size) {
        return;
    }
    const std::size_t rest = size - padding->padding;
    const std::size_t most = std::max(padding->padding, most_padding);
    padding->padding = old_size >= rest && old_size - rest <= most ? old_size - rest : new_padding;
}

void append_flac_blocks(Bytes& target, const FlacBlocks& blocks) {
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const FlacBlock& block = blocks[i];
        const std::size_t length = block.content.size() + block.padding;
        if (length > largest_block) {
            throw Refusal({ReasonCode::too_large, 0, "FLAC metadata block"});
        }
        const std::uint32_t first = block.type | (i + 1 == blocks.size() ? last_block : 0u);
        append_be32(target, first << 24 | static_cast<std::uint32_t>(length));
        append(target, block.content);
        target.resize(target.size() + block.padding);
    }
}

} // namespace velmora::portable
