#pragma once

#include "content_descriptor.h"
#include "object.h"

#include <cstddef>

/** The Extended Content Description object, a list of named, typed values (docs/asf.md, "Extended Content
   Description"). Names are given in UTF-8 and found as that section says. */
namespace velmora {

struct _asf_ext_content_description_t : _asf_object_t {
    std::uint16_t count;
    std::uint32_t packed_size;               ///< bytes in `packed`
    _asf_content_descriptor_t** descriptors; ///< owned records in an owned array, in file order
    /** Owned: the descriptors as they lie in a file, in place of `descriptors`, which is then null. So are
       kept, for their sake of memory, the lists of a header that nobody looks into: all but the first.
       Whichever function here works on single descriptors turns them into records first. */
    std::uint8_t* packed;
};

/** A zeroed record that carries the Extended Content Description GUID, or null when memory is exhausted. */
[[nodiscard]] _asf_ext_content_description_t* asf_init_ext_content_description();

/** Frees the descriptors, the array and the record. Null is allowed. */
void asf_free_ext_content_description(_asf_ext_content_description_t* ecd);

/** The size on disk in bytes, 26 plus the descriptors' bytes, which also goes to the log. */
[[nodiscard]] std::uint32_t asf_get_ext_content_description_size(const _asf_ext_content_description_t* ecd);
/** 26 plus the descriptors' bytes, without a line in the log. */
[[nodiscard]] std::uint32_t asf_ext_content_description_bytes(const _asf_ext_content_description_t* ecd);

/** Reads the object at the current position into ECD (whose old contents are not freed), or into a new
   record when ECD is null, and seeks behind it. Returns the record, or null when the object header can't
   be read, a descriptor does not end inside the object and the file, memory is exhausted, or the disk
   fails; ECD then owns nothing. Memory and time follow the bytes that are there, whatever the count says.
   Nothing in the program calls it. */
_asf_ext_content_description_t* asf_read_ext_content_description(FIOFUNCSTRUCT* file,
                                                                 _asf_ext_content_description_t* ecd);

/** Writes the object with the size field as it stands. Returns 1, or 0 when the object header could not be
   written. Later failures show in the file's position only. Nothing in the program calls it. */
[[nodiscard]] int asf_store_ext_content_description(FIOFUNCSTRUCT* file,
                                                    const _asf_ext_content_description_t* ecd);

/** Appends DESCRIPTOR, which ECD owns from then on, and adds its bytes to ECD's size. Returns 1, or 0 with
   nothing changed when the array can't grow: the memory is exhausted, or the file's 16-bit count is. */
[[nodiscard]] int asf_insert_content_descriptor(_asf_ext_content_description_t* ecd,
                                                _asf_content_descriptor_t* descriptor);

/** The descriptor called NAME, still ECD's own, or null. */
[[nodiscard]] _asf_content_descriptor_t*
asf_find_content_descriptor(const _asf_ext_content_description_t* ecd, const char* name);

/** Frees the descriptor called NAME and closes the gap. Returns 1, or 0 when there is none. ECD's size
   stays as it is: it is computed anew before a store. */
int asf_remove_content_descriptor(_asf_ext_content_description_t* ecd, const char* name);

/** Writes the value called NAME as text into TEXT, at most CAPACITY bytes (see asf_value_as_text: TEXT is
   zeroed by the caller). Returns the value's length in bytes, also when its type or a number that is too
   short made no text; 0 when there is no such descriptor or it has no value. */
std::uint16_t asf_get_content_descriptor_str(const _asf_ext_content_description_t* ecd, const char* name,
                                             char* text, std::size_t capacity);

/** Gives the descriptor called NAME this type and the value made from TEXT (see asf_store_value), in its
   place in the list; appends one when there is none. Its name is written anew. An empty TEXT leaves it
   without a value. Returns 1, or 0 when none could be appended. */
int asf_set_content_descriptor_str(_asf_ext_content_description_t* ecd, const char* name, std::uint16_t type,
                                   const char* text);

} // namespace velmora
