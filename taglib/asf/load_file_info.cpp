#include "load_file_info.h"

#include "content_description.h"
#include "descriptor_value.h"
#include "detail/owned_header.h"
#include "detail/tag_fields.h"
#include "detail/utf16.h"
#include "ext_content_description.h"
#include "guids.h"
#include "picture.h"

#include "taglib/byte_order.h"
#include "taglib/trace.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>

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

/** Puts the attribute's text, under the first of its names that is present, into BUFFER. */
bool get_text(const _asf_ext_content_description_t* ecd, const AsfField& field, TextBuffer& buffer) {
    const auto has = [&](const char* name) {
        return name && asf_get_content_descriptor_str(ecd, name, buffer.text, TextBuffer::capacity) != 0;
    };
    return field.older_is_read_first ? has(field.older_name) || has(field.name)
                                     : has(field.name) || has(field.older_name);
}

void load_time(const _asf_content_descriptor_t* descriptor, _file_info_t* info) {
    if (descriptor && descriptor->value && descriptor->value_length == 8) {
        info->time = load_le64(descriptor->value);
    }
}

void load_attribute(const _asf_ext_content_description_t* ecd, const AsfField& field, _file_info_t* info) {
    TextBuffer buffer;
    switch (field.kind) {
    case AsfFieldKind::text:
        if (get_text(ecd, field, buffer)) {
            replace_text(&(info->*field.text), buffer.text);
        }
        break;
    case AsfFieldKind::year:
        if (get_text(ecd, field, buffer)) {
            info->year = asf_text_as_integer(buffer.text);
        }
        break;
    case AsfFieldKind::time:
        load_time(asf_find_content_descriptor(ecd, field.name), info);
        break;
    case AsfFieldKind::picture:
        if (const auto* const descriptor = asf_find_content_descriptor(ecd, field.name)) {
            info->picture = asf_load_picture(descriptor);
        }
        break;
    }
}

/** The string of the content description takes the place of an attribute that gave no text. */
void load_string(const _asf_content_description_t* cd, const AsfField& field, _file_info_t* info) {
    if (!field.string || !(cd->*field.string) || !is_empty(info->*field.text)) {
        return;
    }
    TextBuffer buffer;
    utf16le_to_utf8(cd->*field.string, cd->*field.string_length, buffer.text, TextBuffer::capacity);
    replace_text(&(info->*field.text), buffer.text);
}

bool has_tag(const _file_info_t& info) {
    return info.year != 0 || info.picture ||
           std::any_of(asf_fields.begin(), asf_fields.end(),
                       [&info](const AsfField& field) { return field.text && !is_empty(info.*field.text); });
}

void load_fields(AsfHeader* header, _file_info_t* info) {
    const auto* const ecd = header->find<_asf_ext_content_description_t>(ASF_ExtendedContentDescription);
    const auto* const cd = header->find<_asf_content_description_t>(ASF_ContentDescription);
    for (const AsfField& field : asf_fields) {
        if (ecd) {
            load_attribute(ecd, field, info);
        }
        if (cd) {
            load_string(cd, field, info);
        }
    }
}

} // namespace

int asf_load_file_info(const char* path, _file_info_t* info) {
    *info = {};
    ByteFile file;
    if (!file.open(path, O_RDONLY)) {
        DebugError("asf_load_file_info: Couldn't open file\n");
        return 0;
    }
    AsfHeader header;
    if (!header.read(&file)) {
        errno = asf_header_unreadable;
        return 0;
    }
    load_fields(&header, info);
    info->flags = has_tag(*info) ? file_info_flag::tag_present : 0;
    return 1;
}

} // namespace velmora
