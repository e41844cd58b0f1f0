#include "aiff_texts.h"
#include "checked_read.h"
#include "chunk.h"
#include "formats.h"
#include "id3v2_fields.h"
#include "refusals.h"
#include "riff_info.h"
#include "several_tags.h"
#include "splices.h"

#include <algorithm>

namespace velmora::portable {

namespace {

constexpr std::uint64_t form_header_size = 12;
constexpr std::uint64_t largest_tag = std::uint64_t{128} << 20;

/** What tells WAV and AIFF from each other. */
struct Form {
    std::uint32_t file; ///< the identifier that the file begins with
    std::array<std::uint32_t, 2> types;
    std::endian order;
    std::uint32_t media;   ///< the chunk that a file can't be without
    std::uint32_t new_id3; ///< of the tag's chunk, where there is none yet
    const char* not_one;   ///< what is said of another file
};

constexpr Form wav_form{fourcc::riff,        {make_fourcc("WAVE"), make_fourcc("WAVE")},
                        std::endian::little, make_fourcc("data"),
                        make_fourcc("id3 "), "no WAV file"};
constexpr Form aiff_form{make_fourcc("FORM"), {make_fourcc("AIFF"), make_fourcc("AIFC")},
                         std::endian::big,    make_fourcc("SSND"),
                         make_fourcc("ID3 "), "no AIFF file"};

bool holds_id3(std::uint32_t fourcc) {
    return fourcc == make_fourcc("id3 ") || fourcc == make_fourcc("ID3 ");
}

/** An ID3v2 tag in a chunk of its own. */
struct Id3Chunk {
    Chunk chunk;
    Id3v2Tag tag;
    bool more_behind; ///< bytes of the chunk that are no part of the tag
};

/** A WAV or AIFF file: chunks in any order, none of which says where another lies. */
class ChunkAudioFile : public TaggedFile {
public:
    ChunkAudioFile(FIOFUNCSTRUCT* file, std::uint64_t size, Media media, const Form& form)
        : window_(file), size_(size), media_(media), form_(form), info_(media) {
        read_form_header();
        read_chunks();
    }

    [[nodiscard]] std::vector<std::string> tags() const override;
    [[nodiscard]] TagValues values() const override;
    [[nodiscard]] TagEdits completed(const TagEdits& edits) const override;
    [[nodiscard]] TagValues values_with(const TagEdits& edits) const override;
    [[nodiscard]] std::vector<TagItem> items() const override;
    [[nodiscard]] std::vector<Range> payload() const override;
    [[nodiscard]] Rewrite with(const TagEdits& edits) const override;
    [[nodiscard]] Rewrite without_tags() const override;

private:
    [[nodiscard]] ReadCursor cursor() const { return {window_, 0, size_}; }
    void read_form_header();
    void read_chunks();
    void read_chunk(const Chunk& chunk);
    void read_id3(const Chunk& chunk);
    [[nodiscard]] bool is_tag(const Chunk& chunk) const;
    [[nodiscard]] Range whole(const Chunk& chunk) const;
    [[nodiscard]] Bytes tag_chunk(std::uint32_t fourcc, const Id3v2Tag& tag) const;
    void put_id3(Splices& splices, const TagEdits& edits) const;
    void put_info(Splices& splices, const TagEdits& edits) const;
    void put_texts(Splices& splices, const TagEdits& edits) const;
    [[nodiscard]] Rewrite rewrite(Splices splices) const;
    void refuse_cut_off() const;

