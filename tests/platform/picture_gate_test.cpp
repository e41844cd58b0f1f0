// What counts as a picture, told by its first bytes, its claims and its data.

#include "byte_array.h"

#include "platform/detail/jpeg_stream.h"
#include "platform/detail/png_decode.h"
#include "platform/image.h"
#include "support/bytes.h"
#include "support/pictures.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstring>
#include <sys/stat.h>

namespace velmora {
namespace {

using test::bytesOf;
using test::encoded;
using test::plain;
using test::ScratchFolder;
using test::svgThatShows;

bool isPicture(const QByteArray& bytes) {
    return static_cast<bool>(ImageRef::fromBytes(bytes));
}

// Formats

TEST(PictureFormats, TheUsualOnesArePictures) {
    for (const char* format : {"jpeg", "png", "bmp", "webp", "tiff"}) {
        EXPECT_TRUE(isPicture(encoded(plain({6, 4}), format))) << format;
    }
    // One red pixel, written out.
    EXPECT_TRUE(isPicture(bytesOf("47 49 46 38 39 61 01 00 01 00 80 00 00 FF 00 00 00 00 00"
                                  "2C 00 00 00 00 01 00 01 00 00 02 02 44 01 00 3B")));
}

TEST(PictureFormats, WhatElseTheDesktopReadsIsNone) {
    for (const char* format : {"xpm", "ppm", "xbm", "ico", "icns"}) {
        EXPECT_FALSE(isPicture(encoded(plain({16, 16}), format))) << format;
    }
}

TEST(PictureFormats, AnSvgIsNoPictureAndReadsNoFile) {
    const ScratchFolder folder;
    ASSERT_TRUE(plain({8, 8}).save(QString::fromStdString(folder / "private.png")));
    EXPECT_FALSE(isPicture(svgThatShows(folder / "private.png")));
    // A pipe that nobody writes into: whoever opens it waits for ever.
    ASSERT_EQ(0, ::mkfifo((folder / "pipe").c_str(), 0600));
    EXPECT_FALSE(isPicture(svgThatShows(folder / "pipe")));
    test::write_file(folder / "folder.jpg", svgThatShows(folder / "pipe").toStdString());
    EXPECT_EQ(nullptr, image_from_file((folder / "folder.jpg").c_str()));
}

TEST(PictureFormats, AnotherRiffFileIsNoWebP) {
    EXPECT_FALSE(pictureFormat(bytesOf("52 49 46 46 24 00 00 00 41 56 49 20")));
    EXPECT_FALSE(pictureFormat(bytesOf("52 49 46 46 24 00 00 00 57 45 42")));
    EXPECT_EQ(PictureFormat::WebP, pictureFormat(bytesOf("52 49 46 46 24 00 00 00 57 45 42 50")));
}

// Palettes

/** A bitmap file of 4 x 1 pixels with the indices 0, 1, 2 and 255, whose palette is one colour: red. */
const char* const shortPalette = "42 4D 3E 00 00 00 00 00 00 00 3A 00 00 00"
                                 "28 00 00 00 04 00 00 00 01 00 00 00 01 00 08 00 00 00 00 00"
                                 "04 00 00 00 00 00 00 00 00 00 00 00 01 00 00 00 01 00 00 00"
                                 "00 00 FF 00 00 01 02 FF";

TEST(Palettes, APixelBehindThePaletteIsBlack) {
    const QImage image = ImageRef::fromBytes(bytesOf(shortPalette)).toQImage();
    ASSERT_EQ(QSize(4, 1), image.size());
    EXPECT_EQ(QColor(Qt::red), image.pixelColor(0, 0));
    for (int x = 1; x < 4; ++x) {
        EXPECT_EQ(QColor(Qt::black), image.pixelColor(x, 0)) << x;
    }
}

TEST(Palettes, NoOtherMemoryReachesTheStoredPicture) {
    // All pixels lie behind the palette: the stored picture is black, whatever lies behind the palette in
    // memory.
    QImage image(64, 64, QImage::Format_Indexed8);
    image.setColorTable({qRgb(255, 255, 255)});
    for (int y = 0; y < 64; ++y) {
        std::memset(image.scanLine(y), 1 + y % 255, 64);
    }
    const std::vector<std::uint8_t> jpeg = image_to_jpeg(ImageRef::fromQImage(image).get());
    const QImage back = QImage::fromData(QByteArrayView(jpeg.data(), static_cast<qsizetype>(jpeg.size())));
    ASSERT_EQ(QSize(64, 64), back.size());
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            ASSERT_EQ(QColor(Qt::black), back.pixelColor(x, y));
        }
    }
}

