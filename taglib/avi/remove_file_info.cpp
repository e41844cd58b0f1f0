#include "remove_file_info.h"

#include "../trace.h"
#include "avi_file.h"

#include <fcntl.h>
#include <unistd.h>

namespace velmora {

namespace {

bool remove_tags(AviFile* avi) {
    const _avi_item_t* const list = avi->info_list();
    if (!list) {
        return true;
    }
    if (avi->is_last(list)) {
        DebugInfo("Writing <EOF> at 0x%x\n", static_cast<unsigned>(list->offset));
        fio_lseek(&avi->file, static_cast<std::int64_t>(list->offset), SEEK_SET);
        avi->end_here();
    } else if (!avi->write_junk_over_info_list()) {
        DebugError("avi_remove_file_info: Error writing <junk> tag\n");
        return false;
    }
    avi_remove_item(&avi->root, avi->info_list());
    return avi->write_riff_header();
}

} // namespace

int avi_remove_file_info(const char* path) {
    AviFile avi;
    if (!avi.open(path, O_RDWR)) {
        // Removing is a store of nothing, and reports as one.
        DebugError("avi_store_file_info: Couldn't open file\n");
        return 0;
    }
    return avi.read_header_for_writing() && remove_tags(&avi) && avi.close() ? 1 : 0;
}

} // namespace velmora
