#pragma once

#include "descriptor.h"

#include "taglib/read_window.h"

/** Finding and reading an ID3v2 tag (docs/id3.md, "Where a tag is"). With AT_END set the tag is looked for
   through its footer in the file's last ten bytes, else at offset 0. Version 2 tags pass the version test but
   are read with the ten-byte frame headers of their successors. Unsynchronisation, extended headers,
   compression and the like are not interpreted. The file position is undefined afterwards. */
namespace velmora {

/** Tags larger than this many bytes are not read. */
inline constexpr std::uint32_t id3_largest_tag = 0x40000;

/** The file offset of a tag's header (0 is one), or -1. Logs only what can't be read, and a footer that
   points in front of the file. The program calls the one for a window alone. */
[[nodiscard]] std::int64_t id3_is_present_v2(FIOFUNCSTRUCT* file, bool at_end);
[[nodiscard]] std::int64_t id3_is_present_v2(ReadWindow& window, bool at_end);

/** Reads a tag into the zeroed DESCRIPTOR. Returns the file offset of its header (0 is one), or -1, with
   DESCRIPTOR still zeroed and the reason logged (but for a file that just has no footer). A bad frame ends
   the reading but does not fail it: the frames in front of it are kept, and what follows the bad frame's
   header counts as padding. The caller frees DESCRIPTOR. Nothing in the program calls it. */
[[nodiscard]] std::int64_t id3_load_descriptor_v2(FIOFUNCSTRUCT* file, _id3_file_desc_t* descriptor,
                                                  bool at_end);

/** What id3_read_tag found. */
struct Id3TagReading {
    std::int64_t offset = -1; ///< as id3_load_descriptor_v2 returns it
    /** Whether the file may hold a tag or frames that were not read: a call failed or gave fewer bytes than
       the file has, or memory ran out. A tag rewritten from such a reading would lose them. */
    bool failed = false;
};

/** id3_load_descriptor_v2 through a window that also serves other readings of the file. */
[[nodiscard]] Id3TagReading id3_read_tag(ReadWindow& window, _id3_file_desc_t* descriptor, bool at_end);

} // namespace velmora
