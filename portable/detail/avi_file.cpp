#include "checked_read.h"
#include "chunk.h"
#include "formats.h"
#include "picture_mime.h"
#include "refusals.h"
#include "riff_info.h"
#include "splices.h"

#include "portable/reason.h"

#include <algorithm>

namespace velmora::portable {

namespace {

constexpr std::uint64_t riff_header_size = 12;
constexpr std::uint32_t movi = make_fourcc("movi");
constexpr std::uint32_t index_chunk = make_fourcc("idx1");

/** An AVI film. Its chunks are walked by the file's length, because the size in front of them is wrong in
   many. The media never move: offsets to them are in several places, and in some files count from the
   beginning of the file. */
class AviFile : public TaggedFile {
public:
    AviFile(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) : window_(file), size_(size), info_(media) {
        read_riff_header();
        read_chunks();
    }

    [[nodiscard]] std::vector<std::string> tags() const override;
    [[nodiscard]] TagValues values() const override { return info_.values(); }
    [[nodiscard]] TagValues values_with(const TagEdits& edits) const override;
    [[nodiscard]] std::vector<TagItem> items() const override { return info_.items(); }
    [[nodiscard]] std::vector<Range> payload() const override;
    void check_against(const TaggedFile& original) const override;
    [[nodiscard]] Rewrite with(const TagEdits& edits) const override;
    [[nodiscard]] Rewrite without_tags() const override;

private:
    [[nodiscard]] ReadCursor cursor() const { return {window_, 0, size_}; }
    void read_riff_header();
    void read_chunks();
    [[nodiscard]] bool is_room(const Chunk& chunk) const;
    [[nodiscard]] bool has_lists() const;
    [[nodiscard]] Rewrite with_list(const Bytes& list) const;
    void put_behind_index(Splices& splices, const Bytes& list) const;
    void put_into_room(Splices& splices, const Bytes& list) const;
    void refuse_cut_off() const;

