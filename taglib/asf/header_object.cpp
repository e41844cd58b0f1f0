#include "header_object.h"

#include "content_description.h"
#include "detail/cursor_readers.h"
#include "detail/object_writer.h"
#include "detail/owned.h"
#include "ext_content_description.h"
#include "guids.h"

#include "taglib/byte_order.h"
#include "taglib/trace.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <functional>
#include <unistd.h>

namespace velmora {

namespace {

// A raw block is used as the object record that it begins with.
static_assert(std::endian::native == std::endian::little && offsetof(_asf_object_t, size) == 16 &&
              sizeof(_asf_object_t) == asf_object_header_size);

[[nodiscard]] bool resize_array(_asf_header_object_t* header, std::size_t entries) {
    // NOLINTNEXTLINE(bugprone-sizeof-expression): a table of pointers
    void* const array = std::realloc(header->children, entries * sizeof *header->children);
    if (!array) {
        return false;
    }
    header->children = static_cast<_asf_object_t**>(array);
    return true;
}

void free_child(_asf_object_t* child) {
    if (child->guid == ASF_ContentDescription) {
        asf_free_content_description(static_cast<_asf_content_description_t*>(child));
    } else if (child->guid == ASF_ExtendedContentDescription) {
        asf_free_ext_content_description(static_cast<_asf_ext_content_description_t*>(child));
    } else {
        std::free(child);
    }
}

/** Reads the children of one header object. */
class ChildReader {
public:
    /** The children begin at CURSOR's position. */
    ChildReader(ReadCursor* cursor, _asf_header_object_t* header)
        : cursor_(cursor), header_(header), position_(cursor->position()),
          file_end_(cursor->window().size()) {}

    /** Reads COUNT children, and goes where the last one ends; HEADER counts those that it has. False when
       they are fewer. */
    [[nodiscard]] bool read(std::uint32_t count);

private:
    [[nodiscard]] _asf_object_t* read_child(bool last);
    [[nodiscard]] _asf_object_t* parse(const _asf_object_t& child, bool last);
    [[nodiscard]] _asf_object_t* read_content_description(bool leads_on);
    [[nodiscard]] _asf_object_t* read_ext_content_description();
    [[nodiscard]] _asf_object_t* read_raw_block(const _asf_object_t& child);
    [[nodiscard]] bool append(_asf_object_t* child, std::uint32_t count);

