#include "window_fixture.h"

#include "browser/detail/movie_preview.h"
#include "imaging/CoverArtView.h"
#include "platform/busy_indicator.h"
#include "platform/file_path.h"
#include "support/bytes.h"
#include "support/pictures.h"

#include <QAction>
#include <QFileDialog>
#include <QPainter>
#include <QTableView>
#include <QTest>

#include <sys/stat.h>
#include <unistd.h>

namespace velmora {
namespace {

using test::settle;
using test::taggedFile;
using test::text4;

class ButtonActionsTest : public test::WindowTest {
protected:
    QFileDialog* panel() { return document().window()->findChild<QFileDialog*>(); }
    /** Accepts the open panel with one file or folder of the scratch folder. */
    void choose(const std::string& name) {
        ASSERT_NE(nullptr, panel());
        panel()->setDirectory(path(""));
        panel()->selectFile(path(name));
        QMetaObject::invokeMethod(panel(), "accept");
        settle();
        EXPECT_EQ(nullptr, panel());
    }
    /** The names in the list, from top to bottom. */
    QStringList names() {
        const auto& model = controller().table().model();
        QStringList shown;
        for (int row = 0; row < model.numberOfRowsInTableView(); ++row) {
            shown += model.index(row, MediaTableModel::columnIndex(u"filename")).data().toString();
        }
        return shown;
    }
    std::string bytes() { return test::read_file(folder_ / "a.mp3"); }
    CoverArtView& well() { return widget<CoverArtView>("img_coverArt"); }
    QString image(const std::string& name, int width, int height) {
        EXPECT_TRUE(test::plain({width, height}, Qt::darkRed).save(path(name), "PNG"));
        return path(name);
    }
    const std::string original = taggedFile(text4("TIT2", "Z"));
};

TEST_F(ButtonActionsTest, SaveWritesAndSettlesTheChanges) {
    openFile();
    type("entry_title", "new");
    button("btn_saveTag").click();
    EXPECT_EQ(taggedFile(text4("TIT2", "new")), bytes());
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_FALSE(enabled("btn_saveTag"));
    EXPECT_FALSE(enabled("btn_revertTag"));
}

TEST_F(ButtonActionsTest, FailedSaveIsLoggedAndChangesNothing) {
    addFile("a.mp3", test::fileTaggedInFront());
    select(0);
    type("entry_title", "new");
    button("btn_saveTag").click();
    EXPECT_EQ(1, logged("failed to save tag for some stupid reason\n"));
    EXPECT_EQ(1,
              logged("error saving file: Be sure you have permissions to write to the file, and that it is a "
                     "valid media file.\n"))
        << log();
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_TRUE(enabled("btn_saveTag"));
    EXPECT_TRUE(enabled("btn_revertTag"));
    EXPECT_EQ(nullptr, document().window()->findChild<QMessageBox*>());
    EXPECT_EQ(test::fileTaggedInFront(), bytes());
}

TEST_F(ButtonActionsTest, RevertShowsTheStoredValuesAgain) {
    openFile();
    type("entry_title", "new");
    button("btn_revertTag").click();
    settle();
    EXPECT_EQ("Z", entry("entry_title").text());
    EXPECT_EQ("Z", file().title());
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_FALSE(enabled("btn_saveTag"));
    EXPECT_EQ(0, controller().table().curSelectedRow());
    EXPECT_EQ(original, bytes());
}

TEST_F(ButtonActionsTest, RevertReadsWhatOthersHaveWritten) {
    openFile();
    test::write_file(folder_ / "a.mp3", taggedFile(text4("TIT2", "theirs")));
    controller().revertToSaved();
    settle();
    EXPECT_EQ("theirs", entry("entry_title").text());
}

TEST_F(ButtonActionsTest, RevertWithoutAFileDoesNothing) {
    addFile("a.mp3", original);
    const std::size_t before = log().size();
    controller().revertToSaved();
    settle();
    EXPECT_EQ("", log().substr(before));
}

TEST_F(ButtonActionsTest, RevertWithoutASelectedRowReopensNothing) {
    test::write_file(folder_ / "a.mp3", original);
    ASSERT_TRUE(document().readFromURL(fileUrlFromPath(path("a.mp3")), "mediafile", nullptr));
    controller().fillUI();
    type("entry_title", "new");
    button("btn_revertTag").click();
    settle();
    EXPECT_EQ("new", entry("entry_title").text());
    EXPECT_EQ("new", file().title());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(ButtonActionsTest, StopEndsTheSearch) {
    for (const char* name : {"/again", "/andAgain"}) {
        ASSERT_EQ(0, ::symlink(".", (folder_.path() + name).c_str()));
    }
    controller().addFolderSelected(1, {path("")});
    ASSERT_TRUE(enabled("btn_stop"));
    EXPECT_TRUE(widget<BusyIndicator>("progress_mediaSearch").isAnimating());
    button("btn_stop").click();
    EXPECT_TRUE(test::waitUntil([this] { return !enabled("btn_stop"); }));
    EXPECT_FALSE(widget<BusyIndicator>("progress_mediaSearch").isAnimating());
}

TEST_F(ButtonActionsTest, MenuCommandsDoWhatTheirButtonsDo) {
    const auto choose = [this](const char* name) {
        document().window()->findChild<QAction*>(QLatin1String(name))->trigger();
    };
    openFile();
    for (const auto& [name, mode] : {std::pair("action_addFile", QFileDialog::ExistingFiles),
                                     std::pair("action_addFolder", QFileDialog::Directory),
                                     std::pair("action_loadCoverArt", QFileDialog::ExistingFile)}) {
        choose(name);
        ASSERT_NE(nullptr, panel()) << name;
        EXPECT_EQ(mode, panel()->fileMode()) << name;
        panel()->reject();
        settle();
    }
    type("entry_title", "new");
    choose("action_revert");
    settle();
    EXPECT_EQ("Z", entry("entry_title").text());
    choose("action_lookUp");
    EXPECT_EQ(&entry("entry_search"), document().window()->focusWidget());
    choose("action_find");
    EXPECT_EQ(&widget<QTableView>("tbl_mediaFiles"), document().window()->focusWidget());
}

TEST_F(ButtonActionsTest, RevertOfAVanishedFileSaysSo) {
    openFile();
    type("entry_title", "new");
    ASSERT_EQ(0, ::unlink((folder_ / "a.mp3").c_str()));
    button("btn_revertTag").click();
    settle();
    auto* box = document().window()->findChild<QMessageBox*>();
    ASSERT_NE(nullptr, box);
    EXPECT_EQ("Unable to open file \"a.mp3\".", box->text());
    EXPECT_EQ("The file does not exist.", box->informativeText());
}

TEST_F(ButtonActionsTest, RemoveLeavesFileFormAndModelAlone) {
    openFile();
    type("entry_title", "new");
    button("btn_removeTag").click();
    EXPECT_EQ(original, bytes());
    EXPECT_EQ("new", entry("entry_title").text());
    EXPECT_EQ("new", file().title());
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_FALSE(enabled("btn_saveTag"));
    EXPECT_FALSE(enabled("btn_revertTag"));
}

TEST_F(ButtonActionsTest, AfterRemoveTheNextSelectionDropsTheEditsUnasked) {
    openFile();
    addFile("b.mp3", taggedFile(text4("TIT2", "B")));
    type("entry_title", "new");
    button("btn_removeTag").click();
    select(1);
    EXPECT_EQ("B", entry("entry_title").text());
    EXPECT_EQ(original, bytes());
}

TEST_F(ButtonActionsTest, RemoveHoldsUntilTheNextEdit) {
    openFile();
    button("btn_removeTag").click();
    QTest::keyClicks(&entry("entry_title"), "!");
    EXPECT_TRUE(enabled("btn_saveTag"));
}

TEST_F(ButtonActionsTest, AddFilesTakesSeveralFilesOfAnyKindAndSize) {
    button("btn_addFile").click();
    ASSERT_NE(nullptr, panel());
    EXPECT_EQ(QFileDialog::ExistingFiles, panel()->fileMode());
    panel()->reject();
    test::write_file(folder_ / "tiny.txt", "x");
    test::write_file(folder_ / "b.mp3", original);
    controller().addFileSelected(1, {path("tiny.txt"), path("gone.mp3"), path("b.mp3")});
    EXPECT_EQ((QStringList{"tiny.txt", "b.mp3"}), names());
}

TEST_F(ButtonActionsTest, FileChosenInTheAddFilesPanelIsListed) {
    test::write_file(folder_ / "b.mp3", original);
    button("btn_addFile").click();
    choose("b.mp3");
    EXPECT_EQ(QStringList{"b.mp3"}, names());
}

TEST_F(ButtonActionsTest, FolderChosenInTheAddFolderPanelIsSearched) {
    ASSERT_EQ(0, ::mkdir((folder_ / "films").c_str(), 0700));
    test::write_file(folder_ / "films/a.mp3", test::pattern(102401));
    button("btn_addFolder").click();
    choose("films");
    EXPECT_TRUE(test::waitUntil([this] { return !controller().search().isSearchRunning(); }));
    EXPECT_EQ(1, logged("search: entering " + (folder_ / "films") + "\n"));
    EXPECT_EQ(QStringList{"a.mp3"}, names());
}

TEST_F(ButtonActionsTest, ImageChosenInTheCoverArtPanelIsShownAndStored) {
    openFile();
    image("c.png", 20, 10);
    button("btn_loadCoverArt").click();
    choose("c.png");
    EXPECT_EQ(QSize(20, 10), well().image().size());
    EXPECT_EQ(QSize(20, 10), file().coverArt().toQImage().size());
    EXPECT_TRUE(document().isDocumentEdited());
}

TEST_F(ButtonActionsTest, CancelledAddFilesAddsNothing) {
    test::write_file(folder_ / "b.mp3", original);
    controller().addFileSelected(0, {path("b.mp3")});
    EXPECT_EQ(0, controller().table().model().numberOfRowsInTableView());
}

TEST_F(ButtonActionsTest, AddFolderTakesSeveralFoldersAndSearchesThem) {
    button("btn_addFolder").click();
    ASSERT_NE(nullptr, panel());
    EXPECT_EQ(QFileDialog::Directory, panel()->fileMode());
    panel()->reject();
    ASSERT_EQ(0, ::mkdir((folder_ / "films").c_str(), 0700));
    test::write_file(folder_ / "films/a.mp3", test::pattern(102401));
    test::write_file(folder_ / "films/small.mp3", test::pattern(102400));
    controller().addFolderSelected(1, {path("films")});
    EXPECT_TRUE(test::waitUntil([this] { return !controller().search().isSearchRunning(); }));
    EXPECT_EQ(1, controller().table().model().numberOfRowsInTableView());
    EXPECT_FALSE(enabled("btn_stop"));
}

TEST_F(ButtonActionsTest, CancelledAddFolderSearchesNothing) {
    controller().addFolderSelected(0, {path("")});
    EXPECT_FALSE(controller().search().isSearchRunning());
}

TEST_F(ButtonActionsTest, LoadCoverArtStartsInTheFilesFolder) {
    openFile();
    button("btn_loadCoverArt").click();
    ASSERT_NE(nullptr, panel());
    EXPECT_EQ(QFileDialog::ExistingFile, panel()->fileMode());
    EXPECT_EQ(QDir(QString::fromStdString(folder_.path())), panel()->directory());
    panel()->reject();
}

TEST_F(ButtonActionsTest, LoadCoverArtWithoutAFileOpensNoPanel) {
    controller().loadCoverArt();
    EXPECT_EQ(nullptr, panel());
}

TEST_F(ButtonActionsTest, LoadedCoverArtIsShownAndStored) {
    openFile();
    controller().loadCoverArtSelected(1, {image("c.png", 20, 10)});
    EXPECT_EQ(QSize(20, 10), well().image().size());
    EXPECT_EQ(QSize(20, 10), file().coverArt().toQImage().size());
    EXPECT_TRUE(enabled("btn_saveTag"));
}

TEST_F(ButtonActionsTest, CancelledOrAmbiguousCoverArtIsIgnored) {
    openFile();
    controller().loadCoverArtSelected(0, {image("c.png", 20, 10)});
    controller().loadCoverArtSelected(1, {path("c.png"), path("c.png")});
    controller().loadCoverArtSelected(1, {});
    EXPECT_TRUE(well().image().isNull());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(ButtonActionsTest, CoverArtFileThatIsNoImageIsIgnoredSilently) {
    openFile();
    controller().loadCoverArtSelected(1, {path("a.mp3")});
    EXPECT_TRUE(well().image().isNull());
    EXPECT_EQ(nullptr, document().window()->findChild<QMessageBox*>());
}

TEST_F(ButtonActionsTest, TrimCutsTheBorderAndStoresTheResult) {
    openFile();
    QImage framed = test::plain({100, 100}, Qt::black);
    QPainter(&framed).fillRect(10, 10, 80, 80, Qt::white);
    well().setImage(framed);
    controller().trimBorder();
    EXPECT_EQ(QSize(80, 80), well().image().size());
    EXPECT_EQ(QSize(80, 80), file().coverArt().toQImage().size());
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_EQ(2, document().changeCount()) << "the new cover art's and the trim's own";
    EXPECT_TRUE(enabled("btn_saveTag"));
    EXPECT_TRUE(enabled("btn_revertTag"));
}

TEST_F(ButtonActionsTest, TrimOfAnImageWithoutBorderChangesNothing) {
    openFile();
    well().setImage(test::plain({10, 10}, Qt::black));
    controller().trimBorder();
    EXPECT_EQ(QSize(10, 10), well().image().size());
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_EQ(1, logged("didn't get trimmed data\n"));
}

TEST_F(ButtonActionsTest, TrimWithoutAnImageOrAFileDoesNothing) {
    openFile();
    controller().trimBorder();
    EXPECT_FALSE(document().isDocumentEdited());
    select(-1);
    well().setImage(QImage(10, 10, QImage::Format_RGB32));
    const std::size_t before = log().size();
    controller().trimBorder();
    EXPECT_EQ("", log().substr(before));
}

TEST_F(ButtonActionsTest, TakingAFrameWithoutAMovieDoesNothing) {
    openFile();
    const std::size_t before = log().size();
    controller().grabFrame();
    EXPECT_EQ("", log().substr(before));
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST(FrameForCoverArt, LongerSideIsAtMost160AndThePixelsStay) {
    const auto nominal = [](int width, int height) {
        QImage frame(width, height, QImage::Format_RGB32);
        const QImage image = frameForCoverArt(frame);
        EXPECT_EQ(QSize(width, height), image.size());
        return image.deviceIndependentSize().toSize();
    };
    EXPECT_EQ(QSize(160, 120), nominal(640, 480));
    EXPECT_EQ(QSize(120, 160), nominal(480, 640));
    EXPECT_EQ(QSize(120, 90), nominal(120, 90));
    EXPECT_EQ(QSize(160, 160), nominal(400, 400));
    EXPECT_EQ(QSize(160, 160), nominal(160, 160));
    EXPECT_EQ(QSize(160, 90), nominal(1920, 1080));
}

} // namespace
} // namespace velmora
