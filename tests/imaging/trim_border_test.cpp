#include "imaging/trim_border.h"

#include "support/stream_capture.h"

#include <QColorSpace>
#include <QPainter>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace velmora::test {
namespace {

using testing::HasSubstr;

struct TrimRun {
    std::optional<QImage> image;
    std::string log;    ///< standard error
    std::string output; ///< standard output
};

TrimRun trim(const QImage& cover, const TrimBorderSteps& steps = TrimBorderSteps()) {
    TrimRun run;
    StreamCapture log(stderr);
    StreamCapture output(stdout);
    run.image = trim_border(cover, steps);
    run.output = output.text();
    run.log = log.text();
    return run;
}

/** 12 x 10 of BORDER with 8 x 4 of PICTURE inside, from (2, 3). */
QImage framed(const QColor& border, const QColor& picture, QImage::Format format = QImage::Format_ARGB32) {
    QImage image(12, 10, QImage::Format_ARGB32);
    image.fill(border);
    for (int y = 3; y < 7; ++y) {
        for (int x = 2; x < 10; ++x) {
            image.setPixelColor(x, y, picture);
        }
    }
    return image.convertToFormat(format);
}

QImage filled(int width, int height, const QColor& colour) {
    QImage image(width, height, QImage::Format_RGBA8888_Premultiplied);
    image.fill(colour);
    return image;
}

TEST(TrimBorder, CutsTheBorderOff) {
    const TrimRun run = trim(framed(Qt::black, Qt::red));
    ASSERT_TRUE(run.image);
    EXPECT_EQ(filled(8, 4, Qt::red), *run.image);
}

TEST(TrimBorder, LogsNothingOnSuccess) {
    EXPECT_EQ("", trim(framed(Qt::black, Qt::red)).log);
}

TEST(TrimBorder, DoesNothingWithoutAnImage) {
    const TrimRun run = trim(QImage());
    EXPECT_FALSE(run.image);
    EXPECT_EQ("", run.log + run.output);
}

TEST(TrimBorder, AnImageThatIsPictureThroughoutGivesThatImageAnew) {
    QImage cover(3, 3, QImage::Format_RGB32);
    cover.fill(Qt::black);
    cover.setPixelColor(1, 0, Qt::red);
    cover.setPixelColor(0, 1, Qt::red);
    cover.setPixelColor(2, 2, Qt::black);
    cover.setPixelColor(2, 1, Qt::red);
    cover.setPixelColor(1, 2, Qt::red);
    const TrimRun run = trim(cover);
    ASSERT_TRUE(run.image);
    EXPECT_EQ(cover, run.image->convertToFormat(QImage::Format_RGB32));
}

TEST(TrimBorder, AnImageWithoutABorderIsLoggedAndGivesNothing) {
    QImage cover = framed(Qt::black, Qt::red);
    cover.setPixelColor(11, 9, Qt::white);
    const TrimRun run = trim(cover);
    EXPECT_FALSE(run.image);
    EXPECT_EQ("didn't get trimmed data\n", run.log);
    EXPECT_THAT(run.output, HasSubstr("no border on image\n"));
}

TEST(TrimBorder, AnImageThatIsAllBorderIsLoggedAndGivesNothing) {
    const TrimRun run = trim(filled(20, 20, Qt::blue));
    EXPECT_FALSE(run.image);
    EXPECT_EQ("didn't get trimmed data\n", run.log);
}

TEST(TrimBorder, ABoxUnderASixteenthIsLoggedAndGivesNothing) {
    QImage cover = filled(100, 100, Qt::white);
    cover.setPixelColor(50, 50, Qt::black);
    const TrimRun run = trim(cover);
    EXPECT_FALSE(run.image);
    EXPECT_EQ("didn't get trimmed data\n", run.log);
}

// Pixels

TEST(TrimBorder, SamplesLieRedGreenBlueAlphaInMemory) {
    EXPECT_THAT(trim(filled(2, 2, QColor(0x11, 0x22, 0x33))).output,
                HasSubstr("corners: 0xff332211  0xff332211  0xff332211  0xff332211\n"));
}

TEST(TrimBorder, SamplesArePremultipliedWithAlpha) {
    QImage cover(2, 2, QImage::Format_ARGB32);
    cover.fill(QColor(255, 0, 0, 128));
    EXPECT_THAT(trim(cover).output, HasSubstr("corners match (0x80000080)\n"));
}

TEST(TrimBorder, ColoursOfFullyTransparentPixelsDoNotCount) {
    QImage cover = framed(QColor(0, 0, 0, 0), Qt::red);
    cover.setPixel(5, 0, 0x00ffffff);
    cover.setPixel(11, 9, 0x00ff00ff);
    const TrimRun run = trim(cover);
    ASSERT_TRUE(run.image);
    EXPECT_EQ(filled(8, 4, Qt::red), *run.image);
}

class TrimBorderFormat : public testing::TestWithParam<QImage::Format> {};

TEST_P(TrimBorderFormat, EveryFormatOfPixelsIsTrimmed) {
    const TrimRun run = trim(framed(Qt::black, Qt::white, GetParam()));
    ASSERT_TRUE(run.image);
    EXPECT_EQ(filled(8, 4, Qt::white), *run.image);
}

INSTANTIATE_TEST_SUITE_P(Formats, TrimBorderFormat,
                         testing::Values(QImage::Format_Mono, QImage::Format_MonoLSB, QImage::Format_Indexed8,
                                         QImage::Format_RGB32, QImage::Format_ARGB32_Premultiplied,
                                         QImage::Format_RGB16, QImage::Format_RGB888, QImage::Format_RGBA8888,
                                         QImage::Format_RGBA8888_Premultiplied, QImage::Format_Grayscale8,
                                         QImage::Format_Grayscale16, QImage::Format_RGBA64));

TEST(TrimBorder, PaddedRowsArePackedFirst) {
    const QImage packed = framed(Qt::black, Qt::red, QImage::Format_RGBA8888_Premultiplied);
    constexpr int stride = 12 * 4 + 20;
    std::vector<uchar> memory(stride * 10, 0x77);
    for (int y = 0; y < 10; ++y) {
        std::copy_n(packed.constScanLine(y), 12 * 4, memory.begin() + y * stride);
    }
    const TrimRun run = trim(QImage(memory.data(), 12, 10, stride, QImage::Format_RGBA8888_Premultiplied));
    ASSERT_TRUE(run.image);
    EXPECT_EQ(filled(8, 4, Qt::red), *run.image);
}

TEST(TrimBorder, TheNominalSizePlaysNoPart) {
    QImage cover = framed(Qt::black, Qt::red);
    cover.setDevicePixelRatio(4);
    const TrimRun run = trim(cover);
    ASSERT_TRUE(run.image);
    EXPECT_EQ(QSize(8, 4), run.image->size());
    EXPECT_EQ(1, run.image->devicePixelRatio());
    EXPECT_THAT(run.output, HasSubstr("width=12, height=10\n"));
}

TEST(TrimBorder, TheCoverPassedInIsNotModified) {
    const QImage cover = framed(Qt::black, Qt::red, QImage::Format_RGBA8888_Premultiplied);
    const QImage before = cover.copy();
    ASSERT_TRUE(trim(cover).image);
    EXPECT_EQ(before, cover);
}

TEST(TrimBorder, AnotherColourSpaceIsTurnedIntoTheScreensOwn) {
    // Linear 50 % grey is 188 of 255 on the screen.
    QImage cover = framed(Qt::black, QColor(128, 128, 128));
    cover.setColorSpace(QColorSpace::SRgbLinear);
    const TrimRun run = trim(cover);
    ASSERT_TRUE(run.image);
    EXPECT_NEAR(run.image->pixelColor(0, 0).red(), 188, 1);
}

TEST(TrimBorder, AnImageWiderThanAPainterReachesIsReadToItsEnd) {
    QImage cover(40000, 3, QImage::Format_Grayscale8);
    cover.fill(0);
    for (int x = 1; x < 39999; ++x) {
        cover.setPixelColor(x, 1, Qt::white);
    }
    const TrimRun run = trim(cover);
    ASSERT_TRUE(run.image);
    EXPECT_EQ(QSize(39998, 1), run.image->size());
    EXPECT_EQ(QColor(Qt::white), run.image->pixelColor(39997, 0));
}

// Steps that fail

class NoSource : public TrimBorderSteps {
    QImage imageSource(const QImage&) const override { return {}; }
};
class NoImage : public TrimBorderSteps {
    QImage image(const QImage&) const override { return {}; }
};
class NoContext : public TrimBorderSteps {
    QImage context(const QImage&) const override { return {}; }
};
class NoData : public TrimBorderSteps {
    const std::uint32_t* bitmapData(const QImage&) const override { return nullptr; }
};
class NoRepresentation : public TrimBorderSteps {
    QImage representation(int, int) const override { return {}; }
};

template <typename Steps>
TrimRun trimWith() {
    return trim(framed(Qt::black, Qt::red), Steps());
}

TEST(TrimBorder, AMissingImageSourceIsLogged) {
    const TrimRun run = trimWith<NoSource>();
    EXPECT_FALSE(run.image);
    EXPECT_EQ("failed to create image source\n", run.log);
    EXPECT_EQ("", run.output);
}

TEST(TrimBorder, AMissingImageIsLogged) {
    const TrimRun run = trimWith<NoImage>();
    EXPECT_FALSE(run.image);
    EXPECT_EQ("failed to create image\n", run.log);
    EXPECT_EQ("", run.output);
}

TEST(TrimBorder, AMissingContextIsLogged) {
    const TrimRun run = trimWith<NoContext>();
    EXPECT_FALSE(run.image);
    EXPECT_EQ("failed to create context\n", run.log);
    EXPECT_EQ("", run.output);
}

TEST(TrimBorder, MissingBitmapDataIsLogged) {
    const TrimRun run = trimWith<NoData>();
    EXPECT_FALSE(run.image);
    EXPECT_EQ("failed to get bitmap data\n", run.log);
    EXPECT_EQ("", run.output);
}

TEST(TrimBorder, AMissingRepresentationGivesNothingWithoutAMessage) {
    const TrimRun run = trimWith<NoRepresentation>();
    EXPECT_FALSE(run.image);
    EXPECT_EQ("", run.log);
    EXPECT_THAT(run.output, HasSubstr("new size: width=8, height=4\n"));
}

// The copy into the representation

/** Storage with rows of a given length, filled with 0xee. */
class PaddedRepresentation : public TrimBorderSteps {
public:
    explicit PaddedRepresentation(int bytesPerRow) : bytesPerRow_(bytesPerRow) {}
    QImage representation(int width, int height) const override {
        memory_.assign(static_cast<std::size_t>(bytesPerRow_) * static_cast<std::size_t>(height), 0xee);
        return {memory_.data(), width, height, bytesPerRow_, QImage::Format_RGBA8888_Premultiplied};
    }

