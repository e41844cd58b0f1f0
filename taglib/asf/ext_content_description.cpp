#include "ext_content_description.h"

#include "../detail/trace_line.h"
#include "descriptor_value.h"
#include "detail/cursor_readers.h"
#include "detail/object_writer.h"
#include "detail/owned.h"
#include "detail/packed_descriptors.h"
#include "detail/utf16.h"
#include "guids.h"

#include "taglib/byte_order.h"
#include "taglib/trace.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace velmora {

namespace {

constexpr std::uint32_t fixed_size = 26;

/** A name as it is compared with the stored ones. */
class NameKey {
public:
    explicit NameKey(const char* name) {
        utf8_to_utf16le(name, bytes_, limit);
        length_ = utf16le_length(bytes_, limit) + 2;
    }
    [[nodiscard]] bool matches(const _asf_content_descriptor_t& descriptor) const {
        return descriptor.name && descriptor.name_length >= length_ &&
               std::memcmp(descriptor.name, bytes_, length_) == 0;
    }

private:
    static constexpr std::size_t limit = 256;
    std::uint8_t bytes_[limit + 2] = {}; ///< so that a zero unit follows a name of full length
    std::size_t length_;
};

/** The index of the descriptor called NAME, or ecd->count. */
std::uint16_t index_of(const _asf_ext_content_description_t* ecd, const char* name) {
    // What the object holds is the same in both forms.
    if (!asf_unpack_descriptors(const_cast<_asf_ext_content_description_t*>(ecd))) {
        return ecd->count;
    }
    const NameKey key(name);
    std::uint16_t index = 0;
    while (index < ecd->count && !key.matches(*ecd->descriptors[index])) {
        ++index;
    }
    return index;
}

void free_descriptors(_asf_ext_content_description_t* ecd) {
    for (std::uint16_t i = 0; ecd->descriptors && i < ecd->count; ++i) {
        asf_free_content_descriptor(ecd->descriptors[i]);
    }
    std::free(ecd->descriptors);
    std::free(ecd->packed);
    ecd->descriptors = nullptr;
    ecd->packed = nullptr;
    ecd->packed_size = 0;
    ecd->count = 0;
}

[[nodiscard]] bool resize_array(_asf_ext_content_description_t* ecd, std::size_t entries) {
    // NOLINTNEXTLINE(bugprone-sizeof-expression): a table of pointers
    void* const array = std::realloc(ecd->descriptors, entries * sizeof *ecd->descriptors);
    if (!array) {
        return false;
    }
    ecd->descriptors = static_cast<_asf_content_descriptor_t**>(array);
    return true;
}

/** Reads COUNT descriptors. The array grows with what is really there. */
bool read_descriptors(ReadCursor* cursor, _asf_ext_content_description_t* ecd, std::uint16_t count) {
    std::size_t capacity = 0;
    while (ecd->count < count) {
        if (ecd->count == capacity) {
            capacity = std::min<std::size_t>(count, std::max<std::size_t>(16, 2 * capacity));
            if (!resize_array(ecd, capacity)) {
                return false;
            }
        }
        _asf_content_descriptor_t* const descriptor = asf_read_content_descriptor(cursor, nullptr);
        if (!descriptor) {
            return false;
        }
        ecd->descriptors[ecd->count++] = descriptor;
    }
    return true;
}

bool read_body(ReadCursor* cursor, std::uint64_t start, AsfDescriptorForm form,
               _asf_ext_content_description_t* ecd) {
    std::array<std::uint8_t, fixed_size - asf_object_header_size> count_bytes;
    const std::int64_t next = asf_position_behind(static_cast<std::int64_t>(start), ecd->size);
    const std::optional<std::uint64_t> file_end = cursor->window().size();
    if (next < 0 || !file_end || !cursor->seek(start + asf_object_header_size) ||
        !asf_read_zero_padded(cursor, count_bytes.data(), count_bytes.size())) {
        return false;
    }
    const std::uint16_t count = load_le16(count_bytes.data());
    asf_log_ext_content_description(static_cast<std::int64_t>(start), *ecd);
    TraceLine().text("  NumEntries = ").decimal(count).text("\n");
    ReadCursor fields(cursor->window(), start + fixed_size,
                      std::min(static_cast<std::uint64_t>(next), *file_end));
    const bool whole = form == AsfDescriptorForm::packed ? asf_read_packed_descriptors(&fields, ecd, count)
                                                         : read_descriptors(&fields, ecd, count);
    return whole && cursor->seek(static_cast<std::uint64_t>(next));
}

} // namespace

void asf_log_ext_content_description(std::int64_t position, const _asf_ext_content_description_t& ecd) {
    TraceLine().text("[").hex(static_cast<std::uint64_t>(position)).text("] ExtendedContentDescription\n");
    TraceLine().text("  Size = 0x").hex(ecd.size).text("\n");
}

