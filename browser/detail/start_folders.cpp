#include "start_folders.h"

#include "platform/file_path.h"

#include <algorithm>
#include <filesystem>

namespace velmora {
namespace {

/** Where PATH leads; empty where that is no folder. */
std::filesystem::path place(const QByteArray& path) {
    std::error_code error;
    const std::filesystem::path whole = std::filesystem::canonical(path.toStdString(), error);
    return !error && std::filesystem::is_directory(whole, error) ? whole : std::filesystem::path();
}

/** Whether INNER is OUTER or lies somewhere in it; both are places. */
bool holds(const std::filesystem::path& outer, const std::filesystem::path& inner) {
    return !outer.empty() &&
           std::mismatch(outer.begin(), outer.end(), inner.begin(), inner.end()).first == outer.end();
}

} // namespace

QStringList startFolders(const QByteArray& home, const QStringList& desktopFolders) {
    QStringList folders;
    std::vector<std::filesystem::path> places;
    for (const char* name : {"Movies", "Music", "Pictures"}) {
        const QByteArray folder = joinedPath(home, name);
        folders += pathFromBytes(folder);
        places.push_back(place(folder));
    }
    const std::filesystem::path homePlace = place(home);
    for (const QString& folder : desktopFolders) {
        const std::filesystem::path added = place(pathBytes(folder));
        const bool isSearched = std::any_of(places.begin(), places.end(),
                                            [&](const auto& searched) { return holds(searched, added); });
        if (!added.empty() && !isSearched && !holds(added, homePlace)) {
            folders += folder;
            places.push_back(added);
        }
    }
    return folders;
}

} // namespace velmora
