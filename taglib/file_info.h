#pragma once

#include "image_seam/image.h"

#include <cstdint>

namespace velmora {

/** Bits of _file_info_t::flags. */
namespace file_info_flag {
inline constexpr std::uint32_t title = 0x1;
inline constexpr std::uint32_t artist = 0x2;
inline constexpr std::uint32_t desc = 0x4;
inline constexpr std::uint32_t genre = 0x8;
inline constexpr std::uint32_t year = 0x10;
inline constexpr std::uint32_t picture = 0x20;
inline constexpr std::uint32_t director = 0x40;
inline constexpr std::uint32_t rating = 0x80;
inline constexpr std::uint32_t time = 0x100;
/** Set by a loader whose file carried a tag, and by a successful ID3 store. */
inline constexpr std::uint32_t tag_present = 0x8000;
} // namespace file_info_flag

/** A file's metadata on its way between the media file model and a tag module.

   Loaded: every string is a malloc'ed copy and both objects are owned references; id3_free_file_info
   releases them. Built for storing: everything is borrowed and the record is never freed.

   The three text slots are generic on purpose. Audio: title is the album, desc the song's title. Video:
   artist is the cast, desc the synopsis. */
struct _file_info_t {
    std::uint32_t flags; ///< file_info_flag bits: the valid fields when storing
    char* title;         ///< UTF-8 or the file's own bytes, zero-terminated, as are the other texts
    char* artist;
    char* desc;
    char* genre;
    char* director;
    char* rating;
    std::int32_t year;  ///< 0 means none
    Image* picture;     ///< cover art
    Image* aux_object;  ///< a second object, released with the record; no module fills it
    std::uint64_t time; ///< recording time as a FILETIME
};

/** Whether the flag is set in INFO; it no longer is afterwards. */
[[nodiscard]] bool take_flag(_file_info_t* info, std::uint32_t flag);

/** Frees what a loaded record owns, whatever module filled it, and zeroes the record, so that a second call
   is harmless. Returns 0. */
int id3_free_file_info(_file_info_t* info);

} // namespace velmora
