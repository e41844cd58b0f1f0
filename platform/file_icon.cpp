#include "file_icon.h"

#include "file_attributes.h"
#include "file_path.h"

#include <QFileIconProvider>
#include <QFileInfo>

#include <map>
#include <optional>

namespace velmora {
namespace {

/** The icon of a file that Qt can't look at: it is gone, or its name is not UTF-8. */
QIcon plainIcon(const QString& path) {
    const std::optional<FileAttributes> attributes = fileAttributes(pathBytes(path));
    const bool isFolder = attributes && attributes->isDirectory;
    return QFileIconProvider().icon(isFolder ? QFileIconProvider::Folder : QFileIconProvider::File);
}

} // namespace

QIcon fileIcon(const QString& path) {
    static std::map<QString, QIcon> iconsByExtension;

    const QString extension = pathExtension(path);
    if (const auto known = iconsByExtension.find(extension); known != iconsByExtension.end()) {
        return known->second;
    }
    const QFileInfo file(path);
    if (!file.exists()) {
        return plainIcon(path);
    }
    QIcon icon = QFileIconProvider().icon(file);
    // Without an extension the desktop goes by what the file is or holds, and so does a folder's icon.
    if (!extension.isEmpty() && !file.isDir()) {
        iconsByExtension.emplace(extension, icon);
    }
    return icon;
}

} // namespace velmora
