#include "tag_edit.h"

#include "taglib/id3/load_file_info.h"
#include "taglib/id3/reader.h"
#include "taglib/id3/remove_file_info.h"
#include "taglib/id3/store_file_info.h"

#include <fcntl.h>
#include <unistd.h>
#include <vector>

namespace velmora::fuzz {
namespace {

constexpr std::uint8_t remove_instead = 0x01;
constexpr std::uint8_t temporary_file_exists = 0x02;

bool creates_temporary_file = false;

/** A tag's place, found without the code under test. */
struct Place {
    /** Looks as the library does: through a footer, else at the start. */
    explicit Place(const std::string& file) : position(file.size()) {
        const std::size_t footer = file.size() - 10; // not used in shorter files
        if (file.size() >= 10 && file.compare(footer, 3, "3DI") == 0 && version(file, footer) <= 4) {
            const std::size_t length = 10 + size(file, footer);
            if (length <= footer && take(file, footer - length)) {
                at_end = true;
                return;
            }
        }
        take(file, 0);
    }

    /** The whole length of the tag in FILE, its footer included where the header announces one. */
    [[nodiscard]] std::size_t length(const std::string& file) const {
        const bool footer = static_cast<unsigned char>(file[position + 5]) & 0x10;
        return size(file, position) + (footer ? 20 : 10);
    }

    /** What a header or footer at this position gives as the tag's size. */
    [[nodiscard]] static std::size_t size(const std::string& file, std::size_t header) {
        std::size_t size = 0;
        for (std::size_t i = 6; i < 10; ++i) {
            const auto byte = static_cast<unsigned char>(file[header + i]);
            size = size << 7 | (i < 9 ? byte & 0x7Fu : byte);
        }
        return size;
    }

