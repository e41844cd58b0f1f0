// The commands of the Edit menu that change the cover and delete tags, when they are active, and Ctrl+S.

#include "window_fixture.h"

#include "imaging/CoverArtView.h"
#include "portable/portable_tags.h"
#include "support/bytes.h"
#include "support/pictures.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QTest>

#include <unistd.h>

namespace velmora {
namespace {

using test::hex;
using test::QuestionAnswerer;
using test::settle;
using test::taggedFile;
using test::text4;
using test::waitUntil;

class EditCommandsTest : public test::WindowTest {
protected:
    EditCommandsTest() {
        QApplication::setActiveWindow(document().window());
        QGuiApplication::clipboard()->clear();
        settle();
    }
    QAction& action(const char* name) {
        return *document().window()->findChild<QAction*>(QLatin1String(name));
    }
    bool isActive(const char* name) { return action(name).isEnabled(); }
    void trigger(const char* name) {
        action(name).trigger();
        settle();
    }
    void loadCover(const QImage& picture) {
        ASSERT_TRUE(picture.save(path("cover.png"), "PNG"));
        controller().loadCoverArtSelected(1, {path("cover.png")});
        settle();
    }
    void copy(const QImage& picture) {
        QGuiApplication::clipboard()->setImage(picture);
        settle();
    }
};

TEST_F(EditCommandsTest, ControlAndSPressTheFormsSaveButton) {
    openFile();
    type("entry_title", "Keyboard");
    entry("entry_title").setFocus();
    QTest::keyClick(&entry("entry_title"), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(taggedFile(text4("TIT2", "Keyboard")), test::read_file(folder_ / "a.mp3"));
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_FALSE(enabled("btn_saveTag"));
    EXPECT_EQ(1, logged("saving tag to file"));

    QTest::keyClick(&entry("entry_title"), Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(1, logged("saving tag to file")) << "with nothing to save";
}

TEST_F(EditCommandsTest, AreNotActiveWithoutAFile) {
    copy(test::plain({30, 20}));
    for (const char* name :
         {"action_pasteCover", "action_trimBorder", "action_deleteCover", "action_deleteTags"}) {
        EXPECT_FALSE(isActive(name)) << name;
    }
}

TEST_F(EditCommandsTest, TrimIsActiveWheneverThereIsACover) {
    openFile();
    EXPECT_FALSE(isActive("action_trimBorder"));
    QImage framed = test::plain({100, 100}, Qt::black);
    QPainter(&framed).fillRect(10, 10, 80, 80, Qt::red);
    loadCover(framed);
    EXPECT_FALSE(enabled("btn_trimBorder")) << "the button is for covers that came with the file";
    ASSERT_TRUE(isActive("action_trimBorder"));
    trigger("action_trimBorder");
    EXPECT_EQ(QSize(80, 80), file().coverArt().size());
    const QuestionAnswerer answer(*document().window(), "Don't Save");
    select(-1);
    ASSERT_TRUE(waitUntil([this] { return !document().mediaFile(); }));
    settle();
    EXPECT_FALSE(isActive("action_trimBorder"));
}

TEST_F(EditCommandsTest, PasteIsActiveWithAnImageOnTheClipboardAndStoresIt) {
    openFile();
    EXPECT_FALSE(isActive("action_pasteCover"));
    QGuiApplication::clipboard()->setText("no image");
    settle();
    EXPECT_FALSE(isActive("action_pasteCover"));
    copy(test::plain({30, 20}));
    ASSERT_TRUE(isActive("action_pasteCover"));
    trigger("action_pasteCover");
    EXPECT_EQ(QSize(30, 20), file().coverArt().size());
    EXPECT_TRUE(enabled("btn_saveTag"));
    EXPECT_EQ(QString(), notice());
}

TEST_F(EditCommandsTest, DeleteCoverTellsThatASaveInPlaceKeepsIt) {
    openFile();
    EXPECT_FALSE(isActive("action_deleteCover"));
    loadCover(test::plain({30, 20}));
    ASSERT_TRUE(isActive("action_deleteCover"));
    trigger("action_deleteCover");
    EXPECT_FALSE(file().coverArt());
    EXPECT_TRUE(widget<CoverArtView>("img_coverArt").image().isNull());
    EXPECT_FALSE(isActive("action_deleteCover"));
    EXPECT_EQ("The cover is deleted here. A save in place leaves it in the file.", notice());
    EXPECT_EQ("Save With Portable Tags", button("btn_noticeFirst").text());
}

/** A song as other programs make it: two silent frames of MPEG audio behind the title "Z". */
class DeleteTagsTest : public EditCommandsTest {
protected:
    DeleteTagsTest() {
        addFile("song.mp3",
                "ID3" + hex("03 00 00 00 00 00 0C") + "TIT2" + hex("00 00 00 02 00 00 00 5A") + frames);
        select(0);
    }
    std::string bytes() { return test::read_file(folder_ / "song.mp3"); }
    void answerWith(const QString& button) {
        const QuestionAnswerer answer(*document().window(), button);
        action("action_deleteTags").trigger();
        ASSERT_TRUE(waitUntil([&] { return answer.questions() > 0; }));
        settle();
        question_ = answer.messageText();
    }
    const std::string frame = hex("FF FB 90 C4") + std::string(413, '\0');
    const std::string frames = frame + frame;
    QString question_;
};

TEST_F(DeleteTagsTest, AsksFirst) {
    const std::string before = bytes();
    answerWith("Cancel");
    EXPECT_EQ("Do you want to delete all tags from \"song.mp3\"?", question_);
    EXPECT_EQ(before, bytes());
    EXPECT_EQ("Z", entry("entry_title").text());
}

TEST_F(DeleteTagsTest, DeletesThemAndShowsTheFileWithout) {
    type("entry_artist", "Ada");
    answerWith("Delete All Tags");
    EXPECT_EQ(frames, bytes());
    EXPECT_EQ("", entry("entry_title").text());
    EXPECT_EQ("", entry("entry_artist").text());
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_FALSE(enabled("btn_saveTag"));
    EXPECT_EQ("All tags of \"song.mp3\" are deleted.", notice());
    EXPECT_TRUE(widget<QLabel>("lbl_saveStatus").text().startsWith("Deleted all tags of \"song.mp3\" ("));
}

TEST_F(DeleteTagsTest, AsksAgainWhereOtherLinksWouldKeepTheOldContents) {
    ASSERT_EQ(0, ::link((folder_ / "song.mp3").c_str(), (folder_ / "linked.mp3").c_str()));
    type("entry_artist", "Ada");
    answerWith("Delete All Tags");
    EXPECT_EQ(
        "\"song.mp3\" keeps its tags. The file has further hard links, which would keep the old contents.",
        notice());
    EXPECT_EQ("Ada", file().artist());
    EXPECT_TRUE(document().isDocumentEdited());
    button("btn_noticeFirst").click();
    settle();
    EXPECT_EQ(frames, bytes());
}

TEST_F(DeleteTagsTest, IsActiveForKindsOfFilesThatHaveTags) {
    EXPECT_TRUE(isActive("action_deleteTags"));
    addFile("notes.txt", "text");
    select(1);
    ASSERT_EQ(path("notes.txt"), file().filename());
    EXPECT_FALSE(isActive("action_deleteTags"));
}

} // namespace
} // namespace velmora
