#include "item_data.h"

#include "detail/item_memory.h"

#include <algorithm>
#include <cstring>

namespace velmora {

std::size_t avi_load_string(const _avi_item_t* item, char* text, std::size_t capacity) {
    std::size_t length = 0;
    if (const std::uint8_t* const data = avi_data(item)) {
        const auto* const bytes = reinterpret_cast<const char*>(data);
        length = ::strnlen(bytes, std::min<std::size_t>(item->size, capacity - 1));
        std::memcpy(text, bytes, length);
    }
    text[length] = '\0';
    return length;
}

int avi_set_item_data(_avi_item_t* list, std::uint32_t fourcc, const void* data, std::uint32_t size) {
    if (size == avi_text_size) {
        const std::size_t length = std::strlen(static_cast<const char*>(data));
        if (length >= avi_text_size - 1) {
            return 0;
        }
        size = static_cast<std::uint32_t>(length + 1);
    }
    std::uint8_t* const copy = avi_new_data(size);
    if (!copy) {
        return 0;
    }
    if (size > 0) {
        std::memcpy(copy, data, size);
    }
    if (_avi_item_t* const item = avi_find_item(list, fourcc)) {
        const std::uint64_t offset = item->offset;
        avi_free_item(item);
        item->fourcc = fourcc;
        item->size = size;
        item->offset = offset;
        item->data = copy;
        return 1;
    }
    _avi_item_t item{};
    item.fourcc = fourcc;
    item.size = size;
    item.data = copy;
    if (!avi_insert_item(list, &item, static_cast<std::uint32_t>(-1))) {
        avi_free_contents(&item);
        return 0;
    }
    return 1;
}

} // namespace velmora
