#include "platform/web/detail/input_block.h"

#include <QCloseEvent>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

class InputBlockTest : public testing::Test {
protected:
    InputBlockTest() : layout(&window) {
        layout.addWidget(&field);
        layout.addWidget(&button);
        QObject::connect(&button, &QPushButton::clicked, &window, [this] { ++clicks; });
        window.show();
        window.activateWindow();
        field.setFocus();
        QCoreApplication::processEvents();
    }
    void type() { QTest::keyClicks(&field, "a"); }
    void click() { QTest::mouseClick(&button, Qt::LeftButton); }

    QWidget window;
    QVBoxLayout layout;
    QLineEdit field;
    QPushButton button;
    int clicks = 0;
};

TEST_F(InputBlockTest, KeepsKeysAndClicksFromTheProgramWhileItLives) {
    {
        const InputBlock block;
        type();
        click();
    }
    EXPECT_EQ("", field.text().toStdString());
    EXPECT_EQ(0, clicks);
    type();
    click();
    EXPECT_EQ("a", field.text().toStdString());
    EXPECT_EQ(1, clicks);
}

TEST_F(InputBlockTest, KeepsShortcutsFromTheProgram) {
    QShortcut shortcut(QKeySequence("Ctrl+S"), &window);
    int uses = 0;
    QObject::connect(&shortcut, &QShortcut::activated, &window, [&uses] { ++uses; });
    {
        const InputBlock block;
        QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
    }
    EXPECT_EQ(0, uses);
    QTest::keyClick(&window, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(1, uses);
}

TEST_F(InputBlockTest, LetsAWindowBeClosed) {
    const InputBlock block;
    QCloseEvent close;
    QCoreApplication::sendEvent(&window, &close);
    EXPECT_TRUE(close.isAccepted());
    window.close();
    EXPECT_FALSE(window.isVisible());
}

TEST_F(InputBlockTest, LetsAQuestionBeAnswered) {
    const InputBlock block;
    QDialog question(&window);
    question.setModal(true);
    QPushButton answer(&question);
    QObject::connect(&answer, &QPushButton::clicked, &question, &QDialog::accept);
    question.show();
    QCoreApplication::processEvents();
    QTest::mouseClick(&answer, Qt::LeftButton);
    EXPECT_EQ(QDialog::Accepted, question.result());
    click();
    EXPECT_EQ(0, clicks);
}

// The way out

TEST_F(InputBlockTest, LetsTheWayOutBeClickedAndNothingElse) {
    QPushButton wayOut("Out", &window);
    layout.addWidget(&wayOut);
    wayOut.show();
    QCoreApplication::processEvents();
    int ways = 0;
    QObject::connect(&wayOut, &QPushButton::clicked, &window, [&ways] { ++ways; });
    const InputBlock block(&wayOut);
    // Through the window, as the mouse's events come.
    const auto clickOn = [this](const QWidget& widget) {
        QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {},
                          widget.mapTo(&window, widget.rect().center()));
    };
    clickOn(button);
    clickOn(field);
    EXPECT_EQ(0, clicks);
    EXPECT_EQ(0, ways);
    clickOn(wayOut);
    EXPECT_EQ(1, ways);
    EXPECT_EQ(0, clicks);
}

TEST_F(InputBlockTest, EscapeTakesTheWayOut) {
    QPushButton wayOut;
    int ways = 0;
    QObject::connect(&wayOut, &QPushButton::clicked, &window, [&ways] { ++ways; });
    {
        const InputBlock block(&wayOut);
        QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
        EXPECT_EQ(1, ways);
        QTest::keyClick(window.windowHandle(), Qt::Key_A);
        QTest::keyClick(window.windowHandle(), Qt::Key_Return);
    }
    EXPECT_EQ(1, ways);
    EXPECT_EQ("", field.text().toStdString());
    QTest::keyClick(window.windowHandle(), Qt::Key_Escape);
    EXPECT_EQ(1, ways);
}

} // namespace
} // namespace velmora::test
