#include "picture.h"

#include "item_data.h"

namespace velmora {

Image* avi_load_picture(const _avi_item_t* item) {
    return item->data ? image_from_bytes(item->data, item->size) : nullptr;
}

int avi_store_picture(_avi_item_t* list, std::uint32_t fourcc, const Image* image) {
    const std::vector<std::uint8_t> jpeg = image_to_jpeg(image);
    if (jpeg.empty() || jpeg.size() >= avi_text_size) {
        return 0;
    }
    return avi_set_item_data(list, fourcc, jpeg.data(), static_cast<std::uint32_t>(jpeg.size()));
}

} // namespace velmora
