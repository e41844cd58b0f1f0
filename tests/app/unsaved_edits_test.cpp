// Edits whose save fails when the question about them is answered with Save: kept, told of, and put back.

#include "window_fixture.h"

#include "library/library_window.h"
#include "support/bytes.h"
#include "support/pictures.h"

#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QTableView>
#include <QTest>

namespace velmora {
namespace {

using test::fileTaggedInFront;
using test::QuestionAnswerer;
using test::settle;
using test::taggedFile;
using test::text4;
using test::waitUntil;

class UnsavedEditsTest : public test::WindowTest {
protected:
    QAction& action() { return *document().window()->findChild<QAction*>("action_restoreEdits"); }
    int selectedRow() {
        const auto rows = widget<QTableView>("tbl_mediaFiles").selectionModel()->selectedRows();
        return rows.isEmpty() ? -1 : rows.first().row();
    }
    /** Lists a file that can't be saved in place and opens it. */
    void openStubborn(const std::string& name) {
        addFile(name, fileTaggedInFront());
        select(controller().table().model().numberOfRowsInTableView() - 1);
        ASSERT_EQ(path(name), file().filename());
    }
    /** Selects ROW and answers the question with Save, which fails. */
    void leaveFor(int row) {
        const QuestionAnswerer answer(*document().window(), "Save");
        auto& table = widget<QTableView>("tbl_mediaFiles");
        row < 0 ? table.clearSelection() : table.selectRow(row);
        ASSERT_TRUE(waitUntil([&] { return answer.questions() > 0; }));
        settle();
    }
};

TEST_F(UnsavedEditsTest, AreNoneAtFirst) {
    EXPECT_FALSE(action().isEnabled());
    openStubborn("a.mp3");
    type("entry_title", "Evening");
    EXPECT_FALSE(action().isEnabled());
}

TEST_F(UnsavedEditsTest, AreToldOfOnceTheNextFileIsOpen) {
    openFile("b.mp3");
    openStubborn("a.mp3");
    type("entry_title", "Evening");
    leaveFor(0);

    EXPECT_EQ(path("b.mp3"), file().filename());
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_EQ("\"a.mp3\" was not saved; its edits are kept. Its tag can't be changed in place.", notice());
    EXPECT_EQ("Restore Unsaved Edits", button("btn_noticeFirst").text());
    EXPECT_TRUE(action().isEnabled());
}

TEST_F(UnsavedEditsTest, AreToldOfWhenNoFileIsOpenAnyMore) {
    openStubborn("a.mp3");
    type("entry_title", "Evening");
    leaveFor(-1);

    EXPECT_EQ(nullptr, document().mediaFile());
    EXPECT_TRUE(notice().startsWith("\"a.mp3\" was not saved; its edits are kept."));
}

TEST_F(UnsavedEditsTest, AllComeBackByTheMenu) {
    openFile("b.mp3");
    openStubborn("a.mp4");
    type("entry_title", "Evening");
    type("entry_artist", "Ada");
    type("entry_album", "Bo");
    type("entry_year", "1994");
    widget<QComboBox>("combo_genre").setFocus();
    QTest::keyClicks(widget<QComboBox>("combo_genre").lineEdit(), "Folk");
    widget<QPlainTextEdit>("entry_desc").selectAll();
    QTest::keyClicks(&widget<QWidget>("entry_desc"), "At sea");
    widget<QComboBox>("combo_rating").setFocus();
    QTest::keyClicks(&widget<QComboBox>("combo_rating"), "NR");
    ASSERT_TRUE(test::plain({30, 20}).save(path("cover.png"), "PNG"));
    controller().loadCoverArtSelected(1, {path("cover.png")});
    leaveFor(0);
    ASSERT_EQ(path("b.mp3"), file().filename());
    EXPECT_EQ("Z", entry("entry_title").text());
    action().trigger();
    settle();

    EXPECT_EQ(path("a.mp4"), file().filename());
    EXPECT_EQ(1, selectedRow());
    EXPECT_EQ("Evening", entry("entry_title").text());
    EXPECT_EQ("Ada", entry("entry_artist").text());
    EXPECT_EQ("Bo", entry("entry_album").text());
    EXPECT_EQ("1994", entry("entry_year").text());
    EXPECT_EQ("Folk", widget<QComboBox>("combo_genre").currentText());
    EXPECT_EQ("At sea", widget<QPlainTextEdit>("entry_desc").toPlainText());
    EXPECT_EQ("NR", widget<QComboBox>("combo_rating").currentText());
    EXPECT_EQ(QSize(30, 20), file().coverArt().size());
    EXPECT_TRUE(enabled("btn_saveTag"));
    EXPECT_TRUE(enabled("btn_revertTag"));
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_FALSE(action().isEnabled());
}

TEST_F(UnsavedEditsTest, ComeBackToTheListTooWhenTheirFileWasTakenOffIt) {
    openFile("b.mp3");
    openStubborn("a.mp3");
    type("entry_title", "Evening");
    leaveFor(0);
    controller().table().removeFile(path("a.mp3"));
    action().trigger();
    settle();

    EXPECT_EQ("Evening", entry("entry_title").text());
    EXPECT_EQ(1, selectedRow());
    press("btn_revertTag");
    EXPECT_EQ(path("a.mp3"), file().filename());
    EXPECT_EQ("Z", entry("entry_title").text());
}

TEST_F(UnsavedEditsTest, ComeBackByTheNoticeAndCanBeSavedPortably) {
    openFile("b.mp3");
    openStubborn("a.mp3");
    type("entry_title", "Evening");
    leaveFor(0);
    button("btn_noticeFirst").click();
    settle();

    EXPECT_EQ("Evening", entry("entry_title").text());
    EXPECT_EQ("The edits of \"a.mp3\" are back, and not saved yet.", notice());
    EXPECT_EQ("Save With Portable Tags", button("btn_noticeFirst").text());
}

TEST_F(UnsavedEditsTest, LeaveAloneWhatAnotherProgramHasChangedMeanwhile) {
    openFile("b.mp3");
    openStubborn("a.mp3");
    type("entry_artist", "Ada");
    leaveFor(0);
    test::write_file(folder_ / "a.mp3", taggedFile(text4("TIT2", "New")));
    action().trigger();
    settle();

    EXPECT_EQ("New", entry("entry_title").text());
    EXPECT_EQ("Ada", entry("entry_artist").text());
}

TEST_F(UnsavedEditsTest, ComeBackTheLatestFirst) {
    openFile("c.mp3");
    openStubborn("a.mp3");
    openStubborn("b.mp3");
    select(1);
    type("entry_title", "First");
    leaveFor(2);
    type("entry_title", "Second");
    leaveFor(0);
    action().trigger();
    settle();
    EXPECT_EQ("Second", entry("entry_title").text());
    EXPECT_TRUE(action().isEnabled());

    const QuestionAnswerer answer(*document().window(), "Don't Save");
    action().trigger();
    settle();
    EXPECT_EQ(path("a.mp3"), file().filename());
    EXPECT_EQ("First", entry("entry_title").text());
    EXPECT_FALSE(action().isEnabled());
}

TEST_F(UnsavedEditsTest, StayKeptWhenTheUserWantsToFinishTheOtherFileFirst) {
    openFile("b.mp3");
    openStubborn("a.mp3");
    type("entry_title", "Evening");
    leaveFor(0);
    type("entry_title", "Morning");
    const QuestionAnswerer answer(*document().window(), "Cancel");
    action().trigger();
    settle();

    EXPECT_EQ(1, answer.questions());
    EXPECT_EQ("Morning", entry("entry_title").text());
    EXPECT_TRUE(action().isEnabled());
}

TEST_F(UnsavedEditsTest, StayKeptWhenTheirFileHasVanished) {
    openFile("b.mp3");
    openStubborn("a.mp3");
    type("entry_title", "Evening");
    leaveFor(0);
    ASSERT_TRUE(QFile::remove(path("a.mp3")));
    const QuestionAnswerer answer(*document().window(), "OK");
    action().trigger();
    ASSERT_TRUE(waitUntil([&] { return answer.questions() > 0; }));

    EXPECT_EQ("The file does not exist.", answer.informativeText());
    EXPECT_TRUE(action().isEnabled());
    EXPECT_EQ(path("b.mp3"), file().filename());
}

TEST_F(UnsavedEditsTest, AreNotKeptWhenTheUserDropsThem) {
    openFile("b.mp3");
    openStubborn("a.mp3");
    type("entry_title", "Evening");
    const QuestionAnswerer answer(*document().window(), "Don't Save");
    select(0);
    ASSERT_TRUE(waitUntil([&] { return answer.questions() > 0; }));
    settle();

    EXPECT_FALSE(action().isEnabled());
    EXPECT_EQ(QString(), notice());
}

TEST_F(UnsavedEditsTest, GoAlongWhenTheLibraryTableWritesTheFileMeanwhile) {
    openFile("a.mp3", text4("TIT2", "Z"));
    document().showLibrary();
    LibraryWindow& library = *document().library();
    LibraryModel& files = library.model();
    ASSERT_TRUE(waitUntil([&] { return files.rowCount() == 1 && files.unread() == 0; }));
    ASSERT_TRUE(files.setData(files.index(0, static_cast<int>(LibraryColumn::artist)), "Ann", Qt::EditRole));
    library.apply();
    type("entry_title", "Evening");
    ASSERT_TRUE(waitUntil([&] { return !library.isWriting(); }));
    settle();

    EXPECT_EQ("Ann", entry("entry_artist").text());
    EXPECT_EQ("Evening", entry("entry_title").text());
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_TRUE(enabled("btn_saveTag"));
}

} // namespace
} // namespace velmora
