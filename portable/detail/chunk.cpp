#include "chunk.h"

#include "checked_read.h"
#include "refusals.h"
#include "text.h"

#include <algorithm>
#include <limits>

namespace velmora::portable {

namespace {

bool is_printable(std::uint8_t letter) {
    return letter >= 0x20 && letter != 0x7F;
}

} // namespace

std::string fourcc_name(std::uint32_t fourcc) {
    std::array<std::uint8_t, 4> letters{};
    store_le32(letters.data(), fourcc);
    return utf8_from_latin1(letters);
}

std::optional<Chunk> next_chunk(ReadCursor& cursor, std::endian order) {
    std::array<std::uint8_t, Chunk::header_size + 4> bytes{};
    ReadCursor reader = cursor;
    if (reader.left() < Chunk::header_size) {
        return std::nullopt;
    }
    check_read(reader.read(bytes.data(), Chunk::header_size), "a chunk");
    const std::uint64_t size = order == std::endian::little ? load_le32(&bytes[4]) : load_be32(&bytes[4]);
    if (size > reader.left() || !std::all_of(bytes.begin(), bytes.begin() + 4, is_printable)) {
        return std::nullopt;
    }
    Chunk chunk{load_le32(bytes.data()), 0, {cursor.position(), reader.position() + size}};
    if (chunk.fourcc == fourcc::list && size >= 4) {
        check_read(reader.read(&bytes[Chunk::header_size], 4), "a list");
        chunk.list_type = load_le32(&bytes[Chunk::header_size]);
    }
    // A last chunk may lack its pad byte.
    return cursor.seek(std::min(chunk.end(), cursor.end())) ? std::optional(chunk) : std::nullopt;
}

Bytes chunk_size_field(std::uint64_t size, std::endian order) {
    if (size > std::numeric_limits<std::uint32_t>::max()) {
        refuse_too_large("a chunk of more than 4 GiB");
    }
    Bytes field;
    const auto narrow = static_cast<std::uint32_t>(size);
    if (order == std::endian::little) {
        append_le32(field, narrow);
    } else {
        append_be32(field, narrow);
    }
    return field;
}

Bytes make_chunk(std::uint32_t fourcc, std::span<const std::uint8_t> data, std::endian order) {
    Bytes chunk;
    append_le32(chunk, fourcc);
    append(chunk, chunk_size_field(data.size(), order));
    append(chunk, data);
    chunk.resize(chunk.size() + (chunk.size() & 1));
    return chunk;
}

Bytes junk_chunk(std::uint64_t size) {
    return size == 0 ? Bytes()
                     : make_chunk(fourcc::junk, Bytes(size - Chunk::header_size), std::endian::little);
}

} // namespace velmora::portable
