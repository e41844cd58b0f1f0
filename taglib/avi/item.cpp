#include "item.h"

#include "../trace.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <limits>

namespace velmora {

namespace {

bool is_list_kind(std::uint32_t fourcc) {
    return fourcc == fourcc::list || fourcc == fourcc::riff;
}

bool write_bytes(FIOFUNCSTRUCT* file, const void* bytes, std::uint32_t count) {
    return fio_write(file, bytes, count) == static_cast<ssize_t>(count);
}

bool write_le32(FIOFUNCSTRUCT* file, std::uint32_t value) {
    return fio_put_le32(file, value) == sizeof value;
}

bool write_item(FIOFUNCSTRUCT* file, const _avi_item_t& item);

bool write_children(FIOFUNCSTRUCT* file, const _avi_item_t& list) {
    return std::all_of(list.children, list.children + list.child_count, [file](const _avi_item_t& child) {
        return write_item(file, child) && (child.size % 2 == 0 || fio_put_byte(file, 0) == 1);
    });
}

bool write_item(FIOFUNCSTRUCT* file, const _avi_item_t& item) {
    if (!write_le32(file, item.fourcc) || !write_le32(file, item.size)) {
        return false;
    }
    if (item.fourcc == fourcc::list && avi_has_children(&item)) {
        return write_le32(file, item.list_type) && write_children(file, item);
    }
    return item.size == 0 || !item.data || write_bytes(file, item.data, item.size);
}

/** Doubles the child array when it is full: a million chunks must not cost a million moves of it. */
bool make_room_for_one_more(_avi_item_t* parent) {
    const auto count = static_cast<std::uint32_t>(parent->child_count);
    if (count < parent->child_room) {
        return true;
    }
    if (parent->child_count == std::numeric_limits<std::int32_t>::max()) {
        return false;
    }
    const std::uint32_t room = std::bit_ceil(count + 1);
    void* const grown = std::realloc(parent->children, std::size_t{room} * sizeof(_avi_item_t));
    if (!grown) {
        return false;
    }
    parent->children = static_cast<_avi_item_t*>(grown);
    parent->child_room = room;
    return true;
}

} // namespace

bool avi_has_children(const _avi_item_t* item) {
    return is_list_kind(item->fourcc) && !item->data;
}

std::uint64_t avi_sizeof_item(const _avi_item_t* item) {
    if (!avi_has_children(item)) {
        return item->size;
    }
    std::uint64_t size = 4;
    for (std::int32_t i = 0; i < item->child_count; ++i) {
        size += (std::uint64_t{item->children[i].size} + 9) & ~std::uint64_t{1};
    }
    return size;
}

int avi_store_item(FIOFUNCSTRUCT* file, const _avi_item_t* item) {
    if (!write_item(file, *item)) {
        DebugError("avi_store_item: Error writing file\n");
        return 0;
    }
    return 1;
}

_avi_item_t* avi_insert_item(_avi_item_t* parent, const _avi_item_t* item, std::uint32_t index) {
    const _avi_item_t copy = *item; // ITEM may lie in the array that moves
    if (!make_room_for_one_more(parent)) {
        return nullptr;
    }
    const auto count = static_cast<std::uint32_t>(parent->child_count);
    _avi_item_t* const slot = parent->children + std::min(index, count);
    std::move_backward(slot, parent->children + count, parent->children + count + 1);
    *slot = copy;
    ++parent->child_count;
    return slot;
}

int avi_remove_item(_avi_item_t* parent, _avi_item_t* child) {
    if (avi_get_item_index(parent, child) < 0) {
        return 0;
    }
    avi_free_item(child);
    std::move(child + 1, parent->children + parent->child_count, child);
    --parent->child_count;
    return 1;
}

int avi_remove_tag(_avi_item_t* parent, std::uint32_t fourcc) {
    _avi_item_t* const child = avi_find_item(parent, fourcc);
    return child ? avi_remove_item(parent, child) : 0;
}

_avi_item_t* avi_find_item(const _avi_item_t* parent, std::uint32_t fourcc) {
    _avi_item_t* const end = parent->children + parent->child_count;
    _avi_item_t* const found =
        std::find_if(parent->children, end, [=](const _avi_item_t& child) { return child.fourcc == fourcc; });
    return found == end ? nullptr : found;
}

_avi_item_t* avi_find_list_item(const _avi_item_t* parent, std::uint32_t list_type) {
    _avi_item_t* const end = parent->children + parent->child_count;
    _avi_item_t* const found = std::find_if(parent->children, end, [=](const _avi_item_t& child) {
        return child.fourcc == fourcc::list && child.list_type == list_type;
    });
    return found == end ? nullptr : found;
}

std::int32_t avi_get_item_index(const _avi_item_t* parent, const _avi_item_t* child) {
    for (std::int32_t i = 0; i < parent->child_count; ++i) {
        if (parent->children + i == child) {
            return i;
        }
    }
    return -1;
}

int avi_move_item(_avi_item_t* parent, _avi_item_t* child, std::uint32_t index) {
    const std::int32_t from = avi_get_item_index(parent, child);
    if (from < 0) {
        return 0;
    }
    const auto last = static_cast<std::uint32_t>(parent->child_count - 1);
    _avi_item_t* const target = parent->children + std::min(index, last);
    if (target < child) {
        std::rotate(target, child, child + 1);
    } else {
        std::rotate(child, child + 1, target + 1);
    }
    return 1;
}

void avi_free_item(_avi_item_t* item) {
    for (std::int32_t i = 0; i < item->child_count; ++i) {
        avi_free_item(item->children + i);
    }
    std::free(item->children);
    std::free(item->data);
    *item = {};
}

void avi_free_header(_avi_item_t* root) {
    avi_free_item(root);
}

void avi_list_items(const _avi_item_t* list) {
    DebugInfo("List <%s>\n", riff_tag(list->list_type));
    for (std::int32_t i = 0; i < list->child_count; ++i) {
        const _avi_item_t& child = list->children[i];
        const auto offset = static_cast<unsigned long>(child.offset);
        if (is_list_kind(child.fourcc)) {
            DebugInfo("[%08lx] <%s> type <%s> size 0x%x\n", offset, riff_tag(child.fourcc),
                      riff_tag(child.list_type), child.size);
        } else {
            DebugInfo("[%08lx] <%s> size 0x%x\n", offset, riff_tag(child.fourcc), child.size);
        }
    }
}

} // namespace velmora
