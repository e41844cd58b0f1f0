#include "asf_bytes.h"

#include "fake_image/fake_image.h"
#include "support/allocation_faults.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"
#include "taglib/asf/load_file_info.h"
#include "taglib/asf/store_file_info.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <functional>
#include <ostream>

namespace velmora {
namespace {

using namespace test;

/** A file, and what storing a genre makes of it. */
struct Scenario {
    const char* name;
    std::string before;
    std::string genre;
};

void PrintTo(const Scenario& scenario, std::ostream* stream) {
    *stream << scenario.name;
}

std::string header_with(const std::string& genre, const std::string& last) {
    return header_object({other_object(), content_description("T", "A"),
                          ext_content_description({text_descriptor("WM/Genre", genre)}), last});
}

const Scenario scenarios[] = {
    {"FitsThePadding", header_with("Pop", padding(100)) + "media", "Popular"},
    {"MovesTheDataAway", header_with("Pop", other_object()) + pattern(70000), "Popular"},
    {"MovesTheDataBack", header_with("Popular", other_object()) + pattern(70000), "Pop"},
    {"HasNoDescriptions", header_object({other_object()}) + pattern(65536), "Pop"},
};

class AsfFaults : public testing::TestWithParam<Scenario> {
protected:
    int store() {
        std::string genre = GetParam().genre;
        _file_info_t info{};
        info.flags = file_info_flag::genre;
        info.genre = genre.data();
        const StreamCapture quiet;
        errno = 0;
        const int result = asf_store_file_info(path_.c_str(), &info);
        error_ = errno;
        return result;
    }

    /** Stores once for each of the store's calls, with INJECT making that call go wrong. */
    void store_with_each(const std::function<void(SystemCallFaults&, int nth)>& inject) {
        write_file(path_, GetParam().before);
        int calls = 0;
        {
            const SystemCallFaults watch;
            ASSERT_EQ(1, store());
            calls = watch.count();
        }
        const std::string after = read_file(path_);
        ASSERT_NE(GetParam().before, after);
        for (int nth = 1; nth <= calls; ++nth) {
            write_file(path_, GetParam().before);
            SystemCallFaults faults;
            inject(faults, nth);
            const int result = store();
            EXPECT_EQ(0, faults.open_descriptors()) << nth;
            if (result == 1) {
                EXPECT_TRUE(read_file(path_) == after) << "call " << nth << " went wrong unnoticed";
            } else {
                EXPECT_EQ(0, result) << nth;
            }
            if (faults.bytes(SystemCall::write) == 0) {
                EXPECT_TRUE(read_file(path_) == GetParam().before) << nth;
            }
        }
    }

