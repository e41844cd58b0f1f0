#pragma once

#include "image_seam/image.h"

#include <string>
#include <string_view>

namespace velmora::test {

/** Bytes that begin with FF D8 FF are an image; everything else is none. Encoding gives back the very bytes
   that the image was made from, so that a test knows every byte that is stored. */

/** Bytes that are an image. */
inline const std::string fake_jpeg = "\xFF\xD8\xFF\xE0picture";

/** The bytes behind IMAGE. */
[[nodiscard]] std::string fake_image_bytes(const Image* image);
/** References to IMAGE. */
[[nodiscard]] int fake_image_references(const Image* image);
/** Images alive in the process: 0 at the end of a test that leaks none. */
[[nodiscard]] int fake_images_alive();
/** While set, image_to_jpeg gives nothing, as for an image that can't be encoded. */
void fail_fake_image_encoding(bool fail);

} // namespace velmora::test
