#pragma once

#include "taglib/file_info.h"

namespace velmora {

/** Writes into the ASF file at PATH every field of INFO whose flag is set; a null text, year 0, time 0 or
   no picture removes the field, an empty text leaves its attribute without a value. INFO is only read.
   Returns 1, or 0:

   - the file can't be opened (errno as open left it);
   - its header can't be read or is larger than 0xFFFFFFFF bytes (errno 5, the file unchanged);
   - memory is exhausted (the file unchanged, unless it is the move below that finds none);
   - the media data can't be moved towards the end, which a growing header does first, as when the data has
      less than 65,536 bytes (see asf_move_file: what the failed move copied stays, over the header's end
      too);
   - the header can't be written (it is then partly new);
   - the media data can't be moved towards the start, which a shrinking header does last (the header is
      then the new one);
   - neither could be done for a header that claims more than the file has, and a child of it would begin
      behind the file's end, beyond a padding (the file unchanged);
   - the system reports only when the file is closed that something could not be written.

   The file is edited in place (docs/asf.md, "Storing"). Growth is taken from the padding object when that is
   the header's last child and larger than the growth, whatever it leaves of it; else the data moves, and a
   header without such a padding gets one of 1,024 bytes. A shrinking header gives what it saves to the
   padding, and moves the data back when there is none.

   A header without an Extended Content Description gets none: its Content Description is listed, and
   written, a second time instead, and only the two strings of the Content Description are kept. */
[[nodiscard]] int asf_store_file_info(const char* path, const _file_info_t* info);

/** Removes every attribute that asf_load_file_info reads and empties the Content Description's title and
   author. Results are those of asf_store_file_info. Nothing in the program calls it. */
[[nodiscard]] int asf_remove_file_info(const char* path);

} // namespace velmora
