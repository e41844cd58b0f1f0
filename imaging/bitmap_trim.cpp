#include "bitmap_trim.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <sys/mman.h>
#include <unistd.h>

namespace velmora {
namespace {

constexpr int tolerance = 37;

/** The columns and rows that hold something else than border. Without any, the first lies behind the last. */
struct Bounds {
    std::uint32_t x0;
    std::uint32_t y0;
    std::uint32_t x1;
    std::uint32_t y1;
};

bool lanes_match(std::uint32_t a, std::uint32_t b) {
    for (int shift = 24; shift >= 0; shift -= 8) {
        const int difference = static_cast<int>(a >> shift & 0xff) - static_cast<int>(b >> shift & 0xff);
        if (std::abs(difference) > tolerance) {
            return false;
        }
    }
    return true;
}

/** Sixteen lanes that are computed at once: vector instructions where the processor has them, plain ones
   where not. */
using Lanes = std::uint8_t __attribute__((vector_size(16)));

/** Has the processor fetch the pixels that are looked at soon: the comparison is waiting for memory, not
   computing. An address behind the bitmap does no harm, since nothing is read there. */
void fetch_ahead(const std::uint32_t* pixels) {
    constexpr std::uintptr_t distance = 2048;
    constexpr std::uintptr_t cacheLine = 64;
    const std::uintptr_t ahead = reinterpret_cast<std::uintptr_t>(pixels) + distance;
    __builtin_prefetch(reinterpret_cast<const void*>(ahead));
    __builtin_prefetch(reinterpret_cast<const void*>(ahead + cacheLine));
}

/** Tells border from picture, one pixel or a block of pixels (two cache lines) at a time. */
class BorderColour {
public:
    static constexpr std::uint32_t blockPixels = 32;

    explicit BorderColour(std::uint32_t colour) : colour_(colour) {
        std::array<std::uint8_t, sizeof colour> bytes;
        std::memcpy(bytes.data(), &colour, sizeof colour);
        for (std::size_t i = 0; i < sizeof(Lanes); ++i) {
            const int lane = bytes[i % bytes.size()];
            const int low = std::max(lane - tolerance, 0);
            const int high = std::min(lane + tolerance, 255);
            low_[i] = static_cast<std::uint8_t>(low);
            span_[i] = static_cast<std::uint8_t>(high - low);
        }
    }

    [[nodiscard]] bool matches(std::uint32_t pixel) const { return lanes_match(pixel, colour_); }

