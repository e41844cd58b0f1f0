#pragma once

#include "ext_content_description.h"

#include "image_seam/image.h"

/** Cover art: the value of the "WM/Picture" attribute, a byte array (docs/asf.md, "Cover picture"). */
namespace velmora {

/** The image in DESCRIPTOR's value, with one reference that belongs to the caller. Null when the value is
   no byte array of at least 5 bytes, its MIME type (at most 255 units with the terminator) or description
   does not end before the value does, the type is not "image/jpeg" or "image/jpg" in any case, the data
   runs past the value, or it is no image. */
[[nodiscard]] Image* asf_load_picture(const _asf_content_descriptor_t* descriptor);

/** Encodes IMAGE as JPEG and makes it the value of ECD's "WM/Picture", which is appended as a byte array
   when there is none; the type of an existing one stays as it is. Returns 1, or 0 with nothing changed
   when there is no image, it can't be encoded, memory is exhausted, or the picture has more than 65,506
   bytes, the most that fits the 16-bit length. */
int asf_store_picture(_asf_ext_content_description_t* ecd, const Image* image);

} // namespace velmora
