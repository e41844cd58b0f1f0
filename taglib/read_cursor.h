#pragma once

#include "read_window.h"

namespace velmora {

/** A place in a ReadWindow from which its bytes are read in order. Copying a cursor is cheap and makes a
   second place in the same window; all of them read the same bytes.

   Invariant: begin() <= position() <= end(). No read, seek or slice gets past end(), so a slice can't
   outgrow the cursor that it was cut from. Positions are absolute: those of the file, in 64 bits.

   A read of LENGTH bytes advances by those that came. Where fewer came, the rest of the target is zero and
   the status says why: with `ended` what is missing lies behind end() or the file, with `failed` the medium
   did not give it. */
class ReadCursor {
public:
    /** Over all of WINDOW, which must outlive the cursor and its slices. For a file end() is no_end: it does
       not cost a call to find out where the file itself ends. */
    explicit ReadCursor(ReadWindow& window) : ReadCursor(window, window.begin(), window.end()) {}
    /** Over WINDOW from BEGIN up to END (BEGIN where END is less). Reads run ahead up to END. */
    ReadCursor(ReadWindow& window, std::uint64_t begin, std::uint64_t end)
        : window_(&window), begin_(begin), position_(begin), end_(end < begin ? begin : end),
          ahead_end_(end_) {}

    [[nodiscard]] std::uint64_t begin() const { return begin_; }
    [[nodiscard]] std::uint64_t position() const { return position_; }
    [[nodiscard]] std::uint64_t end() const { return end_; }
    /** Bytes from begin() to the position. */
    [[nodiscard]] std::uint64_t offset() const { return position_ - begin_; }
    /** Bytes from the position to end(): sizes that a file claims are held against this. */
    [[nodiscard]] std::uint64_t left() const { return end_ - position_; }

    /** Where reads stop running ahead: at first end() of the cursor that the slices were cut from. For those
       who know that what follows is none of their business. Nothing in the program calls it. */
    void set_ahead_end(std::uint64_t position) { ahead_end_ = position; }

    /** Goes to POSITION. False, and nothing is moved, when that is not within begin() and end(). */
    [[nodiscard]] bool seek(std::uint64_t position);
    /** Goes LENGTH bytes on. False, and nothing is moved, when fewer are left. */
    [[nodiscard]] bool skip(std::uint64_t length);

    /** A cursor over the next LENGTH bytes, or over those that are left when these are fewer. This one stays
       where it is. */
    [[nodiscard]] ReadCursor slice(std::uint64_t length) const;

    /** Reads a block of LENGTH bytes into BYTES. */
    ReadStatus read(void* bytes, std::size_t length);

    /* One number each; the name gives its width and the order of its bytes. Nothing in the program calls
       read_be16. */
    ReadStatus read_byte(std::uint8_t* value);
    ReadStatus read_le16(std::uint16_t* value);
    ReadStatus read_be16(std::uint16_t* value);
    /** Three bytes, in the low 24 bits. */
    ReadStatus read_be24(std::uint32_t* value);
    ReadStatus read_le32(std::uint32_t* value);
    ReadStatus read_be32(std::uint32_t* value);
    ReadStatus read_le64(std::uint64_t* value);

    /** Moves the file itself to the position; see ReadWindow::settle. */
    [[nodiscard]] bool settle() { return window_->settle(position_); }
    [[nodiscard]] ReadWindow& window() const { return *window_; }

private:
    ReadWindow* window_;
    std::uint64_t begin_;
    std::uint64_t position_;
    std::uint64_t end_;
    std::uint64_t ahead_end_;
};

} // namespace velmora
