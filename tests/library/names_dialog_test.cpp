// Tags from names and names from tags, asked for in the library table's window with the keyboard.

#include "library/library_window.h"
#include "library/names_dialog.h"
#include "tagged_songs.h"

#include "support/waiting.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include <gmock/gmock.h>

#include <filesystem>

namespace velmora {
namespace {

using test::song;
using test::waitUntil;
using test::written;

class NamesDialogTest : public testing::Test {
protected:
    NamesDialogTest() {
        window_.present();
        QApplication::setActiveWindow(&window_);
    }

    void add(const std::string& name, const std::string& bytes) {
        window_.model().addFile(written(folder_, name, bytes), bytes.size());
        ++files_;
        ASSERT_TRUE(
            waitUntil([&] { return window_.model().rowCount() == files_ && window_.model().unread() == 0; }));
    }
    NamesDialog* opened(Qt::Key key) {
        QTest::keyClick(&window_.view(), key, Qt::ControlModifier | Qt::ShiftModifier);
        auto* const dialog = window_.findChild<NamesDialog*>();
        if (dialog) {
            QApplication::setActiveWindow(dialog);
        }
        return dialog;
    }
    NamesDialog* openedForTags() { return opened(Qt::Key_T); }
    NamesDialog* openedForNames() { return opened(Qt::Key_N); }

    /** Types PATTERN in the place of what stands there. */
    static void type(NamesDialog& dialog, const QString& pattern) {
        QLineEdit* const line = lineOf(dialog);
        EXPECT_TRUE(line->hasFocus());
        line->selectAll();
        QTest::keyClicks(line, pattern);
    }
    static QLineEdit* lineOf(NamesDialog& dialog) { return dialog.findChild<QComboBox*>()->lineEdit(); }
    static QString cell(NamesDialog& dialog, int row, int column) {
        return dialog.findChild<QTableView*>()->model()->index(row, column).data().toString();
    }
    static QStringList row(NamesDialog& dialog, int number) {
        QStringList texts;
        for (int column = 0; column < dialog.findChild<QTableView*>()->model()->columnCount(); ++column) {
            texts += cell(dialog, number, column);
        }
        return texts;
    }
    [[nodiscard]] QString shown(int row, LibraryColumn column) {
        return window_.model().index(row, static_cast<int>(column)).data().toString();
    }
    void closed(NamesDialog* dialog) {
        const QPointer<NamesDialog> watched(dialog);
        EXPECT_FALSE(dialog->isVisible());
        // No event loop of the test's own would delete it.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(watched.isNull());
        QApplication::setActiveWindow(&window_);
    }

