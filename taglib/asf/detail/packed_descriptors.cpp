#include "packed_descriptors.h"

#include "cursor_readers.h"
#include "owned.h"

#include "taglib/byte_order.h"

#include <algorithm>
#include <cstring>

namespace velmora {

namespace {

/** A block that grows as bytes are read into it. */
class Block {
public:
    /** Reads LENGTH bytes behind those that the block has; null when they can't be had. */
    [[nodiscard]] const std::uint8_t* read(ReadCursor* cursor, std::size_t length) {
        if (length > cursor->left() || !reserve(size_ + length)) {
            return nullptr;
        }
        std::uint8_t* const bytes = memory_.get() + size_;
        size_ += length;
        return asf_read_zero_padded(cursor, bytes, length) ? bytes : nullptr;
    }
    [[nodiscard]] std::size_t size() const { return size_; }
    /** The byte at POSITION, which stays there only until the next read. */
    [[nodiscard]] std::uint8_t* at(std::size_t position) { return memory_.get() + position; }
    /** The memory, cut to its contents; the caller owns it. */
    [[nodiscard]] std::uint8_t* release() {
        void* const cut = size_ > 0 ? std::realloc(memory_.get(), size_) : nullptr;
        std::uint8_t* const kept = memory_.release();
        return cut ? static_cast<std::uint8_t*>(cut) : kept;
    }

private:
    bool reserve(std::size_t size) {
        if (size <= capacity_) {
            return true;
        }
        const std::size_t capacity = std::max<std::size_t>(size, capacity_ + capacity_ / 2);
        void* const grown = std::realloc(memory_.get(), capacity);
        if (!grown) {
            return false;
        }
        (void)memory_.release();
        memory_.reset(static_cast<std::uint8_t*>(grown));
        capacity_ = capacity;
        return true;
    }

    AsfOwned<std::uint8_t> memory_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};

/** Makes VIEW the descriptor at AT, whose name and value stay where they are. Returns what lies behind it. */
const std::uint8_t* look_at(const std::uint8_t* at, _asf_content_descriptor_t* view) {
    const std::uint16_t name_length = load_le16(at);
    const std::uint8_t* const name = at + 2;
    const std::uint8_t* const behind_name = name + name_length;
    const std::uint16_t value_length = load_le16(behind_name + 2);
    const std::uint8_t* const value = behind_name + 4;
    view->name_length = name_length;
    view->name = name_length > 0 ? const_cast<std::uint8_t*>(name) : nullptr;
    view->type = load_le16(behind_name);
    view->value_length = value_length;
    view->value = value_length > 0 ? const_cast<std::uint8_t*>(value) : nullptr;
    return value + value_length;
}

bool read_packed(ReadCursor* cursor, Block& block) {
    const std::size_t start = block.size();
    const auto position = static_cast<std::int64_t>(cursor->position());
    if (cursor->left() < asf_content_descriptor_fixed_size) {
        return false;
    }
    const std::uint8_t* bytes = block.read(cursor, 2);
    const std::size_t name_length = bytes ? load_le16(bytes) : 0;
    // The name with the type and the value's length.
    bytes = bytes ? block.read(cursor, name_length + 4) : nullptr;
    const std::size_t value_length = bytes ? load_le16(bytes + name_length + 2) : 0;
    if (!bytes || (value_length > 0 && !block.read(cursor, value_length))) {
        return false;
    }
    _asf_content_descriptor_t read;
    look_at(block.at(start), &read);
    asf_log_content_descriptor(position, read);
    return true;
}

std::uint8_t* copy_of(const std::uint8_t* bytes, std::size_t length) {
    std::uint8_t* const copy = asf_new_bytes(length);
    if (copy) {
        std::memcpy(copy, bytes, length);
    }
    return copy;
}

/** A record of its own, or null. */
_asf_content_descriptor_t* record_of(const _asf_content_descriptor_t& view) {
    _asf_content_descriptor_t* const record = asf_init_content_descriptor();
    if (!record) {
        return nullptr;
    }
    *record = view;
    record->name = view.name ? copy_of(view.name, view.name_length) : nullptr;
    record->value = view.value ? copy_of(view.value, view.value_length) : nullptr;
    if ((view.name && !record->name) || (view.value && !record->value)) {
        asf_free_content_descriptor(record);
        return nullptr;
    }
    return record;
}

} // namespace

bool AsfPackedWalk::next() {
    if (left_ == 0) {
        return false;
    }
    --left_;
    at_ = look_at(at_, &descriptor_);
    return true;
}

bool asf_read_packed_descriptors(ReadCursor* cursor, _asf_ext_content_description_t* ecd,
                                 std::uint16_t count) {
    Block block;
    for (std::uint16_t i = 0; i < count; ++i) {
        if (!read_packed(cursor, block)) {
            return false;
        }
    }
    ecd->count = count;
    ecd->packed_size = static_cast<std::uint32_t>(block.size());
    ecd->packed = block.release();
    return true;
}

bool asf_unpack_descriptors(_asf_ext_content_description_t* ecd) {
    if (!ecd->packed) {
        return true;
    }
    const std::size_t count = ecd->count;
    AsfOwned<_asf_content_descriptor_t*> array(
        // NOLINTNEXTLINE(bugprone-sizeof-expression): a table of pointers
        static_cast<_asf_content_descriptor_t**>(std::calloc(count, sizeof(_asf_content_descriptor_t*))));
    std::size_t done = 0;
    AsfPackedWalk walk(ecd);
    while (array && walk.next()) {
        array.get()[done] = record_of(walk.descriptor());
        if (!array.get()[done]) {
            break;
        }
        ++done;
    }
    if (!array || done < count) {
        std::for_each(array.get(), array.get() + done, asf_free_content_descriptor);
        return false;
    }
    std::free(ecd->packed);
    ecd->packed = nullptr;
    ecd->packed_size = 0;
    ecd->descriptors = array.release();
    return true;
}

} // namespace velmora
