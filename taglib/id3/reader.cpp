#include "reader.h"

#include "../byte_order.h"
#include "../trace.h"
#include "tag_header.h"
#include "text.h"

#include <cstdlib>
#include <cstring>

namespace velmora {

namespace {

/** Finds a tag and reads its header, with the loader's messages. Returns the header's offset or -1. */
std::int64_t locate(FIOFUNCSTRUCT* file, bool at_end, Id3TagHeader* header) {
    std::int64_t offset = 0;
    if (at_end) {
        Id3TagHeader footer;
        const std::int64_t footer_offset = id3_read_tag_footer(file, &footer);
        if (footer_offset < 0) {
            DebugError("id3_load_descriptor_v2: Failed to read footer\n");
            return -1;
        }
        if (!footer.has_signature("3DI")) {
            return -1;
        }
        if (footer.version > id3_newest_version) {
            DebugError("id3_load_descriptor_v2: Unsupported footer version\n");
            return -1;
        }
        offset = id3_header_offset(footer, footer_offset);
        if (offset < 0) {
            DebugError("id3_load_descriptor_v2: Invalid footer offset\n");
            return -1;
        }
    }
    if (!id3_read_tag_header(file, offset, header)) {
        DebugError("id3_load_descriptor_v2: Failed to read header\n");
        return -1;
    }
    if (!header->has_signature("ID3")) {
        DebugError("id3_load_descriptor_v2: Invalid header sig\n");
        return -1;
    }
    if (header->version > id3_newest_version) {
        DebugError("id3_load_descriptor_v2: Unsupported header version\n");
        return -1;
    }
    return offset;
}

std::uint32_t frame_size(const Id3FrameHeader& header, std::uint8_t version) {
    return version >= 4 ? syncsafe_to_long(header.size) : load_be32(header.size);
}

bool is_padding(const Id3FrameHeader& header) {
    static constexpr char no_id[sizeof header.id] = {};
    return std::memcmp(header.id, no_id, sizeof no_id) == 0;
}

/** Reads SIZE bytes and puts a zero behind them. Returns a block that the caller owns, or null. */
std::uint8_t* read_body(FIOFUNCSTRUCT* file, std::uint32_t size) {
    auto* const body = static_cast<std::uint8_t*>(std::malloc(std::size_t{size} + 1));
    if (!body) {
        return nullptr;
    }
    if (size > 0 && fio_read(file, body, size) != static_cast<ssize_t>(size)) {
        std::free(body);
        return nullptr;
    }
    body[size] = 0;
    return body;
}

void trace_frame(const _id3_frame_t& frame) {
    if (frame.size == 0) {
        DebugInfo("%s = (empty)\n", id3_tag(frame.id));
    } else {
        // The first byte is the text encoding.
        DebugInfo("%s = \"%s\"\n", id3_tag(frame.id), reinterpret_cast<const char*>(frame.data + 1));
    }
}

/** Reads the frame at *POSITION, counted from the end of the tag's header, and moves *POSITION on: past the
   frame's header once it is known to be one, and past the body once that is read. False ends the reading. */
bool read_frame(FIOFUNCSTRUCT* file, _id3_file_desc_t* descriptor, std::uint32_t* position) {
    Id3FrameHeader header;
    if (fio_read(file, &header, sizeof header) != static_cast<ssize_t>(sizeof header)) {
        DebugError("id3_load_descriptor_v2: Failed to read frame\n");
        return false;
    }
    if (is_padding(header)) {
        return false;
    }
    *position += sizeof header;
    const std::uint32_t size = frame_size(header, descriptor->version);
    if (std::uint64_t{*position} + size > descriptor->size) {
        DebugError("id3_load_descriptor_v2: Invalid frame size\n");
        return false;
    }
    _id3_frame_t frame{};
    std::memcpy(&frame, header.id, sizeof header.id);
    frame.size = static_cast<std::int32_t>(size);
    frame.flags = std::bit_cast<std::uint16_t>(header.flags);
    frame.data = read_body(file, size);
    if (!frame.data) {
        DebugError("id3_load_descriptor_v2: Failed to read frame data\n");
        return false;
    }
    *position += size;
    trace_frame(frame);
    if (!id3_insert_frame(descriptor, &frame)) {
        std::free(frame.data);
        return false;
    }
    return true;
}

} // namespace

std::int64_t id3_is_present_v2(FIOFUNCSTRUCT* file, bool at_end) {
    std::int64_t offset = 0;
    if (at_end) {
        Id3TagHeader footer;
        const std::int64_t footer_offset = id3_read_tag_footer(file, &footer);
        if (footer_offset < 0) {
            DebugError("id3_is_present_v2: Failed to read footer\n");
            return -1;
        }
        if (!footer.has_signature("3DI")) {
            return -1;
        }
        offset = id3_header_offset(footer, footer_offset);
        if (offset < 0) {
            DebugError("id3_is_present_v2: Invalid footer offset\n");
            return -1;
        }
    }
    Id3TagHeader header;
    if (!id3_read_tag_header(file, offset, &header)) {
        DebugError("id3_is_present_v2: Failed to read header\n");
        return -1;
    }
    return header.has_signature("ID3") && header.version <= id3_newest_version ? offset : -1;
}

std::int64_t id3_load_descriptor_v2(FIOFUNCSTRUCT* file, _id3_file_desc_t* descriptor, bool at_end) {
    Id3TagHeader header;
    const std::int64_t offset = locate(file, at_end, &header);
    if (offset < 0) {
        return -1;
    }
    const std::uint32_t size = syncsafe_to_long(header.size);
    if (size > id3_largest_tag) {
        DebugError("id3_load_descriptor_v2: header too large\n");
        return -1;
    }
    std::memcpy(descriptor->signature, header.signature, sizeof descriptor->signature);
    descriptor->version = header.version;
    descriptor->revision = header.revision;
    descriptor->header_flags = header.flags;
    descriptor->size = size;

    std::uint32_t position = 0;
    while (position < size && read_frame(file, descriptor, &position)) {
    }
    if (position < size) {
        descriptor->padding = size - position;
    }
    return offset;
}

} // namespace velmora
