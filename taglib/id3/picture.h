#pragma once

#include "descriptor.h"

#include "image_seam/image.h"
#include "taglib/guid.h"

/** Cover art in APIC frames and in album art files (docs/id3.md, "Pictures"). */
namespace velmora {

/** The image in an APIC frame, owned by the caller. Null, with the reason logged, for an empty frame, a text
   encoding other than 0, a MIME type other than image/jpeg and image/jpg (in any case), and a frame that ends
   before the picture; null for bytes that are no image. Any picture type will do. */
[[nodiscard]] Image* id3_load_picture(const _id3_frame_t* frame);

/** The image in "AlbumArt_GUID_Large.jpg", or else in "AlbumArt_GUID_Small.jpg", in the folder of the file
   MEDIA_PATH, with the GUID's text as GUIDNAME gives it. Owned by the caller; null when neither file is an
   image. A path without a slash has no folder and is taken as one itself. */
[[nodiscard]] Image* id3_load_albumart(const char* media_path, const GUID& guid);

/** Encodes IMAGE as JPEG and puts it into DESCRIPTOR as its frame ID (see id3_insert_tag), of picture type
   0x10 and without a description. Returns 1; 0 when the image can't be encoded or there is no memory. */
int id3_store_picture(_id3_file_desc_t* descriptor, std::uint32_t id, const Image* image);

} // namespace velmora
