#include "ext_content_description.h"

#include "../byte_order.h"
#include "../trace.h"
#include "ahead_reader.h"
#include "checked_position.h"
#include "descriptor_value.h"
#include "guids.h"
#include "owned.h"
#include "packed_descriptors.h"
#include "read_at.h"
#include "utf16.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <unistd.h>

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

void log_object_lines(std::int64_t start, const _asf_ext_content_description_t* ecd) {
    DebugInfo("[%I64x] ExtendedContentDescription\n", start);
    DebugInfo("  Size = 0x%I64x\n", ecd->size);
}

[[nodiscard]] bool resize_array(_asf_ext_content_description_t* ecd, std::size_t entries) {
    void* const array = std::realloc(ecd->descriptors, entries * sizeof *ecd->descriptors);
    if (!array) {
        return false;
    }
    ecd->descriptors = static_cast<_asf_content_descriptor_t**>(array);
    return true;
}

/** Reads COUNT descriptors. The array grows with what is really there. */
bool read_descriptors(AsfAheadReader* fields, _asf_ext_content_description_t* ecd, std::uint16_t count) {
    std::size_t capacity = 0;
    while (ecd->count < count) {
        if (ecd->count == capacity) {
            capacity = std::min<std::size_t>(count, std::max<std::size_t>(16, 2 * capacity));
            if (!resize_array(ecd, capacity)) {
                return false;
            }
        }
        _asf_content_descriptor_t* const descriptor = asf_read_content_descriptor_from(fields, nullptr);
        if (!descriptor) {
            return false;
        }
        ecd->descriptors[ecd->count++] = descriptor;
    }
    return true;
}

bool read_body(FIOFUNCSTRUCT* file, std::int64_t start, std::int64_t file_end, AsfDescriptorForm form,
               _asf_ext_content_description_t* ecd) {
    std::uint8_t count_bytes[fixed_size - asf_object_header_size] = {};
    const std::int64_t next = asf_position_behind(start, ecd->size);
    if (next < 0 || file_end < 0 ||
        !asf_read_zero_padded(file, start + asf_object_header_size, count_bytes, sizeof count_bytes)) {
        return false;
    }
    const std::uint16_t count = load_le16(count_bytes);
    log_object_lines(start, ecd);
    DebugInfo("  NumEntries = %d\n", count);
    AsfAheadReader fields(file, start + fixed_size, std::min(next, file_end), AsfAheadReader::most_ahead);
    const bool whole = form == AsfDescriptorForm::packed ? asf_read_packed_descriptors(&fields, ecd, count)
                                                         : read_descriptors(&fields, ecd, count);
    return whole && fio_lseek(file, next, SEEK_SET) == next;
}

/** A failed write shows in the file's position only. */
void store_packed(FIOFUNCSTRUCT* file, const _asf_ext_content_description_t* ecd) {
    std::int64_t position = fio_ltell(file);
    for (AsfPackedWalk walk(ecd); walk.next();) {
        asf_log_content_descriptor_name(position, walk.descriptor());
        position += asf_content_descriptor_bytes(&walk.descriptor());
    }
    (void)fio_write(file, ecd->packed, ecd->packed_size);
}

} // namespace

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
    DebugInfo("asf_get_ext_content_description_size: %x bytes\n", size);
    return size;
}

_asf_ext_content_description_t* asf_read_ext_content_description(FIOFUNCSTRUCT* file,
                                                                 _asf_ext_content_description_t* ecd) {
    return asf_read_ext_content_description_at(file, fio_ltell(file), asf_file_end(file),
                                               AsfDescriptorForm::records, ecd);
}

_asf_ext_content_description_t* asf_read_ext_content_description_at(FIOFUNCSTRUCT* file, std::int64_t start,
                                                                    std::int64_t file_end,
                                                                    AsfDescriptorForm form,
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
    if (!asf_read_object_at(file, start, ecd)) {
        return nullptr;
    }
    if (!read_body(file, start, file_end, form, ecd)) {
        free_descriptors(ecd);
        return nullptr;
    }
    (void)made.release();
    return ecd;
}

int asf_store_ext_content_description(FIOFUNCSTRUCT* file, const _asf_ext_content_description_t* ecd) {
    log_object_lines(fio_ltell(file), ecd);
    if (!asf_store_object(file, ecd)) {
        return 0;
    }
    (void)fio_put_le16(file, ecd->count);
    if (ecd->packed) {
        store_packed(file, ecd);
        return 1;
    }
    for (std::uint16_t i = 0; i < ecd->count; ++i) {
        if (!asf_store_content_descriptor(file, ecd->descriptors[i])) {
            return 0;
        }
    }
    return 1;
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
