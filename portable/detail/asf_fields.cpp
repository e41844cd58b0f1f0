#include "asf_fields.h"

#include "cover_choice.h"
#include "date_text.h"
#include "save_edits.h"
#include "text.h"

#include <algorithm>
#include <array>

namespace velmora::portable {

namespace {

constexpr AsfListKind content_description = AsfListKind::content_description;
constexpr AsfListKind extended_content = AsfListKind::extended_content_description;

constexpr std::array other_albums = {"AlbumTitle"};
constexpr std::array other_directors = {"Director"};
constexpr std::array other_genres = {"Genre"};
constexpr std::array other_years = {"Year", "Date"};

constexpr std::array<AsfFieldNames, field_count> field_names = {{
    {"Title", content_description, {}},
    {"Author", content_description, {}},
    {"WM/AlbumTitle", extended_content, other_albums},
    {"WM/Director", extended_content, other_directors},
    {"Description", content_description, {}},
    {"WM/Genre", extended_content, other_genres},
    {"WM/ParentalRating", extended_content, {}},
    {"WM/Year", extended_content, other_years},
    {"WM/Picture", extended_content, {}},
}};

char in_small_letters(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string text_under(const AsfLists& lists, const char* name) {
    std::vector<std::string> values;
    for (const AsfPlace& place : asf_places(lists, name)) {
        values.push_back(place.in(lists).text());
    }
    return joined(values);
}

} // namespace

const AsfFieldNames& asf_field_names(Field field) {
    return field_names[static_cast<std::size_t>(field)];
}

bool is_asf_name(std::string_view name, std::string_view other) {
    return std::equal(name.begin(), name.end(), other.begin(), other.end(), [](char left, char right) {
        return in_small_letters(left) == in_small_letters(right);
    });
}

std::vector<AsfPlace> asf_places(const AsfLists& lists, const char* name) {
    std::vector<AsfPlace> places;
    for (std::size_t list = 0; list < lists.size(); ++list) {
        const std::vector<AsfAttribute>& attributes = lists[list].attributes;
        for (std::size_t i = 0; i < attributes.size(); ++i) {
            if (attributes[i].stream == 0 && is_asf_name(attributes[i].name, name)) {
                places.push_back({list, i});
            }
        }
    }
    return places;
}

std::vector<AsfPlace> asf_cover_places(const AsfLists& lists) {
    std::vector<AsfPlace> covers;
    std::vector<AsfPlace> others;
    for (const AsfPlace& place : asf_places(lists, asf_field_names(Field::cover).name)) {
        const auto picture = read_asf_picture(place.in(lists).value());
        if (!picture) {
            continue;
        }
        if (picture->type == picture_type::front_cover) {
            covers.push_back(place);
        } else if (picture->type == picture_type::other && others.empty()) {
            others.push_back(place);
        }
    }
    return covers.empty() ? others : covers;
}

std::string asf_field_text(const AsfLists& lists, Field field) {
    const AsfFieldNames& names = asf_field_names(field);
    std::string text = text_under(lists, names.name);
    for (const char* const name : names.other_names) {
        text = text.empty() ? text_under(lists, name) : text;
    }
    return text;
}

TagValues asf_values(const AsfLists& lists, Media media) {
    TagValues values;
    for (std::size_t i = 0; i < text_field_count; ++i) {
        const auto field = static_cast<Field>(i);
        std::string text = has_field(media, field) ? asf_field_text(lists, field) : std::string();
        if (!text.empty()) {
            values.text(field) = std::move(text);
        }
    }
    values.year = year_of(asf_field_text(lists, Field::year));
    const std::vector<AsfPlace> covers = asf_cover_places(lists);
    if (!covers.empty()) {
        values.cover = read_asf_picture(covers.front().in(lists).value())->cover;
    }
    return values;
}

} // namespace velmora::portable
