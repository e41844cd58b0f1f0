#include "item.h"

#include "detail/item_memory.h"

#include "taglib/trace.h"

#include <algorithm>
#include <functional>

namespace velmora {

namespace {

bool is_list_kind(std::uint32_t fourcc) {
    return fourcc == fourcc::list || fourcc == fourcc::riff;
}

/** What is collected at most, but for one item's bytes: a list may have millions of empty items. */
constexpr std::uint64_t largest_commit = 65536;

bool write_item(WriteCursor& cursor, const _avi_item_t& item);

bool write_children(WriteCursor& cursor, const _avi_item_t& list) {
    return std::all_of(list.children, list.children + list.child_count, [&cursor](const _avi_item_t& child) {
        if (!write_item(cursor, child)) {
            return false;
        }
        if (child.size % 2 != 0) {
            cursor.put_byte(0);
        }
        return cursor.bytes() < largest_commit || cursor.commit();
    });
}

/** Collects ITEM. False when what had to be committed on the way could not be written. */
bool write_item(WriteCursor& cursor, const _avi_item_t& item) {
    cursor.put_le32(item.fourcc);
    cursor.put_le32(item.size);
    if (item.fourcc == fourcc::list && avi_has_children(&item)) {
        cursor.put_le32(item.list_type);
        return write_children(cursor, item);
    }
    if (const std::uint8_t* const data = avi_data(&item)) {
        cursor.put(data, item.size);
    }
    return true;
}

} // namespace

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
    WriteCursor cursor(file, static_cast<std::uint64_t>(fio_ltell(file)));
    return avi_store_item(&cursor, item);
}

int avi_store_item(WriteCursor* cursor, const _avi_item_t* item) {
    if (!write_item(*cursor, *item) || !cursor->commit()) {
        DebugError("avi_store_item: Error writing file\n");
        return 0;
    }
    return 1;
}

_avi_item_t* avi_insert_item(_avi_item_t* parent, const _avi_item_t* item, std::uint32_t index) {
    const _avi_item_t copy = *item; // ITEM may lie in the array that moves
    if (!avi_grow_children(parent)) {
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
    const _avi_item_t* const end = parent->children + parent->child_count;
    const std::less<> before;
    return before(child, parent->children) || !before(child, end)
               ? -1
               : static_cast<std::int32_t>(child - parent->children);
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
    avi_free_contents(item);
    *item = {};
}

void avi_free_header(_avi_item_t* root) {
    avi_free_item(root);
}

void avi_list_items(const _avi_item_t* list) {
    const TraceBatch batch;
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
