#include "folder_walk.h"

#include "platform/file_attributes.h"
#include "platform/file_path.h"

#include <array>
#include <cerrno>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <dirent.h>

namespace velmora {
namespace {

using namespace std::string_view_literals;

/** Files of this many bytes or fewer are not listed. */
constexpr std::uint64_t largestSkippedSize = 102400;

// The look-up relies on the order of both lists.
constexpr std::array supportedMediaSeed = {
    "ac3"sv, "avi"sv, "divx"sv, "dvr-ms"sv, "flac"sv, "flv"sv, "ifo"sv, "iso"sv, "m4a"sv, "m4p"sv, "mov"sv,
    "mp2"sv, "mp3"sv, "mp4"sv,  "mpeg"sv,   "mpg"sv,  "ts"sv,  "vlv"sv, "vob"sv, "wav"sv, "wma"sv, "wmv"sv};
constexpr std::array dirExtBlacklistSeed = {"app"sv, "framework"sv, "kext"sv, "lproj"sv,
                                            "nib"sv, "palette"sv,   "pkg"sv,  "xcodeproj"sv};

struct Entry {
    std::string name;
    /** The listing itself says that this is a plain file: no folder, and no link to one. */
    bool isPlainFile = false;
};

std::vector<Entry> listFolder(const QByteArray& folder, FolderWalkListener& listener) {
    std::vector<Entry> entries;
    const std::unique_ptr<DIR, int (*)(DIR*)> listing(opendir(folder.constData()), closedir);
    if (!listing) {
        if (errno != ENOENT && errno != ENOTDIR) { // what is not there is not unreadable
            listener.unreadableFolder(folder);
        }
        return entries;
    }
    while (const dirent* entry = readdir(listing.get())) {
        const std::string_view name = entry->d_name;
        if (name != "." && name != "..") {
            entries.push_back({std::string(name), entry->d_type == DT_REG});
        }
    }
    return entries;
}

/** The text behind the last dot of a name, case kept; empty when there is none. */
std::string_view extensionOf(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
}

void searchEntry(const QByteArray& folder, const Entry& entry, FolderWalkListener& listener) {
    const std::string_view extension = extensionOf(entry.name);
    const bool isSupported = NSArray_binary_search_string(supportedMedia(), extension);
    // Most files of a home folder are neither media nor folders; the file system need not be asked about
    // them.
    if (entry.isPlainFile && !isSupported) {
        return;
    }
    const QByteArray path = joinedPath(folder, entry.name);
    const std::optional<FileAttributes> attributes = fileAttributes(path);
    if (!attributes) {
        return;
    }
    if (attributes->isDirectory) {
        if (!NSArray_binary_search_string(dirExtBlacklist(), extension)) {
            searchFolder(path, listener);
        }
        return;
    }
    if (isSupported && attributes->size.value_or(0) > largestSkippedSize) {
        listener.foundFile(path);
    }
}

} // namespace

ExtensionList supportedMedia() {
    return supportedMediaSeed;
}

ExtensionList dirExtBlacklist() {
    return dirExtBlacklistSeed;
}

bool NSArray_binary_search_string(ExtensionList list, std::string_view candidate) {
    while (!list.empty()) {
        const std::size_t mid = list.size() / 2;
        // Bytes of UTF-8 compare like the code points that they stand for.
        const int order = candidate.compare(list[mid]);
        if (order == 0) {
            return true;
        }
        list = order > 0 ? list.subspan(mid + 1) : list.first(mid);
    }
    return false;
}

void searchFolder(const QByteArray& folder, FolderWalkListener& listener) {
    const std::vector<Entry> entries = listFolder(folder, listener);
    listener.enteringFolder(folder);
    for (const Entry& entry : entries) {
        if (!listener.searchRunning()) {
            return;
        }
        searchEntry(folder, entry, listener);
    }
}

} // namespace velmora
