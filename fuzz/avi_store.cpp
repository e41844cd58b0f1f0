#include "tag_edit.h"

#include "taglib/avi/load_file_info.h"
#include "taglib/avi/remove_file_info.h"
#include "taglib/avi/store_file_info.h"

#include <algorithm>
#include <cerrno>

namespace velmora::fuzz {
namespace {

constexpr std::uint8_t remove_instead = 0x01;

std::uint32_t le32_at(const std::string& file, std::size_t position) {
    return static_cast<std::uint32_t>(
        Input(reinterpret_cast<const std::uint8_t*>(file.data()) + position, 4).number(4));
}

/** Where a file's chunks are, found without the code under test. */
struct Layout {
    explicit Layout(const std::string& file) {
        for (std::size_t at = 12; at + 8 <= file.size(); at = end) {
            at += at & 1;
            const bool whole = at + 8 <= file.size();
            const std::string fourcc = file.substr(at, whole ? 4 : 0);
            const bool printable =
                std::all_of(fourcc.begin(), fourcc.end(), [](char c) { return c >= 0x20 && c <= 0x7E; });
            if (!whole || !printable || at + le32_at(file, at + 4) > file.size()) {
                break;
            }
            end = at + 8 + le32_at(file, at + 4);
            last = at;
            if (fourcc == "LIST" && file.compare(at + 8, 4, "INFO") == 0) {
                info = info_lists++ == 0 ? at : info;
            }
        }
        end += end & 1;
    }

    [[nodiscard]] bool info_is_last() const { return info_lists > 0 && info == last; }

    std::size_t end = 12; ///< where a chunk that is appended goes
    std::size_t last = 0;
    std::size_t info = 0; ///< the first INFO list
    int info_lists = 0;
};

/** BEFORE with the bytes blanked that a store or a removal may write in front of POSITION. */
std::string untouchable(const std::string& file, const Layout& before, std::size_t position) {
    std::string bytes = file.substr(0, position);
    bytes.replace(4, 4, "size");
    if (before.info_lists > 0 && !before.info_is_last()) {
        bytes.replace(before.info, 4, "JUNK");
    }
    return bytes;
}

void require_loads_back(const MediaFile& file, const TagEdit& edit, const Layout& before,
                        std::size_t list_position) {
    const std::string bytes = file.bytes();
    LoadedInfo loaded;
    const bool readable = avi_load_file_info(file.path(), &loaded) == 1;
    const std::size_t list_end = list_position + 8 + le32_at(bytes, list_position + 4);
    // What is left of a longer list may stand for anything, and so may a second list.
    require(readable || bytes.size() > list_end, "a stored file can be read");
    if (readable && before.info_lists <= 1) {
        require(edit.differing(loaded, ~file_info_flag::time) == 0, "a load gives what was stored");
    }
}

} // namespace
} // namespace velmora::fuzz

/** Input: a byte of choices, a TagEdit, an AVI file. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    using namespace velmora::fuzz;
    Input input(data, size);
    const bool removes = input.byte() & remove_instead;
    const TagEdit edit(input);
    const std::string before = input.rest();
    const MediaFile file(before);
    const DescriptorCheck descriptors;

    LoadedInfo loaded;
    const bool readable = avi_load_file_info(file.path(), &loaded) == 1;
    _file_info_t info = edit.record();
    const int result = removes ? avi_remove_file_info(file.path()) : avi_store_file_info(file.path(), &info);
    require(result == (readable ? 1 : 0), "what can be loaded can be stored into, and nothing else");
    const std::string after = file.bytes();
    if (!readable) {
        require(errno == 5 || errno == 78, "a refused file is error 5 or 78");
        require(after == before, "a refused file is unchanged");
        return 0;
    }
    const Layout layout(before);
    const std::size_t list_position = layout.info_is_last() ? layout.info : layout.end;
    require(after.size() >= before.size(), "a file never gets shorter");
    const std::size_t kept = removes ? before.size() : std::min(list_position, before.size());
    if (removes && layout.info_lists == 0) {
        require(after == before, "a removal of nothing changes nothing");
    } else {
        require(untouchable(after, layout, kept) == untouchable(before, layout, kept),
                "only sizes, marks and the list are written");
    }
    if (!removes) {
        require((info.flags & 0xFF) == 0, "every field's flag is cleared");
        require_loads_back(file, edit, layout, list_position);
    }
    return 0;
}
