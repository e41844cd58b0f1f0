#include "object.h"

#include "../detail/trace_line.h"
#include "detail/cursor_readers.h"
#include "detail/object_writer.h"

#include "taglib/byte_order.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <unistd.h>

namespace velmora {

namespace {

/** What gives back a RECORD that was read but can't be handed out; GIVEN is the caller's own. */
auto free_unless(const _asf_object_t* given) {
    return [given](_asf_object_t* record) { std::free(record == given ? nullptr : record); };
}

} // namespace

void asf_log_object(std::int64_t position, const _asf_object_t& object) {
    TraceLine()
        .text("[")
        .hex(static_cast<std::uint64_t>(position))
        .text("] ")
        .text(GUIDNAME(object.guid))
        .text(" (0x")
        .hex(static_cast<std::uint32_t>(object.size))
        .text(" bytes)\n");
}

void asf_log_padding_object(std::int64_t position, const _asf_object_t& object) {
    TraceLine().text("[").hex(static_cast<std::uint64_t>(position)).text("] PaddingObject\n");
    TraceLine().text("  Size = 0x").hex(object.size).text("\n");
}

_asf_object_t* asf_init_object() {
    return static_cast<_asf_object_t*>(std::calloc(1, sizeof(_asf_object_t)));
}

_asf_object_t* asf_read_object(FIOFUNCSTRUCT* file, _asf_object_t* object) {
    return asf_read_at_position(
        file, [object](ReadCursor* cursor) { return asf_read_object(cursor, object); }, free_unless(object));
}

_asf_object_t* asf_read_object(ReadCursor* cursor, _asf_object_t* object) {
    std::array<std::uint8_t, asf_object_header_size> bytes;
    _asf_object_t header{};
    const std::uint64_t start = cursor->position();
    const ReadStatus status = cursor->read(bytes.data(), bytes.size());
    if (status == ReadStatus::failed || cursor->position() - start < sizeof header.guid.bytes) {
        return nullptr;
    }
    std::copy_n(bytes.data(), sizeof header.guid.bytes, header.guid.bytes);
    header.size = load_le64(bytes.data() + sizeof header.guid.bytes);
    // Counted back from where the read ended.
    asf_log_object(static_cast<std::int64_t>(cursor->position()) - std::int64_t{asf_object_header_size},
                   header);
    if (!object) {
        object = asf_init_object();
    }
    if (object) {
        *object = header;
    }
    return object;
}

int asf_store_object(FIOFUNCSTRUCT* file, const _asf_object_t* object) {
    AsfObjectWriter writer(file, fio_ltell(file));
    writer.put_object(*object);
    writer.finish();
    return writer.guid_was_written() ? 1 : 0;
}

_asf_object_t* asf_read_padding_object(FIOFUNCSTRUCT* file, _asf_object_t* object) {
    return asf_read_at_position(
        file, [object](ReadCursor* cursor) { return asf_read_padding_object(cursor, object); },
        free_unless(object));
}

_asf_object_t* asf_read_padding_object(ReadCursor* cursor, _asf_object_t* object) {
    const std::uint64_t start = cursor->position();
    _asf_object_t* const read = asf_read_object(cursor, object);
    if (!read) {
        return nullptr;
    }
    asf_log_padding_object(static_cast<std::int64_t>(start), *read);
    if (!asf_seek_behind(cursor, start, read->size)) {
        free_unless(object)(read);
        return nullptr;
    }
    return read;
}

int asf_store_padding_object(FIOFUNCSTRUCT* file, const _asf_object_t* object) {
    AsfObjectWriter writer(file, fio_ltell(file));
    writer.put_padding(*object);
    return writer.finish() && writer.settle() ? 1 : 0;
}

} // namespace velmora
