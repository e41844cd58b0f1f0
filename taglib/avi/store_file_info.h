#pragma once

#include "taglib/file_info.h"

namespace velmora {

/** Writes each field of INFO whose flag is set into the INFO list of the AVI file PATH (file system
   encoding); an empty text, year 0 and no picture remove the field. An INFO list is made where there is none,
   also when no flag is set. Strings and picture stay the caller's. A picture that can't be encoded leaves the
   stored one as it is.

   Each flag is cleared in INFO as its field is dealt with: afterwards `flags` holds only bits that mean
   nothing here. They stay set where the file could not be opened or its header not read.

   The file is edited in place and its media data never moves (docs/avi.md, "Storing"). A list that is not the
   last top-level chunk becomes a "JUNK" chunk of the same size, and the new list goes to the end of the RIFF
   chunk; a list that is last is rewritten where it is. The file never gets shorter: what is left of a longer
   old list stays behind the RIFF chunk.

   Returns 1, or 0 on failure. With a file that can't be opened (errno as open left it), with more than one
   RIFF chunk (errno 78), with a header that can't be read (errno 5) and without memory for a text (errno
   ENOMEM) no byte is changed. When a write fails, errno is the system's, and the RIFF size field is still the
   old one. */
[[nodiscard]] int avi_store_file_info(const char* path, _file_info_t* info);

} // namespace velmora
