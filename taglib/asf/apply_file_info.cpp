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

void apply_single(_asf_ext_content_description_t* ecd, const char* name, std::uint16_t type,
                  const char* text) {
    if (text) {
        asf_set_content_descriptor_str(ecd, name, type, text);
    } else {
        asf_remove_content_descriptor(ecd, name);
    }
}

void apply_pair(_asf_ext_content_description_t* ecd, const char* older_name, const char* name,
                std::uint16_t type, const char* text) {
    if (!text) {
        asf_remove_content_descriptor(ecd, older_name);
        asf_remove_content_descriptor(ecd, name);
        return;
    }
    const bool has_older = asf_find_content_descriptor(ecd, older_name) != nullptr;
    if (has_older) {
        asf_set_content_descriptor_str(ecd, older_name, type, text);
    }
    if (!has_older || asf_find_content_descriptor(ecd, name)) {
        asf_set_content_descriptor_str(ecd, name, type, text);
    }
}

void apply_string(std::uint8_t** string, std::uint16_t* length, const char* text) {
    *length = asf_store_value(string, asf_value_type::unicode, text);
}

void apply_texts(const _file_info_t& info, _asf_content_description_t* cd,
                 _asf_ext_content_description_t* ecd) {
    constexpr std::uint16_t unicode = asf_value_type::unicode;
    if (info.flags & file_info_flag::title) {
        apply_pair(ecd, "AlbumTitle", "WM/AlbumTitle", unicode, info.title);
    }
    if (info.flags & file_info_flag::artist) {
        apply_string(&cd->author, &cd->author_length, info.artist);
        apply_pair(ecd, "AlbumArtist", "WM/AlbumArtist", unicode, info.artist);
    }
    if (info.flags & file_info_flag::desc) {
        apply_string(&cd->title, &cd->title_length, info.desc);
        apply_pair(ecd, "Description", "WM/Track", unicode, info.desc);
    }
    if (info.flags & file_info_flag::genre) {
        apply_pair(ecd, "Genre", "WM/Genre", unicode, info.genre);
    }
}

} // namespace

void asf_apply_file_info(const _file_info_t& info, _asf_content_description_t* cd,
                         _asf_ext_content_description_t* ecd) {
    apply_texts(info, cd, ecd);
    if (info.flags & file_info_flag::year) {
        apply_pair(ecd, "Year", "WM/Year", asf_value_type::dword, NumberText(info.year).get());
    }
    if (info.flags & file_info_flag::director) {
        apply_single(ecd, "WM/Director", asf_value_type::unicode, info.director);
    }
    if (info.flags & file_info_flag::rating) {
        apply_single(ecd, "WM/ParentalRating", asf_value_type::unicode, info.rating);
    }
    if (info.flags & file_info_flag::time) {
        const auto time = static_cast<std::int64_t>(info.time);
        apply_single(ecd, "WM/EncodingTime", asf_value_type::qword, NumberText(time).get());
    }
    if (info.flags & file_info_flag::picture) {
        if (info.picture) {
            asf_store_picture(ecd, info.picture);
        } else {
            asf_remove_content_descriptor(ecd, "WM/Picture");
        }
    }
}

} // namespace velmora
