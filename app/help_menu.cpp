#include "help_menu.h"

#include "about_window.h"
#include "guide_window.h"
#include "keyboard_window.h"

#include <QAction>
#include <QCoreApplication>

namespace velmora {

HelpMenu::HelpMenu(QWidget& window, const QAction& guide, const QAction& keyboard, const QAction& about)
    : QObject(&window), window_(window) {
    connect(&guide, &QAction::triggered, this, &HelpMenu::showGuide);
    connect(&keyboard, &QAction::triggered, this, &HelpMenu::showKeyboard);
    connect(&about, &QAction::triggered, this, &HelpMenu::showAbout);
}

void HelpMenu::showGuide() {
    if (!guide_) {
        guide_ = new GuideWindow(guideFile(QCoreApplication::applicationDirPath()), &window_);
    }
    present(*guide_);
}

void HelpMenu::showKeyboard() {
    if (!keyboard_) {
        keyboard_ = new KeyboardWindow(keysOf(window_), &window_);
    }
    present(*keyboard_);
}

void HelpMenu::showAbout() {
    if (!about_) {
        about_ = new AboutWindow(&window_);
    }
    present(*about_);
}

void HelpMenu::present(QWidget& window) {
    window.setAttribute(Qt::WA_DeleteOnClose);
    window.show();
    window.raise();
    window.activateWindow();
}

} // namespace velmora
