#pragma once

#include "fio.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace velmora {

/** What became of a read. */
enum class [[nodiscard]] ReadStatus{
    whole,  ///< every byte came
    ended,  ///< the file, or what may be read of it, ended first
    failed, ///< bytes that are there could not be read; errno is that of the failed call
};

/** The bytes of a file, or of a block of memory, by their positions. One window serves any number of
   ReadCursors, which are how it is read.

   Invariant: the window holds the file's bytes from start_ to start_ + filled_, just as they were read, and
   nothing else; whatever it does not hold costs a read of the file. A block of memory is a window that holds
   everything there is.

   A read takes more than was asked for where it may run ahead, so that the fields behind it cost no call of
   their own. That is never seen: where such a larger read fails, or brings too little, what was asked for is
   read by itself, and that read decides; after a failure nothing is read ahead any more. So a file whose
   blocks can't be read is read field by field, errno included.

   Nobody else may move in the file between reads, nor write to it (see forget()). One thread at a time. */
class ReadWindow {
public:
    /** Bytes that the window holds. Reads of as many or more go past it. */
    static constexpr std::size_t capacity = 4096;
    /** The last position that a file can have. */
    static constexpr std::uint64_t no_end = INT64_MAX;

    /** Over FILE, which stays the caller's and must stay open. POSITION: where it is, when that is known. */
    explicit ReadWindow(FIOFUNCSTRUCT* file, std::optional<std::uint64_t> position = std::nullopt);
    /** Over BYTES, which stay the caller's. They count from ORIGIN on, as where they were read from a file at
       that position. */
    explicit ReadWindow(std::span<const std::uint8_t> bytes, std::uint64_t origin = 0);
    ReadWindow(const ReadWindow&) = delete;
    ReadWindow& operator=(const ReadWindow&) = delete;

    /** The positions that a cursor may go to: in a file all of them. */
    [[nodiscard]] std::uint64_t begin() const { return file_ ? 0 : start_; }
    [[nodiscard]] std::uint64_t end() const { return file_ ? no_end : start_ + filled_; }

    /** Where the bytes end, or nothing when the system does not tell. A file is asked once, and then stands
       IN_FRONT bytes in front of its end (at the end when it is shorter), where the next read is expected.
       For later calls, and for memory, IN_FRONT means nothing. */
    [[nodiscard]] std::optional<std::uint64_t> size(std::uint64_t in_front = 0);

    /** Takes the bytes from POSITION on into the window, up to its capacity and to END, in one read. Where
       that can't be done nothing is said: reads of them will tell. */
    void look_ahead(std::uint64_t position, std::uint64_t end = no_end);

    /** Reads LENGTH bytes at POSITION into BYTES, of which those that did not come are zeroed, and sets COUNT
       to those that did. May read ahead as far as AHEAD_END. */
    ReadStatus read(std::uint64_t position, void* bytes, std::size_t length, std::uint64_t ahead_end,
                    std::size_t* count);

    /** Whether bytes that are there could not be read so far: some read failed. */
    [[nodiscard]] bool failed() const { return failed_; }

    /** Moves the file itself to POSITION, for callers that go on by its own position. False, with errno from
       lseek(2), when it does not get there. Memory has no position: true. */
    [[nodiscard]] bool settle(std::uint64_t position);

    /** Empties the window, and forgets the file's position and size: for a file that was written to or moved
       in by others. Memory stays as it is. */
    void forget();

private:
    [[nodiscard]] std::size_t take(std::uint64_t position, std::uint8_t* bytes, std::size_t length) const;
    [[nodiscard]] bool fill(std::uint64_t position, std::uint64_t end, std::size_t more_than);
    ReadStatus read_rest(std::uint64_t position, std::uint8_t* bytes, std::size_t length, std::size_t* got);
    [[nodiscard]] ssize_t read_file(std::uint64_t position, std::uint8_t* bytes, std::size_t length);
    [[nodiscard]] ReadStatus why_short(std::uint64_t position);

    FIOFUNCSTRUCT* file_ = nullptr;        ///< null for memory
    const std::uint8_t* memory_ = nullptr; ///< null for a file, whose bytes lie in the buffer
    std::uint64_t start_ = 0;
    std::size_t filled_ = 0;
    std::optional<std::uint64_t> file_position_; ///< nothing: not known
    std::optional<std::uint64_t> size_;
    bool size_asked_ = false;
    bool reads_ahead_ = true;
    bool failed_ = false;
    std::array<std::uint8_t, capacity> buffer_;
};

} // namespace velmora
