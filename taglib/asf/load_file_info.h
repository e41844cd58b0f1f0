#pragma once

#include "taglib/file_info.h"

namespace velmora {

/** Reads the tags of the ASF file at PATH into INFO, whose old contents are not freed. Returns 1 when the
   file's header was read, whether or not it held tags: flags is then 0x8000 where any of the texts, the
   year or the picture is there, else 0 (a time alone does not count). The caller releases INFO with
   id3_free_file_info.

   Returns 0 with INFO zeroed when the file can't be opened (errno as open left it) or its header can't be
   read (errno 5).

   Which attributes are which field, and which of several counts: docs/asf.md, "Fields". A text longer than
   8,191 bytes is cut there. */
[[nodiscard]] int asf_load_file_info(const char* path, _file_info_t* info);

} // namespace velmora
