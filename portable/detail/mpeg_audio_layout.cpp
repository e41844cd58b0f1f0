#include "mpeg_audio_layout.h"

#include "checked_read.h"

#include "portable/reason.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace velmora::portable {

namespace {

/** Tags of more bytes are not taken into memory. */
constexpr std::uint64_t largest_tag_in_memory = 64UL * 1024 * 1024;

/** Narrows the media down, tag by tag. */
class MpegAudioLayoutReader {
public:
    MpegAudioLayoutReader(ReadWindow& window, std::uint64_t size) : window_(window), size_(size) {}

    [[nodiscard]] MpegAudioLayout read();

private:
    void read_front();
    void read_appended();
    [[nodiscard]] bool read_id3v1();
    [[nodiscard]] bool read_ape();
    [[nodiscard]] bool read_lyrics();
    [[nodiscard]] Bytes bytes_at(std::uint64_t begin, std::uint64_t length) const;

    ReadWindow& window_;
    std::uint64_t size_;
    MpegAudioLayout layout_;
};

MpegAudioLayout MpegAudioLayoutReader::read() {
    layout_.media = {0, size_};
    read_front();
    // What may stand at the end is looked for in one read.
    constexpr std::uint64_t end_size = 512;
    window_.look_ahead(size_ - std::min(layout_.media.size(), end_size), size_);
    read_appended();
    // Each only once, in the order in which they are found from the end on.
    while (read_id3v1() || read_ape() || read_lyrics()) {
    }
    return std::move(layout_);
}

Bytes MpegAudioLayoutReader::bytes_at(std::uint64_t begin, std::uint64_t length) const {
    if (length > largest_tag_in_memory) {
        throw Refusal({ReasonCode::too_large, 0, "a tag"});
    }
    ReadCursor cursor(window_, begin, size_);
    return read_bytes(cursor, length, "tag");
}

void MpegAudioLayoutReader::read_front() {
    if (size_ < Id3v2Header::size) {
        return;
    }
    const std::optional<Id3v2Header> header = id3v2_header(bytes_at(0, Id3v2Header::size));
    if (!header) {
        return;
    }
    if (header->tag_size() > size_) {
        throw Refusal({ReasonCode::damaged, 0, "the ID3v2 tag is cut off"});
    }
    layout_.front.emplace(bytes_at(0, header->tag_size()));
    layout_.media.begin = header->tag_size();
}

void MpegAudioLayoutReader::read_appended() {
    std::optional<InPlaceTag::Found> found = InPlaceTag::find(window_, size_);
    if (found && found->begin >= layout_.media.begin && found->begin > 0) {
        layout_.appended = std::move(found->tag);
        layout_.media.end = found->begin;
    }
}

bool MpegAudioLayoutReader::read_id3v1() {
    if (layout_.id3v1 || layout_.media.size() < Id3v1Tag::size) {
        return false;
    }
    const std::uint64_t begin = layout_.media.end - Id3v1Tag::size;
    layout_.id3v1 = Id3v1Tag::parse(bytes_at(begin, Id3v1Tag::size));
    layout_.media.end = layout_.id3v1 ? begin : layout_.media.end;
    return layout_.id3v1.has_value();
}

bool MpegAudioLayoutReader::read_ape() {
    if (layout_.ape || layout_.ape_damaged || layout_.media.size() < ApeTag::footer_size) {
        return false;
    }
    const std::optional<std::uint64_t> size =
        ApeTag::size_by(bytes_at(layout_.media.end - ApeTag::footer_size, ApeTag::footer_size));
    if (!size) {
        return false;
    }
    if (*size > layout_.media.size()) {
        layout_.ape_damaged = true;
        return false;
    }
    try {
        layout_.ape.emplace(bytes_at(layout_.media.end - *size, *size));
    } catch (const Refusal& refusal) {
        if (refusal.reason().code != ReasonCode::damaged) {
            throw;
        }
        layout_.ape_damaged = true;
        return false;
    }
    layout_.media.end -= *size;
    return true;
}

/** Lyrics3, which end with their size in six digits and a signature. */
bool MpegAudioLayoutReader::read_lyrics() {
    constexpr std::size_t end_size = 15;
    if (layout_.lyrics.size() > 0 || layout_.media.size() < end_size) {
        return false;
    }
    const Bytes end = bytes_at(layout_.media.end - end_size, end_size);
    if (std::memcmp(end.data() + 6, "LYRICS200", 9) != 0 ||
        !std::all_of(end.begin(), end.begin() + 6, [](std::uint8_t c) { return c >= '0' && c <= '9'; })) {
        return false;
    }
    const std::uint64_t size = std::stoul(std::string(end.begin(), end.begin() + 6)) + end_size;
    if (size > layout_.media.size()) {
        return false;
    }
    layout_.lyrics = {layout_.media.end - size, layout_.media.end};
    layout_.media.end -= size;
    return true;
}

} // namespace

MpegAudioLayout read_mpeg_audio_layout(ReadWindow& window, std::uint64_t file_size) {
    return MpegAudioLayoutReader(window, file_size).read();
}

} // namespace velmora::portable
