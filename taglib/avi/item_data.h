#pragma once

#include "item.h"

#include <cstddef>

/** The data bytes of one item. */
namespace velmora {

/** Copies the item's data as text into TEXT: at most the item's size, up to the first zero byte, at most
   CAPACITY - 1 characters. Always terminates (CAPACITY must not be 0) and returns the number of characters; 0
   for an item without data. */
std::size_t avi_load_string(const _avi_item_t* item, char* text, std::size_t capacity);

/** Gives the first child with that FOURCC a copy of SIZE bytes as its data, or appends such an item (offset
   0). SIZE avi_text_size stands for a text: its length and the terminating zero. DATA may be the item's own.
   The list's size field is not touched. Returns 1; 0 when memory runs out, with LIST unchanged. */
int avi_set_item_data(_avi_item_t* list, std::uint32_t fourcc, const void* data, std::uint32_t size);

} // namespace velmora
