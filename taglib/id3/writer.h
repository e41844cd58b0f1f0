#pragma once

#include "descriptor.h"

#include "taglib/fio.h"

#include <cstdint>

namespace velmora {

/** Writes the tag at the current position: header, frames, padding, and a footer when the header flags ask
   for one (docs/id3.md, "Header and footer"). The padding is skipped, not written, so what lies there stays.
   Sets DESCRIPTOR's size to that of the written tag. Returns 1, with the position behind the tag; 0 with
   what was written so far left in the file, logged when it was a write that failed (a seek over the padding
   fails silently). Nothing in the program calls it. */
[[nodiscard]] int id3_store_descriptor_v2(FIOFUNCSTRUCT* file, _id3_file_desc_t* descriptor);
/** Writes the tag as id3_store_descriptor_v2 does, but at POSITION, in bytes from the start of the file.
   False where that returns 0. */
[[nodiscard]] bool id3_store_descriptor_at(FIOFUNCSTRUCT* file, std::int64_t position,
                                           _id3_file_desc_t* descriptor);

/** Copies SOURCE, from its current position to its end, onto TARGET. Returns 1, or 0, not logged, on a read
   error or a short write. */
[[nodiscard]] int id3_append_file(FIOFUNCSTRUCT* target, FIOFUNCSTRUCT* source);

} // namespace velmora
