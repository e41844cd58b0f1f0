#pragma once

#include "image_seam/image.h"

/* Nothing in the program calls these functions. */
namespace velmora {

/** An image from a file of any format that the platform reads, owned by the caller, or null. */
[[nodiscard]] Image* Util_LoadJpgFileToBmp(const char* path);

/** Writes IMAGE as a JPEG (compression factor 0.2, progressive), replacing PATH atomically. Reports nothing:
   on failure an existing file is left as it was and no temporary file stays behind. */
void Util_WriteBmpToJpgFile(const Image* image, const char* path);

} // namespace velmora
