#include "checked_read.h"
#include "file_transfer.h"
#include "formats.h"
#include "ogg_cover.h"
#include "ogg_page.h"
#include "vorbis_comments.h"

#include "portable/reason.h"

#include <algorithm>

namespace velmora::portable {

namespace {

constexpr std::uint64_t largest_headers = 64UL * 1024 * 1024;

/** How a codec begins its stream. */
struct Codec {
    std::string_view first_packet;
    std::string_view comment_packet;
    std::size_t packets; ///< from the comments on, up to the audio
    bool framed;         ///< a byte 1 ends the comments
};

constexpr std::array codecs = {
    Codec{"\x01vorbis", "\x03vorbis", 2, true},
    Codec{"OpusHead", "OpusTags", 1, false},
};

bool begins_with(std::span<const std::uint8_t> bytes, std::string_view text) {
    return std::string_view(reinterpret_cast<const char*>(bytes.data()), bytes.size()).starts_with(text);
}

/** Vorbis or Opus in Ogg: the first page, the pages with the comments and what else is in front of the audio,
   and the pages of the audio. */
class OggFile : public TaggedFile {
public:
    OggFile(FIOFUNCSTRUCT* file, std::uint64_t size, Media media);

    [[nodiscard]] std::vector<std::string> tags() const override { return {"Vorbis"}; }
    [[nodiscard]] TagValues values() const override { return values_in(comments_); }
    [[nodiscard]] std::vector<TagItem> items() const override;
    [[nodiscard]] std::vector<Range> payload() const override;
    void check_against(const TaggedFile& original) const override;
    [[nodiscard]] TagValues values_with(const TagEdits& edits) const override;
    [[nodiscard]] Rewrite with(const TagEdits& edits) const override;
    [[nodiscard]] Rewrite without_tags() const override;

private:
    void read_first_page(ReadCursor& cursor);
    void read_packets(ReadCursor& cursor);
    [[nodiscard]] TagValues values_in(const VorbisComments& comments) const;
    [[nodiscard]] Rewrite made_of(const VorbisComments& comments) const;
    template <typename Take>
    std::uint64_t for_each_audio_page(Take take) const;

