#include "cover_art_fixture.h"

#include "support/bytes.h"
#include "support/drag_session.h"
#include "support/pictures.h"
#include "support/scratch_folder.h"

#include <QUrl>

#include <sys/stat.h>

namespace velmora::test {
namespace {

using Ring = CoverArtView::FocusRingType;

QList<QUrl> fileUrls(const std::vector<std::string>& paths) {
    QList<QUrl> urls;
    for (const std::string& path : paths) {
        urls << QUrl::fromLocalFile(QString::fromStdString(path));
    }
    return urls;
}

/** Dragging and dropping. */
class CoverArtViewDrag : public CoverArtViewTest {
protected:
    /** The path of a new image file. */
    std::string imageFile(const char* name, const QColor& colour) {
        const std::string path = folder / name;
        EXPECT_TRUE(plain(colour).save(QString::fromStdString(path), "PNG"));
        return path;
    }

    /** Enters, moves and drops, as a drag does. */
    void dropAll(const QMimeData& data) {
        DragSession drag(*view, data);
        ASSERT_TRUE(drag.enter());
        ASSERT_TRUE(drag.move());
        ASSERT_TRUE(drag.drop());
    }

    void dropFiles(const std::vector<std::string>& paths) {
        QMimeData data;
        data.setUrls(fileUrls(paths));
        dropAll(data);
    }

