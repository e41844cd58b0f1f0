#include "store_file_info.h"

#include "detail/tag_fields.h"
#include "detail/tree.h"
#include "item_data.h"
#include "picture.h"

#include "taglib/byte_file.h"
#include "taglib/trace.h"
#include "taglib/write_cursor.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <limits>
#include <unistd.h>

namespace velmora {

namespace {

/** The INFO list, made at the end of the RIFF chunk when there is none; null when memory runs out. */
_avi_item_t* find_or_append_info_list(AviTree* tree) {
    if (_avi_item_t* const list = tree->info_list()) {
        return list;
    }
    _avi_item_t list{};
    list.fourcc = fourcc::list;
    list.list_type = fourcc::info;
    list.offset = tree->end_of_riff();
    return avi_insert_item(&tree->root, &list, static_cast<std::uint32_t>(-1));
}

/** False when memory runs out. */
bool set_or_remove_text(_avi_item_t* list, std::uint32_t fourcc, const char* text) {
    if (text && *text) {
        return avi_set_item_data(list, fourcc, text, avi_text_size) != 0;
    }
    avi_remove_tag(list, fourcc);
    return true;
}

bool set_or_remove_year(_avi_item_t* list, std::int32_t year) {
    std::array<char, 16> text{};
    if (year != 0) {
        std::snprintf(text.data(), text.size(), "%d", year);
    }
    return set_or_remove_text(list, avi_year_fourcc, text.data());
}

void set_or_remove_picture(_avi_item_t* list, const Image* picture) {
    if (picture) {
        avi_store_picture(list, avi_picture_fourcc, picture);
    } else {
        avi_remove_tag(list, avi_picture_fourcc);
    }
}

/** Puts the fields into the list in memory. False when a text or the year is not there for want of memory. */
bool apply_fields(_avi_item_t* list, _file_info_t* info) {
    bool applied = true;
    for (const AviTextField& field : avi_text_fields) {
        if (take_flag(info, field.flag)) {
            applied &= set_or_remove_text(list, field.fourcc, info->*field.text);
        }
    }
    if (take_flag(info, file_info_flag::year)) {
        applied &= set_or_remove_year(list, info->year);
    }
    if (take_flag(info, file_info_flag::picture)) {
        set_or_remove_picture(list, info->picture);
    }
    return applied;
}

bool store_tags(FIOFUNCSTRUCT* file, AviTree* tree, _file_info_t* info) {
    _avi_item_t* list = find_or_append_info_list(tree);
    if (!list || !apply_fields(list, info)) {
        return false;
    }
    if (avi_sizeof_item(list) > std::numeric_limits<std::uint32_t>::max()) {
        DebugError("avi_store_file_info: Error writing <info> tag\n");
        errno = EFBIG;
        return false;
    }
    if (!tree->is_last(list)) {
        if (!tree->write_junk_over_info_list(file)) {
            DebugError("avi_store_file_info: Error writing <junk> tag\n");
            return false;
        }
        list = tree->info_list(); // the insert moved it
        list->offset = tree->end_of_riff();
    }
    if (!AviTree::write_info_list(file, list)) {
        DebugError("avi_store_file_info: Error writing <info> tag\n");
        return false;
    }
    mark_end(file);
    return tree->write_riff_header(file);
}

} // namespace

int avi_store_file_info(const char* path, _file_info_t* info) {
    errno = 0;
    ByteFile file;
    if (!file.open(path, O_RDWR)) {
        DebugError("avi_store_file_info: Couldn't open file\n");
        return 0;
    }
    AviTree tree;
    return tree.read_for_writing(file.handle()) && store_tags(file.handle(), &tree, info) && file.close() ? 1
                                                                                                          : 0;
}

} // namespace velmora
