#pragma once

#include "taglib/file_info.h"
#include "taglib/id3/descriptor.h"

#include <array>

namespace velmora {

/** How a field lies in its frame. */
enum class Id3FieldForm {
    text,
    rating, ///< text behind the owner of a private frame
    genre,  ///< text, or an index into the genre list
    year,
    picture,
    time,
};

/** A field of the record and the frame that holds it. */
struct Id3Field {
    Id3FieldForm form;
    std::uint32_t frame;
    std::uint32_t flag;
    char* _file_info_t::*text; ///< null where the record has no text for it
};

/** The fields, in the order in which they are loaded and stored (docs/id3.md, "Frames that are understood").
   The slots' names are those of films: a song's album is the title, and its own title the description. */
inline constexpr std::array<Id3Field, 9> id3_fields{{
    {Id3FieldForm::text, id3_frame_id("TALB"), file_info_flag::title, &_file_info_t::title},
    {Id3FieldForm::text, id3_frame_id("TPE1"), file_info_flag::artist, &_file_info_t::artist},
    {Id3FieldForm::text, id3_frame_id("TIT2"), file_info_flag::desc, &_file_info_t::desc},
    {Id3FieldForm::text, id3_frame_id("TPE3"), file_info_flag::director, &_file_info_t::director},
    {Id3FieldForm::rating, id3_frame_id("PRIV"), file_info_flag::rating, &_file_info_t::rating},
    {Id3FieldForm::genre, id3_frame_id("TCON"), file_info_flag::genre, &_file_info_t::genre},
    {Id3FieldForm::year, id3_frame_id("TYER"), file_info_flag::year, nullptr},
    {Id3FieldForm::picture, id3_frame_id("APIC"), file_info_flag::picture, nullptr},
    {Id3FieldForm::time, id3_frame_id("TDRC"), file_info_flag::time, nullptr},
}};

/** The owner of the rating's private frame. */
inline constexpr const char* id3_rating_owner = "WM/ParentalRating";

} // namespace velmora
