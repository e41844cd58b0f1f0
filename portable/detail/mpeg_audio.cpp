#include "ape_tag.h"
#include "checked_read.h"
#include "formats.h"
#include "id3v1_tag.h"
#include "id3v2_fields.h"
#include "in_place_tag.h"
#include "save_edits.h"
#include "several_tags.h"
#include "text.h"

#include "portable/reason.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace velmora::portable {

namespace {

/** Tags of this many bytes are not taken into memory. */
constexpr std::uint64_t largest_tag_in_memory = 64UL * 1024 * 1024;

/** MPEG audio: an ID3v2 tag in front of its frames, then an APE tag, lyrics that nobody here reads, an ID3v1
   block, and the tag that the program writes in place. Each may be missing. */
class MpegAudioFile : public TaggedFile {
public:
    MpegAudioFile(FIOFUNCSTRUCT* file, std::uint64_t size, Media media);

    [[nodiscard]] std::vector<std::string> tags() const override;
    [[nodiscard]] TagValues values() const override;
    [[nodiscard]] std::vector<TagItem> items() const override;
    [[nodiscard]] std::vector<Range> payload() const override;
    [[nodiscard]] TagEdits completed(const TagEdits& edits) const override;
    [[nodiscard]] TagValues values_with(const TagEdits& edits) const override;
    [[nodiscard]] Rewrite with(const TagEdits& edits) const override;
    [[nodiscard]] Rewrite without_tags() const override;

private:
    void read_front();
    void read_appended();
    [[nodiscard]] bool read_id3v1();
    [[nodiscard]] bool read_ape();
    [[nodiscard]] bool read_lyrics();
    [[nodiscard]] Bytes bytes_at(std::uint64_t begin, std::uint64_t length) const;
    [[nodiscard]] Id3v2Tag new_front(const TagEdits& edits) const;
    void refuse_other_formats() const;
    void refuse_strange_tags() const;

