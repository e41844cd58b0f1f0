#pragma once

#include "checked_position.h"

#include <array>

namespace velmora {

/** Reads a run of small fields with few system calls: up to AHEAD bytes more than a field needs, and never
   anything at or behind END. Where the file's own position ends up is left to the caller. */
class AsfAheadReader {
public:
    static constexpr std::size_t most_ahead = 4096;

    /** From POSITION, where FILE is, on. AHEAD is at most most_ahead; with 0 each field is one read of its
     * size. */
    AsfAheadReader(FIOFUNCSTRUCT* file, std::int64_t position, std::int64_t end, std::size_t ahead)
        : file_(file), position_(position), end_(end), ahead_(ahead) {}

    /** Where the next field begins. */
    [[nodiscard]] std::int64_t position() const { return position_; }
    /** The bytes in front of END. */
    [[nodiscard]] std::int64_t left() const { return end_ - position_; }

    /** Reads LENGTH zeroed BYTES, of which those behind the file's end stay zero. False when they don't lie
       in front of END, or when a read failed or stopped early. */
    [[nodiscard]] bool read(std::uint8_t* bytes, std::size_t length);

private:
    [[nodiscard]] bool fill();

    FIOFUNCSTRUCT* file_;
    std::int64_t position_;
    std::int64_t end_;
    std::size_t ahead_;
    std::size_t next_ = 0; ///< in the buffer
    std::size_t filled_ = 0;
    std::array<std::uint8_t, most_ahead> buffer_;
};

} // namespace velmora
