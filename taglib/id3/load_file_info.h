#pragma once

#include "taglib/file_info.h"

namespace velmora {

/** Reads the ID3 tag of the file PATH into INFO, which is zeroed first: the tag that ends with a footer at
   the file's end, else the one at its start; they are never merged. Returns 1 with tag_present set in the
   flags; the caller releases INFO with id3_free_file_info. Returns 0, with INFO zeroed, when the file can't
   be opened or has no readable tag.

   Which frame fills which slot: docs/id3.md, "Frames that are understood". Texts are the frame's own bytes,
   at most 8,191 of them; what they are encoded in is for the reader of the record to find out. Absent and
   unreadable frames leave their slot empty. */
int id3_load_file_info(const char* path, _file_info_t* info);

} // namespace velmora
