// The line at the window's foot, and what an empty list says: what a save did, and what a search found.

#include "window_fixture.h"

#include "browser/notice_bar.h"
#include "portable/portable_tags.h"
#include "support/bytes.h"

#include <QAccessible>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTest>

#include <unistd.h>

namespace velmora {
namespace {

using test::hex;
using test::settle;
using test::taggedFile;
using test::text4;
using test::waitUntil;

class StatusLineTest : public test::WindowTest {
protected:
    QString text(const char* name) { return widget<QLabel>(name).text(); }
    /** What the line says of the last save, without the time of day. */
    QString save() {
        const QRegularExpression withTime(QStringLiteral("^(.*) \\(\\d?\\d:\\d\\d(:\\d\\d)?( [AP]M)?\\)$"));
        const QRegularExpressionMatch match = withTime.match(text("lbl_saveStatus"));
        EXPECT_TRUE(match.hasMatch()) << text("lbl_saveStatus").toStdString();
        return match.captured(1);
    }
    void open(const std::string& name, const std::string& bytes) {
        addFile(name, bytes);
        select(controller().table().model().numberOfRowsInTableView() - 1);
        ASSERT_NE(nullptr, document().mediaFile());
    }
    void editAndSave() {
        type("entry_title", "Evening");
        button("btn_saveTag").click();
        settle();
    }
    QString notice() { return text("lbl_notice"); }
    void search(const QStringList& folders) {
        controller().addFolderSelected(1, folders);
        ASSERT_TRUE(waitUntil([this] { return !controller().search().isSearchRunning(); }));
    }
    void makeSong(const std::string& name) { test::write_sparse_file(folder_ / name, 200'000, "x", 0); }
};

TEST_F(StatusLineTest, IsAtTheWindowsFootAndSaysNothingOfSavesAtFirst) {
    EXPECT_TRUE(document().window()->statusBar()->isVisible());
    EXPECT_EQ("", text("lbl_saveStatus"));
}

TEST_F(StatusLineTest, SaysThatAFileWasSavedAndWhen) {
    openFile("harbour.mp3");
    editAndSave();
    EXPECT_EQ("Saved \"harbour.mp3\"", save());
    EXPECT_EQ(path("harbour.mp3"), widget<QLabel>("lbl_saveStatus").toolTip());
}

TEST_F(StatusLineTest, SaysThatAFileWasSavedFromTheMenu) {
    openFile("harbour.mp3");
    type("entry_title", "Evening");
    document().saveDocument();
    EXPECT_EQ("Saved \"harbour.mp3\"", save());
}

TEST_F(StatusLineTest, SaysWhyAFileWasNotSaved) {
    open("harbour.mp3", test::fileTaggedInFront());
    editAndSave();
    EXPECT_EQ("\"harbour.mp3\" was not saved. Its tag can't be changed in place", save());
}

TEST_F(StatusLineTest, NoticeAndLineSayThatAFileHasVanished) {
    openFile("harbour.mp3");
    ASSERT_TRUE(QFile::remove(path("harbour.mp3")));
    editAndSave();
    EXPECT_EQ("\"harbour.mp3\" was not saved. It is not there any more", save());
    EXPECT_EQ("\"harbour.mp3\" was not saved. It is not there any more.", notice());
    EXPECT_TRUE(enabled("btn_saveTag"));
}

TEST_F(StatusLineTest, NoticeSaysThatAWindowsMediaHeaderCannotBeRead) {
    open("harbour.wma", test::pattern(300));
    editAndSave();
    EXPECT_EQ("\"harbour.wma\" was not saved. Its header can't be read.", notice());
    EXPECT_EQ("Save With Portable Tags", button("btn_noticeFirst").text());
}

TEST_F(StatusLineTest, IsSpokenAsItReads) {
    openFile("harbour.mp3");
    editAndSave();
    search({path("")});
    for (const char* name : {"lbl_saveStatus", "lbl_searchStatus"}) {
        QAccessibleInterface& label = *QAccessible::queryAccessibleInterface(&widget<QLabel>(name));
        EXPECT_EQ(text(name), label.text(QAccessible::Name));
        EXPECT_EQ(QAccessible::StaticText, label.role());
    }
}

TEST_F(StatusLineTest, SaysHowManyFilesASearchFound) {
    EXPECT_EQ("Files found: 0", text("lbl_searchStatus"));
    makeSong("a.mp3");
    makeSong("b.mp3");
    search({path("")});
    EXPECT_EQ("Files found: 2", text("lbl_searchStatus"));
    EXPECT_EQ("Search Done.", text("lbl_scanStatus"));
}

TEST_F(StatusLineTest, SaysHowManyFoldersCouldNotBeRead) {
    // A link to itself is a folder that nobody can list, the administrator included.
    ASSERT_EQ(0, ::symlink((folder_ / "loop").c_str(), (folder_ / "loop").c_str()));
    makeSong("a.mp3");
    search({path("loop"), path("")});
    EXPECT_EQ("Files found: 1; folders that could not be read: 1", text("lbl_searchStatus"));
    search({path("not there")});
    EXPECT_EQ("Files found: 0", text("lbl_searchStatus"));
}

TEST_F(StatusLineTest, EmptyListSaysWhereItLooked) {
    const QString home = path("home");
    const auto& folders = widget<QLabel>("lbl_searchedFolders");
    EXPECT_TRUE(folders.isVisible());
    EXPECT_EQ("Looked in:\n" + home + "/Movies (not there)\n" + home + "/Music (not there)\n" + home +
                  "/Pictures (not there)",
              folders.text());
    search({path("")});
    EXPECT_TRUE(folders.text().endsWith("/Pictures (not there)\n" + path("")));
    addFile("a.mp3", "x");
    EXPECT_FALSE(folders.isVisible());
}

class SaveCopyTest : public StatusLineTest {
protected:
    /** Opens a song, edits it, and asks for a copy. */
    void askForCopy() {
        const std::string frame = hex("FF FB 90 C4") + std::string(413, '\0');
        open("harbour.mp3", frame + frame);
        type("entry_title", "Evening");
        controller().saveCopy();
    }
    QFileDialog* panel() { return document().window()->findChild<QFileDialog*>(); }
};

TEST_F(SaveCopyTest, StartsBesideTheFileWithItsName) {
    askForCopy();
    ASSERT_NE(nullptr, panel());
    EXPECT_EQ("Save as a Copy", panel()->windowTitle());
    EXPECT_EQ(QFileDialog::AcceptSave, panel()->acceptMode());
    EXPECT_EQ(path(""), panel()->directory().path() + "/");
    EXPECT_EQ(QStringList{path("harbour.mp3")}, panel()->selectedFiles());
}

TEST_F(SaveCopyTest, IsListedAndOpenedAndNothingIsLeftToSave) {
    askForCopy();
    const std::string before = test::read_file(folder_ / "harbour.mp3");
    controller().copyPlaceSelected(1, {path("copy")});
    settle();

    EXPECT_EQ("Evening", portable::read_tags(folder_ / "copy.mp3").values.text(portable::Field::title));
    EXPECT_EQ(before, test::read_file(folder_ / "harbour.mp3"));
    EXPECT_EQ(path("copy.mp3"), file().filename());
    EXPECT_EQ(2, controller().table().model().numberOfRowsInTableView());
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_EQ("Saved \"copy.mp3\"", save());
}

TEST_F(SaveCopyTest, ReplacesNothingThatThePanelHasNotAskedAbout) {
    test::write_file(folder_ / "copy.v2.mp3", "another song");
    askForCopy();
    EXPECT_EQ("mp3", panel()->defaultSuffix());
    panel()->reject();
    settle();
    controller().copyPlaceSelected(1, {path("copy.v2")});
    settle();

    EXPECT_EQ("another song", test::read_file(folder_ / "copy.v2.mp3"));
    ASSERT_NE(nullptr, panel());
    EXPECT_EQ(QStringList{path("copy.v2.mp3")}, panel()->selectedFiles());
}

TEST_F(SaveCopyTest, ThatFailsKeepsTheEditsAndSaysWhy) {
    askForCopy();
    controller().copyPlaceSelected(1, {path("nowhere/copy.mp3")});
    settle();

    EXPECT_EQ(path("harbour.mp3"), file().filename());
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_EQ("\"copy.mp3\" was not saved. Its folder is not there.", notice());
    EXPECT_EQ("Save as a Copy…", button("btn_noticeFirst").text());
    button("btn_noticeFirst").click();
    EXPECT_NE(nullptr, panel());
}

TEST_F(SaveCopyTest, ThatIsCancelledChangesNothing) {
    askForCopy();
    controller().copyPlaceSelected(0, {});
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_FALSE(widget<NoticeBar>("bar_notice").holdsNotice());
}

} // namespace
} // namespace velmora
