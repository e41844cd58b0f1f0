// Thousands of random images against the plain loop: every pixel tested, one after the other.

#include "test_bitmap.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <random>

namespace velmora::test {
namespace {

bool plainMatch(std::uint32_t a, std::uint32_t b) {
    for (int lane = 0; lane < 4; ++lane) {
        const int left = static_cast<int>((a >> (8 * lane)) & 255U);
        const int right = static_cast<int>((b >> (8 * lane)) & 255U);
        if ((left > right ? left - right : right - left) > 37) {
            return false;
        }
    }
    return true;
}

template <typename... Arguments>
void print(std::string& output, const char* format, Arguments... arguments) {
    char line[160];
    std::snprintf(line, sizeof line, format, arguments...);
    output += line;
}

/** The plain loop. */
TrimOutcome plainTrim(TestBitmap source) {
    const std::uint32_t width = source.width;
    const std::uint32_t height = source.height;
    TrimOutcome outcome;
    outcome.width = width;
    outcome.height = height;
    const std::uint32_t tl = source.at(0, 0);
    const std::uint32_t tr = source.at(width - 1, 0);
    const std::uint32_t bl = source.at(0, height - 1);
    const std::uint32_t br = source.at(width - 1, height - 1);
    print(outcome.output, "width=%u, height=%u\n", width, height);
    print(outcome.output, "corners: 0x%08x  0x%08x  0x%08x  0x%08x\n", tl, tr, bl, br);
    if (!plainMatch(tr, tl) || !plainMatch(bl, tl) || !plainMatch(br, tl)) {
        outcome.output += "no border on image\n";
        return outcome;
    }
    print(outcome.output, "corners match (0x%08x)\n", tl);
    std::uint32_t x0 = width - 1;
    std::uint32_t y0 = height - 1;
    std::uint32_t x1 = 0;
    std::uint32_t y1 = 0;
    for (std::uint32_t y = 0; y < height; ++y) {
        for (std::uint32_t x = 0; x < width; ++x) {
            if (!plainMatch(source.at(x, y), tl)) {
                x0 = x < x0 ? x : x0;
                y0 = y < y0 ? y : y0;
                x1 = x > x1 ? x : x1;
                y1 = y;
            }
        }
    }
    print(outcome.output, "x0=%u, x1=%u, y0=%u, y1=%u\n", x0, x1, y0, y1);
    if (x0 > x1 || y1 < y0) {
        return outcome;
    }
    const std::uint32_t columns = x1 - x0 + 1;
    const std::uint32_t rows = y1 - y0 + 1;
    if (columns * rows < width * height / 16) {
        return outcome;
    }
    TestBitmap box(columns, rows, 0);
    for (std::uint32_t y = 0; y < rows; ++y) {
        for (std::uint32_t x = 0; x < columns; ++x) {
            box.at(x, y) = source.at(x0 + x, y0 + y);
        }
    }
    outcome.bitmap = box;
    outcome.width = columns;
    outcome.height = rows;
    print(outcome.output, "new size: width=%u, height=%u\n", columns, rows);
    return outcome;
}

class RandomImages {
public:
    explicit RandomImages(unsigned seed) : random_(seed) {}

    /** An image of up to LONGEST x LONGEST: noise that is all border, often with a picture and with single
       pixels at the very limit of what still is border, now and then with a corner of another colour. */
    TestBitmap next(std::uint32_t longest) {
        TestBitmap bitmap(number(1, longest), number(1, longest), 0);
        const std::uint32_t border = any();
        for (std::uint32_t& pixel : bitmap.pixels) {
            pixel = noisy(border);
        }
        if (once(2)) {
            addPicture(bitmap);
        }
        for (std::uint32_t specks = once(2) ? number(0, 6) : 0; specks > 0; --specks) {
            bitmap.at(number(0, bitmap.width - 1), number(0, bitmap.height - 1)) =
                nearLimit(bitmap.pixels[0]);
        }
        if (once(6)) {
            bitmap.pixels.back() = any();
        }
        return bitmap;
    }

private:
    std::uint32_t any() { return static_cast<std::uint32_t>(random_()); }
    std::uint32_t number(std::uint32_t from, std::uint32_t to) { return from + any() % (to - from + 1); }
    bool once(std::uint32_t times) { return any() % times == 0; }

