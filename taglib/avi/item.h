#pragma once

#include "fourcc.h"

#include "taglib/fio.h"
#include "taglib/write_cursor.h"

#include <cstdint>

/** The RIFF items of an AVI file (docs/avi.md, "Layout") as a tree in memory: building, searching, measuring
   and writing it. */
namespace velmora {

/** One RIFF chunk. Its parent's child array holds it by value, so a pointer to an item lives only until the
   next insert into or removal from that array. Zeroed, it is an empty chunk that owns nothing.

   A "LIST" or "RIFF" item has children, and its own bytes are never loaded, with one exception: a list found
   inside a list is not taken apart but kept as plain data bytes, and is written back as those bytes
   (avi_has_children tells).

   What an item owns is made and freed by the functions here and in item_data.h, never by malloc and free. */
struct _avi_item_t {
    std::uint32_t fourcc;
    std::uint32_t size; ///< the size field: data bytes; for a list its type and sub-chunks, pad bytes counted
    std::uint64_t offset;     ///< absolute file position of the 8-byte chunk header
    std::uint32_t list_type;  ///< type of a list or of the RIFF form; 0 for a plain chunk
    std::int32_t child_count; ///< items in `children`
    union {
        _avi_item_t* children; ///< of a list, owned; null for none
        std::uint8_t* data;    ///< of any other item, owned, `size` bytes; null when not loaded
    };
};
static_assert(sizeof(_avi_item_t) == 32, "four times the smallest chunk: what a hostile file may cost");

/** The size that a text's length and its terminating zero make up, for avi_set_item_data. */
inline constexpr std::uint32_t avi_text_size = 0xFFFFFFFF;

/** Whether the item's contents are children. False for a list that is kept as data bytes. */
[[nodiscard]] bool avi_has_children(const _avi_item_t* item);

/** Whether bytes of a list that the file has could not be read: the tree must not be written back. */
[[nodiscard]] bool avi_is_incomplete(const _avi_item_t* item);
/** Marks an item whose contents are children, or nothing. */
void avi_mark_incomplete(_avi_item_t* item);

/** The size field that fits the item's contents. Plain chunk: its size field. "LIST" and "RIFF": 4 plus 8 and
   the size field, rounded up to even, of each child; grandchildren don't matter. May exceed 32 bits. */
[[nodiscard]] std::uint64_t avi_sizeof_item(const _avi_item_t* item);

/** Writes the item at the file's position: FOURCC and size field as they stand; then for a list its type and
   its children, each padded with a zero byte to an even size; for any other item its data bytes when it has
   some. A "RIFF" item and an item without data are their 8-byte header only. Returns 1; 0 after a short
   write, which is logged and leaves what was written so far. */
[[nodiscard]] int avi_store_item(FIOFUNCSTRUCT* file, const _avi_item_t* item);
/** Writes the item through CURSOR, at its position, as the bytes that the function above describes, and
   commits; CURSOR is behind the item then. A large item goes to the file in several commits, in its order.
   Returns 1; 0 after a short write, which is logged and leaves what was written so far. */
[[nodiscard]] int avi_store_item(WriteCursor* cursor, const _avi_item_t* item);

/** Inserts a copy of ITEM, whose contents then belong to the tree, in front of the child INDEX; an INDEX
   beyond the children, such as -1 taken as unsigned, appends. Returns the new slot, or null when memory runs
   out (PARENT is then unchanged and ITEM still owns its contents). */
_avi_item_t* avi_insert_item(_avi_item_t* parent, const _avi_item_t* item, std::uint32_t index);

/** Removes and frees the child that CHILD points to. Returns 1, or 0 when it is no child of PARENT. */
int avi_remove_item(_avi_item_t* parent, _avi_item_t* child);

/** Removes the first child with that FOURCC; later ones stay. Returns 1, or 0 when there is none. */
int avi_remove_tag(_avi_item_t* parent, std::uint32_t fourcc);

/** The first child with that FOURCC, or null. */
[[nodiscard]] _avi_item_t* avi_find_item(const _avi_item_t* parent, std::uint32_t fourcc);

/** The first "LIST" child of that type, or null. */
[[nodiscard]] _avi_item_t* avi_find_list_item(const _avi_item_t* parent, std::uint32_t list_type);

/** The index of the child that CHILD points to, or -1. */
[[nodiscard]] std::int32_t avi_get_item_index(const _avi_item_t* parent, const _avi_item_t* child);

/** Moves a child so that its index is INDEX, or the last one when INDEX is larger; the others keep their
   order. Returns 1, or 0 when CHILD is no child of PARENT. Nothing in the program calls it. */
int avi_move_item(_avi_item_t* parent, _avi_item_t* child, std::uint32_t index);

/** Frees what the item owns, children recursively, and zeroes it. The record itself belongs to its holder. */
void avi_free_item(_avi_item_t* item);

/** Frees the tree under ROOT, which becomes an empty item. */
void avi_free_header(_avi_item_t* root);

/** Logs the list's type and one line for each child. */
void avi_list_items(const _avi_item_t* list);

} // namespace velmora
