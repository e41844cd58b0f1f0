// A window at the top left of the screen from which a file can be dragged: another program, as the cover art
// view sees it. Its arguments are the paths of the files; "--image" instead drags a green image without a
// file, and "--move" in front offers no copy. Prints what became of each drag: the number of Qt::DropAction.

#include "support/pictures.h"

#include <QApplication>
#include <QDrag>
#include <QImage>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>
#include <QWidget>

#include <cstdio>

namespace {

class DragSource : public QWidget {
protected:
    void mouseMoveEvent(QMouseEvent* event) override {
        if (!(event->buttons() & Qt::LeftButton)) {
            return;
        }
        auto* drag = new QDrag(this);
        drag->setMimeData(data());
        const bool movesOnly = QApplication::arguments().contains(QStringLiteral("--move"));
        const Qt::DropActions actions = Qt::MoveAction | (movesOnly ? Qt::IgnoreAction : Qt::CopyAction);
        const int action = drag->exec(actions, Qt::MoveAction);
        std::printf("%d\n", action);
        std::fflush(stdout);
    }

private:
    [[nodiscard]] static QMimeData* data() {
        auto* data = new QMimeData;
        const QStringList arguments = QApplication::arguments().mid(1);
        if (arguments.contains(QStringLiteral("--image"))) {
            data->setImageData(velmora::test::plain({30, 20}, Qt::green));
            return data;
        }
        QList<QUrl> urls;
        for (const QString& path : arguments) {
            if (!path.startsWith(QLatin1String("--"))) {
                urls << QUrl::fromLocalFile(path);
            }
        }
        data->setUrls(urls);
        return data;
    }
};

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    DragSource source;
    source.setGeometry(0, 0, 200, 200);
    source.show();
    return QApplication::exec();
}
