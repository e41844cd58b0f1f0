#include "store_fields.h"

#include "tag_fields.h"

#include "taglib/id3/picture.h"
#include "taglib/id3/text.h"
#include "taglib/id3/time_text.h"

#include <cstdio>

namespace velmora {

namespace {

constexpr std::int32_t body_capacity = 8192;

bool store_text(_id3_file_desc_t* descriptor, std::uint32_t id, const char* text) {
    if (!text || !text[0]) {
        id3_remove_tag(descriptor, id);
        return true;
    }
    std::uint8_t body[body_capacity];
    std::int32_t size = id3_store_byte(body, body_capacity, id3_encoding::latin1);
    size += id3_store_bytes(body + size, body_capacity - size, text, -1);
    return id3_insert_tag(descriptor, id, body, size);
}

bool store_rating(_id3_file_desc_t* descriptor, const char* rating) {
    if (!rating || !rating[0]) {
        id3_remove_priv_tag(descriptor, id3_rating_owner);
        return true;
    }
    std::uint8_t body[body_capacity];
    const std::int32_t size = id3_store_bytes(body, body_capacity, rating, -1);
    return id3_insert_priv_tag(descriptor, id3_rating_owner, body, size);
}

bool store_year(_id3_file_desc_t* descriptor, std::uint32_t id, std::int32_t year) {
    char text[16] = "";
    if (year != 0) {
        std::snprintf(text, sizeof text, "%d", year);
    }
    return store_text(descriptor, id, text);
}

bool store_cover(_id3_file_desc_t* descriptor, std::uint32_t id, const Image* picture) {
    if (picture) {
        id3_store_picture(descriptor, id, picture);
    } else {
        id3_remove_tag(descriptor, id);
    }
    return true;
}

bool store_recording_time(_id3_file_desc_t* descriptor, std::uint32_t id, std::uint64_t time) {
    char text[128] = "";
    if (time != 0) {
        id3_store_time(filetime_from_value(time), text, sizeof text);
    }
    return store_text(descriptor, id, text);
}

bool store_field(_id3_file_desc_t* descriptor, const Id3Field& field, const _file_info_t& info) {
    switch (field.form) {
    case Id3FieldForm::text:
    case Id3FieldForm::genre:
        return store_text(descriptor, field.frame, info.*field.text);
    case Id3FieldForm::rating:
        return store_rating(descriptor, info.*field.text);
    case Id3FieldForm::year:
        return store_year(descriptor, field.frame, info.year);
    case Id3FieldForm::picture:
        return store_cover(descriptor, field.frame, info.picture);
    case Id3FieldForm::time:
        return store_recording_time(descriptor, field.frame, info.time);
    }
    return true;
}

} // namespace

int id3_store_fields(_id3_file_desc_t* descriptor, _file_info_t* info) {
    bool stored = true;
    for (const Id3Field& field : id3_fields) {
        if (take_flag(info, field.flag)) {
            stored &= store_field(descriptor, field, *info);
        }
    }
    return stored ? 1 : 0;
}

} // namespace velmora
