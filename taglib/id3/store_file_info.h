#pragma once

#include "taglib/file_info.h"

namespace velmora {

/** Writes the fields of INFO whose flag bits are set into the ID3v2 tag of the file PATH (made when missing)
   and keeps all other frames. A field without a value (null or empty text, year 0, no image, time 0) removes
   its first frame. Once the file is read, every flag bit that has a frame is cleared, whatever comes of it;
   success sets tag_present. INFO only lends its strings and image. Returns 1, or 0 with the reason logged
   (but for a lack of memory for a field).

   A file that can't be read as far as its tag goes is left as it is: what was not read would be lost. A tag
   that ends with the file, or holds an invalid frame, keeps the frames in front of that place.

   Where the tag goes (docs/id3.md, "Where a tag is written"):

   - A tag with a footer at the file's end, behind media, is rewritten at its place. The file never gets
     shorter: behind a shorter tag the old one's last bytes stay.
   - A tag at the start of a file below 20,000,000 bytes (also one that is all of the file), and the new tag
     of an empty file, are written through a copy of the whole file, made in its folder under a new name
     "VLT.xxxxxx", which then takes the file's place. The copy is opened without being created, so this fails
     unless the unique-name generator leaves a file of that name; the media file is then as it was. It is
     deleted once the copy is complete. When the copy can't be renamed after that, the media stays under the
     copy's name, and this counts as success.
   - Else a new ID3v2.4 tag with a footer is appended; a leading tag in a larger file stays as it is. */
int id3_store_file_info(const char* path, _file_info_t* info);

} // namespace velmora
