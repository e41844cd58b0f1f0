#include "header_reader.h"

#include "../byte_order.h"
#include "../trace.h"
#include "item_memory.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <unistd.h>

namespace velmora {

namespace {

constexpr std::int64_t header_size = 8;
constexpr std::uint32_t append = static_cast<std::uint32_t>(-1);

struct ChunkHeader {
    std::uint32_t fourcc;
    std::uint32_t size;
};

/** Reads held against the file's length, so that the end of the file and a failing medium are told apart.
   Nobody else moves in the file meanwhile. */
class Reader {
public:
    explicit Reader(FIOFUNCSTRUCT* file)
        : file_(file), length_(fio_lseek(file, 0, SEEK_END)), position_(length_) {}

    /** The file's length, or -1. */
    [[nodiscard]] std::int64_t length() const { return length_; }
    /** Whether bytes that the file has could not be read. */
    [[nodiscard]] bool failed() const { return failed_; }

    [[nodiscard]] std::int64_t position() const { return position_; }

    bool seek(std::int64_t position) {
        if (position == position_ && in_place_) {
            return true; // as where an item follows on the one before it
        }
        position_ = position;
        const bool arrived = fio_lseek(file_, position, SEEK_SET) == position;
        failed_ |= !arrived;
        in_place_ = arrived;
        return arrived;
    }

    /** Reads on into BUFFER, which the caller has zeroed. False when less than COUNT bytes came. */
    bool read(void* buffer, std::uint32_t count) {
        const std::int64_t expected = std::clamp<std::int64_t>(length_ - position_, 0, count);
        const std::int64_t got = fio_read(file_, buffer, count);
        failed_ |= got < expected;
        in_place_ = in_place_ && got == count;
        position_ += count;
        return got == count;
    }

    /** The header at POSITION. False when less than the whole came. */
    bool read_header(std::int64_t position, ChunkHeader* header) {
        // The pad byte of the chunk before comes along, which spares a seek.
        const std::uint32_t pad = in_place_ && position == position_ + 1 ? 1 : 0;
        std::array<std::uint8_t, 1 + header_size> bytes{};
        const bool whole = seek(position - pad) && read(bytes.data(), pad + header_size);
        *header = {load_le32(&bytes[pad]), load_le32(&bytes[pad + 4])};
        return whole;
    }

    std::uint32_t read_fourcc() {
        std::array<std::uint8_t, 4> bytes{};
        read(bytes.data(), bytes.size());
        return load_le32(bytes.data());
    }

private:
    FIOFUNCSTRUCT* file_;
    std::int64_t length_;
    std::int64_t position_;
    bool in_place_ = false; ///< the file is at the position
    bool failed_ = false;
};

constexpr std::int64_t round_up_to_even(std::int64_t offset) {
    return offset + (offset & 1);
}

_avi_item_t make_item(const ChunkHeader& header, std::int64_t position) {
    _avi_item_t item{};
    item.fourcc = header.fourcc;
    item.size = header.size;
    item.offset = static_cast<std::uint64_t>(position);
    return item;
}

/** The item's own bytes: zeros where the file ends before them. Never null for want of bytes alone, because
   data is what tells a list that is kept as bytes from one with children. */
void load_data(Reader& reader, _avi_item_t* item) {
    item->data = avi_new_data(item->size);
    if (item->data && item->size > 0) {
        reader.read(item->data, item->size);
    }
    if (item->data && item->size >= 4 && (item->fourcc == fourcc::list || item->fourcc == fourcc::riff)) {
        item->list_type = load_le32(item->data);
    }
}

/** The sub-chunk at POSITION, whose data must end within ROOM bytes of it. False where the list ends. */
bool read_sub_chunk_header(Reader& reader, std::int64_t position, std::int64_t room, ChunkHeader* chunk) {
    const auto at = static_cast<unsigned>(position);
    if (!reader.read_header(position, chunk)) {
        DebugError("avi_load_item_list: Error reading at %x\n", at);
        return false;
    }
    if (!is_riff_tag(chunk->fourcc)) {
        DebugError("avi_load_item_list: Invalid tag '%s' at %x\n", riff_tag(chunk->fourcc), at);
        return false;
    }
    if (chunk->size > room) {
        // Kept under this name, which is what existing logs are searched for.
        DebugError("avi_load_info_list: Invalid tag '%s' size at %x\n", riff_tag(chunk->fourcc), at);
        return false;
    }
    return true;
}

void load_sub_chunks(Reader& reader, std::int64_t base, _avi_item_t* list) {
    // No list reaches further than the 8 bytes past the end that the walk of the top level lets pass.
    const std::int64_t size = std::min<std::int64_t>(list->size, reader.length() + header_size - base);
    std::int64_t offset = 4;
    while (offset + header_size <= size) {
        offset = round_up_to_even(offset);
        const std::int64_t position = base + offset;
        ChunkHeader chunk{};
        // Measured from the header's start and against 4 less than the list's size: 4 bytes of overrun pass.
        if (!read_sub_chunk_header(reader, position, size - 4 - offset, &chunk)) {
            return;
        }
        if (chunk.fourcc == 0) {
            DebugInfo("avi_load_item_list: '%s' ignored at 0x%x\n", riff_tag(chunk.fourcc),
                      static_cast<unsigned>(position));
        } else {
            DebugInfo("[%08lx]        <%s> size 0x%x\n", static_cast<unsigned long>(position),
                      riff_tag(chunk.fourcc), chunk.size);
            _avi_item_t item = make_item(chunk, position);
            load_data(reader, &item);
            const bool loaded = item.data != nullptr;
            const bool kept = avi_insert_item(list, &item, append) != nullptr;
            if (!kept) {
                avi_free_item(&item);
            }
            if (!loaded || !kept) {
                avi_mark_incomplete(list);
            }
        }
        offset += chunk.size + header_size;
    }
}

/** The walk over the top level of the RIFF chunk. */
class TopLevel {
public:
    TopLevel(FIOFUNCSTRUCT* file, _avi_item_t* root)
        : root_(root), reader_(file), limit_(reader_.length() - header_size) {}

