#include "header_reader.h"

#include "detail/item_memory.h"

#include "taglib/byte_order.h"
#include "taglib/read_cursor.h"
#include "taglib/trace.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <limits>
#include <optional>

namespace velmora {

namespace {

constexpr std::int64_t header_size = 8;
constexpr std::uint32_t append = static_cast<std::uint32_t>(-1);

struct ChunkHeader {
    std::uint32_t fourcc;
    std::uint32_t size;
};

/** Reads the header at POSITION. False when less than the whole came. */
bool read_chunk_header(ReadCursor& cursor, std::int64_t position, ChunkHeader* header) {
    std::array<std::uint8_t, header_size> bytes{};
    const bool whole = cursor.seek(static_cast<std::uint64_t>(position)) &&
                       cursor.read(bytes.data(), bytes.size()) == ReadStatus::whole;
    *header = {load_le32(bytes.data()), load_le32(bytes.data() + 4)};
    return whole;
}

/** The FOURCC at the position; zeros where it can't be read. */
std::uint32_t read_fourcc(ReadCursor& cursor) {
    std::uint32_t fourcc = 0;
    [[maybe_unused]] const ReadStatus shows_in_the_window = cursor.read_le32(&fourcc);
    return fourcc;
}

/** The file's length, or -1. */
std::int64_t length_of(ReadWindow& window) {
    const std::optional<std::uint64_t> size = window.size();
    return size ? static_cast<std::int64_t>(*size) : -1;
}

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
void load_data(ReadCursor& cursor, _avi_item_t* item) {
    item->data = avi_new_data(item->size);
    if (item->data) {
        [[maybe_unused]] const ReadStatus shows_in_the_window = cursor.read(item->data, item->size);
    }
    if (item->data && item->size >= 4 && (item->fourcc == fourcc::list || item->fourcc == fourcc::riff)) {
        item->list_type = load_le32(item->data);
    }
}

/** The sub-chunk at POSITION, whose data must end within ROOM bytes of it. False where the list ends. */
bool read_sub_chunk_header(ReadCursor& cursor, std::int64_t position, std::int64_t room, ChunkHeader* chunk) {
    const auto at = static_cast<unsigned>(position);
    if (!read_chunk_header(cursor, position, chunk)) {
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

/** BASE: the position of the list's type, in a file of LENGTH bytes. */
void load_sub_chunks(ReadCursor& cursor, std::int64_t length, std::int64_t base, _avi_item_t* list) {
    // No list reaches further than the 8 bytes past the end that the walk of the top level lets pass.
    const std::int64_t size = std::min<std::int64_t>(list->size, length + header_size - base);
    std::int64_t offset = 4;
    while (offset + header_size <= size) {
        offset = round_up_to_even(offset);
        const std::int64_t position = base + offset;
        ChunkHeader chunk{};
        // Measured from the header's start and against 4 less than the list's size: 4 bytes of overrun pass.
        if (!read_sub_chunk_header(cursor, position, size - 4 - offset, &chunk)) {
            return;
        }
        if (chunk.fourcc == 0) {
            DebugInfo("avi_load_item_list: '%s' ignored at 0x%x\n", riff_tag(chunk.fourcc),
                      static_cast<unsigned>(position));
        } else {
            DebugInfo("[%08lx]        <%s> size 0x%x\n", static_cast<unsigned long>(position),
                      riff_tag(chunk.fourcc), chunk.size);
            _avi_item_t item = make_item(chunk, position);
            load_data(cursor, &item);
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
        : root_(root), window_(file), cursor_(window_), length_(length_of(window_)),
          limit_(length_ - header_size) {}

    /** False for what is no readable AVI file. */
    bool read() {
        if (length_ < 0 || !read_riff_header()) {
            return false;
        }
        while (offset_ + header_size <= limit_ && read_chunk()) {
        }
        if (window_.failed()) {
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
        [[maybe_unused]] const bool shows_in_the_fields = read_chunk_header(cursor_, 0, &header);
        root_->fourcc = header.fourcc;
        root_->size = header.size;
        root_->list_type = read_fourcc(cursor_);
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
        if (!read_chunk_header(cursor_, position, &chunk)) {
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
            const auto base_of_list = static_cast<std::int64_t>(cursor_.position());
            item.list_type = read_fourcc(cursor_);
            DebugInfo("[%08lx] <list> type %s size 0x%x\n", shown_offset, riff_tag(item.list_type),
                      item.size);
            if (item.list_type == fourcc::info) {
                load_sub_chunks(cursor_, length_, base_of_list, &item);
                if (window_.failed()) {
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
    ReadWindow window_;
    ReadCursor cursor_;
    std::int64_t length_; ///< of the file; -1: not known
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
    ReadWindow window(file);
    const std::int64_t length = length_of(window);
    if (base >= 0 && length >= 0) {
        ReadCursor cursor(window);
        load_sub_chunks(cursor, length, base, list);
    }
    if (base < 0 || length < 0 || window.failed()) {
        avi_mark_incomplete(list);
    }
    return 1;
}

} // namespace velmora
