#pragma once

#include "item.h"

namespace velmora {

/** Moves the item's bytes (its size field + 8) from its offset to the offset TO; the two ranges may overlap.
   ITEM is not changed.

   The bytes go in pieces. A piece is 65,536 bytes when the low 32 bits of the remainder are at most 65,536,
   otherwise the whole remainder; so a remainder below 65,536 bytes is moved as a full 65,536-byte piece,
   which takes its neighbours along and ends the move as a failure. Towards the end of the file the pieces are
   taken from the back, otherwise from the front. A piece of any size goes through a buffer of 65,536 bytes.

   Returns 1 when the remainder reaches exactly 0; otherwise 0, logged when a transfer came up short. A piece
   that does not lie inside the file is not begun. Nothing in the program calls it. */
[[nodiscard]] int avi_move_file(FIOFUNCSTRUCT* file, const _avi_item_t* item, std::uint64_t to);

} // namespace velmora