    /** False for what is no readable AVI file. */
    bool read() {
        if (reader_.length() < 0 || !read_riff_header()) {
            return false;
        }
        while (offset_ + header_size <= limit_ && read_chunk()) {
        }
        if (reader_.failed()) {
            avi_mark_incomplete(root_);
        }
        if (several_riffs_ || offset_ + avi_tolerated_tail < limit_) {
            return false;
        }
        if (offset_ != limit_) {
            // From the form type; the positions in all other messages are the file's.
            DebugInfo("avi_read_header: Actual AVI end at 0x%x (EOF = 0x%x)\n",
                      static_cast<unsigned>(offset_), static_cast<unsigned>(limit_));
        }
        root_->size = static_cast<std::uint32_t>(
            std::min<std::int64_t>(offset_, std::numeric_limits<std::uint32_t>::max()));
        return true;
    }

    [[nodiscard]] bool several_riffs() const { return several_riffs_; }

private:
    /** Offsets count from the form type, as the RIFF size field does. */
    static constexpr std::int64_t base = 8;

    bool read_riff_header() {
        ChunkHeader header{};
        if (reader_.seek(0)) {
            reader_.read_header(0, &header);
            root_->fourcc = header.fourcc;
            root_->size = header.size;
            root_->list_type = reader_.read_fourcc();
        }
        if (root_->fourcc != fourcc::riff) {
            DebugError("avi_read_header: Not a RIFF header\n");
            return false;
        }
        DebugInfo("now have %d RIFF headers\n", 1);
        if (root_->list_type != fourcc::avi && root_->list_type != fourcc::avix) {
            DebugError("avi_read_header: Not an AVI/X file (%s)\n", riff_tag(root_->list_type));
            return false;
        }
        if (root_->size != limit_) {
            // The file's own count comes first, against the order that the words suggest.
            DebugError("avi_read_header: Corrupt size in riff header (0x%x, file size 0x%x)\n",
                       static_cast<unsigned>(limit_), root_->size);
        }
        return true;
    }

    /** Reads the chunk at the offset and goes on to the next. False where the walk ends. */
    bool read_chunk() {
        offset_ = round_up_to_even(offset_);
        const std::int64_t position = base + offset_;
        const auto at = static_cast<unsigned>(position);
        ChunkHeader chunk{};
        if (!reader_.read_header(position, &chunk)) {
            DebugError("avi_read_header: Error reading at %x\n", at);
            return false;
        }
        if (!is_riff_tag(chunk.fourcc)) {
            DebugError("avi_read_header: Invalid tag '%s' at %x\n", riff_tag(chunk.fourcc), at);
            return false;
        }
        // Measured from the header's start: a chunk that overruns the file by up to 8 bytes passes.
        if (offset_ + chunk.size > limit_) {
            DebugError("avi_read_header: Invalid tag '%s' size at %x\n", riff_tag(chunk.fourcc), at);
            return false;
        }
        if (chunk.fourcc == 0) {
            DebugInfo("avi_read_header: '%s' ignored at 0x%x\n", riff_tag(chunk.fourcc), at);
        } else if (!add_chunk(make_item(chunk, position))) {
            return false;
        }
        offset_ += chunk.size + header_size;
        return true;
    }

    bool add_chunk(_avi_item_t item) {
        const auto shown_offset = static_cast<unsigned long>(item.offset);
        if (item.fourcc == fourcc::list) {
            item.list_type = reader_.read_fourcc();
            DebugInfo("[%08lx] <list> type %s size 0x%x\n", shown_offset, riff_tag(item.list_type),
                      item.size);
            if (item.list_type == fourcc::info) {
                load_sub_chunks(reader_, reader_.position() - 4, &item);
                if (reader_.failed()) {
                    avi_mark_incomplete(&item);
                }
                avi_settle_children(&item);
            }
        } else {
            DebugInfo("[%08lx] <%s> size 0x%x\n", shown_offset, riff_tag(item.fourcc), item.size);
            if (item.fourcc == fourcc::riff) {
                DebugInfo("now have %d RIFF headers\n", 2);
                DebugError("More than one RIFF header; we don't handle this yet\n");
                several_riffs_ = true;
                return false;
            }
        }
        if (!avi_insert_item(root_, &item, append)) {
            avi_free_item(&item);
            avi_mark_incomplete(root_);
        }
        return true;
    }

    _avi_item_t* root_;
    Reader reader_;
    std::int64_t limit_;
    std::int64_t offset_ = 4;
    bool several_riffs_ = false;
};

} // namespace

int avi_read_header(FIOFUNCSTRUCT* file, _avi_item_t* root) {
    *root = {};
    const TraceBatch batch;
    TopLevel top_level(file, root);
    if (top_level.read()) {
        return 1;
    }
    errno = top_level.several_riffs() ? avi_error_several_riffs : 0;
    return 0;
}

int avi_load_item_list(FIOFUNCSTRUCT* file, _avi_item_t* list) {
    const TraceBatch batch;
    const std::int64_t base = fio_ltell(file) - 4;
    Reader reader(file);
    if (base >= 0 && reader.length() >= 0) {
        load_sub_chunks(reader, base, list);
    }
    if (base < 0 || reader.length() < 0 || reader.failed()) {
        avi_mark_incomplete(list);
    }
    return 1;
}

} // namespace velmora
