#include "file_walk.h"

#include "portable/media_kind.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <strings.h>
#include <sys/stat.h>

namespace velmora::tag_tool {

namespace {

bool is_folder(const std::string& path, bool follow_links) {
    struct stat status {};
    const int result = follow_links ? ::stat(path.c_str(), &status) : ::lstat(path.c_str(), &status);
    return result == 0 && S_ISDIR(status.st_mode);
}

std::string joined_path(const std::string& folder, const std::string& name) {
    return folder.ends_with('/') ? folder + name : folder + '/' + name;
}

/** The names in FOLDER, in bytewise order. False, with errno, where they can't be read. */
bool list(const std::string& folder, std::vector<std::string>& names) {
    DIR* const listing = ::opendir(folder.c_str());
    if (!listing) {
        return false;
    }
    errno = 0;
    while (const dirent* const entry = ::readdir(listing)) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") {
            names.push_back(name);
        }
    }
    const int error = errno;
    ::closedir(listing);
    errno = error;
    std::sort(names.begin(), names.end());
    return error == 0;
}

void walk(const std::string& folder, std::vector<FoundFile>& files) {
    std::vector<std::string> names;
    if (!list(folder, names)) {
        files.push_back({folder, std::strerror(errno)});
        return;
    }
    const auto disc = std::find_if(names.begin(), names.end(), [](const std::string& name) {
        return ::strcasecmp(name.c_str(), "video_ts.ifo") == 0;
    });
    if (disc != names.end()) {
        files.push_back({joined_path(folder, *disc), {}});
        return;
    }
    for (const std::string& name : names) {
        const std::string path = joined_path(folder, name);
        if (is_folder(path, false)) {
            walk(path, files);
        } else if (portable::media_kind(name) && !is_folder(path, true)) {
            files.push_back({path, {}});
        }
    }
}

} // namespace

std::vector<FoundFile> find_files(const std::vector<std::string>& paths, bool recursive) {
    std::vector<FoundFile> files;
    for (const std::string& path : paths) {
        if (!is_folder(path, true)) {
            files.push_back({path, {}});
        } else if (recursive) {
            walk(path, files);
        } else {
            files.push_back({path, "a folder, which takes --recursive"});
        }
    }
    return files;
}

} // namespace velmora::tag_tool
