#include "checked_read.h"
#include "flac_blocks.h"
#include "flac_picture.h"
#include "formats.h"
#include "id3v1_tag.h"
#include "id3v2_fields.h"
#include "vorbis_comments.h"

#include "portable/reason.h"

#include <algorithm>

namespace velmora::portable {

namespace {

/** A FLAC stream: metadata blocks and frames. Tags of other formats, which some programs put in front of it
   and behind it, are second places. */
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
    void read_id3v1(ReadWindow& window);
    [[nodiscard]] TagValues values_in(const FlacBlocks& blocks) const;
    [[nodiscard]] Rewrite made_of(FlacBlocks blocks, const std::optional<Id3v2Tag>& id3v2,
                                  const std::optional<Id3v1Tag>& id3v1) const;

    Media media_;
    std::optional<Id3v2Tag> id3v2_;
    FlacBlocks blocks_;
    Range frames_;
    std::optional<Id3v1Tag> id3v1_;
};

FlacFile::FlacFile(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) : media_(media), frames_{0, size} {
    ReadWindow window(file);
    ReadCursor cursor(window, 0, size);
    read_id3(cursor);
    blocks_ = read_flac_blocks(cursor);
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
    if (header->tag_size() > std::min(cursor.left(), flac_largest_metadata)) {
        throw Refusal({ReasonCode::damaged, 0, "the ID3v2 tag is cut off"});
    }
    id3v2_.emplace(read_bytes(cursor, header->tag_size(), "ID3v2 tag"));
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
    for (const FlacBlock& block : blocks_) {
        if (block.type == flac_block::comments || (block.type == flac_block::picture && names.empty())) {
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

TagValues FlacFile::values_in(const FlacBlocks& blocks) const {
    TagValues values;
    for (const FlacBlock& block : blocks) {
        if (block.type == flac_block::comments) {
            values = VorbisComments(block.content).values(media_);
            break;
        }
    }
    const std::vector<std::size_t> covers = flac_covers(blocks);
    if (!covers.empty()) {
        values.cover = flac_picture(blocks[covers.front()].content)->cover();
    }
    return values;
}

bool has_comments(const FlacBlocks& blocks) {
    return std::any_of(blocks.begin(), blocks.end(),
                       [](const FlacBlock& block) { return block.type == flac_block::comments; });
}

std::vector<TagItem> FlacFile::items() const {
    std::vector<TagItem> items;
    const auto add = [&](const std::vector<TagItem>& more) {
        items.insert(items.end(), more.begin(), more.end());
    };
    if (id3v2_) {
        add(id3v2_items(*id3v2_, media_));
    }
    const std::vector<std::size_t> covers = flac_covers(blocks_);
    if (!has_comments(blocks_)) {
        add(VorbisComments().items(media_)); // what a save begins with
    }
    for (std::size_t i = 0; i < blocks_.size(); ++i) {
        const FlacBlock& block = blocks_[i];
        if (block.type == flac_block::comments) {
            add(VorbisComments(block.content).items(media_));
        } else if (block.type != flac_block::padding) {
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

void apply_texts(FlacBlocks& blocks, const TagEdits& edits, Media media) {
    auto place = std::find_if(blocks.begin(), blocks.end(),
                              [](const FlacBlock& block) { return block.type == flac_block::comments; });
    VorbisComments comments = place == blocks.end() ? VorbisComments() : VorbisComments(place->content);
    comments.apply(edits, media);
    if (place != blocks.end()) {
        place->content = comments.bytes();
    } else if (!comments.comments().empty()) {
        blocks.insert(blocks.begin() + 1, {flac_block::comments, comments.bytes(), 0});
    }
}

TagValues FlacFile::values_with(const TagEdits& edits) const {
    TagValues values = edits.applied_to(this->values());
    if (edits.cover.deletes()) {
        FlacBlocks blocks = blocks_;
        apply_flac_cover(blocks, edits.cover);
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
    FlacBlocks blocks = blocks_;
    apply_texts(blocks, edits, media_);
    if (!edits.cover.leaves_alone()) {
        apply_flac_cover(blocks, edits.cover);
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
    FlacBlocks blocks = blocks_;
    blocks.erase(std::remove_if(blocks.begin(), blocks.end(),
                                [](const FlacBlock& block) {
                                    return block.type == flac_block::comments ||
                                           block.type == flac_block::picture;
                                }),
                 blocks.end());
    return made_of(std::move(blocks), std::nullopt, std::nullopt);
}

Rewrite FlacFile::made_of(FlacBlocks blocks, const std::optional<Id3v2Tag>& id3v2,
                          const std::optional<Id3v1Tag>& id3v1) const {
    fit_flac_padding(blocks, blocks_);
    Bytes head = id3v2 ? id3v2->bytes() : Bytes();
    append(head, flac_marker);
    append_flac_blocks(head, blocks);
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
