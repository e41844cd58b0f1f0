#include "platform/alert.h"
#include "support/message_box.h"

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <optional>

namespace velmora {
namespace {

class AlertTest : public testing::Test {
protected:
    void SetUp() override { window_.show(); }

    void ask() {
        alert_.setMessageText(QStringLiteral("Really?"));
        alert_.setInformativeText(QStringLiteral("About <b>this</b>"));
        alert_.addButton(QStringLiteral("Save"), Qt::Key_Return);
        alert_.addButton(QStringLiteral("Cancel"), Qt::Key_Escape);
        alert_.addButton(QStringLiteral("Don't Save"), Qt::CTRL | Qt::Key_D);
        alert_.beginSheetModalForWindow(&window_, [this](int code) { code_ = code; });
    }
    QMessageBox& box() { return *window_.findChild<QMessageBox*>(); }
    QPushButton* button(const QString& text) {
        for (auto* candidate : box().findChildren<QPushButton*>()) {
            if (candidate->text() == text) {
                return candidate;
            }
        }
        return nullptr;
    }

    QMainWindow window_;
    Alert alert_;
    std::optional<int> code_;
};

TEST_F(AlertTest, ButtonsGiveTheirCodesInTheOrderOfAdding) {
    for (const auto& [text, code] :
         {std::pair("Save", 1000), std::pair("Cancel", 1001), std::pair("Don't Save", 1002)}) {
        Alert alert;
        std::optional<int> answer;
        alert.addButton(QStringLiteral("Save"), Qt::Key_Return);
        alert.addButton(QStringLiteral("Cancel"), Qt::Key_Escape);
        alert.addButton(QStringLiteral("Don't Save"), Qt::CTRL | Qt::Key_D);
        QMainWindow window;
        window.show();
        alert.beginSheetModalForWindow(&window, [&](int given) { answer = given; });
        for (auto* candidate : window.findChild<QMessageBox*>()->findChildren<QPushButton*>()) {
            if (candidate->text() == QLatin1String(text)) {
                candidate->click();
                break;
            }
        }
        EXPECT_EQ(code, answer) << text;
    }
}

TEST_F(AlertTest, ReturnIsTheFirstButton) {
    ask();
    QTest::keyClick(&box(), Qt::Key_Return);
    EXPECT_EQ(1000, code_);
}

TEST_F(AlertTest, EscapeIsTheCancelButton) {
    ask();
    QTest::keyClick(&box(), Qt::Key_Escape);
    EXPECT_EQ(1001, code_);
}

TEST_F(AlertTest, ReturnIsTheCancelButtonWhereItIsNoOther) {
    alert_.addButton(QStringLiteral("Delete"), Qt::CTRL | Qt::Key_D);
    alert_.addButton(QStringLiteral("Cancel"), Qt::Key_Escape);
    alert_.beginSheetModalForWindow(&window_, [this](int code) { code_ = code; });
    QTest::keyClick(&box(), Qt::Key_Return);
    EXPECT_EQ(1001, code_);
}

TEST_F(AlertTest, ClosingTheSheetIsTheCancelButton) {
    ask();
    box().close();
    EXPECT_EQ(1001, code_);
}

TEST_F(AlertTest, BlankInATextThatSomebodyIsTypingPressesNoButton) {
    ask();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box()));
    ASSERT_NE(nullptr, QApplication::focusWidget());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("b w "));
    ASSERT_EQ(std::nullopt, code_);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    EXPECT_NE(std::nullopt, code_);
}

TEST_F(AlertTest, ThirdButtonHasControlD) {
    ask();
    EXPECT_EQ(QKeySequence(Qt::CTRL | Qt::Key_D), button("Don't Save")->shortcut());
}

TEST_F(AlertTest, LetterOfAShortcutAlonePressesNoButton) {
    ask();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box()));
    for (const Qt::KeyboardModifiers modifiers : {Qt::NoModifier, Qt::ShiftModifier}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_D, modifiers);
        EXPECT_FALSE(test::hasButtonDown(box()));
        ASSERT_EQ(std::nullopt, code_);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_D, Qt::ControlModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return code_ == Alert::thirdButtonReturn; }));
}

TEST_F(AlertTest, LetterOfAShortcutAlonePressesNoButtonFromAnotherButtonEither) {
    ask();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&box()));
    button("Cancel")->setFocus();
    QTest::keyClick(button("Cancel"), Qt::Key_D);
    EXPECT_FALSE(test::hasButtonDown(box()));
    EXPECT_EQ(std::nullopt, code_);
}

TEST_F(AlertTest, SheetThatGoesWithoutAButtonHasAnotherCode) {
    ask();
    box().done(77);
    EXPECT_EQ(Alert::noButtonReturn, code_);
}

TEST_F(AlertTest, TextsAreShownAsTheyAre) {
    ask();
    EXPECT_EQ(Qt::PlainText, box().textFormat());
    auto* informative = box().findChild<QLabel*>("qt_msgbox_informativelabel");
    ASSERT_NE(nullptr, informative);
    EXPECT_EQ(Qt::PlainText, informative->textFormat());
    EXPECT_EQ("About <b>this</b>", informative->text());
}

TEST_F(AlertTest, SheetBlocksItsWindowOnly) {
    ask();
    EXPECT_EQ(Qt::WindowModal, box().windowModality());
    EXPECT_EQ(&window_, box().parentWidget());
}

TEST(ErrorSheet, ShowsDescriptionAndSuggestionAndReturnsAtOnce) {
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Whose sheet"));
    window.show();
    presentErrorSheet({NSMachErrorDomain,
                       0,
                       {{NSLocalizedDescriptionKey, "Unable <i>x</i>"},
                        {NSLocalizedRecoverySuggestionErrorKey, "Try <b>again</b>"}}},
                      &window);
    auto* box = window.findChild<QMessageBox*>();
    ASSERT_NE(nullptr, box);
    EXPECT_TRUE(box->isVisible());
    EXPECT_EQ("Whose sheet", box->windowTitle());
    EXPECT_EQ("Unable <i>x</i>", box->text());
    EXPECT_EQ("Try <b>again</b>", box->informativeText());
    EXPECT_EQ(Qt::PlainText, box->findChild<QLabel*>("qt_msgbox_informativelabel")->textFormat());
    box->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(nullptr, window.findChild<QMessageBox*>());
}

} // namespace
} // namespace velmora
