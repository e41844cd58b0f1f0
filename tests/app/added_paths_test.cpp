#include "window_fixture.h"

#include "support/bytes.h"
#include "support/drag_session.h"

#include <QTableView>
#include <QUrl>

#include <filesystem>

namespace velmora {
namespace {

/** Files and folders that come from outside: from the command line, or dropped on the window. */
class AddedPathsTest : public test::WindowTest {
protected:
    AddedPathsTest() {
        std::filesystem::create_directory(folder_ / "shelf");
        test::write_file(folder_ / "a.mp3", test::taggedFile(test::text4("TIT2", "Harbour")));
        test::write_file(folder_ / "b.mp3", test::taggedFile(test::text4("TIT2", "Evening")));
        // The search lists what is larger than 100 KiB.
        test::write_file(folder_ / "shelf/c.mp3", std::string(200'000, '\0'));
        test::write_file(folder_ / "notes.txt", "1984");
    }

    [[nodiscard]] int rows() { return widget<QTableView>("tbl_mediaFiles").model()->rowCount(); }
    [[nodiscard]] bool becomesRows(int count) {
        return test::waitUntil([this, count] { return rows() == count; });
    }

    /** A drag of the files NAMES as a file manager makes it. */
    void drag(const std::vector<std::string>& names) {
        QList<QUrl> urls;
        for (const std::string& name : names) {
            urls += QUrl::fromLocalFile(path(name));
        }
        data_.setUrls(urls);
    }

    QMimeData data_;
};

TEST_F(AddedPathsTest, ASingleFileIsListedSelectedAndOpened) {
    controller().openPaths({path("a.mp3")});
    EXPECT_TRUE(test::waitUntil([this] { return entry("entry_title").text() == "Harbour"; }));
    EXPECT_EQ(1, rows());
    EXPECT_EQ(0, controller().table().curSelectedRow());
}

TEST_F(AddedPathsTest, SeveralFilesAreListedAndNoneIsOpened) {
    controller().openPaths({path("b.mp3"), path("a.mp3")});
    test::settle();
    EXPECT_EQ(2, rows());
    EXPECT_EQ(-1, controller().table().curSelectedRow());
}

TEST_F(AddedPathsTest, AFolderIsSearched) {
    controller().openPaths({path("shelf")});
    EXPECT_TRUE(becomesRows(1));
    EXPECT_EQ(path("shelf/c.mp3"), controller().table().mediaFiles().at(0)->fullpath);
    EXPECT_EQ(-1, controller().table().curSelectedRow());
}

TEST_F(AddedPathsTest, WhatIsNotThereIsSaidAndLeftOut) {
    controller().openPaths({path("gone.mp3")});
    test::settle();
    EXPECT_EQ(0, rows());
    EXPECT_EQ(1, logged("can't add " + path("gone.mp3").toStdString()));
    EXPECT_EQ("\"gone.mp3\" was not added. The file does not exist.", notice());
}

TEST_F(AddedPathsTest, SeveralThatAreNotThereAreNamed) {
    controller().openPaths({path("gone.mp3"), path("a.mp3"), path("away\n.mp3")});
    test::settle();
    EXPECT_EQ(1, rows());
    EXPECT_EQ("Files that could not be added: gone.mp3, away .mp3", notice());
    controller().openPaths({path("1.mp3"), path("2.mp3"), path("3.mp3"), path("4.mp3")});
    test::settle();
    EXPECT_EQ("Files that could not be added: 1.mp3, 2.mp3, 3.mp3, …", notice());
}

TEST_F(AddedPathsTest, WhatWasChosenAndCannotBeAddedIsSaid) {
    controller().addFileSelected(1, {path("a.mp3"), path("gone.mp3")});
    EXPECT_EQ(1, rows());
    EXPECT_EQ("\"gone.mp3\" was not added. The file does not exist.", notice());
}

TEST_F(AddedPathsTest, AFileOfAnotherMachineIsNotTaken) {
    data_.setUrls({QUrl("file://elsewhere" + path("a.mp3"))});
    test::DragSession session(widget<QTableView>("tbl_mediaFiles"), data_);
    EXPECT_FALSE(session.enter());
}

TEST_F(AddedPathsTest, DroppedFilesAndFoldersAreAdded) {
    drag({"b.mp3", "shelf", "a.mp3"});
    for (const char* const place : {"tbl_mediaFiles", "entry_title", "box_form", "entry_search"}) {
        test::DragSession session(widget<QWidget>(place), data_);
        EXPECT_TRUE(session.enter()) << place;
        EXPECT_TRUE(session.move()) << place;
    }
    test::DragSession session(widget<QTableView>("tbl_mediaFiles"), data_);
    ASSERT_TRUE(session.enter());
    ASSERT_TRUE(session.drop());
    EXPECT_EQ(Qt::CopyAction, session.action());
    EXPECT_TRUE(becomesRows(3));
    EXPECT_EQ(-1, controller().table().curSelectedRow());
}

TEST_F(AddedPathsTest, ASongDroppedOnAFieldIsAddedAndNoText) {
    openFile("open.mp3");
    drag({"a.mp3"});
    test::DragSession session(entry("entry_title"), data_);
    ASSERT_TRUE(session.enter());
    ASSERT_TRUE(session.drop());
    EXPECT_TRUE(becomesRows(2));
    EXPECT_EQ("Z", entry("entry_title").text());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(AddedPathsTest, OtherFilesAreLeftOut) {
    drag({"notes.txt"});
    test::DragSession alone(widget<QTableView>("tbl_mediaFiles"), data_);
    EXPECT_FALSE(alone.enter());

    drag({"notes.txt", "a.mp3"});
    test::DragSession beside(widget<QTableView>("tbl_mediaFiles"), data_);
    ASSERT_TRUE(beside.enter());
    ASSERT_TRUE(beside.drop());
    EXPECT_TRUE(becomesRows(1));
}

TEST_F(AddedPathsTest, NothingIsTakenFromASourceThatOnlyMoves) {
    drag({"a.mp3"});
    test::DragSession session(widget<QTableView>("tbl_mediaFiles"), data_, Qt::MoveAction);
    EXPECT_FALSE(session.enter());
}

} // namespace
} // namespace velmora
