// Tags from names and names from tags, asked for in the library table's window with the keyboard.

#include "tagged_songs.h"

#include "library/detail/names_dialog.h"
#include "library/library_window.h"
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
    ASSERT_NE(nullptr, dialog);
    type(*dialog, "%artist% - %title%");
    EXPECT_EQ(QStringList({"ABBA - Waterloo.mp3", "ABBA", "Waterloo", ""}), row(*dialog, 0));
    EXPECT_EQ(QStringList({"Waterloo.mp3", "", "", "The name does not fit the pattern"}), row(*dialog, 1));
    QTest::keyClick(lineOf(*dialog), Qt::Key_Return);
    closed(dialog);
    EXPECT_EQ("ABBA", shown(0, LibraryColumn::artist));
    EXPECT_EQ("Waterloo", shown(0, LibraryColumn::title));
    EXPECT_EQ("x", shown(1, LibraryColumn::title));
    EXPECT_EQ(1U, window_.model().rows().editedCount());
    EXPECT_EQ(song("x", "y"), test::read_file(folder_ / "ABBA - Waterloo.mp3"));
}

TEST_F(NamesDialogTest, TagsBecomeNamesThatAreNotAppliedYet) {
    add("1.mp3", song("Waterloo", "AC/DC"));
    NamesDialog* const dialog = openedForNames();
    ASSERT_NE(nullptr, dialog);
    type(*dialog, "%artist% - %title%");
    EXPECT_EQ(QStringList({"1.mp3", "AC_DC - Waterloo.mp3", ""}), row(*dialog, 0));
    QTest::keyClick(lineOf(*dialog), Qt::Key_Return);
    closed(dialog);
    EXPECT_EQ("AC_DC - Waterloo.mp3", shown(0, LibraryColumn::name));
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
    ASSERT_NE(nullptr, dialog);
    type(*dialog, "%title%");
    EXPECT_EQ(QStringList({"1.mp3", "One.mp3", "Another row has that name or is to get it"}),
              row(*dialog, 0));
    EXPECT_EQ("Another row has that name or is to get it", cell(*dialog, 1, 2));
    EXPECT_EQ(QStringList({"3.mp3", "", "No value: Title"}), row(*dialog, 2));
    EXPECT_EQ("There is a file of that name", cell(*dialog, 3, 2));
    EXPECT_EQ(QStringList({"Five.mp3", "Five.mp3", "It has that name already"}), row(*dialog, 4));
    EXPECT_EQ(QStringList({"6.mp3", "Six.mp3", ""}), row(*dialog, 5));
    // Alt+W, the box's letter, hides what is right.
    QTest::keyClick(lineOf(*dialog), Qt::Key_W, Qt::AltModifier);
    EXPECT_TRUE(waitUntil([&] { return dialog->findChild<QTableView*>()->model()->rowCount() == 4; }));
    QTest::keyClick(lineOf(*dialog), Qt::Key_Return);
    closed(dialog);
    EXPECT_EQ(1U, window_.model().rows().editedCount());
    EXPECT_EQ("Six.mp3", shown(5, LibraryColumn::name));
}

TEST_F(NamesDialogTest, OnlySelectedFilesAreMeant) {
    add("1.mp3", song("One", "A"));
    add("2.mp3", song("Two", "B"));
    window_.view().selectRow(1);
    NamesDialog* const dialog = openedForNames();
    ASSERT_NE(nullptr, dialog);
    type(*dialog, "%title%");
    EXPECT_EQ(1, dialog->findChild<QTableView*>()->model()->rowCount());
    QTest::keyClick(lineOf(*dialog), Qt::Key_Return);
    closed(dialog);
    EXPECT_EQ("1.mp3", shown(0, LibraryColumn::name));
    EXPECT_EQ("Two.mp3", shown(1, LibraryColumn::name));
}

TEST_F(NamesDialogTest, ANameThatAnotherRowIsToGetClashesWhereThatRowIsNotSelected) {
    add("1.mp3", song("Same: name", "A"));
    add("2.mp3", song("Two", "B"));
    LibraryView& view = window_.view();
    view.setCurrentIndex(window_.model().index(1, static_cast<int>(LibraryColumn::name)));
    QTest::keyClick(&view, Qt::Key_F2);
    auto* const editor = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_NE(nullptr, editor);
    editor->selectAll();
    QTest::keyClicks(editor, "Same: name");
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(waitUntil([&] { return shown(1, LibraryColumn::name) == "Same_ name.mp3"; }));
    view.selectRow(0);
    NamesDialog* const dialog = openedForNames();
    ASSERT_NE(nullptr, dialog);
    type(*dialog, "%title%");
    EXPECT_EQ(QStringList({"1.mp3", "Same_ name.mp3", "Another row has that name or is to get it"}),
              row(*dialog, 0));
    QTest::keyClick(lineOf(*dialog), Qt::Key_Escape);
    closed(dialog);
}

