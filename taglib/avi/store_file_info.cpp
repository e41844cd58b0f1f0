#include "store_file_info.h"

#include "../trace.h"
#include "avi_file.h"
#include "item_data.h"
#include "picture.h"
#include "tag_fields.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <limits>
#include <unistd.h>

namespace velmora {

namespace {

/** The INFO list, made at the end of the RIFF chunk when there is none; null when memory runs out. */
_avi_item_t* find_or_append_info_list(AviFile* avi) {
    if (_avi_item_t* const list = avi->info_list()) {
        return list;
    }
    _avi_item_t list{};
    list.fourcc = fourcc::list;
    list.list_type = fourcc::info;
    list.offset = avi->end_of_riff();
    return avi_insert_item(&avi->root, &list, static_cast<std::uint32_t>(-1));
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

/** Writes the INFO list, measured anew, at its offset. */
bool write_info_list(AviFile* avi, _avi_item_t* list) {
    list->size = static_cast<std::uint32_t>(avi_sizeof_item(list));
    DebugInfo("Writing <info> at 0x%x size 0x%x\n", static_cast<unsigned>(list->offset), list->size);
    const auto offset = static_cast<std::int64_t>(list->offset);
    return fio_lseek(&avi->file, offset, SEEK_SET) == offset && avi_store_item(&avi->file, list);
}

bool store_tags(AviFile* avi, _file_info_t* info) {
    _avi_item_t* list = find_or_append_info_list(avi);
    if (!list || !apply_fields(list, info)) {
        return false;
    }
    if (avi_sizeof_item(list) > std::numeric_limits<std::uint32_t>::max()) {
        DebugError("avi_store_file_info: Error writing <info> tag\n");
        errno = EFBIG;
        return false;
    }
    if (!avi->is_last(list)) {
        if (!avi->write_junk_over_info_list()) {
            DebugError("avi_store_file_info: Error writing <junk> tag\n");
            return false;
        }
        list = avi->info_list(); // the insert moved it
        list->offset = avi->end_of_riff();
    }
    if (!write_info_list(avi, list)) {
        DebugError("avi_store_file_info: Error writing <info> tag\n");
        return false;
    }
    avi->end_here();
    return avi->write_riff_header();
}

} // namespace

int avi_store_file_info(const char* path, _file_info_t* info) {
    AviFile avi;
    if (!avi.open(path, O_RDWR)) {
        DebugError("avi_store_file_info: Couldn't open file\n");
        return 0;
    }
    return avi.read_header_for_writing() && store_tags(&avi, info) && avi.close() ? 1 : 0;
}

} // namespace velmora
