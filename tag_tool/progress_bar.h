#pragma once

#include <cstddef>
#include <cstdint>

namespace velmora::tag_tool {

/** A bar on standard error that shows how many of the files are done: where that is a terminal, and they are
   more than a handful. Gone with the object. */
class ProgressBar {
public:
    explicit ProgressBar(std::size_t files);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    /** FILES are done, and DONE bytes of TOTAL of the next one. */
    void show(std::size_t files, std::uint64_t done = 0, std::uint64_t total = 0);
    /** Takes the bar away, for a line of text. The next show() brings it back. */
    void hide();

private:
    std::size_t files_;
    bool wanted_;
    int shown_ = -1; ///< thousandths; negative: it is not on the screen
};

} // namespace velmora::tag_tool
