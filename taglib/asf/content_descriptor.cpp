#include "content_descriptor.h"

#include "../byte_order.h"
#include "../trace.h"
#include "ahead_reader.h"
#include "descriptor_value.h"
#include "owned.h"
#include "utf16.h"

#include <limits>

namespace velmora {

namespace {

/** LENGTH bytes of FIELDS in BYTES, nothing for length 0. False when they can't be had or there is no memory
   for them. */
bool read_bytes(AsfAheadReader* fields, std::uint16_t length, AsfOwned<std::uint8_t>& bytes) {
    if (length == 0) {
        return true;
    }
    if (length > fields->left()) {
        return false;
    }
    bytes.reset(asf_new_bytes(length));
    return bytes && fields->read(bytes.get(), length);
}

void log_value(const _asf_content_descriptor_t& descriptor) {
    const std::uint64_t number = asf_value_as_number(&descriptor);
    const auto low = static_cast<std::uint32_t>(number);
    switch (descriptor.type) {
    case asf_value_type::unicode:
        DebugInfo("  unicode: %S\n", Utf16TraceText(descriptor.value, descriptor.value_length).get());
        break;
    case asf_value_type::bytearray: {
        // As a byte string: up to its first zero byte, never past its end.
        const char* const text = descriptor.value ? reinterpret_cast<const char*>(descriptor.value) : "";
        DebugInfo("  bytearray: %.*s\n", static_cast<int>(descriptor.value_length), text);
        break;
    }
    case asf_value_type::boolean:
        DebugInfo("  bool: %d\n", static_cast<int>(low));
        break;
    case asf_value_type::dword:
        DebugInfo("  dword: 0x%x (%d)\n", low, static_cast<int>(low));
        break;
    case asf_value_type::qword:
        DebugInfo("  qword: 0x%I64x (%I64d)\n", number, number);
        break;
    case asf_value_type::word:
        DebugInfo("  word: 0x%x (%d)\n", low, static_cast<int>(low));
        break;
    default:
        DebugError("  unknown type %d length %d\n", descriptor.type, descriptor.value_length);
    }
}

} // namespace

_asf_content_descriptor_t* asf_init_content_descriptor() {
    return asf_new_record<_asf_content_descriptor_t>();
}

void asf_free_content_descriptor(_asf_content_descriptor_t* descriptor) {
    if (descriptor) {
        std::free(descriptor->name);
        std::free(descriptor->value);
        std::free(descriptor);
    }
}

std::uint32_t asf_content_descriptor_bytes(const _asf_content_descriptor_t* descriptor) {
    return asf_content_descriptor_fixed_size + descriptor->name_length + descriptor->value_length;
}

void asf_log_content_descriptor(std::int64_t position, const _asf_content_descriptor_t& descriptor) {
    asf_log_content_descriptor_name(position, descriptor);
    log_value(descriptor);
}

void asf_log_content_descriptor_name(std::int64_t position, const _asf_content_descriptor_t& descriptor) {
    DebugInfo("[%I64x] %S\n", position, Utf16TraceText(descriptor.name, descriptor.name_length).get());
}

_asf_content_descriptor_t* asf_read_content_descriptor(FIOFUNCSTRUCT* file,
                                                       _asf_content_descriptor_t* descriptor) {
    return asf_read_content_descriptor_before(file, descriptor, std::numeric_limits<std::int64_t>::max());
}

_asf_content_descriptor_t* asf_read_content_descriptor_before(FIOFUNCSTRUCT* file,
                                                              _asf_content_descriptor_t* descriptor,
                                                              std::int64_t end) {
    const std::int64_t start = fio_ltell(file);
    if (start < 0) {
        if (descriptor) {
            *descriptor = {};
        }
        return nullptr;
    }
    AsfAheadReader fields(file, start, end, 0);
    return asf_read_content_descriptor_from(&fields, descriptor);
}

_asf_content_descriptor_t* asf_read_content_descriptor_from(AsfAheadReader* fields,
                                                            _asf_content_descriptor_t* descriptor) {
    if (descriptor) {
        *descriptor = {};
    }
    const std::int64_t start = fields->position();
    AsfOwned<std::uint8_t> name;
    AsfOwned<std::uint8_t> value;
    _asf_content_descriptor_t read{};
    std::uint8_t name_length[2] = {};
    std::uint8_t type_and_length[4] = {};
    if (fields->left() < asf_content_descriptor_fixed_size ||
        !fields->read(name_length, sizeof name_length)) {
        return nullptr;
    }
    read.name_length = load_le16(name_length);
    if (!read_bytes(fields, read.name_length, name) ||
        !fields->read(type_and_length, sizeof type_and_length)) {
        return nullptr;
    }
    read.type = load_le16(type_and_length);
    read.value_length = load_le16(type_and_length + 2);
    if (!read_bytes(fields, read.value_length, value)) {
        return nullptr;
    }
    if (!descriptor) {
        descriptor = asf_init_content_descriptor();
        if (!descriptor) {
            return nullptr;
        }
    }
    read.name = name.release();
    read.value = value.release();
    *descriptor = read;
    asf_log_content_descriptor(start, read);
    return descriptor;
}

int asf_store_content_descriptor(FIOFUNCSTRUCT* file, const _asf_content_descriptor_t* descriptor) {
    asf_log_content_descriptor_name(fio_ltell(file), *descriptor);
    (void)fio_put_le16(file, descriptor->name_length);
    if (descriptor->name && descriptor->name_length > 0) {
        (void)fio_write(file, descriptor->name, descriptor->name_length);
    }
    (void)fio_put_le16(file, descriptor->type);
    (void)fio_put_le16(file, descriptor->value_length);
    if (descriptor->value && descriptor->value_length > 0) {
        (void)fio_write(file, descriptor->value, descriptor->value_length);
    }
    return 1;
}

} // namespace velmora
