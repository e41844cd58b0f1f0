#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/system_call_faults.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace velmora::test {
namespace {

class SystemCallFaultsTest : public testing::Test {
protected:
    SystemCallFaultsTest() { write_file(path_, "0123456789"); }

    const ScratchFolder folder_;
    const std::string path_ = folder_ / "file";
    std::array<char, 16> buffer_{};
};

TEST_F(SystemCallFaultsTest, CallsGoThroughToTheSystemAndAreRecordedInTheirOrder) {
    SystemCallFaults faults;
    const int descriptor = ::open(path_.c_str(), O_RDWR);
    ASSERT_GE(descriptor, 0);
    EXPECT_EQ(2, ::lseek(descriptor, 2, SEEK_SET));
    EXPECT_EQ(3, ::read(descriptor, buffer_.data(), 3));
    EXPECT_EQ(2, ::write(descriptor, "ab", 2));
    EXPECT_EQ(0, ::close(descriptor));

    const std::vector<SystemCallRecord>& records = faults.records();
    ASSERT_EQ(5u, records.size());
    EXPECT_EQ(SystemCall::open, records[0].call);
    EXPECT_EQ(path_, records[0].path);
    EXPECT_EQ(SystemCall::lseek, records[1].call);
    EXPECT_EQ(2, records[1].requested);
    EXPECT_EQ(SystemCall::read, records[2].call);
    EXPECT_EQ(2, records[2].position);
    EXPECT_EQ(3, records[2].requested);
    EXPECT_EQ(3, records[2].result);
    EXPECT_EQ(SystemCall::write, records[3].call);
    EXPECT_EQ(5, records[3].position);
    EXPECT_EQ(path_, records[3].path);
    EXPECT_EQ(SystemCall::close, records[4].call);
    EXPECT_EQ("01234ab789", read_file(path_));
}

TEST_F(SystemCallFaultsTest, CountsByKindAndInAll) {
    SystemCallFaults faults;
    const int descriptor = ::open(path_.c_str(), O_RDONLY);
    EXPECT_EQ(4, ::read(descriptor, buffer_.data(), 4));
    EXPECT_EQ(6, ::read(descriptor, buffer_.data(), 9));
    EXPECT_EQ(0, ::read(descriptor, buffer_.data(), 9));
    ::close(descriptor);
    EXPECT_EQ(3, faults.count(SystemCall::read));
    EXPECT_EQ(0, faults.count(SystemCall::write));
    EXPECT_EQ(5, faults.count());
    EXPECT_EQ(10, faults.bytes(SystemCall::read));
    EXPECT_EQ(10, faults.reach(SystemCall::read));
    EXPECT_EQ(0, faults.reach(SystemCall::write));
}

TEST_F(SystemCallFaultsTest, TheNthCallOfAnyKindFails) {
    SystemCallFaults faults;
    faults.fail(2, EIO);
    const int descriptor = ::open(path_.c_str(), O_RDONLY);
    errno = 0;
    EXPECT_EQ(-1, ::lseek(descriptor, 5, SEEK_SET));
    EXPECT_EQ(EIO, errno);
    EXPECT_EQ(EIO, faults.records()[1].error);
    EXPECT_EQ(1, ::read(descriptor, buffer_.data(), 1));
    EXPECT_EQ('0', buffer_[0]) << "the failed seek moved the file";
    ::close(descriptor);
}

TEST_F(SystemCallFaultsTest, TheNthCallOfAKindFails) {
    SystemCallFaults faults;
    faults.fail(SystemCall::read, 2, EISDIR);
    const int descriptor = ::open(path_.c_str(), O_RDONLY);
    EXPECT_EQ(1, ::read(descriptor, buffer_.data(), 1));
    EXPECT_EQ(0, ::lseek(descriptor, 0, SEEK_SET));
    EXPECT_EQ(-1, ::read(descriptor, buffer_.data(), 1));
    EXPECT_EQ(EISDIR, errno);
    EXPECT_EQ(1, ::read(descriptor, buffer_.data(), 1));
    ::close(descriptor);
}

TEST_F(SystemCallFaultsTest, AllCallsFromTheNthOnFail) {
    SystemCallFaults faults;
    faults.fail_from(SystemCall::write, 2, ENOSPC);
    const int descriptor = ::open(path_.c_str(), O_WRONLY);
    EXPECT_EQ(1, ::write(descriptor, "a", 1));
    EXPECT_EQ(-1, ::write(descriptor, "b", 1));
    EXPECT_EQ(-1, ::write(descriptor, "c", 1));
    EXPECT_EQ(ENOSPC, errno);
    ::close(descriptor);
    EXPECT_EQ("a123456789", read_file(path_));
}

TEST_F(SystemCallFaultsTest, ATransferIsCutShort) {
    SystemCallFaults faults;
    faults.cut_short(SystemCall::read, 1, 3);
    faults.cut_short(SystemCall::write, 1, 0);
    const int descriptor = ::open(path_.c_str(), O_RDWR);
    EXPECT_EQ(3, ::read(descriptor, buffer_.data(), 8));
    EXPECT_EQ(0, ::write(descriptor, "ab", 2));
    EXPECT_EQ(7, ::read(descriptor, buffer_.data(), 8));
    ::close(descriptor);
    EXPECT_EQ("0123456789", read_file(path_));
}

TEST_F(SystemCallFaultsTest, RefusedBytesAreNotMovedHoweverTheCallsAreCut) {
    SystemCallFaults faults;
    faults.refuse_bytes(SystemCall::read, 3, 5, EIO);
    faults.refuse_bytes(SystemCall::write, 8, 9, 0);
    const int descriptor = ::open(path_.c_str(), O_RDWR);
    EXPECT_EQ(3, ::read(descriptor, buffer_.data(), 8));
    EXPECT_EQ(-1, ::read(descriptor, buffer_.data(), 1));
    EXPECT_EQ(EIO, errno);
    EXPECT_EQ(5, ::lseek(descriptor, 5, SEEK_SET));
    EXPECT_EQ(2, ::read(descriptor, buffer_.data(), 2));
    EXPECT_EQ(1, ::write(descriptor, "abc", 3));
    EXPECT_EQ(0, ::write(descriptor, "bc", 2));
    EXPECT_EQ(0, ::write(descriptor, "", 0));
    ::close(descriptor);
    EXPECT_EQ("0123456a89", read_file(path_));
}

TEST_F(SystemCallFaultsTest, AFailedOpenGivesNoDescriptor) {
    SystemCallFaults faults;
    faults.fail(SystemCall::open, 1, EACCES);
    EXPECT_EQ(-1, ::open(path_.c_str(), O_RDONLY));
    EXPECT_EQ(EACCES, errno);
    EXPECT_EQ(0, faults.open_descriptors());
}

TEST_F(SystemCallFaultsTest, OpenDescriptorsAreCounted) {
    SystemCallFaults faults;
    const int first = ::open(path_.c_str(), O_RDONLY);
    const int second = ::open(path_.c_str(), O_RDONLY);
    EXPECT_EQ(2, faults.open_descriptors());
    ::close(first);
    EXPECT_EQ(1, faults.open_descriptors());
    ::close(second);
    EXPECT_EQ(0, faults.open_descriptors());
}

TEST_F(SystemCallFaultsTest, AFailedCloseHasClosedTheDescriptor) {
    int descriptor = -1;
    {
        SystemCallFaults faults;
        faults.fail(SystemCall::close, 1, EIO);
        descriptor = ::open(path_.c_str(), O_RDONLY);
        EXPECT_EQ(-1, ::close(descriptor));
        EXPECT_EQ(EIO, errno);
        EXPECT_EQ(0, faults.open_descriptors());
    }
    EXPECT_EQ(-1, ::fcntl(descriptor, F_GETFD));
}

TEST_F(SystemCallFaultsTest, NamesAreNeitherRemovedNorRenamedNorFoundByAFailedCall) {
    SystemCallFaults faults;
    faults.fail(SystemCall::unlink, 1, EBUSY);
    faults.fail(SystemCall::rename, 1, EXDEV);
    faults.fail(SystemCall::stat, 1, ELOOP);
    struct stat status {};
    EXPECT_EQ(-1, ::unlink(path_.c_str()));
    EXPECT_EQ(EBUSY, errno);
    EXPECT_EQ(-1, std::rename(path_.c_str(), (folder_ / "other").c_str()));
    EXPECT_EQ(EXDEV, errno);
    EXPECT_EQ(folder_ / "other", faults.records()[1].target);
    EXPECT_EQ(-1, ::stat(path_.c_str(), &status));
    EXPECT_EQ(ELOOP, errno);
    EXPECT_TRUE(file_exists(path_));
    EXPECT_FALSE(file_exists(folder_ / "other"));
}

TEST_F(SystemCallFaultsTest, AFailedNameGenerationEmptiesTheName) {
    SystemCallFaults faults;
    faults.fail(SystemCall::mktemp, 1, EEXIST);
    std::string name = folder_ / "x.XXXXXX";
    EXPECT_EQ(name.data(), ::mktemp(name.data()));
    EXPECT_EQ('\0', name[0]);
    EXPECT_EQ(EEXIST, errno);
    EXPECT_EQ(folder_ / "x.XXXXXX", faults.records()[0].path);
}

TEST_F(SystemCallFaultsTest, AGeneratedNameIsOnlyMadeAFileWhenAskedFor) {
    SystemCallFaults faults;
    std::string name = folder_ / "x.XXXXXX";
    ::mktemp(name.data());
    EXPECT_FALSE(file_exists(name));
    EXPECT_EQ(name, faults.records()[0].target);

    faults.create_generated_names();
    name = folder_ / "y.XXXXXX";
    ::mktemp(name.data());
    EXPECT_EQ("", read_file(name));
}

TEST_F(SystemCallFaultsTest, NothingFailsOrIsRecordedForAnotherThread) {
    SystemCallFaults faults;
    faults.fail_from(SystemCall::open, 1, EIO);
    int descriptor = -1;
    std::thread([&] {
        descriptor = ::open(path_.c_str(), O_RDONLY);
        ::close(descriptor);
    }).join();
    EXPECT_GE(descriptor, 0);
    EXPECT_EQ(0, faults.count());
}

TEST_F(SystemCallFaultsTest, NothingFailsAfterTheObjectsEnd) {
    {
        SystemCallFaults faults;
        faults.fail_from(SystemCall::open, 1, EIO);
    }
    const int descriptor = ::open(path_.c_str(), O_RDONLY);
    EXPECT_GE(descriptor, 0);
    ::close(descriptor);
}

TEST_F(SystemCallFaultsTest, WatchingLeavesErrnoAlone) {
    SystemCallFaults faults;
    int pipe_ends[2];
    ASSERT_EQ(0, ::pipe(pipe_ends));
    errno = 77;
    EXPECT_EQ(1, ::write(pipe_ends[1], "a", 1));
    EXPECT_EQ(77, errno) << "asking a pipe for its position shows";
    ::close(pipe_ends[0]);
    ::close(pipe_ends[1]);
}

} // namespace
} // namespace velmora::test
