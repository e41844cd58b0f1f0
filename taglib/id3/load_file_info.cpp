#include "load_file_info.h"

#include "detail/tag_fields.h"
#include "genres.h"
#include "header_v1.h"
#include "picture.h"
#include "reader.h"
#include "text.h"
#include "time_text.h"

#include "taglib/byte_file.h"
#include "taglib/trace.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <limits>

namespace velmora {

namespace {

/** Every decoded text passes through one of these. */
using Text = char[8192];

/** The number at the start of TEXT, 0 when there is none; the nearest one when it does not fit. */
std::int32_t leading_number(const char* text) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(
        std::clamp<long long>(std::strtoll(text, nullptr, 10), Limits::min(), Limits::max()));
}

/** A copy for the record, or null for an empty text. */
char* copy_unless_empty(const char* text) {
    return text[0] ? ::strdup(text) : nullptr;
}

/** Decodes a frame's text by its own encoding byte. */
void load_text(const _id3_frame_t& frame, Text& text) {
    std::uint8_t encoding = 0;
    const int at = id3_load_byte(frame.data, frame.size, &encoding);
    id3_load_string(frame.data + at, frame.size - at, encoding, text, sizeof text);
}

char* load_text_slot(const _id3_frame_t& frame) {
    Text text;
    load_text(frame, text);
    return copy_unless_empty(text);
}

/** What follows a private frame's owner string. */
struct PrivateBytes {
    const std::uint8_t* bytes = nullptr;
    std::int32_t size = 0;
};

PrivateBytes find_private_bytes(const _id3_file_desc_t& descriptor, const char* owner) {
    const _id3_frame_t* const frame = id3_find_priv_frame(&descriptor, owner);
    if (!frame) {
        return {};
    }
    const std::int32_t owner_size = id3_string_size(frame->data, frame->size, id3_encoding::latin1);
    return {frame->data + owner_size, frame->size - owner_size};
}

char* load_rating(const _id3_file_desc_t& descriptor) {
    const PrivateBytes rating = find_private_bytes(descriptor, id3_rating_owner);
    Text text;
    id3_load_string(rating.bytes, rating.size, id3_encoding::latin1, text, sizeof text);
    return copy_unless_empty(text);
}

char* copy_genre_name(std::int64_t index) {
    const char* const name = id3_genre_name(index);
    return name ? ::strdup(name) : nullptr;
}

char* load_genre(const _id3_frame_t& frame) {
    if (frame.size == 1) {
        return copy_genre_name(frame.data[0]); // an index where the encoding byte belongs
    }
    Text text;
    load_text(frame, text);
    return text[0] == '(' ? copy_genre_name(leading_number(text + 1)) : copy_unless_empty(text);
}

/** The text is read as single bytes whatever its encoding byte says, so a year in UTF-16 is none. */
std::int32_t load_year(const _id3_frame_t& frame) {
    std::uint8_t encoding = 0;
    const int at = id3_load_byte(frame.data, frame.size, &encoding);
    Text text;
    id3_load_string(frame.data + at, frame.size - at, id3_encoding::latin1, text, sizeof text);
    return leading_number(text);
}

Image* load_album_art(const _id3_file_desc_t& descriptor, const char* path) {
    const PrivateBytes group = find_private_bytes(descriptor, "WM/WMCollectionGroupID");
    GUID guid;
    if (group.size < static_cast<std::int32_t>(sizeof guid.bytes)) {
        return nullptr;
    }
    std::memcpy(guid.bytes, group.bytes, sizeof guid.bytes);
    return id3_load_albumart(path, guid);
}

std::uint64_t load_time(const _id3_frame_t& frame) {
    Text text;
    load_text(frame, text);
    FILETIME time{};
    return id3_parse_time(text, &time) ? filetime_value(time) : 0;
}

Image* load_cover(const _id3_file_desc_t& descriptor, const _id3_frame_t* frame, const char* path) {
    Image* const attached = frame ? id3_load_picture(frame) : nullptr;
    return attached ? attached : load_album_art(descriptor, path);
}

/** Loads FIELD from its first frame; PATH is the media file's. */
void load_field(const _id3_file_desc_t& descriptor, const Id3Field& field, const char* path,
                _file_info_t* info) {
    const _id3_frame_t* const frame = id3_find_frame(&descriptor, field.frame);
    switch (field.form) {
    case Id3FieldForm::text:
        info->*field.text = frame ? load_text_slot(*frame) : nullptr;
        break;
    case Id3FieldForm::rating:
        info->*field.text = load_rating(descriptor); // by its frame's owner
        break;
    case Id3FieldForm::genre:
        info->*field.text = frame ? load_genre(*frame) : nullptr;
        break;
    case Id3FieldForm::year:
        info->year = frame ? load_year(*frame) : 0;
        break;
    case Id3FieldForm::picture:
        info->picture = load_cover(descriptor, frame, path);
        break;
    case Id3FieldForm::time:
        info->time = frame ? load_time(*frame) : 0;
        break;
    }
}

void load_from_v2(const _id3_file_desc_t& descriptor, const char* path, _file_info_t* info) {
    info->flags |= file_info_flag::tag_present;
    for (const Id3Field& field : id3_fields) {
        load_field(descriptor, field, path, info);
    }
}

/** A copy of an ID3v1 field, which is zero-terminated only when it is shorter than its room. */
template <std::size_t size>
char* load_v1_slot(const char (&field)[size]) {
    char text[size + 1];
    id3_load_string(reinterpret_cast<const std::uint8_t*>(field), size, id3_encoding::latin1, text,
                    sizeof text);
    return copy_unless_empty(text);
}

bool load_from_v1(FIOFUNCSTRUCT* file, _file_info_t* info) {
    _id3_header_v1_t header;
    if (id3_load_header_v1(file, &header) < 0 || std::memcmp(header.signature, "TAG", 3) != 0) {
        return false;
    }
    info->flags |= file_info_flag::tag_present;
    info->desc = load_v1_slot(header.title);
    info->artist = load_v1_slot(header.artist);
    info->title = load_v1_slot(header.album);
    char year[sizeof header.year + 1] = {};
    std::memcpy(year, header.year, sizeof header.year);
    info->year = leading_number(year);
    info->genre = copy_genre_name(header.genre);
    return true;
}

} // namespace

int id3_load_file_info(const char* path, _file_info_t* info) {
    *info = {};
    ByteFile file;
    if (!file.open(path, O_RDONLY)) {
        DebugError("id3_load_file_info: Couldn't open file\n");
        return 0;
    }
    ReadWindow window(file.handle());
    Id3Descriptor descriptor;
    if (id3_read_tag(window, &descriptor.tag, true).offset < 0 &&
        id3_read_tag(window, &descriptor.tag, false).offset < 0) {
        return load_from_v1(file.handle(), info) ? 1 : 0;
    }
    load_from_v2(descriptor.tag, path, info);
    return 1;
}

} // namespace velmora