    std::size_t position; ///< of the header; the file's length when there is no tag
    bool found = false;
    bool at_end = false;

private:
    static unsigned version(const std::string& file, std::size_t header) {
        return static_cast<unsigned char>(file[header + 3]);
    }
    bool take(const std::string& file, std::size_t header) {
        found = header + 10 <= file.size() && file.compare(header, 3, "ID3") == 0 &&
                version(file, header) <= 4 && size(file, header) <= 0x40000;
        position = found ? header : position;
        return found;
    }
};

/** The frames that an edit never touches, as ids with their bodies. */
std::vector<std::string> bystanders(const MediaFile& file, bool at_end) {
    std::vector<std::string> frames;
    FIOFUNCSTRUCT handle{-1};
    require(fio_open(file.path(), O_RDONLY, 0, &handle) == 0, "the media file can be opened");
    _id3_file_desc_t tag{};
    if (id3_load_descriptor_v2(&handle, &tag, at_end) >= 0) {
        for (std::int32_t i = 0; i < tag.frame_count; ++i) {
            const _id3_frame_t frame = tag.frames[i];
            const std::string id = id3_tag(frame.id);
            const bool touched = id == "TALB" || id == "TPE1" || id == "TIT2" || id == "TPE3" ||
                                 id == "PRIV" || id == "Priv" || id == "priv" || id == "TCON" ||
                                 id == "TYER" || id == "APIC" || id == "TDRC";
            if (!touched) {
                frames.push_back(id + std::string(reinterpret_cast<const char*>(frame.data),
                                                  static_cast<std::size_t>(frame.size)));
            }
        }
    }
    id3_free_descriptor(&tag);
    fio_close(&handle);
    return frames;
}

/** What a store at a file's end leaves of it. */
void require_media_kept_in_place(const std::string& before, const std::string& after, const Place& place) {
    require(after.size() >= before.size(), "a file never gets shorter");
    require(after.compare(0, place.position, before, 0, place.position) == 0,
            "nothing in front of an appended tag changes");
}

/** What a store through a copy leaves of a file. */
void require_media_kept_in_copy(const std::string& before, const std::string& after, const Place& place) {
    const std::size_t media = place.found ? std::min(place.length(before), before.size()) : 0;
    const Place new_place(after);
    // The media may happen to look like an appended tag, now that it lies elsewhere.
    if (!new_place.at_end || new_place.position == 0) {
        require(after.size() >= before.size() - media, "a copy holds the media");
        require(after.compare(after.size() - (before.size() - media), std::string::npos, before, media,
                              std::string::npos) == 0,
                "a copy ends with the media, unchanged");
    }
}

/** Whether a load finds the tag that a store wrote at PLACE. A tag that became shorter by less than a footer
   lies partly over its old footer, and one beyond the largest size is not read. */
bool is_found_again(const std::string& before, const std::string& after, const Place& place) {
    const Place now(after);
    if (!now.found || now.position != place.position) {
        const bool too_large = Place::size(after, place.position) > 0x40000;
        const bool footer_half_covered = place.position != 0 && after.size() == before.size();
        const bool another = now.found && now.at_end;
        require(too_large || footer_half_covered || another, "a stored tag is found again");
        return false;
    }
    return true;
}

void require_loads_back(const MediaFile& file, const TagEdit& edit) {
    LoadedInfo loaded;
    require(id3_load_file_info(file.path(), &loaded) == 1, "a stored file can be read");
    // A genre in brackets is read as a number, and what a time is read as depends on the time zone.
    std::uint32_t fields = ~file_info_flag::time;
    const _file_info_t stored = edit.record();
    if (stored.genre[0] == '(') {
        fields &= ~file_info_flag::genre;
    }
    require(edit.differing(loaded, fields) == 0, "a load gives what was stored");
}

void store(const MediaFile& file, const std::string& before, const TagEdit& edit) {
    const Place place(before);
    const std::vector<std::string> others = bystanders(file, place.at_end);
    _file_info_t info = edit.record();
    const int result = id3_store_file_info(file.path(), &info);
    const std::string after = file.bytes();
    require(!file.has_neighbours(), "no temporary file stays behind");
    require(info.flags == (result == 1 ? file_info_flag::tag_present : 0u), "every field's flag is cleared");
    if (place.position == 0) {
        require(result == (creates_temporary_file ? 1 : 0), "only a temporary file can be missing");
        if (result == 0) {
            require(after == before, "a store that fails leaves the file alone");
            return;
        }
        require_media_kept_in_copy(before, after, place);
    } else {
        require(result == 1, "a tag can be appended to anything");
        require_media_kept_in_place(before, after, place);
    }
    if (is_found_again(before, after, place)) {
        require_loads_back(file, edit);
        std::vector<std::string> kept = bystanders(file, Place(after).at_end);
        // What the tag's padding holds may look like frames, now that it lies elsewhere.
        require(kept.size() >= others.size(), "no other frame goes");
        kept.resize(others.size());
        require(kept == others, "other frames stay as they are");
    }
}

void remove(const MediaFile& file, const std::string& before) {
    const Place place(before);
    require(id3_remove_file_info(file.path()) == 1, "a removal has no way to fail");
    const std::string after = file.bytes();
    const bool side_file = after.empty() && !before.empty();
    require(side_file ? before.size() >= 20 && before.compare(0, 3, "ID3") == 0 : after == before,
            "a removal deletes a side file and changes nothing else");
}

} // namespace
} // namespace velmora::fuzz

/* The library opens its temporary file without creating it; here the name's generator may do that. */
extern "C" char* __real_mktemp(char* name);  // NOLINT(bugprone-reserved-identifier)
extern "C" char* __wrap_mktemp(char* name) { // NOLINT(bugprone-reserved-identifier)
    char* const made = __real_mktemp(name);
    if (velmora::fuzz::creates_temporary_file) {
        ::close(::open(made, O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    }
    return made;
}

/** Input: a byte of choices, a TagEdit, a file. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora::fuzz;
    Input input(data, size);
    const std::uint8_t choices = input.byte();
    creates_temporary_file = choices & temporary_file_exists;
    const TagEdit edit(input);
    const std::string before = input.rest();
    const MediaFile file(before);
    const DescriptorCheck descriptors;
    if (choices & remove_instead) {
        remove(file, before);
    } else {
        store(file, before, edit);
    }
    return 0;
}
