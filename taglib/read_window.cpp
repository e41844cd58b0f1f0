#include "read_window.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace velmora {

ReadWindow::ReadWindow(FIOFUNCSTRUCT* file, std::optional<std::uint64_t> position)
    : file_(file), file_position_(position) {}

ReadWindow::ReadWindow(std::span<const std::uint8_t> bytes, std::uint64_t origin)
    : memory_(bytes.data()), start_(origin), filled_(bytes.size()), size_(origin + bytes.size()),
      size_asked_(true) {}

std::optional<std::uint64_t> ReadWindow::size(std::uint64_t in_front) {
    if (!size_asked_) {
        size_asked_ = true;
        std::int64_t position = fio_lseek(file_, -static_cast<std::int64_t>(in_front), SEEK_END);
        if (position < 0 && in_front > 0 && errno == EINVAL) {
            in_front = 0; // the file is shorter than that
            position = fio_lseek(file_, 0, SEEK_END);
        }
        file_position_.reset();
        if (position >= 0) {
            file_position_ = static_cast<std::uint64_t>(position);
            size_ = *file_position_ + in_front;
        }
    }
    return size_;
}

void ReadWindow::look_ahead(std::uint64_t position, std::uint64_t end) {
    if (file_ && (position < start_ || position - start_ >= filled_)) {
        [[maybe_unused]] const bool reads_will_tell = fill(position, end, 0);
    }
}

ReadStatus ReadWindow::read(std::uint64_t position, void* bytes, std::size_t length, std::uint64_t ahead_end,
                            std::size_t* count) {
    auto* const target = static_cast<std::uint8_t*>(bytes);
    std::size_t got = take(position, target, length);
    if (got == length) {
        *count = got;
        return ReadStatus::whole;
    }
    if (length - got < capacity && fill(position + got, ahead_end, length - got)) {
        got += take(position + got, target + got, length - got);
    }
    ReadStatus status = ReadStatus::whole;
    if (got < length) {
        status = read_rest(position, target, length, &got);
        std::memset(target + got, 0, length - got);
    }
    failed_ |= status == ReadStatus::failed;
    *count = got;
    return status;
}

/** Reads what is missing behind the first *GOT bytes of a field past the window. Where that comes short, the
   field is read by itself, and *GOT and the status are what becomes of that. */
ReadStatus ReadWindow::read_rest(std::uint64_t position, std::uint8_t* bytes, std::size_t length,
                                 std::size_t* got) {
    const int error = errno;
    ssize_t count = read_file(position + *got, bytes + *got, length - *got);
    const std::size_t came = *got + static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    if (*got > 0 && came < length && (count < 0 || why_short(position + came) == ReadStatus::failed)) {
        errno = error;
        *got = 0;
        count = read_file(position, bytes, length);
    }
    *got += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
    if (*got == length) {
        return ReadStatus::whole;
    }
    return count < 0 ? ReadStatus::failed : why_short(position + *got);
}

bool ReadWindow::settle(std::uint64_t position) {
    if (!file_ || file_position_ == position) {
        return true;
    }
    file_position_.reset();
    const auto wanted = static_cast<std::int64_t>(position);
    if (position > no_end) {
        errno = EINVAL;
        return false;
    }
    if (fio_lseek(file_, wanted, SEEK_SET) != wanted) {
        return false;
    }
    file_position_ = position;
    return true;
}

void ReadWindow::forget() {
    if (file_) {
        filled_ = 0;
        file_position_.reset();
        size_.reset();
        size_asked_ = false;
    }
}

/** Copies what the window holds of the LENGTH bytes at POSITION, from their beginning on; returns how many
   these are. */
inline std::size_t ReadWindow::take(std::uint64_t position, std::uint8_t* bytes, std::size_t length) const {
    if (length == 0 || position < start_ || position - start_ >= filled_) {
        return 0;
    }
    const auto skipped = static_cast<std::size_t>(position - start_);
    const std::size_t count = std::min(length, filled_ - skipped);
    std::memcpy(bytes, (file_ ? buffer_.data() : memory_) + skipped, count);
    return count;
}

/** Reads the window anew from POSITION on, where more than MORE_THAN bytes may be read. False when nothing
   came; errno is then as it was. */
bool ReadWindow::fill(std::uint64_t position, std::uint64_t end, std::size_t more_than) {
    end = std::min(end, size_.value_or(no_end));
    if (!file_ || !reads_ahead_ || position >= end || end - position <= more_than) {
        return false;
    }
    const int error = errno;
    const auto length = static_cast<std::size_t>(std::min<std::uint64_t>(capacity, end - position));
    start_ = position;
    filled_ = 0;
    const ssize_t count = read_file(position, buffer_.data(), length);
    if (count < 0) {
        reads_ahead_ = false;
        errno = error;
    }
    filled_ = count > 0 ? static_cast<std::size_t>(count) : 0;
    return filled_ > 0;
}

/** One read of the file, at POSITION; as read(2), and nothing where the file is known to end. */
ssize_t ReadWindow::read_file(std::uint64_t position, std::uint8_t* bytes, std::size_t length) {
    if (!file_ || (size_ && position >= *size_)) {
        return 0;
    }
    if (!settle(position)) {
        return -1;
    }
    const ssize_t count = fio_read(file_, bytes, length);
    file_position_.reset();
    if (count >= 0) {
        file_position_ = position + static_cast<std::uint64_t>(count);
    }
    return count;
}

/** Why a read stopped at POSITION although none failed. Leaves errno as it is. */
ReadStatus ReadWindow::why_short(std::uint64_t position) {
    const int error = errno;
    const std::optional<std::uint64_t> end = size();
    errno = error;
    return end && position >= *end ? ReadStatus::ended : ReadStatus::failed;
}

} // namespace velmora
