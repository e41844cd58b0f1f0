#pragma once

#include "mp4_layout.h"
#include "offset_table.h"

/** Where an MP4 or QuickTime file has offsets that count from its beginning (docs/portable-tags.md, "MP4 and
   QuickTime"). */
namespace velmora::portable {

struct OffsetTables {
    std::vector<OffsetTable> tables; ///< in the order of the file
    /** Why nothing in this file may move: something that holds offsets which are not known well enough. Empty
       where it may. */
    std::string immovable;
};

/** All of `stco`, `co64`, `saio`, `tfhd`, `sidx` and `tfra`. Throws a Refusal where one does not fit into its
   box. */
[[nodiscard]] OffsetTables find_offsets(const ReadCursor& file, const Mp4Layout& layout);

} // namespace velmora::portable