    mutable ReadWindow window_;
    std::uint64_t size_;
    Media media_;
    std::optional<Id3v2Tag> front_;
    Range media_range_; ///< the frames
    std::optional<ApeTag> ape_;
    bool ape_damaged_ = false;
    Range lyrics_;
    std::optional<Id3v1Tag> id3v1_;
    std::optional<InPlaceTag> appended_;
};

MpegAudioFile::MpegAudioFile(FIOFUNCSTRUCT* file, std::uint64_t size, Media media)
    : window_(file, 0), size_(size), media_(media), media_range_{0, size} {
    read_front();
    // What may stand at the end is looked for in one read.
    constexpr std::uint64_t end_size = 512;
    window_.look_ahead(size_ - std::min(media_range_.size(), end_size), size_);
    read_appended();
    // Each only once, in the order in which they are found from the end on.
    while (read_id3v1() || read_ape() || read_lyrics()) {
    }
}

Bytes MpegAudioFile::bytes_at(std::uint64_t begin, std::uint64_t length) const {
    if (length > largest_tag_in_memory) {
        throw Refusal({ReasonCode::too_large, 0, "a tag"});
    }
    ReadCursor cursor(window_, begin, size_);
    return read_bytes(cursor, length, "tag");
}

void MpegAudioFile::read_front() {
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
    front_.emplace(bytes_at(0, header->tag_size()));
    media_range_.begin = header->tag_size();
}

void MpegAudioFile::read_appended() {
    std::optional<InPlaceTag::Found> found = InPlaceTag::find(window_, size_);
    if (found && found->begin >= media_range_.begin && found->begin > 0) {
        appended_ = std::move(found->tag);
        media_range_.end = found->begin;
    }
}

bool MpegAudioFile::read_id3v1() {
    if (id3v1_ || media_range_.size() < Id3v1Tag::size) {
        return false;
    }
    const std::uint64_t begin = media_range_.end - Id3v1Tag::size;
    id3v1_ = Id3v1Tag::parse(bytes_at(begin, Id3v1Tag::size));
    media_range_.end = id3v1_ ? begin : media_range_.end;
    return id3v1_.has_value();
}

bool MpegAudioFile::read_ape() {
    if (ape_ || ape_damaged_ || media_range_.size() < ApeTag::footer_size) {
        return false;
    }
    const std::optional<std::uint64_t> size =
        ApeTag::size_by(bytes_at(media_range_.end - ApeTag::footer_size, ApeTag::footer_size));
    if (!size) {
        return false;
    }
    if (*size > media_range_.size()) {
        ape_damaged_ = true;
        return false;
    }
    try {
        ape_.emplace(bytes_at(media_range_.end - *size, *size));
    } catch (const Refusal& refusal) {
        if (refusal.reason().code != ReasonCode::damaged) {
            throw;
        }
        ape_damaged_ = true;
        return false;
    }
    media_range_.end -= *size;
    return true;
}

/** Lyrics3, which end with their size in six digits and a signature. */
bool MpegAudioFile::read_lyrics() {
    constexpr std::size_t end_size = 15;
    if (lyrics_.size() > 0 || media_range_.size() < end_size) {
        return false;
    }
    const Bytes end = bytes_at(media_range_.end - end_size, end_size);
    if (std::memcmp(end.data() + 6, "LYRICS200", 9) != 0 ||
        !std::all_of(end.begin(), end.begin() + 6, [](std::uint8_t c) { return c >= '0' && c <= '9'; })) {
        return false;
    }
    const std::uint64_t size = std::stoul(std::string(end.begin(), end.begin() + 6)) + end_size;
    if (size > media_range_.size()) {
        return false;
    }
    lyrics_ = {media_range_.end - size, media_range_.end};
    media_range_.end -= size;
    return true;
}

std::vector<std::string> MpegAudioFile::tags() const {
    std::vector<std::string> names;
    if (appended_) {
        names.push_back("ID3v2." + std::to_string(appended_->version()) + " at the end");
    }
    if (front_) {
        names.push_back(front_->name());
    }
    if (ape_) {
        names.push_back(ape_->name());
    }
    if (id3v1_) {
        names.emplace_back("ID3v1");
    }
    return names;
}

TagValues MpegAudioFile::values() const {
    TagValues values = appended_ ? appended_->values(media_) : TagValues();
    if (front_) {
        values = filled(std::move(values), id3v2_values(*front_, media_));
    }
    if (ape_) {
        values = filled(std::move(values), ape_->values(media_));
    }
    return id3v1_ ? filled(std::move(values), id3v1_->values()) : values;
}

std::vector<TagItem> MpegAudioFile::items() const {
    std::vector<TagItem> items;
    const auto add = [&](const std::vector<TagItem>& more) {
        items.insert(items.end(), more.begin(), more.end());
    };
    if (front_) {
        add(id3v2_items(*front_, media_));
    }
    if (appended_) {
        // Its values go into the tag in front; of its other frames none may go.
        std::vector<TagItem> frames = appended_->items(media_);
        frames.erase(std::remove_if(frames.begin(), frames.end(),
                                    [](const TagItem& item) { return item.field.has_value(); }),
                     frames.end());
        add(frames);
    }
    if (ape_) {
        add(ape_->items(media_));
    }
    if (id3v1_) {
        add(id3v1_->items());
    }
    return items;
}

std::vector<Range> MpegAudioFile::payload() const {
    return {media_range_, lyrics_};
}

TagEdits MpegAudioFile::completed(const TagEdits& edits) const {
    TagEdits completed = edits;
    if (appended_) {
        set_missing(completed, appended_->values(media_));
    }
    if (!front_ && sets_anything(completed)) {
        // Many programs look no further once there is a tag in front: it has to say all.
        set_missing(completed, values());
    }
    return completed;
}

TagValues MpegAudioFile::values_with(const TagEdits& edits) const {
    const TagValues in_front = id3v2_values_with(front_.value_or(Id3v2Tag()), edits, media_);
    TagValues values = edits.applied_to(this->values());
    if (edits.text(Field::genre).sets()) {
        values.text(Field::genre) = in_front.text(Field::genre);
    }
    if (edits.cover.deletes()) {
        values.cover = in_front.cover;
    }
    return values;
}

void MpegAudioFile::refuse_other_formats() const {
    constexpr std::size_t probe_size = 12;
    if (media_range_.size() < probe_size) {
        return;
    }
    const Bytes probe = bytes_at(media_range_.begin, probe_size);
    const std::string_view text(reinterpret_cast<const char*>(probe.data()), probe.size());
    for (const std::string_view other :
         {"fLaC", "OggS", "RIFF", "FORM", "\x30\x26\xB2\x75", "\x1A\x45\xDF\xA3"}) {
        if (text.starts_with(other)) {
            throw Refusal({ReasonCode::unsupported, 0, "it holds another format than its name says"});
        }
    }
    if (text.substr(4, 4) == "ftyp") {
        throw Refusal({ReasonCode::unsupported, 0, "it holds another format than its name says"});
    }
}

/** Frames can move from the tag at the end to the one in front only where they mean the same there. */
void MpegAudioFile::refuse_strange_tags() const {
    if (ape_damaged_) {
        throw Refusal({ReasonCode::damaged, 0, "APE tag"});
    }
    if (!appended_ || !front_ || front_->version() == appended_->version()) {
        return;
    }
    for (const Id3v2Frame& frame : appended_->other_frames(media_)) {
        if (frame.flags != 0 || front_->version() == 2) {
            throw Refusal({ReasonCode::unsupported, 0, "two ID3v2 tags of different versions"});
        }
    }
}

/** The tag in front with EDITS in it, and with what the one at the end has besides its values. */
Id3v2Tag MpegAudioFile::new_front(const TagEdits& edits) const {
    Id3v2Tag front = front_.value_or(Id3v2Tag());
    id3v2_apply(front, edits, media_);
    for (std::size_t i = 0; !front_ && ape_ && i < text_field_count; ++i) {
        const std::vector<std::string> values = ape_->texts(static_cast<Field>(i), media_);
        if (values.size() > 1 && edits.texts[i].value() == joined(values)) {
            id3v2_part_values(front, static_cast<Field>(i), values, media_);
        }
    }
    if (appended_) {
        for (Id3v2Frame& frame : appended_->other_frames(media_)) {
            front.frames().push_back(std::move(frame));
        }
    }
    return front;
}

Rewrite MpegAudioFile::with(const TagEdits& edits) const {
    refuse_other_formats();
    refuse_strange_tags();
    const Id3v2Tag front = new_front(edits);
    Rewrite rewrite;
    if (front_ && front.frames() == front_->frames()) {
        rewrite.segments.emplace_back(Range{0, media_range_.begin});
    } else if (!front.frames().empty()) {
        rewrite.segments.emplace_back(front.bytes());
    }
    rewrite.segments.emplace_back(media_range_);
    if (ape_) {
        ApeTag ape = *ape_;
        ape.apply(edits, media_);
        rewrite.segments.emplace_back(ape.bytes());
    }
    rewrite.segments.emplace_back(lyrics_);
    if (id3v1_) {
        Id3v1Tag id3v1 = *id3v1_;
        id3v1.apply(edits);
        rewrite.segments.emplace_back(id3v1.bytes());
    }
    return rewrite;
}

Rewrite MpegAudioFile::without_tags() const {
    refuse_other_formats();
    refuse_strange_tags();
    return {{media_range_, lyrics_}, {}};
}

} // namespace

std::unique_ptr<TaggedFile> open_mpeg_audio(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) {
    return std::make_unique<MpegAudioFile>(file, size, media);
}

} // namespace velmora::portable
