// The cover well of the window, over files whose covers are not what they say.

#include "window_fixture.h"

#include "imaging/CoverArtView.h"
#include "model/MediaFile.h"
#include "support/bytes.h"
#include "support/drag_session.h"
#include "support/pictures.h"

#include <QImage>
#include <QUrl>

#include <sys/stat.h>

namespace velmora {
namespace {

using test::waitUntil;

class CoverArtTest : public test::WindowTest {
protected:
    static std::string encoded(const QImage& image, const char* format = "jpeg") {
        return test::encoded(image, format).toStdString();
    }
    /** A JPEG whose header is whole and whose data never comes. */
    static std::string headerOnly(QSize size) {
        const std::string jpeg = encoded(test::plain(size));
        return jpeg.substr(0, jpeg.find("\xFF\xDA"));
    }

    CoverArtView& well() { return widget<CoverArtView>("img_coverArt"); }
};

TEST_F(CoverArtTest, ACoverThatIsAnSvgShowsNoFileOfThisMachine) {
    test::write_file(folder_ / "private.png", encoded(test::plain(QSize(8, 8)), "png"));
    openFile("a.mp3", test::cover4(test::svgThatShows(folder_ / "private.png").toStdString()));
    EXPECT_TRUE(well().image().isNull());
    EXPECT_FALSE(file().coverArt());
    EXPECT_FALSE(enabled("btn_trimBorder"));
}

TEST_F(CoverArtTest, ACoverThatIsAnSvgWaitsForNoPipe) {
    ASSERT_EQ(0, ::mkfifo((folder_ / "pipe").c_str(), 0600));
    test::write_file(folder_ / "folder.jpg", test::svgThatShows(folder_ / "pipe").toStdString());
    openFile("a.mp3", test::cover4(test::svgThatShows(folder_ / "pipe").toStdString()));
    EXPECT_TRUE(well().image().isNull());
}

TEST_F(CoverArtTest, ACoverThatCannotBeDecodedLeavesItsPlaceToTheFoldersImage) {
    for (const QSize size : {QSize(300, 200), QSize(3000, 2000)}) {
        test::write_file(folder_ / "folder.jpg", encoded(test::plain(QSize(20, 10))));
        openFile("a.mp3", test::cover4(headerOnly(size)));
        EXPECT_EQ(QSize(20, 10), well().image().size());
        EXPECT_TRUE(enabled("btn_trimBorder"));
        EXPECT_TRUE(document().isDocumentEdited());
        controller().removeTag();
    }
}

TEST_F(CoverArtTest, ACoverThatCannotBeDecodedLeavesItsPlaceToTheAlbumsImage) {
    test::write_file(folder_ / "AlbumArt_{13121110-1514-1716-1819-1a1b1c1d1e1f}_Large.jpg",
                     encoded(test::plain(QSize(30, 40))));
    const std::string album = std::string("WM/WMCollectionGroupID") + '\0' +
                              test::hex("10 11 12 13 14 15 16 17 18 19 1A 1B 1C 1D 1E 1F");
    openFile("a.mp3", test::cover4(headerOnly(QSize(300, 200))) + test::frame4("PRIV", album));
    EXPECT_EQ(QSize(30, 40), well().image().size());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(CoverArtTest, ALargeCoverIsThereAtOnceAndShownLater) {
    openFile("a.mp3", test::cover4(encoded(test::plain(QSize(3000, 2000)))));
    EXPECT_TRUE(file().coverArt());
    EXPECT_TRUE(enabled("btn_trimBorder"));
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_TRUE(waitUntil([this] {
        const QImage shown = well().grab().toImage();
        return shown.pixelColor(shown.rect().center()).green() > 100;
    }));
}

TEST_F(CoverArtTest, ACoverThatIsTooLargeToShowCannotBeTrimmedAndIsStored) {
    well().findChild<BackgroundDecode*>()->setPatience(std::chrono::milliseconds(0));
    const QString path = openFile("a.mp3", test::cover4(encoded(test::plain(QSize(3000, 2000)), "png")));
    EXPECT_TRUE(waitUntil([this] { return !enabled("btn_trimBorder"); }));
    type("entry_title", "Noon");
    button("btn_saveTag").click();
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_EQ(QSize(3000, 2000), MediaFile::initWithFile(path)->coverArt().toQImage().size());
}

TEST_F(CoverArtTest, ALargeFolderImageIsAChangeAtOnceAndStored) {
    test::write_file(folder_ / "folder.jpg", encoded(test::plain(QSize(3000, 2000))));
    const QString path = openFile("a.mp3");
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_TRUE(enabled("btn_saveTag"));
    EXPECT_TRUE(enabled("btn_trimBorder"));
    button("btn_saveTag").click();
    EXPECT_EQ(QSize(3000, 2000), MediaFile::initWithFile(path)->coverArt().toQImage().size());
}

TEST_F(CoverArtTest, AWindowMayCloseWhileALargeCoverIsDecoded) {
    openFile("a.mp3", test::cover4(encoded(test::plain(QSize(6000, 5000)))));
    document_.reset();
}

// Dropping files

/** Dragging and dropping files beside the cover well. */
class FileDropTest : public CoverArtTest {
protected:
    FileDropTest() {
        openFile();
        test::write_file(folder_ / "c.png", encoded(test::plain(QSize(12, 10)), "png"));
        test::write_file(folder_ / "notes.txt", "1984");
    }

    /** A drag of the file NAME as a file manager makes it: its address is there as text, too. */
    void drag(const std::string& name) {
        const QUrl url = QUrl::fromLocalFile(path(name));
        data_.setUrls({url});
        data_.setText(url.toString());
    }

    static constexpr const char* fields[] = {"entry_title", "entry_artist",    "entry_album",
                                             "entry_year",  "entry_desc",      "combo_genre",
                                             "lbl_title",   "picker_dateTime", "box_form"};
    QMimeData data_;
};

TEST_F(FileDropTest, AnImageFileDroppedAnywhereOnTheFormGoesToTheWell) {
    drag("c.png");
    for (const char* const field : fields) {
        well().setImage({});
        test::DragSession session(widget(field), data_);
        ASSERT_TRUE(session.enter()) << field;
        EXPECT_EQ(CoverArtView::FocusRingType::Default, well().focusRingType()) << field;
        EXPECT_TRUE(session.move()) << field;
        EXPECT_TRUE(session.drop()) << field;
        EXPECT_EQ(Qt::CopyAction, session.action()) << field;
        EXPECT_EQ(QSize(12, 10), well().image().size()) << field;
        EXPECT_EQ(CoverArtView::FocusRingType::None, well().focusRingType()) << field;
    }
    EXPECT_TRUE(file().coverArt());
    EXPECT_EQ("Z", entry("entry_title").text());
    EXPECT_EQ("", entry("entry_year").text());
    EXPECT_EQ("", widget<QPlainTextEdit>("entry_desc").toPlainText());
}

TEST_F(FileDropTest, AnotherFileIsNotTakenForItsAddress) {
    drag("notes.txt");
    for (const char* const field : fields) {
        test::DragSession session(widget(field), data_);
        EXPECT_FALSE(session.enter()) << field;
        EXPECT_FALSE(session.move()) << field;
        EXPECT_FALSE(session.drop()) << field;
        EXPECT_EQ(CoverArtView::FocusRingType::None, well().focusRingType()) << field;
    }
    EXPECT_EQ("Z", entry("entry_title").text());
    EXPECT_EQ("", entry("entry_year").text());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(FileDropTest, ADragThatLeavesTheFormLeavesNoFrameBehind) {
    drag("c.png");
    test::DragSession session(entry("entry_title"), data_);
    ASSERT_TRUE(session.enter());
    session.leave();
    EXPECT_EQ(CoverArtView::FocusRingType::None, well().focusRingType());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(FileDropTest, TextIsStillDroppedAsText) {
    data_.setText("Noon");
    test::DragSession session(entry("entry_artist"), data_);
    EXPECT_TRUE(session.enter());
    EXPECT_TRUE(session.move());
    EXPECT_TRUE(session.drop());
    EXPECT_EQ("Noon", entry("entry_artist").text());
}

} // namespace
} // namespace velmora