    /** COLOUR with each lane moved up to 18 to either side: any two such colours match. */
    std::uint32_t noisy(std::uint32_t colour) {
        std::uint32_t result = 0;
        for (int shift = 0; shift < 32; shift += 8) {
            const int lane =
                static_cast<int>((colour >> shift) & 255U) + static_cast<int>(number(0, 36)) - 18;
            result |= static_cast<std::uint32_t>(std::clamp(lane, 0, 255)) << shift;
        }
        return result;
    }

    /** COLOUR with one lane moved by 36, 37, 38 or 39. */
    std::uint32_t nearLimit(std::uint32_t colour) {
        const std::uint32_t shift = 8 * number(0, 3);
        const std::uint32_t lane = (colour >> shift) & 255U;
        const std::uint32_t distance = number(36, 39);
        const std::uint32_t moved = lane >= distance ? lane - distance : lane + distance;
        return (colour & ~(255U << shift)) | moved << shift;
    }

    void addPicture(TestBitmap& bitmap) {
        const std::uint32_t x = number(0, bitmap.width - 1);
        const std::uint32_t y = number(0, bitmap.height - 1);
        const std::uint32_t columns = number(1, bitmap.width - x);
        const std::uint32_t rows = number(1, bitmap.height - y);
        for (std::uint32_t row = y; row < y + rows; ++row) {
            for (std::uint32_t column = x; column < x + columns; ++column) {
                bitmap.at(column, row) = any();
            }
        }
    }

    std::mt19937 random_;
};

struct Tally {
    int noBorder = 0;
    int nothing = 0;
    int trimmed = 0;
};

/** Compares COUNT images of up to LONGEST x LONGEST. */
Tally compare(unsigned seed, int count, std::uint32_t longest) {
    RandomImages images(seed);
    Tally tally;
    for (int i = 0; i < count; ++i) {
        const TestBitmap image = images.next(longest);
        const TrimOutcome expected = plainTrim(image);
        const TrimOutcome actual = trim(image);
        if (actual.output != expected.output || actual.bitmap != expected.bitmap ||
            actual.width != expected.width || actual.height != expected.height) {
            ADD_FAILURE() << "image " << i << " of seed " << seed << ":\n"
                          << actual.output << "expected:\n"
                          << expected.output;
            return tally;
        }
        ++(expected.bitmap                                                   ? tally.trimmed
           : expected.output.find("no border on image") != std::string::npos ? tally.noBorder
                                                                             : tally.nothing);
    }
    return tally;
}

TEST(BitmapTrimAgainstThePlainLoop, SmallImagesAgree) {
    const Tally tally = compare(1, 12000, 20);
    // The comparison is worth something only when every outcome occurs often.
    EXPECT_GT(tally.trimmed, 1000);
    EXPECT_GT(tally.noBorder, 1000);
    EXPECT_GT(tally.nothing, 1000);
}

TEST(BitmapTrimAgainstThePlainLoop, ImagesOfSeveralVectorsAWidthAgree) {
    const Tally tally = compare(2, 1500, 150);
    EXPECT_GT(tally.trimmed, 100);
    EXPECT_GT(tally.noBorder, 100);
    EXPECT_GT(tally.nothing, 100);
}

TEST(BitmapTrimAgainstThePlainLoop, EveryPlaceOfASinglePixelAgrees) {
    for (const std::uint32_t width : {1U, 3U, 15U, 16U, 17U, 31U, 32U, 33U, 49U}) {
        for (std::uint32_t place = 0; place < width * 3; ++place) {
            TestBitmap image(width, 3, 0x40404040);
            image.pixels[place] = 0x40404066; // 38 away in the lowest lane
            const TrimOutcome expected = plainTrim(image);
            const TrimOutcome actual = trim(image);
            ASSERT_EQ(expected.output, actual.output) << width << " wide, pixel " << place;
            ASSERT_EQ(expected.bitmap, actual.bitmap) << width << " wide, pixel " << place;
        }
    }
}

} // namespace
} // namespace velmora::test
