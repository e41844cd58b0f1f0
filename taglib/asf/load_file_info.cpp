#include "load_file_info.h"

#include "../byte_order.h"
#include "../trace.h"
#include "content_description.h"
#include "descriptor_value.h"
#include "ext_content_description.h"
#include "guids.h"
#include "open_header.h"
#include "picture.h"
#include "utf16.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <initializer_list>

namespace velmora {

namespace {

constexpr std::size_t text_buffer_size = 8192;

/** A zeroed text buffer, the last byte of which stays zero. */
struct TextBuffer {
    char text[text_buffer_size] = {};
    static constexpr std::size_t capacity = text_buffer_size - 1;
};

bool is_empty(const char* text) {
    return !text || *text == '\0';
}

void replace_text(char** slot, const char* text) {
    std::free(*slot);
    *slot = ::strdup(text);
}

/** Puts the first of NAMES that is present into TEXT. */
bool get_first(const _asf_ext_content_description_t* ecd, std::initializer_list<const char*> names,
               TextBuffer& buffer) {
    for (const char* const name : names) {
        if (asf_get_content_descriptor_str(ecd, name, buffer.text, TextBuffer::capacity) != 0) {
            return true;
        }
    }
    return false;
}

void load_text(const _asf_ext_content_description_t* ecd, std::initializer_list<const char*> names,
               char** slot) {
    TextBuffer buffer;
    if (get_first(ecd, names, buffer)) {
        replace_text(slot, buffer.text);
    }
}

void load_year(const _asf_ext_content_description_t* ecd, _file_info_t* info) {
    TextBuffer buffer;
    if (get_first(ecd, {"WM/Year", "Year"}, buffer)) {
        info->year = asf_text_as_integer(buffer.text);
    }
}

void load_time(const _asf_ext_content_description_t* ecd, _file_info_t* info) {
    const _asf_content_descriptor_t* const descriptor = asf_find_content_descriptor(ecd, "WM/EncodingTime");
    if (descriptor && descriptor->value && descriptor->value_length == 8) {
        info->time = load_le64(descriptor->value);
    }
}

void load_picture(const _asf_ext_content_description_t* ecd, _file_info_t* info) {
    const _asf_content_descriptor_t* const descriptor = asf_find_content_descriptor(ecd, "WM/Picture");
    if (descriptor) {
        info->picture = asf_load_picture(descriptor);
    }
}

void load_attributes(const _asf_ext_content_description_t* ecd, _file_info_t* info) {
    load_text(ecd, {"WM/AlbumArtist", "AlbumArtist"}, &info->artist);
    load_text(ecd, {"WM/AlbumTitle", "AlbumTitle"}, &info->title);
    load_text(ecd, {"Description", "WM/Track"}, &info->desc);
    load_text(ecd, {"WM/Genre", "Genre"}, &info->genre);
    load_year(ecd, info);
    load_text(ecd, {"WM/Director"}, &info->director);
    load_text(ecd, {"WM/ParentalRating"}, &info->rating);
    load_time(ecd, info);
    load_picture(ecd, info);
}

/** A string of the content description goes into SLOT when that is still empty. */
void load_string(const std::uint8_t* string, std::uint16_t length, char** slot) {
    if (string && is_empty(*slot)) {
        TextBuffer buffer;
        utf16le_to_utf8(string, length, buffer.text, TextBuffer::capacity);
        replace_text(slot, buffer.text);
    }
}

bool has_tag(const _file_info_t& info) {
    for (const char* const text :
         {info.artist, info.title, info.desc, info.genre, info.rating, info.director}) {
        if (!is_empty(text)) {
            return true;
        }
    }
    return info.year != 0 || info.picture;
}

} // namespace

int asf_load_file_info(const char* path, _file_info_t* info) {
    *info = {};
    {
        AsfOpenHeader opened;
        if (!opened.open(path, O_RDONLY)) {
            DebugError("asf_load_file_info: Couldn't open file\n");
            return 0;
        }
        if (opened.read()) {
            const auto* const ecd =
                opened.find<_asf_ext_content_description_t>(ASF_ExtendedContentDescription);
            if (ecd) {
                load_attributes(ecd, info);
            }
            const auto* const cd = opened.find<_asf_content_description_t>(ASF_ContentDescription);
            if (cd) {
                load_string(cd->title, cd->title_length, &info->desc);
                load_string(cd->author, cd->author_length, &info->artist);
            }
            info->flags = has_tag(*info) ? file_info_flag::tag_present : 0;
            return 1;
        }
    }
    errno = asf_header_unreadable;
    return 0;
}

} // namespace velmora
