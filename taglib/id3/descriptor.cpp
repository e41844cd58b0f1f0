#include "descriptor.h"

#include "text.h"

#include <cstdlib>
#include <cstring>
#include <limits>

namespace velmora {

namespace {

/** Room for a body of SIZE bytes and the terminator that a reader adds. */
constexpr std::size_t block_size(std::int32_t size) {
    return static_cast<std::size_t>(size) + 1;
}

void copy_bytes(std::uint8_t* target, const void* bytes, std::int32_t length) {
    if (length > 0) {
        std::memmove(target, bytes, static_cast<std::size_t>(length));
    }
}

/** Makes room for a body of SIZE bytes, keeping what is there; the frame's size stays. */
bool reserve(_id3_frame_t* frame, std::int32_t size) {
    if (size <= frame->size && frame->data) {
        return true;
    }
    void* const block = std::realloc(frame->data, block_size(size));
    if (!block) {
        return false;
    }
    frame->data = static_cast<std::uint8_t*>(block);
    return true;
}

bool is_priv(std::uint32_t id) {
    return id == id3_frame_id("PRIV") || id == id3_frame_id("Priv") || id == id3_frame_id("priv");
}

void remove_at(_id3_file_desc_t* descriptor, std::int32_t index) {
    _id3_frame_t* const frame = descriptor->frames + index;
    std::free(frame->data);
    --descriptor->frame_count;
    const auto behind = static_cast<std::size_t>(descriptor->frame_count - index);
    std::memmove(frame, frame + 1, behind * sizeof(_id3_frame_t));
}

/** Appends FRAME, or releases its data when that fails. */
int insert_or_release(_id3_file_desc_t* descriptor, const _id3_frame_t* frame) {
    if (id3_insert_frame(descriptor, frame)) {
        return 1;
    }
    std::free(frame->data);
    return 0;
}

} // namespace

const char* id3_tag(std::uint32_t id) {
    static char text[5];
    std::memcpy(text, &id, sizeof id);
    return text;
}

_id3_frame_t* id3_init_frame(_id3_frame_t* frame, std::int32_t size) {
    if (size < 0) {
        return nullptr;
    }
    void* const block = std::malloc(block_size(size));
    if (!block) {
        return nullptr;
    }
    *frame = {.id = 0, .size = size, .flags = 0, .data = static_cast<std::uint8_t*>(block)};
    return frame;
}

int id3_set_frame_data(_id3_frame_t* frame, const void* bytes, std::int32_t length) {
    if (length < 0 || !reserve(frame, length)) {
        return 0;
    }
    copy_bytes(frame->data, bytes, length);
    frame->size = length;
    return 1;
}

_id3_frame_t* id3_find_frame(const _id3_file_desc_t* descriptor, std::uint32_t id) {
    for (std::int32_t i = 0; i < descriptor->frame_count; ++i) {
        if (descriptor->frames[i].id == id) {
            return descriptor->frames + i;
        }
    }
    return nullptr;
}

int id3_insert_frame(_id3_file_desc_t* descriptor, const _id3_frame_t* frame) {
    const _id3_frame_t added = *frame;
    const auto count = static_cast<std::size_t>(descriptor->frame_count);
    void* const array = std::realloc(descriptor->frames, (count + 1) * sizeof(_id3_frame_t));
    if (!array) {
        return 0;
    }
    descriptor->frames = static_cast<_id3_frame_t*>(array);
    descriptor->frames[count] = added;
    ++descriptor->frame_count;
    return 1;
}

int id3_insert_tag(_id3_file_desc_t* descriptor, std::uint32_t id, const void* bytes, std::int32_t length) {
    if (_id3_frame_t* const present = id3_find_frame(descriptor, id)) {
        return id3_set_frame_data(present, bytes, length);
    }
    _id3_frame_t frame;
    if (!id3_init_frame(&frame, length)) {
        return 0;
    }
    frame.id = id;
    copy_bytes(frame.data, bytes, length);
    return insert_or_release(descriptor, &frame);
}

int id3_remove_tag(_id3_file_desc_t* descriptor, std::uint32_t id) {
    const _id3_frame_t* const frame = id3_find_frame(descriptor, id);
    return frame ? id3_remove_frame(descriptor, frame) : 0;
}

int id3_remove_frame(_id3_file_desc_t* descriptor, const _id3_frame_t* frame) {
    for (std::int32_t i = 0; i < descriptor->frame_count; ++i) {
        if (descriptor->frames + i == frame) {
            remove_at(descriptor, i);
            return 1;
        }
    }
    return 0;
}

_id3_frame_t* id3_find_priv_frame(const _id3_file_desc_t* descriptor, const char* owner) {
    for (std::int32_t i = 0; i < descriptor->frame_count; ++i) {
        _id3_frame_t* const frame = descriptor->frames + i;
        if (!is_priv(frame->id)) {
            continue;
        }
        char name[128];
        id3_load_string(frame->data, frame->size, id3_encoding::latin1, name, sizeof name);
        if (id3_equal_ignoring_case(name, owner)) {
            return frame;
        }
    }
    return nullptr;
}

int id3_set_priv_frame_data(_id3_frame_t* frame, const void* bytes, std::int32_t length) {
    const std::int32_t owner_size = id3_string_size(frame->data, frame->size, id3_encoding::latin1);
    if (length < 0 || length > std::numeric_limits<std::int32_t>::max() - owner_size) {
        return 0;
    }
    if (!reserve(frame, owner_size + length)) {
        return 0;
    }
    copy_bytes(frame->data + owner_size, bytes, length);
    frame->size = owner_size + length;
    return 1;
}

int id3_insert_priv_tag(_id3_file_desc_t* descriptor, const char* owner, const void* bytes,
                        std::int32_t length) {
    if (_id3_frame_t* const present = id3_find_priv_frame(descriptor, owner)) {
        return id3_set_priv_frame_data(present, bytes, length);
    }
    const std::size_t owner_size = std::strlen(owner) + 1;
    constexpr std::size_t limit = std::numeric_limits<std::int32_t>::max();
    if (length < 0 || owner_size > limit - static_cast<std::size_t>(length)) {
        return 0;
    }
    _id3_frame_t frame;
    if (!id3_init_frame(&frame, static_cast<std::int32_t>(owner_size) + length)) {
        return 0;
    }
    frame.id = id3_frame_id("PRIV");
    std::memcpy(frame.data, owner, owner_size);
    copy_bytes(frame.data + owner_size, bytes, length);
    return insert_or_release(descriptor, &frame);
}

int id3_remove_priv_tag(_id3_file_desc_t* descriptor, const char* owner) {
    const _id3_frame_t* const frame = id3_find_priv_frame(descriptor, owner);
    return frame ? id3_remove_frame(descriptor, frame) : 0;
}

int id3_free_descriptor(_id3_file_desc_t* descriptor) {
    for (std::int32_t i = 0; i < descriptor->frame_count; ++i) {
        std::free(descriptor->frames[i].data);
    }
    std::free(descriptor->frames);
    *descriptor = {};
    return 0;
}

} // namespace velmora
