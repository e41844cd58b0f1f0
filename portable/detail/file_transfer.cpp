#include "file_transfer.h"

#include "system_refusal.h"

#include <algorithm>
#include <fcntl.h>
#include <numeric>
#include <unistd.h>

namespace velmora::portable {

namespace {

/** Whether the system says, by errno, that it can't copy between these files itself. */
bool must_be_copied_by_hand() {
    return errno == EXDEV || errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP || errno == EPERM;
}

void copy_by_hand(FIOFUNCSTRUCT* from, const Range& range, FIOFUNCSTRUCT* to, std::uint64_t position) {
    std::vector<std::uint8_t> buffer(std::min<std::uint64_t>(range.size(), transfer_buffer));
    for (std::uint64_t done = 0; done < range.size();) {
        const std::span<std::uint8_t> piece(buffer.data(),
                                            std::min<std::uint64_t>(buffer.size(), range.size() - done));
        read_at(from, piece, range.begin + done);
        write_at(to, piece, position + done);
        done += piece.size();
    }
}

/** Copies up to one piece. Returns the bytes copied; 0 where the system leaves it to others. */
std::uint64_t copy_in_system(FIOFUNCSTRUCT* from, const Range& range, FIOFUNCSTRUCT* to,
                             std::uint64_t position) {
    auto source = static_cast<off_t>(range.begin);
    auto target = static_cast<off_t>(position);
    const ssize_t copied = uninterrupted([&] {
        return ::copy_file_range(from->descriptor, &source, to->descriptor, &target, range.size(), 0);
    });
    if (copied < 0 && !must_be_copied_by_hand()) {
        throw system_refusal();
    }
    return copied < 0 ? 0 : static_cast<std::uint64_t>(copied);
}

} // namespace

std::uint64_t size_of(const std::vector<FileRange>& ranges) {
    return std::accumulate(ranges.begin(), ranges.end(), std::uint64_t{0},
                           [](std::uint64_t sum, const FileRange& part) { return sum + part.range.size(); });
}

void write_at(FIOFUNCSTRUCT* file, std::span<const std::uint8_t> bytes, std::uint64_t position) {
    while (!bytes.empty()) {
        const ssize_t written = uninterrupted([&] {
            return ::pwrite(file->descriptor, bytes.data(), bytes.size(), static_cast<off_t>(position));
        });
        if (written <= 0) {
            errno = written == 0 ? EIO : errno;
            throw system_refusal();
        }
        bytes = bytes.subspan(static_cast<std::size_t>(written));
        position += static_cast<std::uint64_t>(written);
    }
}

void read_at(FIOFUNCSTRUCT* file, std::span<std::uint8_t> bytes, std::uint64_t position) {
    while (!bytes.empty()) {
        const ssize_t got = uninterrupted([&] {
            return ::pread(file->descriptor, bytes.data(), bytes.size(), static_cast<off_t>(position));
        });
        if (got < 0) {
            throw system_refusal();
        }
        if (got == 0) {
            throw Refusal({ReasonCode::changed_meanwhile, 0, {}});
        }
        bytes = bytes.subspan(static_cast<std::size_t>(got));
        position += static_cast<std::uint64_t>(got);
    }
}

void copy_range(FIOFUNCSTRUCT* from, const Range& range, FIOFUNCSTRUCT* to, std::uint64_t position,
                Progress& progress) {
    Range rest = range;
    while (rest.size() > 0) {
        const Range piece{rest.begin, rest.begin + std::min(rest.size(), transfer_piece)};
        std::uint64_t copied = copy_in_system(from, piece, to, position);
        if (copied == 0) {
            copy_by_hand(from, piece, to, position);
            copied = piece.size();
        }
        // The disk begins while the next piece is copied; whether all of it got there is for fsync to say.
        static_cast<void>(::sync_file_range(to->descriptor, static_cast<off_t>(position),
                                            static_cast<off_t>(copied), SYNC_FILE_RANGE_WRITE));
        rest.begin += copied;
        position += copied;
        progress.advance(copied);
    }
}

} // namespace velmora::portable
