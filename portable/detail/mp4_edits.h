#pragma once

#include "mp4_box_change.h"

/** What edits change in the boxes of an MP4 or QuickTime file. */
namespace velmora::portable {

/** EDITS put into the lists of LAYOUT: where a field exists, and always into the first list of `items`, which
   is made where a value needs it. Boxes that are free take up the difference where they can, so that the
   media stay where they are. Throws a Refusal where a value does not fit into this format. */
[[nodiscard]] Mp4Change mp4_change(const Mp4Layout& layout, const TagEdits& edits);

/** All tags removed whole. */
[[nodiscard]] Mp4Change mp4_removal(const Mp4Layout& layout);

} // namespace velmora::portable
