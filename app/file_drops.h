#pragma once

#include <QObject>
#include <QStringList>

class QDropEvent;
class QWidget;

namespace velmora {

/** Takes the folders, songs, films and pictures that are dropped on a window, wherever nothing inside the
   window takes them itself. Other files are left out. */
class FileDrops : public QObject {
    Q_OBJECT
public:
    /** WINDOW outlives this object. */
    explicit FileDrops(QWidget& window);

signals:
    /** Files and folders were dropped: their paths, in the order in which they came. */
    void dropped(const QStringList& paths);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void take(QDropEvent* event);
};

} // namespace velmora
