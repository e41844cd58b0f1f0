#include <QApplication>

#include <gtest/gtest.h>

#include <unistd.h>

int main(int argc, char** argv) {
    if (::geteuid() == 0) {
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1"); // the engine's sandbox does not run as root
    }
    testing::InitGoogleTest(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
