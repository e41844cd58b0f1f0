#pragma once

#include "item.h"

#include "image_seam/image.h"

/** Cover art in the INFO list (docs/avi.md, "Fields"): an encoded image as the bytes of a sub-chunk, without
   a header of its own. */
namespace velmora {

/** The image that the item's data bytes encode, owned by the caller; null when they are none. */
[[nodiscard]] Image* avi_load_picture(const _avi_item_t* item);

/** Stores IMAGE as a JPEG stream in LIST's sub-chunk FOURCC. Returns 1; 0 when it can't be encoded or memory
   runs out, with LIST unchanged. */
int avi_store_picture(_avi_item_t* list, std::uint32_t fourcc, const Image* image);

} // namespace velmora
