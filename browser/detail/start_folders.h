#pragma once

#include <QByteArray>
#include <QStringList>

namespace velmora {

/** The folders that a start searches, in this order: Movies, Music and Pictures of the folder at the bytes
   HOME, whether they are there or not; then those of DESKTOP_FOLDERS that are there and hold something that
   the ones before them do not. The home folder is none of these, nor is a folder around it: so a desktop says
   that it has none for a kind of media. Links are followed to find that out. */
[[nodiscard]] QStringList startFolders(const QByteArray& home, const QStringList& desktopFolders);

} // namespace velmora