    mutable ReadWindow window_;
    std::uint64_t size_;
    Media media_;
    const Form& form_;
    std::vector<Chunk> chunks_;
    std::uint64_t end_of_chunks_ = 0;
    std::uint64_t end_of_form_ = 0; ///< as its header says
    std::vector<Id3Chunk> id3_;
    RiffInfo info_;
    AiffTexts texts_;
};

void ChunkAudioFile::read_form_header() {
    std::array<std::uint8_t, form_header_size> bytes{};
    ReadCursor reader = cursor();
    check_read(reader.read(bytes.data(), bytes.size()), "the header");
    const std::uint32_t file = load_le32(bytes.data());
    const std::uint32_t type = load_le32(&bytes[8]);
    if (file == make_fourcc("RF64") || file == make_fourcc("BW64")) {
        refuse_unsupported("a WAV file of 64 bits, " + fourcc_name(file));
    }
    if (file != form_.file || std::find(form_.types.begin(), form_.types.end(), type) == form_.types.end()) {
        refuse_damaged(form_.not_one);
    }
    end_of_form_ =
        8 + std::uint64_t{form_.order == std::endian::little ? load_le32(&bytes[4]) : load_be32(&bytes[4])};
}

void ChunkAudioFile::read_chunks() {
    ReadCursor reader = cursor();
    if (!reader.skip(form_header_size)) {
        return;
    }
    while (const std::optional<Chunk> chunk = next_chunk(reader, form_.order)) {
        if (chunks_.size() == most_chunks) {
            refuse_unsupported("more than " + std::to_string(most_chunks) + " chunks");
        }
        chunks_.push_back(*chunk);
        read_chunk(*chunk);
    }
    end_of_chunks_ = reader.position();
}

void ChunkAudioFile::read_chunk(const Chunk& chunk) {
    if (holds_id3(chunk.fourcc)) {
        read_id3(chunk);
    } else if (chunk.is_list(fourcc::info) && form_.order == std::endian::little) {
        info_.read(cursor(), chunk);
    } else if (form_.order == std::endian::big) {
        texts_.read(cursor(), chunk);
    }
}

void ChunkAudioFile::read_id3(const Chunk& chunk) {
    if (chunk.data().size() > largest_tag) {
        refuse_unsupported("a tag of more than 128 MiB");
    }
    const Bytes bytes = read_range(cursor(), chunk.data(), "the ID3v2 tag");
    const std::optional<Id3v2Header> header = id3v2_header(bytes);
    if (!header || header->tag_size() > bytes.size()) {
        refuse_damaged("the ID3v2 tag is cut off");
    }
    const auto size = static_cast<std::ptrdiff_t>(header->tag_size());
    const bool more_behind =
        std::any_of(bytes.begin() + size, bytes.end(), [](std::uint8_t byte) { return byte != 0; });
    id3_.push_back({chunk, Id3v2Tag(std::span(bytes).first(header->tag_size())), more_behind});
}

std::vector<std::string> ChunkAudioFile::tags() const {
    std::vector<std::string> tags;
    if (!id3_.empty()) {
        tags.push_back(id3_.front().tag.name());
    }
    if (!info_.empty()) {
        tags.emplace_back("RIFF INFO");
    }
    if (!texts_.empty()) {
        tags.emplace_back("AIFF texts");
    }
    return tags;
}

TagValues ChunkAudioFile::values() const {
    TagValues values;
    for (const Id3Chunk& id3 : id3_) {
        values = filled(std::move(values), id3v2_values(id3.tag, media_));
    }
    return filled(filled(std::move(values), info_.values()), texts_.values());
}

/** A new ID3v2 tag says all that the others do: programs look no further once there is one. */
TagEdits ChunkAudioFile::completed(const TagEdits& edits) const {
    TagEdits completed = edits;
    if (id3_.empty() && sets_anything(edits)) {
        set_missing(completed, values());
    }
    return completed;
}

TagValues ChunkAudioFile::values_with(const TagEdits& edits) const {
    TagValues values = edits.applied_to(this->values());
    const TagValues in_tag = id3v2_values_with(id3_.empty() ? Id3v2Tag() : id3_.front().tag, edits, media_);
    if (edits.sets(Field::genre)) {
        values.text(Field::genre) = in_tag.text(Field::genre);
    }
    if (edits.cover.deletes()) {
        values.cover = in_tag.cover;
    }
    return values;
}

std::vector<TagItem> ChunkAudioFile::items() const {
    std::vector<TagItem> items;
    for (const Id3Chunk& id3 : id3_) {
        const std::vector<TagItem> frames = id3v2_items(id3.tag, media_);
        items.insert(items.end(), frames.begin(), frames.end());
    }
    const std::vector<TagItem> info = info_.items();
    items.insert(items.end(), info.begin(), info.end());
    const std::vector<TagItem> texts = texts_.items();
    items.insert(items.end(), texts.begin(), texts.end());
    return items;
}

bool ChunkAudioFile::is_tag(const Chunk& chunk) const {
    return holds_id3(chunk.fourcc) || (chunk.is_list(fourcc::info) && form_.order == std::endian::little) ||
           (form_.order == std::endian::big && AiffTexts::field_of(chunk.fourcc));
}

/** CHUNK with its pad byte, if it has one. */
Range ChunkAudioFile::whole(const Chunk& chunk) const {
    return {chunk.whole.begin, std::min(chunk.end(), size_)};
}

std::vector<Range> ChunkAudioFile::payload() const {
    std::vector<Range> rest = {{4, 8}};
    for (const Chunk& chunk : chunks_) {
        const Range all = whole(chunk);
        rest.push_back(is_tag(chunk) ? all : Range{chunk.whole.end, all.end});
    }
    return ranges_without(std::move(rest), size_);
}

Bytes ChunkAudioFile::tag_chunk(std::uint32_t fourcc, const Id3v2Tag& tag) const {
    return tag.frames().empty() ? Bytes() : make_chunk(fourcc, tag.bytes(), form_.order);
}

void ChunkAudioFile::put_id3(Splices& splices, const TagEdits& edits) const {
    for (const Id3Chunk& id3 : id3_) {
        if (id3.more_behind) {
            refuse_damaged("something behind the ID3v2 tag in its chunk");
        }
        Id3v2Tag tag = id3.tag;
        id3v2_apply(tag, edits, media_);
        splices.replace(whole(id3.chunk), tag_chunk(id3.chunk.fourcc, tag));
    }
    if (id3_.empty() && sets_anything(edits)) {
        refuse_cut_off();
        Id3v2Tag tag;
        id3v2_apply(tag, edits, media_);
        Bytes bytes(chunks_.back().end() - whole(chunks_.back()).end); // a pad byte that is missing
        append(bytes, tag_chunk(form_.new_id3, tag));
        splices.replace({end_of_chunks_, end_of_chunks_}, std::move(bytes));
    }
}

/** All lists become one, where the first is; none is made. */
void ChunkAudioFile::put_info(Splices& splices, const TagEdits& edits) const {
    bool put = false;
    info_.refuse_damaged();
    for (const Chunk& chunk : chunks_) {
        if (chunk.is_list(fourcc::info) && form_.order == std::endian::little) {
            splices.replace(whole(chunk), put ? Bytes() : info_.with(edits));
            put = true;
        }
    }
}

void ChunkAudioFile::put_texts(Splices& splices, const TagEdits& edits) const {
    for (const AiffTexts::Change& change : texts_.with(edits)) {
        splices.replace(whole(change.chunk), change.bytes);
    }
}

/** A file that is cut off may be shown, but there is no place for a tag behind it. */
void ChunkAudioFile::refuse_cut_off() const {
    const bool has_media = std::any_of(chunks_.begin(), chunks_.end(),
                                       [&](const Chunk& chunk) { return chunk.fourcc == form_.media; });
    if (!has_media || end_of_chunks_ + Chunk::header_size <= end_of_form_) {
        refuse_damaged("the last chunk reaches behind the end of the file");
    }
}

Rewrite ChunkAudioFile::rewrite(Splices splices) const {
    if (!splices.empty()) {
        refuse_cut_off();
        const std::uint64_t end = splices.moved(end_of_chunks_);
        splices.replace({4, 8}, chunk_size_field(end - 8, form_.order));
    }
    return {splices.segments(size_), {}};
}

Rewrite ChunkAudioFile::with(const TagEdits& edits) const {
    Splices splices;
    put_id3(splices, edits);
    put_info(splices, edits);
    put_texts(splices, edits);
    return rewrite(std::move(splices));
}

Rewrite ChunkAudioFile::without_tags() const {
    Splices splices;
    for (const Chunk& chunk : chunks_) {
        if (is_tag(chunk)) {
            splices.replace(whole(chunk), {});
        }
    }
    return rewrite(std::move(splices));
}

} // namespace

std::unique_ptr<TaggedFile> open_wav(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) {
    return std::make_unique<ChunkAudioFile>(file, size, media, wav_form);
}

std::unique_ptr<TaggedFile> open_aiff(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) {
    return std::make_unique<ChunkAudioFile>(file, size, media, aiff_form);
}

} // namespace velmora::portable
