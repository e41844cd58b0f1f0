#include "remove_file_info.h"

#include "detail/tree.h"

#include "taglib/byte_file.h"
#include "taglib/trace.h"
#include "taglib/write_cursor.h"

#include <cerrno>
#include <fcntl.h>

namespace velmora {

namespace {

bool remove_tags(FIOFUNCSTRUCT* file, AviTree* tree) {
    const _avi_item_t* const list = tree->info_list();
    if (!list) {
        return true;
    }
    if (tree->is_last(list)) {
        DebugInfo("Writing <EOF> at 0x%x\n", static_cast<unsigned>(list->offset));
        if (WriteCursor(file, list->offset).settle()) {
            mark_end(file);
        }
    } else if (!tree->write_junk_over_info_list(file)) {
        DebugError("avi_remove_file_info: Error writing <junk> tag\n");
        return false;
    }
    avi_remove_item(&tree->root, tree->info_list());
    return tree->write_riff_header(file);
}

} // namespace

int avi_remove_file_info(const char* path) {
    errno = 0;
    ByteFile file;
    if (!file.open(path, O_RDWR)) {
        // Removing is a store of nothing, and reports as one.
        DebugError("avi_store_file_info: Couldn't open file\n");
        return 0;
    }
    AviTree tree;
    return tree.read_for_writing(file.handle()) && remove_tags(file.handle(), &tree) && file.close() ? 1 : 0;
}

} // namespace velmora
