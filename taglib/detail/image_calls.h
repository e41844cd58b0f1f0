#pragma once

#include "image_seam/image.h"

/** The image seam as the tag library calls it. What the desktop throws, for want of memory above all, ends
   here: errno is then ENOMEM. */
namespace velmora {

/** image_from_bytes; also null when memory runs out. */
[[nodiscard]] Image* try_image_from_bytes(const void* bytes, std::size_t size) noexcept;

/** image_from_file; also null when memory runs out. */
[[nodiscard]] Image* try_image_from_file(const char* path) noexcept;

/** What try_image_to_jpeg came to. */
enum class JpegResult { encoded, no_image, no_memory };

/** image_to_jpeg into JPEG, which is empty unless the result is `encoded`. */
[[nodiscard]] JpegResult try_image_to_jpeg(const Image* image, std::vector<std::uint8_t>* jpeg) noexcept;

} // namespace velmora
