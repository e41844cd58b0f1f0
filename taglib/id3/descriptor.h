#pragma once

#include <array>
#include <bit>
#include <cstdint>

/** An ID3v2 tag in memory (docs/id3.md, "Frames"): its header's fields and its frames, whose bodies are kept
   as raw bytes. All memory is of the malloc family. */
namespace velmora {

/** One frame. Packed: the members have no alignment, so copy them out instead of referring to them. */
struct [[gnu::packed]] _id3_frame_t {
    std::uint32_t id;    ///< the four characters in file order, as id3_frame_id gives them
    std::int32_t size;   ///< bytes of the body
    std::uint16_t flags; ///< the two flag bytes as they lie in the file
    std::uint8_t* data;  ///< the body, in a block of at least size + 1 bytes; a zero follows it when it was
                         ///< read from a file, but nothing does after an edit
};
static_assert(sizeof(_id3_frame_t) == 10 + sizeof(void*));

/** A tag. It owns the array and every frame's data; id3_free_descriptor releases them. It starts zeroed. */
struct _id3_file_desc_t {
    char signature[3];    ///< "ID3"
    std::uint8_t version; ///< the major version
    std::uint8_t revision;
    std::uint8_t header_flags; ///< id3_header_flag bits, unknown ones included
    std::uint32_t size;        ///< bytes of the tag without its ten-byte header (and footer)
    _id3_frame_t* frames;
    std::int32_t frame_count;
    std::uint32_t padding; ///< bytes of the tag behind the last frame
};

namespace id3_header_flag {
inline constexpr std::uint8_t footer = 0x10; ///< the tag ends with a footer
} // namespace id3_header_flag

/** A frame id from its four characters: id3_frame_id("TALB"). */
[[nodiscard]] constexpr std::uint32_t id3_frame_id(const char (&name)[5]) {
    return std::bit_cast<std::uint32_t>(std::array<char, 4>{name[0], name[1], name[2], name[3]});
}
/** A frame id's four characters, in one static buffer that each call overwrites. */
[[nodiscard]] const char* id3_tag(std::uint32_t id);

/** Gives FRAME a body of SIZE bytes (not set to anything), id 0 and flags 0; what it held before is not
   released. Returns FRAME, or null, with FRAME untouched, when there is no memory or SIZE is negative. */
[[nodiscard]] _id3_frame_t* id3_init_frame(_id3_frame_t* frame, std::int32_t size);
/** Replaces FRAME's body by a copy of LENGTH bytes, without a terminator behind them. Returns 1; 0, with
   FRAME as it was, when there is no memory or LENGTH is negative. */
[[nodiscard]] int id3_set_frame_data(_id3_frame_t* frame, const void* bytes, std::int32_t length);

/** The first frame with that id, or null. Insertion and removal make pointers into the array invalid. */
[[nodiscard]] _id3_frame_t* id3_find_frame(const _id3_file_desc_t* descriptor, std::uint32_t id);
/** Appends a copy of FRAME; its data belongs to DESCRIPTOR from then on. Returns 1; 0, with nothing taken
   over, when there is no memory. */
[[nodiscard]] int id3_insert_frame(_id3_file_desc_t* descriptor, const _id3_frame_t* frame);
/** Replaces the body of the first frame with that id, or appends a new frame with a copy of the bytes.
   Returns 1, or 0 when there is no memory. */
[[nodiscard]] int id3_insert_tag(_id3_file_desc_t* descriptor, std::uint32_t id, const void* bytes,
                                 std::int32_t length);
/** Removes the first frame with that id; the others keep their order. Returns 1, or 0 when there is none. */
int id3_remove_tag(_id3_file_desc_t* descriptor, std::uint32_t id);
/** Removes FRAME, a pointer into DESCRIPTOR's array. Returns 1, or 0 when it is no frame of DESCRIPTOR. */
int id3_remove_frame(_id3_file_desc_t* descriptor, const _id3_frame_t* frame);

/* Private frames: a zero-terminated owner string, then the owner's own bytes. An owner without a terminator
   is the whole body. */

/** The first frame "PRIV", "Priv" or "priv" of that owner, or null. Owners are compared without regard to
   case; of a frame's owner 127 characters count. */
[[nodiscard]] _id3_frame_t* id3_find_priv_frame(const _id3_file_desc_t* descriptor, const char* owner);
/** Replaces what follows FRAME's owner string. Returns 1; 0, with FRAME as it was, when there is no memory or
   LENGTH is negative. */
[[nodiscard]] int id3_set_priv_frame_data(_id3_frame_t* frame, const void* bytes, std::int32_t length);
/** Replaces the bytes of OWNER's private frame, or appends a new "PRIV" frame. Returns 1, or 0 when there is
   no memory. */
[[nodiscard]] int id3_insert_priv_tag(_id3_file_desc_t* descriptor, const char* owner, const void* bytes,
                                      std::int32_t length);
/** Removes OWNER's first private frame. Returns 1, or 0 when there is none. */
int id3_remove_priv_tag(_id3_file_desc_t* descriptor, const char* owner);

/** Releases all that DESCRIPTOR owns and zeroes it, so that a second call is harmless. Returns 0. */
int id3_free_descriptor(_id3_file_desc_t* descriptor);

/** A tag, zeroed at first, that goes with the object. */
struct Id3Descriptor {
    Id3Descriptor() = default;
    ~Id3Descriptor() { id3_free_descriptor(&tag); }
    Id3Descriptor(const Id3Descriptor&) = delete;
    Id3Descriptor& operator=(const Id3Descriptor&) = delete;

    _id3_file_desc_t tag{};
};

} // namespace velmora
