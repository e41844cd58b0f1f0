#include "id3v2_fields.h"

#include "cover_choice.h"
#include "date_text.h"
#include "id3v2_text.h"
#include "text.h"

#include <algorithm>
#include <array>

namespace velmora::portable {

namespace {

constexpr const char* director_description = "DIRECTOR";
constexpr const char* rating_description = "CONTENTRATING";

/** The identifiers of what the fields are kept in. */
enum class FrameKind { title, artist, album, genre, comment, user_text, picture, date, year, day, time };

struct FrameName {
    FrameKind kind;
    const char* id;       ///< in 2.3 and 2.4
    const char* short_id; ///< in 2.2; empty: not there
};

constexpr std::array frame_names = {
    FrameName{FrameKind::title, "TIT2", "TT2"},   FrameName{FrameKind::artist, "TPE1", "TP1"},
    FrameName{FrameKind::album, "TALB", "TAL"},   FrameName{FrameKind::genre, "TCON", "TCO"},
    FrameName{FrameKind::comment, "COMM", "COM"}, FrameName{FrameKind::user_text, "TXXX", "TXX"},
    FrameName{FrameKind::picture, "APIC", "PIC"}, FrameName{FrameKind::date, "TDRC", ""},
    FrameName{FrameKind::year, "TYER", "TYE"},    FrameName{FrameKind::day, "TDAT", "TDA"},
    FrameName{FrameKind::time, "TIME", "TIM"},
};

std::string id_of(FrameKind kind, std::uint8_t version) {
    const auto* const name = std::find_if(frame_names.begin(), frame_names.end(),
                                          [&](const FrameName& candidate) { return candidate.kind == kind; });
    return version == 2 ? name->short_id : name->id;
}

std::optional<FrameKind> kind_of(const Id3v2Frame& frame) {
    const auto* const name =
        std::find_if(frame_names.begin(), frame_names.end(), [&](const FrameName& candidate) {
            return frame.id == (frame.id.size() == 3 ? candidate.short_id : candidate.id);
        });
    return name == frame_names.end() ? std::nullopt : std::optional(name->kind);
}

Bytes content_of(const Id3v2Tag& tag, const Id3v2Frame& frame) {
    return tag.content(frame).value_or(Bytes());
}

/** The type of the picture in FRAME; nothing where there is none. */
std::optional<std::uint32_t> type_of_picture(const Id3v2Tag& tag, const Id3v2Frame& frame) {
    const AttachedPicture picture = attached_picture(content_of(tag, frame), tag.version());
    return picture.bytes.empty() ? std::nullopt : std::optional<std::uint32_t>(picture.type);
}

/** The frames of TAG that are the cover. */
std::vector<std::size_t> cover_frames(const Id3v2Tag& tag) {
    std::vector<std::optional<std::uint32_t>> types;
    types.reserve(tag.frames().size());
    for (const Id3v2Frame& frame : tag.frames()) {
        types.push_back(kind_of(frame) == FrameKind::picture ? type_of_picture(tag, frame) : std::nullopt);
    }
    return cover_places(types);
}

/** The field that a user-defined text of films is. */
std::optional<Field> user_text_field(const Id3v2Tag& tag, const Id3v2Frame& frame, Media media) {
    if (media != Media::video) {
        return std::nullopt;
    }
    const std::string description = described_text(content_of(tag, frame), false).description;
    return equal_ignoring_case(description, director_description) ? std::optional(Field::director)
           : equal_ignoring_case(description, rating_description) ? std::optional(Field::rating)
                                                                  : std::nullopt;
}

/** The field that FRAME is a place of, but for pictures. */
std::optional<Field> field_of(const Id3v2Tag& tag, const Id3v2Frame& frame, Media media) {
    const std::optional<FrameKind> kind = kind_of(frame);
    if (!kind) {
        return std::nullopt;
    }
    switch (*kind) {
    case FrameKind::title:
        return Field::title;
    case FrameKind::artist:
        return Field::artist;
    case FrameKind::album:
        return media == Media::video ? std::nullopt : std::optional(Field::album);
    case FrameKind::genre:
        return Field::genre;
    case FrameKind::comment: {
        const std::optional<Bytes> content = tag.content(frame);
        return content && described_text(*content, true).description.empty() ? std::optional(Field::synopsis)
                                                                             : std::nullopt;
    }
    case FrameKind::user_text:
        return user_text_field(tag, frame, media);
    case FrameKind::date:
    case FrameKind::year:
    case FrameKind::day:
    case FrameKind::time:
        return Field::year;
    case FrameKind::picture:
        break;
    }
    return std::nullopt;
}

std::vector<std::string> values_of(const Id3v2Tag& tag, const Id3v2Frame& frame) {
    const Bytes content = content_of(tag, frame);
    switch (*kind_of(frame)) {
    case FrameKind::genre:
        return genre_values(content);
    case FrameKind::comment:
        return described_text(content, true).values;
    case FrameKind::user_text:
        return described_text(content, false).values;
    default:
        return text_values(content);
    }
}

/** Where the year is: in 2.4 in front the date, before that the year. */
FrameKind year_kind(std::uint8_t version) {
    return version >= 4 ? FrameKind::date : FrameKind::year;
}

std::optional<int> frame_year(const Id3v2Tag& tag, const Id3v2Frame& frame) {
    const std::vector<std::string> dates = text_values(content_of(tag, frame));
    return dates.empty() ? std::nullopt : year_of(dates.front());
}

bool has_year(FrameKind kind) {
    return kind == FrameKind::date || kind == FrameKind::year;
}

std::optional<int> year_value(const Id3v2Tag& tag) {
    std::optional<int> second;
    for (const Id3v2Frame& frame : tag.frames()) {
        const std::optional<FrameKind> kind = kind_of(frame);
        if (!kind || !has_year(*kind)) {
            continue;
        }
        const std::optional<int> year = frame_year(tag, frame);
        if (year && *kind == year_kind(tag.version())) {
            return year;
        }
        second = second ? second : year;
    }
    return second;
}

std::optional<Cover> cover_in(const Id3v2Tag& tag, const std::vector<std::size_t>& frames) {
    if (frames.empty()) {
        return std::nullopt;
    }
    AttachedPicture picture = attached_picture(content_of(tag, tag.frames()[frames.front()]), tag.version());
    return Cover{std::move(picture.bytes), std::move(picture.mime)};
}

/** The content of a frame for a text field, in the place of OLD (may be null). */
Bytes content_for(const Id3v2Tag& tag, Field field, const std::string& text, const Id3v2Frame* old) {
    switch (field) {
    case Field::genre:
        return genre_content(text, tag.version());
    case Field::synopsis: {
        const std::string language =
            old ? described_text(content_of(tag, *old), true).language : std::string();
        return described_content({language.empty() ? "eng" : language, {}, {text}}, tag.version());
    }
    case Field::director:
        return described_content({{}, director_description, {text}}, tag.version());
    case Field::rating:
        return described_content({{}, rating_description, {text}}, tag.version());
    default:
        return text_content(text, tag.version());
    }
}

FrameKind kind_for(Field field) {
    switch (field) {
    case Field::artist:
        return FrameKind::artist;
    case Field::album:
        return FrameKind::album;
    case Field::genre:
        return FrameKind::genre;
    case Field::synopsis:
        return FrameKind::comment;
    case Field::director:
    case Field::rating:
        return FrameKind::user_text;
    default:
        return FrameKind::title;
    }
}

/** Replaces the first frame of FIELD by FRAME, or puts it behind all others, and removes the rest of that field's. */
void replace_frames(Id3v2Tag& tag, Field field, Media media, std::optional<Id3v2Frame> frame) {
    std::vector<Id3v2Frame> frames;
    for (Id3v2Frame& old : tag.frames()) {
        if (field_of(tag, old, media) != field) {
            frames.push_back(std::move(old));
        } else if (frame) {
            frames.push_back(std::move(*frame));
            frame.reset();
        }
    }
    if (frame) {
        frames.push_back(std::move(*frame));
    }
    tag.frames() = std::move(frames);
}

void apply_text(Id3v2Tag& tag, Field field, const Edit<std::string>& edit, Media media) {
    const auto old = std::find_if(tag.frames().begin(), tag.frames().end(), [&](const Id3v2Frame& frame) {
        return field_of(tag, frame, media) == field;
    });
    std::optional<Id3v2Frame> frame;
    if (edit.sets()) {
        frame =
            tag.frame(id_of(kind_for(field), tag.version()),
                      content_for(tag, field, *edit.value(), old == tag.frames().end() ? nullptr : &*old));
    }
    replace_frames(tag, field, media, std::move(frame));
}

/** The places that are there follow; where there is none for the tag's version it is added. */
void set_year(Id3v2Tag& tag, int year) {
    const bool same = year_value(tag) == year;
    bool placed = false;
    std::vector<Id3v2Frame> frames;
    for (Id3v2Frame& frame : tag.frames()) {
        const std::optional<FrameKind> kind = kind_of(frame);
        if (kind && has_year(*kind)) {
            placed = placed || *kind == year_kind(tag.version());
            if (frame_year(tag, frame) != year) {
                frame = tag.frame(frame.id, text_content(date_with_year({}, year), tag.version()));
            }
        }
        const bool of_another_year = !same && (kind == FrameKind::day || kind == FrameKind::time);
        if (!of_another_year) {
            frames.push_back(std::move(frame));
        }
    }
    if (!placed) {
        frames.push_back(tag.frame(id_of(year_kind(tag.version()), tag.version()),
                                   text_content(date_with_year({}, year), tag.version())));
    }
    tag.frames() = std::move(frames);
}

void apply_cover(Id3v2Tag& tag, const Edit<Cover>& edit) {
    const std::vector<std::size_t> covers = cover_frames(tag);
    if (edit.deletes()) {
        for (auto place = covers.rbegin(); place != covers.rend(); ++place) {
            tag.frames().erase(tag.frames().begin() + static_cast<std::ptrdiff_t>(*place));
        }
        return;
    }
    AttachedPicture picture;
    if (!covers.empty()) {
        picture = attached_picture(content_of(tag, tag.frames()[covers.front()]), tag.version());
    }
    if (picture.type == picture_type::front_cover && Cover{picture.bytes, picture.mime} == *edit.value()) {
        return;
    }
    picture.mime = edit.value()->mime;
    picture.type = picture_type::front_cover;
    picture.bytes = edit.value()->bytes;
    Id3v2Frame frame =
        tag.frame(id_of(FrameKind::picture, tag.version()), picture_content(picture, tag.version()));
    if (covers.empty()) {
        tag.frames().push_back(std::move(frame));
    } else {
        tag.frames()[covers.front()] = std::move(frame);
    }
}

} // namespace

TagValues id3v2_values(const Id3v2Tag& tag, Media media) {
    TagValues values;
    std::array<std::vector<std::string>, text_field_count> found;
    for (const Id3v2Frame& frame : tag.frames()) {
        const std::optional<Field> field = field_of(tag, frame, media);
        if (field && *field != Field::year) {
            std::vector<std::string>& list = found[static_cast<std::size_t>(*field)];
            const std::vector<std::string> more = values_of(tag, frame);
            list.insert(list.end(), more.begin(), more.end());
        }
    }
    for (std::size_t field = 0; field < text_field_count; ++field) {
        std::string text = joined(found[field]);
        if (!text.empty()) {
            values.texts[field] = std::move(text);
        }
    }
    values.year = year_value(tag);
    values.cover = cover_in(tag, cover_frames(tag));
    return values;
}

TagValues id3v2_values_with(const Id3v2Tag& tag, const TagEdits& edits, Media media) {
    TagValues values = edits.applied_to(id3v2_values(tag, media));
    const Edit<std::string>& genre = edits.text(Field::genre);
    if (genre.sets() && !genre.value()->starts_with('(')) {
        values.text(Field::genre) = joined(genres_of(*genre.value()));
    }
    if (edits.cover.deletes()) {
        Id3v2Tag rest = tag;
        apply_cover(rest, edits.cover);
        values.cover = cover_in(rest, cover_frames(rest));
    }
    return values;
}

std::vector<TagItem> id3v2_items(const Id3v2Tag& tag, Media media) {
    const std::vector<std::size_t> covers = cover_frames(tag);
    std::vector<TagItem> items;
    for (std::size_t i = 0; i < tag.frames().size(); ++i) {
        const Id3v2Frame& frame = tag.frames()[i];
        const bool cover = std::find(covers.begin(), covers.end(), i) != covers.end();
        TagItem item{"ID3v2 " + frame.id, {}, cover ? Field::cover : field_of(tag, frame, media)};
        append_be16(item.bytes, frame.flags);
        append(item.bytes, frame.body);
        items.push_back(std::move(item));
    }
    return items;
}

void id3v2_apply(Id3v2Tag& tag, const TagEdits& edits, Media media) {
    tag.refuse_damaged();
    const TagValues old = id3v2_values(tag, media);
    for (std::size_t i = 0; i < text_field_count; ++i) {
        const Edit<std::string>& edit = edits.texts[i];
        if (edit.deletes() || (edit.sets() && edit.value() != old.texts[i])) {
            apply_text(tag, static_cast<Field>(i), edit, media);
        }
    }
    if (edits.year.sets()) {
        set_year(tag, *edits.year.value());
    } else if (edits.year.deletes()) {
        replace_frames(tag, Field::year, media, std::nullopt);
    }
    if (!edits.cover.leaves_alone()) {
        apply_cover(tag, edits.cover);
    }
}

} // namespace velmora::portable
