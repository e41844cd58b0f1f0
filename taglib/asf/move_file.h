#pragma once

#include "taglib/fio.h"

#include <cstdint>

namespace velmora {

/** Moves everything from byte FROM to the end of FILE so that it starts at TO, and returns 1. The file
   never gets shorter: after a move towards the start its last (FROM - TO) bytes stay behind as they were.

   The data is moved in pieces: 65,536 bytes while the low 32 bits of what remains are at most 65,536,
   otherwise all that remains at once (through a buffer of bounded size, in an order that overwrites
   nothing unread). So exactly 65,536 bytes and everything above can be moved, and nothing at all can; from
   1 to 65,535 bytes can not, and give 0. A move towards the end has then already copied one piece of
   65,536 bytes, the last ones of the file, if the file has as many.

   Returns 0 also when memory is exhausted, FROM or TO is no position that the data can have, or the file
   can't be read or written, which leaves the data partly moved: every byte of it is at its old place or at
   its new one. */
[[nodiscard]] int asf_move_file(FIOFUNCSTRUCT* file, std::int64_t from, std::int64_t to);

} // namespace velmora
