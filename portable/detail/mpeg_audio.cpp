#include "checked_read.h"
#include "formats.h"
#include "id3v2_fields.h"
#include "mpeg_audio_layout.h"
#include "save_edits.h"
#include "several_tags.h"
#include "text.h"

#include "portable/reason.h"

#include <algorithm>

namespace velmora::portable {

namespace {

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
    [[nodiscard]] Id3v2Tag new_front(const TagEdits& edits) const;
    void refuse_other_formats() const;
    void refuse_strange_tags() const;

    mutable ReadWindow window_;
    std::uint64_t size_;
    Media media_;
    MpegAudioLayout layout_;
};

MpegAudioFile::MpegAudioFile(FIOFUNCSTRUCT* file, std::uint64_t size, Media media)
    : window_(file, 0), size_(size), media_(media), layout_(read_mpeg_audio_layout(window_, size)) {}

std::vector<std::string> MpegAudioFile::tags() const {
    std::vector<std::string> names;
    if (layout_.appended) {
        names.push_back("ID3v2." + std::to_string(layout_.appended->version()) + " at the end");
    }
    if (layout_.front) {
        names.push_back(layout_.front->name());
    }
    if (layout_.ape) {
        names.push_back(layout_.ape->name());
    }
    if (layout_.id3v1) {
        names.emplace_back("ID3v1");
    }
    return names;
}

TagValues MpegAudioFile::values() const {
    TagValues values = layout_.appended ? layout_.appended->values(media_) : TagValues();
    if (layout_.front) {
        values = filled(std::move(values), id3v2_values(*layout_.front, media_));
    }
    if (layout_.ape) {
        values = filled(std::move(values), layout_.ape->values(media_));
    }
    return layout_.id3v1 ? filled(std::move(values), layout_.id3v1->values()) : values;
}

std::vector<TagItem> MpegAudioFile::items() const {
    std::vector<TagItem> items;
    const auto add = [&](const std::vector<TagItem>& more) {
        items.insert(items.end(), more.begin(), more.end());
    };
    if (layout_.front) {
        add(id3v2_items(*layout_.front, media_));
    }
    if (layout_.appended) {
        // Its values go into the tag in front; of its other frames none may go.
        std::vector<TagItem> frames = layout_.appended->items(media_);
        frames.erase(std::remove_if(frames.begin(), frames.end(),
                                    [](const TagItem& item) { return item.field.has_value(); }),
                     frames.end());
        add(frames);
    }
    if (layout_.ape) {
        add(layout_.ape->items(media_));
    }
    if (layout_.id3v1) {
        add(layout_.id3v1->items());
    }
    return items;
}

std::vector<Range> MpegAudioFile::payload() const {
    return {layout_.media, layout_.lyrics};
}

TagEdits MpegAudioFile::completed(const TagEdits& edits) const {
    TagEdits completed = edits;
    if (layout_.appended) {
        set_missing(completed, layout_.appended->values(media_));
    }
    if (!layout_.front && sets_anything(completed)) {
        // Many programs look no further once there is a tag in front: it has to say all.
        set_missing(completed, values());
    }
    return completed;
}

TagValues MpegAudioFile::values_with(const TagEdits& edits) const {
    const TagValues in_front = id3v2_values_with(layout_.front.value_or(Id3v2Tag()), edits, media_);
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
    if (layout_.media.size() < probe_size) {
        return;
    }
    ReadCursor cursor(window_, layout_.media.begin, size_);
    const Bytes probe = read_bytes(cursor, probe_size, "tag");
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
    if (layout_.ape_damaged) {
        throw Refusal({ReasonCode::damaged, 0, "APE tag"});
    }
    if (!layout_.appended || !layout_.front || layout_.front->version() == layout_.appended->version()) {
        return;
    }
    for (const Id3v2Frame& frame : layout_.appended->other_frames(media_)) {
        if (frame.flags != 0 || layout_.front->version() == 2) {
            throw Refusal({ReasonCode::unsupported, 0, "two ID3v2 tags of different versions"});
        }
    }
}

/** The tag in front with EDITS in it, and with what the one at the end has besides its values. */
Id3v2Tag MpegAudioFile::new_front(const TagEdits& edits) const {
    Id3v2Tag front = layout_.front.value_or(Id3v2Tag());
    id3v2_apply(front, edits, media_);
    for (std::size_t i = 0; !layout_.front && layout_.ape && i < text_field_count; ++i) {
        const std::vector<std::string> values = layout_.ape->texts(static_cast<Field>(i), media_);
        if (values.size() > 1 && edits.texts[i].value() == joined(values)) {
            id3v2_part_values(front, static_cast<Field>(i), values, media_);
        }
    }
    if (layout_.appended) {
        for (Id3v2Frame& frame : layout_.appended->other_frames(media_)) {
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
    if (layout_.front && front.frames() == layout_.front->frames()) {
        rewrite.segments.emplace_back(Range{0, layout_.media.begin});
    } else if (!front.frames().empty()) {
        rewrite.segments.emplace_back(front.bytes());
    }
    rewrite.segments.emplace_back(layout_.media);
    if (layout_.ape) {
        ApeTag ape = *layout_.ape;
        ape.apply(edits, media_);
        rewrite.segments.emplace_back(ape.bytes());
    }
    rewrite.segments.emplace_back(layout_.lyrics);
    if (layout_.id3v1) {
        Id3v1Tag id3v1 = *layout_.id3v1;
        id3v1.apply(edits);
        rewrite.segments.emplace_back(id3v1.bytes());
    }
    return rewrite;
}

Rewrite MpegAudioFile::without_tags() const {
    refuse_other_formats();
    refuse_strange_tags();
    return {{layout_.media, layout_.lyrics}, {}};
}

} // namespace

std::unique_ptr<TaggedFile> open_mpeg_audio(FIOFUNCSTRUCT* file, std::uint64_t size, Media media) {
    return std::make_unique<MpegAudioFile>(file, size, media);
}

} // namespace velmora::portable
