#include "asf_edits.h"

#include "cover_choice.h"
#include "date_text.h"

#include "portable/reason.h"

#include <algorithm>
#include <functional>

namespace velmora::portable {

namespace {

constexpr std::size_t most_attributes_of_a_list = 65535;
constexpr std::size_t largest_short_value = 65535;

/** The field's text where OLD was. */
using TextFor = std::function<std::string(const std::string& old)>;

std::size_t list_of(AsfLists& lists, AsfListKind kind) {
    const auto list = std::find_if(lists.begin(), lists.end(),
                                   [&](const AsfAttributeList& candidate) { return candidate.kind == kind; });
    if (list != lists.end()) {
        return static_cast<std::size_t>(list - lists.begin());
    }
    lists.push_back(empty_asf_list(kind));
    return lists.size() - 1;
}

/** Adds an attribute to the list of KIND, in which a content description has a place for it. */
void add(AsfLists& lists, AsfListKind kind, const std::string& name, std::uint16_t type,
         std::span<const std::uint8_t> value) {
    AsfAttributeList& list = lists[list_of(lists, kind)];
    if (list.attributes.size() == most_attributes_of_a_list) {
        throw Refusal({ReasonCode::too_large, 0, "there are 65535 attributes"});
    }
    AsfAttribute attribute = asf_attribute(kind, name, type, value);
    if (kind == AsfListKind::content_description) {
        const auto place = std::find_if(list.attributes.begin(), list.attributes.end(),
                                        [&](const AsfAttribute& text) { return text.name == name; });
        *place = std::move(attribute);
    } else {
        list.attributes.push_back(std::move(attribute));
    }
    list.changed = true;
}

void remove(AsfLists& lists, const AsfPlace& place) {
    AsfAttributeList& list = lists[place.list];
    const auto attribute = list.attributes.begin() + static_cast<std::ptrdiff_t>(place.attribute);
    if (list.kind != AsfListKind::content_description) {
        list.attributes.erase(attribute);
        list.changed = true;
    } else if (!attribute->record.empty()) {
        attribute->record.clear();
        list.changed = true;
    }
}

void replace(AsfLists& lists, const AsfPlace& place, std::uint16_t type,
             std::span<const std::uint8_t> value) {
    AsfAttributeList& list = lists[place.list];
    AsfAttribute& attribute = list.attributes[place.attribute];
    attribute = asf_attribute(list.kind, attribute.name, type, value, attribute.language);
    list.changed = true;
}

/** Sets the places of NAME: the first, and those whose value was that of the field. The rest go. */
void set_places(AsfLists& lists, const char* name, const TextFor& text_for) {
    const std::vector<AsfPlace> places = asf_places(lists, name);
    std::string value;
    for (const AsfPlace& place : places) {
        value = value.empty() ? place.in(lists).text() : value;
    }
    // From behind, so that what goes does not move what is still to come.
    for (std::size_t i = places.size(); i > 0; --i) {
        const AsfPlace& place = places[i - 1];
        const std::string old = place.in(lists).text();
        if (i != 1 && old != value) {
            remove(lists, place);
            continue;
        }
        const std::string text = text_for(old);
        if (text != old) {
            replace(lists, place, asf_type_unicode, asf_text(name, text));
        }
    }
}

void set_text(AsfLists& lists, Field field, const TextFor& text_for) {
    const AsfFieldNames& names = asf_field_names(field);
    const std::vector<AsfPlace> places = asf_places(lists, names.name);
    const bool at_home =
        !places.empty() && (names.home != AsfListKind::content_description ||
                            lists[places.front().list].kind == AsfListKind::content_description);
    set_places(lists, names.name, text_for);
    if (!at_home) {
        const std::string text = text_for({});
        add(lists, names.home, names.name, asf_type_unicode, asf_text(names.name, text));
    }
    for (const char* const name : names.other_names) {
        set_places(lists, name, text_for);
    }
}

void remove_all(AsfLists& lists, const std::vector<AsfPlace>& places) {
    for (auto place = places.rbegin(); place != places.rend(); ++place) {
        remove(lists, *place);
    }
}

void remove_text(AsfLists& lists, Field field) {
    const AsfFieldNames& names = asf_field_names(field);
    remove_all(lists, asf_places(lists, names.name));
    for (const char* const name : names.other_names) {
        remove_all(lists, asf_places(lists, name));
    }
}

void edit_text(AsfLists& lists, Field field, const Edit<std::string>& edit) {
    if (edit.sets() && !edit.value()->empty()) {
        set_text(lists, field, [&](const std::string&) { return *edit.value(); });
    } else if (!edit.leaves_alone()) {
        remove_text(lists, field);
    }
}

void edit_year(AsfLists& lists, const Edit<int>& edit) {
    if (edit.sets()) {
        set_text(lists, Field::year,
                 [&](const std::string& old) { return date_with_year(old, *edit.value()); });
    } else if (edit.deletes()) {
        remove_text(lists, Field::year);
    }
}

/** Sets the first cover, which keeps its description. A picture that is too large for where that one was goes
   into the metadata library. */
void set_cover(AsfLists& lists, const Cover& cover) {
    const std::string name = asf_field_names(Field::cover).name;
    const std::vector<AsfPlace> places = asf_cover_places(lists);
    AsfPicture picture;
    picture.description = {0, 0};
    if (!places.empty()) {
        picture = *read_asf_picture(places.front().in(lists).value());
    }
    picture.type = picture_type::front_cover;
    picture.cover = cover;
    const Bytes value = asf_picture_value(picture);
    const bool is_short = value.size() <= largest_short_value;
    if (places.empty()) {
        add(lists, is_short ? AsfListKind::extended_content_description : AsfListKind::metadata_library, name,
            asf_type_byte_array, value);
    } else if (is_short || lists[places.front().list].kind == AsfListKind::metadata_library) {
        replace(lists, places.front(), asf_type_byte_array, value);
    } else {
        remove(lists, places.front());
        add(lists, AsfListKind::metadata_library, name, asf_type_byte_array, value);
    }
}

} // namespace

void apply_asf_edits(AsfLists& lists, const TagEdits& edits) {
    for (std::size_t i = 0; i < text_field_count; ++i) {
        edit_text(lists, static_cast<Field>(i), edits.texts[i]);
    }
    edit_year(lists, edits.year);
    if (edits.cover.sets()) {
        set_cover(lists, *edits.cover.value());
    } else if (edits.cover.deletes()) {
        remove_all(lists, asf_cover_places(lists));
    }
}

void remove_asf_attributes(AsfLists& lists) {
    for (AsfAttributeList& list : lists) {
        const auto erased = std::erase_if(
            list.attributes, [](const AsfAttribute& attribute) { return attribute.stream == 0; });
        list.changed = list.changed || erased > 0;
    }
}

} // namespace velmora::portable
