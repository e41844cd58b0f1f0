#include "file_drops.h"

#include "model/media_type.h"
#include "platform/file_attributes.h"
#include "platform/file_path.h"

#include <QDropEvent>
#include <QMimeData>
#include <QUrl>
#include <QWidget>

namespace velmora {
namespace {

bool isWelcome(const QString& path) {
    if (mediaKindOfPath(path).type != otherMedia) {
        return true;
    }
    const std::optional<FileAttributes> attributes = fileAttributes(pathBytes(path));
    return attributes && attributes->isDirectory;
}

QStringList welcomePaths(const QMimeData& data) {
    QStringList paths;
    for (const QUrl& url : data.urls()) {
        if (const QString path = pathFromFileUrl(url); !path.isEmpty() && isWelcome(path)) {
            paths += path;
        }
    }
    return paths;
}

} // namespace

FileDrops::FileDrops(QWidget& window) : QObject(&window) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool FileDrops::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
        take(static_cast<QDropEvent*>(event));
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

/** The files stay where they are, whatever the source would rather do with them. */
void FileDrops::take(QDropEvent* event) {
    const QStringList paths = welcomePaths(*event->mimeData());
    if (paths.isEmpty() || !event->possibleActions().testFlag(Qt::CopyAction)) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    if (event->type() == QEvent::Drop) {
        emit dropped(paths);
    }
}

} // namespace velmora
