#include "reader.h"

#include "../byte_order.h"
#include "../trace.h"
#include "tag_header.h"
#include "text.h"

#include <cstdlib>
#include <cstring>

namespace velmora {

namespace {

/** Finds a tag and reads its header, with the loader's messages. Returns the header's offset or -1. Sets
 *FAILED where nobody knows what the file holds. */
std::int64_t locate(FIOFUNCSTRUCT* file, bool at_end, Id3TagHeader* header, bool* failed) {
    std::int64_t offset = 0;
    if (at_end) {
        Id3TagHeader footer;
        std::int64_t footer_offset = 0;
        const Id3Read read = id3_read_tag_footer(file, &footer, &footer_offset);
        *failed = read == Id3Read::failed;
        if (read != Id3Read::whole) {
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
    const Id3Read read = id3_read_tag_header(file, offset, header);
    *failed = read == Id3Read::failed;
    if (read != Id3Read::whole) {
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

/** Reads SIZE bytes and puts a zero behind them. Returns a block that the caller owns, or null; *FAILED is
    then set unless the file ends first. */
std::uint8_t* read_body(FIOFUNCSTRUCT* file, std::uint32_t size, bool* failed) {
    auto* const body = static_cast<std::uint8_t*>(std::malloc(std::size_t{size} + 1));
    if (!body) {
        *failed = true;
        return nullptr;
    }
    const Id3Read read = size > 0 ? id3_read_bytes(file, body, size) : Id3Read::whole;
    if (read != Id3Read::whole) {
        *failed = read == Id3Read::failed;
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
   frame's header once it is known to be one, and past the body once that is read. False ends the reading;
   *FAILED is set where that leaves out what the file holds. */
bool read_frame(FIOFUNCSTRUCT* file, _id3_file_desc_t* descriptor, std::uint32_t* position, bool* failed) {
    Id3FrameHeader header;
    const Id3Read read = id3_read_bytes(file, &header, sizeof header);
    if (read != Id3Read::whole) {
        *failed = read == Id3Read::failed;
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
    frame.data = read_body(file, size, failed);
    if (!frame.data) {
        DebugError("id3_load_descriptor_v2: Failed to read frame data\n");
        return false;
    }
    *position += size;
    trace_frame(frame);
    if (!id3_insert_frame(descriptor, &frame)) {
        *failed = true;
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
        std::int64_t footer_offset = 0;
        if (id3_read_tag_footer(file, &footer, &footer_offset) != Id3Read::whole) {
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
    if (id3_read_tag_header(file, offset, &header) != Id3Read::whole) {
        DebugError("id3_is_present_v2: Failed to read header\n");
        return -1;
    }
    return header.has_signature("ID3") && header.version <= id3_newest_version ? offset : -1;
}

std::int64_t id3_load_descriptor_v2(FIOFUNCSTRUCT* file, _id3_file_desc_t* descriptor, bool at_end) {
    return id3_read_tag(file, descriptor, at_end).offset;
}

Id3TagReading id3_read_tag(FIOFUNCSTRUCT* file, _id3_file_desc_t* descriptor, bool at_end) {
    Id3TagReading reading;
    Id3TagHeader header;
    reading.offset = locate(file, at_end, &header, &reading.failed);
    if (reading.offset < 0) {
        return reading;
    }
    const std::uint32_t size = syncsafe_to_long(header.size);
    if (size > id3_largest_tag) {
        DebugError("id3_load_descriptor_v2: header too large\n");
        reading.offset = -1;
        return reading;
    }
    std::memcpy(descriptor->signature, header.signature, sizeof descriptor->signature);
    descriptor->version = header.version;
    descriptor->revision = header.revision;
    descriptor->header_flags = header.flags;
    descriptor->size = size;

    std::uint32_t position = 0;
    while (position < size && read_frame(file, descriptor, &position, &reading.failed)) {
    }
    if (position < size) {
        descriptor->padding = size - position;
    }
    return reading;
}

} // namespace velmora
