#include "imaging/image_data.h"

#include "support/pictures.h"
#include "support/scratch_folder.h"

#include <QMimeData>
#include <QUrl>

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

QImage plain(const QColor& colour) {
    return test::plain({5, 4}, colour);
}

QByteArray encoded(const QColor& colour, const char* format) {
    return test::encoded(plain(colour), format);
}

QColor colourOf(const QMimeData& data) {
    const QImage image = imageFromData(data);
    return image.isNull() ? QColor() : image.pixelColor(0, 0);
}

TEST(ImageData, AFileComesBeforeImageData) {
    const ScratchFolder folder;
    const QString path = QString::fromStdString(folder / "a.png");
    ASSERT_TRUE(plain(Qt::red).save(path));
    QMimeData data;
    data.setData("image/tiff", encoded(Qt::blue, "TIFF"));
    data.setUrls({QUrl::fromLocalFile(path)});
    EXPECT_EQ(QColor(Qt::red), colourOf(data));
}

TEST(ImageData, ImageDataStandsInForFilesThatAreNoImages) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/nowhere/a.png"), QUrl("http://localhost/a.png")});
    data.setData("image/tiff", encoded(Qt::blue, "TIFF"));
    EXPECT_EQ(QColor(Qt::blue), colourOf(data));
}

TEST(ImageData, TiffComesBeforeOtherImageData) {
    QMimeData data;
    data.setData("image/png", encoded(Qt::red, "PNG"));
    data.setData("image/tiff", encoded(Qt::blue, "TIFF"));
    EXPECT_EQ(QColor(Qt::blue), colourOf(data));
}

TEST(ImageData, OtherImageDataIsTakenWhenTheDesktopReadsIt) {
    QMimeData data;
    data.setData("image/x-unheard-of", "nothing");
    data.setData("image/png", encoded(Qt::red, "PNG"));
    EXPECT_EQ(QColor(Qt::red), colourOf(data));
}

TEST(ImageData, NothingIsOfferedByTextAlone) {
    QMimeData data;
    data.setText("/some/path.png");
    EXPECT_FALSE(offersImageData(data));
    EXPECT_TRUE(imageFromData(data).isNull());
}

TEST(ImageData, NothingIsOfferedByAnEmptyFileList) {
    QMimeData data;
    data.setUrls({});
    EXPECT_FALSE(offersImageData(data));
}

TEST(ImageData, OneLocalFileAmongAddressesIsOffered) {
    QMimeData data;
    data.setUrls({QUrl("http://localhost/"), QUrl::fromLocalFile("/nowhere")});
    EXPECT_TRUE(offersImageData(data));
}

} // namespace
} // namespace velmora::test
