#pragma once

#include "asf_attributes.h"
#include "asf_picture.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/** The fields of a tag in the attributes of an ASF file (docs/portable-tags.md, "Windows Media"). An
   attribute of one stream says nothing of the file and is no place of a field. */
namespace velmora::portable {

/** Where an attribute is: which list, and which attribute of it. */
struct AsfPlace {
    std::size_t list;
    std::size_t attribute;

    [[nodiscard]] const AsfAttribute& in(const AsfLists& lists) const {
        return lists[list].attributes[attribute];
    }
    friend bool operator==(const AsfPlace&, const AsfPlace&) = default;
};

/** The names under which a field stands. */
struct AsfFieldNames {
    const char* name; ///< the one that other programs read
    AsfListKind home; ///< where a new one goes
    std::span<const char* const>
        other_names; ///< what counts, in this order, where that has no value, and is never added
};

[[nodiscard]] const AsfFieldNames& asf_field_names(Field field);

/** Whether NAME is OTHER, in any case: there are writers that use small letters. */
[[nodiscard]] bool is_asf_name(std::string_view name, std::string_view other);

/** The attributes of LISTS that are called NAME, in any case, and speak of the whole file. */
[[nodiscard]] std::vector<AsfPlace> asf_places(const AsfLists& lists, const char* name);

/** The pictures of LISTS that are the cover: all of type 3, or where there is none the first of type 0. */
[[nodiscard]] std::vector<AsfPlace> asf_cover_places(const AsfLists& lists);

/** The values of FIELD's attributes as one text; empty for none. */
[[nodiscard]] std::string asf_field_text(const AsfLists& lists, Field field);

/** What LISTS say of the fields that files of MEDIA have. */
[[nodiscard]] TagValues asf_values(const AsfLists& lists, Media media);

} // namespace velmora::portable