    FIOFUNCSTRUCT* file_;
    mutable ReadWindow window_;
    std::uint64_t size_;
    Media media_;
    const Codec* codec_ = nullptr;
    std::uint32_t serial_ = 0;
    std::uint64_t first_page_end_ = 0;
    std::vector<Bytes> packets_; ///< the comments, and what follows them
    std::size_t packet_pages_ = 0;
    std::uint64_t audio_begin_ = 0;
    VorbisComments comments_;
};

OggFile::OggFile(FIOFUNCSTRUCT* file, std::uint64_t size, Media media)
    : file_(file), window_(file), size_(size), media_(media) {
    ReadCursor cursor(window_, 0, size);
    read_first_page(cursor);
    read_packets(cursor);
    const std::span<const std::uint8_t> packet = packets_.front();
    if (!begins_with(packet, codec_->comment_packet)) {
        throw Refusal({ReasonCode::damaged, 0, "Ogg comments"});
    }
    comments_ = VorbisComments(packet.subspan(codec_->comment_packet.size()));
}

void OggFile::read_first_page(ReadCursor& cursor) {
    const std::optional<OggPageHeader> header = read_ogg_page_header(cursor);
    if (!header || (header->flags & ogg_flag::first) == 0) {
        throw Refusal({ReasonCode::damaged, 0, "no Ogg stream"});
    }
    const Bytes body = read_bytes(cursor, header->body_size(), "Ogg page");
    const auto* const codec = std::find_if(codecs.begin(), codecs.end(), [&](const Codec& candidate) {
        return begins_with(body, candidate.first_packet);
    });
    if (codec == codecs.end()) {
        throw Refusal({ReasonCode::unsupported, 0, "Ogg that is neither Vorbis nor Opus"});
    }
    codec_ = codec;
    serial_ = header->serial;
    first_page_end_ = cursor.position();
}

void OggFile::read_packets(ReadCursor& cursor) {
    packets_.emplace_back();
    std::uint64_t left = largest_headers;
    while (packets_.size() <= codec_->packets) {
        const std::optional<OggPageHeader> header = read_ogg_page_header(cursor);
        if (!header) {
            throw Refusal({ReasonCode::damaged, 0, "Ogg comments"});
        }
        if (header->serial != serial_) {
            throw Refusal({ReasonCode::unsupported, 0, "several streams in one Ogg file"});
        }
        if (header->body_size() > left) {
            throw Refusal({ReasonCode::too_large, 0, "Ogg comments"});
        }
        left -= header->body_size();
        ++packet_pages_;
        const Bytes body = read_bytes(cursor, header->body_size(), "Ogg comments");
        auto begin = body.begin();
        for (const std::uint8_t size : header->segments) {
            packets_.back().insert(packets_.back().end(), begin, begin + size);
            begin += size;
            if (size < 255) {
                packets_.emplace_back();
            }
        }
    }
    packets_.pop_back();
    if (packets_.size() != codec_->packets) {
        throw Refusal({ReasonCode::unsupported, 0, "Ogg whose audio begins on a page of its headers"});
    }
    audio_begin_ = cursor.position();
}

TagValues OggFile::values_in(const VorbisComments& comments) const {
    TagValues values = comments.values(media_);
    values.cover = ogg_cover(comments);
    return values;
}

std::vector<TagItem> OggFile::items() const {
    std::vector<TagItem> items = comments_.items(media_);
    for (const std::size_t cover : ogg_covers(comments_)) {
        items[1 + cover].field = Field::cover; // the vendor comes first
    }
    for (std::size_t i = 1; i < packets_.size(); ++i) {
        items.push_back({"Ogg packet " + std::to_string(i), packets_[i], std::nullopt});
    }
    return items;
}

/** Calls TAKE with the place and the header of each whole page behind the comments. Returns where they end:
   at the file's end, or where no whole page follows. */
template <typename Take>
std::uint64_t OggFile::for_each_audio_page(Take take) const {
    ReadCursor cursor(window_, audio_begin_, size_);
    while (cursor.left() > 0) {
        const std::uint64_t begin = cursor.position();
        const std::optional<OggPageHeader> header = read_ogg_page_header(cursor);
        if (!header || !cursor.skip(header->body_size())) {
            return begin;
        }
        take(begin, *header);
    }
    return size_;
}

/** Everything behind the comments but the two numbers that count pages. */
std::vector<Range> OggFile::payload() const {
    std::vector<Range> ranges{{0, first_page_end_}, {audio_begin_, audio_begin_}};
    for_each_audio_page([&](std::uint64_t begin, const OggPageHeader& header) {
        ranges.back().end = begin + ogg_counted_bytes.begin;
        ranges.push_back({begin + ogg_counted_bytes.end, begin + header.size()});
    });
    ranges.back().end = size_;
    return ranges;
}

void OggFile::check_against(const TaggedFile& original) const {
    const auto& old = dynamic_cast<const OggFile&>(original);
    const auto moved = static_cast<std::uint32_t>(packet_pages_ - old.packet_pages_);
    if (moved == 0) {
        return;
    }
    std::vector<std::uint32_t> expected;
    old.for_each_audio_page([&](std::uint64_t, const OggPageHeader& header) {
        expected.push_back(header.sequence + (header.serial == serial_ ? moved : 0));
    });
    auto next = expected.begin();
    for_each_audio_page([&](std::uint64_t begin, const OggPageHeader& header) {
        Bytes page(header.size());
        read_at(file_, page, begin);
        if (next == expected.end() || header.sequence != *next++ || ogg_checksum(page) != header.checksum) {
            throw Refusal({ReasonCode::would_lose, 0, "Ogg page"});
        }
    });
}

TagValues OggFile::values_with(const TagEdits& edits) const {
    TagValues values = edits.applied_to(this->values());
    if (edits.cover.deletes()) {
        VorbisComments comments = comments_;
        apply_ogg_cover(comments, edits.cover);
        values.cover = values_in(comments).cover; // a picture that was hidden by the cover
    }
    return values;
}

Rewrite OggFile::with(const TagEdits& edits) const {
    VorbisComments comments = comments_;
    comments.apply(edits, media_);
    if (!edits.cover.leaves_alone()) {
        apply_ogg_cover(comments, edits.cover);
    }
    return made_of(comments);
}

Rewrite OggFile::without_tags() const {
    VorbisComments comments = comments_;
    comments.clear();
    return made_of(comments);
}

/** Gives the page at BEGIN of FILE a number that is MOVED higher, and the checksum that goes with it. */
void count_page(FIOFUNCSTRUCT* file, std::uint64_t begin, const OggPageHeader& header, std::uint32_t moved) {
    Bytes page(header.size());
    read_at(file, page, begin);
    store_le32(page.data() + ogg_counted_bytes.begin, header.sequence + moved);
    store_le32(page.data() + ogg_counted_bytes.begin + 4, ogg_checksum(page));
    write_at(file, std::span(page).subspan(ogg_counted_bytes.begin, ogg_counted_bytes.size()),
             begin + ogg_counted_bytes.begin);
}

Rewrite OggFile::made_of(const VorbisComments& comments) const {
    std::vector<Bytes> packets = packets_;
    packets.front().assign(codec_->comment_packet.begin(), codec_->comment_packet.end());
    append(packets.front(), comments.bytes());
    if (packets == packets_) {
        return {{Range{0, size_}}, {}};
    }
    const std::vector<Bytes> pages = ogg_pages(packets, serial_, 1, packet_pages_);
    Rewrite rewrite{{Range{0, first_page_end_}}, {}};
    std::uint64_t head_size = first_page_end_;
    for (const Bytes& page : pages) {
        rewrite.segments.emplace_back(page);
        head_size += page.size();
    }
    rewrite.segments.emplace_back(Range{audio_begin_, size_});
    const auto moved = static_cast<std::uint32_t>(pages.size() - packet_pages_);
    if (moved != 0) {
        const std::uint64_t end = for_each_audio_page([&](std::uint64_t begin, const OggPageHeader& header) {
            if (header.serial == serial_) {
                rewrite.patched.push_back({begin + ogg_counted_bytes.begin, begin + ogg_counted_bytes.end});
            }
        });
        if (end != size_) {
            throw Refusal({ReasonCode::damaged, 0, "Ogg page"});
        }
        rewrite.finish = [this, head_size, moved](FIOFUNCSTRUCT* file) {
            for_each_audio_page([&](std::uint64_t begin, const OggPageHeader& header) {
                if (header.serial == serial_) {
                    count_page(file, begin - audio_begin_ + head_size, header, moved);
                }
            });
        };
    }
    return rewrite;
}

} // namespace

std::unique_ptr<TaggedFile> open_ogg(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) {
    return std::make_unique<OggFile>(file, size, media);
}

} // namespace velmora::portable
