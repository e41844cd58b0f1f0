#include "tree.h"

#include "taglib/avi/header_reader.h"
#include "taglib/trace.h"
#include "taglib/write_cursor.h"

#include <algorithm>
#include <cerrno>
#include <limits>

namespace velmora {

namespace {

bool write_at(FIOFUNCSTRUCT* file, std::uint64_t position, const _avi_item_t& item) {
    WriteCursor cursor(file, position);
    return cursor.settle() && avi_store_item(&cursor, &item);
}

} // namespace

AviTree::~AviTree() {
    avi_free_header(&root);
}

bool AviTree::read(FIOFUNCSTRUCT* file) {
    if (avi_read_header(file, &root)) {
        return true;
    }
    if (errno != avi_error_several_riffs) {
        errno = avi_error_unreadable;
    }
    return false;
}

bool AviTree::read_for_writing(FIOFUNCSTRUCT* file) {
    if (!read(file)) {
        return false;
    }
    const _avi_item_t* const info = info_list();
    if (avi_is_incomplete(&root) || (info && avi_is_incomplete(info))) {
        errno = avi_error_unreadable;
        return false;
    }
    return true;
}

_avi_item_t* AviTree::info_list() const {
    return avi_find_list_item(&root, fourcc::info);
}

bool AviTree::is_last(const _avi_item_t* item) const {
    return avi_get_item_index(&root, item) == root.child_count - 1;
}

std::uint64_t AviTree::end_of_riff() const {
    // Not from the root's size, whose 32 bits do not reach the end of a file beyond 4 GiB.
    std::uint64_t end = 12;
    if (root.child_count > 0) {
        const _avi_item_t& last = root.children[root.child_count - 1];
        end = last.offset + 8 + last.size;
    }
    return end + (end & 1);
}

bool AviTree::write_junk_over_info_list(FIOFUNCSTRUCT* file) {
    const _avi_item_t* const info = info_list();
    _avi_item_t junk{};
    junk.fourcc = fourcc::junk;
    junk.size = info->size;
    junk.offset = info->offset;
    const auto index = static_cast<std::uint32_t>(avi_get_item_index(&root, info));
    if (!avi_insert_item(&root, &junk, index)) {
        return false;
    }
    DebugInfo("Writing <junk> at 0x%x size 0x%x\n", static_cast<unsigned>(junk.offset), junk.size);
    return write_at(file, junk.offset, junk);
}

bool AviTree::write_info_list(FIOFUNCSTRUCT* file, _avi_item_t* list) {
    list->size = static_cast<std::uint32_t>(avi_sizeof_item(list));
    DebugInfo("Writing <info> at 0x%x size 0x%x\n", static_cast<unsigned>(list->offset), list->size);
    return write_at(file, list->offset, *list);
}

bool AviTree::write_riff_header(FIOFUNCSTRUCT* file) {
    constexpr std::uint64_t largest = std::numeric_limits<std::uint32_t>::max();
    root.size = static_cast<std::uint32_t>(std::min(avi_sizeof_item(&root), largest));
    _avi_item_t header{};
    header.fourcc = root.fourcc;
    header.size = root.size;
    return write_at(file, 0, header);
}

} // namespace velmora
