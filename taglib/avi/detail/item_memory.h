#pragma once

#include "taglib/avi/item.h"

/** Where an item's children and data bytes lie. A file may consist of millions of chunks without contents,
   and what is kept of it must stay in proportion: small blocks lie side by side in slabs, and what a block is
   stands in the bytes in front of it. */
namespace velmora {

/** SIZE zeroed bytes for an item's `data`; not null for 0 bytes. Null when memory runs out. */
[[nodiscard]] std::uint8_t* avi_new_data(std::uint32_t size);

/** The item's data bytes, or null for an item that has children or no data. */
[[nodiscard]] const std::uint8_t* avi_data(const _avi_item_t* item);

/** Makes room for one more child. False when memory runs out, with nothing changed. */
[[nodiscard]] bool avi_grow_children(_avi_item_t* item);

/** Puts the child array of ITEM, to which nothing will be added soon, where it takes the least memory. */
void avi_settle_children(_avi_item_t* item);

/** Frees the item's child array or data bytes, not what its children own. */
void avi_free_contents(_avi_item_t* item);

} // namespace velmora
