#include "content_descriptor.h"

#include "../detail/trace_line.h"
#include "descriptor_value.h"
#include "detail/cursor_readers.h"
#include "detail/object_writer.h"
#include "detail/owned.h"
#include "detail/utf16.h"

#include "taglib/byte_order.h"
#include "taglib/trace.h"

#include <array>
#include <cstring>

namespace velmora {

namespace {

/** LENGTH bytes in BYTES, nothing for length 0. False when they can't be had or there is no memory for
   them. */
bool read_bytes(ReadCursor* cursor, std::uint16_t length, AsfOwned<std::uint8_t>& bytes) {
    if (length == 0) {
        return true;
    }
    if (length > cursor->left()) {
        return false;
    }
    bytes.reset(asf_new_bytes(length));
    return bytes && asf_read_zero_padded(cursor, bytes.get(), length);
}

void log_value(const _asf_content_descriptor_t& descriptor) {
    if (descriptor.type == asf_value_type::unicode) {
        const Utf16TraceText value(descriptor.value, descriptor.value_length);
        TraceLine().text("  unicode: ").utf16le(value.get()).text("\n");
        return;
    }
    const std::uint64_t number = asf_value_as_number(&descriptor);
    const auto low = static_cast<std::uint32_t>(number);
    const auto signed_low = static_cast<std::int32_t>(low);
    switch (descriptor.type) {
    case asf_value_type::bytearray: {
        // As a byte string: up to its first zero byte, never past its end.
        const char* const text = descriptor.value ? reinterpret_cast<const char*>(descriptor.value) : "";
        TraceLine().text("  bytearray: ").text({text, ::strnlen(text, descriptor.value_length)}).text("\n");
        break;
    }
    case asf_value_type::boolean:
        TraceLine().text("  bool: ").decimal(signed_low).text("\n");
        break;
    case asf_value_type::dword:
        TraceLine().text("  dword: 0x").hex(low).text(" (").decimal(signed_low).text(")\n");
        break;
    case asf_value_type::qword:
        TraceLine()
            .text("  qword: 0x")
            .hex(number)
            .text(" (")
            .decimal(static_cast<std::int64_t>(number))
            .text(")\n");
        break;
    case asf_value_type::word:
        TraceLine().text("  word: 0x").hex(low).text(" (").decimal(signed_low).text(")\n");
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
    asf_log_content_descriptor_name(position, descriptor.name, descriptor.name_length);
    log_value(descriptor);
}

void asf_log_content_descriptor_name(std::int64_t position, const void* name, std::uint16_t length) {
    TraceLine()
        .text("[")
        .hex(static_cast<std::uint64_t>(position))
        .text("] ")
        .utf16le(Utf16TraceText(name, length).get())
        .text("\n");
}

_asf_content_descriptor_t* asf_read_content_descriptor(FIOFUNCSTRUCT* file,
                                                       _asf_content_descriptor_t* descriptor) {
    if (descriptor) {
        *descriptor = {};
    }
    return asf_read_at_position(
        file, [descriptor](ReadCursor* cursor) { return asf_read_content_descriptor(cursor, descriptor); },
        [descriptor](_asf_content_descriptor_t* read) {
            std::free(read->name);
            std::free(read->value);
            *read = {};
            std::free(read == descriptor ? nullptr : read);
        });
}

_asf_content_descriptor_t* asf_read_content_descriptor(ReadCursor* cursor,
                                                       _asf_content_descriptor_t* descriptor) {
    if (descriptor) {
        *descriptor = {};
    }
    const auto start = static_cast<std::int64_t>(cursor->position());
    AsfOwned<std::uint8_t> name;
    AsfOwned<std::uint8_t> value;
    _asf_content_descriptor_t read{};
    std::array<std::uint8_t, 2> name_length;
    std::array<std::uint8_t, 4> type_and_length;
    if (cursor->left() < asf_content_descriptor_fixed_size ||
        !asf_read_zero_padded(cursor, name_length.data(), name_length.size())) {
        return nullptr;
    }
    read.name_length = load_le16(name_length.data());
    if (!read_bytes(cursor, read.name_length, name) ||
        !asf_read_zero_padded(cursor, type_and_length.data(), type_and_length.size())) {
        return nullptr;
    }
    read.type = load_le16(type_and_length.data());
    read.value_length = load_le16(type_and_length.data() + 2);
    if (!read_bytes(cursor, read.value_length, value)) {
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
    AsfObjectWriter writer(file, fio_ltell(file));
    writer.put_descriptor(*descriptor);
    writer.finish();
    return 1;
}

} // namespace velmora
