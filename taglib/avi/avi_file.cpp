#include "avi_file.h"

#include "../trace.h"
#include "header_reader.h"

#include <algorithm>
#include <cerrno>
#include <limits>
#include <unistd.h>

namespace velmora {

AviFile::~AviFile() {
    const int error = errno;
    avi_free_header(&root);
    if (file.descriptor >= 0) {
        fio_close(&file);
    }
    errno = error;
}

bool AviFile::open(const char* path, int flags) {
    errno = 0;
    return fio_open(path, flags, 0, &file) == 0;
}

bool AviFile::read_header() {
    if (avi_read_header(&file, &root)) {
        return true;
    }
    if (errno != avi_error_several_riffs) {
        errno = avi_error_unreadable;
    }
    return false;
}

bool AviFile::read_header_for_writing() {
    if (!read_header()) {
        return false;
    }
    const _avi_item_t* const info = info_list();
    if (avi_is_incomplete(&root) || (info && avi_is_incomplete(info))) {
        errno = avi_error_unreadable;
        return false;
    }
    return true;
}

_avi_item_t* AviFile::info_list() const {
    return avi_find_list_item(&root, fourcc::info);
}

bool AviFile::is_last(const _avi_item_t* item) const {
    return avi_get_item_index(&root, item) == root.child_count - 1;
}

std::uint64_t AviFile::end_of_riff() const {
    // Not from the root's size, whose 32 bits do not reach the end of a file beyond 4 GiB.
    std::uint64_t end = 12;
    if (root.child_count > 0) {
        const _avi_item_t& last = root.children[root.child_count - 1];
        end = last.offset + 8 + last.size;
    }
    return end + (end & 1);
}

bool AviFile::write_junk_over_info_list() {
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
    const auto offset = static_cast<std::int64_t>(junk.offset);
    return fio_lseek(&file, offset, SEEK_SET) == offset && avi_store_item(&file, &junk);
}

bool AviFile::write_riff_header() {
    constexpr std::uint64_t largest = std::numeric_limits<std::uint32_t>::max();
    root.size = static_cast<std::uint32_t>(std::min(avi_sizeof_item(&root), largest));
    _avi_item_t header{};
    header.fourcc = root.fourcc;
    header.size = root.size;
    return fio_lseek(&file, 0, SEEK_SET) == 0 && avi_store_item(&file, &header);
}

void AviFile::end_here() {
    [[maybe_unused]] const ssize_t nothing_to_lose = fio_write(&file, "", 0);
}

bool AviFile::close() {
    const bool closed = fio_close(&file) == 0;
    file.descriptor = -1;
    return closed;
}

} // namespace velmora
