// What the library table's cells and fields keep of what is put into them, and of what is copied.

#include "library/apply_dialog.h"
#include "library/detail/edit_panel.h"
#include "library/library_window.h"
#include "tagged_songs.h"

#include "support/waiting.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <filesystem>

namespace velmora {
namespace {

using test::song;
using test::waitUntil;
using test::written;

class LibraryCellsTest : public testing::Test {
protected:
    LibraryCellsTest() {
        window_.present();
        QApplication::setActiveWindow(&window_);
    }

    void add(const std::string& name, const std::string& bytes) {
        window_.model().addFile(written(folder_, name, bytes), bytes.size());
        ++files_;
        ASSERT_TRUE(waitUntil(
            [this] { return window_.model().rowCount() == files_ && window_.model().unread() == 0; }));
    }
    void goTo(LibraryColumn column) {
        window_.view().setCurrentIndex(window_.model().index(0, static_cast<int>(column)));
        window_.view().setFocus();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }
    QString text(LibraryColumn column) { return window_.model().rows().text(0, column); }

    test::ScratchFolder folder_;
    LibraryWindow window_;
    int files_ = 0;
};

TEST_F(LibraryCellsTest, TheCurrentCellLeavesAColumnThatIsHidden) {
    add("a.mp3", song("Sea", "Ben"));
    goTo(LibraryColumn::genre);
    window_.view().showColumn(LibraryColumn::genre, false);
    EXPECT_EQ(static_cast<int>(LibraryColumn::name), window_.view().currentIndex().column());
    EXPECT_EQ(0, window_.view().currentIndex().row());
    QApplication::clipboard()->setText("Boat\tx");
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ("Boat.mp3", text(LibraryColumn::name));
    EXPECT_EQ("", text(LibraryColumn::genre));
}

TEST_F(LibraryCellsTest, WhatIsOnTheClipboardStaysWhereNothingIsSelected) {
    add("a.mp3", song("Sea", "Ben"));
    goTo(LibraryColumn::title);
    window_.view().clearSelection();
    QApplication::clipboard()->setText("Harbour");
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("Harbour", QApplication::clipboard()->text());
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ("Harbour", QApplication::clipboard()->text());
}

TEST_F(LibraryCellsTest, AZeroInWhatIsPastedDoesNotCutTheRestOff) {
    add("a.mp3", song("Sea", "Ben"));
    goTo(LibraryColumn::title);
    QApplication::clipboard()->setText(QStringLiteral("Har") + QChar(u'\0') + QStringLiteral("bour"));
    press(Qt::Key_V, Qt::ControlModifier);
    window_.apply();
    ASSERT_TRUE(waitUntil([this] { return !window_.isWriting() && window_.model().unread() == 0; }));
    EXPECT_EQ("Harbour", text(LibraryColumn::title));
}

TEST_F(LibraryCellsTest, TypingInACommentKeepsItsBlanksThatDoNotBreak) {
    using namespace std::string_literals;
    add("a.mp3", song(test::frame4("COMM", "\3eng\0Oh\u00A0!\r\nSea"s)));
    window_.view().selectAll();
    auto& field = *window_.findChild<QPlainTextEdit*>("entry_synopses");
    ASSERT_TRUE(waitUntil([&] { return field.isEnabled(); }));
    field.setFocus();
    field.moveCursor(QTextCursor::End);
    window_.panel().refresh();
    EXPECT_TRUE(field.textCursor().atEnd()) << "a text with such line breaks was shown anew";
    QTest::keyClicks(&field, "s");
    window_.panel().flush();
    EXPECT_EQ(QString("Oh\u00A0!\nSeas"), text(LibraryColumn::synopsis));
}

TEST_F(LibraryCellsTest, WhoeverHasAFileOpenIsAskedBeforeItIsTriedAgain) {
    add("a.mp3", song("Sea", "Ben"));
    std::filesystem::create_hard_link(folder_ / "a.mp3", folder_ / "link");
    int asked = 0;
    window_.setMayWrite([&asked](const QStringList&) { return ++asked == 1; });
    goTo(LibraryColumn::title);
    QApplication::clipboard()->setText("Boat");
    press(Qt::Key_V, Qt::ControlModifier);
    window_.apply();
    ASSERT_TRUE(waitUntil([this] { return !window_.isWriting(); }));
    const auto& failures = *window_.findChild<QTreeWidget*>("list_failures");
    EXPECT_GE(failures.viewport()->width(), failures.columnWidth(0) + 350) << "the reason is cut";
    std::filesystem::remove(folder_ / "link");
    window_.findChild<QPushButton*>("btn_tryAgain")->click();
    ASSERT_TRUE(waitUntil([this] { return !window_.isWriting() && window_.model().unread() == 0; }));
    EXPECT_EQ(2, asked);
    EXPECT_EQ(1U, window_.model().rows().editedCount()) << "it was written, although that was refused";
}

class FieldUndoTest : public LibraryCellsTest {
protected:
    FieldUndoTest() {
        add("a.mp3", song("Sea", "Ben"));
        add("b.mp3", song("Boat", "Ben"));
        window_.view().selectAll();
        EXPECT_TRUE(waitUntil([this] { return title_.isEnabled(); }));
        title_.setFocus();
    }
    std::string titles() {
        return window_.model().rows().text(0, LibraryColumn::title).toStdString() + ", " +
               window_.model().rows().text(1, LibraryColumn::title).toStdString();
    }

