#include "avi_bytes.h"

#include "fake_image/fake_image.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"
#include "taglib/avi/load_file_info.h"
#include "taglib/avi/remove_file_info.h"
#include "taglib/avi/store_file_info.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdio>
#include <functional>
#include <map>
#include <ostream>

/** Each operation is run once for each of its system calls, with that call failing. */
namespace velmora::test {
namespace {

struct Sample {
    const char* name;
    std::string bytes;
    std::size_t info_begin; ///< the INFO list's bytes, which a store may change; 0, 0 when there is none
    std::size_t info_end;
};

void PrintTo(const Sample& sample, std::ostream* out) {
    *out << sample.name;
}

class AviFault : public testing::TestWithParam<Sample> {
protected:
    ~AviFault() override { EXPECT_EQ(0, fake_images_alive()); }

    int store() {
        std::string title = "A longer title";
        Image* const picture = image_from_bytes("\xFF\xD8\xFFjpeg", 7);
        _file_info_t info{};
        info.title = title.data();
        info.picture = picture;
        info.flags = file_info_flag::title | file_info_flag::picture | file_info_flag::artist;
        const int result = avi_store_file_info(path_.c_str(), &info);
        image_release(picture);
        return result;
    }

    int remove() { return avi_remove_file_info(path_.c_str()); }

    int load() {
        _file_info_t info;
        const int result = avi_load_file_info(path_.c_str(), &info);
        id3_free_file_info(&info);
        return result;
    }

    /** A new file each time: some file systems write a truncated one out to disk at once, which takes its
       time. */
    void restore() {
        std::remove(path_.c_str());
        write_file(path_, GetParam().bytes);
    }

    /** The calls that the operation makes when none fails. */
    std::vector<SystemCallRecord> calls_of(const std::function<int()>& operation) {
        restore();
        StreamCapture quiet;
        SystemCallFaults watch;
        EXPECT_EQ(1, operation());
        return watch.records();
    }

    /** Media, index and header list are what they were; the RIFF size, the INFO list and what stands behind
       the chunks may differ. */
    void expect_media_unchanged() {
        const std::string& before = GetParam().bytes;
        const std::string after = read_file(path_);
        ASSERT_GE(after.size(), before.size());
        for (std::size_t i = 0; i < before.size(); ++i) {
            const bool riff_size = i >= 4 && i < 8;
            const bool info = i >= GetParam().info_begin && i < GetParam().info_end;
            ASSERT_TRUE(riff_size || info || after[i] == before[i]) << "byte " << i;
        }
    }

    /** Runs the operation once for each of its CALLS with that call going wrong by WRONG, and checks what
       holds for every failure: the operation fails; or it got what it needed by other calls, and did all of
       its work. */
    void fail_each(const std::function<int()>& operation,
                   const std::function<bool(SystemCallFaults&, const SystemCallRecord&, int nth)>& wrong) {
        const std::vector<SystemCallRecord> calls = calls_of(operation);
        const std::string done = read_file(path_);
        bool written = false;
        for (int nth = 1; nth <= static_cast<int>(calls.size()); ++nth) {
            const SystemCallRecord& call = calls[static_cast<std::size_t>(nth - 1)];
            SCOPED_TRACE(std::to_string(nth) + ": " + name_of(call.call));
            restore();
            int result = 0;
            {
                StreamCapture quiet;
                SystemCallFaults faults;
                if (!wrong(faults, call, nth)) {
                    continue;
                }
                result = operation();
                EXPECT_EQ(0, faults.open_descriptors());
            }
            // Positioning for, and writing, no bytes can't do harm: it is how a format that shrinks would be
            // cut.
            const bool harmless = call.call == SystemCall::write && call.requested == 0;
            const bool must_succeed = harmless || is_seek_to_end_mark(calls, nth);
            EXPECT_TRUE(result == 1 ? read_file(path_) == done : !must_succeed) << result;
            expect_media_unchanged();
            written |= call.call == SystemCall::write;
            if (!written && result == 0) {
                EXPECT_TRUE(read_file(path_) == GetParam().bytes);
            }
        }
    }

    /** Whether the call positions the file for a write of no bytes. */
    static bool is_seek_to_end_mark(const std::vector<SystemCallRecord>& calls, int nth) {
        const auto next = static_cast<std::size_t>(nth);
        return next < calls.size() && calls[next - 1].call == SystemCall::lseek &&
               calls[next].call == SystemCall::write && calls[next].requested == 0;
    }

    static auto fails_with(int error) {
        return [error](SystemCallFaults& faults, const SystemCallRecord&, int nth) {
            faults.fail(nth, error);
            return true;
        };
    }

