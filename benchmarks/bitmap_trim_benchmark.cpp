// The border trim of a 4000 x 4000 image beside one vectorised read of the same memory and one copy of the
// box.
//
// What to look for: Blank at most 1.5 times Read; Border200 at most half of Read and one CopyOfBox.

#include "bitmap_trim/bitmap_trim.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr std::uint32_t side = 4000;
constexpr std::uint32_t black = 0xff000000;

/** Sends standard output to nowhere while a trim prints its trace. */
class SilentOutput {
public:
    SilentOutput() : saved_(::dup(STDOUT_FILENO)) {
        std::fflush(stdout);
        const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        ::dup2(nowhere, STDOUT_FILENO);
        ::close(nowhere);
    }
    ~SilentOutput() {
        std::fflush(stdout);
        ::dup2(saved_, STDOUT_FILENO);
        ::close(saved_);
    }
    SilentOutput(const SilentOutput&) = delete;
    SilentOutput& operator=(const SilentOutput&) = delete;

private:
    int saved_;
};

/** A black image with a picture inside a border of BORDER pixels. */
std::vector<std::uint32_t> imageWithBorder(std::uint32_t border) {
    std::vector<std::uint32_t> pixels(std::size_t{side} * side, black);
    std::uint32_t noise = 1;
    for (std::uint32_t y = border; y < side - border; ++y) {
        for (std::uint32_t x = border; x < side - border; ++x) {
            noise = noise * 1664525 + 1013904223;
            pixels[std::size_t{y} * side + x] = noise | 0x00808080;
        }
    }
    return pixels;
}

void trim(benchmark::State& state, const std::vector<std::uint32_t>& pixels) {
    const SilentOutput silence;
    for (auto _ : state) {
        std::uint32_t width = side;
        std::uint32_t height = side;
        std::uint32_t* trimmed = velmora::bitmap_trim(pixels.data(), &width, &height);
        benchmark::DoNotOptimize(trimmed);
        std::free(trimmed);
    }
}

/** A sum, which the compiler turns into vector instructions. */
void Read(benchmark::State& state) {
    const std::vector<std::uint32_t> pixels(std::size_t{side} * side, black);
    for (auto _ : state) {
        std::uint32_t sum = 0;
        for (const std::uint32_t pixel : pixels) {
            sum += pixel;
        }
        benchmark::DoNotOptimize(sum);
    }
}

/** Copies the box into memory that is new to the process; WITH_LARGE_PAGES: of pages of 2 MiB. */
void copyBox(benchmark::State& state, bool withLargePages) {
    constexpr std::size_t largePage = std::size_t{2} << 20;
    const auto border = static_cast<std::uint32_t>(state.range(0));
    const std::vector<std::uint32_t> pixels = imageWithBorder(border);
    const std::size_t box = side - 2 * border;
    const std::size_t size = (box * box * sizeof(std::uint32_t) + largePage - 1) / largePage * largePage;
    for (auto _ : state) {
        auto* copy = static_cast<std::uint32_t*>(std::aligned_alloc(largePage, size));
        if (withLargePages) {
            ::madvise(copy, size, MADV_HUGEPAGE);
        }
        for (std::size_t y = 0; y < box; ++y) {
            std::memcpy(copy + y * box, &pixels[(y + border) * side + border], box * sizeof(std::uint32_t));
        }
        benchmark::DoNotOptimize(copy);
        std::free(copy);
    }
}

void CopyOfBox(benchmark::State& state) {
    copyBox(state, false);
}

void CopyIntoLargePages(benchmark::State& state) {
    copyBox(state, true);
}

void Blank(benchmark::State& state) {
    trim(state, std::vector<std::uint32_t>(std::size_t{side} * side, black));
}

void Border(benchmark::State& state) {
    trim(state, imageWithBorder(static_cast<std::uint32_t>(state.range(0))));
}

BENCHMARK(Read)->Unit(benchmark::kMillisecond);
BENCHMARK(Blank)->Unit(benchmark::kMillisecond);
BENCHMARK(CopyOfBox)->Arg(10)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(CopyIntoLargePages)->Arg(10)->Arg(200)->Unit(benchmark::kMillisecond);
BENCHMARK(Border)->Arg(10)->Arg(200)->Unit(benchmark::kMillisecond);

} // namespace
