#pragma once

#include "byte_appending.h"
#include "tagged_file.h"

#include "taglib/read_cursor.h"

#include <optional>
#include <string>

/** Boxes (QuickTime calls them atoms): size, type, contents (docs/portable-tags.md, "MP4 and QuickTime"). */
namespace velmora::portable {

[[nodiscard]] inline std::uint64_t load_be64(const std::uint8_t* from) {
    return std::uint64_t{load_be32(from)} << 32 | load_be32(from + 4);
}

/** The four letters of a type as the number that they are in the file. */
[[nodiscard]] constexpr std::uint32_t box_type(const char (&letters)[5]) {
    std::uint32_t type = 0;
    for (int i = 0; i < 4; ++i) {
        type = type << 8 | static_cast<unsigned char>(letters[i]);
    }
    return type;
}

/** The letters of TYPE as UTF-8, read as Latin-1, which is what the sign (c) in many of them is written
   in. */
[[nodiscard]] std::string type_name(std::uint32_t type);

/** A box as it lies in a file. */
struct Box {
    std::uint32_t type = 0;
    Range whole;                   ///< header included
    std::uint32_t header_size = 8; ///< 16 where the size is of 64 bits
    bool to_end = false;           ///< its size field says "to the end of the file"

    [[nodiscard]] Range content() const { return {whole.begin + header_size, whole.end}; }
    /** Where its size field is. */
    [[nodiscard]] Range size_field() const {
        const std::uint64_t begin = header_size == 8 ? whole.begin : whole.begin + 8;
        return {begin, begin + (header_size == 8 ? 4 : 8)};
    }
    /** What is free to be used. */
    [[nodiscard]] bool is_free() const;
};

/** The size field of BOX for SIZE bytes, header included. Throws a Refusal where it does not take as many. */
[[nodiscard]] Bytes size_field_for(const Box& box, std::uint64_t size);

/** A box of TYPE around CONTENT. Throws a Refusal where that is too large. */
[[nodiscard]] Bytes make_box(std::uint32_t type, std::span<const std::uint8_t> content);

/** The box that begins at CURSOR, whose end is that of the box around it; the cursor goes on to its end.
   Nothing, and the cursor stays, where no box that fits begins there. IN_FILE: the cursor is over the whole
   file, whose last box may reach to its end. Throws a Refusal where the file can't be read. */
[[nodiscard]] std::optional<Box> next_box(ReadCursor& cursor, bool in_file = false);

/** Throws the Refusal for what is left in CURSOR behind the last box inside PARENT, unless it ends a list in
   a lawful manner. */
void require_end_of_boxes(ReadCursor cursor, std::uint32_t parent);

/** The boxes inside RANGE, contents of a box of type PARENT. Throws a Refusal where they don't fit. */
[[nodiscard]] std::vector<Box> boxes_in(ReadCursor cursor, Range range, std::uint32_t parent);

/** The first box of TYPE inside BOX; nothing where there is none. */
[[nodiscard]] std::optional<Box> find_box(const ReadCursor& cursor, const Box& box, std::uint32_t type);

} // namespace velmora::portable
