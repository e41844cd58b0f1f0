#include "write_cursor.h"

#include "byte_order.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace velmora {

namespace {

/** Makes ARRAY hold COUNT values; false, with ARRAY as it was, when there is no memory. */
template <typename Value, typename Deleter>
bool resize(std::unique_ptr<Value, Deleter>& array, std::size_t count) {
    void* const moved = std::realloc(array.get(), count * sizeof(Value));
    if (!moved) {
        return false;
    }
    (void)array.release();
    array.reset(static_cast<Value*>(moved));
    return true;
}

} // namespace

template <typename Value, typename Store>
void WriteCursor::put_number(Value value, Store store) {
    if (std::uint8_t* const room = add_to_buffer(sizeof value)) {
        store(room, value);
    }
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
    if (length > largest_copy) {
        out_of_memory_ |= !add_piece(static_cast<const std::uint8_t*>(bytes), length);
        count_field(length);
    } else if (std::uint8_t* const room = add_to_buffer(length)) {
        std::memcpy(room, bytes, length);
    }
}

bool WriteCursor::commit() {
    bytes_written_ = 0;
    fields_written_ = 0;
    bool whole = !out_of_memory_;
    if (whole) {
        for (std::size_t i = 0; whole && i < piece_count_; ++i) {
            whole = write_piece(pieces_.get()[i]);
        }
        fields_written_ = whole ? fields_ : whole_fields_in(bytes_written_);
    } else {
        errno = ENOMEM;
    }
    clear();
    return whole;
}

/** Room for a field of LENGTH bytes at the buffer's end, or null when memory ran out. */
std::uint8_t* WriteCursor::add_to_buffer(std::size_t length) {
    if (out_of_memory_ || !reserve_buffer(length) || !add_piece(nullptr, length)) {
        out_of_memory_ = true;
        count_field(length);
        return nullptr;
    }
    starts_.get()[used_ / 8] |= static_cast<std::uint8_t>(1U << used_ % 8);
    std::uint8_t* const room = buffer_.get() + used_;
    used_ += length;
    count_field(length);
    return room;
}

bool WriteCursor::reserve_buffer(std::size_t length) {
    if (length <= room_ - used_) {
        return true;
    }
    constexpr std::size_t smallest = 1024;
    const std::size_t room = (std::max({smallest, 2 * room_, used_ + length}) + 7) / 8 * 8;
    if (!resize(buffer_, room) || !resize(starts_, room / 8)) {
        return false;
    }
    std::memset(starts_.get() + room_ / 8, 0, (room - room_) / 8);
    room_ = room;
    return true;
}

/** Enters LENGTH bytes at the position: those of BLOCK, or the next ones of the buffer. */
bool WriteCursor::add_piece(const std::uint8_t* block, std::size_t length) {
    if (!block && piece_count_ > 0) {
        Piece& last = pieces_.get()[piece_count_ - 1];
        if (!last.block && last.position + last.length == position_) {
            last.length += length;
            return true;
        }
    }
    if (piece_count_ == piece_room_) {
        const std::size_t room = std::max<std::size_t>(4, 2 * piece_room_);
        if (!resize(pieces_, room)) {
            return false;
        }
        piece_room_ = room;
    }
    pieces_.get()[piece_count_++] = {position_, block, used_, length};
    return true;
}

void WriteCursor::count_field(std::size_t length) {
    position_ += length;
    bytes_ += length;
    ++fields_;
}

bool WriteCursor::write_piece(const Piece& piece) {
    const auto target = static_cast<std::int64_t>(piece.position);
    if (file_position_ != piece.position) {
        file_position_.reset();
        if (fio_lseek(file_, target, SEEK_SET) != target) {
            return false;
        }
    }
    file_position_.reset();
    const bool whole = write_bytes(piece.block ? piece.block : buffer_.get() + piece.begin, piece);
    if (whole) {
        file_position_ = piece.position + piece.length;
    }
    return whole;
}

/** A write that ends between two fields is no short one: the next field's own decides. */
bool WriteCursor::write_bytes(const std::uint8_t* bytes, const Piece& piece) {
    for (std::size_t done = 0; done < piece.length;) {
        const ssize_t count = fio_write(file_, bytes + done, piece.length - done);
        if (count <= 0) {
            return false;
        }
        done += static_cast<std::size_t>(count);
        bytes_written_ += static_cast<std::size_t>(count);
        if (done < piece.length && !begins_field(piece, done)) {
            return false;
        }
    }
    return true;
}

bool WriteCursor::begins_field(const Piece& piece, std::size_t offset) const {
    if (piece.block) {
        return offset == 0;
    }
    const std::size_t at = piece.begin + offset;
    return (starts_.get()[at / 8] >> at % 8 & 1) != 0;
}

/** The fields that lie within the first BYTES bytes. */
std::uint64_t WriteCursor::whole_fields_in(std::uint64_t bytes) const {
    std::uint64_t begun = 0;
    for (std::size_t i = 0; i < piece_count_; ++i) {
        const Piece& piece = pieces_.get()[i];
        const auto part = static_cast<std::size_t>(std::min<std::uint64_t>(piece.length, bytes));
        for (std::size_t offset = 0; offset < part; ++offset) {
            begun += begins_field(piece, offset) ? 1 : 0;
        }
        bytes -= part;
        if (part < piece.length) {
            return part == 0 || begins_field(piece, part) ? begun : begun - 1;
        }
    }
    return begun;
}

void WriteCursor::clear() {
    if (used_ > 0) {
        std::memset(starts_.get(), 0, (used_ + 7) / 8);
    }
    used_ = 0;
    piece_count_ = 0;
    out_of_memory_ = false;
    bytes_ = 0;
    fields_ = 0;
}

void mark_end(FIOFUNCSTRUCT* file) {
    [[maybe_unused]] const ssize_t nothing_to_lose = fio_write(file, "", 0);
}

} // namespace velmora
