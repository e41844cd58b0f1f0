#pragma once

#include "asf_fields.h"

namespace velmora::portable {

/** Puts EDITS into LISTS; lists that are not there are added. A set value takes every place that had the
   field's value, and the other values of the field go; a deleted one goes everywhere. A set cover takes the
   place of the first one alone. Throws a Refusal where a value is larger than the format takes. */
void apply_asf_edits(AsfLists& lists, const TagEdits& edits);

/** Takes out every attribute that speaks of the whole file. Those of streams are no tag and stay. */
void remove_asf_attributes(AsfLists& lists);

} // namespace velmora::portable
