// What the library table does with a song of very long texts: it shows them soon, and keeps them whole.

#include "library/library_window.h"
#include "tagged_songs.h"

#include "support/qt_printing.h"
#include "support/waiting.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTest>

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::waitUntil;

/** One word each. */
const std::string longTitle(40'000, 'T');
const std::string longComment(400'000, 'c');

class LargeTextsTest : public testing::Test {
protected:
    LargeTextsTest() {
        const std::string comment = std::string("\x03") + "eng" + '\0' + longComment;
        const std::string bytes = test::song(test::text4("TIT2", longTitle) + test::frame4("COMM", comment));
        window_.present();
        window_.model().addFile(test::written(folder_, "a.mp3", bytes), bytes.size());
        EXPECT_TRUE(
            waitUntil([this] { return window_.model().rowCount() == 1 && window_.model().unread() == 0; }));
    }
    [[nodiscard]] QModelIndex title() {
        return window_.model().index(0, static_cast<int>(LibraryColumn::title));
    }

    test::ScratchFolder folder_;
    LibraryWindow window_;
};

TEST_F(LargeTextsTest, AreInThePanelSoonAndWhole) {
    QElapsedTimer clock;
    clock.start();
    window_.view().setCurrentIndex(title());
    const auto& comment = *window_.findChild<QPlainTextEdit*>("entry_synopses");
    ASSERT_TRUE(waitUntil([&] { return !comment.document()->isEmpty(); }, 120'000));
    EXPECT_LT(clock.elapsed(), 10'000);
    EXPECT_EQ(QString::fromStdString(longComment), comment.toPlainText());
    EXPECT_EQ(QString::fromStdString(longTitle), window_.findChild<QLineEdit*>("entry_titles")->text());
}

TEST_F(LargeTextsTest, TipIsTheBeginningOfALongText) {
    EXPECT_EQ("<span>" + QString(2000, u'T') + "…</span>", title().data(Qt::ToolTipRole).toString());
}

TEST_F(LargeTextsTest, ACellThatWasOnlyLookedAtIsNoEdit) {
    QApplication::setActiveWindow(&window_);
    window_.view().setCurrentIndex(title());
    window_.view().setFocus();
    QTest::keyClick(&window_.view(), Qt::Key_F2);
    auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(nullptr, editor);
    QPointer<QWidget> open = editor;
    QTest::keyClick(editor, Qt::Key_Return);
    ASSERT_TRUE(waitUntil([&] { return open.isNull(); }));
    EXPECT_EQ(0U, window_.model().rows().editedCount());
}

} // namespace
} // namespace velmora
