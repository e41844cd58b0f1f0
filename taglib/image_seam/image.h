#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/** The one thing that the tag library asks of the desktop: images. It sees them as an opaque,
   reference-counted object. The functions below are implemented by the program's platform folder, and by a
   small stand-in in tests. */
namespace velmora {

struct Image;

/** Adds a reference to IMAGE (null is allowed) and returns it. */
Image* image_retain(Image* image);

/** Gives a reference back; the last one frees the image. Null is allowed. */
void image_release(Image* image);

/** An image made from SIZE encoded bytes (JPEG or any other format that the platform reads; the bytes are
   copied), with one reference that belongs to the caller. Null when the bytes are no image. Pixels may be
   decoded later. */
[[nodiscard]] Image* image_from_bytes(const void* bytes, std::size_t size);

/** An image made from the encoded bytes of a file, with one reference that belongs to the caller. PATH is in
   the file system's encoding. Null when the file can't be read or is no image. */
[[nodiscard]] Image* image_from_file(const char* path);

/** IMAGE as a JPEG stream: compression factor 0.2 (quality 20 of 100), progressive, transparency flattened
   onto white. Empty when the image can't be decoded or encoded. */
[[nodiscard]] std::vector<std::uint8_t> image_to_jpeg(const Image* image);

} // namespace velmora
