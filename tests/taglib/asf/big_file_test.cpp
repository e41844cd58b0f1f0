#include "asf_bytes.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "taglib/asf/move_file.h"
#include "taglib/asf/store_file_info.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <unistd.h>
#include <vector>

namespace velmora {
namespace {

using namespace test;

constexpr std::int64_t mebibyte = 1024 * 1024;

/** A file with holes. */
class LargeFile {
public:
    explicit LargeFile(std::int64_t size) { write_sparse_file(path_, size, "", 0); }

    [[nodiscard]] const std::string& path() const { return path_; }
    void write(std::int64_t position, const std::string& bytes) {
        const int descriptor = ::open(path_.c_str(), O_WRONLY | O_CLOEXEC);
        EXPECT_EQ(static_cast<ssize_t>(bytes.size()),
                  ::pwrite(descriptor, bytes.data(), bytes.size(), position));
        ::close(descriptor);
    }
    [[nodiscard]] std::string read(std::int64_t position, std::size_t length) const {
        std::ifstream stream(path_, std::ios::binary);
        std::string bytes(length, '\0');
        stream.seekg(position);
        stream.read(bytes.data(), static_cast<std::streamsize>(length));
        bytes.resize(static_cast<std::size_t>(stream.gcount()));
        return bytes;
    }

private:
    ScratchFolder folder_;
    std::string path_ = folder_ / "large.wmv";
};

/** The most memory that the process held since the object's beginning, in KiB above what it held then. */
class MemoryPeak {
public:
    MemoryPeak() : before_(status("VmRSS:")) {
        std::ofstream("/proc/self/clear_refs") << "5"; // starts the high-water mark anew
    }
    [[nodiscard]] long growth() const { return status("VmHWM:") - before_; }

private:
    static long status(const std::string& name) {
        std::ifstream stream("/proc/self/status");
        std::string word;
        long value = 0;
        while (stream >> word) {
            if (word == name) {
                stream >> value;
            }
        }
        return value;
    }
    long before_;
};

TEST(AsfLargeFile, MoreThanFourGibibytesMoveThroughALittleMemory) {
    // The low 32 bits of what is to move are 1,000: a first piece of 65,536 bytes, then all the rest at once.
    constexpr std::int64_t from = 5000;
    constexpr std::int64_t to = 9000;
    constexpr std::int64_t size = 4096 * mebibyte + 1000;
    if (std::filesystem::space(std::filesystem::temp_directory_path()).available < 2 * size) {
        GTEST_SKIP() << "takes 5 GB of the disk";
    }
    LargeFile large(from + size);
    const std::vector<std::int64_t> places = {0, 2147479552 - 50, 4096 * mebibyte - 64536 - 50, size - 100};
    for (const std::int64_t place : places) {
        large.write(from + place, pattern(100, static_cast<unsigned>(place)));
    }
    FIOFUNCSTRUCT file{};
    ASSERT_EQ(0, fio_open(large.path().c_str(), O_RDWR, 0, &file));
    const StreamCapture quiet;
    const MemoryPeak peak;
    EXPECT_EQ(1, asf_move_file(&file, from, to));
    EXPECT_LT(peak.growth(), 8 * 1024);
    fio_close(&file);
    for (const std::int64_t place : places) {
        EXPECT_EQ(to_hex(pattern(100, static_cast<unsigned>(place))), to_hex(large.read(to + place, 100)))
            << place;
    }
    EXPECT_EQ("", large.read(to + size, 1));
}

TEST(AsfLargeFile, AStoreMovesAGibibyteThroughALittleMemory) {
    const std::string header = header_object({content_description("", ""), ext_content_description({})});
    constexpr std::int64_t size = 1024 * mebibyte;
    const auto from = static_cast<std::int64_t>(header.size());
    LargeFile large(from + size);
    large.write(0, header + pattern(1000));
    large.write(from + size - 1000, pattern(1000, 2));
    std::string genre = "Rock";
    _file_info_t info{};
    info.flags = file_info_flag::genre;
    info.genre = genre.data();
    const StreamCapture quiet;
    const MemoryPeak peak;
    EXPECT_EQ(1, asf_store_file_info(large.path().c_str(), &info));
    EXPECT_LT(peak.growth(), 8 * 1024);
    const std::int64_t to = from + 34 + 1024; // the attribute and a new padding
    EXPECT_TRUE(pattern(1000) == large.read(to, 1000));
    EXPECT_TRUE(pattern(1000, 2) == large.read(to + size - 1000, 2000));
}

} // namespace
} // namespace velmora
