#pragma once

#include "taglib/avi/fourcc.h"
#include "taglib/file_info.h"

#include <array>

/** Which sub-chunk of the INFO list carries which field of the tag record (docs/avi.md, "Fields"). */
namespace velmora {

struct AviTextField {
    std::uint32_t fourcc;
    std::uint32_t flag;
    char* _file_info_t::*text;
};

/** The texts, in the order in which they are loaded and stored; the year and the picture come after them.
   IART holds the director and ISTR the artist. */
inline constexpr std::array<AviTextField, 6> avi_text_fields{{
    {make_fourcc("INAM"), file_info_flag::title, &_file_info_t::title},
    {make_fourcc("ISTR"), file_info_flag::artist, &_file_info_t::artist},
    {make_fourcc("ICMT"), file_info_flag::desc, &_file_info_t::desc},
    {make_fourcc("IART"), file_info_flag::director, &_file_info_t::director},
    {make_fourcc("IRTD"), file_info_flag::rating, &_file_info_t::rating},
    {make_fourcc("IGNR"), file_info_flag::genre, &_file_info_t::genre},
}};
inline constexpr std::uint32_t avi_year_fourcc = make_fourcc("ICRD");
inline constexpr std::uint32_t avi_picture_fourcc = make_fourcc("IPIC");

} // namespace velmora
