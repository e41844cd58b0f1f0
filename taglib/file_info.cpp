#include "file_info.h"

#include <cstdlib>
#include <cstring>

namespace velmora {

bool take_flag(_file_info_t* info, std::uint32_t flag) {
    const bool was_set = (info->flags & flag) != 0;
    info->flags &= ~flag;
    return was_set;
}

int id3_free_file_info(_file_info_t* info) {
    std::free(info->title);
    std::free(info->artist);
    std::free(info->desc);
    std::free(info->director);
    std::free(info->rating);
    std::free(info->genre);
    image_release(info->picture);
    image_release(info->aux_object);
    std::memset(info, 0, sizeof *info);
    return 0;
}

} // namespace velmora
