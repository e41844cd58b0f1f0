#include "file_icon.h"

#include "file_attributes.h"
#include "file_path.h"

#include <QFileIconProvider>
#include <QFileInfo>

#include <map>

namespace velmora {
namespace {

QIcon askDesktop(const QString& path) {
    const QFileIconProvider provider;
    return provider.icon(QFileInfo(path));
}

} // namespace

QIcon fileIcon(const QString& path) {
    static std::map<QString, QIcon, std::less<>> iconsByExtension;

    const QString extension = pathExtension(path);
    // Without an extension the desktop goes by what the file is or holds, and so does a folder's icon.
    if (extension.isEmpty()) {
        return askDesktop(path);
    }
    if (const auto known = iconsByExtension.find(extension); known != iconsByExtension.end()) {
        return known->second;
    }
    const QIcon icon = askDesktop(path);
    const std::optional<FileAttributes> attributes = fileAttributes(pathBytes(path));
    if (attributes && !attributes->isDirectory) {
        iconsByExtension.emplace(extension, icon);
    }
    return icon;
}

} // namespace velmora
