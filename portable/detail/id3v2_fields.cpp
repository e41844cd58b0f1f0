#include "id3v2_fields.h"

#include "cover_choice.h"
#include "date_text.h"
#include "id3v2_places.h"
#include "id3v2_text.h"
#include "text.h"

#include <algorithm>
#include <array>

namespace velmora::portable {

namespace {

std::vector<std::string> values_of(const Id3v2Tag& tag, const Id3v2Frame& frame) {
    const Bytes content = content_of(tag, frame);
    switch (*place_of(frame)) {
    case Id3v2Place::genre:
        return genre_values(content);
    case Id3v2Place::comment:
        return described_text(content, true).values;
    case Id3v2Place::user_text:
        return described_text(content, false).values;
    default:
        return text_values(content);
    }
}

/** Where the year is: in 2.4 in front the date, before that the year. */
Id3v2Place year_kind(std::uint8_t version) {
    return version >= 4 ? Id3v2Place::date : Id3v2Place::year;
}

std::optional<int> frame_year(const Id3v2Tag& tag, const Id3v2Frame& frame) {
    const std::vector<std::string> dates = text_values(content_of(tag, frame));
    return dates.empty() ? std::nullopt : year_of(dates.front());
}

bool has_year(Id3v2Place kind) {
    return kind == Id3v2Place::date || kind == Id3v2Place::year;
}

std::optional<int> year_value(const Id3v2Tag& tag) {
    std::optional<int> second;
    for (const Id3v2Frame& frame : tag.frames()) {
        const std::optional<Id3v2Place> kind = place_of(frame);
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
        return described_content({{}, id3v2_director, {text}}, tag.version());
    case Field::rating:
        return described_content({{}, id3v2_rating, {text}}, tag.version());
    default:
        return text_content(text, tag.version());
    }
}

Id3v2Place kind_for(Field field) {
    switch (field) {
    case Field::artist:
        return Id3v2Place::artist;
    case Field::album:
        return Id3v2Place::album;
    case Field::genre:
        return Id3v2Place::genre;
    case Field::synopsis:
        return Id3v2Place::comment;
    case Field::director:
    case Field::rating:
        return Id3v2Place::user_text;
    default:
        return Id3v2Place::title;
    }
}

/** Replaces the first frame of FIELD by FRAME, or puts it behind all others, and removes the rest of that
   field's. */
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
        const std::optional<Id3v2Place> kind = place_of(frame);
        if (kind && has_year(*kind)) {
            placed = placed || *kind == year_kind(tag.version());
            if (frame_year(tag, frame) != year) {
                frame = tag.frame(frame.id, text_content(date_with_year({}, year), tag.version()));
            }
        }
        const bool of_another_year = !same && (kind == Id3v2Place::day || kind == Id3v2Place::time);
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
        tag.frame(id_of(Id3v2Place::picture, tag.version()), picture_content(picture, tag.version()));
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

void id3v2_part_values(Id3v2Tag& tag, Field field, const std::vector<std::string>& values, Media media) {
    const bool has_text_frame =
        field == Field::title || field == Field::artist || field == Field::album || field == Field::genre;
    const bool read_otherwise = std::any_of(values.begin(), values.end(), [&](const std::string& value) {
        return field == Field::genre && genres_of(value) != std::vector<std::string>{value};
    });
    if (!has_text_frame || read_otherwise) {
        return;
    }
    std::string text;
    for (const std::string& value : values) {
        text += (text.empty() ? "" : std::string(1, '\0')) + value;
    }
    replace_frames(tag, field, media,
                   tag.frame(id_of(kind_for(field), tag.version()), text_content(text, tag.version())));
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
