#pragma once

#include "taglib/fio.h"
#include "taglib/guid.h"

#include <cstdint>

/** Objects of an ASF file, each of which begins with the same 24 bytes (docs/asf.md, "Objects"). All
   functions work at the file's current position. */
namespace velmora {

inline constexpr std::uint32_t asf_object_header_size = 24;

/** What every object record begins with. */
struct _asf_object_t {
    GUID guid;
    std::uint64_t size; ///< bytes in the file, the object header's 24 included
};

/** A zeroed record (malloc family, for free()), or null when memory is exhausted. */
[[nodiscard]] _asf_object_t* asf_init_object();

/** Reads an object header into OBJECT, or into a new record when OBJECT is null. Returns the record, or
   null when fewer than 16 bytes could be read or the disk failed; OBJECT is then unchanged. A size that
   the file's end cuts off counts as zero where it is missing. Nothing in the program calls it. */
_asf_object_t* asf_read_object(FIOFUNCSTRUCT* file, _asf_object_t* object);

/** Writes OBJECT's header. Returns 1, or 0 when the GUID could not be written whole. Nothing in the program
   calls it. */
[[nodiscard]] int asf_store_object(FIOFUNCSTRUCT* file, const _asf_object_t* object);

/** Reads a padding object's header into OBJECT, or into a new record when OBJECT is null, and seeks behind
   the object, whose body is not read. The size may lie below 24: a padding that was reduced so far is
   still a padding. Returns the record, or null when the header can't be read or the size leads to no file
   position; a new record is freed. Nothing in the program calls it. */
_asf_object_t* asf_read_padding_object(FIOFUNCSTRUCT* file, _asf_object_t* object);

/** Writes a padding object's header and seeks to the object's start plus its size: the body keeps the bytes
   that the file has there. A size below 24 leads back into the header that was just written. Returns 1, or
   0 when the header could not be written whole or the seek fails. Nothing in the program calls it. */
[[nodiscard]] int asf_store_padding_object(FIOFUNCSTRUCT* file, const _asf_object_t* object);

} // namespace velmora
