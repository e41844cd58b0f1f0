#pragma once

#include <cstdint>

namespace velmora {

/** Cuts a border of one colour off a bitmap.

   PIXELS are HEIGHT rows of WIDTH 32-bit words, top to bottom, without padding. A word is four 8-bit lanes;
   two pixels match when no lane differs by more than 37. The border colour is the top left pixel, and the
   other three corners must match it. What is kept is the bounding box of all pixels that do not match.

   Returns a new, packed bitmap of that box, from malloc and for the caller to free, and stores its size in
   WIDTH and HEIGHT. The pixels passed in are never written to. A box that is the whole image is a success
   too.

   Returns null, with WIDTH and HEIGHT unchanged, when PIXELS, WIDTH or HEIGHT is null or a size is 0
   (nothing is printed), when a corner differs ("no border on image"), when every pixel matches, when the box
   is smaller than a sixteenth of the image (32-bit arithmetic, the sixteenth rounded down), and when there is
   no memory for it. An image of 1 x 1 comes back as a copy.

   Prints what it sees to standard output; a failed allocation is told on standard error. */
[[nodiscard]] std::uint32_t* bitmap_trim(const std::uint32_t* pixels, std::uint32_t* width,
                                         std::uint32_t* height);

} // namespace velmora
