#include "store_fields.h"

#include "picture.h"
#include "text.h"
#include "time_text.h"

#include <cstdio>

namespace velmora {

namespace {

constexpr std::int32_t body_capacity = 8192;
constexpr const char* rating_owner = "WM/ParentalRating";

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
        id3_remove_priv_tag(descriptor, rating_owner);
        return true;
    }
    std::uint8_t body[body_capacity];
    const std::int32_t size = id3_store_bytes(body, body_capacity, rating, -1);
    return id3_insert_priv_tag(descriptor, rating_owner, body, size);
}

bool store_year(_id3_file_desc_t* descriptor, std::int32_t year) {
    char text[16] = "";
    if (year != 0) {
        std::snprintf(text, sizeof text, "%d", year);
    }
    return store_text(descriptor, id3_frame_id("TYER"), text);
}

bool store_cover(_id3_file_desc_t* descriptor, const Image* picture) {
    const std::uint32_t id = id3_frame_id("APIC");
    if (picture) {
        id3_store_picture(descriptor, id, picture);
    } else {
        id3_remove_tag(descriptor, id);
    }
    return true;
}

bool store_recording_time(_id3_file_desc_t* descriptor, std::uint64_t time) {
    char text[128] = "";
    if (time != 0) {
        id3_store_time(filetime_from_value(time), text, sizeof text);
    }
    return store_text(descriptor, id3_frame_id("TDRC"), text);
}

} // namespace

int id3_store_fields(_id3_file_desc_t* descriptor, _file_info_t* info) {
    namespace flag = file_info_flag;
    bool stored = true;
    const auto store_text_field = [&](std::uint32_t bit, const char* text, std::uint32_t id) {
        if (take_flag(info, bit)) {
            stored = store_text(descriptor, id, text) && stored;
        }
    };
    store_text_field(flag::title, info->title, id3_frame_id("TALB"));
    store_text_field(flag::artist, info->artist, id3_frame_id("TPE1"));
    store_text_field(flag::desc, info->desc, id3_frame_id("TIT2"));
    store_text_field(flag::director, info->director, id3_frame_id("TPE3"));
    if (take_flag(info, flag::rating)) {
        stored = store_rating(descriptor, info->rating) && stored;
    }
    store_text_field(flag::genre, info->genre, id3_frame_id("TCON"));
    if (take_flag(info, flag::year)) {
        stored = store_year(descriptor, info->year) && stored;
    }
    if (take_flag(info, flag::picture)) {
        stored = store_cover(descriptor, info->picture) && stored;
    }
    if (take_flag(info, flag::time)) {
        stored = store_recording_time(descriptor, info->time) && stored;
    }
    return stored ? 1 : 0;
}

} // namespace velmora
