// A file that has gone from its place while its edits were in the form: the user shows where it is now.

#include "window_fixture.h"

#include "browser/notice_bar.h"
#include "support/bytes.h"

#include <QAction>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QTableView>
#include <QTest>

#include <sys/stat.h>

namespace velmora {
namespace {

using test::QuestionAnswerer;
using test::settle;
using test::taggedFile;
using test::text4;
using test::waitUntil;

class VanishedFileTest : public test::WindowTest {
protected:
    /** The song a.mp3 by Ann, open with another title, and gone to the folder "moved". */
    void loseFile() {
        openFile("a.mp3", text4("TIT2", "Z") + text4("TPE1", "Ann"));
        type("entry_title", "Evening");
        QDir().mkpath(path("moved"));
        ASSERT_TRUE(QFile::rename(path("a.mp3"), path("moved/a.mp3")));
    }
    /** Saves in vain and presses the notice's first button with the keyboard. */
    void saveAndLocate(const QString& reason = QStringLiteral("It is not there any more")) {
        QApplication::setActiveWindow(document().window());
        QTest::keyClick(document().window(), Qt::Key_S, Qt::ControlModifier);
        settle();
        EXPECT_EQ("\"a.mp3\" was not saved. " + reason + ".", notice());
        ASSERT_EQ("Locate File…", button("btn_noticeFirst").text());
        QTest::keyClick(document().window(), Qt::Key_F6);
        QTest::keyClick(&button("btn_noticeFirst"), Qt::Key_Space);
        settle();
    }
    QFileDialog* panel() { return document().window()->findChild<QFileDialog*>(); }
    void choose(const QString& file) {
        ASSERT_NE(nullptr, panel());
        panel()->selectFile(file);
        panel()->findChild<QLineEdit*>("fileNameEdit")->setText(file);
        QTest::keyClick(panel()->findChild<QLineEdit*>("fileNameEdit"), Qt::Key_Return);
        settle();
    }
    QStringList listed() {
        QStringList paths;
        const MediaRows& rows = controller().table().mediaFiles();
        for (std::size_t row = 0; row < rows.count(); ++row) {
            paths += rows.at(row)->fullpath;
        }
        return paths;
    }
    std::string moved() { return test::read_file(folder_ / "moved/a.mp3"); }
};

TEST_F(VanishedFileTest, IsOpenedWhereTheUserShowsItWithItsEditsUnsaved) {
    loseFile();
    saveAndLocate();
    ASSERT_NE(nullptr, panel());
    EXPECT_EQ("Locate \"a.mp3\"", panel()->windowTitle());
    EXPECT_EQ(QString::fromStdString(folder_.path()), panel()->directory().path());
    choose(path("moved/a.mp3"));

    EXPECT_EQ(path("moved/a.mp3"), file().path());
    EXPECT_EQ("Evening", entry("entry_title").text());
    EXPECT_EQ("Ann", entry("entry_artist").text());
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_TRUE(enabled("btn_saveTag"));
    EXPECT_EQ("The edits of \"a.mp3\" are back, and not saved yet.", notice());
    EXPECT_TRUE(listed().contains(path("moved/a.mp3")));
    EXPECT_EQ(taggedFile(text4("TIT2", "Z") + text4("TPE1", "Ann")), moved());
    button("btn_saveTag").click();
    settle();
    EXPECT_EQ(taggedFile(text4("TIT2", "Evening") + text4("TPE1", "Ann")), moved());
}

TEST_F(VanishedFileTest, IsListedOnceWhereItWasListedThereAlready) {
    loseFile();
    EXPECT_TRUE(controller().addMediaFile(path("moved/a.mp3")));
    saveAndLocate();
    choose(path("moved/a.mp3"));
    EXPECT_EQ(1, listed().count(path("moved/a.mp3")));
    EXPECT_EQ(path("moved/a.mp3"), file().path());
}

TEST_F(VanishedFileTest, StaysInTheFormWhenThePanelIsCancelled) {
    loseFile();
    saveAndLocate();
    QTest::keyClick(panel(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(path("a.mp3"), file().path());
    EXPECT_EQ("Evening", entry("entry_title").text());
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_EQ(QStringList{path("a.mp3")}, listed());
    EXPECT_EQ("\"a.mp3\" was not saved. It is not there any more.", notice());
}

TEST_F(VanishedFileTest, StaysInTheFormWhenWhatIsShownCantBeOpened) {
    loseFile();
    ASSERT_EQ(0, ::mkfifo((folder_ / "moved/pipe").c_str(), 0600));
    saveAndLocate();
    const QuestionAnswerer answer(*document().window(), "OK");
    choose(path("moved/pipe"));
    ASSERT_TRUE(waitUntil([&] { return answer.questions() > 0; }));
    EXPECT_EQ("Please ensure the file is readable and is a valid media file.", answer.informativeText());
    EXPECT_EQ(path("a.mp3"), file().path());
    EXPECT_EQ("Evening", entry("entry_title").text());
    EXPECT_TRUE(document().isDocumentEdited());
}

TEST_F(VanishedFileTest, IsFoundWithPortableTagsToo) {
    ASSERT_TRUE(document().setPortableTags(true));
    loseFile();
    saveAndLocate();
    choose(path("moved/a.mp3"));
    EXPECT_EQ(path("moved/a.mp3"), file().path());
    EXPECT_EQ("Evening", entry("entry_title").text());
}

TEST_F(VanishedFileTest, IsLookedForWhereAFolderHasItsNameNow) {
    loseFile();
    QDir().mkpath(path("a.mp3"));
    saveAndLocate(QStringLiteral("It is no ordinary file"));
    choose(path("moved/a.mp3"));
    EXPECT_EQ(path("moved/a.mp3"), file().path());
    EXPECT_EQ("Evening", entry("entry_title").text());
}

TEST_F(VanishedFileTest, GetsBackTheEditsThatWereKeptWhenAnotherFileWasOpened) {
    openFile("b.mp3");
    loseFile();
    const QuestionAnswerer answer(*document().window(), "Save");
    select(0);
    ASSERT_TRUE(waitUntil([&] { return answer.questions() > 0; }));
    settle();
    EXPECT_EQ("\"a.mp3\" was not saved; its edits are kept. It is not there any more.", notice());
    EXPECT_EQ("Locate File…", button("btn_noticeFirst").text());
    EXPECT_EQ("Restore Unsaved Edits", button("btn_noticeSecond").text());
    button("btn_noticeFirst").click();
    settle();
    choose(path("moved/a.mp3"));

    EXPECT_EQ(path("moved/a.mp3"), file().path());
    EXPECT_EQ("Evening", entry("entry_title").text());
    EXPECT_FALSE(document().hasUnsavedEdits());
}

TEST_F(VanishedFileTest, CanBeShownAfterARestoreInVain) {
    openFile("b.mp3");
    addFile("c.mp3", test::fileTaggedInFront());
    select(1);
    type("entry_title", "Evening");
    {
        const QuestionAnswerer save(*document().window(), "Save");
        select(0);
        ASSERT_TRUE(waitUntil([&] { return save.questions() > 0; }));
        settle();
    }
    ASSERT_TRUE(QFile::rename(path("c.mp3"), path("d.mp3")));
    const QuestionAnswerer answer(*document().window(), "OK");
    document().window()->findChild<QAction*>("action_restoreEdits")->trigger();
    ASSERT_TRUE(waitUntil([&] { return answer.questions() > 0; }));
    settle();
    EXPECT_EQ("\"c.mp3\" was not saved; its edits are kept. It is not there any more.", notice());
    button("btn_noticeFirst").click();
    settle();
    choose(path("d.mp3"));
    EXPECT_EQ(path("d.mp3"), file().path());
    EXPECT_EQ("Evening", entry("entry_title").text());
}

} // namespace
} // namespace velmora
