#include "move_file.h"

#include "../trace.h"
#include "checked_position.h"
#include "owned.h"

#include <algorithm>
#include <unistd.h>

namespace velmora {

namespace {

constexpr std::int64_t small_piece = 65536;
/** A piece larger than this goes through the buffer in several steps. */
constexpr std::int64_t largest_buffer = 1024 * 1024;

std::int64_t piece_size(std::int64_t remaining) {
    return static_cast<std::uint32_t>(remaining) <= small_piece ? small_piece : remaining;
}

/** The transfer buffer of one move. */
class Transfer {
public:
    Transfer(FIOFUNCSTRUCT* file, std::int64_t remaining)
        : file_(file), size_(remaining > small_piece ? largest_buffer : small_piece),
          buffer_(static_cast<std::uint8_t*>(std::malloc(static_cast<std::size_t>(size_)))) {}

    [[nodiscard]] bool ready() const { return buffer_ != nullptr; }

    /** Copies LENGTH bytes from SOURCE to TARGET; the two may overlap. */
    [[nodiscard]] bool copy_piece(std::int64_t source, std::int64_t target, std::int64_t length) {
        for (std::int64_t done = 0; done < length;) {
            const std::int64_t step = std::min(size_, length - done);
            const std::int64_t offset = source < target ? length - done - step : done;
            if (!copy_step(source + offset, target + offset, static_cast<std::size_t>(step))) {
                return false;
            }
            done += step;
        }
        return true;
    }

private:
    [[nodiscard]] bool copy_step(std::int64_t source, std::int64_t target, std::size_t length) {
        if (fio_lseek(file_, source, SEEK_SET) != source ||
            fio_read(file_, buffer_.get(), length) != static_cast<ssize_t>(length)) {
            DebugError("asf_move_file: Error reading file\n");
            return false;
        }
        if (fio_lseek(file_, target, SEEK_SET) != target ||
            fio_write(file_, buffer_.get(), length) != static_cast<ssize_t>(length)) {
            put_back(source, target, length);
            DebugError("asf_move_file: Error writing file\n");
            return false;
        }
        return true;
    }

    /** A write towards the end that stopped on its way, as on a full disk, lies over data that is nowhere
       else by now but in the buffer. With that at its old place again no byte is lost. */
    void put_back(std::int64_t source, std::int64_t target, std::size_t length) {
        if (source < target && target - source < static_cast<std::int64_t>(length) &&
            fio_lseek(file_, target, SEEK_SET) == target) {
            const auto behind = static_cast<std::size_t>(target - source);
            (void)fio_write(file_, buffer_.get() + behind, length - behind);
        }
    }

    FIOFUNCSTRUCT* file_;
    std::int64_t size_;
    AsfOwned<std::uint8_t> buffer_;
};

} // namespace

int asf_move_file(FIOFUNCSTRUCT* file, std::int64_t from, std::int64_t to) {
    DebugInfo("asf_move_file: from %I64x to %I64x\n", from, to);
    const std::int64_t end = fio_lseek(file, 0, SEEK_END);
    if (from < 0 || to < 0 || from > end ||
        asf_position_behind(to, static_cast<std::uint64_t>(end - from)) < 0) {
        return 0;
    }
    const std::int64_t size = end - from;
    Transfer transfer(file, size);
    if (!transfer.ready()) {
        return 0;
    }
    const bool from_the_back = from < to;
    std::int64_t source = from_the_back ? end : from;
    std::int64_t target = from_the_back ? to + size : to;
    std::int64_t remaining = size;
    while (remaining > 0) {
        const std::int64_t piece = piece_size(remaining);
        if (from_the_back) {
            source -= piece;
            target -= piece;
        }
        if (!transfer.copy_piece(source, target, piece)) {
            break;
        }
        if (!from_the_back) {
            source += piece;
            target += piece;
        }
        remaining -= piece;
    }
    if (remaining != 0) {
        return 0;
    }
    // Where the file would be cut if it could be.
    fio_lseek(file, to + size, SEEK_SET);
    (void)fio_write(file, "", 0);
    return 1;
}

} // namespace velmora
