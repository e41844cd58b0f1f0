#include "writer.h"

#include "detail/tag_header.h"
#include "text.h"

#include "taglib/byte_order.h"
#include "taglib/trace.h"
#include "taglib/write_cursor.h"

#include <cstring>

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

void put_frame(WriteCursor& cursor, const _id3_frame_t& frame, std::uint8_t version) {
    const Id3FrameHeader header = header_of(frame, version);
    cursor.put(&header, sizeof header);
    cursor.put(frame.data, frame.size > 0 ? static_cast<std::size_t>(frame.size) : 0);
}

/** What a tag's field number FIELD is, as they are put: its header, then each frame's and its body if any. */
const char* name_of_field(const _id3_file_desc_t& descriptor, std::uint64_t field) {
    if (field == 0) {
        return "header";
    }
    std::uint64_t next = 1;
    for (std::int32_t i = 0; i < descriptor.frame_count; ++i) {
        if (field == next++) {
            return "frame";
        }
        if (descriptor.frames[i].size > 0 && field == next++) {
            return "frame data";
        }
    }
    return "footer";
}

bool commit(WriteCursor& cursor, const _id3_file_desc_t& descriptor, std::uint64_t fields_in_front) {
    if (cursor.commit()) {
        return true;
    }
    DebugError("id3_store_descriptor_v2: Failed to write %s\n",
               name_of_field(descriptor, fields_in_front + cursor.fields_written()));
    return false;
}

} // namespace

int id3_store_descriptor_v2(FIOFUNCSTRUCT* file, _id3_file_desc_t* descriptor) {
    const std::int64_t position = fio_ltell(file);
    return position >= 0 && id3_store_descriptor_at(file, position, descriptor) ? 1 : 0;
}

bool id3_store_descriptor_at(FIOFUNCSTRUCT* file, std::int64_t position, _id3_file_desc_t* descriptor) {
    descriptor->size = tag_size(*descriptor);
    Id3TagHeader header = header_of(*descriptor);
    WriteCursor cursor(file, static_cast<std::uint64_t>(position));
    if (!cursor.settle()) {
        return false;
    }
    cursor.put(&header, sizeof header);
    for (std::int32_t i = 0; i < descriptor->frame_count; ++i) {
        put_frame(cursor, descriptor->frames[i], descriptor->version);
    }
    std::uint64_t fields = 0;
    if (descriptor->padding > 0) {
        fields = cursor.fields();
        if (!commit(cursor, *descriptor, 0)) {
            return false;
        }
        cursor.seek(cursor.position() + descriptor->padding);
        if (!cursor.settle()) {
            return false;
        }
    }
    if (descriptor->header_flags & id3_header_flag::footer) {
        std::memcpy(header.signature, "3DI", sizeof header.signature);
        cursor.put(&header, sizeof header);
    }
    return commit(cursor, *descriptor, fields);
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
