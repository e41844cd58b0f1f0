#pragma once

#include "byte_appending.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

/** ID3v2 tags of the versions 2.2, 2.3 and 2.4, taken apart and put together again (docs/portable-tags.md,
   "MP3 and MP2"). */
namespace velmora::portable {

using ByteView = std::span<const std::uint8_t>;

/** The ten bytes in front of a tag, or behind it. */
struct Id3v2Header {
    static constexpr std::size_t size = 10;

    std::uint8_t version = 4; ///< the major version
    std::uint8_t revision = 0;
    std::uint8_t flags = 0;
    std::uint32_t content_size = 0; ///< bytes between header and footer

    [[nodiscard]] bool has_footer() const { return version >= 4 && (flags & 0x10) != 0; }
    /** Bytes of the whole tag. */
    [[nodiscard]] std::uint64_t tag_size() const {
        return std::uint64_t{size} + content_size + (has_footer() ? size : 0);
    }
};

/** The header in the first bytes of BYTES; nothing where there is none. */
[[nodiscard]] std::optional<Id3v2Header> id3v2_header(ByteView bytes);

/** One frame. What its flags say of its body (compressed, encrypted, unsynchronised) is still to be
   undone. */
struct Id3v2Frame {
    std::string id;          ///< four characters, in version 2.2 three
    std::uint16_t flags = 0; ///< as they lie in the file, big endian; 2.2 has none
    Bytes body;

    friend bool operator==(const Id3v2Frame&, const Id3v2Frame&) = default;
};

/** A tag in memory. */
class Id3v2Tag {
public:
    /** A new one, of version 2.4, without a frame. */
    Id3v2Tag() = default;
    /** The tag that BYTES are, from the header to the end of the tag. Throws a Refusal where they are no
       whole tag, or one that nothing is known of. Damage among the frames is kept for refuse_damaged(). */
    explicit Id3v2Tag(ByteView bytes);

    [[nodiscard]] std::uint8_t version() const { return header_.version; }
    /** Such as "ID3v2.3". */
    [[nodiscard]] std::string name() const { return "ID3v2." + std::to_string(version()); }
    [[nodiscard]] const std::vector<Id3v2Frame>& frames() const { return frames_; }
    [[nodiscard]] std::vector<Id3v2Frame>& frames() { return frames_; }

    /** Throws the Refusal `damaged` where there are bytes that are neither frame nor padding: a tag made from
        this one would lose them. */
    void refuse_damaged() const;

    /** What FRAME holds, with all that its flags and the tag's say undone. Nothing where it is encrypted or
       does not come out whole. */
    [[nodiscard]] std::optional<Bytes> content(const Id3v2Frame& frame) const;
    /** A frame of the tag's version that holds CONTENT. */
    [[nodiscard]] Id3v2Frame frame(std::string id, Bytes content) const;

    /** The tag's bytes. They are as many as it was read from where the frames fit well into these, so that
       what lies behind it need not move; a new tag gets some padding. Throws the Refusal `too_large`. */
    [[nodiscard]] Bytes bytes() const;

private:
    struct Walk;

    [[nodiscard]] std::size_t read_extended_header(ByteView content);
    void read_frames(ByteView content);
    [[nodiscard]] Walk walk(ByteView content, bool plain_sizes) const;
    [[nodiscard]] bool unsynchronised_frames() const;
    [[nodiscard]] Bytes content_bytes(std::size_t padding) const;
    void append_extended_header(Bytes& content, std::size_t padding) const;
    void append_frame(Bytes& content, const Id3v2Frame& frame) const;

    Id3v2Header header_;
    Bytes extended_header_; ///< without a checksum; empty: none
    std::vector<Id3v2Frame> frames_;
    std::size_t padding_ = 1024;
    std::uint64_t old_size_ = 0; ///< bytes that it was read from; 0: a new one
    std::string damage_;         ///< empty: none
};

} // namespace velmora::portable
