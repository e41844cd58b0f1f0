#pragma once

#include "../fio.h"

#include <cstdint>

/** The typed readers and writers report nothing. What they did shows in the file's position, and these
    functions look at it, so that a failing disk is never taken for a field that holds zero. */
namespace velmora {

/** Whether everything up to EXPECTED was read: the position is there, or the file ended on the way (what is
    missing then counts as zero). False when a read failed or stopped early. */
[[nodiscard]] bool asf_read_reached(FIOFUNCSTRUCT* file, std::int64_t expected);

/** Reads LENGTH bytes at START, the file's position, into zeroed BYTES. What lies behind the file's end stays
    zero. False when the read failed or stopped early. */
[[nodiscard]] bool asf_read_zero_padded(FIOFUNCSTRUCT* file, std::int64_t start, std::uint8_t* bytes,
                                        std::size_t length);

/** Whether everything up to EXPECTED was written. */
[[nodiscard]] bool asf_write_reached(FIOFUNCSTRUCT* file, std::int64_t expected);

/** Where the file ends, or -1. The position stays where it is. */
[[nodiscard]] std::int64_t asf_file_end(FIOFUNCSTRUCT* file);

/** START + SIZE as a file position, or -1 where that is none. */
[[nodiscard]] std::int64_t asf_position_behind(std::int64_t start, std::uint64_t size);

} // namespace velmora
