#include "checked_read.h"
#include "cover_choice.h"
#include "flac_picture.h"
#include "formats.h"
#include "id3v1_tag.h"
#include "id3v2_fields.h"
#include "vorbis_comments.h"

#include "../reason.h"

#include <algorithm>
#include <numeric>

namespace velmora::portable {

namespace {

namespace block_type {
constexpr std::uint8_t stream_info = 0;
constexpr std::uint8_t padding = 1;
constexpr std::uint8_t comments = 4;
constexpr std::uint8_t picture = 6;
} // namespace block_type

constexpr std::uint8_t last_block = 0x80;
constexpr std::size_t block_header_size = 4;
constexpr std::size_t largest_block = (1u << 24) - 1;
/** Metadata of more bytes than this in all is not taken into memory. */
constexpr std::uint64_t largest_metadata = 64UL * 1024 * 1024;
/** Padding beyond this and beyond what was there before is given back. */
constexpr std::size_t most_padding = 8192;
constexpr std::size_t new_padding = 4096;

struct Block {
    std::uint8_t type = 0;
    Bytes content; ///< of padding: none
    std::size_t padding = 0;

    [[nodiscard]] std::size_t size() const { return block_header_size + content.size() + padding; }
};

std::size_t size_of(const std::vector<Block>& blocks) {
    return std::accumulate(blocks.begin(), blocks.end(), std::size_t{0},
                           [](std::size_t sum, const Block& block) { return sum + block.size(); });
}

/** A FLAC stream: metadata blocks and frames. Tags of other formats, which some programs put in front of it and behind
    it, are second places. */
class FlacFile : public TaggedFile {
public:
    FlacFile(FIOFUNCSTRUCT* file, std::uint64_t size, Media media);

    [[nodiscard]] std::vector<std::string> tags() const override;
    [[nodiscard]] TagValues values() const override { return values_in(blocks_); }
    [[nodiscard]] std::vector<TagItem> items() const override;
    [[nodiscard]] std::vector<Range> payload() const override { return {frames_}; }
    [[nodiscard]] TagValues values_with(const TagEdits& edits) const override;
    [[nodiscard]] Rewrite with(const TagEdits& edits) const override;
    [[nodiscard]] Rewrite without_tags() const override;

private:
    void read_id3(ReadCursor& cursor);
    void read_blocks(ReadCursor& cursor);
    void read_id3v1(ReadWindow& window);
    [[nodiscard]] TagValues values_in(const std::vector<Block>& blocks) const;
    [[nodiscard]] Rewrite made_of(std::vector<Block> blocks, const std::optional<Id3v2Tag>& id3v2,
                                  const std::optional<Id3v1Tag>& id3v1) const;

