#include "velmora_tasks.h"

#include "taglib/taglib.h"

#include <fcntl.h>
#include <string>
#include <string_view>

namespace tasks {

namespace {

using namespace velmora;

int load(Format format, const char* path, _file_info_t* info) {
    switch (format) {
    case Format::asf:
        return asf_load_file_info(path, info);
    case Format::avi:
        return avi_load_file_info(path, info);
    default:
        return id3_load_file_info(path, info);
    }
}

} // namespace

Format formatOf(const char* path) {
    const std::string_view name(path);
    if (name.ends_with(".wma") || name.ends_with(".wmv")) {
        return Format::asf;
    }
    return name.ends_with(".avi") ? Format::avi : Format::id3;
}

bool read(Format format, const char* path) {
    _file_info_t info{};
    const bool loaded = load(format, path, &info) != 0;
    // A film has its name in the first slot, a song in the third.
    const bool titled = info.title || info.desc;
    id3_free_file_info(&info);
    return loaded && titled;
}

bool storeTitle(Format format, const char* path, const char* title) {
    std::string text(title);
    _file_info_t info{};
    if (format == Format::avi) {
        info.flags = file_info_flag::title;
        info.title = text.data();
        return avi_store_file_info(path, &info) != 0;
    }
    info.flags = file_info_flag::desc;
    info.desc = text.data();
    return format == Format::asf ? asf_store_file_info(path, &info) != 0
                                 : id3_store_file_info(path, &info) != 0;
}

bool move(const char* path, long long from, long long to) {
    FIOFUNCSTRUCT file{};
    if (fio_open(path, O_RDWR, 0, &file) < 0) {
        return false;
    }
    const bool moved = asf_move_file(&file, from, to) != 0;
    return fio_close(&file) == 0 && moved;
}

} // namespace tasks