    test::ScratchFolder folder_;
    LibraryWindow window_;
    int files_ = 0;
};

TEST_F(NamesDialogTest, NamesBecomeTagsThatAreNotAppliedYet) {
    add("ABBA - Waterloo.mp3", song("x", "y"));
    add("Waterloo.mp3", song("x", "y"));
    NamesDialog* const dialog = openedForTags();
    ASSERT_NE(dialog, nullptr);
    type(*dialog, "%artist% - %title%");
    EXPECT_EQ(row(*dialog, 0), QStringList({"ABBA - Waterloo.mp3", "ABBA", "Waterloo", ""}));
    EXPECT_EQ(row(*dialog, 1), QStringList({"Waterloo.mp3", "", "", "The name does not fit the pattern"}));
    QTest::keyClick(lineOf(*dialog), Qt::Key_Return);
    closed(dialog);
    EXPECT_EQ(shown(0, LibraryColumn::artist), "ABBA");
    EXPECT_EQ(shown(0, LibraryColumn::title), "Waterloo");
    EXPECT_EQ(shown(1, LibraryColumn::title), "x");
    EXPECT_EQ(window_.model().rows().editedCount(), 1U);
    EXPECT_EQ(test::read_file(folder_ / "ABBA - Waterloo.mp3"), song("x", "y"));
}

TEST_F(NamesDialogTest, TagsBecomeNamesThatAreNotAppliedYet) {
    add("1.mp3", song("Waterloo", "AC/DC"));
    NamesDialog* const dialog = openedForNames();
    ASSERT_NE(dialog, nullptr);
    type(*dialog, "%artist% - %title%");
    EXPECT_EQ(row(*dialog, 0), QStringList({"1.mp3", "AC_DC - Waterloo.mp3", ""}));
    QTest::keyClick(lineOf(*dialog), Qt::Key_Return);
    closed(dialog);
    EXPECT_EQ(shown(0, LibraryColumn::name), "AC_DC - Waterloo.mp3");
    EXPECT_TRUE(std::filesystem::exists(folder_ / "1.mp3"));
}

TEST_F(NamesDialogTest, WhatIsWrongWithANameIsTold) {
    add("1.mp3", song("One", "A"));
    add("2.mp3", song("One", "B"));
    add("3.mp3", song(test::text4("TPE1", "C")));
    add("4.mp3", song("Taken", "D"));
    add("Five.mp3", song("Five", "E"));
    add("6.mp3", song("Six", "F"));
    test::write_file(folder_ / "Taken.mp3", "");
    NamesDialog* const dialog = openedForNames();
    ASSERT_NE(dialog, nullptr);
    type(*dialog, "%title%");
    EXPECT_EQ(row(*dialog, 0),
              QStringList({"1.mp3", "One.mp3", "Another row has that name or is to get it"}));
    EXPECT_EQ(cell(*dialog, 1, 2), "Another row has that name or is to get it");
    EXPECT_EQ(row(*dialog, 2), QStringList({"3.mp3", "", "No value: Title"}));
    EXPECT_EQ(cell(*dialog, 3, 2), "There is a file of that name");
    EXPECT_EQ(row(*dialog, 4), QStringList({"Five.mp3", "Five.mp3", "It has that name already"}));
    EXPECT_EQ(row(*dialog, 5), QStringList({"6.mp3", "Six.mp3", ""}));
    // Alt+W, the box's letter, hides what is right.
    QTest::keyClick(lineOf(*dialog), Qt::Key_W, Qt::AltModifier);
    EXPECT_TRUE(waitUntil([&] { return dialog->findChild<QTableView*>()->model()->rowCount() == 4; }));
    QTest::keyClick(lineOf(*dialog), Qt::Key_Return);
    closed(dialog);
    EXPECT_EQ(window_.model().rows().editedCount(), 1U);
    EXPECT_EQ(shown(5, LibraryColumn::name), "Six.mp3");
}

TEST_F(NamesDialogTest, OnlySelectedFilesAreMeant) {
    add("1.mp3", song("One", "A"));
    add("2.mp3", song("Two", "B"));
    window_.view().selectRow(1);
    NamesDialog* const dialog = openedForNames();
    ASSERT_NE(dialog, nullptr);
    type(*dialog, "%title%");
    EXPECT_EQ(dialog->findChild<QTableView*>()->model()->rowCount(), 1);
    QTest::keyClick(lineOf(*dialog), Qt::Key_Return);
    closed(dialog);
    EXPECT_EQ(shown(0, LibraryColumn::name), "1.mp3");
    EXPECT_EQ(shown(1, LibraryColumn::name), "Two.mp3");
}

TEST_F(NamesDialogTest, EscapeLeavesEverythingAsItIs) {
    add("A - B.mp3", song("x", "y"));
    NamesDialog* const dialog = openedForTags();
    ASSERT_NE(dialog, nullptr);
    type(*dialog, "%artist% - %title%");
    QTest::keyClick(lineOf(*dialog), Qt::Key_Escape);
    closed(dialog);
    EXPECT_EQ(window_.model().rows().editedCount(), 0U);
}

TEST_F(NamesDialogTest, AWrongPatternIsToldAndCanNotBeAccepted) {
    add("A - B.mp3", song("x", "y"));
    NamesDialog* const dialog = openedForTags();
    ASSERT_NE(dialog, nullptr);
    type(*dialog, "%track%");
    EXPECT_EQ(dialog->findChild<QComboBox*>()->accessibleDescription(), "There is no field \"track\".");
    QTest::keyClick(lineOf(*dialog), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    QTest::keyClick(lineOf(*dialog), Qt::Key_Escape);
    closed(dialog);
}

TEST_F(NamesDialogTest, PatternsOfThisRunComeFirst) {
    add("A - B.mp3", song("x", "y"));
    NamesDialog* first = openedForTags();
    ASSERT_NE(first, nullptr);
    type(*first, "%title% - %artist%");
    QTest::keyClick(lineOf(*first), Qt::Key_Return);
    closed(first);
    NamesDialog* const second = openedForTags();
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(lineOf(*second)->text(), "%title% - %artist%");
    QTest::keyClick(lineOf(*second), Qt::Key_Down);
    EXPECT_EQ(lineOf(*second)->text(), "%artist% - %title%");
    QTest::keyClick(lineOf(*second), Qt::Key_Escape);
    closed(second);
}

TEST_F(NamesDialogTest, ANameThatIsNotAppliedYetIsTheOneThatIsRead) {
    add("x.mp3", song("Waterloo", "ABBA"));
    NamesDialog* const names = openedForNames();
    ASSERT_NE(names, nullptr);
    type(*names, "%title% by %artist%");
    QTest::keyClick(lineOf(*names), Qt::Key_Return);
    closed(names);
    NamesDialog* const tags = openedForTags();
    ASSERT_NE(tags, nullptr);
    type(*tags, "%title% by %album%");
    EXPECT_EQ(row(*tags, 0), QStringList({"Waterloo by ABBA.mp3", "Waterloo", "ABBA", ""}));
    QTest::keyClick(lineOf(*tags), Qt::Key_Escape);
    closed(tags);
}

TEST_F(NamesDialogTest, AFieldThatTheKindDoesNotHaveIsTold) {
    add("A - B.mp3", song("x", "y"));
    NamesDialog* const dialog = openedForTags();
    ASSERT_NE(dialog, nullptr);
    type(*dialog, "%director% - %title%");
    EXPECT_EQ(cell(*dialog, 0, 3), "Files of this kind have no such field: Album / Director");
    QTest::keyClick(lineOf(*dialog), Qt::Key_Escape);
    closed(dialog);
}

TEST_F(NamesDialogTest, ManyRowsAreMadeBesideTheWindow) {
    for (int file = 0; file < 400; ++file) {
        const std::string name = "A - " + std::to_string(file) + ".mp3";
        window_.model().addFile(written(folder_, name, song("x", "y")), 1);
    }
    ASSERT_TRUE(
        waitUntil([&] { return window_.model().rowCount() == 400 && window_.model().unread() == 0; }));
    NamesDialog* const dialog = openedForTags();
    ASSERT_NE(dialog, nullptr);
    type(*dialog, "%artist% - %title%");
    EXPECT_TRUE(waitUntil([&] { return dialog->rows().size() == 400 && dialog->rows().front().applies; }));
    QTest::keyClick(lineOf(*dialog), Qt::Key_Return);
    closed(dialog);
    EXPECT_EQ(window_.model().rows().editedCount(), 400U);
}

TEST_F(NamesDialogTest, EveryControlHasANameATipAndAPlaceForTheTabKey) {
    add("A - B.mp3", song("x", "y"));
    NamesDialog* const dialog = openedForTags();
    ASSERT_NE(dialog, nullptr);
    type(*dialog, "%title%");
    int controls = 0;
    for (QWidget* const control : dialog->findChildren<QWidget*>()) {
        const bool isControl = qobject_cast<QComboBox*>(control) || qobject_cast<QAbstractButton*>(control) ||
                               qobject_cast<QTableView*>(control);
        if (!isControl || !control->isVisible() || control->focusPolicy() == Qt::NoFocus) {
            continue;
        }
        ++controls;
        const auto* const button = qobject_cast<QAbstractButton*>(control);
        EXPECT_FALSE(control->accessibleName().isEmpty() && (!button || button->text().isEmpty()))
            << control->metaObject()->className();
        EXPECT_FALSE(control->toolTip().isEmpty()) << control->metaObject()->className();
        EXPECT_NE(control->focusPolicy() & Qt::TabFocus, 0) << control->metaObject()->className();
    }
    EXPECT_EQ(controls, 6);
    QTest::keyClick(lineOf(*dialog), Qt::Key_Escape);
    closed(dialog);
}

} // namespace
} // namespace velmora
