#include "move_file.h"

#include "../trace.h"

#include <algorithm>
#include <memory>
#include <new>
#include <unistd.h>

namespace velmora {

namespace {

constexpr std::int64_t window_size = 65536;
/** No file reaches it, and the size of an item added to what is below does not overflow. */
constexpr std::uint64_t first_impossible_offset = std::uint64_t{1} << 62;

std::int64_t piece_size(std::int64_t remaining) {
    return static_cast<std::uint32_t>(remaining) <= window_size ? window_size : remaining;
}

bool read_failed() {
    DebugError("avi_move_file: Error reading file\n");
    return false;
}

bool write_failed() {
    DebugError("avi_move_file: Error writing file\n");
    return false;
}

class Mover {
public:
    explicit Mover(FIOFUNCSTRUCT* file)
        : file_(file), length_(fio_lseek(file, 0, SEEK_END)), window_(new (std::nothrow) char[window_size]) {}

    [[nodiscard]] bool ready() const { return window_ != nullptr; }

    /** Moves COUNT bytes as if through one buffer that holds them all. */
    bool move(std::int64_t from, std::int64_t to, std::int64_t count) {
        if (from < 0 || count > length_ - from) {
            return read_failed();
        }
        for (std::int64_t done = 0; done < count;) {
            const std::int64_t part = std::min(window_size, count - done);
            const std::int64_t start = from < to ? count - done - part : done;
            if (!copy(from + start, to + start, part)) {
                return false;
            }
            done += part;
        }
        length_ = std::max(length_, to + count);
        return true;
    }

private:
    bool copy(std::int64_t from, std::int64_t to, std::int64_t count) {
        const auto bytes = static_cast<std::size_t>(count);
        if (fio_lseek(file_, from, SEEK_SET) != from || fio_read(file_, window_.get(), bytes) != count) {
            return read_failed();
        }
        if (fio_lseek(file_, to, SEEK_SET) != to || fio_write(file_, window_.get(), bytes) != count) {
            return write_failed();
        }
        return true;
    }

    FIOFUNCSTRUCT* file_;
    std::int64_t length_;
    std::unique_ptr<char[]> window_;
};

} // namespace

int avi_move_file(FIOFUNCSTRUCT* file, const _avi_item_t* item, std::uint64_t to) {
    Mover mover(file);
    if (!mover.ready()) {
        return 0;
    }
    if (item->offset >= first_impossible_offset) {
        return read_failed();
    }
    if (to >= first_impossible_offset) {
        return write_failed();
    }
    const auto target = static_cast<std::int64_t>(to);
    const auto origin = static_cast<std::int64_t>(item->offset);
    const bool from_the_back = origin < target;
    std::int64_t remaining = std::int64_t{item->size} + 8;
    std::int64_t moved =
        from_the_back ? remaining : 0; // where in the item the next piece starts or, from the back, ends
    while (remaining > 0) {
        const std::int64_t piece = piece_size(remaining);
        moved -= from_the_back ? piece : 0;
        if (!mover.move(origin + moved, target + moved, piece)) {
            break;
        }
        moved += from_the_back ? 0 : piece;
        remaining -= piece;
    }
    return remaining == 0 ? 1 : 0;
}

} // namespace velmora
