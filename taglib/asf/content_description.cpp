#include "content_description.h"

#include "../byte_order.h"
#include "../trace.h"
#include "checked_position.h"
#include "guids.h"
#include "owned.h"
#include "read_at.h"
#include "utf16.h"

#include <array>
#include <unistd.h>

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

void log_object_lines(std::int64_t start, const _asf_content_description_t* cd) {
    DebugInfo("[%I64x] ContentDescription\n", start);
    DebugInfo("  Size = 0x%I64x\n", cd->size);
}

/** False when the bytes can't be had although the file holds them. */
bool read_strings(FIOFUNCSTRUCT* file, std::int64_t start, _asf_content_description_t* cd) {
    std::int64_t position = start + fixed_size;
    for (const StringField& field : string_fields) {
        const std::uint16_t length = cd->*field.length;
        if (length == 0) {
            continue;
        }
        position += length;
        std::uint8_t* const text = asf_new_bytes(length);
        if (!text) {
            cd->*field.length = 0;
            fio_lseek(file, position, SEEK_SET);
            continue;
        }
        cd->*field.text = text;
        if (!asf_read_zero_padded(file, position - length, text, length)) {
            return false;
        }
    }
    return true;
}

bool read_lengths(FIOFUNCSTRUCT* file, std::int64_t start, _asf_content_description_t* cd) {
    std::uint8_t lengths[2 * string_fields.size()] = {};
    if (!asf_read_zero_padded(file, start + asf_object_header_size, lengths, sizeof lengths)) {
        return false;
    }
    const std::uint8_t* at = lengths;
    for (const StringField& field : string_fields) {
        cd->*field.length = load_le16(at);
        at += 2;
    }
    return true;
}

/** Traces the description and seeks behind it. */
bool finish(FIOFUNCSTRUCT* file, std::int64_t start, const _asf_content_description_t* cd) {
    log_object_lines(start, cd);
    for (const StringField& field : string_fields) {
        DebugInfo(field.line, Utf16TraceText(cd->*field.text, cd->*field.length).get());
    }
    const std::int64_t next = asf_position_behind(start, cd->size);
    return next >= 0 && fio_lseek(file, next, SEEK_SET) == next;
}

} // namespace

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
    return asf_read_content_description_at(file, fio_ltell(file), cd);
}

_asf_content_description_t* asf_read_content_description_at(FIOFUNCSTRUCT* file, std::int64_t start,
                                                            _asf_content_description_t* cd) {
    AsfOwned<_asf_content_description_t> made;
    if (!cd) {
        made.reset(asf_new_record<_asf_content_description_t>());
        cd = made.get();
        if (!cd) {
            return nullptr;
        }
    }
    *cd = {};
    if (!asf_read_object_at(file, start, cd)) {
        return nullptr;
    }
    if (!read_lengths(file, start, cd) || !read_strings(file, start, cd) || !finish(file, start, cd)) {
        free_strings(cd);
        return nullptr;
    }
    (void)made.release();
    return cd;
}

_asf_content_description_t* asf_read_fixed_content_description_at(FIOFUNCSTRUCT* file, std::int64_t start) {
    _asf_content_description_t cd{};
    if (!asf_read_object_at(file, start, &cd) || !read_lengths(file, start, &cd)) {
        return nullptr;
    }
    const std::size_t strings = asf_content_description_bytes(&cd) - fixed_size;
    AsfOwned<std::uint8_t> block(asf_new_bytes(sizeof cd + strings));
    if (!block || !asf_read_zero_padded(file, start + fixed_size, block.get() + sizeof cd, strings)) {
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
    if (!finish(file, start, record)) {
        return nullptr;
    }
    (void)block.release();
    return record;
}

int asf_store_content_description(FIOFUNCSTRUCT* file, const _asf_content_description_t* cd) {
    log_object_lines(fio_ltell(file), cd);
    if (!asf_store_object(file, cd)) {
        return 0;
    }
    for (const StringField& field : string_fields) {
        (void)fio_put_le16(file, cd->*field.length);
    }
    for (const StringField& field : string_fields) {
        if (cd->*field.text && cd->*field.length > 0) {
            (void)fio_write(file, cd->*field.text, cd->*field.length);
        }
    }
    return 1;
}

} // namespace velmora
