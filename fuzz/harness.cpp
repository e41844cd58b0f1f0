#include "harness.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>
#include <vector>

namespace velmora::fuzz {

namespace {

int report_descriptor = STDERR_FILENO;

/** The process's folder, removed at a regular exit. */
class Folder {
public:
    Folder() {
        std::string name = "/dev/shm/velmora-fuzz-XXXXXX";
        if (!::mkdtemp(name.data())) {
            name = (std::filesystem::temp_directory_path() / "velmora-fuzz-XXXXXX").string();
            require(::mkdtemp(name.data()) != nullptr, "a folder for the media file can be made");
        }
        path_ = name;
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    [[nodiscard]] const std::string& path() const { return path_; }

private:
    std::string path_;
};

const std::string& folder() {
    static const Folder made;
    return made.path();
}

int lowest_free_descriptor() {
    const int descriptor = ::open("/dev/null", O_RDONLY | O_CLOEXEC);
    ::close(descriptor);
    return descriptor;
}

} // namespace

void require(bool holds, const char* property) {
    if (holds) {
        return;
    }
    ::dprintf(report_descriptor, "property does not hold: %s\n", property);
    std::abort();
}

std::uint8_t Input::byte() {
    return static_cast<std::uint8_t>(number(1));
}

std::uint64_t Input::number(std::size_t bytes) {
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < bytes && !rest_.empty(); ++i) {
        value |= std::uint64_t{static_cast<std::uint8_t>(rest_.front())} << (8 * i);
        rest_.remove_prefix(1);
    }
    return value;
}

std::string Input::bytes() {
    const std::size_t length = byte();
    const std::string taken(rest_.substr(0, length));
    rest_.remove_prefix(taken.size());
    return taken;
}

std::string Input::text() {
    const std::string taken = bytes();
    return taken.c_str();
}

MediaFile::MediaFile(std::string_view bytes, std::string_view extension)
    : path_(folder() + "/media" + (extension.empty() ? "" : ".") + std::string(extension)) {
    const int file = ::open(path(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600);
    const bool written =
        bytes.empty() || ::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
    require(file >= 0 && written, "the media file can be made");
    ::close(file);
}

MediaFile::~MediaFile() {
    ::unlink(path());
}

std::uint64_t MediaFile::size() const {
    std::error_code ignored;
    const std::uintmax_t size = std::filesystem::file_size(path(), ignored);
    return size == static_cast<std::uintmax_t>(-1) ? 0 : size;
}

std::string MediaFile::bytes() const {
    std::string bytes;
    const int file = ::open(path(), O_RDONLY | O_CLOEXEC);
    if (file < 0) {
        return bytes;
    }
    bytes.resize(static_cast<std::size_t>(::lseek(file, 0, SEEK_END)));
    require(::pread(file, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()),
            "the media file can be read");
    ::close(file);
    return bytes;
}

bool MediaFile::has_neighbours() const {
    const std::filesystem::directory_iterator entries(folder());
    return std::any_of(begin(entries), end(entries),
                       [this](const auto& entry) { return entry.path() != path_; });
}

DescriptorCheck::DescriptorCheck() : lowest_free_(lowest_free_descriptor()) {}

DescriptorCheck::~DescriptorCheck() {
    require(lowest_free_descriptor() == lowest_free_, "every descriptor that was opened is closed");
}

} // namespace velmora::fuzz

/** Has libFuzzer lead both output streams to /dev/null (its own reports go elsewhere), because the code under
   test traces a lot; so that a trace does not cost a system call either, standard error is buffered. */
extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv) {
    using velmora::fuzz::report_descriptor;
    report_descriptor = ::fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 100);
    std::setvbuf(stderr, nullptr, _IOFBF, 65536);
    // libFuzzer keeps the array, so it has to outlive this call.
    static std::array<char, 19> discard = {"-close_fd_mask=3"};
    static std::vector<char*> arguments;
    arguments.assign(*argv, *argv + *argc);
    arguments.push_back(discard.data());
    *argc = static_cast<int>(arguments.size());
    arguments.push_back(nullptr);
    *argv = arguments.data();
    return 0;
}
