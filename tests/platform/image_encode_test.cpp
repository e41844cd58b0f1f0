// The stored picture, byte for byte.

#include "platform/detail/jpeg_recode.h"
#include "platform/detail/jpeg_stream.h"
#include "platform/image_encode.h"

#include <QBuffer>
#include <QColorSpace>
#include <QImageReader>
#include <QImageWriter>
#include <QPainter>

#include <gtest/gtest.h>

namespace velmora {
namespace {

/** PIXELS as the desktop's own writer stores them. */
QByteArray writtenByDesktop(const QImage& pixels) {
    QByteArray jpeg;
    QBuffer buffer(&jpeg);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setQuality(20);
    writer.setProgressiveScanWrite(true);
    EXPECT_TRUE(writer.write(pixels));
    return jpeg;
}

QImage coloured(const QSize& size, QImage::Format format) {
    QImage image(size, format);
    image.fill(Qt::white);
    QPainter painter(&image);
    QLinearGradient gradient(QPointF(0, 0), QPointF(size.width(), size.height()));
    gradient.setColorAt(0, QColor(250, 30, 10, 90));
    gradient.setColorAt(0.5, Qt::green);
    gradient.setColorAt(1, QColor(10, 20, 240));
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(image.rect(), gradient);
    painter.setPen(QPen(Qt::black, 7));
    painter.drawLine(0, size.height(), size.width(), 0);
    return image;
}

QImage overWhite(const QImage& image) {
    QImage flat(image.size(), QImage::Format_RGB32);
    flat.fill(Qt::white);
    QPainter(&flat).drawImage(0, 0, image);
    return flat;
}

/** Larger than what the desktop's writer is given at once. */
constexpr QSize large_size(4001, 2507);

TEST(ImageEncoding, AnOrdinaryPictureIsWhatTheDesktopWrites) {
    const QImage image = coloured(QSize(321, 123), QImage::Format_RGB32);
    EXPECT_EQ(writtenByDesktop(image), encodedAsJpeg(image));
    const QImage grey = image.convertToFormat(QImage::Format_Grayscale8);
    EXPECT_EQ(writtenByDesktop(grey), encodedAsJpeg(grey));
    QImage palette = image.convertToFormat(QImage::Format_Indexed8);
    EXPECT_EQ(writtenByDesktop(palette), encodedAsJpeg(palette));
    QImage shades = grey.convertToFormat(QImage::Format_Indexed8);
    shades.setColorCount(200);
    for (int y = 0; y < shades.height(); ++y) {
        std::memset(shades.scanLine(y), y, static_cast<std::size_t>(shades.width()));
    }
    EXPECT_EQ(writtenByDesktop(shades), encodedAsJpeg(shades)) << "grey stays one component";
}

TEST(ImageEncoding, ALargePictureIsToo) {
    const QImage image = coloured(large_size, QImage::Format_RGB32);
    EXPECT_EQ(writtenByDesktop(image), encodedAsJpeg(image));
    const QImage grey = image.convertToFormat(QImage::Format_Grayscale8);
    EXPECT_EQ(writtenByDesktop(grey), encodedAsJpeg(grey));
}

TEST(ImageEncoding, AColourProfileIsKeptWhateverTheSize) {
    for (const QSize size : {QSize(32, 32), large_size}) {
        QImage image = coloured(size, QImage::Format_RGB32);
        image.setColorSpace(QColorSpace::DisplayP3);
        EXPECT_EQ(writtenByDesktop(image), encodedAsJpeg(image)) << size.width();
    }
}

TEST(ImageEncoding, TransparencyIsFlattenedAlikeInTheSameMemoryAndInNew) {
    for (const QImage::Format format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied,
                                        QImage::Format_RGBA8888, QImage::Format_RGBA64}) {
        for (const QSize size :
             {QSize(201, 203), format == QImage::Format_ARGB32 ? large_size : QSize(1, 1)}) {
            const QImage image = coloured(size, format);
            const QByteArray expected = writtenByDesktop(overWhite(image));
            EXPECT_EQ(expected, encodedAsJpeg(image)) << format << "shared";
            EXPECT_EQ(expected, encodedAsJpeg(image.copy())) << format << "nobody else's";
            EXPECT_EQ(coloured(size, format), image) << "what others hold is left alone";
        }
    }
}

TEST(ImageEncoding, ANullImageIsNothing) {
    EXPECT_TRUE(encodedAsJpeg(QImage()).isEmpty());
}

TEST(JpegRecoding, KeepsEveryPixel) {
    const QImage image = coloured(QSize(333, 222), QImage::Format_RGB32);
    const QByteArray progressive = writtenByDesktop(image);
    EXPECT_LT(1, jpegStream(progressive)->scans);
    const QByteArray onePass = recodedJpeg(progressive, JpegPasses::One);
    EXPECT_EQ(1, jpegStream(onePass)->scans);
    EXPECT_EQ(QImage::fromData(progressive), QImage::fromData(onePass));
    EXPECT_EQ(progressive, recodedJpeg(onePass, JpegPasses::Progressive));
}

TEST(JpegRecoding, OfWhatIsCutAnywhereEnds) {
    const QByteArray jpeg = writtenByDesktop(coloured(QSize(40, 30), QImage::Format_RGB32));
    for (qsizetype length = 0; length < jpeg.size(); ++length) {
        const QByteArray cut(jpeg.constData(), length);
        const QByteArray onePass = recodedJpeg(cut, JpegPasses::One);
        EXPECT_TRUE(onePass.isEmpty() || onePass.endsWith("\xFF\xD9")) << length;
        if (length < jpeg.indexOf("\xFF\xDA")) {
            EXPECT_FALSE(jpegBeginsWell(cut)) << length;
        }
    }
    EXPECT_TRUE(jpegBeginsWell(jpeg));
}

} // namespace
} // namespace velmora