TEST(Palettes, APaletteOfNoneIsBlack) {
    for (const QImage::Format format :
         {QImage::Format_Indexed8, QImage::Format_Mono, QImage::Format_MonoLSB}) {
        QImage image(16, 16, format);
        image.fill(1);
        image.setColorTable({});
        const ImageRef kept = ImageRef::fromQImage(image);
        EXPECT_EQ(QColor(Qt::black), kept.toQImage().pixelColor(3, 3)) << format;
        EXPECT_FALSE(image_to_jpeg(kept.get()).empty()) << format;
        EXPECT_EQ(QSize(8, 8),
                  kept.toQImage().scaled(8, 8, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).size());
    }
}

TEST(Palettes, AWholePaletteStaysAsItIs) {
    QImage image(2, 1, QImage::Format_Mono);
    image.setColorTable({qRgb(1, 2, 3), qRgba(4, 5, 6, 7)});
    EXPECT_EQ(image.colorTable(), withWholePalette(image).colorTable());
}

// Claims

TEST(PictureSizes, UpTo40MegapixelsAnySizeIsReasonable) {
    EXPECT_TRUE(isReasonableSize(QSize(8000, 5000), 1));
    EXPECT_TRUE(isReasonableSize(QSize(40000, 1000), 1));
    EXPECT_FALSE(isReasonableSize(QSize(8001, 5000), 1));
    EXPECT_FALSE(isReasonableSize(QSize(0, 5000), 1000));
}

