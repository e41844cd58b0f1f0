#include "move_file.h"

#include "../detail/move_pieces.h"

#include "taglib/read_cursor.h"
#include "taglib/trace.h"
#include "taglib/write_cursor.h"

#include <algorithm>
#include <memory>
#include <new>
#include <unistd.h>

namespace velmora {

namespace {

constexpr std::int64_t window_size = 65536;
/** No file reaches it, and the size of an item added to what is below does not overflow. */
constexpr std::uint64_t first_impossible_offset = std::uint64_t{1} << 62;

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
        : file_(file), length_(fio_lseek(file, 0, SEEK_END)),
          window_(new (std::nothrow) std::uint8_t[window_size]) {}

    [[nodiscard]] bool ready() const { return window_ != nullptr; }

    /** Moves COUNT bytes as if through one buffer that holds them all. */
    [[nodiscard]] bool move(std::int64_t from, std::int64_t to, std::int64_t count) {
        if (from < 0 || count > length_ - from) {
            return read_failed();
        }
        const auto copy_step = [this](std::int64_t source, std::int64_t target, std::int64_t length) {
            return copy(static_cast<std::uint64_t>(source), static_cast<std::uint64_t>(target),
                        static_cast<std::size_t>(length));
        };
        if (!copy_in_steps(from, to, count, window_size, copy_step)) {
            return false;
        }
        length_ = std::max(length_, to + count);
        return true;
    }

private:
    [[nodiscard]] bool copy(std::uint64_t from, std::uint64_t to, std::size_t count) {
        ReadWindow source(file_);
        if (ReadCursor(source, from, from + count).read(window_.get(), count) != ReadStatus::whole) {
            return read_failed();
        }
        WriteCursor target(file_, to);
        target.put(window_.get(), count);
        return target.commit() || write_failed();
    }

    FIOFUNCSTRUCT* file_;
    std::int64_t length_;
    std::unique_ptr<std::uint8_t[]> window_;
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
    const bool moved = move_in_pieces(
        static_cast<std::int64_t>(item->offset), static_cast<std::int64_t>(to), std::int64_t{item->size} + 8,
        [&mover](std::int64_t source, std::int64_t target, std::int64_t length) {
            return mover.move(source, target, length);
        });
    return moved ? 1 : 0;
}

} // namespace velmora