    /** COUNT bytes of row Y from byte FROM on. */
    [[nodiscard]] std::vector<uchar> bytes(int y, int from, int count) const {
        const auto start = memory_.begin() + y * bytesPerRow_ + from;
        return {start, start + count};
    }

private:
    int bytesPerRow_;
    mutable std::vector<uchar> memory_;
};

TEST(TrimBorder, TheRestOfAPaddedRowIsZero) {
    const PaddedRepresentation steps(8 * 4 + 12);
    ASSERT_TRUE(trim(framed(Qt::black, Qt::red), steps).image);
    for (int y = 0; y < 4; ++y) {
        EXPECT_EQ(std::vector<uchar>(12, 0), steps.bytes(y, 8 * 4, 12)) << "row " << y;
    }
}

TEST(TrimBorder, PaddedRowsHoldTheirPixels) {
    const PaddedRepresentation steps(8 * 4 + 12);
    const TrimRun run = trim(framed(Qt::black, Qt::red), steps);
    ASSERT_TRUE(run.image);
    EXPECT_EQ(filled(8, 4, Qt::red), *run.image);
}

TEST(TrimBorder, ARowAsLongAsTheWholeImageTakesAllPixelsAndLeavesTheOtherRowsAlone) {
    constexpr int whole = 8 * 4 * 4;
    const PaddedRepresentation steps(whole);
    ASSERT_TRUE(trim(framed(Qt::black, Qt::red), steps).image);
    std::vector<uchar> red;
    for (int pixel = 0; pixel < 8 * 4; ++pixel) {
        red.insert(red.end(), {0xff, 0x00, 0x00, 0xff});
    }
    EXPECT_EQ(red, steps.bytes(0, 0, whole));
    for (int y = 1; y < 4; ++y) {
        EXPECT_EQ(std::vector<uchar>(whole, 0xee), steps.bytes(y, 0, whole)) << "row " << y;
    }
}

TEST(TrimBorder, AResultOfOneRowIsCopiedWhole) {
    QImage cover = filled(9, 3, Qt::black);
    for (int x = 2; x < 7; ++x) {
        cover.setPixelColor(x, 1, QColor(x * 30, 255, 255));
    }
    const TrimRun run = trim(cover);
    ASSERT_TRUE(run.image);
    EXPECT_EQ(*run.image, cover.copy(2, 1, 5, 1));
}

} // namespace
} // namespace velmora::test
