#include "object.h"

#include "../byte_order.h"
#include "../trace.h"
#include "checked_position.h"
#include "read_at.h"

#include <algorithm>
#include <cstdlib>
#include <unistd.h>

namespace velmora {

namespace {

void log_object(std::int64_t position, const _asf_object_t& object) {
    DebugInfo("[%I64x] %s (0x%x bytes)\n", position, GUIDNAME(object.guid),
              static_cast<unsigned>(object.size));
}

void log_padding(std::int64_t position, const _asf_object_t& object) {
    DebugInfo("[%I64x] PaddingObject\n", position);
    DebugInfo("  Size = 0x%I64x\n", object.size);
}

bool seek_behind(FIOFUNCSTRUCT* file, std::int64_t start, const _asf_object_t& object) {
    const std::int64_t next = asf_position_behind(start, object.size);
    return next >= 0 && fio_lseek(file, next, SEEK_SET) == next;
}

} // namespace

_asf_object_t* asf_init_object() {
    return static_cast<_asf_object_t*>(std::calloc(1, sizeof(_asf_object_t)));
}

_asf_object_t* asf_read_object(FIOFUNCSTRUCT* file, _asf_object_t* object) {
    return asf_read_object_at(file, fio_ltell(file), object);
}

_asf_object_t* asf_read_object_at(FIOFUNCSTRUCT* file, std::int64_t start, _asf_object_t* object) {
    std::uint8_t bytes[asf_object_header_size] = {};
    _asf_object_t header{};
    constexpr auto whole = static_cast<ssize_t>(sizeof bytes);
    const ssize_t count = fio_read(file, bytes, sizeof bytes);
    if (start < 0 || count < static_cast<ssize_t>(sizeof header.guid.bytes) ||
        (count < whole && !asf_read_reached(file, start + whole))) {
        return nullptr;
    }
    std::copy_n(bytes, sizeof header.guid.bytes, header.guid.bytes);
    header.size = load_le64(bytes + sizeof header.guid.bytes);
    // Counted back from where the read ended.
    log_object(start + count - whole, header);
    if (!object) {
        object = asf_init_object();
    }
    if (object) {
        *object = header;
    }
    return object;
}

int asf_store_object(FIOFUNCSTRUCT* file, const _asf_object_t* object) {
    log_object(fio_ltell(file), *object);
    if (fio_write(file, object->guid.bytes, sizeof object->guid.bytes) != sizeof object->guid.bytes) {
        return 0;
    }
    (void)fio_put_le64(file, object->size);
    return 1;
}

_asf_object_t* asf_read_padding_object(FIOFUNCSTRUCT* file, _asf_object_t* object) {
    return asf_read_padding_object_at(file, fio_ltell(file), object);
}

_asf_object_t* asf_read_padding_object_at(FIOFUNCSTRUCT* file, std::int64_t start, _asf_object_t* object) {
    _asf_object_t* const read = asf_read_object_at(file, start, object);
    if (!read) {
        return nullptr;
    }
    log_padding(start, *read);
    if (!seek_behind(file, start, *read)) {
        if (read != object) {
            std::free(read);
        }
        return nullptr;
    }
    return read;
}

int asf_store_padding_object(FIOFUNCSTRUCT* file, const _asf_object_t* object) {
    const std::int64_t start = fio_ltell(file);
    if (!asf_store_object(file, object) || !asf_write_reached(file, start + asf_object_header_size)) {
        return 0;
    }
    log_padding(start, *object);
    return seek_behind(file, start, *object) ? 1 : 0;
}

} // namespace velmora
