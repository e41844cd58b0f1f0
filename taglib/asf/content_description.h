#pragma once

#include "object.h"

/** The Content Description object, five fixed strings (docs/asf.md, "Content Description"). */
namespace velmora {

/** The string buffers are owned (malloc family). */
struct _asf_content_description_t : _asf_object_t {
    std::uint16_t title_length; ///< bytes, as are the other lengths
    std::uint16_t author_length;
    std::uint16_t copyright_length;
    std::uint16_t description_length;
    std::uint16_t rating_length;
    /** The strings lie in the record's own block and are never replaced. So are kept, for their sake of
       memory, the descriptions of a header that nobody looks into: all but the first. */
    bool is_fixed;
    std::uint8_t* title; ///< raw UTF-16LE, maybe without a terminator; null for length 0
    std::uint8_t* author;
    std::uint8_t* copyright;
    std::uint8_t* description;
    std::uint8_t* rating;
};

/** A zeroed record that carries the Content Description GUID, or null when memory is exhausted. */
[[nodiscard]] _asf_content_description_t* asf_init_content_description();

/** Frees the strings and the record. Null is allowed. */
void asf_free_content_description(_asf_content_description_t* cd);

/** The size on disk in bytes, 34 plus the five lengths, which also goes to the log. */
[[nodiscard]] std::uint32_t asf_get_content_description_size(const _asf_content_description_t* cd);
/** 34 plus the five lengths, in bytes and without a line in the log. */
[[nodiscard]] std::uint32_t asf_content_description_bytes(const _asf_content_description_t* cd);

/** Reads the object at the current position into CD (whose old contents are not freed), or into a new
   record when CD is null, and seeks behind it: the object's declared size decides where the next one is,
   not the strings. A string may run past the declared size; where the file ends, missing bytes are zero. A
   string that finds no memory stays absent with length 0. Returns the record, or null when the object
   header can't be read, the disk fails or the size leads to no file position; CD then owns nothing. Nothing
   in the program calls it. */
_asf_content_description_t* asf_read_content_description(FIOFUNCSTRUCT* file, _asf_content_description_t* cd);

/** Writes the object with the size field as it stands. Returns 1, or 0 when the object header could not be
   written. Later failures show in the file's position only. Nothing in the program calls it. */
[[nodiscard]] int asf_store_content_description(FIOFUNCSTRUCT* file, const _asf_content_description_t* cd);

} // namespace velmora
