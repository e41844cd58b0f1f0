#pragma once

#include "../file_info.h"
#include "content_description.h"
#include "ext_content_description.h"

namespace velmora {

/** Puts every field of INFO whose flag is set into the two records, or takes it out where INFO has none
    (null, 0).

        field     content description   attribute, older name, name      type
        title                           "AlbumTitle", "WM/AlbumTitle"    unicode
        artist    author                "AlbumArtist", "WM/AlbumArtist"  unicode
        desc      title                 "Description", "WM/Track"        unicode
        genre                           "Genre", "WM/Genre"              unicode
        year                            "Year", "WM/Year"                dword
        director                        "WM/Director"                    unicode
        rating                          "WM/ParentalRating"              unicode
        time                            "WM/EncodingTime"                qword
        picture                         "WM/Picture"                     byte array

    Of a pair of names the older one is kept current where the file has it; the other one is made only where
    neither is there. A picture that can't be stored leaves the old one, which is no failure. False when
    memory is exhausted. */
[[nodiscard]] bool asf_apply_file_info(const _file_info_t& info, _asf_content_description_t* cd,
                                       _asf_ext_content_description_t* ecd);

} // namespace velmora