    ReadCursor* cursor_;
    _asf_header_object_t* header_;
    std::uint64_t position_;
    std::optional<std::uint64_t> file_end_;
    std::uint64_t strings_ = 0; ///< bytes that the content descriptions took so far
    bool has_cd_ = false;       ///< the first content description was read: no other one is looked into
    bool has_ecd_ = false;
    std::size_t capacity_ = 0; ///< of the child array
};

bool ChildReader::read(std::uint32_t count) {
    if (!file_end_) {
        return false;
    }
    while (header_->child_count < count) {
        _asf_object_t* const child = read_child(header_->child_count == count - 1);
        if (!child || !append(child, count)) {
            return false;
        }
        position_ += child->size;
        if (!cursor_->seek(position_)) {
            return false;
        }
    }
    return true;
}

/** The child at the running position, or null. LAST: no other one follows. */
_asf_object_t* ChildReader::read_child(bool last) {
    _asf_object_t child{};
    if (!asf_read_object(cursor_, &child)) {
        return nullptr;
    }
    if (position_ > header_->size || child.size > header_->size - position_) {
        DebugError("asf_read_header_object: Size overrun reading header object %I64x + %I64x > %I64x\n",
                   position_, child.size, header_->size);
        return nullptr;
    }
    if (asf_position_behind(static_cast<std::int64_t>(position_), child.size) < 0) {
        return nullptr;
    }
    _asf_object_t* const parsed = parse(child, last);
    if (parsed) {
        // A header may have been read twice, from a file that others may write to: the record is what it was
        // parsed as.
        *parsed = child;
    }
    return parsed;
}

_asf_object_t* ChildReader::parse(const _asf_object_t& child, bool last) {
    const bool is_cd = child.guid == ASF_ContentDescription;
    const bool is_ecd = child.guid == ASF_ExtendedContentDescription;
    if (!is_cd && !is_ecd && child.guid != ASF_PaddingObject) {
        return read_raw_block(child);
    }
    // The readers of these begin with the object header.
    if (!cursor_->seek(position_)) {
        return nullptr;
    }
    const bool leads_on = last || child.size > 0;
    if (is_cd) {
        return read_content_description(leads_on);
    }
    if (is_ecd) {
        return leads_on ? read_ext_content_description() : nullptr;
    }
    return child.size > 0 ? asf_read_padding_object(cursor_, nullptr) : nullptr;
}

/** A content description's strings may run past its declared size, into bytes that later children claim
   again. All of them together can't be longer than the file, but for the last one. */
_asf_object_t* ChildReader::read_content_description(bool leads_on) {
    if (!leads_on || strings_ > *file_end_) {
        return nullptr;
    }
    _asf_content_description_t* const cd = has_cd_ ? asf_read_fixed_content_description(cursor_)
                                                   : asf_read_content_description(cursor_, nullptr);
    has_cd_ = true;
    if (cd) {
        strings_ += asf_content_description_bytes(cd);
    }
    return cd;
}

_asf_object_t* ChildReader::read_ext_content_description() {
    const auto form = has_ecd_ ? AsfDescriptorForm::packed : AsfDescriptorForm::records;
    has_ecd_ = true;
    return asf_read_ext_content_description(cursor_, form, nullptr);
}

_asf_object_t* ChildReader::read_raw_block(const _asf_object_t& child) {
    DebugInfo("[%I64x] %s\n", position_, GUIDNAME(child.guid));
    if (child.size < asf_object_header_size || position_ > *file_end_ ||
        child.size > *file_end_ - position_) {
        return nullptr;
    }
    AsfOwned<_asf_object_t> block(static_cast<_asf_object_t*>(std::malloc(child.size)));
    const std::uint64_t body = child.size - asf_object_header_size;
    if (!block || cursor_->read(block.get() + 1, body) != ReadStatus::whole) {
        return nullptr;
    }
    *block = child;
    return block.release();
}

/** Takes CHILD over; frees it on failure. */
bool ChildReader::append(_asf_object_t* child, std::uint32_t count) {
    if (header_->child_count == capacity_) {
        const std::size_t more = std::min<std::size_t>(count, std::max<std::size_t>(16, 2 * capacity_));
        if (!resize_array(header_, more)) {
            free_child(child);
            return false;
        }
        capacity_ = more;
    }
    header_->children[header_->child_count++] = child;
    return true;
}

} // namespace

int asf_insert_object(_asf_header_object_t* header, _asf_object_t* object) {
    if (!resize_array(header, header->child_count + std::size_t{1})) {
        return 0;
    }
    header->children[header->child_count++] = object;
    header->size += object->size + asf_object_header_size;
    return 1;
}

_asf_object_t* asf_append_object(_asf_header_object_t* header, _asf_object_t* object) {
    if (object && !asf_insert_object(header, object)) {
        free_child(object);
        return nullptr;
    }
    return object;
}

_asf_object_t* asf_find_object(const _asf_header_object_t* header, const GUID& guid) {
    for (std::uint32_t i = 0; i < header->child_count; ++i) {
        _asf_object_t* const child = header->children[i];
        if (child && child->guid == guid) {
            return child;
        }
    }
    return nullptr;
}

_asf_header_object_t* asf_read_header_object(FIOFUNCSTRUCT* file, _asf_header_object_t* header) {
    *header = {};
    const std::int64_t start = fio_ltell(file);
    if (start < 0) {
        DebugError("asf_read_header_object: Not a valid header\n");
        return nullptr;
    }
    const auto position = static_cast<std::uint64_t>(start);
    ReadWindow window(file, position);
    ReadCursor cursor(window, position, ReadWindow::no_end);
    if (!asf_read_header_object(&cursor, header)) {
        return nullptr;
    }
    fio_lseek(file, static_cast<std::int64_t>(cursor.position() + header->size), SEEK_SET);
    return header;
}

_asf_header_object_t* asf_read_header_object(ReadCursor* cursor, _asf_header_object_t* header) {
    *header = {};
    const TraceBatch batch;
    const std::uint64_t start = cursor->position();
    if (!asf_read_object(cursor, header) || header->guid != ASF_HeaderObject) {
        DebugError("asf_read_header_object: Not a valid header\n");
        return nullptr;
    }
    std::array<std::uint8_t, asf_header_object_fixed_size - asf_object_header_size> fields;
    if (!cursor->seek(start + asf_object_header_size) ||
        !asf_read_zero_padded(cursor, fields.data(), fields.size())) {
        return nullptr;
    }
    const std::uint32_t count = load_le32(fields.data());
    header->reserved = load_le16(fields.data() + 4);
    DebugInfo("[%I64x] HeaderObject\n", start);
    DebugInfo("Size = 0x%I64x\n", header->size);
    DebugInfo("NumObjects = %d\n", count);
    DebugInfo("Reserved = 0x%x\n", header->reserved);
    return ChildReader(cursor, header).read(count) ? header : nullptr;
}

int asf_store_header_object(FIOFUNCSTRUCT* file, const _asf_header_object_t* header) {
    AsfObjectWriter writer(file, 0);
    return asf_put_header_object(&writer, *header) && writer.settle() ? 1 : 0;
}

std::uint32_t asf_get_header_object_size(const _asf_header_object_t* header) {
    const TraceBatch batch;
    std::uint32_t size = asf_header_object_fixed_size;
    for (std::uint32_t i = 0; i < header->child_count; ++i) {
        _asf_object_t* const child = header->children[i];
        if (!child) {
            continue;
        }
        if (child->guid == ASF_ContentDescription) {
            child->size = asf_get_content_description_size(static_cast<_asf_content_description_t*>(child));
        } else if (child->guid == ASF_ExtendedContentDescription) {
            child->size =
                asf_get_ext_content_description_size(static_cast<_asf_ext_content_description_t*>(child));
        }
        size += static_cast<std::uint32_t>(child->size);
    }
    DebugInfo("asf_get_header_object_size: %x bytes\n", size);
    return size;
}

void asf_free_header_object(_asf_header_object_t* header) {
    _asf_object_t** const first = header->children;
    _asf_object_t** const last = first + header->child_count;
    std::sort(first, last, std::less<>());
    std::for_each(first, std::unique(first, last), [](_asf_object_t* child) {
        if (child) {
            free_child(child);
        }
    });
    std::free(first);
    *header = {};
}

} // namespace velmora
