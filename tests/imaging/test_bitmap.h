#pragma once

#include "bitmap_trim/bitmap_trim.h"
#include "support/stream_capture.h"

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace velmora::test {

/** A bitmap as bitmap_trim takes and gives it. */
struct TestBitmap {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::vector<std::uint32_t> pixels;

    TestBitmap() = default;
    TestBitmap(std::uint32_t columns, std::uint32_t rows, std::uint32_t colour)
        : width(columns), height(rows), pixels(std::size_t{columns} * rows, colour) {}

    std::uint32_t& at(std::uint32_t x, std::uint32_t y) { return pixels[std::size_t{y} * width + x]; }

    /** Fills COLUMNS x ROWS pixels whose top left one is (X, Y). */
    void fill(std::uint32_t x, std::uint32_t y, std::uint32_t columns, std::uint32_t rows,
              std::uint32_t colour) {
        for (std::uint32_t row = y; row < y + rows; ++row) {
            for (std::uint32_t column = x; column < x + columns; ++column) {
                at(column, row) = colour;
            }
        }
    }

    bool operator==(const TestBitmap&) const = default;
};

/** What one call of bitmap_trim did. */
struct TrimOutcome {
    std::optional<TestBitmap> bitmap; ///< nothing for a null result
    std::uint32_t width = 0;          ///< the two sizes as the call left them
    std::uint32_t height = 0;
    std::string output; ///< standard output
};

inline TrimOutcome trim(const TestBitmap& source) {
    TrimOutcome outcome;
    outcome.width = source.width;
    outcome.height = source.height;
    StreamCapture output(stdout);
    const std::unique_ptr<std::uint32_t, void (*)(void*)> trimmed(
        bitmap_trim(source.pixels.data(), &outcome.width, &outcome.height), std::free);
    outcome.output = output.text();
    if (trimmed) {
        TestBitmap bitmap;
        bitmap.width = outcome.width;
        bitmap.height = outcome.height;
        bitmap.pixels.assign(trimmed.get(), trimmed.get() + std::size_t{outcome.width} * outcome.height);
        outcome.bitmap = bitmap;
    }
    return outcome;
}

} // namespace velmora::test
