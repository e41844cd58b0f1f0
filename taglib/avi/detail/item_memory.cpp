#include "item_memory.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace velmora {

namespace {

enum class Kind : std::uint8_t { data, children };

/** In front of every block. */
struct Tag {
    std::uint8_t slab_distance[2]; ///< from the slab's beginning to the block; 0: the block is malloc'ed
    Kind kind;
};
/** In front of a child array: the tag is its end. */
struct ArrayHead {
    std::uint32_t room; ///< items that fit
    bool incomplete;
    Tag tag;
};
static_assert(sizeof(Tag) == 3 && sizeof(ArrayHead) == 8 && offsetof(ArrayHead, tag) == 5);
static_assert(sizeof(ArrayHead) % alignof(_avi_item_t) == 0);

Tag& tag_of(std::uint8_t* block) {
    return *reinterpret_cast<Tag*>(block - sizeof(Tag));
}

ArrayHead& head_of(const _avi_item_t* children) {
    return *(reinterpret_cast<ArrayHead*>(const_cast<_avi_item_t*>(children)) - 1);
}

/* Blocks without contents, which nobody owns: an item of no bytes, and an incomplete list
   without children. */
struct {
    Tag tag{{0, 0}, Kind::data};
    std::uint8_t none = 0;
} no_data;
struct {
    ArrayHead head{0, true, {{0, 0}, Kind::children}};
    _avi_item_t none{};
} nothing_readable;

bool is_shared(const void* block) {
    return block == &no_data.none || block == &nothing_readable.none;
}

/** Small blocks side by side. The tag library is used on one thread. */
struct Slab {
    std::uint32_t used; ///< bytes, these included
    std::uint32_t blocks;
};
constexpr std::size_t slab_size = 16384;
/** What is larger gets a block of its own, for which the malloc family's own overhead doesn't count. */
constexpr std::size_t largest_small_block = 1024;
Slab* open_slab = nullptr; ///< the one that takes blocks

/** A block of SIZE bytes in a slab, PREFIX bytes behind an address of this ALIGNMENT; null when memory runs
   out. */
std::uint8_t* new_small_block(std::size_t prefix, std::size_t size, std::size_t alignment) {
    const auto aligned = [alignment](std::size_t at) { return (at + alignment - 1) / alignment * alignment; };
    std::size_t at = open_slab ? aligned(open_slab->used) : slab_size;
    if (prefix + size > slab_size - std::min(at, slab_size)) {
        auto* const slab = static_cast<Slab*>(std::malloc(slab_size));
        if (!slab) {
            return nullptr;
        }
        *slab = {sizeof(Slab), 0};
        open_slab = slab; // the full one is freed with its last block
        at = aligned(sizeof(Slab));
    }
    std::uint8_t* const block = reinterpret_cast<std::uint8_t*>(open_slab) + at + prefix;
    open_slab->used = static_cast<std::uint32_t>(at + prefix + size);
    ++open_slab->blocks;
    const auto distance = static_cast<std::uint16_t>(at + prefix);
    std::memcpy(tag_of(block).slab_distance, &distance, sizeof distance);
    return block;
}

/** Frees BLOCK, PREFIX bytes behind the beginning of its memory. */
void free_block(std::uint8_t* block, std::size_t prefix) {
    std::uint16_t distance = 0;
    std::memcpy(&distance, tag_of(block).slab_distance, sizeof distance);
    if (distance == 0) {
        std::free(block - prefix);
        return;
    }
    auto* const slab = reinterpret_cast<Slab*>(block - distance);
    if (--slab->blocks == 0) {
        open_slab = open_slab == slab ? nullptr : open_slab;
        std::free(slab);
    }
}

bool is_malloced(std::uint8_t* block) {
    const Tag& tag = tag_of(block);
    return tag.slab_distance[0] == 0 && tag.slab_distance[1] == 0;
}

std::uint8_t* bytes_of(_avi_item_t* children) {
    return reinterpret_cast<std::uint8_t*>(children);
}

/** The array's memory with room for ROOM children, for realloc'ed and for new arrays. */
std::size_t array_bytes(std::uint32_t room) {
    return sizeof(ArrayHead) + std::size_t{room} * sizeof(_avi_item_t);
}

} // namespace

std::uint8_t* avi_new_data(std::uint32_t size) {
    if (size == 0) {
        return &no_data.none;
    }
    std::uint8_t* block = nullptr;
    if (size <= largest_small_block) {
        block = new_small_block(sizeof(Tag), size, 1);
        if (!block) {
            return nullptr;
        }
        std::memset(block, 0, size);
    } else {
        auto* const memory = static_cast<std::uint8_t*>(std::calloc(sizeof(Tag) + std::size_t{size}, 1));
        if (!memory) {
            return nullptr;
        }
        block = memory + sizeof(Tag);
    }
    tag_of(block).kind = Kind::data;
    return block;
}

const std::uint8_t* avi_data(const _avi_item_t* item) {
    return item->data && tag_of(item->data).kind == Kind::data ? item->data : nullptr;
}

bool avi_has_children(const _avi_item_t* item) {
    return (item->fourcc == fourcc::list || item->fourcc == fourcc::riff) && !avi_data(item);
}

bool avi_is_incomplete(const _avi_item_t* item) {
    return item->children && avi_has_children(item) && head_of(item->children).incomplete;
}

void avi_mark_incomplete(_avi_item_t* item) {
    if (!item->children) {
        item->children = &nothing_readable.none;
    }
    head_of(item->children).incomplete = true;
}

bool avi_grow_children(_avi_item_t* item) {
    const auto count = static_cast<std::uint32_t>(item->child_count);
    if (item->children && count < head_of(item->children).room) {
        return true;
    }
    if (item->child_count == std::numeric_limits<std::int32_t>::max()) {
        return false;
    }
    // Doubled: a million chunks must not cost a million moves of the array.
    const std::uint32_t room = std::bit_ceil(count + 1);
    const bool in_place =
        item->children && !is_shared(item->children) && is_malloced(bytes_of(item->children));
    void* const memory = std::realloc(in_place ? &head_of(item->children) : nullptr, array_bytes(room));
    if (!memory) {
        return false;
    }
    auto* const head = static_cast<ArrayHead*>(memory);
    auto* const children = reinterpret_cast<_avi_item_t*>(head + 1);
    if (!in_place) {
        *head = {room, avi_is_incomplete(item), {{0, 0}, Kind::children}};
        std::copy_n(item->children, count, children);
        avi_free_contents(item);
    }
    head->room = room;
    item->children = children;
    return true;
}

void avi_settle_children(_avi_item_t* item) {
    const auto count = static_cast<std::uint32_t>(item->child_count);
    if (!item->children || is_shared(item->children) || array_bytes(count) > largest_small_block ||
        !is_malloced(bytes_of(item->children))) {
        return;
    }
    std::uint8_t* const block =
        new_small_block(sizeof(ArrayHead), count * sizeof(_avi_item_t), alignof(_avi_item_t));
    if (!block) {
        return;
    }
    auto* const settled = reinterpret_cast<_avi_item_t*>(block);
    std::copy_n(item->children, count, settled);
    head_of(settled).room = count;
    head_of(settled).incomplete = head_of(item->children).incomplete;
    head_of(settled).tag.kind = Kind::children;
    avi_free_contents(item);
    item->children = settled;
}

void avi_free_contents(_avi_item_t* item) {
    if (item->data && !is_shared(item->data)) {
        free_block(item->data, avi_data(item) ? sizeof(Tag) : sizeof(ArrayHead));
    }
    item->data = nullptr;
}

} // namespace velmora
