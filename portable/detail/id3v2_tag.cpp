#include "id3v2_tag.h"

#include "id3v2_coding.h"

#include "portable/reason.h"

#include <algorithm>

namespace velmora::portable {

namespace {

constexpr std::size_t most_frames = 250'000; ///< what no tag has, and little memory

namespace tag_flag {
constexpr std::uint8_t unsynchronised = 0x80;
constexpr std::uint8_t extended_header = 0x40; ///< in 2.2: the whole tag is compressed
} // namespace tag_flag

constexpr std::uint32_t largest_content = (1u << 28) - 1;
constexpr std::size_t new_padding = 1024;
/** Padding beyond this and beyond what was there before is given back. */
constexpr std::size_t most_padding = 4096;

[[noreturn]] void refuse(ReasonCode code, const char* what) {
    throw Refusal({code, 0, what});
}

std::size_t id_size(std::uint8_t version) {
    return version == 2 ? 3 : 4;
}

std::size_t frame_header_size(std::uint8_t version) {
    return version == 2 ? 6 : 10;
}

/** Some programs leave the last character of an identifier empty. */
bool is_frame_id(ByteView id) {
    const auto letter = [](std::uint8_t c) {
        return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z');
    };
    const bool last = letter(id.back()) || (id.size() == 4 && (id.back() == 0 || id.back() == ' '));
    return std::all_of(id.begin(), id.end() - 1, letter) && last;
}

} // namespace

std::optional<Id3v2Header> id3v2_header(ByteView bytes) {
    if (bytes.size() < Id3v2Header::size || bytes[0] != 'I' || bytes[1] != 'D' || bytes[2] != '3' ||
        bytes[3] == 0xFF || bytes[4] == 0xFF) {
        return std::nullopt;
    }
    const std::optional<std::uint32_t> size = from_synchsafe(bytes.subspan(6, 4));
    return size ? std::optional(Id3v2Header{bytes[3], bytes[4], bytes[5], *size}) : std::nullopt;
}

Id3v2Tag::Id3v2Tag(ByteView bytes) : old_size_(bytes.size()) {
    const std::optional<Id3v2Header> header = id3v2_header(bytes);
    if (!header || header->tag_size() != bytes.size()) {
        refuse(ReasonCode::damaged, "ID3v2 header");
    }
    header_ = *header;
    if (version() < 2 || version() > 4) {
        refuse(ReasonCode::unsupported, "a version of ID3v2 that is not known");
    }
    if (version() == 2 && (header_.flags & tag_flag::extended_header) != 0) {
        refuse(ReasonCode::unsupported, "a compressed ID3v2.2 tag");
    }
    ByteView content = bytes.subspan(Id3v2Header::size, header_.content_size);
    Bytes synchronised;
    if (version() < 4 && (header_.flags & tag_flag::unsynchronised) != 0) {
        synchronised = without_unsynchronisation(content);
        content = synchronised;
        // It is not written so again: readers are about that do not undo it as the frames' sizes mean it.
        header_.flags &= static_cast<std::uint8_t>(~tag_flag::unsynchronised);
    }
    read_frames(content.subspan(read_extended_header(content)));
}

/** Returns its size. */
std::size_t Id3v2Tag::read_extended_header(ByteView content) {
    if (version() == 2 || (header_.flags & tag_flag::extended_header) == 0) {
        return 0;
    }
    if (content.size() >= 10 && is_frame_id(content.first(4))) {
        header_.flags &= static_cast<std::uint8_t>(~tag_flag::extended_header); // announced, and not there
        return 0;
    }
    const std::optional<Id3v2ExtendedHeader> extended = id3v2_extended_header(content, version());
    if (!extended) {
        refuse(ReasonCode::damaged, "ID3v2 extended header");
    }
    extended_header_ = extended->bytes;
    return extended->size;
}

struct Id3v2Tag::Walk {
    std::vector<Id3v2Frame> frames;
    std::size_t padding = 0;
    std::string damage;
};

Id3v2Tag::Walk Id3v2Tag::walk(ByteView content, bool plain_sizes) const {
    Walk found;
    const std::size_t header_size = frame_header_size(version());
    while (content.size() >= header_size && content[0] != 0) {
        if (found.frames.size() == most_frames) {
            refuse(ReasonCode::too_large, "frames of an ID3v2 tag");
        }
        const ByteView id = content.first(id_size(version()));
        const std::optional<std::uint32_t> size = version() == 2 ? load_be24(content.data() + 3)
                                                  : version() == 3 || plain_sizes
                                                      ? load_be32(content.data() + 4)
                                                      : from_synchsafe(content.subspan(4, 4));
        if (!is_frame_id(id) || !size || *size > content.size() - header_size) {
            found.damage = "ID3v2 frame";
            return found;
        }
        const ByteView body = content.subspan(header_size, *size);
        const std::uint16_t flags = version() == 2 ? 0 : load_be16(content.data() + 8);
        found.frames.push_back({std::string(id.begin(), id.end()), flags, Bytes(body.begin(), body.end())});
        content = content.subspan(header_size + *size);
    }
    found.padding = content.size();
    if (!content.empty() && content[0] != 0) {
        found.damage = "ID3v2 frame";
    }
    return found;
}

void Id3v2Tag::read_frames(ByteView content) {
    Walk found = walk(content, false);
    if (!found.damage.empty() && version() == 4) {
        // Some programs write the sizes of 2.4 as those of 2.3.
        Walk plain = walk(content, true);
        if (plain.damage.empty()) {
            found = std::move(plain);
        }
    }
    frames_ = std::move(found.frames);
    padding_ = found.padding;
    damage_ = std::move(found.damage);
}

void Id3v2Tag::refuse_damaged() const {
    if (!damage_.empty()) {
        refuse(ReasonCode::damaged, damage_.c_str());
    }
}

bool Id3v2Tag::unsynchronised_frames() const {
    return version() == 4 && (header_.flags & tag_flag::unsynchronised) != 0;
}

std::optional<Bytes> Id3v2Tag::content(const Id3v2Frame& frame) const {
    return id3v2_frame_content(frame.body, frame.flags, version(), unsynchronised_frames());
}

Id3v2Frame Id3v2Tag::frame(std::string id, Bytes content) const {
    if (!unsynchronised_frames()) {
        return {std::move(id), 0, std::move(content)};
    }
    Bytes body = with_unsynchronisation(content);
    return {std::move(id), id3v2_unsynchronised_frame, std::move(body)};
}

void Id3v2Tag::append_extended_header(Bytes& content, std::size_t padding) const {
    append(content, extended_header_);
    if (version() == 3 && !extended_header_.empty()) {
        store_be32(content.data() + content.size() - 4, static_cast<std::uint32_t>(padding));
    }
}

void Id3v2Tag::append_frame(Bytes& content, const Id3v2Frame& frame) const {
    const std::size_t largest = version() == 2 ? (1u << 24) - 1 : largest_content;
    if (frame.body.size() > largest) {
        refuse(ReasonCode::too_large, "ID3v2 frame");
    }
    const auto size = static_cast<std::uint32_t>(frame.body.size());
    append(content, frame.id);
    if (version() == 2) {
        for (const unsigned shift : {16u, 8u, 0u}) {
            content.push_back(static_cast<std::uint8_t>(size >> shift));
        }
    } else {
        append_be32(content, version() == 3 ? size : to_synchsafe(size));
        append_be16(content, frame.flags);
    }
    append(content, frame.body);
}

Bytes Id3v2Tag::content_bytes(std::size_t padding) const {
    Bytes content;
    append_extended_header(content, padding);
    for (const Id3v2Frame& frame : frames_) {
        append_frame(content, frame);
    }
    content.resize(content.size() + padding);
    return content;
}

Bytes Id3v2Tag::bytes() const {
    Bytes content = content_bytes(0);
    const std::uint64_t ends = Id3v2Header::size * (header_.has_footer() ? 2 : 1);
    const std::uint64_t used = ends + content.size();
    std::size_t padding = old_size_ >= used ? static_cast<std::size_t>(old_size_ - used) : new_padding;
    if (padding > std::max(padding_, most_padding)) {
        padding = new_padding;
    }
    padding = header_.has_footer() ? 0 : padding; // none may be in front of a footer
    content = content_bytes(padding);
    if (content.size() > largest_content) {
        refuse(ReasonCode::too_large, "ID3v2 tag");
    }
    Bytes tag;
    append(tag, std::string_view("ID3"));
    append(tag, Bytes{header_.version, header_.revision, header_.flags});
    append_be32(tag, to_synchsafe(static_cast<std::uint32_t>(content.size())));
    append(tag, content);
    if (header_.has_footer()) {
        append(tag, std::string_view("3DI"));
        append(tag, Bytes(tag.begin() + 3, tag.begin() + Id3v2Header::size));
    }
    return tag;
}

} // namespace velmora::portable
