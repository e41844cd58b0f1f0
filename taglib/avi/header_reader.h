#pragma once

#include "item.h"

/** Reading an AVI file's chunk headers (docs/avi.md, "Reading"). Media data is not read, but for what a block
   takes along that begins with a chunk's header: less than 4 KiB. Opening costs a seek and a read for each
   place in the file that has headers, and a read for each 4 KiB of the INFO list. */
namespace velmora {

/** The numbers that a caller finds in errno, whatever names they have here. */
inline constexpr int avi_error_unreadable = 5;
inline constexpr int avi_error_several_riffs = 78;

/** Bytes behind the last chunk that are put up with, as they are, outside the RIFF chunk. */
inline constexpr std::int64_t avi_tolerated_tail = 4096;

/** Reads the top level of the file's RIFF chunk into ROOT, which is zeroed first; its children are the
   top-level chunks in file order, without data, but for the first and every other INFO list, whose sub-chunks
   are loaded.

   The walk goes by the file's length, never by the RIFF size field, which may be wrong: it ends at the first
   thing that is no chunk. Up to 4,096 bytes may follow there. Then ROOT's size is the length of the RIFF
   contents as found, by the same count as the field (at most 0xFFFFFFFF), and the result is 1.

   Otherwise the result is 0 and errno is 78 for a file with more than one RIFF chunk, 0 for anything else
   that is no readable AVI file. ROOT then holds what was read so far.

   Where the file has bytes that could not be read, the item they belong to is marked incomplete.

   ROOT is to be freed with avi_free_header in either case. */
[[nodiscard]] int avi_read_header(FIOFUNCSTRUCT* file, _avi_item_t* root);

/** Loads the sub-chunks of LIST with their data; the file's position is the byte after the list type. The
   list ends early at a sub-chunk that is none; what was loaded stays. Data that the file does not have reads
   as zeros; memory is asked for only as far as the file could fill it, give or take a few bytes. A list
   inside the list is loaded as data bytes, with its type. Always returns 1. Nothing in the program calls
   it. */
int avi_load_item_list(FIOFUNCSTRUCT* file, _avi_item_t* list);

} // namespace velmora
