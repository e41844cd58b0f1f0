#pragma once

#include <QObject>
#include <QPointer>

class QAction;
class QWidget;

namespace velmora {

/** The Help menu's commands, each with a window of its own: shown once, brought to the front when it is
   there. */
class HelpMenu : public QObject {
    Q_OBJECT
public:
    /** WINDOW owns this object, and the windows that it makes. */
    HelpMenu(QWidget& window, const QAction& guide, const QAction& keyboard, const QAction& about);

private:
    void showGuide();
    void showKeyboard();
    void showAbout();
    static void present(QWidget& window);

    QWidget& window_;
    QPointer<QWidget> guide_;
    QPointer<QWidget> keyboard_;
    QPointer<QWidget> about_;
};

} // namespace velmora
