#include "test_bitmap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <sys/mman.h>

namespace velmora::test {
namespace {

using testing::HasSubstr;

constexpr std::uint32_t black = 0xff000000;
constexpr std::uint32_t red = 0xff0000ff;

// Arguments

TEST(BitmapTrim, NullPixelsGiveNullAndPrintNothing) {
    StreamCapture output(stdout);
    std::uint32_t width = 2;
    std::uint32_t height = 2;
    EXPECT_EQ(nullptr, bitmap_trim(nullptr, &width, &height));
    EXPECT_EQ("", output.text());
}

TEST(BitmapTrim, ANullWidthGivesNullAndPrintsNothing) {
    StreamCapture output(stdout);
    const std::uint32_t pixel = black;
    std::uint32_t height = 1;
    EXPECT_EQ(nullptr, bitmap_trim(&pixel, nullptr, &height));
    EXPECT_EQ("", output.text());
}

TEST(BitmapTrim, ANullHeightGivesNullAndPrintsNothing) {
    StreamCapture output(stdout);
    const std::uint32_t pixel = black;
    std::uint32_t width = 1;
    EXPECT_EQ(nullptr, bitmap_trim(&pixel, &width, nullptr));
    EXPECT_EQ("", output.text());
}

TEST(BitmapTrim, AWidthOfZeroGivesNullAndPrintsNothing) {
    StreamCapture output(stdout);
    const std::uint32_t pixel = black;
    std::uint32_t width = 0;
    std::uint32_t height = 7;
    EXPECT_EQ(nullptr, bitmap_trim(&pixel, &width, &height));
    EXPECT_EQ("", output.text());
    EXPECT_EQ(7U, height);
}

TEST(BitmapTrim, AHeightOfZeroGivesNullAndPrintsNothing) {
    StreamCapture output(stdout);
    const std::uint32_t pixel = black;
    std::uint32_t width = 7;
    std::uint32_t height = 0;
    EXPECT_EQ(nullptr, bitmap_trim(&pixel, &width, &height));
    EXPECT_EQ("", output.text());
    EXPECT_EQ(7U, width);
}

// Corners

/** 4 x 4, the four corners as given, red inside. */
TestBitmap withCorners(std::uint32_t tl, std::uint32_t tr, std::uint32_t bl, std::uint32_t br) {
    TestBitmap bitmap(4, 4, tl);
    bitmap.fill(1, 1, 2, 2, 0x80ff80ff);
    bitmap.at(3, 0) = tr;
    bitmap.at(0, 3) = bl;
    bitmap.at(3, 3) = br;
    return bitmap;
}

TEST(BitmapTrim, CornersWithin37OfTheTopLeftOneInEveryLaneAreABorder) {
    const TrimOutcome outcome = trim(withCorners(0x000000ff, 0x141e0aff, 0x250000da, 0x002525ff));
    EXPECT_EQ("width=4, height=4\n"
              "corners: 0x000000ff  0x141e0aff  0x250000da  0x002525ff\n"
              "corners match (0x000000ff)\n"
              "x0=1, x1=2, y0=1, y1=2\n"
              "new size: width=2, height=2\n",
              outcome.output);
}

TEST(BitmapTrim, CornersNeedNotMatchOneAnother) {
    // 74 apart, each 37 from the top left corner.
    const TrimOutcome outcome = trim(withCorners(0x00000040, 0x00000065, 0x0000001b, 0x00000040));
    EXPECT_TRUE(outcome.bitmap);
}

class CornerLane : public testing::TestWithParam<std::tuple<int, int>> {};

TEST_P(CornerLane, ALane38AwayMeansNoBorder) {
    const auto [corner, lane] = GetParam();
    std::array<std::uint32_t, 4> corners = {0x80808080, 0x80808080, 0x80808080, 0x80808080};
    corners.at(static_cast<std::size_t>(corner)) += 38U << (8 * lane);
    const TrimOutcome outcome = trim(withCorners(corners[0], corners[1], corners[2], corners[3]));
    EXPECT_FALSE(outcome.bitmap);
    EXPECT_THAT(outcome.output, testing::EndsWith("\nno border on image\n"));
}

TEST_P(CornerLane, ALane37AwayIsStillBorder) {
    const auto [corner, lane] = GetParam();
    std::array<std::uint32_t, 4> corners = {0x80808080, 0x80808080, 0x80808080, 0x80808080};
    corners.at(static_cast<std::size_t>(corner)) -= 37U << (8 * lane);
    EXPECT_TRUE(trim(withCorners(corners[0], corners[1], corners[2], corners[3])).bitmap);
}

INSTANTIATE_TEST_SUITE_P(EveryCornerAndLane, CornerLane,
                         testing::Combine(testing::Values(1, 2, 3), testing::Values(0, 1, 2, 3)));

TEST(BitmapTrim, AnImageWithoutABorderPrintsItsCornersAndNoBounds) {
    const TrimOutcome outcome = trim(withCorners(0x00000000, 0x00000000, 0x00000000, 0x26000000));
    EXPECT_EQ("width=4, height=4\n"
              "corners: 0x00000000  0x00000000  0x00000000  0x26000000\n"
              "no border on image\n",
              outcome.output);
}

TEST(BitmapTrim, AFailedTrimLeavesTheSizeUnchanged) {
    const TrimOutcome outcome = trim(withCorners(0x00000000, 0xffffffff, 0x00000000, 0x00000000));
    EXPECT_EQ(4U, outcome.width);
    EXPECT_EQ(4U, outcome.height);
}

// Lanes: a difference is neither wrapped nor summed

TEST(BitmapTrim, ADifferenceDoesNotWrapAround) {
    // 0x00 and 0xff are 255 apart, not 1.
    TestBitmap bitmap(4, 4, 0x00000000);
    bitmap.at(1, 1) = 0x000000ff;
    ASSERT_TRUE(trim(bitmap).bitmap);
    EXPECT_EQ(std::vector<std::uint32_t>{0x000000ff}, trim(bitmap).bitmap->pixels);
}

TEST(BitmapTrim, DifferencesOfSeveralLanesAreNotAddedUp) {
    TestBitmap bitmap(6, 6, 0x40404040);
    bitmap.fill(2, 2, 2, 2, 0xff404040);
    bitmap.at(0, 1) = 0x65656565; // 37 in all four lanes: border
    ASSERT_TRUE(trim(bitmap).bitmap);
    EXPECT_EQ(2U, trim(bitmap).width);
}

TEST(BitmapTrim, AlphaIsALaneLikeTheOthers) {
    TestBitmap bitmap(6, 6, 0x00000000);
    bitmap.fill(1, 2, 3, 3, 0x26000000);
    const TrimOutcome outcome = trim(bitmap);
    ASSERT_TRUE(outcome.bitmap);
    EXPECT_EQ(TestBitmap(3, 3, 0x26000000), *outcome.bitmap);
}

TEST(BitmapTrim, TheBorderColourIsTheTopLeftPixelAndNoAverage) {
    // Three corners are 0x30 and one is 0x10; 0x35 is 37 away from that one and 0x36 is 38.
    TestBitmap bitmap(5, 5, 0x00000010);
    bitmap.at(4, 0) = bitmap.at(0, 4) = bitmap.at(4, 4) = 0x00000030;
    bitmap.at(1, 2) = 0x00000035;
    bitmap.at(3, 3) = 0x00000036;
    const TrimOutcome outcome = trim(bitmap);
    ASSERT_TRUE(outcome.bitmap);
    EXPECT_EQ(std::vector<std::uint32_t>{0x00000036}, outcome.bitmap->pixels);
}

// Boxes

TEST(BitmapTrim, AUniformImageGivesNullAfterTheBoundsLine) {
    const TrimOutcome outcome = trim(TestBitmap(5, 3, red));
    EXPECT_FALSE(outcome.bitmap);
    EXPECT_EQ("width=5, height=3\n"
              "corners: 0xff0000ff  0xff0000ff  0xff0000ff  0xff0000ff\n"
              "corners match (0xff0000ff)\n"
              "x0=4, x1=0, y0=2, y1=0\n",
              outcome.output);
}

TEST(BitmapTrim, AUniformRowGivesNull) {
    EXPECT_FALSE(trim(TestBitmap(9, 1, red)).bitmap);
}

TEST(BitmapTrim, AUniformColumnGivesNull) {
    EXPECT_FALSE(trim(TestBitmap(1, 9, red)).bitmap);
}

TEST(BitmapTrim, AnImageOfOnePixelComesBackAsACopy) {
    const TrimOutcome outcome = trim(TestBitmap(1, 1, 0x12345678));
    ASSERT_TRUE(outcome.bitmap);
    EXPECT_EQ(TestBitmap(1, 1, 0x12345678), *outcome.bitmap);
    EXPECT_EQ("width=1, height=1\n"
              "corners: 0x12345678  0x12345678  0x12345678  0x12345678\n"
              "corners match (0x12345678)\n"
              "x0=0, x1=0, y0=0, y1=0\n"
              "new size: width=1, height=1\n",
              outcome.output);
}

TEST(BitmapTrim, ABorderOnEverySideIsCutOff) {
    TestBitmap bitmap(100, 100, black);
    bitmap.fill(10, 10, 80, 80, red);
    const TrimOutcome outcome = trim(bitmap);
    ASSERT_TRUE(outcome.bitmap);
    EXPECT_EQ(TestBitmap(80, 80, red), *outcome.bitmap);
}

TEST(BitmapTrim, RowsAreCopiedFromTheBoxInTheirOrder) {
    TestBitmap bitmap(4, 4, 0);
    bitmap.at(1, 1) = 0x11111180;
    bitmap.at(2, 1) = 0x22222281;
    bitmap.at(1, 2) = 0x33333382;
    bitmap.at(2, 2) = 0x44444483;
    const TrimOutcome outcome = trim(bitmap);
    ASSERT_TRUE(outcome.bitmap);
    EXPECT_EQ((std::vector<std::uint32_t>{0x11111180, 0x22222281, 0x33333382, 0x44444483}),
              outcome.bitmap->pixels);
}

TEST(BitmapTrim, ContentThatTouchesTheTopEdgeKeepsRowZero) {
    TestBitmap bitmap(10, 10, black);
    bitmap.fill(2, 0, 6, 7, red);
    const TrimOutcome outcome = trim(bitmap);
    ASSERT_TRUE(outcome.bitmap);
    EXPECT_EQ(TestBitmap(6, 7, red), *outcome.bitmap);
    EXPECT_THAT(outcome.output, HasSubstr("x0=2, x1=7, y0=0, y1=6\n"));
}

TEST(BitmapTrim, ContentThatTouchesTheSidesIsKept) {
    TestBitmap bitmap(40, 10, black);
    bitmap.fill(0, 3, 40, 4, red);
    const TrimOutcome outcome = trim(bitmap);
    ASSERT_TRUE(outcome.bitmap);
    EXPECT_EQ(TestBitmap(40, 4, red), *outcome.bitmap);
}

TEST(BitmapTrim, AFrameOnTheLeftOnlyIsCutOff) {
    // The right-hand corners share the border's colour; the column between them reaches the edge.
    TestBitmap bitmap(20, 20, black);
    bitmap.fill(5, 0, 14, 20, red);
    bitmap.fill(19, 1, 1, 18, red);
    const TrimOutcome outcome = trim(bitmap);
    EXPECT_EQ(15U, outcome.width);
    EXPECT_EQ(20U, outcome.height);
}

TEST(BitmapTrim, ASpeckInTheBorderWidensTheBox) {
    TestBitmap bitmap(50, 40, black);
    bitmap.fill(20, 15, 10, 10, red);
    bitmap.at(3, 20) = red;
    bitmap.at(47, 22) = red;
    bitmap.at(25, 2) = red;
    bitmap.at(26, 37) = red;
    EXPECT_THAT(trim(bitmap).output, HasSubstr("x0=3, x1=47, y0=2, y1=37\n"));
}

TEST(BitmapTrim, BorderColourInsideThePictureIsKept) {
    TestBitmap bitmap(12, 12, black);
    bitmap.fill(2, 2, 8, 8, red);
    bitmap.fill(4, 4, 4, 4, black);
    TestBitmap expected(8, 8, red);
    expected.fill(2, 2, 4, 4, black);
    const TrimOutcome outcome = trim(bitmap);
    ASSERT_TRUE(outcome.bitmap);
    EXPECT_EQ(expected, *outcome.bitmap);
}

TEST(BitmapTrim, ABoxOfTheWholeImageIsASuccessWithABufferOfItsOwn) {
    TestBitmap bitmap(3, 3, black);
    bitmap.at(1, 0) = bitmap.at(0, 1) = bitmap.at(2, 1) = bitmap.at(1, 2) = red;
    const TestBitmap before = bitmap;
    std::uint32_t width = 3;
    std::uint32_t height = 3;
    StreamCapture output(stdout);
    std::uint32_t* trimmed = bitmap_trim(bitmap.pixels.data(), &width, &height);
    ASSERT_NE(nullptr, trimmed);
    EXPECT_NE(trimmed, bitmap.pixels.data());
    EXPECT_EQ(std::vector<std::uint32_t>(trimmed, trimmed + 9), before.pixels);
    std::free(trimmed);
}

TEST(BitmapTrim, ThePixelsPassedInAreNotModified) {
    TestBitmap bitmap(30, 30, black);
    bitmap.fill(5, 5, 20, 20, red);
    const TestBitmap before = bitmap;
    ASSERT_TRUE(trim(bitmap).bitmap);
    EXPECT_EQ(before, bitmap);
}

// The sixteenth

TEST(BitmapTrim, ABoxOfASixteenthIsKept) {
    TestBitmap bitmap(100, 100, black);
    bitmap.fill(30, 30, 25, 25, red); // 625 of 10000
    const TrimOutcome outcome = trim(bitmap);
    ASSERT_TRUE(outcome.bitmap);
    EXPECT_EQ(TestBitmap(25, 25, red), *outcome.bitmap);
}

TEST(BitmapTrim, ABoxUnderASixteenthGivesNullAfterTheBoundsLine) {
    TestBitmap bitmap(100, 100, black);
    bitmap.fill(30, 30, 26, 24, red); // 624 of 10000
    const TrimOutcome outcome = trim(bitmap);
    EXPECT_FALSE(outcome.bitmap);
    EXPECT_THAT(outcome.output, testing::EndsWith("x0=30, x1=55, y0=30, y1=53\n"));
    EXPECT_EQ(100U, outcome.width);
    EXPECT_EQ(100U, outcome.height);
}

TEST(BitmapTrim, ASmallSquareInALargeImageIsNotKept) {
    TestBitmap bitmap(100, 100, black);
    bitmap.fill(40, 40, 20, 20, red);
    EXPECT_FALSE(trim(bitmap).bitmap);
}

TEST(BitmapTrim, TheSixteenthIsRoundedDown) {
    TestBitmap bitmap(31, 1, black);
    bitmap.at(15, 0) = red;
    EXPECT_TRUE(trim(bitmap).bitmap); // 31 / 16 = 1
}

TEST(BitmapTrim, OnePixelIsUnderASixteenthOf32) {
    TestBitmap bitmap(32, 1, black);
    bitmap.at(15, 0) = red;
    EXPECT_FALSE(trim(bitmap).bitmap);
}

TEST(BitmapTrim, AreasAreCountedIn32Bits) {
    // A picture of 65536 x 65536 inside a border one pixel wide: its 2^32 pixels count as 0, the image's
    // 65538 x 65538 as 262148. Only the edges of this memory are ever touched.
    constexpr std::uint32_t side = 65538;
    constexpr std::size_t size = std::size_t{side} * side * sizeof(std::uint32_t);
    void* memory =
        ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) {
        GTEST_SKIP() << "no address space";
    }
    auto* pixels = static_cast<std::uint32_t*>(memory);
    for (const std::size_t y : {std::size_t{1}, std::size_t{side - 2}}) {
        std::fill(pixels + y * side + 1, pixels + y * side + side - 1, red);
    }
    std::uint32_t width = side;
    std::uint32_t height = side;
    StreamCapture output(stdout);
    EXPECT_EQ(nullptr, bitmap_trim(pixels, &width, &height));
    EXPECT_THAT(output.text(), testing::EndsWith("x0=1, x1=65536, y0=1, y1=65536\n"));
    ::munmap(memory, size);
}

} // namespace
} // namespace velmora::test
