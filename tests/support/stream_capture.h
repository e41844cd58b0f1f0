#pragma once

#include <cstdio>
#include <string>

namespace velmora::test {

/** Catches all that the process writes to one of its standard streams while the object lives, the descriptor
   itself included, so that a whole transcript can be compared. */
class StreamCapture {
public:
    /** STREAM is stderr or stdout. */
    explicit StreamCapture(std::FILE* stream = stderr);
    ~StreamCapture();
    StreamCapture(const StreamCapture&) = delete;
    StreamCapture& operator=(const StreamCapture&) = delete;

    /** What was written so far. */
    [[nodiscard]] std::string text();

private:
    std::FILE* stream_;
    int saved_;
    int file_;
};

} // namespace velmora::test
