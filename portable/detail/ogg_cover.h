#pragma once

#include "vorbis_comments.h"

#include "portable/tag_values.h"

#include <cstddef>
#include <optional>
#include <vector>

/** The cover of an Ogg file (docs/portable-tags.md, "Vorbis and Opus in Ogg"): among its comments, as a
   picture block of FLAC in base64. */
namespace velmora::portable {

/** The places in COMMENTS of the pictures that are the cover, the one that counts first. */
[[nodiscard]] std::vector<std::size_t> ogg_covers(const VorbisComments& comments);

/** The picture that counts, as it lies in the file; nothing where there is none. */
[[nodiscard]] std::optional<Cover> ogg_cover(const VorbisComments& comments);

/** Puts EDIT, which does not leave the cover alone, into COMMENTS: in the place of the first cover, else at
   the end. A deleted cover takes all of them along. */
void apply_ogg_cover(VorbisComments& comments, const Edit<Cover>& edit);

} // namespace velmora::portable
