#include "apply_file_info.h"

#include "descriptor_value.h"
#include "picture.h"

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

[[nodiscard]] bool apply_single(_asf_ext_content_description_t* ecd, const char* name, std::uint16_t type,
                                const char* text) {
    if (!text) {
        asf_remove_content_descriptor(ecd, name);
        return true;
    }
    return set_attribute(ecd, name, type, text);
}

[[nodiscard]] bool apply_pair(_asf_ext_content_description_t* ecd, const char* older_name, const char* name,
                              std::uint16_t type, const char* text) {
    if (!text) {
        asf_remove_content_descriptor(ecd, older_name);
        asf_remove_content_descriptor(ecd, name);
        return true;
    }
    const bool has_older = asf_find_content_descriptor(ecd, older_name) != nullptr;
    if (has_older && !set_attribute(ecd, older_name, type, text)) {
        return false;
    }
    const bool takes_newer = !has_older || asf_find_content_descriptor(ecd, name);
    return !takes_newer || set_attribute(ecd, name, type, text);
}

[[nodiscard]] bool apply_string(std::uint8_t** string, std::uint16_t* length, const char* text) {
    *length = asf_store_value(string, asf_value_type::unicode, text);
    return !text || *text == '\0' || *length > 0;
}

[[nodiscard]] bool apply_texts(const _file_info_t& info, _asf_content_description_t* cd,
                               _asf_ext_content_description_t* ecd) {
    constexpr std::uint16_t unicode = asf_value_type::unicode;
    const auto has = [&](std::uint32_t flag) { return (info.flags & flag) != 0; };
    if (has(file_info_flag::title) && !apply_pair(ecd, "AlbumTitle", "WM/AlbumTitle", unicode, info.title)) {
        return false;
    }
    if (has(file_info_flag::artist) &&
        !(apply_string(&cd->author, &cd->author_length, info.artist) &&
          apply_pair(ecd, "AlbumArtist", "WM/AlbumArtist", unicode, info.artist))) {
        return false;
    }
    if (has(file_info_flag::desc) && !(apply_string(&cd->title, &cd->title_length, info.desc) &&
                                       apply_pair(ecd, "Description", "WM/Track", unicode, info.desc))) {
        return false;
    }
    return !has(file_info_flag::genre) || apply_pair(ecd, "Genre", "WM/Genre", unicode, info.genre);
}

[[nodiscard]] bool apply_details(const _file_info_t& info, _asf_ext_content_description_t* ecd) {
    const auto has = [&](std::uint32_t flag) { return (info.flags & flag) != 0; };
    if (has(file_info_flag::year) &&
        !apply_pair(ecd, "Year", "WM/Year", asf_value_type::dword, NumberText(info.year).get())) {
        return false;
    }
    if (has(file_info_flag::director) &&
        !apply_single(ecd, "WM/Director", asf_value_type::unicode, info.director)) {
        return false;
    }
    if (has(file_info_flag::rating) &&
        !apply_single(ecd, "WM/ParentalRating", asf_value_type::unicode, info.rating)) {
        return false;
    }
    const auto time = static_cast<std::int64_t>(info.time);
    return !has(file_info_flag::time) ||
           apply_single(ecd, "WM/EncodingTime", asf_value_type::qword, NumberText(time).get());
}

void apply_picture(const _file_info_t& info, _asf_ext_content_description_t* ecd) {
    if (info.picture) {
        asf_store_picture(ecd, info.picture);
    } else {
        asf_remove_content_descriptor(ecd, "WM/Picture");
    }
}

} // namespace

bool asf_apply_file_info(const _file_info_t& info, _asf_content_description_t* cd,
                         _asf_ext_content_description_t* ecd) {
    if (!apply_texts(info, cd, ecd) || !apply_details(info, ecd)) {
        return false;
    }
    if (info.flags & file_info_flag::picture) {
        apply_picture(info, ecd);
    }
    return true;
}

} // namespace velmora
