#include "offset_table.h"

#include "box.h"
#include "checked_read.h"
#include "file_transfer.h"

#include <algorithm>

namespace velmora::portable {

namespace {

constexpr std::uint64_t piece_size = 65536;

std::uint64_t offset_at(const std::uint8_t* field, std::uint32_t width) {
    return width == 8 ? load_be64(field) : load_be32(field);
}

void store_offset(std::uint8_t* field, std::uint32_t width, std::uint64_t offset) {
    if (width == 8) {
        store_be32(field, static_cast<std::uint32_t>(offset >> 32));
        field += 4;
    }
    store_be32(field, static_cast<std::uint32_t>(offset));
}

/** Where entries from FIRST on lie, as many as go into a piece; the last one without what follows its
   offset. */
Range piece_of(const OffsetTable& table, std::uint64_t first) {
    const std::uint64_t count = std::min(table.count - first, piece_size / table.stride);
    const std::uint64_t begin = table.position + first * table.stride;
    return {begin, begin + (count - 1) * table.stride + table.width};
}

} // namespace

std::uint64_t OffsetReader::next() {
    if (in_piece_ >= piece_.size()) {
        read_piece();
    }
    const std::uint64_t offset = offset_at(&piece_[in_piece_], table_.width);
    in_piece_ += table_.stride;
    ++read_;
    return table_.origin + offset;
}

void OffsetReader::read_piece() {
    piece_ = read_range(cursor_, piece_of(table_, read_), "a table of offsets");
    in_piece_ = 0;
}

void mend_table(FIOFUNCSTRUCT* file, std::uint64_t size, const OffsetTable& table,
                const std::function<std::uint64_t(std::uint64_t)>& mended) {
    ReadWindow window(file);
    const ReadCursor cursor(window, 0, size);
    std::uint64_t done = 0;
    while (done < table.count) {
        const Range range = piece_of(table, done);
        Bytes piece = read_range(cursor, range, "a table of offsets");
        for (std::size_t at = 0; at < piece.size(); at += table.stride) {
            store_offset(&piece[at], table.width, mended(offset_at(&piece[at], table.width)));
            ++done;
        }
        write_at(file, piece, range.begin);
        window.forget();
    }
}

} // namespace velmora::portable
