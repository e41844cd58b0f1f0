#include "picture.h"

#include "../detail/image_calls.h"
#include "detail/item_memory.h"
#include "item_data.h"

namespace velmora {

Image* avi_load_picture(const _avi_item_t* item) {
    const std::uint8_t* const data = avi_data(item);
    return data ? try_image_from_bytes(data, item->size) : nullptr;
}

int avi_store_picture(_avi_item_t* list, std::uint32_t fourcc, const Image* image) {
    std::vector<std::uint8_t> jpeg;
    if (try_image_to_jpeg(image, &jpeg) != JpegResult::encoded || jpeg.size() >= avi_text_size) {
        return 0;
    }
    return avi_set_item_data(list, fourcc, jpeg.data(), static_cast<std::uint32_t>(jpeg.size()));
}

} // namespace velmora
