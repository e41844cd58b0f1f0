#include "apply_file_info.h"

#include "tag_fields.h"

#include "taglib/asf/descriptor_value.h"
#include "taglib/asf/picture.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>

namespace velmora {

namespace {

/** The text that stores NUMBER, or null for 0, which removes it. Lives as long as the object. */
class NumberText {
public:
    explicit NumberText(std::int64_t number) : present_(number != 0) {
        std::snprintf(text_, sizeof text_, "%" PRId64, number);
    }
    [[nodiscard]] const char* get() const { return present_ ? text_ : nullptr; }

private:
    bool present_;
    char text_[24];
};

/** False when memory is exhausted; what is to be stored is then not there. */
[[nodiscard]] bool set_attribute(_asf_ext_content_description_t* ecd, const char* name, std::uint16_t type,
                                 const char* text) {
    if (!asf_set_content_descriptor_str(ecd, name, type, text)) {
        return false;
    }
    const _asf_content_descriptor_t* const descriptor = asf_find_content_descriptor(ecd, name);
    return descriptor && (*text == '\0' || descriptor->value_length > 0);
}

/** Sets or, without TEXT, removes the attribute under the names that the file has, at least
   under the newer. */
[[nodiscard]] bool apply_attribute(_asf_ext_content_description_t* ecd, const AsfField& field,
                                   const char* text) {
    if (!text) {
        if (field.older_name) {
            asf_remove_content_descriptor(ecd, field.older_name);
        }
        asf_remove_content_descriptor(ecd, field.name);
        return true;
    }
    const bool has_older = field.older_name && asf_find_content_descriptor(ecd, field.older_name);
    if (has_older && !set_attribute(ecd, field.older_name, field.type, text)) {
        return false;
    }
    const bool takes_newer = !has_older || asf_find_content_descriptor(ecd, field.name);
    return !takes_newer || set_attribute(ecd, field.name, field.type, text);
}

[[nodiscard]] bool apply_string(_asf_content_description_t* cd, const AsfField& field, const char* text) {
    if (!field.string) {
        return true;
    }
    cd->*field.string_length = asf_store_value(&(cd->*field.string), asf_value_type::unicode, text);
    return !text || *text == '\0' || cd->*field.string_length > 0;
}

void apply_picture(_asf_ext_content_description_t* ecd, const AsfField& field, const Image* picture) {
    if (picture) {
        asf_store_picture(ecd, picture);
    } else {
        asf_remove_content_descriptor(ecd, field.name);
    }
}

[[nodiscard]] bool apply_field(const _file_info_t& info, const AsfField& field,
                               _asf_content_description_t* cd, _asf_ext_content_description_t* ecd) {
    switch (field.kind) {
    case AsfFieldKind::text:
        return apply_string(cd, field, info.*field.text) && apply_attribute(ecd, field, info.*field.text);
    case AsfFieldKind::year:
        return apply_attribute(ecd, field, NumberText(info.year).get());
    case AsfFieldKind::time:
        return apply_attribute(ecd, field, NumberText(static_cast<std::int64_t>(info.time)).get());
    default:
        apply_picture(ecd, field, info.picture);
        return true;
    }
}

} // namespace

bool asf_apply_file_info(const _file_info_t& info, _asf_content_description_t* cd,
                         _asf_ext_content_description_t* ecd) {
    return std::all_of(asf_fields.begin(), asf_fields.end(), [&](const AsfField& field) {
        return (info.flags & field.flag) == 0 || apply_field(info, field, cd, ecd);
    });
}

} // namespace velmora
