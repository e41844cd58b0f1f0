#pragma once

namespace velmora {

/** Removes the first INFO list of the AVI file PATH (file system encoding). A list that is the last top-level
   chunk is left behind the RIFF chunk, which becomes shorter; any other becomes a "JUNK" chunk of the same
   size. The file keeps its length (docs/avi.md, "Removing").

   Because a file is read by its length and not by its RIFF size, a list that was left behind the RIFF chunk
   is found again by the next load.

   Returns 1, also without an INFO list (nothing is written then); 0 on failure, as avi_store_file_info.
   Nothing in the program calls it. */
[[nodiscard]] int avi_remove_file_info(const char* path);

} // namespace velmora
