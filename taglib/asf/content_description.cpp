#include "content_description.h"

#include "detail/cursor_readers.h"
#include "detail/object_writer.h"
#include "detail/owned.h"
#include "detail/utf16.h"
#include "guids.h"

#include "taglib/byte_order.h"
#include "taglib/trace.h"

#include <array>

namespace velmora {

namespace {

constexpr std::uint32_t fixed_size = 34;

struct StringField {
    const char* line; ///< of the trace
    std::uint16_t _asf_content_description_t::*length;
    std::uint8_t* _asf_content_description_t::*text;
};

/** In the order of the file. */
constexpr std::array<StringField, 5> string_fields{{
    {"  Title = %S\n", &_asf_content_description_t::title_length, &_asf_content_description_t::title},
    {"  Author = %S\n", &_asf_content_description_t::author_length, &_asf_content_description_t::author},
    {"  Copyright = %S\n", &_asf_content_description_t::copyright_length,
     &_asf_content_description_t::copyright},
    {"  Description = %S\n", &_asf_content_description_t::description_length,
     &_asf_content_description_t::description},
    {"  Rating = %S\n", &_asf_content_description_t::rating_length, &_asf_content_description_t::rating},
}};

void free_strings(_asf_content_description_t* cd) {
    for (const StringField& field : string_fields) {
        std::free(cd->is_fixed ? nullptr : cd->*field.text);
        cd->*field.text = nullptr;
        cd->*field.length = 0;
    }
}

/** False when the bytes can't be had although the file holds them. */
bool read_strings(ReadCursor* cursor, _asf_content_description_t* cd) {
    for (const StringField& field : string_fields) {
        const std::uint16_t length = cd->*field.length;
        if (length == 0) {
            continue;
        }
        std::uint8_t* const text = asf_new_bytes(length);
        if (!text) {
            cd->*field.length = 0;
            if (!cursor->skip(length)) {
                return false;
            }
            continue;
        }
        cd->*field.text = text;
        if (!asf_read_zero_padded(cursor, text, length)) {
            return false;
        }
    }
    return true;
}

/** The object header and the lengths. */
bool read_lengths(ReadCursor* cursor, _asf_content_description_t* cd) {
    std::array<std::uint8_t, 2 * string_fields.size()> lengths;
    const std::uint64_t behind = cursor->position() + asf_object_header_size;
    if (!asf_read_object(cursor, cd) || !cursor->seek(behind) ||
        !asf_read_zero_padded(cursor, lengths.data(), lengths.size())) {
        return false;
    }
    const std::uint8_t* at = lengths.data();
    for (const StringField& field : string_fields) {
        cd->*field.length = load_le16(at);
        at += 2;
    }
    return true;
}

/** Traces the description and goes behind it. */
bool finish(ReadCursor* cursor, std::uint64_t start, const _asf_content_description_t* cd) {
    asf_log_content_description(static_cast<std::int64_t>(start), *cd);
    for (const StringField& field : string_fields) {
        DebugInfo(field.line, Utf16TraceText(cd->*field.text, cd->*field.length).get());
    }
    return asf_seek_behind(cursor, start, cd->size);
}

} // namespace

void asf_log_content_description(std::int64_t position, const _asf_content_description_t& cd) {
    DebugInfo("[%I64x] ContentDescription\n", position);
    DebugInfo("  Size = 0x%I64x\n", cd.size);
}

_asf_content_description_t* asf_init_content_description() {
    auto* const cd = asf_new_record<_asf_content_description_t>();
    if (cd) {
        cd->guid = ASF_ContentDescription;
    }
    return cd;
}

void asf_free_content_description(_asf_content_description_t* cd) {
    if (cd) {
        free_strings(cd);
        std::free(cd);
    }
}

std::uint32_t asf_content_description_bytes(const _asf_content_description_t* cd) {
    std::uint32_t size = fixed_size;
    for (const StringField& field : string_fields) {
        size += cd->*field.length;
    }
    return size;
}

std::uint32_t asf_get_content_description_size(const _asf_content_description_t* cd) {
    const std::uint32_t size = asf_content_description_bytes(cd);
    DebugInfo("asf_get_content_description_size: %x bytes\n", size);
    return size;
}

_asf_content_description_t* asf_read_content_description(FIOFUNCSTRUCT* file,
                                                         _asf_content_description_t* cd) {
    if (cd) {
        *cd = {};
    }
    return asf_read_at_position(
        file, [cd](ReadCursor* cursor) { return asf_read_content_description(cursor, cd); },
        [cd](_asf_content_description_t* read) {
            free_strings(read);
            std::free(read == cd ? nullptr : read);
        });
}

_asf_content_description_t* asf_read_content_description(ReadCursor* cursor, _asf_content_description_t* cd) {
    AsfOwned<_asf_content_description_t> made;
    if (!cd) {
        made.reset(asf_new_record<_asf_content_description_t>());
        cd = made.get();
        if (!cd) {
            return nullptr;
        }
    }
    *cd = {};
    const TraceBatch batch;
    const std::uint64_t start = cursor->position();
    if (!read_lengths(cursor, cd) || !read_strings(cursor, cd) || !finish(cursor, start, cd)) {
        free_strings(cd);
        return nullptr;
    }
    (void)made.release();
    return cd;
}

_asf_content_description_t* asf_read_fixed_content_description(ReadCursor* cursor) {
    _asf_content_description_t cd{};
    const std::uint64_t start = cursor->position();
    if (!read_lengths(cursor, &cd)) {
        return nullptr;
    }
    const std::size_t strings = asf_content_description_bytes(&cd) - fixed_size;
    AsfOwned<std::uint8_t> block(asf_new_bytes(sizeof cd + strings));
    if (!block || !asf_read_zero_padded(cursor, block.get() + sizeof cd, strings)) {
        return nullptr;
    }
    cd.is_fixed = true;
    std::uint8_t* text = block.get() + sizeof cd;
    for (const StringField& field : string_fields) {
        cd.*field.text = cd.*field.length > 0 ? text : nullptr;
        text += cd.*field.length;
    }
    auto* const record = reinterpret_cast<_asf_content_description_t*>(block.get());
    *record = cd;
    if (!finish(cursor, start, record)) {
        return nullptr;
    }
    (void)block.release();
    return record;
}

int asf_store_content_description(FIOFUNCSTRUCT* file, const _asf_content_description_t* cd) {
    AsfObjectWriter writer(file, fio_ltell(file));
    writer.put_content_description(*cd);
    writer.finish();
    return writer.guid_was_written() ? 1 : 0;
}

} // namespace velmora
