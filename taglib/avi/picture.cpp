#include "picture.h"

#include "item_data.h"
#include "item_memory.h"

#include <new>

namespace velmora {

// The images' side is written with the library's containers, which throw where memory runs out.

Image* avi_load_picture(const _avi_item_t* item) {
    const std::uint8_t* const data = avi_data(item);
    try {
        return data ? image_from_bytes(data, item->size) : nullptr;
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

int avi_store_picture(_avi_item_t* list, std::uint32_t fourcc, const Image* image) {
    try {
        const std::vector<std::uint8_t> jpeg = image_to_jpeg(image);
        if (jpeg.empty() || jpeg.size() >= avi_text_size) {
            return 0;
        }
        return avi_set_item_data(list, fourcc, jpeg.data(), static_cast<std::uint32_t>(jpeg.size()));
    } catch (const std::bad_alloc&) {
        return 0;
    }
}

} // namespace velmora
