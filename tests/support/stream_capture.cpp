#include "stream_capture.h"

#include <stdexcept>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora::test {

StreamCapture::StreamCapture(std::FILE* stream)
    : stream_(stream), saved_(::dup(::fileno(stream))), file_(::memfd_create("capture", 0)) {
    if (saved_ < 0 || file_ < 0) {
        throw std::runtime_error("can't capture a stream");
    }
    std::fflush(stream_);
    ::dup2(file_, ::fileno(stream_));
}

StreamCapture::~StreamCapture() {
    std::fflush(stream_);
    ::dup2(saved_, ::fileno(stream_));
    ::close(saved_);
    ::close(file_);
}

std::string StreamCapture::text() {
    std::fflush(stream_);
    // Neither call moves the position that the stream writes at, and neither is one that tests count.
    struct stat status {};
    ::fstat(file_, &status);
    std::string text(static_cast<std::size_t>(status.st_size), '\0');
    const ssize_t count = ::pread(file_, text.data(), text.size(), 0);
    text.resize(count < 0 ? 0 : static_cast<std::size_t>(count));
    return text;
}

} // namespace velmora::test
