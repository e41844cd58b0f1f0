#include "move_file.h"

#include "../detail/move_pieces.h"
#include "detail/cursor_readers.h"
#include "detail/owned.h"

#include "taglib/trace.h"
#include "taglib/write_cursor.h"

#include <algorithm>
#include <unistd.h>

namespace velmora {

namespace {

/** A piece larger than this goes through the buffer in several steps. */
constexpr std::int64_t largest_buffer = 1024L * 1024;

/** The transfer buffer of one move. */
class Transfer {
public:
    Transfer(FIOFUNCSTRUCT* file, std::int64_t remaining)
        : file_(file), size_(remaining > small_move_piece ? largest_buffer : small_move_piece),
          buffer_(static_cast<std::uint8_t*>(std::malloc(static_cast<std::size_t>(size_)))) {}

    [[nodiscard]] bool ready() const { return buffer_ != nullptr; }

    /** Copies LENGTH bytes from SOURCE to TARGET; the two may overlap. */
    [[nodiscard]] bool copy_piece(std::int64_t source, std::int64_t target, std::int64_t length) {
        return copy_in_steps(source, target, length, size_, [this](auto from, auto to, auto count) {
            return copy_step(from, to, static_cast<std::size_t>(count));
        });
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
            [[maybe_unused]] const ssize_t best_effort =
                fio_write(file_, buffer_.get() + behind, length - behind);
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
    const auto copy_piece = [&transfer](std::int64_t source, std::int64_t target, std::int64_t length) {
        return transfer.copy_piece(source, target, length);
    };
    if (!move_in_pieces(from, to, size, copy_piece)) {
        return 0;
    }
    // Where the file would be cut if it could be.
    fio_lseek(file, to + size, SEEK_SET);
    mark_end(file);
    return 1;
}

} // namespace velmora
