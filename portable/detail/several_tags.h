#pragma once

#include "portable/tag_values.h"

/** Files with several tags that say the same, of which one counts first. */
namespace velmora::portable {

/** VALUES, and of MORE what these don't have. */
[[nodiscard]] TagValues filled(TagValues values, const TagValues& more);

/** Sets in EDITS what VALUES have and EDITS leave alone. */
void set_missing(TagEdits& edits, const TagValues& values);

/** Whether EDITS set a field, and don't just delete. */
[[nodiscard]] bool sets_anything(const TagEdits& edits);

} // namespace velmora::portable
