#pragma once

#include "portable/media_kind.h"
#include "portable/tag_values.h"

namespace velmora::portable {

/** EDITS as a save takes them: an empty text, no bytes of a cover and a year 0 are deleted, a text ends at
   its first zero and is UTF-8. Throws a Refusal for a field that files of that media don't have, and for a
   year that is not one of four digits. */
[[nodiscard]] TagEdits valid_edits(const TagEdits& edits, Media media);

} // namespace velmora::portable
