#pragma once

#include "taglib/avi/item.h"

namespace velmora {

/** The tree of an AVI file while it is loaded, stored or removed from: reads it, and writes its parts to the
   same file. The file is the caller's. */
class AviTree {
public:
    AviTree() = default;
    ~AviTree();
    AviTree(const AviTree&) = delete;
    AviTree& operator=(const AviTree&) = delete;

    /** Reads the tree of FILE. On failure errno is 78 for a file with more than one RIFF chunk and 5 for any
       other. */
    [[nodiscard]] bool read(FIOFUNCSTRUCT* file);

    /** Reads the tree of FILE, which is to be written. On failure errno is 78 for a file with more than one
       RIFF chunk and 5 for any other; it fails also where a part of the header that the file has could not be
       read, because what is not known would be overwritten. */
    [[nodiscard]] bool read_for_writing(FIOFUNCSTRUCT* file);

    /** The first top-level INFO list, or null. To be asked for again after each insert into the root. */
    [[nodiscard]] _avi_item_t* info_list() const;
    [[nodiscard]] bool is_last(const _avi_item_t* item) const;

    /** Where the RIFF chunk ends, rounded up to even: where the next chunk begins. */
    [[nodiscard]] std::uint64_t end_of_riff() const;

    /** Puts a "JUNK" item of the INFO list's offset and size in front of it and writes its 8-byte header to
       FILE, so that the old list's bytes are the junk's contents. */
    [[nodiscard]] bool write_junk_over_info_list(FIOFUNCSTRUCT* file);

    /** Writes LIST, measured anew, to FILE at its offset. */
    [[nodiscard]] static bool write_info_list(FIOFUNCSTRUCT* file, _avi_item_t* list);

    /** Makes the root's size fit its children and rewrites FILE's first 8 bytes with it. A size that does not
       fit the field becomes 0xFFFFFFFF. */
    [[nodiscard]] bool write_riff_header(FIOFUNCSTRUCT* file);

    _avi_item_t root{};
};

} // namespace velmora
