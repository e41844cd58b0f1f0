#include "avi_bytes.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"
#include "taglib/avi/header_reader.h"
#include "taglib/avi/remove_file_info.h"
#include "taglib/avi/store_file_info.h"
#include "taglib/byte_file.h"

#include <gtest/gtest.h>

#include <array>
#include <fcntl.h>
#include <unistd.h>

/** Sparse files around and beyond 4 GiB. */
namespace velmora::test {
namespace {

struct Cost {
    int calls;
    int writes;
    std::int64_t bytes_read;
    std::int64_t bytes_written;
    bool operator==(const Cost&) const = default;
};

class AviBigFile : public testing::Test {
protected:
    /** A file whose media list has that size field, with holes for media; BEHIND stands after it. */
    void make(std::uint32_t riff_size, const std::string& in_front, std::uint32_t movi_size,
              const std::string& behind) {
        const std::string front = riff(riff_size, in_front + list(movi_size, "movi", ""));
        const auto end = static_cast<long long>(front.size()) - 4 + movi_size;
        write_sparse_file(path_, end + static_cast<long long>(behind.size()), front, 0);
        write_at(end, behind);
    }

    void write_at(std::int64_t offset, const std::string& bytes) {
        ByteFile file;
        EXPECT_TRUE(file.open(path_.c_str(), O_RDWR));
        fio_lseek(file.handle(), offset, SEEK_SET);
        EXPECT_EQ(static_cast<ssize_t>(bytes.size()), fio_write(file.handle(), bytes.data(), bytes.size()));
    }

    [[nodiscard]] std::string read_at(std::int64_t offset, std::size_t count) const {
        ByteFile file;
        EXPECT_TRUE(file.open(path_.c_str(), O_RDONLY));
        fio_lseek(file.handle(), offset, SEEK_SET);
        std::string bytes(count, '#');
        const ssize_t got = fio_read(file.handle(), bytes.data(), count);
        bytes.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
        return bytes;
    }

    [[nodiscard]] std::int64_t length() const {
        ByteFile file;
        EXPECT_TRUE(file.open(path_.c_str(), O_RDONLY));
        return fio_lseek(file.handle(), 0, SEEK_END);
    }

    Cost store(const std::string& title) {
        std::string text = title;
        _file_info_t info{};
        info.title = text.data();
        info.flags = file_info_flag::title;
        StreamCapture log;
        SystemCallFaults watch;
        EXPECT_EQ(1, avi_store_file_info(path_.c_str(), &info));
        log_ = log.text();
        return {watch.count(), watch.count(SystemCall::write), watch.bytes(SystemCall::read),
                watch.bytes(SystemCall::write)};
    }

    const ScratchFolder folder_;
    const std::string path_ = folder_ / "file.avi";
    std::string log_;
};

TEST_F(AviBigFile, AStoreCostsTheSameInAFileOf4GiBAsInASmallOne) {
    make(0, hdrl() + old_info(), 100004, idx1());
    const Cost small = store("New");
    // 12 + 28 + 36 + 8 + size + 24: exactly 4 GiB long.
    make(0, hdrl() + old_info(), 0xFFFFFF94, idx1());
    ASSERT_EQ(0x100000000, length());
    const Cost big = store("New");
    EXPECT_EQ(small, big);
    EXPECT_EQ("New", loaded_title(path_));
}

TEST_F(AviBigFile, AStoreWritesTheJunkHeaderTheListAndTheRiffHeaderOnly) {
    make(0, hdrl() + old_info(), 0xFFFFFF00, idx1());
    EXPECT_EQ(8 + 36 + 8, store("New").bytes_written);
}

TEST_F(AviBigFile, ARiffThatJustFitsGetsItsTrueSize) {
    make(0, hdrl(), 0xFFFFFFB0, "");
    store("New");
    // 4 + 28 + 8 + 0xFFFFFFB0 + 24
    EXPECT_EQ(to_hex("RIFF" + le32(0xFFFFFFF0) + "AVI "), to_hex(read_at(0, 12)));
    EXPECT_EQ(to_hex(list(16, "INFO", chunk("INAM", 4, z("New")))), to_hex(read_at(0xFFFFFFE0, 100)));
}

TEST_F(AviBigFile, BeyondThe32BitsOfItsFieldTheRiffSizeIsTheLargestNumberAndTheListStandsAtTheTrueEnd) {
    make(0, hdrl(), 0xFFFFFFFE, chunk("JUNK", 8, "12345678"));
    // 12 + 28 + 8 + 0xFFFFFFFE + 16
    ASSERT_EQ(0x10000003E, length());
    store("New");
    EXPECT_EQ(to_hex("RIFF" + le32(0xFFFFFFFF) + "AVI "), to_hex(read_at(0, 12)));
    EXPECT_EQ(to_hex("12345678" + list(16, "INFO", chunk("INAM", 4, z("New")))),
              to_hex(read_at(0x100000036, 100)));
    EXPECT_EQ("New", loaded_title(path_));
}

TEST_F(AviBigFile, TheRootsSizeAsFoundIsTheLargestNumberToo) {
    make(0, hdrl(), 0xFFFFFFFE, "");
    ByteFile file;
    EXPECT_TRUE(file.open(path_.c_str(), O_RDONLY));
    _avi_item_t root;
    StreamCapture quiet;
    EXPECT_EQ(1, avi_read_header(file.handle(), &root));
    EXPECT_EQ(0xFFFFFFFFu, root.size);
    avi_free_header(&root);
}

TEST_F(AviBigFile, NothingIsWrittenIntoTheMediaBeyond4GiB) {
    make(0, hdrl() + old_info(), 0xFFFFFFFE, idx1());
    const std::string front = read_at(0, 1 << 20);
    store("New");
    const std::string after = read_at(0, 1 << 20);
    EXPECT_EQ(to_hex("JUNK"), to_hex(after.substr(40, 4)));
    EXPECT_TRUE(front.substr(44) == after.substr(44));
    EXPECT_EQ("index of 1 frame", read_at(length() - 36 - 16, 16));
}

TEST_F(AviBigFile, AListBeyond4GiBIsRewrittenInPlaceAndRemoved) {
    make(0, hdrl(), 0xFFFFFFFE, old_info());
    const std::int64_t before = length();
    store("New");
    EXPECT_EQ(before, length());
    EXPECT_EQ(to_hex(list(28, "INFO", chunk("INAM", 4, z("New")) + chunk("ISTR", 4, z("Ann")))),
              to_hex(read_at(before - 36, 36)));
    StreamCapture quiet;
    EXPECT_EQ(1, avi_remove_file_info(path_.c_str()));
    EXPECT_EQ(before, length());
}

} // namespace
} // namespace velmora::test
