#pragma once

#include "byte_appending.h"
#include "tagged_file.h"

/** A file as the old one with changes: for containers in which a tag lies between boxes or chunks that
   stay. */
namespace velmora::portable {

/** Replacements of parts of a file, which don't overlap. Positions are those of the old file. */
class Splices {
public:
    /** Puts BYTES where OLD is. An empty range inserts in front of the byte at its position; of several
        insertions at one position the first comes first. */
    void replace(Range old, Bytes bytes);

    [[nodiscard]] bool empty() const { return splices_.empty(); }
    /** Bytes that the new file has more, or less, than the old one. */
    [[nodiscard]] std::int64_t growth() const;
    /** Where the byte at POSITION stands in the new file. It must not be one that is replaced. */
    [[nodiscard]] std::uint64_t moved(std::uint64_t position) const;
    /** The new file, where the old one has SIZE bytes. */
    [[nodiscard]] std::vector<Segment> segments(std::uint64_t size) const;

private:
    struct Splice {
        Range old;
        Bytes bytes;
        std::int64_t growth_to_here; ///< of this one and all in front of it
    };

    std::vector<Splice> splices_; ///< in the order of the file
};

/** What is left of a file of SIZE bytes without the ranges of LEFT_OUT, in any order; these may overlap. */
[[nodiscard]] std::vector<Range> ranges_without(std::vector<Range> left_out, std::uint64_t size);

} // namespace velmora::portable
