#include "bitmap_trim/bitmap_trim.h"

#include "harness.h"

#include <cstdlib>
#include <memory>
#include <vector>

namespace velmora::fuzz {
namespace {

struct Bitmap {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::vector<std::uint32_t> pixels;
    bool operator==(const Bitmap&) const = default;

    [[nodiscard]] std::uint32_t at(std::uint32_t x, std::uint32_t y) const { return pixels[y * width + x]; }
};

bool match(std::uint32_t a, std::uint32_t b) {
    for (int lane = 0; lane < 4; ++lane, a >>= 8, b >>= 8) {
        const int difference = static_cast<int>(a & 0xFF) - static_cast<int>(b & 0xFF);
        if (difference > 37 || difference < -37) {
            return false;
        }
    }
    return true;
}

/** The rule, pixel by pixel. An empty bitmap stands for null. */
Bitmap plainly_trimmed(const Bitmap& source) {
    const std::uint32_t w = source.width;
    const std::uint32_t h = source.height;
    const std::uint32_t border = source.at(0, 0);
    if (!match(source.at(w - 1, 0), border) || !match(source.at(0, h - 1), border) ||
        !match(source.at(w - 1, h - 1), border)) {
        return {};
    }
    std::uint32_t x0 = w - 1, y0 = h - 1, x1 = 0, y1 = 0;
    for (std::uint32_t y = 0; y < h; ++y) {
        for (std::uint32_t x = 0; x < w; ++x) {
            if (!match(source.at(x, y), border)) {
                x0 = x < x0 ? x : x0;
                y0 = y < y0 ? y : y0;
                x1 = x > x1 ? x : x1;
                y1 = y;
            }
        }
    }
    if (x0 > x1 || y1 < y0) {
        return {};
    }
    Bitmap trimmed{x1 - x0 + 1, y1 - y0 + 1, {}};
    if (trimmed.width * trimmed.height < w * h / 16) {
        return {};
    }
    for (std::uint32_t y = y0; y <= y1; ++y) {
        for (std::uint32_t x = x0; x <= x1; ++x) {
            trimmed.pixels.push_back(source.at(x, y));
        }
    }
    return trimmed;
}

/** Width, height and border colour; then runs: a length byte and a pixel each, one pixel of border where the
   runs end. */
Bitmap bitmap_of(Input& input) {
    Bitmap bitmap;
    bitmap.width = 1 + input.byte();
    bitmap.height = 1 + input.byte() % 64;
    const auto border = static_cast<std::uint32_t>(input.number(4));
    bitmap.pixels.assign(bitmap.width * bitmap.height, border);
    std::size_t at = 0;
    while (!input.at_end() && at < bitmap.pixels.size()) {
        const std::size_t run = input.byte();
        const std::size_t skipped = input.byte();
        const auto pixel = static_cast<std::uint32_t>(input.number(4));
        for (std::size_t i = 0; i < run && at < bitmap.pixels.size(); ++i) {
            bitmap.pixels[at++] = pixel;
        }
        at += skipped;
    }
    return bitmap;
}

} // namespace
} // namespace velmora::fuzz

/** Input: see bitmap_of. */
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace velmora;
    using namespace velmora::fuzz;
    Input input(data, size);
    const Bitmap source = bitmap_of(input);
    // A block of exactly the bitmap's size, so that a read beyond it is seen.
    const Bitmap handed_in = source;
    Bitmap trimmed{source.width, source.height, {}};
    const std::unique_ptr<std::uint32_t, void (*)(void*)> pixels(
        bitmap_trim(handed_in.pixels.data(), &trimmed.width, &trimmed.height), std::free);
    require(handed_in == source, "the pixels passed in are only read");
    const Bitmap expected = plainly_trimmed(source);
    if (!pixels) {
        require(expected == Bitmap{}, "null only where the plain loop gives nothing");
        require(trimmed.width == source.width && trimmed.height == source.height, "null keeps the size");
        return 0;
    }
    trimmed.pixels.assign(pixels.get(), pixels.get() + std::size_t{trimmed.width} * trimmed.height);
    require(trimmed == expected, "the box is that of the plain loop");
    return 0;
}
