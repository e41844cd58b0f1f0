#include "in_place_tag.h"

#include "checked_read.h"
#include "in_place_frames.h"
#include "system_refusal.h"

#include "portable/reason.h"
#include "taglib/id3/descriptor.h"
#include "taglib/id3/reader.h"
#include "taglib/id3/text.h"
#include "taglib/id3/writer.h"
#include "taglib/trace.h"

#include <algorithm>
#include <cstring>

namespace velmora::portable {

namespace {

constexpr std::size_t record_size = in_place_record_size;

/** The frame of FIELD. */
const char* frame_id(Field field, Media media) {
    const bool film = media == Media::video;
    switch (field) {
    case Field::title:
        return film ? "TALB" : "TIT2";
    case Field::artist:
        return "TPE1";
    case Field::album:
        return film ? nullptr : "TALB";
    case Field::synopsis:
        return film ? "TIT2" : nullptr;
    case Field::director:
        return film ? "TPE3" : nullptr;
    case Field::rating:
        return film ? "PRIV" : nullptr;
    case Field::genre:
        return "TCON";
    case Field::year:
        return "TYER";
    case Field::cover:
        return "APIC";
    }
    return nullptr;
}

} // namespace

std::optional<InPlaceTag::Found> InPlaceTag::find(ReadWindow& window, std::uint64_t size) {
    if (size < 2 * record_size) {
        return std::nullopt;
    }
    ReadCursor cursor(window, 0, size);
    static_cast<void>(cursor.seek(size - record_size));
    const Bytes footer = read_bytes(cursor, record_size, "tag");
    const std::uint64_t tag_size = record_size + std::uint64_t{syncsafe_to_long(footer.data() + 6)};
    if (std::memcmp(footer.data(), "3DI", 3) != 0 || footer[3] > 4 || tag_size > size - record_size) {
        return std::nullopt;
    }
    Found found;
    found.begin = size - record_size - tag_size;
    static_cast<void>(cursor.seek(found.begin));
    const Bytes header = read_bytes(cursor, record_size, "tag");
    const std::uint32_t content_size = syncsafe_to_long(header.data() + 6);
    if (std::memcmp(header.data(), "ID3", 3) != 0 || header[3] > 4 || content_size > id3_largest_tag) {
        return std::nullopt;
    }
    const Bytes content = read_bytes(cursor, std::min<std::uint64_t>(content_size, cursor.left()), "tag");
    found.tag.version_ = header[3];
    found.tag.revision_ = header[4];
    found.tag.flags_ = header[5] | 0x10;
    found.tag.frames_ = in_place_frames(content, header[3]);
    return found;
}

/** The index of the frame that is the cover; the number of frames where there is none. */
std::size_t InPlaceTag::first_cover() const {
    const auto picture = std::find_if(frames_.begin(), frames_.end(), [](const Id3v2Frame& frame) {
        return frame.id == "APIC" && cover_of(frame);
    });
    return static_cast<std::size_t>(picture - frames_.begin());
}

std::optional<Field> InPlaceTag::field_of(std::size_t index, Media media) const {
    const Id3v2Frame& frame = frames_[index];
    for (std::size_t i = 0; i < field_count; ++i) {
        const auto field = static_cast<Field>(i);
        const char* const id = frame_id(field, media);
        if (!id || frame.id != id || (field == Field::rating && !has_owner(frame, in_place_rating_owner)) ||
            (field == Field::cover && index != first_cover())) {
            continue;
        }
        return field;
    }
    return std::nullopt;
}

TagValues InPlaceTag::values(Media media) const {
    TagValues values;
    for (std::size_t i = 0; i < frames_.size(); ++i) {
        const std::optional<Field> field = field_of(i, media);
        if (!field) {
            continue;
        }
        const Id3v2Frame& frame = frames_[i];
        if (field == Field::year) {
            values.year = values.year ? values.year : year_of_frame(frame);
        } else if (field == Field::cover) {
            values.cover = values.cover ? values.cover : cover_of(frame);
        } else if (!values.text(*field)) {
            std::string text = field == Field::rating  ? rating_of(frame)
                               : field == Field::genre ? genre_of(frame)
                                                       : text_of(frame);
            if (!text.empty()) {
                values.text(*field) = std::move(text);
            }
        }
    }
    return values;
}

std::vector<TagItem> InPlaceTag::items(Media media) const {
    std::vector<TagItem> items;
    for (std::size_t i = 0; i < frames_.size(); ++i) {
        TagItem item{"ID3v2 " + frames_[i].id, {}, field_of(i, media)};
        append_be16(item.bytes, frames_[i].flags);
        append(item.bytes, frames_[i].body);
        items.push_back(std::move(item));
    }
    return items;
}

std::vector<Id3v2Frame> InPlaceTag::other_frames(Media media) const {
    std::vector<Id3v2Frame> frames;
    for (std::size_t i = 0; i < frames_.size(); ++i) {
        if (!field_of(i, media)) {
            frames.push_back(frames_[i]);
        }
    }
    return frames;
}

/** Replaces the first frame of FIELD, or puts one behind all others, and removes the rest of them. */
void InPlaceTag::put(Field field, const std::optional<Bytes>& body, Media media) {
    std::vector<Id3v2Frame> frames;
    bool placed = !body;
    for (std::size_t i = 0; i < frames_.size(); ++i) {
        if (field_of(i, media) != field) {
            frames.push_back(frames_[i]);
        } else if (!placed) {
            frames.push_back({frame_id(field, media), frames_[i].flags, *body});
            placed = true;
        }
    }
    if (!placed) {
        frames.push_back({frame_id(field, media), 0, *body});
    }
    frames_ = std::move(frames);
}

void InPlaceTag::apply(const TagEdits& edits, Media media) {
    const TagValues old = values(media);
    for (std::size_t i = 0; i < text_field_count; ++i) {
        const auto field = static_cast<Field>(i);
        const Edit<std::string>& edit = edits.texts[i];
        if (edit.leaves_alone() || edit.value() == old.texts[i]) {
            continue;
        }
        if (!frame_id(field, media)) {
            throw Refusal({ReasonCode::unsupported, 0, "its tag has no place for a comment"});
        }
        std::optional<Bytes> body;
        if (edit.sets()) {
            body = field == Field::rating ? rating_body(*edit.value()) : text_body(*edit.value());
        }
        put(field, body, media);
    }
    if (!edits.year.leaves_alone() && edits.year.value() != old.year) {
        put(Field::year,
            edits.year.sets() ? std::optional(text_body(std::to_string(*edits.year.value()))) : std::nullopt,
            media);
    }
    if (!edits.cover.leaves_alone() && edits.cover.value() != old.cover) {
        put(Field::cover, edits.cover.sets() ? std::optional(cover_body(*edits.cover.value())) : std::nullopt,
            media);
    }
}

void InPlaceTag::store(FIOFUNCSTRUCT* file, std::uint64_t position) const {
    const TraceMute mute; // the log is that of the tags in place; here the reason tells
    Id3Descriptor descriptor;
    std::memcpy(descriptor.tag.signature, "ID3", 3);
    descriptor.tag.version = version_;
    descriptor.tag.revision = revision_;
    descriptor.tag.header_flags = flags_;
    for (const Id3v2Frame& frame : frames_) {
        _id3_frame_t copy{};
        if (!id3_init_frame(&copy, static_cast<std::int32_t>(frame.body.size()))) {
            throw std::bad_alloc();
        }
        std::memcpy(&copy.id, frame.id.data(), sizeof copy.id);
        std::uint8_t flags[2] = {static_cast<std::uint8_t>(frame.flags >> 8),
                                 static_cast<std::uint8_t>(frame.flags)};
        std::memcpy(&copy.flags, flags, sizeof flags);
        std::copy(frame.body.begin(), frame.body.end(), copy.data);
        if (id3_insert_frame(&descriptor.tag, &copy) == 0) {
            std::free(copy.data);
            throw std::bad_alloc();
        }
    }
    errno = EIO; // where a write is only short
    if (!id3_store_descriptor_at(file, static_cast<std::int64_t>(position), &descriptor.tag)) {
        throw system_refusal();
    }
}

bool operator==(const InPlaceTag& left, const InPlaceTag& right) {
    return left.frames_ == right.frames_;
}

} // namespace velmora::portable
