#pragma once

#include "fio.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>

namespace velmora {

/** Collects fields and blocks for a file, and writes them with one checked commit().

   Invariant: until commit() the file is untouched, and what it will write is known in full: bytes() bytes in
   fields() fields, in the order in which they were put. Only where no memory is left to collect in, what was
   put so far goes to the file at once; commit() tells of it all the same. A field is what one put gave;
   putting nothing is no field. Adjacent ones are written together, with one call of the system where none is
   larger than largest_copy, so order decides what a kill leaves behind only from one commit to the next.

   Where a write stops short, everything in front of the stop is in the file and nothing behind it is: what
   one write for each field would have left. bytes_written() and fields_written() tell where that is.

   The file is moved, and may not be moved by others between commits. One thread at a time. */
class WriteCursor {
public:
    /** Larger blocks are not copied: they must stay as they are until the commit. */
    static constexpr std::size_t largest_copy = 16384;

    /** Over FILE from POSITION on. FILE stays the caller's. */
    WriteCursor(FIOFUNCSTRUCT* file, std::uint64_t position) : file_(file), position_(position) {}
    WriteCursor(const WriteCursor&) = delete;
    WriteCursor& operator=(const WriteCursor&) = delete;

    /** Where the next field goes. */
    [[nodiscard]] std::uint64_t position() const { return position_; }
    /** Leaves what lies between here and POSITION as it is in the file. POSITION may also lie in front. */
    void seek(std::uint64_t position) { position_ = position; }

    /* The names give the numbers' widths and the order of their bytes. Nothing in the program calls the two
       of big-endian numbers. */
    void put_byte(std::uint8_t value);
    void put_le16(std::uint16_t value);
    void put_be16(std::uint16_t value);
    void put_le32(std::uint32_t value);
    void put_be32(std::uint32_t value);
    void put_le64(std::uint64_t value);
    /** One field of LENGTH bytes. BYTES may go at once unless they are more than largest_copy. */
    void put(const void* bytes, std::size_t length);

    /** What was put since the last commit. */
    [[nodiscard]] std::uint64_t bytes() const { return bytes_; }
    [[nodiscard]] std::uint64_t fields() const { return fields_; }

    /** Writes what was put, and is empty again, at its position. False when not everything was written: errno
       is that of the failed call, or as it was where a write just came up short, as it would be for the
       field concerned alone. */
    [[nodiscard]] bool commit();

    /** After a commit in which a write came up short: tries to write the rest of the field in which it
       stopped, so that errno tells why where that fails, too. For callers whose fields behind that one were
       always tried. Does nothing after any other commit, nor once something else was put. */
    void ask_why_short();

    /** Moves the file itself to the position, for callers that tell a position that can't be reached from a
       write that failed; the commit then spares the move. False, with errno from lseek(2), when it does not
       get there. */
    [[nodiscard]] bool settle() { return move_to(position_); }

    /** How far the last commit came: the bytes that it wrote, and the fields of which it wrote every byte. So
       fields_written() is also the number, from 0, of the field in which it stopped. */
    [[nodiscard]] std::uint64_t bytes_written() const { return bytes_written_; }
    [[nodiscard]] std::uint64_t fields_written() const { return fields_written_; }

private:
    struct Free {
        void operator()(void* memory) const { std::free(memory); }
    };
    /** Adjacent bytes of the file. */
    struct Piece {
        std::uint64_t position;
        const std::uint8_t* block; ///< one field, the caller's; null: bytes of the buffer
        std::size_t begin;         ///< in the buffer
        std::size_t length;
    };

    /** Memory that begins inside the cursor: what is small is collected without asking for any. */
    template <typename Value, std::size_t Count>
    class Room {
    public:
        Room() = default;
        Room(const Room&) = delete;
        Room& operator=(const Room&) = delete;

        [[nodiscard]] Value* values() { return values_; }
        [[nodiscard]] const Value* values() const { return values_; }
        [[nodiscard]] std::size_t count() const { return count_; }
        /** Sees to room for at least COUNT values and keeps those that are there. False when there is none;
           errno stays. */
        [[nodiscard]] bool reserve(std::size_t count) { return count <= count_ || grow(count); }

    private:
        [[nodiscard]] bool grow(std::size_t count);

        std::array<Value, Count> here_{};
        std::unique_ptr<Value, Free> grown_;
        Value* values_ = here_.data();
        std::size_t count_ = Count;
    };

    template <typename Value, typename Store>
    void put_number(Value value, Store store);
    [[nodiscard]] std::uint8_t* add_to_buffer(std::size_t length);
    [[nodiscard]] bool reserve_buffer(std::size_t length);
    [[nodiscard]] bool add_to_last_piece(std::size_t length);
    [[nodiscard]] bool add_piece(const std::uint8_t* block, std::size_t length);
    void add_block(const std::uint8_t* block, std::size_t length);
    void count_field(std::size_t length);
    void write_pieces();
    [[nodiscard]] bool move_to(std::uint64_t position);
    [[nodiscard]] bool write_piece(const Piece& piece);
    void keep_rest(const std::uint8_t* bytes, const Piece& piece, std::size_t done);
    [[nodiscard]] bool begins_field(const Piece& piece, std::size_t offset) const;
    [[nodiscard]] std::uint64_t whole_fields_in(std::uint64_t bytes) const;

    FIOFUNCSTRUCT* file_;
    std::uint64_t position_;
    std::optional<std::uint64_t> file_position_; ///< where the file is; nothing: not known
    Room<std::uint8_t, 1024> buffer_;
    Room<std::uint8_t, 1024 / 8> starts_; ///< a bit for each byte of the buffer: a field begins there
    std::size_t used_ = 0;                ///< bytes of the buffer
    Room<Piece, 4> pieces_;
    std::size_t piece_count_ = 0;
    std::uint64_t collected_fields_ = 0; ///< in the pieces
    std::uint64_t bytes_ = 0;
    std::uint64_t fields_ = 0;
    /* Since the last commit: */
    std::optional<int> stopped_; ///< a write stopped short, with this errno
    std::uint64_t bytes_out_ = 0;
    std::uint64_t fields_out_ = 0;
    /* Of the last commit: */
    const std::uint8_t* rest_ = nullptr; ///< what a short write left of its field; null for no such write
    std::size_t rest_length_ = 0;
    std::uint64_t bytes_written_ = 0;
    std::uint64_t fields_written_ = 0;
};

/** Writes no bytes at FILE's position, which is where a format that can shrink its file would cut it. FILE
   keeps its length and its contents, whatever becomes of the call. */
void mark_end(FIOFUNCSTRUCT* file);

} // namespace velmora
