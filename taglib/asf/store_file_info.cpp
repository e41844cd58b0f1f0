#include "store_file_info.h"

#include "content_description.h"
#include "detail/apply_file_info.h"
#include "detail/object_writer.h"
#include "detail/owned_header.h"
#include "ext_content_description.h"
#include "guids.h"
#include "move_file.h"

#include "taglib/trace.h"

#include <cerrno>
#include <fcntl.h>
#include <limits>
#include <memory>
#include <unistd.h>

namespace velmora {

namespace {

constexpr std::uint64_t new_padding_size = 1024;
/** Sizes are added up in 32 bits: of a larger header not even the children's places would be known. */
constexpr std::uint64_t largest_header = std::numeric_limits<std::uint32_t>::max();

struct FreeExtContentDescription {
    void operator()(_asf_ext_content_description_t* ecd) const { asf_free_ext_content_description(ecd); }
};
/** An Extended Content Description that no header owns. */
using LooseExtContentDescription = std::unique_ptr<_asf_ext_content_description_t, FreeExtContentDescription>;

/** The first Content Description, appended when there is none; null when that fails. */
_asf_content_description_t* find_or_append_cd(AsfHeader& header) {
    auto* const cd = header.find<_asf_content_description_t>(ASF_ContentDescription);
    return cd ? cd
              : static_cast<_asf_content_description_t*>(
                    asf_append_object(header.record(), asf_init_content_description()));
}

/** The first Extended Content Description. For a header that has none an empty one is made, which takes the
   edits but stays outside the header (LOOSE owns it): what the header gets is its Content Description CD
   once more. */
_asf_ext_content_description_t* find_or_make_ecd(AsfHeader& header, _asf_content_description_t* cd,
                                                 LooseExtContentDescription& loose) {
    auto* const ecd = header.find<_asf_ext_content_description_t>(ASF_ExtendedContentDescription);
    if (ecd) {
        return ecd;
    }
    loose.reset(asf_init_ext_content_description());
    return loose && asf_insert_object(header.record(), cd) ? loose.get() : nullptr;
}

/** The padding that growth may use: the last child, when that is a padding object. */
_asf_object_t* find_padding(const _asf_header_object_t& header) {
    _asf_object_t* const last = header.child_count > 0 ? header.children[header.child_count - 1] : nullptr;
    return last && last->guid == ASF_PaddingObject ? last : nullptr;
}

void log_padding_size(std::uint64_t size) {
    DebugInfo("New pad size = %I64x\n", size);
}

[[nodiscard]] bool append_padding(_asf_header_object_t* header) {
    _asf_object_t* const padding = asf_init_object();
    if (!padding) {
        return false;
    }
    padding->guid = ASF_PaddingObject;
    padding->size = new_padding_size;
    if (!asf_append_object(header, padding)) {
        return false;
    }
    log_padding_size(new_padding_size);
    return true;
}

/** Lets the last PADDING (null for none) take up DIFF, the header's growth, where it can. False when memory
   is exhausted. */
[[nodiscard]] bool adjust_padding(_asf_header_object_t* header, _asf_object_t* padding, std::int64_t diff) {
    if (!padding) {
        if (diff > 0) {
            return append_padding(header);
        }
        if (diff < 0) {
            // Only traced: without a padding to grow the header shrinks and the data moves back.
            const std::uint64_t saved = 0 - static_cast<std::uint64_t>(diff);
            log_padding_size(saved >= asf_object_header_size ? saved - asf_object_header_size
                                                             : new_padding_size);
        }
        return true;
    }
    if (diff > 0) {
        // What is left may be less than the padding's own header, which then lies over the first bytes of the
        // data.
        const auto growth = static_cast<std::uint64_t>(diff);
        if (padding->size <= growth) {
            return true;
        }
        DebugInfo("asf_store_file_info: Reducing pad size\n");
        padding->size -= growth;
    } else if (diff < 0) {
        DebugInfo("asf_store_file_info: Increasing pad size\n");
        padding->size -= static_cast<std::uint64_t>(diff); // which is negative
    }
    log_padding_size(padding->size);
    return true;
}

std::int64_t header_growth(const _asf_header_object_t* header, std::uint64_t old_size) {
    return static_cast<std::int64_t>(std::uint64_t{asf_get_header_object_size(header)} - old_size);
}

/** Whether a child begins behind the end of the file: behind a padding that the file ends in. */
bool leaves_a_hole(const _asf_header_object_t& header, std::uint64_t file_end) {
    std::uint64_t position = asf_header_object_fixed_size;
    for (std::uint32_t i = 0; i < header.child_count; ++i) {
        const _asf_object_t& child = *header.children[i];
        if (i > 0 && header.children[i - 1]->guid == ASF_PaddingObject && position > file_end) {
            return true;
        }
        position += child.size;
    }
    return false;
}

/** Writes the header and moves the data to where the header, GROWTH bytes larger than before, will end. */
[[nodiscard]] bool write_header(FIOFUNCSTRUCT* file, _asf_header_object_t* header, std::uint64_t old_size,
                                std::int64_t growth) {
    const std::uint64_t new_size = old_size + static_cast<std::uint64_t>(growth);
    const auto from = static_cast<std::int64_t>(old_size);
    const auto to = static_cast<std::int64_t>(new_size);
    if (growth > 0 && !asf_move_file(file, from, to)) {
        return false;
    }
    if (growth < 0) {
        // Data that is not there can't move. A header that would be far away from the rest of the file, with
        // a hole between them, is then not written either.
        const std::int64_t file_end = fio_lseek(file, 0, SEEK_END);
        if (file_end >= 0 && from > file_end &&
            leaves_a_hole(*header, static_cast<std::uint64_t>(file_end))) {
            return asf_move_file(file, from, to) != 0;
        }
    }
    header->size = new_size;
    AsfObjectWriter writer(file, 0);
    if (!asf_put_header_object(&writer, *header)) {
        return false;
    }
    DebugInfo("Size after writing header: %I64x\n", writer.position());
    return growth >= 0 || asf_move_file(file, from, to);
}

[[nodiscard]] bool store(FIOFUNCSTRUCT* file, AsfHeader& header, const _file_info_t& info) {
    _asf_header_object_t* const record = header.record();
    const std::uint64_t old_size = record->size;
    DebugInfo("Old size = %I64x\n", old_size);
    LooseExtContentDescription loose;
    _asf_content_description_t* const cd = find_or_append_cd(header);
    _asf_ext_content_description_t* const ecd = cd ? find_or_make_ecd(header, cd, loose) : nullptr;
    if (!ecd) {
        return false;
    }
    _asf_object_t* const padding = find_padding(*record);
    if (!asf_apply_file_info(info, cd, ecd)) {
        return false;
    }
    const std::int64_t diff = header_growth(record, old_size);
    DebugInfo("Diff size = %I64x\n", diff);
    if (!adjust_padding(record, padding, diff)) {
        return false;
    }
    const std::int64_t growth = header_growth(record, old_size);
    DebugInfo("Final diff size = %I64x\n", growth);
    return write_header(file, record, old_size, growth);
}

} // namespace

int asf_store_file_info(const char* path, const _file_info_t* info) {
    ByteFile file;
    if (!file.open(path, O_RDWR)) {
        DebugError("asf_store_file_info: Couldn't open file\n");
        return 0;
    }
    AsfHeader header;
    if (!header.read(&file) || header.record()->size > largest_header) {
        errno = asf_header_unreadable;
        return 0;
    }
    return store(file.handle(), header, *info) && file.close() ? 1 : 0;
}

int asf_remove_file_info(const char* path) {
    _file_info_t everything{};
    everything.flags = 0xFFFFFFFF;
    return asf_store_file_info(path, &everything);
}

} // namespace velmora
