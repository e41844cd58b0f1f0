#pragma once

#include "taglib/asf/ext_content_description.h"
#include "taglib/read_cursor.h"

/** Descriptors as they lie in a file, one behind the other in one block (docs/asf.md, "Extended Content
   Description"): a file may hold millions of empty ones, each of which would take ten times its size as a
   record. */
namespace velmora {

/** Walks over the packed descriptors of an object. */
class AsfPackedWalk {
public:
    explicit AsfPackedWalk(const _asf_ext_content_description_t* ecd)
        : at_(ecd->packed), left_(ecd->packed ? ecd->count : 0) {}

    /** Goes on to the next descriptor, the first one to begin with; false behind the last. */
    [[nodiscard]] bool next();
    /** The descriptor: its name and value lie in the block. */
    [[nodiscard]] const _asf_content_descriptor_t& descriptor() const { return descriptor_; }

private:
    const std::uint8_t* at_;
    std::uint16_t left_;
    _asf_content_descriptor_t descriptor_{};
};

/** Reads and traces COUNT descriptors into ECD, which has none. False when one does not end in front of
   CURSOR's end, memory is exhausted or the disk fails; ECD then holds what is to be freed. */
[[nodiscard]] bool asf_read_packed_descriptors(ReadCursor* cursor, _asf_ext_content_description_t* ecd,
                                               std::uint16_t count);

/** Turns the packed descriptors, if ECD has such, into records. False, with ECD as it was, when memory is
   exhausted. */
[[nodiscard]] bool asf_unpack_descriptors(_asf_ext_content_description_t* ecd);

} // namespace velmora