    QLineEdit& title_ = *window_.findChild<QLineEdit*>("entry_titles");
};

TEST_F(FieldUndoTest, GivesSeveralValuesBack) {
    QTest::keyClicks(&title_, "Rope");
    window_.panel().flush();
    EXPECT_EQ("Rope, Rope", titles());
    press(Qt::Key_Z, Qt::ControlModifier);
    window_.panel().flush();
    EXPECT_EQ("Sea, Boat", titles());
    EXPECT_EQ(0U, window_.model().rows().editedCount());
}

TEST_F(FieldUndoTest, GivesBackWhatWasTypedBeforeTheField) {
    EXPECT_TRUE(window_.model().setData(window_.model().index(1, static_cast<int>(LibraryColumn::title)),
                                        "Wave", Qt::EditRole));
    EXPECT_TRUE(window_.model().setData(window_.model().index(1, static_cast<int>(LibraryColumn::artist)),
                                        "Zoe", Qt::EditRole));
    QTest::keyClicks(&title_, "Rope");
    window_.panel().flush();
    press(Qt::Key_Z, Qt::ControlModifier);
    window_.panel().flush();
    EXPECT_EQ("Sea, Wave", titles());
    EXPECT_EQ("Zoe", window_.model().rows().text(1, LibraryColumn::artist).toStdString());
}

TEST_F(FieldUndoTest, AnEmptiedFieldDeletesAndIsSeenStruckOut) {
    QTest::keyClicks(&title_, "x");
    press(Qt::Key_Backspace, {});
    window_.panel().flush();
    EXPECT_EQ(", ", titles());
    const QModelIndex cell = window_.model().index(0, static_cast<int>(LibraryColumn::title));
    EXPECT_EQ("Sea", cell.data().toString());
    EXPECT_TRUE(cell.data(Qt::FontRole).value<QFont>().strikeOut());
    EXPECT_EQ("", cell.data(Qt::EditRole).toString());
}

TEST_F(FieldUndoTest, WhatWasTypedForOtherFilesIsNotUndoneInThese) {
    QTest::keyClicks(&title_, "Rope");
    window_.panel().flush();
    window_.view().selectRow(0); // has the same title by now
    test::waitFor(120);
    title_.setFocus();
    press(Qt::Key_Z, Qt::ControlModifier);
    window_.panel().flush();
    EXPECT_EQ("Rope, Rope", titles());
}

TEST_F(FieldUndoTest, AfterAnApplyTheKeyTakesTheApplyBack) {
    QTest::keyClicks(&title_, "Rope");
    press(Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(waitUntil([this] { return !window_.isWriting() && window_.model().unread() == 0; }));
    EXPECT_EQ(1U, window_.undoCount());
    QTest::keyClick(window_.findChild<ApplyDialog*>(), Qt::Key_Escape);
    QApplication::setActiveWindow(&window_);
    press(Qt::Key_Z, Qt::ControlModifier);
    ASSERT_TRUE(waitUntil([this] { return !window_.isWriting() && window_.model().unread() == 0; }));
    EXPECT_EQ(0U, window_.undoCount());
    EXPECT_EQ("Sea, Boat", titles());
    EXPECT_EQ(0U, window_.model().rows().editedCount());
}

TEST_F(LibraryCellsTest, ANameThatIsTakenIsTheReasonInTheSummary) {
    add("a.mp3", song("Sea", "Ben"));
    written(folder_, "b.mp3", song("Boat", "Zoe"));
    goTo(LibraryColumn::name);
    QApplication::clipboard()->setText("b");
    press(Qt::Key_V, Qt::ControlModifier);
    window_.apply();
    ASSERT_TRUE(waitUntil([this] { return !window_.isWriting(); }));
    const auto& failures = *window_.findChild<QTreeWidget*>("list_failures");
    ASSERT_EQ(1, failures.topLevelItemCount());
    EXPECT_EQ("The tags are right, the name is the old one: There is a file of that name",
              failures.topLevelItem(0)->text(1));
}

TEST_F(LibraryCellsTest, TheStatusCountsTheRowsThatAreShown) {
    add("a.mp3", song("Sea", "Ben"));
    window_.findChild<QLineEdit*>("entry_filter")->setText("sea");
    const auto& status = *window_.findChild<QLabel*>("lbl_libraryStatus");
    test::write_file(folder_ / "a.mp3", song("Boat", "Ben"));
    window_.model().readAgain(0);
    ASSERT_TRUE(waitUntil([this] { return window_.model().rowCount() == 0; }));
    EXPECT_TRUE(waitUntil([&] { return status.text().endsWith("0 shown"); }, 3000))
        << status.text().toStdString();
}

TEST_F(LibraryCellsTest, TheEmptyRatingOfTheListDeletes) {
    add("a.mov", std::string());
    EXPECT_TRUE(window_.model().setData(window_.model().index(0, static_cast<int>(LibraryColumn::rating)),
                                        "PG", Qt::EditRole));
    window_.view().selectAll();
    auto& box = *window_.findChild<QComboBox*>("combo_ratings");
    ASSERT_TRUE(waitUntil([&] { return box.isEnabled(); }));
    box.setFocus();
    press(Qt::Key_Up, {});
    box.setCurrentIndex(0);
    emit box.textActivated(QString());
    const RowEdits* const edits = window_.model().rows().edits(0);
    EXPECT_TRUE(edits && edits->text(portable::Field::rating).deletes());
}

} // namespace
} // namespace velmora
