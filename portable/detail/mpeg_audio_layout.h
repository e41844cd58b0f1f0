#pragma once

#include "ape_tag.h"
#include "id3v1_tag.h"
#include "id3v2_tag.h"
#include "in_place_tag.h"
#include "tagged_file.h"

#include "taglib/read_cursor.h"

#include <cstdint>
#include <optional>

namespace velmora::portable {

/** Where the tags of an MPEG audio file are, and what they hold (docs/portable-tags.md, "MP3 and MP2"). Each
   may be missing. */
struct MpegAudioLayout {
    std::optional<Id3v2Tag> front;
    Range media; ///< the frames
    /* What is behind the frames, in any order but for the last, which ends where the file does. */
    std::optional<ApeTag> ape;
    bool ape_damaged = false; ///< there is an APE tag that can't be read, which counts as media
    Range lyrics;             ///< Lyrics3, which nobody here reads; empty where there are none
    std::optional<Id3v1Tag> id3v1;
    std::optional<InPlaceTag> appended; ///< the tag that the program writes in place
};

/** Finds the tags in the file of FILE_SIZE bytes, from its ends on, and reads them. Throws a Refusal where a
   tag in front is cut off or damaged, where a tag is larger than 64 MiB, or where the file can't be read. */
[[nodiscard]] MpegAudioLayout read_mpeg_audio_layout(ReadWindow& window, std::uint64_t file_size);

} // namespace velmora::portable
