#include "platform/image.h"

#include "support/bytes.h"
#include "support/pictures.h"
#include "support/scratch_folder.h"

#include <QImageReader>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>

namespace velmora {
namespace {

using test::encoded;
using test::ScratchFolder;

QImage gradient(int width, int height, QImage::Format format = QImage::Format_RGB32) {
    QImage image(width, height, format);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.setPixelColor(x, y, QColor(x * 255 / width, y * 255 / height, 90));
        }
    }
    return image;
}

/** The SOF markers of a JPEG stream: FF C0 is baseline, FF C2 progressive. */
bool hasMarker(const std::vector<std::uint8_t>& jpeg, std::uint8_t marker) {
    for (std::size_t i = 0; i + 1 < jpeg.size(); ++i) {
        if (jpeg[i] == 0xFF && jpeg[i + 1] == marker) {
            return true;
        }
    }
    return false;
}

/** The first value of the first quantisation table (FF DB, length, table number, values). */
int firstQuantiser(const std::vector<std::uint8_t>& jpeg) {
    for (std::size_t i = 0; i + 5 < jpeg.size(); ++i) {
        if (jpeg[i] == 0xFF && jpeg[i + 1] == 0xDB) {
            return jpeg[i + 5];
        }
    }
    return -1;
}

TEST(Image, JpegBytesGiveTheirPixels) {
    const QByteArray bytes = encoded(gradient(40, 30), "jpeg");
    const ImageRef image = ImageRef::adopt(image_from_bytes(bytes.constData(), bytes.size()));
    ASSERT_TRUE(image);
    EXPECT_EQ(QSize(40, 30), image.toQImage().size());
}

TEST(Image, BytesOfAnyFormatAreToldByTheirContent) {
    for (const char* format : {"png", "bmp"}) {
        const QByteArray bytes = encoded(gradient(7, 5), format);
        EXPECT_TRUE(ImageRef::adopt(image_from_bytes(bytes.constData(), bytes.size()))) << format;
    }
}

TEST(Image, BytesThatAreNoImageGiveNone) {
    EXPECT_EQ(nullptr, image_from_bytes("not an image at all", 19));
    EXPECT_EQ(nullptr, image_from_bytes("", 0));
    EXPECT_EQ(nullptr, image_from_bytes("\xFF\xD8\xFF", 3));
}

TEST(Image, DamagedDataBehindAGoodHeaderGivesNoPixelsAndNoCrash) {
    const QByteArray whole = encoded(gradient(64, 64), "png");
    const QByteArray cut = whole.left(60);
    const ImageRef image = ImageRef::adopt(image_from_bytes(cut.constData(), cut.size()));
    if (image) {
        (void)image.toQImage();
        (void)image_to_jpeg(image.get());
    }
}

TEST(Image, EncodesAsProgressiveJpegOfQuality20) {
    const ImageRef image = ImageRef::fromQImage(gradient(64, 48));
    const std::vector<std::uint8_t> jpeg = image_to_jpeg(image.get());
    EXPECT_TRUE(hasMarker(jpeg, 0xC2));
    EXPECT_FALSE(hasMarker(jpeg, 0xC0));
    // The first luminance quantiser of the standard table is 16; quality 20 scales it by 250 %.
    EXPECT_EQ(40, firstQuantiser(jpeg));
    EXPECT_EQ(QSize(64, 48),
              QImage::fromData(QByteArrayView(jpeg.data(), static_cast<qsizetype>(jpeg.size()))).size());
}

TEST(Image, TransparencyIsFlattenedOntoWhite) {
    QImage clear(16, 16, QImage::Format_ARGB32_Premultiplied);
    clear.fill(Qt::transparent);
    const std::vector<std::uint8_t> jpeg = image_to_jpeg(ImageRef::fromQImage(clear).get());
    const QImage back = QImage::fromData(QByteArrayView(jpeg.data(), static_cast<qsizetype>(jpeg.size())));
    EXPECT_GT(back.pixelColor(8, 8).lightness(), 250);
}

TEST(Image, NominalSizeDoesNotReachTheStoredPixels) {
    QImage large = gradient(64, 48, QImage::Format_ARGB32);
    large.setDevicePixelRatio(4);
    const std::vector<std::uint8_t> jpeg = image_to_jpeg(ImageRef::fromQImage(large).get());
    EXPECT_EQ(QSize(64, 48),
              QImage::fromData(QByteArrayView(jpeg.data(), static_cast<qsizetype>(jpeg.size()))).size());
}

TEST(Image, NoImageEncodesToNothing) {
    EXPECT_TRUE(image_to_jpeg(nullptr).empty());
}

TEST(Image, FileIsToldByItsContentNotItsName) {
    const ScratchFolder folder;
    const QByteArray png = encoded(gradient(9, 9), "png");
    test::write_file(folder / "cover.txt", png.toStdString());
    EXPECT_EQ(QSize(9, 9), imageFromFile(QString::fromStdString(folder / "cover.txt")).size());
}

TEST(Image, FileThatIsNoImageGivesNone) {
    const ScratchFolder folder;
    test::write_file(folder / "film.jpg", "no picture");
    EXPECT_EQ(nullptr, image_from_file((folder / "film.jpg").c_str()));
    EXPECT_EQ(nullptr, image_from_file((folder / "missing.jpg").c_str()));
    EXPECT_EQ(nullptr, image_from_file(folder.path().c_str()));
}

TEST(Image, PipeInTheWayIsNotWaitedFor) {
    const ScratchFolder folder;
    ASSERT_EQ(0, ::mkfifo((folder / "folder.jpg").c_str(), 0600));
    EXPECT_EQ(nullptr, image_from_file((folder / "folder.jpg").c_str()));
}

TEST(Image, ReferencesAreSharedAndTheLastOneFrees) {
    ImageRef second;
    {
        const ImageRef first = ImageRef::fromQImage(gradient(4, 4));
        second = ImageRef::share(first.get());
        EXPECT_EQ(first.get(), second.get());
    }
    EXPECT_EQ(QSize(4, 4), second.toQImage().size());
}

TEST(Image, NullPixelsMakeNoImage) {
    EXPECT_FALSE(ImageRef::fromQImage(QImage()));
}

TEST(Image, LargeScanIsReadWhenLargeImagesAreAllowed) {
    const int limit = QImageReader::allocationLimit();
    QImage scan(6000, 6000, QImage::Format_RGB32);
    scan.fill(Qt::darkCyan);
    const QByteArray bytes = encoded(scan, "jpeg");
    const ImageRef image = ImageRef::adopt(image_from_bytes(bytes.constData(), bytes.size()));
    allowLargeImages();
    EXPECT_EQ(QSize(6000, 6000), image.toQImage().size());
    QImageReader::setAllocationLimit(limit);
}

} // namespace
} // namespace velmora