TEST(PictureSizes, AboveThemThereAreAtMost100PixelsForEachByte) {
    EXPECT_TRUE(isReasonableSize(QSize(10000, 10000), 1'000'000));
    EXPECT_FALSE(isReasonableSize(QSize(10000, 10000), 999'999));
    EXPECT_FALSE(isReasonableSize(QSize(10001, 10000), 1'000'000));
    EXPECT_TRUE(isReasonableSize(QSize(16384, 16384), 2'684'355));
    EXPECT_FALSE(isReasonableSize(QSize(16384, 16384), 2'684'354));
    EXPECT_FALSE(isReasonableSize(QSize(16385, 5000), 1'000'000'000));
    EXPECT_FALSE(isReasonableSize(QSize(INT_MAX, INT_MAX), 1'000'000'000));
}

/** A JPEG of WIDTH x HEIGHT grey pixels with COUNT scans, each of which has no data. */
QByteArray jpegOfScans(int width, int height, int count, bool progressive) {
    const auto word = [](int value) {
        return QByteArray(1, static_cast<char>(value >> 8)) + static_cast<char>(value);
    };
    QByteArray jpeg = bytesOf("FF D8 FF DB 00 43 00") + QByteArray(64, 1);
    jpeg += bytesOf(progressive ? "FF C2 00 0B 08" : "FF C0 00 0B 08") + word(height) + word(width) +
            bytesOf("01 01 11 00");
    jpeg += bytesOf("FF C4 00 14 00 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"); // DC: one code
    jpeg += bytesOf("FF C4 00 14 10 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"); // AC: the same
    for (int i = 0; i < count; ++i) {
        jpeg += bytesOf(progressive ? "FF DA 00 08 01 01 00 00 00 00" : "FF DA 00 08 01 01 00 00 3F 00");
    }
    return jpeg + bytesOf("FF D9");
}

TEST(JpegStreams, SizeAndScansAreReadFromTheMarkers) {
    const auto stream = jpegStream(jpegOfScans(300, 200, 5, true));
    ASSERT_TRUE(stream);
    EXPECT_EQ(QSize(300, 200), stream->size);
    EXPECT_EQ(5, stream->scans);
    // 38 x 25 blocks of 64 coefficients of 2 bytes.
    EXPECT_EQ(38 * 25 * 128, stream->coefficientBytes);
}

TEST(JpegStreams, OnePassKeepsNoCoefficients) {
    const auto stream = jpegStream(jpegOfScans(300, 200, 1, false));
    ASSERT_TRUE(stream);
    EXPECT_EQ(1, stream->scans);
    EXPECT_EQ(0, stream->coefficientBytes);
}

TEST(JpegStreams, StuffedBytesRestartsAndThumbnailsAreNoScans) {
    // An application segment that holds a scan marker, then data with FF 00, FF D3 and filling FFs.
    QByteArray jpeg = jpegOfScans(16, 16, 1, false);
    jpeg.insert(2, bytesOf("FF E1 00 06 FF DA FF DA"));
    jpeg.insert(jpeg.size() - 2, bytesOf("12 FF 00 DA FF D3 DA FF FF FF"));
    const auto stream = jpegStream(jpeg);
    ASSERT_TRUE(stream);
    EXPECT_EQ(1, stream->scans);
}

TEST(JpegStreams, CutAnywhereAreWalkedToTheirEnd) {
    const QByteArray jpeg = jpegOfScans(16, 16, 2, true);
    for (qsizetype length = 0; length <= jpeg.size(); ++length) {
        const QByteArray cut(jpeg.constData(), length);
        const auto stream = jpegStream(cut);
        EXPECT_TRUE(!stream || stream->size == QSize(16, 16)) << length;
    }
}

TEST(JpegStreams, MoreThan64ScansAboveOneMegapixelAreNone) {
    EXPECT_TRUE(isPicture(jpegOfScans(1001, 1000, 64, true)));
    EXPECT_FALSE(isPicture(jpegOfScans(1001, 1000, 65, true)));
    EXPECT_TRUE(isPicture(jpegOfScans(1000, 1000, 65, true)));
    EXPECT_FALSE(isPicture(jpegOfScans(1000, 1000, 1001, true)));
}

TEST(PictureSizes, AFewBytesThatClaimALargePictureAreNone) {
    // The same bytes are a picture at 40 megapixels and none above.
    EXPECT_TRUE(isPicture(jpegOfScans(8000, 5000, 1, true)));
    EXPECT_FALSE(isPicture(jpegOfScans(8001, 5000, 1, true)));
    EXPECT_FALSE(isPicture(jpegOfScans(16000, 16000, 1, false)));
}

TEST(PictureSizes, CoefficientsThatOutgrowThePixelsAreNone) {
    // 60 megapixels in three components of full size, in passes: 6 bytes a pixel, of which 4 and 64 MiB are
    // granted.
    const auto claim = [](int sampling) {
        QByteArray jpeg = bytesOf("FF D8 FF C2 00 11 08 1E 78 1E 78 03 01");
        jpeg += static_cast<char>(sampling);
        jpeg += bytesOf("00 02 11 00 03 11 00 FF DA 00 0C 03 01 00 02 00 03 00 00 00 00");
        return jpeg + QByteArray(700'000, '\0') + bytesOf("FF D9");
    };
    EXPECT_TRUE(readPictureHeader(claim(0x22)));
    EXPECT_FALSE(readPictureHeader(claim(0x11)));
}

// Data

TEST(PictureData, AGoodHeaderWithoutDataIsNoPicture) {
    const QByteArray whole = encoded(plain({64, 64}), "jpeg");
    const qsizetype scan = whole.indexOf("\xFF\xDA");
    ASSERT_GT(scan, 0);
    EXPECT_TRUE(isPicture(whole));
    EXPECT_FALSE(isPicture(whole.left(scan))) << "the header alone";
    EXPECT_FALSE(isPicture(whole.left(scan) + "\xFF\xD9")) << "no scan";
}

TEST(PictureData, ADamagedCodeTableMakesNoPictureSmallOrLarge) {
    for (const QSize size : {QSize(64, 64), QSize(2500, 2000)}) {
        QByteArray jpeg = jpegOfScans(size.width(), size.height(), 1, false);
        EXPECT_TRUE(isPicture(jpeg)) << size.width();
        const qsizetype table = jpeg.indexOf("\xFF\xC4");
        jpeg[table + 5] = 9; // nine codes of one bit
        EXPECT_FALSE(isPicture(jpeg)) << size.width();
    }
}

TEST(PictureData, AFileThatIsCutKeepsWhatItHas) {
    QImage halves = plain({64, 64});
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 64; ++x) {
            halves.setPixelColor(x, y, QColor((x * 7) % 256, (y * 5) % 256, 80));
        }
    }
    const QByteArray whole = encoded(halves, "jpeg");
    EXPECT_TRUE(isPicture(whole.left(whole.size() - 100)));
}

// Samples of 16 bits

QImage deep(const QSize& size, QImage::Format format) {
    QImage image(size, format);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            image.setPixelColor(x, y,
                                QColor::fromRgba64(static_cast<ushort>(x * 601), static_cast<ushort>(y * 907),
                                                   40000, static_cast<ushort>(65535 - x * 13)));
        }
    }
    return image;
}

TEST(DeepPngs, AreReadInEightBitsASample) {
    const std::atomic<bool> never = false;
    for (const QImage::Format format : {QImage::Format_RGBA64, QImage::Format_RGBX64}) {
        const QByteArray png = encoded(deep(QSize(70, 50), format), "png");
        ASSERT_TRUE(isDeepPng(png));
        const QImage pixels = decodedInEightBits(png, never);
        const bool hasAlpha = format == QImage::Format_RGBA64;
        EXPECT_EQ(hasAlpha ? QImage::Format_ARGB32 : QImage::Format_RGB32, pixels.format());
        const QImage expected = QImage::fromData(png).convertToFormat(pixels.format());
        ASSERT_EQ(expected.size(), pixels.size());
        for (int y = 0; y < expected.height(); ++y) {
            for (int x = 0; x < expected.width(); ++x) {
                const QColor a = expected.pixelColor(x, y);
                const QColor b = pixels.pixelColor(x, y);
                ASSERT_LE(std::max({qAbs(a.red() - b.red()), qAbs(a.green() - b.green()),
                                    qAbs(a.blue() - b.blue()), qAbs(a.alpha() - b.alpha())}),
                          1)
                    << x << ' ' << y;
            }
        }
    }
    EXPECT_FALSE(isDeepPng(encoded(plain({8, 8}), "png")));
    EXPECT_FALSE(isDeepPng(encoded(plain({8, 8}).convertToFormat(QImage::Format_Grayscale16), "png")));
}

TEST(DeepPngs, CutAnywhereGiveNone) {
    const std::atomic<bool> never = false;
    const QByteArray png = encoded(deep(QSize(20, 20), QImage::Format_RGBA64), "png");
    const qsizetype data = png.indexOf("IDAT");
    for (qsizetype length = 26; length < data + 8; ++length) {
        EXPECT_TRUE(decodedInEightBits(png.left(length), never).isNull()) << length;
    }
}

TEST(DeepPngs, ThatNobodyWantsAnyMoreGiveNone) {
    const std::atomic<bool> cancelled = true;
    EXPECT_TRUE(
        decodedInEightBits(encoded(deep(QSize(9, 9), QImage::Format_RGBA64), "png"), cancelled).isNull());
}

} // namespace
} // namespace velmora
