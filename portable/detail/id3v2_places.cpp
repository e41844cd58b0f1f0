#include "id3v2_places.h"

#include "cover_choice.h"
#include "id3v2_text.h"
#include "text.h"

#include <algorithm>
#include <array>

namespace velmora::portable {

namespace {

struct FrameName {
    Id3v2Place place;
    const char* id;       ///< in 2.3 and 2.4
    const char* short_id; ///< in 2.2; empty: not there
};

constexpr std::array frame_names = {
    FrameName{Id3v2Place::title, "TIT2", "TT2"},   FrameName{Id3v2Place::artist, "TPE1", "TP1"},
    FrameName{Id3v2Place::album, "TALB", "TAL"},   FrameName{Id3v2Place::genre, "TCON", "TCO"},
    FrameName{Id3v2Place::comment, "COMM", "COM"}, FrameName{Id3v2Place::user_text, "TXXX", "TXX"},
    FrameName{Id3v2Place::picture, "APIC", "PIC"}, FrameName{Id3v2Place::date, "TDRC", ""},
    FrameName{Id3v2Place::year, "TYER", "TYE"},    FrameName{Id3v2Place::day, "TDAT", "TDA"},
    FrameName{Id3v2Place::time, "TIME", "TIM"},
};

/** The type of the picture in FRAME; nothing where there is none. */
std::optional<std::uint32_t> type_of_picture(const Id3v2Tag& tag, const Id3v2Frame& frame) {
    const AttachedPicture picture = attached_picture(content_of(tag, frame), tag.version());
    return picture.bytes.empty() ? std::nullopt : std::optional<std::uint32_t>(picture.type);
}

/** The field that a user-defined text of films is. */
std::optional<Field> user_text_field(const Id3v2Tag& tag, const Id3v2Frame& frame, Media media) {
    if (media != Media::video) {
        return std::nullopt;
    }
    const std::string description = described_text(content_of(tag, frame), false).description;
    return equal_ignoring_case(description, id3v2_director) ? std::optional(Field::director)
           : equal_ignoring_case(description, id3v2_rating) ? std::optional(Field::rating)
                                                            : std::nullopt;
}

} // namespace

std::string id_of(Id3v2Place place, std::uint8_t version) {
    const auto* const name =
        std::find_if(frame_names.begin(), frame_names.end(),
                     [&](const FrameName& candidate) { return candidate.place == place; });
    return version == 2 ? name->short_id : name->id;
}

std::optional<Id3v2Place> place_of(const Id3v2Frame& frame) {
    const auto* const name =
        std::find_if(frame_names.begin(), frame_names.end(), [&](const FrameName& candidate) {
            return frame.id == (frame.id.size() == 3 ? candidate.short_id : candidate.id);
        });
    return name == frame_names.end() ? std::nullopt : std::optional(name->place);
}

Bytes content_of(const Id3v2Tag& tag, const Id3v2Frame& frame) {
    return tag.content(frame).value_or(Bytes());
}

std::vector<std::size_t> cover_frames(const Id3v2Tag& tag) {
    std::vector<std::optional<std::uint32_t>> types;
    types.reserve(tag.frames().size());
    for (const Id3v2Frame& frame : tag.frames()) {
        types.push_back(place_of(frame) == Id3v2Place::picture ? type_of_picture(tag, frame) : std::nullopt);
    }
    return cover_places(types);
}

std::optional<Field> field_of(const Id3v2Tag& tag, const Id3v2Frame& frame, Media media) {
    const std::optional<Id3v2Place> place = place_of(frame);
    if (!place) {
        return std::nullopt;
    }
    switch (*place) {
    case Id3v2Place::title:
        return Field::title;
    case Id3v2Place::artist:
        return Field::artist;
    case Id3v2Place::album:
        return media == Media::video ? std::nullopt : std::optional(Field::album);
    case Id3v2Place::genre:
        return Field::genre;
    case Id3v2Place::comment: {
        const std::optional<Bytes> content = tag.content(frame);
        return content && described_text(*content, true).description.empty() ? std::optional(Field::synopsis)
                                                                             : std::nullopt;
    }
    case Id3v2Place::user_text:
        return user_text_field(tag, frame, media);
    case Id3v2Place::date:
    case Id3v2Place::year:
    case Id3v2Place::day:
    case Id3v2Place::time:
        return Field::year;
    case Id3v2Place::picture:
        break;
    }
    return std::nullopt;
}

} // namespace velmora::portable