    /** Runs the operation once for each of its calls, with that call and all later ones of its kind failing,
       which nothing can make up for. */
    void fail_each_for_good(const std::function<int()>& operation, int error) {
        const std::vector<SystemCallRecord> calls = calls_of(operation);
        std::map<SystemCall, int> of_kind;
        for (int nth = 1; nth <= static_cast<int>(calls.size()); ++nth) {
            const SystemCall kind = calls[static_cast<std::size_t>(nth - 1)].call;
            SCOPED_TRACE(std::to_string(nth) + ": " + name_of(kind));
            restore();
            StreamCapture quiet;
            SystemCallFaults faults;
            faults.fail_from(kind, ++of_kind[kind], error);
            EXPECT_EQ(0, operation());
            EXPECT_EQ(0, faults.open_descriptors());
            expect_media_unchanged();
        }
    }

    const ScratchFolder folder_;
    const std::string path_ = folder_ / "file.avi";
};

TEST_P(AviFault, AStoreWithAFailingCallFailsOrIsWholeAndLeavesTheMediaAlone) {
    fail_each([this] { return store(); }, fails_with(EIO));
    fail_each([this] { return store(); }, fails_with(ENOSPC));
}

TEST_P(AviFault, ARemovalWithAFailingCallFailsOrIsWholeAndLeavesTheMediaAlone) {
    fail_each([this] { return remove(); }, fails_with(EIO));
}

TEST_P(AviFault, AnOperationWhoseCallsFailForGoodFailsAndLeavesTheMediaAlone) {
    fail_each_for_good([this] { return store(); }, EIO);
    if (GetParam().info_end > 0) {
        fail_each_for_good([this] { return remove(); }, EIO);
    }
}

TEST_P(AviFault, AStoreWithAShortTransferFailsOrIsWholeAndLeavesTheMediaAlone) {
    for (const std::int64_t missing : {1, 4, 8}) {
        int reads = 0;
        int writes = 0;
        fail_each([this] { return store(); },
                  [&](SystemCallFaults& faults, const SystemCallRecord& call, int) {
                      reads += call.call == SystemCall::read;
                      writes += call.call == SystemCall::write;
                      const bool transfer = call.call == SystemCall::read || call.call == SystemCall::write;
                      if (!transfer || call.requested < missing) {
                          return false;
                      }
                      faults.cut_short(call.call, call.call == SystemCall::read ? reads : writes,
                                       static_cast<std::size_t>(call.requested - missing));
                      return true;
                  });
    }
}

TEST_P(AviFault, AStoreOnAFullDiskFailsWithTheSystemsErrorAndItsMessage) {
    restore();
    StreamCapture log;
    SystemCallFaults faults;
    faults.fail_from(SystemCall::write, 1, ENOSPC);
    EXPECT_EQ(0, store());
    EXPECT_EQ(ENOSPC, errno);
    const bool junk = log.text().find("<junk>") != std::string::npos;
    EXPECT_TRUE(log.text().ends_with(junk ? "avi_store_item: Error writing file\n"
                                            "avi_store_file_info: Error writing <junk> tag\n"
                                          : "avi_store_item: Error writing file\n"
                                            "avi_store_file_info: Error writing <info> tag\n"))
        << log.text();
    EXPECT_TRUE(read_file(path_) == GetParam().bytes);
}

TEST_P(AviFault, AReadErrorDuringAStoreIsError5AndChangesNoByte) {
    const int reads = [this] {
        restore();
        StreamCapture quiet;
        SystemCallFaults watch;
        EXPECT_EQ(1, store());
        return watch.count(SystemCall::read);
    }();
    for (int nth = 1; nth <= reads; ++nth) {
        restore();
        StreamCapture quiet;
        SystemCallFaults faults;
        faults.fail_from(SystemCall::read, nth,
                         78); // the system's own meaning of that number must not shine through
        EXPECT_EQ(0, store()) << nth;
        EXPECT_EQ(5, errno) << nth;
        EXPECT_TRUE(read_file(path_) == GetParam().bytes) << nth;
    }
}

TEST_P(AviFault, ALoadWithAFailingCallGivesAResultAndClosesTheFile) {
    const auto calls = static_cast<int>(calls_of([this] { return load(); }).size());
    restore();
    for (int nth = 1; nth <= calls; ++nth) {
        StreamCapture quiet;
        SystemCallFaults faults;
        faults.fail(nth, EIO);
        _file_info_t info;
        const int result = avi_load_file_info(path_.c_str(), &info);
        EXPECT_TRUE(result == 1 || errno == 5) << nth;
        EXPECT_TRUE(result == 1 || (info.flags == 0 && !info.title)) << nth;
        EXPECT_EQ(0, faults.open_descriptors()) << nth;
        id3_free_file_info(&info);
    }
}

TEST_P(AviFault, ALoadFromAMediumThatStaysUnreadableTriesAtMostTwoMoreReads) {
    restore();
    // Those of the next sub-chunk's header and the next chunk's. A good load makes 13 reads at most.
    for (int nth = 1; nth <= 13; ++nth) {
        StreamCapture quiet;
        SystemCallFaults faults;
        // Readable again after a while, so that a load that goes on and on comes to an end here, too late.
        for (int later = 0; later < 100; ++later) {
            faults.fail(SystemCall::read, nth + later, EIO);
        }
        load();
        EXPECT_LE(faults.count(SystemCall::read), nth + 2) << nth;
        EXPECT_EQ(0, faults.open_descriptors()) << nth;
    }
}

TEST_P(AviFault, AFailedOpenIsLoggedAndKeepsTheSystemsError) {
    restore();
    StreamCapture log;
    SystemCallFaults faults;
    faults.fail(SystemCall::open, 1, EACCES);
    EXPECT_EQ(0, store());
    EXPECT_EQ(EACCES, errno);
    EXPECT_EQ("avi_store_file_info: Couldn't open file\n", log.text());
    EXPECT_EQ(1, faults.count());
}

INSTANTIATE_TEST_SUITE_P(Files, AviFault,
                         testing::Values(Sample{"WithoutInfo", avi_without_info(), 0, 0},
                                         Sample{"InfoBeforeMovi", avi_with_info_before_movi(), 40, 76},
                                         Sample{"InfoLast", avi_with_info_last(), 96, 132}),
                         [](const auto& sample) { return std::string(sample.param.name); });

/** Where the operation wrote no bytes; -1 when it did not. */
std::int64_t position_of_empty_write(const SystemCallFaults& watch) {
    for (const SystemCallRecord& record : watch.records()) {
        if (record.call == SystemCall::write && record.requested == 0) {
            return record.position;
        }
    }
    return -1;
}

TEST(AviEndMark, AStoreWritesNoBytesBehindTheListAndDoesNotCutTheFile) {
    const ScratchFolder folder;
    const std::string path = folder / "file.avi";
    write_file(path, avi_with_info_last());
    _file_info_t info{};
    info.flags = file_info_flag::title;
    StreamCapture quiet;
    SystemCallFaults watch;
    EXPECT_EQ(1, avi_store_file_info(path.c_str(), &info));
    EXPECT_EQ(96 + 24, position_of_empty_write(watch));
    EXPECT_EQ(132u, read_file(path).size());
}

TEST(AviEndMark, ARemovalWritesNoBytesAtTheListAndDoesNotCutTheFile) {
    const ScratchFolder folder;
    const std::string path = folder / "file.avi";
    write_file(path, avi_with_info_last());
    StreamCapture quiet;
    SystemCallFaults watch;
    EXPECT_EQ(1, avi_remove_file_info(path.c_str()));
    EXPECT_EQ(96, position_of_empty_write(watch));
    EXPECT_EQ(132u, read_file(path).size());
}

TEST(AviRemoveFault, JunkThatCantBeWrittenIsLogged) {
    const ScratchFolder folder;
    const std::string path = folder / "file.avi";
    write_file(path, avi_with_info_before_movi());
    StreamCapture log;
    SystemCallFaults faults;
    faults.fail(SystemCall::write, 1, EIO);
    EXPECT_EQ(0, avi_remove_file_info(path.c_str()));
    EXPECT_EQ(log_of_avi_with_info_before_movi() + "Writing <junk> at 0x28 size 0x1c\n"
                                                   "avi_store_item: Error writing file\n"
                                                   "avi_remove_file_info: Error writing <junk> tag\n",
              log.text());
    EXPECT_EQ(avi_with_info_before_movi(), read_file(path));
}

TEST(AviLoadFault, AFailingCloseDoesNotHideWhyTheHeaderWasRefused) {
    const ScratchFolder folder;
    const std::string path = folder / "file.avi";
    write_file(path, avi_without_info() + "RIFF" + le32(36) + "AVIX" + movi());
    StreamCapture quiet;
    SystemCallFaults faults;
    faults.fail(SystemCall::close, 1, EIO);
    _file_info_t info;
    EXPECT_EQ(0, avi_load_file_info(path.c_str(), &info));
    EXPECT_EQ(78, errno);
}

TEST(AviLoadFault, ASubChunkThatCantBeReadIsEmptyAndTheOthersAreLoaded) {
    const ScratchFolder folder;
    const std::string path = folder / "file.avi";
    write_file(path, avi_with_info_last());
    StreamCapture quiet;
    SystemCallFaults faults;
    faults.fail(SystemCall::read, 1, EIO); // no block, so each field by itself:
    // RIFF header, form; hdrl, movi with their types; idx1; INFO with its type; INAM's header; INAM's data
    faults.fail(SystemCall::read, 1 + 10 + 1, EIO);
    _file_info_t info;
    EXPECT_EQ(1, avi_load_file_info(path.c_str(), &info));
    EXPECT_EQ(nullptr, info.title);
    EXPECT_STREQ("Ann", info.artist);
    id3_free_file_info(&info);
}

} // namespace
} // namespace velmora::test
