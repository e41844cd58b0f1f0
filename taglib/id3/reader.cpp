#include "reader.h"

#include "detail/tag_search.h"
#include "text.h"

#include "taglib/byte_order.h"
#include "taglib/read_cursor.h"
#include "taglib/trace.h"

#include <cstdlib>
#include <cstring>
#include <limits>

namespace velmora {

namespace {

std::uint32_t frame_size(const Id3FrameHeader& header, std::uint8_t version) {
    return version >= 4 ? syncsafe_to_long(header.size) : load_be32(header.size);
}

bool is_padding(const Id3FrameHeader& header) {
    static constexpr char no_id[sizeof header.id] = {};
    return std::memcmp(header.id, no_id, sizeof no_id) == 0;
}

void trace_frame(const _id3_frame_t& frame) {
    if (frame.size == 0) {
        DebugInfo("%s = (empty)\n", id3_tag(frame.id));
    } else {
        // The first byte is the text encoding.
        DebugInfo("%s = \"%s\"\n", id3_tag(frame.id), reinterpret_cast<const char*>(frame.data + 1));
    }
}

/** Reads the frames of one tag, one after the other. */
class FrameReader {
public:
    /** For the tag whose header ends at BEGIN. A frame's header may lie across the tag's end. */
    FrameReader(ReadWindow& window, std::uint64_t begin, _id3_file_desc_t* descriptor)
        : cursor_(window, begin, begin + descriptor->size + sizeof(Id3FrameHeader) - 1),
          descriptor_(descriptor) {}

    /** Appends frames until the tag or what can be read of it ends; what is left of the tag is padding. */
    void read_all() {
        while (position_ < descriptor_->size && read_frame()) {
        }
        if (position_ < descriptor_->size) {
            descriptor_->padding = descriptor_->size - position_;
        }
    }
    /** Whether the reading ended in front of bytes that the file may hold. */
    [[nodiscard]] bool failed() const { return failed_; }

private:
    bool read_frame() {
        Id3FrameHeader header;
        const ReadStatus read = cursor_.read(&header, sizeof header);
        if (read != ReadStatus::whole) {
            failed_ = read == ReadStatus::failed;
            DebugError("id3_load_descriptor_v2: Failed to read frame\n");
            return false;
        }
        if (is_padding(header)) {
            return false;
        }
        position_ += sizeof header;
        const std::uint32_t size = frame_size(header, descriptor_->version);
        if (std::uint64_t{position_} + size > descriptor_->size) {
            DebugError("id3_load_descriptor_v2: Invalid frame size\n");
            return false;
        }
        _id3_frame_t frame{};
        std::memcpy(&frame, header.id, sizeof header.id);
        frame.size = static_cast<std::int32_t>(size);
        frame.flags = std::bit_cast<std::uint16_t>(header.flags);
        frame.data = read_body(size);
        if (!frame.data) {
            DebugError("id3_load_descriptor_v2: Failed to read frame data\n");
            return false;
        }
        position_ += size;
        trace_frame(frame);
        return insert(frame);
    }

    /** Reads SIZE bytes and puts a zero behind them. Returns a block that the caller owns, or null. */
    std::uint8_t* read_body(std::uint32_t size) {
        auto* const body = static_cast<std::uint8_t*>(std::malloc(std::size_t{size} + 1));
        if (!body) {
            failed_ = true;
            return nullptr;
        }
        const ReadStatus read = cursor_.read(body, size);
        if (read != ReadStatus::whole) {
            failed_ = read == ReadStatus::failed;
            std::free(body);
            return nullptr;
        }
        body[size] = 0;
        return body;
    }

    bool insert(const _id3_frame_t& frame) {
        if (!id3_insert_frame(descriptor_, &frame)) {
            failed_ = true;
            std::free(frame.data);
            return false;
        }
        return true;
    }

    ReadCursor cursor_;
    _id3_file_desc_t* descriptor_;
    /** Counted from the end of the tag's header: behind the last frame, or behind the header of one whose
       body is bad. */
    std::uint32_t position_ = 0;
    bool failed_ = false;
};

/** Finds a tag that can be read. */
Id3TagPlace find_readable_tag(ReadWindow& window, bool at_end) {
    constexpr const char* function = "id3_load_descriptor_v2";
    Id3TagPlace place = id3_find_tag(window, at_end, id3_newest_version);
    if (place.finding != Id3Finding::tag) {
        id3_log_finding(function, place.finding);
        place.offset = -1;
    } else if (place.header.version > id3_newest_version) {
        DebugError("%s: Unsupported header version\n", function);
        place.offset = -1;
    } else if (syncsafe_to_long(place.header.size) > id3_largest_tag) {
        DebugError("%s: header too large\n", function);
        place.offset = -1;
    }
    return place;
}

} // namespace

std::int64_t id3_is_present_v2(FIOFUNCSTRUCT* file, bool at_end) {
    ReadWindow window(file);
    return id3_is_present_v2(window, at_end);
}

std::int64_t id3_is_present_v2(ReadWindow& window, bool at_end) {
    constexpr std::uint8_t any_version = std::numeric_limits<std::uint8_t>::max();
    const Id3TagPlace place = id3_find_tag(window, at_end, any_version);
    if (place.finding != Id3Finding::tag) {
        if (place.finding != Id3Finding::no_header) {
            id3_log_finding("id3_is_present_v2", place.finding);
        }
        return -1;
    }
    return place.header.version <= id3_newest_version ? place.offset : -1;
}

std::int64_t id3_load_descriptor_v2(FIOFUNCSTRUCT* file, _id3_file_desc_t* descriptor, bool at_end) {
    ReadWindow window(file);
    return id3_read_tag(window, descriptor, at_end).offset;
}

Id3TagReading id3_read_tag(ReadWindow& window, _id3_file_desc_t* descriptor, bool at_end) {
    const Id3TagPlace place = find_readable_tag(window, at_end);
    if (place.offset < 0) {
        return {-1, place.failed};
    }
    const Id3TagHeader& header = place.header;
    std::memcpy(descriptor->signature, header.signature, sizeof descriptor->signature);
    descriptor->version = header.version;
    descriptor->revision = header.revision;
    descriptor->header_flags = header.flags;
    descriptor->size = syncsafe_to_long(header.size);
    FrameReader frames(window, static_cast<std::uint64_t>(place.offset) + sizeof header, descriptor);
    frames.read_all();
    return {place.offset, frames.failed()};
}

} // namespace velmora
