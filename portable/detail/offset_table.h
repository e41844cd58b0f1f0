#pragma once

#include "byte_appending.h"
#include "tagged_file.h"

#include "taglib/read_cursor.h"

#include <functional>

/** Tables of offsets in a file, read and written a piece at a time: they may be larger than memory should
   be. */
namespace velmora::portable {

/** Offsets that lie at equal distances, numbers with the high byte first. */
struct OffsetTable {
    std::uint64_t position = 0; ///< of the first one
    std::uint64_t count = 0;
    std::uint32_t stride = 4; ///< from one to the next
    std::uint32_t width = 4;  ///< bytes of each: 4 or 8
    /** What they are counted from: the beginning of the file, but for `sidx`, which counts from its own
       end. */
    std::uint64_t origin = 0;

    /** Where it lies, from its first offset, of which there has to be one, to the end of its last. */
    [[nodiscard]] Range bytes() const { return {position, position + (count - 1) * stride + width}; }
};

/** Reads the offsets of a table in order. */
class OffsetReader {
public:
    OffsetReader(const ReadCursor& file, const OffsetTable& table) : cursor_(file), table_(table) {}

    /** The next of them, counted from the beginning of the file. No more than the table's count may be asked
       for. Throws a Refusal where it can't be read. */
    [[nodiscard]] std::uint64_t next();

private:
    void read_piece();

    ReadCursor cursor_;
    OffsetTable table_;
    std::uint64_t read_ = 0; ///< entries that were in the pieces so far
    Bytes piece_;
    std::size_t in_piece_ = 0; ///< where the next one is
};

/** Puts MENDED of each offset, as it stands in the file, in its place. FILE is SIZE bytes long and open for
   reading and writing. Throws a Refusal where it can't be. */
void mend_table(FIOFUNCSTRUCT* file, std::uint64_t size, const OffsetTable& table,
                const std::function<std::uint64_t(std::uint64_t)>& mended);

} // namespace velmora::portable