    Media media_;
    std::optional<Id3v2Tag> id3v2_;
    std::vector<Block> blocks_;
    Range frames_;
    std::optional<Id3v1Tag> id3v1_;
};

FlacFile::FlacFile(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) : media_(media), frames_{0, size} {
    ReadWindow window(file);
    ReadCursor cursor(window, 0, size);
    read_id3(cursor);
    read_blocks(cursor);
    frames_.begin = cursor.position();
    read_id3v1(window);
}

void FlacFile::read_id3(ReadCursor& cursor) {
    ReadCursor probe = cursor.slice(Id3v2Header::size);
    const std::optional<Id3v2Header> header = id3v2_header(
        read_bytes(probe, std::min<std::uint64_t>(probe.left(), Id3v2Header::size), "FLAC stream"));
    if (!header) {
        return;
    }
    if (header->tag_size() > std::min(cursor.left(), largest_metadata)) {
        throw Refusal({ReasonCode::damaged, 0, "the ID3v2 tag is cut off"});
    }
    id3v2_.emplace(read_bytes(cursor, header->tag_size(), "ID3v2 tag"));
}

void FlacFile::read_blocks(ReadCursor& cursor) {
    const Bytes marker = read_bytes(cursor, 4, "FLAC stream");
    if (std::string_view(reinterpret_cast<const char*>(marker.data()), 4) != "fLaC") {
        throw Refusal({ReasonCode::damaged, 0, "no FLAC stream"});
    }
    std::uint64_t left = largest_metadata;
    std::uint8_t first = 0;
    while ((first & last_block) == 0) {
        std::uint32_t length = 0;
        check_read(cursor.read_byte(&first), "FLAC metadata");
        check_read(cursor.read_be24(&length), "FLAC metadata");
        const auto type = static_cast<std::uint8_t>(first & ~last_block);
        if (type == block_type::padding) {
            if (!cursor.skip(length)) {
                throw Refusal({ReasonCode::damaged, 0, "FLAC metadata is cut off"});
            }
            blocks_.push_back({type, {}, length});
            continue;
        }
        if (length > left) {
            throw Refusal({ReasonCode::too_large, 0, "FLAC metadata"});
        }
        left -= length;
        blocks_.push_back({type, read_bytes(cursor, length, "FLAC metadata"), 0});
    }
    if (blocks_.front().type != block_type::stream_info) {
        throw Refusal({ReasonCode::damaged, 0, "FLAC metadata"});
    }
}

void FlacFile::read_id3v1(ReadWindow& window) {
    if (frames_.size() < Id3v1Tag::size) {
        return;
    }
    ReadCursor cursor(window, frames_.end - Id3v1Tag::size, frames_.end);
    id3v1_ = Id3v1Tag::parse(read_bytes(cursor, Id3v1Tag::size, "FLAC stream"));
    frames_.end -= id3v1_ ? Id3v1Tag::size : 0;
}

std::vector<std::string> FlacFile::tags() const {
    std::vector<std::string> names;
    for (const Block& block : blocks_) {
        if (block.type == block_type::comments || (block.type == block_type::picture && names.empty())) {
            names = {"Vorbis"};
        }
    }
    if (id3v2_) {
        names.push_back(id3v2_->name());
    }
    if (id3v1_) {
        names.emplace_back("ID3v1");
    }
    return names;
}

std::vector<std::size_t> cover_blocks(const std::vector<Block>& blocks) {
    std::vector<std::optional<std::uint32_t>> types;
    for (const Block& block : blocks) {
        const auto picture = block.type == block_type::picture ? flac_picture(block.content) : std::nullopt;
        types.push_back(picture ? std::optional(picture->type) : std::nullopt);
    }
    return cover_places(types);
}

TagValues FlacFile::values_in(const std::vector<Block>& blocks) const {
    TagValues values;
    for (const Block& block : blocks) {
        if (block.type == block_type::comments) {
            values = VorbisComments(block.content).values(media_);
            break;
        }
    }
    const std::vector<std::size_t> covers = cover_blocks(blocks);
    if (!covers.empty()) {
        values.cover = flac_picture(blocks[covers.front()].content)->cover();
    }
    return values;
}

bool has_comments(const std::vector<Block>& blocks) {
    return std::any_of(blocks.begin(), blocks.end(),
                       [](const Block& block) { return block.type == block_type::comments; });
}

std::vector<TagItem> FlacFile::items() const {
    std::vector<TagItem> items;
    const auto add = [&](const std::vector<TagItem>& more) {
        items.insert(items.end(), more.begin(), more.end());
    };
    if (id3v2_) {
        add(id3v2_items(*id3v2_, media_));
    }
    const std::vector<std::size_t> covers = cover_blocks(blocks_);
    if (!has_comments(blocks_)) {
        add(VorbisComments().items(media_)); // what a save begins with
    }
    for (std::size_t i = 0; i < blocks_.size(); ++i) {
        const Block& block = blocks_[i];
        if (block.type == block_type::comments) {
            add(VorbisComments(block.content).items(media_));
        } else if (block.type != block_type::padding) {
            const bool cover = std::find(covers.begin(), covers.end(), i) != covers.end();
            items.push_back({"FLAC block " + std::to_string(block.type), block.content,
                             cover ? std::optional(Field::cover) : std::nullopt});
        }
    }
    if (id3v1_) {
        add(id3v1_->items());
    }
    return items;
}

void apply_texts(std::vector<Block>& blocks, const TagEdits& edits, Media media) {
    auto place = std::find_if(blocks.begin(), blocks.end(),
                              [](const Block& block) { return block.type == block_type::comments; });
    VorbisComments comments = place == blocks.end() ? VorbisComments() : VorbisComments(place->content);
    comments.apply(edits, media);
    if (place != blocks.end()) {
        place->content = comments.bytes();
    } else if (!comments.comments().empty()) {
        blocks.insert(blocks.begin() + 1, {block_type::comments, comments.bytes(), 0});
    }
}

void apply_cover(std::vector<Block>& blocks, const Edit<Cover>& edit) {
    const std::vector<std::size_t> covers = cover_blocks(blocks);
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
    Block block{block_type::picture, flac_picture_block(picture), 0};
    if (covers.empty()) {
        const auto padding = std::find_if(blocks.begin(), blocks.end(), [](const Block& candidate) {
            return candidate.type == block_type::padding;
        });
        blocks.insert(padding, std::move(block));
    } else {
        blocks[covers.front()] = std::move(block);
    }
}

TagValues FlacFile::values_with(const TagEdits& edits) const {
    TagValues values = edits.applied_to(this->values());
    if (edits.cover.deletes()) {
        std::vector<Block> blocks = blocks_;
        apply_cover(blocks, edits.cover);
        values.cover = values_in(blocks).cover; // a picture that was hidden by the cover
    }
    return values;
}

/** EDITS of the fields that VALUES have: what is not there is not added. */
TagEdits of_existing(const TagEdits& edits, const TagValues& values) {
    TagEdits existing;
    for (std::size_t i = 0; i < text_field_count; ++i) {
        if (values.texts[i]) {
            existing.texts[i] = edits.texts[i];
        }
    }
    existing.year = values.year ? edits.year : existing.year;
    existing.cover = values.cover ? edits.cover : existing.cover;
    return existing;
}

Rewrite FlacFile::with(const TagEdits& edits) const {
    std::vector<Block> blocks = blocks_;
    apply_texts(blocks, edits, media_);
    if (!edits.cover.leaves_alone()) {
        apply_cover(blocks, edits.cover);
    }
    std::optional<Id3v2Tag> id3v2 = id3v2_;
    if (id3v2) {
        id3v2_apply(*id3v2, of_existing(edits, id3v2_values(*id3v2, media_)), media_);
    }
    std::optional<Id3v1Tag> id3v1 = id3v1_;
    if (id3v1) {
        id3v1->apply(edits);
    }
    return made_of(std::move(blocks), id3v2, id3v1);
}

Rewrite FlacFile::without_tags() const {
    std::vector<Block> blocks = blocks_;
    blocks.erase(std::remove_if(blocks.begin(), blocks.end(),
                                [](const Block& block) {
                                    return block.type == block_type::comments ||
                                           block.type == block_type::picture;
                                }),
                 blocks.end());
    return made_of(std::move(blocks), std::nullopt, std::nullopt);
}

/** Lets the last block of padding take up the difference to OLD_SIZE, so that the frames need not move. */
void fit_padding(std::vector<Block>& blocks, std::size_t old_size) {
    const auto padding = std::find_if(blocks.rbegin(), blocks.rend(),
                                      [](const Block& block) { return block.type == block_type::padding; });
    const std::size_t size = size_of(blocks);
    if (padding == blocks.rend() || size == old_size) {
        return;
    }
    const std::size_t rest = size - padding->padding;
    const std::size_t most = std::max(padding->padding, most_padding);
    padding->padding = old_size >= rest && old_size - rest <= most ? old_size - rest : new_padding;
}

Rewrite FlacFile::made_of(std::vector<Block> blocks, const std::optional<Id3v2Tag>& id3v2,
                          const std::optional<Id3v1Tag>& id3v1) const {
    fit_padding(blocks, size_of(blocks_));
    Bytes head = id3v2 ? id3v2->bytes() : Bytes();
    append(head, std::string_view("fLaC"));
    for (std::size_t i = 0; i < blocks.size(); ++i) {
        const Block& block = blocks[i];
        const std::size_t length = block.size() - block_header_size;
        if (length > largest_block) {
            throw Refusal({ReasonCode::too_large, 0, "FLAC metadata block"});
        }
        const std::uint32_t first = block.type | (i + 1 == blocks.size() ? last_block : 0u);
        append_be32(head, first << 24 | static_cast<std::uint32_t>(length));
        append(head, block.content);
        head.resize(head.size() + block.padding);
    }
    Rewrite rewrite;
    rewrite.segments.emplace_back(std::move(head));
    rewrite.segments.emplace_back(frames_);
    if (id3v1) {
        rewrite.segments.emplace_back(id3v1->bytes());
    }
    return rewrite;
}

} // namespace

std::unique_ptr<TaggedFile> open_flac(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) {
    return std::make_unique<FlacFile>(file, size, media);
}

} // namespace velmora::portable