TEST_F(NamesDialogTest, EscapeLeavesEverythingAsItIs) {
    add("A - B.mp3", song("x", "y"));
    NamesDialog* const dialog = openedForTags();
    ASSERT_NE(nullptr, dialog);
    type(*dialog, "%artist% - %title%");
    QTest::keyClick(lineOf(*dialog), Qt::Key_Escape);
    closed(dialog);
    EXPECT_EQ(0U, window_.model().rows().editedCount());
}

TEST_F(NamesDialogTest, AWrongPatternIsToldAndCanNotBeAccepted) {
    add("A - B.mp3", song("x", "y"));
    NamesDialog* const dialog = openedForTags();
    ASSERT_NE(nullptr, dialog);
    type(*dialog, "%track%");
    EXPECT_EQ("There is no field \"track\".", dialog->findChild<QComboBox*>()->accessibleDescription());
    QTest::keyClick(lineOf(*dialog), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    QTest::keyClick(lineOf(*dialog), Qt::Key_Escape);
    closed(dialog);
}

TEST_F(NamesDialogTest, PatternsOfThisRunComeFirst) {
    add("A - B.mp3", song("x", "y"));
    NamesDialog* first = openedForTags();
    ASSERT_NE(nullptr, first);
    type(*first, "%title% - %artist%");
    QTest::keyClick(lineOf(*first), Qt::Key_Return);
    closed(first);
    NamesDialog* const second = openedForTags();
    ASSERT_NE(nullptr, second);
    EXPECT_EQ("%title% - %artist%", lineOf(*second)->text());
    QTest::keyClick(lineOf(*second), Qt::Key_Down);
    EXPECT_EQ("%artist% - %title%", lineOf(*second)->text());
    QTest::keyClick(lineOf(*second), Qt::Key_Escape);
    closed(second);
}

TEST_F(NamesDialogTest, ANameThatIsNotAppliedYetIsTheOneThatIsRead) {
    add("x.mp3", song("Waterloo", "ABBA"));
    NamesDialog* const names = openedForNames();
    ASSERT_NE(nullptr, names);
    type(*names, "%title% by %artist%");
    QTest::keyClick(lineOf(*names), Qt::Key_Return);
    closed(names);
    NamesDialog* const tags = openedForTags();
    ASSERT_NE(nullptr, tags);
    type(*tags, "%title% by %album%");
    EXPECT_EQ(QStringList({"Waterloo by ABBA.mp3", "Waterloo", "ABBA", ""}), row(*tags, 0));
    QTest::keyClick(lineOf(*tags), Qt::Key_Escape);
    closed(tags);
}

TEST_F(NamesDialogTest, AFieldThatTheKindDoesNotHaveIsTold) {
    add("A - B.mp3", song("x", "y"));
    NamesDialog* const dialog = openedForTags();
    ASSERT_NE(nullptr, dialog);
    type(*dialog, "%director% - %title%");
    EXPECT_EQ("Files of this kind have no such field: Album / Director", cell(*dialog, 0, 3));
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
    ASSERT_NE(nullptr, dialog);
    type(*dialog, "%artist% - %title%");
    EXPECT_TRUE(waitUntil([&] { return dialog->rows().size() == 400 && dialog->rows().front().applies; }));
    QTest::keyClick(lineOf(*dialog), Qt::Key_Return);
    closed(dialog);
    EXPECT_EQ(400U, window_.model().rows().editedCount());
}

TEST_F(NamesDialogTest, EveryControlHasANameATipAndAPlaceForTheTabKey) {
    add("A - B.mp3", song("x", "y"));
    NamesDialog* const dialog = openedForTags();
    ASSERT_NE(nullptr, dialog);
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
        EXPECT_NE(0, control->focusPolicy() & Qt::TabFocus) << control->metaObject()->className();
    }
    EXPECT_EQ(6, controls);
    QTest::keyClick(lineOf(*dialog), Qt::Key_Escape);
    closed(dialog);
}

} // namespace
} // namespace velmora
