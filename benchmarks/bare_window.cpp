/** The yardstick of a start: a window with the widgets of the program's layout, plain and empty. */

#include "ui_BareWindow.h"

#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QMainWindow window;
    Ui::MyDocument layout;
    layout.setupUi(&window);
    window.show();
    return QApplication::exec();
}
