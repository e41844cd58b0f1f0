#include "load_file_info.h"

#include "detail/tag_fields.h"
#include "detail/tree.h"
#include "item_data.h"
#include "picture.h"

#include "taglib/byte_file.h"
#include "taglib/trace.h"

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>

namespace velmora {

namespace {

using TextBuffer = std::array<char, 8192>;

/** The text of the first sub-chunk with that FOURCC; false when there is none or it is empty. */
bool find_text(const _avi_item_t* list, std::uint32_t fourcc, TextBuffer* text) {
    const _avi_item_t* const item = avi_find_item(list, fourcc);
    return item && avi_load_string(item, text->data(), text->size()) > 0;
}

void load_fields(const _avi_item_t* list, _file_info_t* info) {
    TextBuffer text;
    for (const AviTextField& field : avi_text_fields) {
        if (find_text(list, field.fourcc, &text)) {
            info->*field.text = ::strdup(text.data());
        }
    }
    if (find_text(list, avi_year_fourcc, &text)) {
        info->year = static_cast<std::int32_t>(std::strtol(text.data(), nullptr, 10));
    }
    if (const _avi_item_t* const picture = avi_find_item(list, avi_picture_fourcc)) {
        info->picture = avi_load_picture(picture);
    }
}

} // namespace

int avi_load_file_info(const char* path, _file_info_t* info) {
    *info = {};
    errno = 0;
    ByteFile file;
    if (!file.open(path, O_RDONLY)) {
        DebugError("avi_load_file_info: Couldn't open file\n");
        return 0;
    }
    AviTree tree;
    if (!tree.read(file.handle())) {
        return 0;
    }
    if (const _avi_item_t* const list = tree.info_list()) {
        info->flags |= file_info_flag::tag_present;
        avi_list_items(list);
        load_fields(list, info);
    }
    return 1;
}

} // namespace velmora
