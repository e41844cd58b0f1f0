#pragma once

#include <algorithm>
#include <cstdint>

/** The order in which media data is moved inside its file: the same for all formats. */
namespace velmora {

inline constexpr std::int64_t small_move_piece = 65536;

/** The next piece of a move of which REMAINING bytes are left: 65,536 bytes when the low 32 bits of REMAINING
   are at most that, otherwise all of them. So a remainder below 65,536 bytes is taken with its neighbours. */
[[nodiscard]] constexpr std::int64_t move_piece_size(std::int64_t remaining) {
    return static_cast<std::uint32_t>(remaining) <= small_move_piece ? small_move_piece : remaining;
}

/** Moves SIZE bytes from FROM to TO by MOVE(from, to, size) of one piece after the other, as long as that
   gives true: towards the end of the file from the back, otherwise from the front. Returns whether exactly
   SIZE bytes were moved. */
template <typename Move>
[[nodiscard]] bool move_in_pieces(std::int64_t from, std::int64_t to, std::int64_t size, Move move) {
    const bool from_the_back = from < to;
    std::int64_t at = from_the_back ? size : 0;
    std::int64_t remaining = size;
    while (remaining > 0) {
        const std::int64_t piece = move_piece_size(remaining);
        at -= from_the_back ? piece : 0;
        if (!move(from + at, to + at, piece)) {
            break;
        }
        at += from_the_back ? 0 : piece;
        remaining -= piece;
    }
    return remaining == 0;
}

/** Copies SIZE bytes from FROM to TO by COPY(from, to, size) of steps of at most STEP bytes, as if through
   one buffer that holds them all: in an order that overwrites nothing unread. False where COPY gave false. */
template <typename Copy>
[[nodiscard]] bool copy_in_steps(std::int64_t from, std::int64_t to, std::int64_t size, std::int64_t step,
                                 Copy copy) {
    for (std::int64_t done = 0; done < size;) {
        const std::int64_t length = std::min(step, size - done);
        const std::int64_t at = from < to ? size - done - length : done;
        if (!copy(from + at, to + at, length)) {
            return false;
        }
        done += length;
    }
    return true;
}

} // namespace velmora
