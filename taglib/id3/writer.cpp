#include "writer.h"

#include "../byte_order.h"
#include "../trace.h"
#include "tag_header.h"
#include "text.h"

#include <cstring>
#include <unistd.h>

namespace velmora {

namespace {

bool write_all(FIOFUNCSTRUCT* file, const void* bytes, std::size_t length) {
    return fio_write(file, bytes, length) == static_cast<ssize_t>(length);
}

std::uint32_t tag_size(const _id3_file_desc_t& descriptor) {
    std::uint32_t size = descriptor.padding;
    for (std::int32_t i = 0; i < descriptor.frame_count; ++i) {
        size += static_cast<std::uint32_t>(descriptor.frames[i].size) + sizeof(Id3FrameHeader);
    }
    return size;
}

Id3TagHeader header_of(const _id3_file_desc_t& descriptor) {
    Id3TagHeader header;
    std::memcpy(header.signature, descriptor.signature, sizeof header.signature);
    header.version = descriptor.version;
    header.revision = descriptor.revision;
    header.flags = descriptor.header_flags;
    long_to_syncsafe(descriptor.size, header.size);
    return header;
}

Id3FrameHeader header_of(const _id3_frame_t& frame, std::uint8_t version) {
    Id3FrameHeader header;
    std::memcpy(header.id, &frame.id, sizeof header.id);
    const auto size = static_cast<std::uint32_t>(frame.size);
    if (version >= 4) {
        long_to_syncsafe(size, header.size);
    } else {
        store_be32(header.size, size);
    }
    std::memcpy(header.flags, &frame.flags, sizeof header.flags);
    return header;
}

bool write_frame(FIOFUNCSTRUCT* file, const _id3_frame_t& frame, std::uint8_t version) {
    const Id3FrameHeader header = header_of(frame, version);
    if (!write_all(file, &header, sizeof header)) {
        DebugError("id3_store_descriptor_v2: Failed to write frame\n");
        return false;
    }
    if (frame.size > 0 && !write_all(file, frame.data, static_cast<std::size_t>(frame.size))) {
        DebugError("id3_store_descriptor_v2: Failed to write frame data\n");
        return false;
    }
    return true;
}

} // namespace

int id3_store_descriptor_v2(FIOFUNCSTRUCT* file, _id3_file_desc_t* descriptor) {
    descriptor->size = tag_size(*descriptor);
    Id3TagHeader header = header_of(*descriptor);
    if (!write_all(file, &header, sizeof header)) {
        DebugError("id3_store_descriptor_v2: Failed to write header\n");
        return 0;
    }
    for (std::int32_t i = 0; i < descriptor->frame_count; ++i) {
        if (!write_frame(file, descriptor->frames[i], descriptor->version)) {
            return 0;
        }
    }
    if (descriptor->padding > 0 && fio_lseek(file, descriptor->padding, SEEK_CUR) < 0) {
        return 0;
    }
    if (descriptor->header_flags & id3_header_flag::footer) {
        std::memcpy(header.signature, "3DI", sizeof header.signature);
        if (!write_all(file, &header, sizeof header)) {
            DebugError("id3_store_descriptor_v2: Failed to write footer\n");
            return 0;
        }
    }
    return 1;
}

int id3_append_file(FIOFUNCSTRUCT* target, FIOFUNCSTRUCT* source) {
    char block[65536];
    for (;;) {
        const ssize_t count = fio_read(source, block, sizeof block);
        if (count <= 0) {
            return count == 0 ? 1 : 0;
        }
        if (!write_all(target, block, static_cast<std::size_t>(count))) {
            return 0;
        }
    }
}

} // namespace velmora
