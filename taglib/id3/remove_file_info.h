#pragma once

#include "taglib/fio.h"

namespace velmora {

/** Goes to the tag appended to the file PATH and writes nothing there (docs/id3.md, "What is deliberately
   not done"). As a file never gets shorter, the tag stays readable; only a file that consists of nothing but
   the tag (a side file) is deleted. Returns 1, also when there is no appended tag; 0, logged, when the file
   can't be opened for writing. Nothing in the program calls it. */
int id3_remove_file_info(const char* path);

/** Goes to the tag appended to the open FILE and writes nothing there; the file keeps its length and is not
   deleted. Returns 1, also when there is no footer; 0, logged, when the footer can't be read or does not lead
   to a header. */
int id3_remove_descriptor_v2(FIOFUNCSTRUCT* file);

} // namespace velmora
