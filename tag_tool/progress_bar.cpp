#include "progress_bar.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <unistd.h>

namespace velmora::tag_tool {

namespace {

constexpr std::size_t handful = 5;
constexpr int width = 40;
constexpr int whole = 1000;

} // namespace

ProgressBar::ProgressBar(std::size_t files)
    : files_(files), wanted_(files > handful && ::isatty(STDERR_FILENO) == 1) {}

ProgressBar::~ProgressBar() {
    hide();
}

void ProgressBar::show(std::size_t files, std::uint64_t done, std::uint64_t total) {
    if (!wanted_) {
        return;
    }
    const double part =
        total > 0 ? static_cast<double>(std::min(done, total)) / static_cast<double>(total) : 0;
    const int thousandths =
        static_cast<int>((static_cast<double>(files) + part) * whole / static_cast<double>(files_));
    if (thousandths == shown_) {
        return;
    }
    shown_ = thousandths;
    const auto filled = static_cast<std::size_t>(thousandths * width / whole);
    const std::string bar = std::string(filled, '#') + std::string(width - filled, '.');
    std::fprintf(stderr, "\r[%s] %zu/%zu", bar.c_str(), files, files_);
    std::fflush(stderr);
}

void ProgressBar::hide() {
    if (shown_ >= 0) {
        std::fputs("\r\x1B[K", stderr);
        shown_ = -1;
    }
}

} // namespace velmora::tag_tool