_asf_ext_content_description_t* asf_init_ext_content_description() {
    auto* const ecd = asf_new_record<_asf_ext_content_description_t>();
    if (ecd) {
        ecd->guid = ASF_ExtendedContentDescription;
    }
    return ecd;
}

void asf_free_ext_content_description(_asf_ext_content_description_t* ecd) {
    if (ecd) {
        free_descriptors(ecd);
        std::free(ecd);
    }
}

std::uint32_t asf_ext_content_description_bytes(const _asf_ext_content_description_t* ecd) {
    std::uint32_t size = fixed_size + ecd->packed_size;
    for (std::uint16_t i = 0; ecd->descriptors && i < ecd->count; ++i) {
        size += asf_content_descriptor_bytes(ecd->descriptors[i]);
    }
    return size;
}

std::uint32_t asf_get_ext_content_description_size(const _asf_ext_content_description_t* ecd) {
    const std::uint32_t size = asf_ext_content_description_bytes(ecd);
    TraceLine().text("asf_get_ext_content_description_size: ").hex(size).text(" bytes\n");
    return size;
}

_asf_ext_content_description_t* asf_read_ext_content_description(FIOFUNCSTRUCT* file,
                                                                 _asf_ext_content_description_t* ecd) {
    if (ecd) {
        *ecd = {};
    }
    return asf_read_at_position(
        file,
        [ecd](ReadCursor* cursor) {
            return asf_read_ext_content_description(cursor, AsfDescriptorForm::records, ecd);
        },
        [ecd](_asf_ext_content_description_t* read) {
            free_descriptors(read);
            std::free(read == ecd ? nullptr : read);
        });
}

_asf_ext_content_description_t* asf_read_ext_content_description(ReadCursor* cursor, AsfDescriptorForm form,
                                                                 _asf_ext_content_description_t* ecd) {
    AsfOwned<_asf_ext_content_description_t> made;
    if (!ecd) {
        made.reset(asf_new_record<_asf_ext_content_description_t>());
        ecd = made.get();
        if (!ecd) {
            return nullptr;
        }
    }
    *ecd = {};
    const TraceBatch batch;
    const std::uint64_t start = cursor->position();
    if (!asf_read_object(cursor, ecd)) {
        return nullptr;
    }
    if (!read_body(cursor, start, form, ecd)) {
        free_descriptors(ecd);
        return nullptr;
    }
    (void)made.release();
    return ecd;
}

int asf_store_ext_content_description(FIOFUNCSTRUCT* file, const _asf_ext_content_description_t* ecd) {
    AsfObjectWriter writer(file, fio_ltell(file));
    writer.put_ext_content_description(*ecd);
    writer.finish();
    return writer.guid_was_written() ? 1 : 0;
}

int asf_insert_content_descriptor(_asf_ext_content_description_t* ecd,
                                  _asf_content_descriptor_t* descriptor) {
    if (ecd->count == std::numeric_limits<std::uint16_t>::max() || !asf_unpack_descriptors(ecd) ||
        !resize_array(ecd, ecd->count + 1u)) {
        return 0;
    }
    ecd->descriptors[ecd->count++] = descriptor;
    ecd->size += asf_content_descriptor_bytes(descriptor);
    return 1;
}

_asf_content_descriptor_t* asf_find_content_descriptor(const _asf_ext_content_description_t* ecd,
                                                       const char* name) {
    const std::uint16_t index = index_of(ecd, name);
    return index < ecd->count ? ecd->descriptors[index] : nullptr;
}

int asf_remove_content_descriptor(_asf_ext_content_description_t* ecd, const char* name) {
    const std::uint16_t index = index_of(ecd, name);
    if (index == ecd->count) {
        return 0;
    }
    asf_free_content_descriptor(ecd->descriptors[index]);
    std::copy(ecd->descriptors + index + 1, ecd->descriptors + ecd->count, ecd->descriptors + index);
    --ecd->count;
    return 1;
}

std::uint16_t asf_get_content_descriptor_str(const _asf_ext_content_description_t* ecd, const char* name,
                                             char* text, std::size_t capacity) {
    const _asf_content_descriptor_t* const descriptor = asf_find_content_descriptor(ecd, name);
    if (!descriptor || !descriptor->value) {
        return 0;
    }
    asf_value_as_text(descriptor, text, capacity);
    return descriptor->value_length;
}

int asf_set_content_descriptor_str(_asf_ext_content_description_t* ecd, const char* name, std::uint16_t type,
                                   const char* text) {
    _asf_content_descriptor_t* descriptor = asf_find_content_descriptor(ecd, name);
    if (!descriptor) {
        descriptor = asf_init_content_descriptor();
        if (!descriptor || !asf_insert_content_descriptor(ecd, descriptor)) {
            asf_free_content_descriptor(descriptor);
            return 0;
        }
    }
    descriptor->name_length = asf_store_value(&descriptor->name, asf_value_type::unicode, name);
    descriptor->type = type;
    descriptor->value_length = asf_store_value(&descriptor->value, type, text);
    return 1;
}

} // namespace velmora
