#include "write_cursor.h"

#include "byte_order.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unistd.h>
#include <utility>

namespace velmora {

template <typename Value, std::size_t Count>
bool WriteCursor::Room<Value, Count>::grow(std::size_t count) {
    const int error = errno;
    const std::size_t room = std::max(count, 2 * count_);
    auto* const moved = static_cast<Value*>(std::realloc(grown_.get(), room * sizeof(Value)));
    if (!moved) {
        errno = error;
        return false;
    }
    if (!grown_) {
        std::copy_n(here_.data(), Count, moved);
    }
    [[maybe_unused]] Value* const freed_by_realloc = grown_.release();
    grown_.reset(moved);
    values_ = moved;
    std::fill(moved + count_, moved + room, Value{});
    count_ = room;
    return true;
}

template <typename Value, typename Store>
void WriteCursor::put_number(Value value, Store store) {
    if (std::uint8_t* const room = add_to_buffer(sizeof value)) {
        store(room, value);
    }
    count_field(sizeof value);
}

void WriteCursor::put_byte(std::uint8_t value) {
    put(&value, sizeof value);
}

void WriteCursor::put_le16(std::uint16_t value) {
    put_number(value, store_le16);
}

void WriteCursor::put_be16(std::uint16_t value) {
    put_number(value, store_be16);
}

void WriteCursor::put_le32(std::uint32_t value) {
    put_number(value, store_le32);
}

void WriteCursor::put_be32(std::uint32_t value) {
    put_number(value, store_be32);
}

void WriteCursor::put_le64(std::uint64_t value) {
    put_number(value, store_le64);
}

void WriteCursor::put(const void* bytes, std::size_t length) {
    if (length == 0) {
        return;
    }
    const auto* const block = static_cast<const std::uint8_t*>(bytes);
    if (length > largest_copy) {
        add_block(block, length);
    } else if (std::uint8_t* const room = add_to_buffer(length)) {
        std::memcpy(room, bytes, length);
    } else {
        add_block(block, length);
        write_pieces(); // nobody keeps the bytes
    }
    count_field(length);
}

bool WriteCursor::commit() {
    write_pieces();
    if (stopped_) {
        errno = *stopped_;
    }
    bytes_written_ = std::exchange(bytes_out_, 0);
    fields_written_ = std::exchange(fields_out_, 0);
    bytes_ = 0;
    fields_ = 0;
    return !std::exchange(stopped_, std::nullopt);
}

/** Room for a field of LENGTH bytes at the buffer's end, or null where there is none even in an empty buffer,
   or no use for it. */
inline std::uint8_t* WriteCursor::add_to_buffer(std::size_t length) {
    if (!reserve_buffer(length) || (!add_to_last_piece(length) && !add_piece(nullptr, length))) {
        write_pieces();
        if (length > std::min(buffer_.count(), 8 * starts_.count()) || !add_piece(nullptr, length)) {
            return nullptr;
        }
    }
    starts_.values()[used_ / 8] |= static_cast<std::uint8_t>(1U << used_ % 8);
    std::uint8_t* const room = buffer_.values() + used_;
    used_ += length;
    return room;
}

inline bool WriteCursor::reserve_buffer(std::size_t length) {
    return buffer_.reserve(used_ + length) && starts_.reserve((used_ + length + 7) / 8);
}

/** Enters the next LENGTH bytes of the buffer as more of the last piece. False where they don't follow it. */
inline bool WriteCursor::add_to_last_piece(std::size_t length) {
    Piece* const last = piece_count_ > 0 ? pieces_.values() + piece_count_ - 1 : nullptr;
    if (!last || last->block || last->position + last->length != position_) {
        return false;
    }
    last->length += length;
    ++collected_fields_;
    return true;
}

/** Enters LENGTH bytes at the position as a piece: those of BLOCK, or the next ones of the buffer. False when
   there is no memory for it. */
bool WriteCursor::add_piece(const std::uint8_t* block, std::size_t length) {
    if (!pieces_.reserve(piece_count_ + 1)) {
        return false;
    }
    pieces_.values()[piece_count_++] = {position_, block, used_, length};
    ++collected_fields_;
    return true;
}

void WriteCursor::add_block(const std::uint8_t* block, std::size_t length) {
    if (!add_piece(block, length)) {
        write_pieces();
        [[maybe_unused]] const bool always_in_an_empty_list = add_piece(block, length);
    }
}

inline void WriteCursor::count_field(std::size_t length) {
    rest_ = nullptr;
    position_ += length;
    bytes_ += length;
    ++fields_;
}

/** Writes what is collected, unless a write has stopped short before, and empties the buffer. */
void WriteCursor::write_pieces() {
    const std::uint64_t before = bytes_out_;
    std::size_t done = 0;
    while (!stopped_ && done < piece_count_) {
        if (write_piece(pieces_.values()[done])) {
            ++done;
        } else {
            stopped_ = errno;
        }
    }
    fields_out_ += stopped_ ? whole_fields_in(bytes_out_ - before) : collected_fields_;
    collected_fields_ = 0;
    std::fill_n(starts_.values(), (used_ + 7) / 8, std::uint8_t{0});
    used_ = 0;
    piece_count_ = 0;
}

bool WriteCursor::move_to(std::uint64_t position) {
    if (file_position_ == position) {
        return true;
    }
    file_position_.reset();
    const auto target = static_cast<std::int64_t>(position);
    if (fio_lseek(file_, target, SEEK_SET) != target) {
        return false;
    }
    file_position_ = position;
    return true;
}

/** A write that ends between two fields is no short one: the next field's own decides. */
bool WriteCursor::write_piece(const Piece& piece) {
    if (!move_to(piece.position)) {
        return false;
    }
    file_position_.reset();
    const std::uint8_t* const bytes = piece.block ? piece.block : buffer_.values() + piece.begin;
    for (std::size_t done = 0; done < piece.length;) {
        const ssize_t count = fio_write(file_, bytes + done, piece.length - done);
        if (count <= 0) {
            if (count == 0) {
                keep_rest(bytes, piece, done);
            }
            return false;
        }
        done += static_cast<std::size_t>(count);
        bytes_out_ += static_cast<std::size_t>(count);
        if (done < piece.length && !begins_field(piece, done)) {
            keep_rest(bytes, piece, done);
            return false;
        }
    }
    file_position_ = piece.position + piece.length;
    return true;
}

/** Keeps in mind what is left, behind DONE bytes of PIECE, of the field in which a write stopped. */
void WriteCursor::keep_rest(const std::uint8_t* bytes, const Piece& piece, std::size_t done) {
    std::size_t end = done + 1;
    while (end < piece.length && !begins_field(piece, end)) {
        ++end;
    }
    rest_ = bytes + done;
    rest_length_ = end - done;
}

void WriteCursor::ask_why_short() {
    if (const std::uint8_t* const rest = std::exchange(rest_, nullptr)) {
        file_position_.reset();
        [[maybe_unused]] const ssize_t known_to_be_short = fio_write(file_, rest, rest_length_);
    }
}

bool WriteCursor::begins_field(const Piece& piece, std::size_t offset) const {
    if (piece.block) {
        return offset == 0;
    }
    const std::size_t at = piece.begin + offset;
    return (starts_.values()[at / 8] >> at % 8 & 1) != 0;
}

/** The fields that lie within the first BYTES bytes of what is collected. */
std::uint64_t WriteCursor::whole_fields_in(std::uint64_t bytes) const {
    std::uint64_t begun = 0;
    for (std::size_t i = 0; i < piece_count_; ++i) {
        const Piece& piece = pieces_.values()[i];
        const auto part = static_cast<std::size_t>(std::min<std::uint64_t>(piece.length, bytes));
        for (std::size_t offset = 0; offset < part && (offset == 0 || !piece.block); ++offset) {
            begun += begins_field(piece, offset) ? 1 : 0;
        }
        bytes -= part;
        if (part < piece.length) {
            return part == 0 || begins_field(piece, part) ? begun : begun - 1;
        }
    }
    return begun;
}

void mark_end(FIOFUNCSTRUCT* file) {
    [[maybe_unused]] const ssize_t nothing_to_lose = fio_write(file, "", 0);
}

} // namespace velmora
