#pragma once

#include "object.h"

/** The header object (docs/asf.md, "Header object"), the first object of an ASF file and the only one that is
   read or written. */
namespace velmora {

inline constexpr std::uint32_t asf_header_object_fixed_size = 30;

/** The children are records of four kinds, told apart by their GUID: a Content Description, an Extended
   Content Description, a padding object (a bare _asf_object_t), and for every other GUID a raw block: the
   whole object as it lies in the file, which begins with its own object header. One record may be listed
   more than once. */
struct _asf_header_object_t : _asf_object_t {
    std::uint32_t child_count;
    std::uint16_t reserved;
    _asf_object_t** children; ///< child_count owned records in an owned array; null for none
};

/** Appends OBJECT, which HEADER owns from then on, and adds the object's size and 24 to HEADER's size: a
   running value, the true one is computed before a store. Returns 1, or 0 with nothing changed when the
   array can't grow. */
[[nodiscard]] int asf_insert_object(_asf_header_object_t* header, _asf_object_t* object);

/** Appends OBJECT as asf_insert_object does. Returns it, or null when it is null or the array can't grow;
   OBJECT is then freed. */
[[nodiscard]] _asf_object_t* asf_append_object(_asf_header_object_t* header, _asf_object_t* object);

/** The first child with this GUID, still HEADER's own, or null. */
[[nodiscard]] _asf_object_t* asf_find_object(const _asf_header_object_t* header, const GUID& guid);

/** Reads the header object at the current position into HEADER (whose old contents are not freed). Returns
   HEADER, or null when the GUID is another one, a child reaches past the header object's declared size or
   can't be parsed, fewer children are there than announced, memory is exhausted, or the disk fails. HEADER
   then holds the children that were read; asf_free_header_object releases them in every case. The position
   afterwards is of no use.

   Nothing that the file announces is believed: the child array grows with the children, a raw child must
   lie inside the file, and every child must lead on to the next one. So a raw child takes at least its 24
   bytes, and a padding object at least one (one that was reduced below its own header is legal). Nothing in
   the program calls it. */
_asf_header_object_t* asf_read_header_object(FIOFUNCSTRUCT* file, _asf_header_object_t* header);

/** Writes the header object at offset 0: its size field as it stands, then the children in order. Of a
   padding object only the header is written. Returns 1 when every byte was written, else 0 with the file
   written up to there. Nothing in the program calls it. */
[[nodiscard]] int asf_store_header_object(FIOFUNCSTRUCT* file, const _asf_header_object_t* header);

/** The bytes that HEADER takes when it is stored, in 32 bits. The sizes of the content descriptions are
   computed anew and stored in their records; HEADER's own size stays as it is. */
[[nodiscard]] std::uint32_t asf_get_header_object_size(const _asf_header_object_t* header);

/** Frees the children, each once however often it is listed, and their array, and zeroes HEADER, which
   belongs to the caller. */
void asf_free_header_object(_asf_header_object_t* header);

} // namespace velmora
