#include "taglib/write_cursor.h"

#include "support/allocation_faults.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/system_call_faults.h"
#include "taglib/byte_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <string>
#include <sys/resource.h>

namespace velmora {
namespace {

using test::hex;
using test::pattern;
using test::read_file;
using test::ScratchFolder;
using test::SystemCall;
using test::SystemCallFaults;
using test::write_file;

class WriteCursorTest : public testing::Test {
protected:
    void open_with(std::string_view bytes) {
        write_file(path_, bytes);
        ASSERT_TRUE(file_.open(path_.c_str(), O_RDWR));
    }
    [[nodiscard]] std::string contents() const { return read_file(path_); }

    const ScratchFolder folder_;
    const std::string path_ = folder_ / "file";
    ByteFile file_;
};

TEST_F(WriteCursorTest, NumbersAreWrittenInTheOrderThatTheirNamesGiveWithOneCall) {
    open_with("");
    const SystemCallFaults watch;
    WriteCursor cursor(file_.handle(), 0);
    cursor.put_byte(0x01);
    cursor.put_le16(0x0102);
    cursor.put_be16(0x0102);
    cursor.put_le32(0x01020304);
    cursor.put_be32(0x01020304);
    cursor.put_le64(0x0102030405060708);
    cursor.put("abc", 3);
    cursor.put("", 0);
    EXPECT_EQ(24u, cursor.bytes());
    EXPECT_EQ(7u, cursor.fields());
    EXPECT_EQ(24u, cursor.position());
    EXPECT_EQ(0, watch.count());
    EXPECT_TRUE(cursor.commit());
    EXPECT_EQ(hex("01 0201 0102 04030201 01020304 0807060504030201 616263"), contents());
    EXPECT_EQ(1, watch.count(SystemCall::write));
    EXPECT_EQ(2, watch.count());
    EXPECT_EQ(24u, cursor.bytes_written());
    EXPECT_EQ(7u, cursor.fields_written());
    EXPECT_EQ(0u, cursor.bytes());
    EXPECT_EQ(0u, cursor.fields());
}

TEST_F(WriteCursorTest, WritesNothingWithoutACommitAndNothingWithAnEmptyOne) {
    open_with("abcdef");
    {
        const SystemCallFaults watch;
        WriteCursor cursor(file_.handle(), 2);
        EXPECT_TRUE(cursor.commit());
        cursor.put("XY", 2);
        EXPECT_EQ(0, watch.count());
    }
    EXPECT_EQ("abcdef", contents());
}

TEST_F(WriteCursorTest, GoesOnWhereItsLastCommitEnded) {
    open_with("abcdefgh");
    const SystemCallFaults watch;
    WriteCursor cursor(file_.handle(), 2);
    cursor.put("XY", 2);
    EXPECT_TRUE(cursor.commit());
    cursor.put("Z", 1);
    EXPECT_TRUE(cursor.commit());
    EXPECT_EQ("abXYZfgh", contents());
    EXPECT_EQ(1u, cursor.bytes_written());
    EXPECT_EQ(1, watch.count(SystemCall::lseek));
    EXPECT_EQ(2, watch.count(SystemCall::write));
}

TEST_F(WriteCursorTest, LeavesGapsAsTheyAreAndWritesInTheOrderOfThePuts) {
    open_with("abcdefgh");
    WriteCursor cursor(file_.handle(), 4);
    cursor.put("12", 2);
    cursor.seek(0);
    cursor.put("345", 3);
    cursor.seek(1); // into what was put just now
    cursor.put("6", 1);
    cursor.seek(7);
    cursor.put("7", 1);
    cursor.put("8", 1);
    EXPECT_EQ(8u, cursor.bytes());
    EXPECT_TRUE(cursor.commit());
    EXPECT_EQ("365d12g78", contents());
}

TEST_F(WriteCursorTest, LargeBlocksAreWrittenFromWhereTheyLie) {
    open_with("");
    const std::string large = pattern(WriteCursor::largest_copy + 1, 1);
    const std::string small = pattern(WriteCursor::largest_copy, 2);
    SystemCallFaults watch;
    WriteCursor cursor(file_.handle(), 0);
    cursor.put_byte('a');
    cursor.put(large.data(), large.size());
    cursor.put_byte('b');
    cursor.put(small.data(), small.size());
    EXPECT_TRUE(cursor.commit());
    EXPECT_EQ("a" + large + "b" + small, contents());
    EXPECT_EQ(3, watch.count(SystemCall::write));
    EXPECT_EQ(1, watch.count(SystemCall::lseek));
    EXPECT_EQ(4u, cursor.fields_written());
}

TEST_F(WriteCursorTest, TheEndMarkWritesNoBytesAtTheFilesPosition) {
    open_with("abcdef");
    SystemCallFaults watch;
    WriteCursor cursor(file_.handle(), 2);
    cursor.put("X", 1);
    EXPECT_TRUE(cursor.commit());
    mark_end(file_.handle());
    ASSERT_EQ(SystemCall::write, watch.records().back().call);
    EXPECT_EQ(0, watch.records().back().requested);
    EXPECT_EQ(3, watch.records().back().position);
    EXPECT_EQ("abXdef", contents());
}

/** While it lives, no file grows beyond ROOM bytes: writes come short there and fail behind it. */
class FullDisk {
public:
    explicit FullDisk(std::size_t room) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{room, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*handler_)(int);
    rlimit before_{};
};

/** Fields of 4, 1, 2 and LARGE bytes from position 2 on, and one of 8 further behind. */
const std::string large_field = pattern(WriteCursor::largest_copy + 100);
constexpr std::size_t field_ends[] = {4, 5, 7, 7 + WriteCursor::largest_copy + 100,
                                      15 + WriteCursor::largest_copy + 100};

void put_fields(WriteCursor& cursor) {
    cursor.put_le32(0x44434241);
    cursor.put_byte('E');
    cursor.put_le16(0x4746);
    cursor.put(large_field.data(), large_field.size());
    cursor.seek(cursor.position() + 10);
    cursor.put_le64(0x3837363534333231);
}

std::uint64_t fields_within(std::size_t bytes) {
    std::uint64_t fields = 0;
    while (fields < std::size(field_ends) && field_ends[fields] <= bytes) {
        ++fields;
    }
    return fields;
}

TEST_F(WriteCursorTest, AFullDiskStopsTheCommitWhereSingleWritesWouldHaveStopped) {
    for (const std::size_t room : {0U, 1U, 3U, 4U, 5U, 6U, 7U, 8U, 5000U}) {
        open_with("");
        const std::string expected = "ABCDEFG" + large_field;
        SystemCallFaults faults;
        int nth = 1;
        if (room > 0) {
            faults.cut_short(SystemCall::write, nth++, std::min<std::size_t>(room, 7));
        }
        if (room > 7) {
            faults.cut_short(SystemCall::write, nth++, room - 7);
        }
        faults.fail_from(SystemCall::write, nth, ENOSPC);
        WriteCursor cursor(file_.handle(), 0);
        put_fields(cursor);
        errno = 0;
        EXPECT_FALSE(cursor.commit()) << room;
        EXPECT_EQ(expected.substr(0, room), contents()) << room;
        EXPECT_EQ(room, cursor.bytes_written()) << room;
        EXPECT_EQ(fields_within(room), cursor.fields_written()) << room;
        // The system says why only of a field of which it takes nothing.
        const bool between_fields = room == 0 || room == 4 || room == 5 || room == 7;
        EXPECT_EQ(between_fields ? ENOSPC : 0, errno) << room;
    }
}

TEST_F(WriteCursorTest, AWriteThatStopsBetweenTwoFieldsIsGoneOnWith) {
    open_with("");
    SystemCallFaults faults;
    faults.cut_short(SystemCall::write, 1, 5);
    WriteCursor cursor(file_.handle(), 0);
    put_fields(cursor);
    EXPECT_TRUE(cursor.commit());
    EXPECT_EQ("ABCDEFG" + large_field + std::string(10, '\0') + "12345678", contents());
    EXPECT_EQ(5u, cursor.fields_written());
}

TEST_F(WriteCursorTest, AskedWhyAWriteCameUpShortItTriesTheRestOfTheField) {
    open_with("");
    SystemCallFaults faults;
    faults.cut_short(SystemCall::write, 1, 6);
    faults.fail(SystemCall::write, 2, ENOSPC);
    WriteCursor cursor(file_.handle(), 0);
    cursor.put("abcd", 4);
    cursor.put("efgh", 4);
    cursor.put("ijkl", 4);
    errno = 0;
    EXPECT_FALSE(cursor.commit());
    EXPECT_EQ(0, errno);
    cursor.ask_why_short();
    EXPECT_EQ(ENOSPC, errno);
    EXPECT_EQ(2, faults.records().back().requested); // "gh"
    EXPECT_EQ("abcdef", contents());
    const int calls = faults.count();
    cursor.ask_why_short();
    EXPECT_EQ(calls, faults.count());
}

TEST_F(WriteCursorTest, HasNothingToAskAfterAWriteThatFailedOrOnceMoreWasPut) {
    open_with("");
    SystemCallFaults faults;
    faults.fail(SystemCall::write, 1, EIO);
    faults.cut_short(SystemCall::write, 2, 1);
    WriteCursor cursor(file_.handle(), 0);
    for (int i = 0; i < 2; ++i) {
        cursor.put("abcd", 4);
        EXPECT_FALSE(cursor.commit());
        cursor.put("x", i);
        const int calls = faults.count();
        cursor.ask_why_short();
        EXPECT_EQ(calls, faults.count()) << i;
    }
}

TEST_F(WriteCursorTest, ASeekThatFailsStopsTheCommit) {
    for (const int nth : {1, 2}) {
        open_with("");
        SystemCallFaults faults;
        faults.fail(SystemCall::lseek, nth, EINVAL);
        WriteCursor cursor(file_.handle(), 0);
        put_fields(cursor);
        EXPECT_FALSE(cursor.commit());
        EXPECT_EQ(EINVAL, errno);
        EXPECT_EQ(nth == 1 ? 0u : 4u, cursor.fields_written());
        EXPECT_EQ(nth == 1 ? "" : "ABCDEFG" + large_field, contents());
    }
}

/** Many fields of many sizes, some of them in places of their own; returns what the file is to hold. */
std::string put_many(WriteCursor& cursor) {
    std::string expected;
    for (unsigned i = 0; i < 60; ++i) {
        const std::string block = pattern(i * i % 1700, i);
        cursor.put(block.data(), block.size());
        cursor.put_le32(0x44434241);
        expected += block + "ABCD";
        if (i % 7 == 3) {
            cursor.seek(cursor.position() + 5);
            expected += std::string(5, '\0');
        }
    }
    cursor.put(large_field.data(), large_field.size());
    return expected + large_field;
}

TEST_F(WriteCursorTest, WithoutMemoryEverythingIsWrittenAllTheSame) {
    int requests = 0;
    for (int nth = 0; nth <= requests; ++nth) {
        open_with("");
        const test::AllocationFaults no_memory(nth);
        WriteCursor cursor(file_.handle(), 0);
        const std::string expected = put_many(cursor);
        const std::uint64_t bytes = cursor.bytes();
        const std::uint64_t fields = cursor.fields();
        errno = 0;
        EXPECT_TRUE(cursor.commit()) << nth;
        EXPECT_EQ(0, errno) << nth;
        EXPECT_EQ(bytes, cursor.bytes_written()) << nth;
        EXPECT_EQ(fields, cursor.fields_written()) << nth;
        EXPECT_TRUE(expected == contents()) << nth;
        requests = std::max(requests, no_memory.count());
    }
    EXPECT_GT(requests, 3);
}

TEST_F(WriteCursorTest, WithoutMemoryAFullDiskIsToldByTheCommit) {
    for (const std::size_t room : {0U, 100U, 3000U, 20000U, 40000U}) {
        open_with("");
        std::string expected;
        std::uint64_t fields = 0;
        for (int nth = 0; nth <= 3; ++nth) {
            open_with("");
            FullDisk disk(room);
            const test::AllocationFaults no_memory(nth);
            WriteCursor cursor(file_.handle(), 0);
            const std::string all = put_many(cursor);
            errno = 0;
            EXPECT_FALSE(cursor.commit()) << room << " " << nth;
            const int error = errno;
            EXPECT_TRUE(error == 0 || error == EFBIG) << error;
            EXPECT_EQ(0u, all.rfind(contents(), 0));
            EXPECT_GE(room, cursor.bytes_written());
            fields = nth == 0 ? cursor.fields_written() : fields;
            expected = nth == 0 ? contents() : expected;
            EXPECT_EQ(fields, cursor.fields_written()) << room << " " << nth;
            EXPECT_TRUE(expected == contents()) << room << " " << nth;
            EXPECT_TRUE(cursor.commit()) << "the next commit is another one";
        }
    }
}

TEST_F(WriteCursorTest, SmallThingsAreCollectedWithoutAskingForMemory) {
    open_with("");
    const test::AllocationFaults watch;
    WriteCursor cursor(file_.handle(), 0);
    for (int i = 0; i < 256; ++i) {
        cursor.put_le32(1);
    }
    EXPECT_TRUE(cursor.commit());
    EXPECT_EQ(0, watch.count());
}

TEST_F(WriteCursorTest, SettlingMovesTheFileAndSparesTheCommitItsMove) {
    open_with("abcdef");
    SystemCallFaults watch;
    WriteCursor cursor(file_.handle(), 4);
    EXPECT_TRUE(cursor.settle());
    cursor.put("X", 1);
    EXPECT_TRUE(cursor.commit());
    EXPECT_EQ(1, watch.count(SystemCall::lseek));
    EXPECT_EQ("abcdXf", contents());
    watch.fail(SystemCall::lseek, 2, EINVAL);
    cursor.seek(1);
    EXPECT_FALSE(cursor.settle());
    EXPECT_EQ(EINVAL, errno);
}

TEST_F(WriteCursorTest, AfterAFailedCommitTheCursorIsEmptyAndUsable) {
    open_with("abcdef");
    SystemCallFaults faults;
    faults.fail(SystemCall::write, 1, EIO);
    WriteCursor cursor(file_.handle(), 0);
    cursor.put("XYZ", 3);
    EXPECT_FALSE(cursor.commit());
    EXPECT_EQ(0u, cursor.bytes());
    cursor.seek(1);
    cursor.put("1", 1);
    EXPECT_TRUE(cursor.commit());
    EXPECT_EQ("a1cdef", contents());
    EXPECT_EQ(1u, cursor.fields_written());
}

} // namespace
} // namespace velmora
