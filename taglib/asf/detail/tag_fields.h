#pragma once

#include "taglib/asf/content_description.h"
#include "taglib/asf/content_descriptor.h"
#include "taglib/file_info.h"

#include <array>

/** Which attribute of the Extended Content Description, and which string of the Content Description, carries
   which field of the tag record (docs/asf.md, "Fields"). */
namespace velmora {

enum class AsfFieldKind { text, year, time, picture };

struct AsfField {
    AsfFieldKind kind;
    std::uint32_t flag;
    const char* older_name; ///< the attribute's older name, kept current where a file has it; null for none
    const char* name;
    bool older_is_read_first;
    std::uint16_t type;        ///< asf_value_type, as written
    char* _file_info_t::*text; ///< of a text
    /** The string that is written too, and read where no attribute gives a text; null for none. */
    std::uint8_t* _asf_content_description_t::*string;
    std::uint16_t _asf_content_description_t::*string_length;
};

/** In the order in which they are loaded and stored; it is the order of new attributes in a file. */
inline constexpr std::array<AsfField, 9> asf_fields{{
    {AsfFieldKind::text, file_info_flag::title, "AlbumTitle", "WM/AlbumTitle", false, asf_value_type::unicode,
     &_file_info_t::title, nullptr, nullptr},
    {AsfFieldKind::text, file_info_flag::artist, "AlbumArtist", "WM/AlbumArtist", false,
     asf_value_type::unicode, &_file_info_t::artist, &_asf_content_description_t::author,
     &_asf_content_description_t::author_length},
    {AsfFieldKind::text, file_info_flag::desc, "Description", "WM/Track", true, asf_value_type::unicode,
     &_file_info_t::desc, &_asf_content_description_t::title, &_asf_content_description_t::title_length},
    {AsfFieldKind::text, file_info_flag::genre, "Genre", "WM/Genre", false, asf_value_type::unicode,
     &_file_info_t::genre, nullptr, nullptr},
    {AsfFieldKind::year, file_info_flag::year, "Year", "WM/Year", false, asf_value_type::dword, nullptr,
     nullptr, nullptr},
    {AsfFieldKind::text, file_info_flag::director, nullptr, "WM/Director", false, asf_value_type::unicode,
     &_file_info_t::director, nullptr, nullptr},
    {AsfFieldKind::text, file_info_flag::rating, nullptr, "WM/ParentalRating", false, asf_value_type::unicode,
     &_file_info_t::rating, nullptr, nullptr},
    {AsfFieldKind::time, file_info_flag::time, nullptr, "WM/EncodingTime", false, asf_value_type::qword,
     nullptr, nullptr, nullptr},
    {AsfFieldKind::picture, file_info_flag::picture, nullptr, "WM/Picture", false, asf_value_type::bytearray,
     nullptr, nullptr, nullptr},
}};

} // namespace velmora
