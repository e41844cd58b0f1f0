#include "avi_bytes.h"

#include "support/allocation_faults.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "taglib/avi/item_data.h"
#include "taglib/avi/load_file_info.h"
#include "taglib/avi/store_file_info.h"
#include "taglib/byte_file.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace velmora::test {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool memory_can_run_out = false; // the sanitizer's shadow alone needs more
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool memory_can_run_out = false;
#else
constexpr bool memory_can_run_out = true;
#endif
#else
constexpr bool memory_can_run_out = true;
#endif

void limit_memory() {
    const rlimit limit{1u << 30, 1u << 30};
    if (setrlimit(RLIMIT_AS, &limit) != 0) {
        std::_Exit(99);
    }
}

/** Ends the child: 0 when what was to be shown holds. */
[[noreturn]] void finish(bool holds) {
    std::_Exit(holds ? 0 : 1);
}

/** Each test runs in a child process that may not have more than a GiB of memory. */
class AviOutOfMemory : public testing::Test {
protected:
    void SetUp() override {
        if (!memory_can_run_out) {
            GTEST_SKIP();
        }
    }

    /** A sparse file with an INFO list whose first sub-chunk really has 3 GiB, followed by a small one. */
    void make_file() {
        const std::string front =
            riff(0xC000003C, hdrl() + list(0xC0000018, "INFO", chunk("IPIC", 0xC0000000, "")));
        const std::string behind = chunk("INAM", 4, z("Old"));
        const long long end = 0xC0000000LL + static_cast<long long>(front.size());
        write_sparse_file(path_, end + static_cast<long long>(behind.size()), behind, end);
        ByteFile file;
        EXPECT_TRUE(file.open(path_.c_str(), O_RDWR));
        EXPECT_EQ(static_cast<ssize_t>(front.size()), fio_write(file.handle(), front.data(), front.size()));
    }

    const ScratchFolder folder_;
    const std::string path_ = folder_ / "file.avi";
};

TEST_F(AviOutOfMemory, SettingDataGivesZeroAndLeavesTheListAlone) {
    EXPECT_EXIT(
        {
            limit_memory();
            _avi_item_t list{};
            list.fourcc = fourcc::list;
            const int result = avi_set_item_data(&list, make_fourcc("INAM"), "few", 0xF0000000);
            finish(result == 0 && list.child_count == 0);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(AviOutOfMemory, ALoadGoesOnWithoutTheSubChunkThatDoesNotFit) {
    make_file();
    EXPECT_EXIT(
        {
            limit_memory();
            _file_info_t info;
            const int result = avi_load_file_info(path_.c_str(), &info);
            finish(result == 1 && info.flags == 0x8000 && !info.picture && info.title &&
                   std::string("Old") == info.title);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(AviOutOfMemory, AStoreThatCouldNotWriteEverySubChunkBackIsRefused) {
    make_file();
    EXPECT_EXIT(
        {
            limit_memory();
            _file_info_t info{};
            info.flags = file_info_flag::title;
            const int result = avi_store_file_info(path_.c_str(), &info);
            finish(result == 0 && errno == 5 && info.flags == file_info_flag::title);
        },
        testing::ExitedWithCode(0), "");
}

TEST(AviStoreOutOfMemory, WhicheverRequestFailsTheStoreFailsAndChangesNoByte) {
    const ScratchFolder folder;
    const std::string path = folder / "file.avi";
    char title[] = "A longer title";
    const StreamCapture quiet;
    // Reading: the top level's array three times, the list's twice, the slab that takes all texts. Storing:
    // the list's array for the year, junk's place in the full top level.
    constexpr int requests = 3 + 2 + 1 + 1 + 1;
    for (int nth = 0; nth <= requests; ++nth) {
        write_file(path, avi_with_info_before_movi());
        _file_info_t info{};
        info.title = title;
        info.year = 1999;
        info.flags = file_info_flag::title | file_info_flag::year;
        const AllocationFaults no_memory(nth);
        EXPECT_EQ(nth == 0 ? 1 : 0, avi_store_file_info(path.c_str(), &info)) << nth;
        EXPECT_TRUE(nth == 0 || read_file(path) == avi_with_info_before_movi()) << nth;
        EXPECT_TRUE(nth > 0 || no_memory.count() == requests) << no_memory.count();
    }
}

TEST(AviStoreOutOfMemory, ANewListOrOneOfItsTextsWithoutMemoryFailsTheStoreThoughTheNextOneHasSome) {
    const ScratchFolder folder;
    const std::string path = folder / "file.avi";
    char title[] = "A";
    char artist[] = "B";
    char genre[] = "C";
    const StreamCapture quiet;
    // The new list's place in the top level's array, the slab that takes the four texts, and the list's array
    // for the first, second and third.
    constexpr int requests = 1 + 1 + 3;
    for (int nth = 0; nth <= requests; ++nth) {
        write_file(path, riff(4, ""));
        _file_info_t info{};
        info.title = title;
        info.artist = artist;
        info.genre = genre;
        info.year = 5;
        info.flags =
            file_info_flag::title | file_info_flag::artist | file_info_flag::genre | file_info_flag::year;
        const AllocationFaults no_memory(nth);
        EXPECT_EQ(nth == 0 ? 1 : 0, avi_store_file_info(path.c_str(), &info)) << nth;
        EXPECT_TRUE(nth == 0 || errno == ENOMEM) << nth << ": " << errno;
        EXPECT_TRUE(nth == 0 || read_file(path) == riff(4, "")) << nth;
        EXPECT_TRUE(nth > 0 || no_memory.count() == requests) << no_memory.count();
    }
}

} // namespace
} // namespace velmora::test