    /** Whether all of the blockPixels pixels at PIXELS match. */
    [[nodiscard]] bool matchesBlock(const std::uint32_t* pixels) const {
        fetch_ahead(pixels);
        Lanes inside = ~Lanes{};
        for (std::uint32_t i = 0; i < blockPixels; i += sizeof(Lanes) / sizeof *pixels) {
            Lanes lanes;
            std::memcpy(&lanes, pixels + i, sizeof lanes);
            // A lane below the lowest value that matches wraps around and so lies beyond the span, too.
            inside &= static_cast<Lanes>(lanes - low_ <= span_);
        }
        std::array<std::uint64_t, 2> halves;
        std::memcpy(halves.data(), &inside, sizeof inside);
        return (halves[0] & halves[1]) == ~std::uint64_t{0};
    }

private:
    std::uint32_t colour_;
    Lanes low_;  ///< the lowest value of each lane that matches
    Lanes span_; ///< how far above it the highest one lies
};

/** Pixels of border at the start of a run of COUNT pixels. */
std::uint32_t border_at_start(const BorderColour& border, const std::uint32_t* pixels, std::uint32_t count) {
    std::uint32_t i = 0;
    while (count - i >= BorderColour::blockPixels && border.matchesBlock(pixels + i)) {
        i += BorderColour::blockPixels;
    }
    while (i < count && border.matches(pixels[i])) {
        ++i;
    }
    return i;
}

/** Pixels of border at the end of a run of COUNT pixels. */
std::uint32_t border_at_end(const BorderColour& border, const std::uint32_t* pixels, std::uint32_t count) {
    std::uint32_t left = count;
    while (left >= BorderColour::blockPixels &&
           border.matchesBlock(pixels + (left - BorderColour::blockPixels))) {
        left -= BorderColour::blockPixels;
    }
    while (left > 0 && border.matches(pixels[left - 1])) {
        --left;
    }
    return count - left;
}

/** The bounds of all pixels that are not border. They are found from the edges inward, so that the inside of
   the box is never read: no pixel there can widen it. */
Bounds find_bounds(const std::uint32_t* pixels, std::uint32_t width, std::uint32_t height) {
    const BorderColour border(pixels[0]);
    const auto row = [=](std::uint32_t y) { return pixels + std::size_t{y} * width; };
    const auto isBorder = [&](std::uint32_t y) { return border_at_start(border, row(y), width) == width; };

    Bounds bounds = {width - 1, height - 1, 0, 0};
    std::uint32_t top = 0;
    while (top < height && isBorder(top)) {
        ++top;
    }
    if (top == height) {
        return bounds;
    }
    bounds.y0 = top;
    bounds.y1 = height - 1;
    while (bounds.y1 > top && isBorder(bounds.y1)) {
        --bounds.y1;
    }
    for (std::uint32_t y = bounds.y0; y <= bounds.y1; ++y) {
        // A row's pixels left of x0 and right of x1 are all that can still widen the box.
        bounds.x0 = border_at_start(border, row(y), bounds.x0);
        const std::uint32_t right = width - 1 - bounds.x1;
        const std::uint32_t clear = border_at_end(border, row(y) + bounds.x1 + 1, right);
        bounds.x1 += right - clear;
    }
    return bounds;
}

bool corners_match(const std::uint32_t* pixels, std::uint32_t width, std::uint32_t height) {
    const std::uint32_t topLeft = pixels[0];
    const std::uint32_t topRight = pixels[width - 1];
    const std::uint32_t bottomLeft = pixels[std::size_t{height - 1} * width];
    const std::uint32_t bottomRight = pixels[std::size_t{height} * width - 1];
    std::printf("corners: 0x%08x  0x%08x  0x%08x  0x%08x\n", topLeft, topRight, bottomLeft, bottomRight);
    if (!lanes_match(topRight, topLeft) || !lanes_match(bottomLeft, topLeft) ||
        !lanes_match(bottomRight, topLeft)) {
        std::puts("no border on image");
        return false;
    }
    std::printf("corners match (0x%08x)\n", topLeft);
    return true;
}

/** Asks for large pages behind a large buffer that is about to be filled: one page fault in 2 MiB instead of
   one in 4 KiB is most of what filling it costs. Where the system has none, nothing changes. */
void prefer_large_pages(void* buffer, std::size_t size) {
    constexpr std::size_t large_page = 2UL * 1024 * 1024;
    if (size >= large_page) {
        const int error = errno;
        // From the page that the buffer begins in: the large ones need not begin with it.
        const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
        const std::uintptr_t offset = reinterpret_cast<std::uintptr_t>(buffer) & (page - 1);
        ::madvise(static_cast<char*>(buffer) - offset, offset + size, MADV_HUGEPAGE);
        errno = error;
    }
}

/** A packed copy of COLUMNS x ROWS pixels that begin at FIRST in a bitmap of rows of WIDTH pixels. */
std::uint32_t* copy_box(const std::uint32_t* first, std::uint32_t width, std::uint32_t columns,
                        std::uint32_t rows) {
    const std::size_t size = std::size_t{columns} * rows * sizeof(std::uint32_t);
    auto* copy = static_cast<std::uint32_t*>(std::malloc(size));
    if (!copy) {
        const int error = errno;
        std::fprintf(stderr, "malloc(%u) failed: %s\n", static_cast<std::uint32_t>(size),
                     std::strerror(error));
        return nullptr;
    }
    prefer_large_pages(copy, size);
    for (std::uint32_t y = 0; y < rows; ++y) {
        std::memcpy(copy + std::size_t{y} * columns, first + std::size_t{y} * width,
                    columns * sizeof(std::uint32_t));
    }
    return copy;
}

} // namespace

std::uint32_t* bitmap_trim(const std::uint32_t* pixels, std::uint32_t* width, std::uint32_t* height) {
    if (!pixels || !width || *width == 0 || !height || *height == 0) {
        return nullptr;
    }
    std::printf("width=%u, height=%u\n", *width, *height);
    if (!corners_match(pixels, *width, *height)) {
        return nullptr;
    }

    const Bounds box = find_bounds(pixels, *width, *height);
    std::printf("x0=%d, x1=%d, y0=%d, y1=%d\n", static_cast<int>(box.x0), static_cast<int>(box.x1),
                static_cast<int>(box.y0), static_cast<int>(box.y1));
    if (box.x0 > box.x1 || box.y1 < box.y0) {
        return nullptr;
    }

    const std::uint32_t newWidth = box.x1 - box.x0 + 1;
    const std::uint32_t newHeight = box.y1 - box.y0 + 1;
    if (newWidth * newHeight < (*width * *height) >> 4) {
        return nullptr;
    }

    const std::uint32_t* first = pixels + std::size_t{box.y0} * *width + box.x0;
    std::uint32_t* trimmed = copy_box(first, *width, newWidth, newHeight);
    if (trimmed) {
        *width = newWidth;
        *height = newHeight;
        std::printf("new size: width=%u, height=%u\n", newWidth, newHeight);
    }
    return trimmed;
}

} // namespace velmora
