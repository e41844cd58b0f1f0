#pragma once

#include "mp4_offset_search.h"
#include "splices.h"

/** Offsets in an MP4 or QuickTime file that count from its beginning, which have to follow the media when
   these move. */
namespace velmora::portable {

/** Throws a Refusal where an offset points into one of GONE, bytes that are not media and may be made anew,
   or, when SPLICES move it, where it lies outside of the file or does not fit into its field afterwards. */
void check_offsets(const ReadCursor& file, const Mp4Layout& layout, const OffsetTables& offsets,
                   const Splices& splices, const std::vector<Range>& gone);

/** Mends the offsets of TABLES in FILE, the new file, where those of the old one still stand. Throws a
   Refusal where it can't be read or written. */
void mend_offsets(FIOFUNCSTRUCT* file, std::uint64_t size, const std::vector<OffsetTable>& tables,
                  const Splices& splices);

/** Throws a Refusal unless each offset of the new file points to the same place of the same box as in the old
   one. Boxes that are free don't count. */
void compare_offsets(const ReadCursor& old_file, const Mp4Layout& old_layout, const ReadCursor& new_file,
                     const Mp4Layout& new_layout);

} // namespace velmora::portable