    ScratchFolder folder;
};

// Entering and leaving

TEST_F(CoverArtViewDrag, IsIdleAtFirst) {
    EXPECT_EQ(Ring::None, view->focusRingType());
}

TEST_F(CoverArtViewDrag, ADragOfFilesEntersAndIsLogged) {
    QMimeData data;
    data.setUrls(fileUrls({"/nowhere/a.jpg"}));
    DragSession drag(*view, data);
    EXPECT_TRUE(drag.enter());
    EXPECT_EQ("in draggingEntered:\n", log->text());
    EXPECT_EQ(Ring::Default, view->focusRingType());
}

TEST_F(CoverArtViewDrag, AnswersWithACopyWhateverTheSourceProposes) {
    QMimeData data;
    data.setUrls(fileUrls({"/nowhere/a.jpg"}));
    DragSession drag(*view, data, Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, Qt::MoveAction);
    ASSERT_TRUE(drag.enter());
    EXPECT_EQ(Qt::CopyAction, drag.action());
    ASSERT_TRUE(drag.move());
    EXPECT_EQ(Qt::CopyAction, drag.action());
    ASSERT_TRUE(drag.drop());
    EXPECT_EQ(Qt::CopyAction, drag.action());
}

TEST_F(CoverArtViewDrag, FilesOfAnyKindMayEnter) {
    QMimeData data;
    data.setUrls(fileUrls({"/etc/passwd", "/tmp"}));
    EXPECT_TRUE(DragSession(*view, data).enter());
}

TEST_F(CoverArtViewDrag, TiffDataMayEnter) {
    QMimeData data;
    data.setData("image/tiff", "no image at all");
    EXPECT_TRUE(DragSession(*view, data).enter());
}

TEST_F(CoverArtViewDrag, PictDataMayEnter) {
    QMimeData data;
    data.setData("image/x-pict", "no image at all");
    EXPECT_TRUE(DragSession(*view, data).enter());
}

TEST_F(CoverArtViewDrag, AnImageOfTheDesktopMayEnter) {
    QMimeData data;
    data.setImageData(plain(Qt::red));
    EXPECT_TRUE(DragSession(*view, data).enter());
}

TEST_F(CoverArtViewDrag, TextMayNotEnterAndIsNotLogged) {
    QMimeData data;
    data.setText("some text");
    EXPECT_FALSE(DragSession(*view, data).enter());
    EXPECT_EQ("", log->text());
    EXPECT_EQ(Ring::None, view->focusRingType());
}

TEST_F(CoverArtViewDrag, AWebAddressIsNoFile) {
    QMimeData data;
    data.setUrls({QUrl("http://localhost/a.jpg")});
    EXPECT_FALSE(DragSession(*view, data).enter());
}

TEST_F(CoverArtViewDrag, ASourceThatOnlyMovesItsDataMayEnterAndIsNotRobbed) {
    QMimeData data;
    data.setUrls(fileUrls({imageFile("a.png", Qt::red)}));
    DragSession drag(*view, data, Qt::MoveAction);
    EXPECT_TRUE(drag.enter());
    EXPECT_EQ("in draggingEntered:\n", log->text());
    EXPECT_EQ(Ring::Default, view->focusRingType());
    EXPECT_TRUE(drag.move());
    EXPECT_NE(Qt::MoveAction, drag.action());
    EXPECT_TRUE(drag.drop());
    EXPECT_NE(Qt::MoveAction, drag.action()) << "the source would delete its file";
    EXPECT_EQ(QColor(Qt::red), view->image().pixelColor(0, 0));
    EXPECT_EQ(1U, receiver.calls.size());
    EXPECT_EQ(Ring::None, view->focusRingType());
}

TEST_F(CoverArtViewDrag, ASourceThatOnlyLinksItsDataMayEnter) {
    QMimeData data;
    data.setUrls(fileUrls({"/nowhere/a.jpg"}));
    EXPECT_TRUE(DragSession(*view, data, Qt::LinkAction, Qt::LinkAction).enter());
    EXPECT_EQ(Ring::Default, view->focusRingType());
}

TEST_F(CoverArtViewDrag, LeavingIsLoggedAndEndsTheHovering) {
    QMimeData data;
    data.setUrls(fileUrls({"/nowhere/a.jpg"}));
    DragSession drag(*view, data);
    ASSERT_TRUE(drag.enter());
    ASSERT_TRUE(drag.move());
    drag.leave();
    EXPECT_EQ("in draggingEntered:\nin draggingExited:\n", log->text());
    EXPECT_EQ(Ring::None, view->focusRingType());
    EXPECT_TRUE(receiver.calls.empty());
}

// Dropping

TEST_F(CoverArtViewDrag, ADropIsLoggedStageByStage) {
    dropFiles({imageFile("a.png", Qt::red)});
    EXPECT_EQ("in draggingEntered:\nin prepareForDragOperation:\nin performDragOperation:\n", log->text());
}

TEST_F(CoverArtViewDrag, ADroppedImageFileIsShown) {
    dropFiles({imageFile("a.png", Qt::red)});
    EXPECT_EQ(plain(Qt::red), view->image().convertToFormat(QImage::Format_RGB32));
}

TEST_F(CoverArtViewDrag, ADropTellsTheNewCoverOnceAfterImageAndStateAreSet) {
    dropFiles({imageFile("a.png", Qt::red)});
    ASSERT_EQ(1U, receiver.calls.size());
    EXPECT_EQ(QColor(Qt::red), receiver.calls[0].image.pixelColor(0, 0));
    EXPECT_EQ(receiver.calls[0].shown, receiver.calls[0].image);
    EXPECT_EQ(Ring::None, receiver.calls[0].ring);
}

TEST_F(CoverArtViewDrag, ADropEndsTheHovering) {
    dropFiles({imageFile("a.png", Qt::red)});
    EXPECT_EQ(Ring::None, view->focusRingType());
}

TEST_F(CoverArtViewDrag, ADropThatNobodyWaitsForSetsTheImage) {
    QObject::disconnect(view, &CoverArtView::coverArtImageChanged, nullptr, nullptr);
    dropFiles({imageFile("a.png", Qt::red)});
    EXPECT_FALSE(view->image().isNull());
}

TEST_F(CoverArtViewDrag, AFileThatIsNoImageLeavesTheImageAndStillTellsIt) {
    view->setImage(plain(Qt::blue));
    write_file(folder / "a.txt", "no image");
    dropFiles({folder / "a.txt"});
    EXPECT_EQ(plain(Qt::blue), view->image());
    EXPECT_EQ(Ring::None, view->focusRingType());
    ASSERT_EQ(1U, receiver.calls.size());
    EXPECT_EQ(plain(Qt::blue), receiver.calls[0].image);
}

TEST_F(CoverArtViewDrag, ADropWithoutAnImageOnAnEmptyViewTellsOfNone) {
    dropFiles({folder / "missing.png"});
    ASSERT_EQ(1U, receiver.calls.size());
    EXPECT_TRUE(receiver.calls[0].image.isNull());
}

TEST_F(CoverArtViewDrag, TheFirstFileThatLoadsAsAnImageIsTaken) {
    write_file(folder / "a.txt", "no image");
    dropFiles({folder / "missing.png", folder / "a.txt", imageFile("b.png", Qt::green),
               imageFile("c.png", Qt::red)});
    EXPECT_EQ(QColor(Qt::green), view->image().pixelColor(0, 0));
    EXPECT_EQ(1U, receiver.calls.size());
}

TEST_F(CoverArtViewDrag, AnImageIsToldByItsContentNotItsName) {
    dropFiles({imageFile("a.mp3", Qt::red)});
    EXPECT_FALSE(view->image().isNull());
}

TEST_F(CoverArtViewDrag, PathsMayHoldBytesThatAreNoText) {
    const std::string path = folder / "caf\xe9 #1?.png";
    write_file(path, encoded(plain(Qt::red), "PNG").toStdString());
    QMimeData data;
    data.setData("text/uri-list",
                 "file://" + QByteArray::fromStdString(path).toPercentEncoding("/") + "\r\n");
    dropAll(data);
    EXPECT_EQ(QColor(Qt::red), view->image().pixelColor(0, 0));
}

TEST_F(CoverArtViewDrag, FoldersPipesAndDevicesAreNoImagesAndDoNotBlock) {
    ASSERT_EQ(0, ::mkfifo((folder / "pipe").c_str(), 0600));
    dropFiles({folder.path(), folder / "pipe", "/dev/zero", "/dev/tty"});
    EXPECT_TRUE(view->image().isNull());
    EXPECT_EQ(1U, receiver.calls.size());
}

TEST_F(CoverArtViewDrag, AnEmptyFileAndACutImageLeaveTheViewEmpty) {
    write_file(folder / "empty.png", "");
    write_file(folder / "cut.png", encoded(plain(Qt::red), "PNG").left(30).toStdString());
    dropFiles({folder / "empty.png", folder / "cut.png"});
    EXPECT_TRUE(view->image().isNull());
    EXPECT_EQ(1U, receiver.calls.size());
}

TEST_F(CoverArtViewDrag, AnImageOfAbsurdSizeIsNotLoaded) {
    // A bitmap file header that claims 2147483647 x 2147483647 pixels of 24 bits.
    write_file(folder / "huge.bmp", hex("42 4d 36 00 00 00 00 00 00 00 36 00 00 00"
                                        "28 00 00 00 ff ff ff 7f ff ff ff 7f 01 00 18 00"
                                        "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
                                        "00 00 00 00 00 00 00 00"));
    dropFiles({folder / "huge.bmp"});
    EXPECT_TRUE(view->image().isNull());
    EXPECT_EQ(1U, receiver.calls.size());
}

TEST_F(CoverArtViewDrag, AnImageSetAsTheNewCoverIsShownAndTold) {
    view->changeImage(plain(Qt::red));
    ASSERT_EQ(1U, receiver.calls.size());
    EXPECT_EQ(plain(Qt::red), receiver.calls[0].image);
    EXPECT_EQ(plain(Qt::red), receiver.calls[0].shown);
}

TEST_F(CoverArtViewDrag, AnImageThatIsOnlyShownIsNoNewCover) {
    view->setImage(plain(Qt::red));
    EXPECT_TRUE(receiver.calls.empty());
}

TEST_F(CoverArtViewDrag, TiffDataIsShown) {
    QMimeData data;
    data.setData("image/tiff", encoded(plain(Qt::red), "TIFF"));
    dropAll(data);
    EXPECT_EQ(plain(Qt::red), view->image().convertToFormat(QImage::Format_RGB32));
    EXPECT_EQ(1U, receiver.calls.size());
}

TEST_F(CoverArtViewDrag, AnImageOfTheDesktopIsShown) {
    QMimeData data;
    data.setImageData(plain(Qt::red));
    dropAll(data);
    EXPECT_EQ(plain(Qt::red), view->image());
    EXPECT_EQ(1U, receiver.calls.size());
}

TEST_F(CoverArtViewDrag, DataThatIsNoImageLeavesTheImageAndStillTellsIt) {
    view->setImage(plain(Qt::blue));
    QMimeData data;
    data.setData("image/x-pict", "no image at all");
    data.setData("image/tiff", QByteArray("II*\0\xff\xff\xff\xff", 8));
    dropAll(data);
    EXPECT_EQ(plain(Qt::blue), view->image());
    EXPECT_EQ(1U, receiver.calls.size());
}

TEST_F(CoverArtViewDrag, DropsAreTakenAgainAndAgain) {
    dropFiles({imageFile("a.png", Qt::red)});
    dropFiles({imageFile("b.png", Qt::green)});
    EXPECT_EQ(QColor(Qt::green), view->image().pixelColor(0, 0));
    EXPECT_EQ(2U, receiver.calls.size());
}

} // namespace
} // namespace velmora::test