    mutable ReadWindow window_;
    std::uint64_t size_;
    std::vector<Chunk> chunks_; ///< of the top level, the headers of further RIFF chunks (OpenDML) among them
    std::uint64_t end_of_chunks_ = 0;
    std::uint64_t end_of_riff_ = 0; ///< as its header says
    bool further_riffs_ = false;
    RiffInfo info_;
};

void AviFile::read_riff_header() {
    std::array<std::uint8_t, riff_header_size> bytes{};
    ReadCursor reader = cursor();
    check_read(reader.read(bytes.data(), bytes.size()), "the RIFF header");
    const std::uint32_t form = load_le32(&bytes[8]);
    if (load_le32(bytes.data()) != fourcc::riff || (form != fourcc::avi && form != fourcc::avix)) {
        refuse_damaged("no AVI file");
    }
    end_of_riff_ = 8 + std::uint64_t{load_le32(&bytes[4])};
}

void AviFile::read_chunks() {
    ReadCursor reader = cursor();
    bool more = reader.skip(riff_header_size);
    while (more) {
        const std::optional<Chunk> chunk = next_chunk(reader, std::endian::little);
        more = chunk.has_value();
        if (!more) {
            break;
        }
        if (chunks_.size() == most_chunks) {
            refuse_unsupported("more than " + std::to_string(most_chunks) + " chunks");
        }
        chunks_.push_back(*chunk);
        if (chunk->fourcc == fourcc::riff) { // its chunks are walked as if they lay beside the others
            further_riffs_ = true;
            chunks_.back().whole.end = std::min(chunk->whole.begin + riff_header_size, chunk->whole.end);
            more = reader.seek(chunks_.back().whole.end);
        } else if (chunk->is_list(fourcc::info)) {
            info_.read(cursor(), *chunk);
        }
    }
    end_of_chunks_ = reader.position();
}

std::vector<std::string> AviFile::tags() const {
    return info_.empty() ? std::vector<std::string>() : std::vector<std::string>{"RIFF INFO"};
}

TagValues AviFile::values_with(const TagEdits& edits) const {
    TagValues values = TaggedFile::values_with(edits);
    if (edits.cover.sets()) { // nothing in the file says what it is but its own bytes
        values.cover->mime = picture_mime(values.cover->bytes);
    }
    return values;
}

bool AviFile::is_room(const Chunk& chunk) const {
    return chunk.fourcc == fourcc::junk || chunk.is_list(fourcc::info);
}

bool AviFile::has_lists() const {
    return std::any_of(chunks_.begin(), chunks_.end(),
                       [](const Chunk& chunk) { return chunk.is_list(fourcc::info); });
}

/** Everything but the lists and what is free, the pad bytes, and the size in front. */
std::vector<Range> AviFile::payload() const {
    std::vector<Range> rest = {{4, 8}};
    for (const Chunk& chunk : chunks_) {
        rest.push_back(is_room(chunk) ? Range{chunk.whole.begin, chunk.end()}
                                      : Range{chunk.whole.end, chunk.end()});
    }
    return ranges_without(std::move(rest), size_);
}

void AviFile::check_against(const TaggedFile& original) const {
    const auto places = [](const AviFile& file) {
        std::vector<std::uint64_t> begins;
        for (const Chunk& chunk : file.chunks_) {
            if (chunk.is_list(movi) || chunk.fourcc == index_chunk || chunk.fourcc == fourcc::riff) {
                begins.push_back(chunk.whole.begin);
            }
        }
        return begins;
    };
    if (places(*this) != places(dynamic_cast<const AviFile&>(original))) {
        throw Refusal({ReasonCode::would_lose, 0, "where the media are"});
    }
}

/** A film whose last chunk is cut off may be shown, but there is no place for a list behind it. What lies
   behind the RIFF chunk is no chunk of it, unless it is the next RIFF chunk. */
void AviFile::refuse_cut_off() const {
    const bool has_media =
        std::any_of(chunks_.begin(), chunks_.end(), [](const Chunk& chunk) { return chunk.is_list(movi); });
    const std::uint64_t left = size_ - end_of_chunks_;
    const Range rest{end_of_chunks_, end_of_chunks_ + std::min<std::uint64_t>(left, 4)};
    const Bytes begin = read_range(cursor(), rest, "the end of the film");
    const bool zeros = std::all_of(begin.begin(), begin.end(), [](std::uint8_t byte) { return byte == 0; });
    const bool next_riff = begin.size() == 4 && load_le32(begin.data()) == fourcc::riff;
    if (!has_media || next_riff || (!zeros && end_of_chunks_ + Chunk::header_size <= end_of_riff_)) {
        refuse_damaged("the last chunk reaches behind the end of the file");
    }
}

Rewrite AviFile::with(const TagEdits& edits) const {
    info_.refuse_damaged();
    return with_list(info_.with(edits));
}

Rewrite AviFile::without_tags() const {
    return with_list({});
}

Rewrite AviFile::with_list(const Bytes& list) const {
    Splices splices;
    if (!list.empty() || has_lists()) {
        refuse_cut_off();
        if (further_riffs_) {
            put_into_room(splices, list);
        } else {
            put_behind_index(splices, list);
        }
    }
    return {splices.segments(size_), {}};
}

/** Lists in front of the media become free, those behind them go, and what was free there, too: programs look
   for a list directly behind the index, and at nothing behind another chunk. */
void AviFile::put_behind_index(Splices& splices, const Bytes& list) const {
    const auto is_media = [](const Chunk& chunk) {
        return chunk.is_list(movi) || chunk.fourcc == index_chunk;
    };
    const auto last = std::find_if(chunks_.rbegin(), chunks_.rend(), is_media);
    const std::uint64_t place = std::min(last->end(), size_);
    for (const Chunk& chunk : chunks_) {
        const Range whole{chunk.whole.begin, std::min(chunk.end(), size_)};
        if (chunk.whole.begin >= place && is_room(chunk)) {
            splices.replace(whole, {});
        } else if (chunk.is_list(fourcc::info)) {
            splices.replace(whole, junk_chunk(whole.size()));
        }
    }
    Bytes bytes(last->end() - place); // a pad byte that is missing at the end of the file
    append(bytes, list);
    splices.replace({place, place}, std::move(bytes));
    const std::uint64_t end = splices.moved(end_of_chunks_);
    splices.replace({4, 8}, chunk_size_field(end - 8, std::endian::little));
}

/** The list goes where nothing moves for it: into lists and free chunks that lie beside each other. Other
   lists become free. */
void AviFile::put_into_room(Splices& splices, const Bytes& list) const {
    const auto media =
        std::find_if(chunks_.begin(), chunks_.end(), [](const Chunk& chunk) { return chunk.is_list(movi); });
    bool put = list.empty();
    for (auto chunk = chunks_.begin(); chunk != chunks_.end();) {
        if (!is_room(*chunk)) {
            ++chunk;
            continue;
        }
        const auto behind =
            std::find_if(chunk, chunks_.end(), [&](const Chunk& other) { return !is_room(other); });
        const Range room{chunk->whole.begin, std::min(std::prev(behind)->end(), size_)};
        const bool has_list =
            std::any_of(chunk, behind, [](const Chunk& other) { return other.is_list(fourcc::info); });
        const std::uint64_t left = room.size() - std::min<std::uint64_t>(list.size(), room.size());
        const bool fits =
            chunk < media && list.size() <= room.size() && (left == 0 || left >= Chunk::header_size);
        Bytes bytes;
        if (!put && fits) {
            bytes = list;
            append(bytes, junk_chunk(left));
            put = true;
        } else if (has_list) {
            bytes = junk_chunk(room.size());
        }
        if (!bytes.empty()) {
            splices.replace(room, std::move(bytes));
        }
        chunk = behind;
    }
    if (!put) {
        refuse_unsupported("no room for the tag in an OpenDML film, whose media can't be moved");
    }
}

} // namespace

std::unique_ptr<TaggedFile> open_avi(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) {
    return std::make_unique<AviFile>(file, size, media);
}

} // namespace velmora::portable
