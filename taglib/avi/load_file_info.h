#pragma once

#include "taglib/file_info.h"

namespace velmora {

/** Fills INFO, which is zeroed first, from the INFO list of the AVI file PATH (file system encoding); release
   it with id3_free_file_info. Which sub-chunk is which field: docs/avi.md, "Fields". Texts are the file's
   bytes up to the first zero, at most 8,191 of them. `time` stays 0.

   Returns 1 when the file's header was read: with 0x8000 in `flags` when there is an INFO list, an empty one
   included, and with 0 in `flags` when there is none. Returns 0 with INFO zeroed when the file can't be
   opened (errno as open left it), when it has more than one RIFF chunk (errno 78) and when its header can't
   be read (errno 5). */
[[nodiscard]] int avi_load_file_info(const char* path, _file_info_t* info);

} // namespace velmora
