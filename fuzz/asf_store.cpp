#include "tag_edit.h"

#include "taglib/asf/load_file_info.h"
#include "taglib/asf/store_file_info.h"

#include <algorithm>
#include <cerrno>

namespace velmora::fuzz {
namespace {

constexpr std::uint8_t remove_instead = 0x01;
/** Without as much data as the move's buffer takes, no data is moved. */
constexpr std::uint8_t much_data = 0x02;
/** All of these bits at once, as it is slow: more data than a move takes at a time. */
constexpr std::uint8_t very_much_data = 0xF2;

/** Bytes without long repeats: as many as the choices ask for. */
std::string media_data(std::uint8_t choices) {
    static const std::string bytes = [] {
        std::string made;
        for (std::uint32_t i = 0; i < 1'200'000; ++i) {
            made.push_back(static_cast<char>(i * 2654435761u >> 24));
        }
        return made;
    }();
    if ((choices & very_much_data) == very_much_data) {
        return bytes;
    }
    return (choices & much_data) != 0 ? bytes.substr(0, 70'000) : std::string();
}

constexpr std::size_t object_header_size = 24;

/** What the file does not have counts as zero. */
std::uint64_t le64_at(const std::string& file, std::size_t position) {
    const std::string bytes = file.substr(std::min(position, file.size()), 8);
    return Input(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()).number(8);
}

/** The children of FILE's header, found without the code under test. */
struct Header {
    explicit Header(const std::string& file) : size(le64_at(file, 16)) {
        static const std::string ecd_guid =
            "\x40\xA4\xD0\xD2\x07\xE3\xD2\x11\x97\xF0" + std::string(1, '\0') + "\xA0\xC9\x5E\xA8\x50";
        std::uint64_t at = 30;
        for (std::uint64_t i = le64_at(file, 24) & 0xFFFFFFFF; i > 0 && at < file.size(); --i) {
            const std::uint64_t child = le64_at(file, at + 16);
            // A padding object may be smaller than its own header, which then lies over what follows.
            overhang |= child < object_header_size;
            has_ecd |= file.compare(at, 16, ecd_guid) == 0;
            if (child == 0) {
                break;
            }
            at += std::min<std::uint64_t>(child, file.size());
        }
    }

    std::uint64_t size;
    bool has_ecd = false;
    bool overhang = false;
};

/** The media data: what follows the header. */
std::string data_of(const std::string& file, std::uint64_t header_size) {
    return header_size < file.size() ? file.substr(header_size) : std::string();
}

void require_media_moved_whole(const std::string& before, const std::string& after, const Header& old_header,
                               const Header& new_header) {
    const std::string media = data_of(before, old_header.size);
    std::string moved = data_of(after, new_header.size).substr(0, media.size());
    require(moved.size() == media.size(), "all of the media data follows the header");
    const std::size_t covered =
        new_header.overhang ? std::min(object_header_size, media.size()) : std::size_t{0};
    require(moved.compare(covered, std::string::npos, media, covered, std::string::npos) == 0,
            "the media data is unchanged");
}

/** A growing header moves the data first, and writes nothing when that can't be done. In too little data of a
   file that is large all the same, the last piece was moved. */
void require_media_in_place(const std::string& before, const std::string& after, const Header& old_header) {
    require(after.size() >= before.size(), "a file never gets shorter");
    if (before.size() < 65536) {
        const std::size_t covered = Header(after).overhang ? object_header_size : 0;
        const std::size_t from = std::min<std::size_t>(old_header.size + covered, before.size());
        require(after.size() == std::max(before.size(), old_header.size + covered) ||
                    after.size() == before.size(),
                "a file whose data can't be moved keeps its length");
        require(after.compare(from, before.size() - from, before, from, std::string::npos) == 0,
                "media data that can't be moved stays where it is");
    }
}

void require_loads_back(const MediaFile& file, const TagEdit& edit, const Header& header) {
    namespace flag = file_info_flag;
    LoadedInfo loaded;
    require(asf_load_file_info(file.path(), &loaded) == 1, "a stored file can be read");
    // Without an Extended Content Description only two texts have a place.
    const std::uint32_t numbers = header.has_ecd ? flag::year | flag::time : 0;
    const std::uint32_t texts = header.has_ecd ? ~0u : flag::artist | flag::desc;
    const std::uint32_t differing = edit.differing(loaded, numbers | (texts & edit.ascii_fields()));
    require(differing == 0, "a load gives what was stored");
}

} // namespace
} // namespace velmora::fuzz

/** Input: a byte of choices, a TagEdit, an ASF file. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    using namespace velmora::fuzz;
    Input input(data, size);
    const std::uint8_t choices = input.byte();
    const TagEdit edit(input);
    const std::string before = input.rest() + media_data(choices);
    const MediaFile file(before);
    const DescriptorCheck descriptors;

    bool readable = false;
    {
        LoadedInfo loaded;
        readable = asf_load_file_info(file.path(), &loaded) == 1;
    }
    const _file_info_t info = edit.record();
    const bool removes = choices & remove_instead;
    const int result = removes ? asf_remove_file_info(file.path()) : asf_store_file_info(file.path(), &info);
    const Header old_header(before);
    if (old_header.size > before.size() && readable) {
        // There is no media data, but there may be a hole where the header says that its padding is.
        require(old_header.size <= 0xFFFFFFFF || result == 0, "a header beyond 32 bits is refused");
        require(file.size() <= std::max<std::uint64_t>(before.size(), old_header.size + 65536),
                "a file does not grow much beyond its header");
        return 0;
    }
    const std::string after = file.bytes();
    if (!readable) {
        require(result == 0 && after == before, "a file with an unreadable header is unchanged");
        return 0;
    }
    if (old_header.overhang) {
        return 0; // what is appended behind an overhanging padding lies over its header
    }
    if (result == 0) {
        require_media_in_place(before, after, old_header);
        return 0;
    }
    const Header new_header(after);
    require_media_moved_whole(before, after, old_header, new_header);
    if (!removes) {
        require_loads_back(file, edit, old_header);
    }
    return 0;
}
