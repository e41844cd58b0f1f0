#pragma once

#include "byte_appending.h"
#include "tagged_file.h"

#include "taglib/avi/fourcc.h"
#include "taglib/read_cursor.h"

#include <bit>
#include <optional>
#include <string>

/** Chunks of RIFF and AIFF files: identifier, size, data, and a pad byte where the size is odd. */
namespace velmora::portable {

/** A chunk as it lies in a file. */
struct Chunk {
    std::uint32_t fourcc = 0;
    /** Of a list, the type that its data begin with; 0 for all others. */
    std::uint32_t list_type = 0;
    Range whole; ///< header and data, without a pad byte

    static constexpr std::uint64_t header_size = 8;
    [[nodiscard]] Range data() const { return {whole.begin + header_size, whole.end}; }
    /** Where the next one begins. */
    [[nodiscard]] std::uint64_t end() const { return whole.end + (whole.size() & 1); }
    [[nodiscard]] bool is_list(std::uint32_t type) const { return list_type == type; }
};

/** A file of more chunks is not edited. */
inline constexpr std::size_t most_chunks = 250'000;

/** The letters of FOURCC as UTF-8, read as Latin-1. */
[[nodiscard]] std::string fourcc_name(std::uint32_t fourcc);

/** The chunk that begins at CURSOR, whose end is that of what it lies in; the cursor goes on to the next one,
   or to its end. Nothing, and the cursor stays, where no chunk that fits begins there. ORDER is that of its
   size. Throws a Refusal where the file can't be read. */
[[nodiscard]] std::optional<Chunk> next_chunk(ReadCursor& cursor, std::endian order);

/** A chunk around DATA, with its pad byte. Throws a Refusal where that is too large. */
[[nodiscard]] Bytes make_chunk(std::uint32_t fourcc, std::span<const std::uint8_t> data, std::endian order);

/** A JUNK chunk of SIZE bytes, its header among them, which are even and at least its header's; nothing for
   none. */
[[nodiscard]] Bytes junk_chunk(std::uint64_t size);

/** SIZE in the four bytes of ORDER. Throws a Refusal where it does not fit. */
[[nodiscard]] Bytes chunk_size_field(std::uint64_t size, std::endian order);

} // namespace velmora::portable
