#pragma once

#include "../media_type.h"

#include "taglib/file_info.h"

#include <cstdint>
#include <span>

namespace velmora {

/** A text of the metadata dictionary and where it is in a tag's record. */
struct RecordSlot {
    const char* key; ///< in the dictionary
    char* _file_info_t::*text;
    std::uint32_t flag; ///< the record's bit for it
};

/** The slots of films: the record's three general ones are title, cast and synopsis. */
inline constexpr RecordSlot filmSlots[] = {
    {"title", &_file_info_t::title, file_info_flag::title},
    {"cast", &_file_info_t::artist, file_info_flag::artist},
    {"synopsis", &_file_info_t::desc, file_info_flag::desc},
    {"genre", &_file_info_t::genre, file_info_flag::genre},
    {"director", &_file_info_t::director, file_info_flag::director},
    {"rating", &_file_info_t::rating, file_info_flag::rating},
};

/** The slots of songs and of everything else: the three general ones are album, artist and title. */
inline constexpr RecordSlot songSlots[] = {
    {"album", &_file_info_t::title, file_info_flag::title},
    {"artist", &_file_info_t::artist, file_info_flag::artist},
    {"title", &_file_info_t::desc, file_info_flag::desc},
    {"genre", &_file_info_t::genre, file_info_flag::genre},
};

inline std::span<const RecordSlot> slotsOf(int mediaType) {
    return mediaType == videoMedia ? std::span<const RecordSlot>(filmSlots) : songSlots;
}

} // namespace velmora
