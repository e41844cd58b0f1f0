// The library table over the program's list of files.

#include "window_fixture.h"

#include "app/guide_window.h"
#include "library/library_window.h"
#include "support/bytes.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTableView>
#include <QTest>
#include <QTimer>

#include <filesystem>

namespace velmora {
namespace {

using test::QuestionAnswerer;
using test::settle;
using test::taggedFile;
using test::text4;
using test::waitUntil;

class LibraryTableTest : public test::WindowTest {
protected:
    void openLibrary() {
        QApplication::setActiveWindow(document().window());
        QTest::keyClick(document().window(), Qt::Key_T, Qt::ControlModifier);
        settle();
        ASSERT_NE(nullptr, document().library());
    }
    [[nodiscard]] LibraryModel& files() { return document().library()->model(); }
    [[nodiscard]] QLabel& summary() {
        return *document().library()->findChild<ApplyDialog*>()->findChild<QLabel*>("lbl_applied");
    }
    /** Two songs with a tag behind their frames, which is changed in place and portably, and the library
       table over them. */
    void openSongs() {
        const std::string frame = test::hex("FF FB 90 C4") + std::string(413, '\0');
        for (const char* name : {"a.mp3", "b.mp3"}) {
            addFile(name, frame + frame + test::appended_tag(text4("TIT2", "Sea") + text4("TPE1", "Ann")));
        }
        openLibrary();
        ASSERT_TRUE(waitUntil([this] { return files().rowCount() == 2 && files().unread() == 0; }));
        QApplication::setActiveWindow(document().library());
    }
    /** The main window has the first song open with an edit, and the keyboard is in the song's row again. */
    void editTheFirst() {
        select(0);
        type("entry_title", "Evening");
        QApplication::setActiveWindow(document().library());
        goTo(0);
    }
    void goTo(int row, LibraryColumn column = LibraryColumn::title) {
        LibraryView& view = document().library()->view();
        view.setCurrentIndex(files().index(row, static_cast<int>(column)));
        view.setFocus();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QWidget* const focused = QApplication::focusWidget();
        QTest::keyClick(focused ? focused : document().library(), key, modifiers);
        settle();
    }
    /** Types TEXT into the cell with F2. */
    void edit(int row, LibraryColumn column, const QString& text) {
        goTo(row, column);
        press(Qt::Key_F2);
        QTest::keyClicks(QApplication::focusWidget(), text);
        press(Qt::Key_Return);
    }
    QStringList listed() {
        const auto& model = *widget<QTableView>("tbl_mediaFiles").model();
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row) {
            names += model.index(row, 1).data().toString();
        }
        return names;
    }
    /** Applies with the keyboard, and waits for the end. */
    void apply() {
        press(Qt::Key_S, Qt::ControlModifier);
        ASSERT_TRUE(waitUntil([this] { return !document().library()->isWriting(); }));
    }
    [[nodiscard]] bool hasApplied() { return document().library()->undoCount() > 0; }
};

TEST_F(LibraryTableTest, ControlAndTShowsTheListedFilesAndThoseThatCome) {
    addFile("a.mp3", taggedFile(text4("TIT2", "Sea")));
    openLibrary();
    EXPECT_TRUE(document().library()->isVisible());
    EXPECT_TRUE(waitUntil([this] { return files().rowCount() == 1; }));
    addFile("b.mp3", taggedFile(text4("TIT2", "Boat")));
    EXPECT_TRUE(waitUntil([this] { return files().rowCount() == 2; }));
    EXPECT_EQ("b.mp3", files().index(1, static_cast<int>(LibraryColumn::name)).data().toString());
}

TEST_F(LibraryTableTest, ClosingItLeavesTheProgramRunning) {
    openLibrary();
    document().library()->close();
    settle();
    EXPECT_FALSE(document().library()->isVisible());
    EXPECT_FALSE(termination_.isTerminating());
    openLibrary();
    EXPECT_TRUE(document().library()->isVisible());
}

TEST_F(LibraryTableTest, GuideNamesEveryKeyOfItsMenus) {
    openLibrary();
    QFile guide(guideFile(QCoreApplication::applicationDirPath()));
    ASSERT_TRUE(guide.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(guide.readAll());
    const QString keys = text.mid(text.indexOf("In the library table:\n"));
    int count = 0;
    QList<QAction*> actions;
    for (const QMenu* menu : document().library()->menuBar()->findChildren<QMenu*>()) {
        actions += menu->actions();
    }
    for (const QAction* action : actions) {
        for (const QKeySequence& key : action->shortcuts()) {
            ++count;
            EXPECT_TRUE(keys.contains(
                QRegularExpression("(^|[^+])" + QRegularExpression::escape(key.toString()) + "\\b")))
                << key.toString().toStdString();
        }
    }
    EXPECT_GE(count, 14);
}

TEST_F(LibraryTableTest, OpenInEditorShowsTheCurrentFileInTheForm) {
    openSongs();
    goTo(1);
    press(Qt::Key_O, Qt::ControlModifier);
    ASSERT_NE(nullptr, document().mediaFile());
    EXPECT_EQ(path("b.mp3"), file().path());
    EXPECT_EQ("Sea", entry("entry_title").text());
}

TEST_F(LibraryTableTest, RemoveFromListTakesTheSelectedFilesOffBothListsAndLeavesThemOnTheDisk) {
    openSongs();
    goTo(0);
    press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(1, files().rowCount());
    EXPECT_EQ(QStringList{"b.mp3"}, listed());
    EXPECT_TRUE(std::filesystem::exists(folder_ / "a.mp3"));
}

TEST_F(LibraryTableTest, RemovingTheOpenFileAsksAboutItsEditsAndCancelKeepsBoth) {
    openSongs();
    editTheFirst();
    const QuestionAnswerer answer(*document().window(), "Cancel");
    press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(1, answer.questions());
    EXPECT_EQ(2, files().rowCount());
    EXPECT_EQ("Evening", entry("entry_title").text());
    EXPECT_EQ(std::vector<int>{0}, document().library()->view().selectedFiles());
}

TEST_F(LibraryTableTest, KeyboardIsBackInItAfterAQuestionThatWasCancelled) {
    openSongs();
    editTheFirst();
    const QuestionAnswerer answer(*document().window(), "Cancel");
    press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_TRUE(waitUntil([this] { return document().library()->isActiveWindow(); }));
    press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(2, answer.questions());
    EXPECT_EQ(2, files().rowCount());
}

TEST_F(LibraryTableTest, RemovingTheOpenFileClosesItWhenItsEditsMayBeDropped) {
    openSongs();
    editTheFirst();
    const QuestionAnswerer answer(*document().window(), "Don't Save");
    press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(1, answer.questions());
    EXPECT_EQ(QStringList{"b.mp3"}, listed());
    EXPECT_EQ(1, files().rowCount());
    EXPECT_EQ(nullptr, document().mediaFile());
}

TEST_F(LibraryTableTest, ClosingTheProgramAsksAboutEditsThatAreNotApplied) {
    openSongs();
    edit(0, LibraryColumn::title, "Rope");
    const QuestionAnswerer answer(*document().library(), "Cancel");
    EXPECT_FALSE(document().window()->close());
    EXPECT_EQ(1, answer.questions());
    EXPECT_EQ("Edits in the library table are not applied yet.", answer.messageText());
    EXPECT_FALSE(termination_.isTerminating());
    EXPECT_EQ(1U, files().rows().editedCount());
}

TEST_F(LibraryTableTest, ClosingTheProgramAsksAboutWhatIsStillBeingTyped) {
    openSongs();
    goTo(0);
    auto& field = *document().library()->findChild<QLineEdit*>("entry_titles");
    ASSERT_TRUE(waitUntil([&] { return field.isEnabled(); }));
    field.setFocus();
    QTest::keyClicks(&field, "Rope");
    const QuestionAnswerer answer(*document().library(), "Cancel");
    EXPECT_FALSE(document().window()->close());
    EXPECT_EQ(1, answer.questions());
}

TEST_F(LibraryTableTest, QuittingWithEditsThatMayBeDroppedEndsTheProgram) {
    openSongs();
    edit(0, LibraryColumn::title, "Rope");
    const QuestionAnswerer answer(*document().library(), "Drop Them");
    EXPECT_TRUE(document().window()->close());
    EXPECT_EQ(1, answer.questions());
    EXPECT_TRUE(termination_.isTerminating());
    EXPECT_NE(std::string::npos, test::read_file(folder_ / "a.mp3").find("Sea"));
}

TEST_F(LibraryTableTest, TheOpenFileIsShownAsItIsAfterAnApply) {
    openSongs();
    select(0);
    EXPECT_EQ("Sea", entry("entry_title").text());
    ASSERT_TRUE(document().setPortableTags(true));
    QApplication::setActiveWindow(document().library());
    edit(0, LibraryColumn::title, "Rope");
    apply();
    EXPECT_EQ("1 done · 0 unchanged · 0 failed", summary().text());
    EXPECT_EQ("Rope", entry("entry_title").text());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(LibraryTableTest, TheOpenFileIsFollowedToItsNewName) {
    openSongs();
    select(0);
    edit(0, LibraryColumn::name, "c.mp3");
    apply();
    EXPECT_EQ("1 done · 0 unchanged · 0 failed", summary().text());
    EXPECT_EQ(path("c.mp3"), file().path());
    EXPECT_EQ(QStringList({"b.mp3", "c.mp3"}), [this] {
        QStringList names = listed();
        names.sort();
        return names;
    }());
}

TEST_F(LibraryTableTest, AnApplyAsksAboutEditsOfTheOpenFileAndCancelWritesNothing) {
    openSongs();
    select(0);
    type("entry_artist", "Zoe");
    QApplication::setActiveWindow(document().library());
    edit(0, LibraryColumn::title, "Rope");
    const QuestionAnswerer answer(*document().window(), "Cancel");
    apply();
    EXPECT_EQ(1, answer.questions());
    EXPECT_FALSE(hasApplied());
    EXPECT_EQ("Zoe", entry("entry_artist").text());
    EXPECT_EQ(1U, files().rows().editedCount());
    EXPECT_EQ(std::string::npos, test::read_file(folder_ / "a.mp3").find("Rope"));
}

TEST_F(LibraryTableTest, AnApplyWhileTheMainWindowSavesSaysThatItHasToWait) {
    openSongs();
    // A song without a tag gets one in front of it; that takes longer than the moment for which a save is
    // waited for without an event loop.
    test::write_file(folder_ / "long.mp3", test::hex("FF FB 90 C4") + std::string(413, '\0'));
    std::filesystem::resize_file(folder_ / "long.mp3", 300'000'000);
    ASSERT_TRUE(controller().addMediaFile(path("long.mp3")));
    settle();
    ASSERT_TRUE(document().setPortableTags(true));
    select(2);
    type("entry_artist", "Zoe");
    QApplication::setActiveWindow(document().library());
    edit(1, LibraryColumn::title, "Rope");
    QString message;
    QTimer::singleShot(0, document().library(), [&] {
        document().library()->apply();
        message = document().library()->statusBar()->currentMessage();
    });
    EXPECT_TRUE(document().savePortably(false));
    EXPECT_EQ("A file is still being saved in the main window. Try again when that is done.", message);
    EXPECT_FALSE(hasApplied());
    EXPECT_EQ(1U, files().rows().editedCount());
}

TEST_F(LibraryTableTest, AnApplyGoesOnWhenTheOpenFilesEditsAreSavedFirst) {
    openSongs();
    select(0);
    type("entry_artist", "Zoe");
    QApplication::setActiveWindow(document().library());
    edit(0, LibraryColumn::title, "Rope");
    const QuestionAnswerer answer(*document().window(), "Save");
    apply();
    EXPECT_EQ(1, answer.questions());
    EXPECT_EQ("1 done · 0 unchanged · 0 failed", summary().text());
    ASSERT_TRUE(waitUntil([this] { return files().unread() == 0; }));
    EXPECT_EQ("Zoe", files().rows().text(0, LibraryColumn::artist));
    EXPECT_EQ("Rope", files().rows().text(0, LibraryColumn::title));
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(LibraryTableTest, AnApplyGoesOnWhenTheOpenFilesEditsAreDropped) {
    openSongs();
    select(0);
    type("entry_artist", "Zoe");
    QApplication::setActiveWindow(document().library());
    edit(0, LibraryColumn::title, "Rope");
    const QuestionAnswerer answer(*document().window(), "Don't Save");
    apply();
    EXPECT_EQ("1 done · 0 unchanged · 0 failed", summary().text());
    ASSERT_TRUE(waitUntil([this] { return files().unread() == 0; }));
    EXPECT_EQ("Ann", files().rows().text(0, LibraryColumn::artist));
    EXPECT_EQ("Rope", files().rows().text(0, LibraryColumn::title));
}

} // namespace
} // namespace velmora
