#pragma once

#include "progress.h"
#include "tagged_file.h"

#include <cstdint>
#include <span>

/** Bytes into a file and from one to another, whatever the system does in pieces. All throw a Refusal where
   it fails. */
namespace velmora::portable {

/** Work is done in pieces of at most this many bytes, between which it can be cancelled. */
inline constexpr std::uint64_t transfer_piece = 8UL * 1024 * 1024;

/** What passes through the program goes by buffers of at most this many bytes. */
inline constexpr std::size_t transfer_buffer = 64UL * 1024;

/** A range of one of several files. */
struct FileRange {
    FIOFUNCSTRUCT* file = nullptr;
    Range range;
};

/** The bytes of all RANGES. */
[[nodiscard]] std::uint64_t size_of(const std::vector<FileRange>& ranges);

/** Writes BYTES at POSITION. */
void write_at(FIOFUNCSTRUCT* file, std::span<const std::uint8_t> bytes, std::uint64_t position);

/** Copies RANGE of FROM to POSITION of TO, inside the system where it can do that. What FROM does not have
   any more is `changed_meanwhile`. */
void copy_range(FIOFUNCSTRUCT* from, const Range& range, FIOFUNCSTRUCT* to, std::uint64_t position,
                Progress& progress);

/** Reads the BYTES at POSITION. What is not there is `changed_meanwhile`. */
void read_at(FIOFUNCSTRUCT* file, std::span<std::uint8_t> bytes, std::uint64_t position);

} // namespace velmora::portable