    ScratchFolder folder_;
    std::string path_ = folder_ / "file.wma";
    int error_ = 0;
};

TEST_P(AsfFaults, NoFailingCallOfAStoreGoesUnnoticed) {
    store_with_each([](SystemCallFaults& faults, int nth) { faults.fail(nth, EIO); });
}

TEST_P(AsfFaults, ACloseThatFailsFailsTheStore) {
    write_file(path_, GetParam().before);
    SystemCallFaults faults;
    faults.fail(SystemCall::close, 1, EIO);
    EXPECT_EQ(0, store());
    EXPECT_EQ(EIO, error_);
}

TEST_P(AsfFaults, NoFullDiskGoesUnnoticed) {
    store_with_each([](SystemCallFaults& faults, int nth) { faults.fail(SystemCall::write, nth, ENOSPC); });
}

TEST_P(AsfFaults, NoDiskThatIsFullFromSomeWriteOnGoesUnnoticed) {
    store_with_each(
        [](SystemCallFaults& faults, int nth) { faults.fail_from(SystemCall::write, nth, ENOSPC); });
}

TEST_P(AsfFaults, NoShortReadGoesUnnoticed) {
    for (const std::size_t bytes : {0u, 1u}) {
        store_with_each(
            [&](SystemCallFaults& faults, int nth) { faults.cut_short(SystemCall::read, nth, bytes); });
    }
}

TEST_P(AsfFaults, NoShortWriteGoesUnnoticed) {
    for (const std::size_t bytes : {0u, 1u}) {
        store_with_each(
            [&](SystemCallFaults& faults, int nth) { faults.cut_short(SystemCall::write, nth, bytes); });
    }
}

TEST_P(AsfFaults, AFailingReadOfTheHeaderGivesErrorFiveAndLeavesTheFileAlone) {
    write_file(path_, GetParam().before);
    int reads = 0;
    {
        _file_info_t info{};
        const StreamCapture quiet;
        const SystemCallFaults watch;
        ASSERT_EQ(1, asf_load_file_info(path_.c_str(), &info));
        reads = watch.count(SystemCall::read);
        id3_free_file_info(&info);
    }
    ASSERT_GT(reads, 0);
    for (int nth = 1; nth <= reads; ++nth) {
        SystemCallFaults faults;
        faults.fail_from(SystemCall::read, nth, ENXIO);
        EXPECT_EQ(0, store()) << nth;
        EXPECT_EQ(5, error_) << nth;
        EXPECT_EQ(0, faults.count(SystemCall::write)) << nth;
    }
    EXPECT_EQ(GetParam().before, read_file(path_));
}

TEST_P(AsfFaults, AHeaderThatCantBeReadInOnePieceIsReadFieldByField) {
    write_file(path_, GetParam().before);
    ASSERT_EQ(1, store());
    const std::string after = read_file(path_);
    write_file(path_, GetParam().before);
    SystemCallFaults faults;
    faults.fail(SystemCall::read, 1, EIO);
    EXPECT_EQ(1, store());
    EXPECT_TRUE(read_file(path_) == after);
    EXPECT_GT(faults.count(SystemCall::read), 4);
}

TEST_P(AsfFaults, EveryAllocationOfAStoreMayFail) {
    write_file(path_, GetParam().before);
    int allocations = 0;
    {
        const AllocationFaults watch;
        ASSERT_EQ(1, store());
        allocations = watch.count();
    }
    ASSERT_GT(allocations, 3);
    const std::string after = read_file(path_);
    int differences = 0;
    for (int nth = 1; nth <= allocations; ++nth) {
        write_file(path_, GetParam().before);
        const SystemCallFaults calls;
        int result = 0;
        {
            const AllocationFaults allocation(nth);
            result = store();
        }
        EXPECT_EQ(0, calls.open_descriptors()) << nth;
        // A header that shrinks is written before the buffer for the move is asked for: the last allocation.
        const bool header_written = GetParam().genre == "Pop" && nth == allocations;
        if (result == 0 && !header_written) {
            EXPECT_TRUE(read_file(path_) == GetParam().before) << nth;
        }
        differences += result == 1 && read_file(path_) != after ? 1 : 0;
    }
    // A string of the content description that found no memory when it was read is no longer there.
    const bool has_strings = GetParam().before.find(wide_z("A")) != std::string::npos;
    EXPECT_EQ(has_strings ? 2 : 0, differences);
}

INSTANTIATE_TEST_SUITE_P(All, AsfFaults, testing::ValuesIn(scenarios),
                         [](const auto& instance) { return instance.param.name; });

/** A file with a bit of everything. */
std::string full_file() {
    return header_object(
        {other_object(), content_description("T", "A"),
         ext_content_description(
             {text_descriptor("WM/Genre", "Pop"), descriptor("WM/Year", 3, u32(1999)),
              descriptor("WM/Picture", 1,
                         hex("03 04 00 00 00") + wide_z("image/jpeg") + u16(0) + hex("FF D8 FF 00"))}),
         padding(100)});
}

TEST(AsfLoadFaults, EveryCallOfALoadMayFail) {
    const ScratchFolder folder;
    const std::string path = folder / "file.wma";
    write_file(path, full_file());
    _file_info_t info{};
    const StreamCapture quiet;
    std::vector<SystemCallRecord> calls;
    {
        const SystemCallFaults watch;
        ASSERT_EQ(1, asf_load_file_info(path.c_str(), &info));
        calls = watch.records();
        id3_free_file_info(&info);
    }
    int failures = 0;
    int nth_of_kind[16] = {};
    for (int nth = 1; nth <= static_cast<int>(calls.size()); ++nth) {
        SystemCallFaults faults;
        // With those behind it: what can't be read in one piece is read field by field.
        const SystemCall kind = calls[static_cast<std::size_t>(nth - 1)].call;
        faults.fail_from(kind, ++nth_of_kind[static_cast<int>(kind)], EACCES);
        if (asf_load_file_info(path.c_str(), &info) == 1) {
            EXPECT_STREQ("Pop", info.genre) << nth;
            EXPECT_STREQ("A", info.artist) << nth;
            EXPECT_EQ(1999, info.year) << nth;
            EXPECT_TRUE(info.picture) << nth;
        } else {
            ++failures;
            EXPECT_EQ(nth == 1 ? EACCES : 5, errno) << nth;
            EXPECT_EQ(0u, info.flags) << nth;
        }
        id3_free_file_info(&info);
        EXPECT_EQ(0, faults.open_descriptors()) << nth;
        EXPECT_EQ(0, fake_images_alive()) << nth;
    }
    EXPECT_EQ(static_cast<int>(calls.size()) - 1, failures); // all but the close
}

TEST(AsfLoadFaults, EveryAllocationOfALoadMayFail) {
    const ScratchFolder folder;
    const std::string path = folder / "file.wma";
    write_file(path, full_file());
    _file_info_t info{};
    const StreamCapture quiet;
    int allocations = 0;
    {
        const AllocationFaults watch;
        ASSERT_EQ(1, asf_load_file_info(path.c_str(), &info));
        allocations = watch.count();
    }
    id3_free_file_info(&info);
    for (int nth = 1; nth <= allocations; ++nth) {
        const SystemCallFaults calls;
        {
            const AllocationFaults allocation(nth);
            if (asf_load_file_info(path.c_str(), &info) == 0) {
                EXPECT_EQ(5, errno) << nth;
            }
        }
        EXPECT_EQ(0, calls.open_descriptors()) << nth;
        id3_free_file_info(&info);
        EXPECT_EQ(0, fake_images_alive()) << nth;
    }
}

} // namespace
} // namespace velmora
