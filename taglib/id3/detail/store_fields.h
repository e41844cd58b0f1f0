#pragma once

#include "taglib/file_info.h"
#include "taglib/id3/descriptor.h"

namespace velmora {

/** Puts the fields of INFO whose flag bits are set into DESCRIPTOR's frames: one with a value replaces its
   first frame or appends it, one without removes its first frame (docs/id3.md, "Frames that are
   understood"). The bits are cleared in INFO, whatever comes of it. Texts are written as they are under
   encoding byte 0, up to 8,191 bytes of them (8,192 of the rating). A picture that can't be encoded leaves
   its frame as it was. Returns 1, or 0 when there is no memory. */
[[nodiscard]] int id3_store_fields(_id3_file_desc_t* descriptor, _file_info_t* info);

} // namespace velmora
