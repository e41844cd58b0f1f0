#include "taglib/read_cursor.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/system_call_faults.h"
#include "taglib/byte_file.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <vector>

namespace velmora {
namespace {

using test::hex;
using test::pattern;
using test::ScratchFolder;
using test::SystemCall;
using test::SystemCallFaults;
using test::write_file;

/** A file of given bytes, open for reading. */
class ReadFile {
public:
    explicit ReadFile(std::string_view bytes) {
        write_file(folder_ / "file", bytes);
        EXPECT_TRUE(file_.open((folder_ / "file").c_str(), O_RDONLY));
    }
    [[nodiscard]] FIOFUNCSTRUCT* handle() { return file_.handle(); }

private:
    ScratchFolder folder_;
    ByteFile file_;
};

std::span<const std::uint8_t> as_span(const std::string& bytes) {
    return {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()};
}

std::string read_text(ReadCursor& cursor, std::size_t length, ReadStatus expected = ReadStatus::whole) {
    std::string text(length, '?');
    EXPECT_EQ(expected, cursor.read(text.data(), length));
    return text;
}

TEST(ReadCursorNumbers, AreReadInTheOrderThatTheirNamesGive) {
    const std::string bytes = hex("01 0201 0102 010203 04030201 01020304 0807060504030201");
    ReadWindow window(as_span(bytes));
    ReadCursor cursor(window);
    std::uint8_t byte = 0;
    std::uint16_t le16 = 0;
    std::uint16_t be16 = 0;
    std::uint32_t be24 = 0;
    std::uint32_t le32 = 0;
    std::uint32_t be32 = 0;
    std::uint64_t le64 = 0;
    EXPECT_EQ(ReadStatus::whole, cursor.read_byte(&byte));
    EXPECT_EQ(ReadStatus::whole, cursor.read_le16(&le16));
    EXPECT_EQ(ReadStatus::whole, cursor.read_be16(&be16));
    EXPECT_EQ(ReadStatus::whole, cursor.read_be24(&be24));
    EXPECT_EQ(ReadStatus::whole, cursor.read_le32(&le32));
    EXPECT_EQ(ReadStatus::whole, cursor.read_be32(&be32));
    EXPECT_EQ(ReadStatus::whole, cursor.read_le64(&le64));
    EXPECT_EQ(0x01, byte);
    EXPECT_EQ(0x0102, le16);
    EXPECT_EQ(0x0102, be16);
    EXPECT_EQ(0x010203u, be24);
    EXPECT_EQ(0x01020304u, le32);
    EXPECT_EQ(0x01020304u, be32);
    EXPECT_EQ(0x0102030405060708u, le64);
    EXPECT_EQ(0u, cursor.left());
}

TEST(ReadCursorNumbers, CutByTheEndHaveZerosWhereBytesAreMissing) {
    const std::string bytes = hex("01 02");
    ReadWindow window(as_span(bytes));
    ReadCursor little(window);
    ReadCursor big(window);
    std::uint32_t value = 0xFFFFFFFF;
    EXPECT_EQ(ReadStatus::ended, little.read_le32(&value));
    EXPECT_EQ(0x00000201u, value);
    EXPECT_EQ(2u, little.position());
    EXPECT_EQ(ReadStatus::ended, big.read_be32(&value));
    EXPECT_EQ(0x01020000u, value);
    EXPECT_EQ(ReadStatus::ended, big.read_be32(&value));
    EXPECT_EQ(0u, value);
}

TEST(ReadCursorMemory, CountsFromItsOrigin) {
    const std::string bytes = "abcdef";
    ReadWindow window(as_span(bytes), 1000);
    ReadCursor cursor(window);
    EXPECT_EQ(1000u, cursor.position());
    EXPECT_EQ(6u, cursor.left());
    EXPECT_EQ("ab", read_text(cursor, 2));
    EXPECT_EQ(1002u, cursor.position());
    EXPECT_EQ(2u, cursor.offset());
    EXPECT_EQ(std::string("cdef\0\0", 6), read_text(cursor, 6, ReadStatus::ended));
    EXPECT_EQ(1006u, window.size());
    EXPECT_TRUE(cursor.settle());
    EXPECT_FALSE(window.failed());
}

TEST(ReadCursorMemory, MakesNoCall) {
    const std::string bytes = "abcdef";
    const SystemCallFaults watch;
    ReadWindow window(as_span(bytes));
    ReadCursor cursor(window);
    read_text(cursor, 8, ReadStatus::ended);
    EXPECT_EQ(0, watch.count());
}

TEST(ReadCursorSlice, EndsWithItsLengthOrItsParent) {
    const std::string bytes = "abcdefgh";
    ReadWindow window(as_span(bytes));
    ReadCursor whole(window);
    ASSERT_TRUE(whole.skip(2));
    ReadCursor child = whole.slice(3);
    EXPECT_EQ(2u, child.begin());
    EXPECT_EQ(5u, child.end());
    EXPECT_EQ(2u, whole.position());
    EXPECT_EQ(8u, child.slice(UINT64_MAX).end() + 3);
    EXPECT_EQ(std::string("cde\0", 4), read_text(child, 4, ReadStatus::ended));
    EXPECT_EQ(5u, child.position());
    EXPECT_EQ(0u, child.slice(1).left());
    EXPECT_EQ(8u, whole.slice(UINT64_MAX).end());
}

TEST(ReadCursorSeek, StaysWithinTheCursor) {
    const std::string bytes = "abcdefgh";
    ReadWindow window(as_span(bytes));
    ReadCursor cursor(window, 2, 6);
    EXPECT_FALSE(cursor.seek(1));
    EXPECT_FALSE(cursor.seek(7));
    EXPECT_EQ(2u, cursor.position());
    EXPECT_TRUE(cursor.seek(6));
    EXPECT_FALSE(cursor.skip(1));
    EXPECT_FALSE(cursor.skip(UINT64_MAX));
    EXPECT_TRUE(cursor.skip(0));
    EXPECT_TRUE(cursor.seek(5));
    EXPECT_EQ("f", read_text(cursor, 1));
    EXPECT_EQ(9u, ReadCursor(window, 9, 6).end());
}

TEST(ReadCursorFile, ReadsFieldsWithOneCall) {
    const std::string bytes = pattern(3000);
    ReadFile file(bytes);
    const SystemCallFaults watch;
    ReadWindow window(file.handle(), 0);
    ReadCursor cursor(window);
    for (std::size_t at = 0; at < 3000; at += 3) {
        ASSERT_EQ(bytes.substr(at, 3), read_text(cursor, 3)) << at;
    }
    EXPECT_EQ(1, watch.count());
}

TEST(ReadCursorFile, ReadsBlocksOfAnySizeFromAnyPlace) {
    const std::string bytes = pattern(50000);
    ReadFile file(bytes);
    ReadWindow window(file.handle());
    ReadCursor cursor(window);
    for (const std::size_t at : {0U, 4090U, 4096U, 100U, 8191U, 41000U, 3U}) {
        for (const std::size_t length : {0U, 1U, 10U, 4095U, 4096U, 4097U, 8999U}) {
            ASSERT_TRUE(cursor.seek(at));
            ASSERT_EQ(bytes.substr(at, length), read_text(cursor, length)) << at << " " << length;
            ASSERT_EQ(at + length, cursor.position());
        }
    }
    EXPECT_FALSE(window.failed());
}

TEST(ReadCursorFile, NeverReadsBehindItsEndNorWhereItMayNotRunAhead) {
    ReadFile file(pattern(3000));
    SystemCallFaults watch;
    ReadWindow window(file.handle(), 0);
    ReadCursor cursor(window, 0, 500);
    read_text(cursor, 4);
    EXPECT_EQ(500, watch.reach(SystemCall::read));
    ASSERT_TRUE(cursor.seek(490));
    read_text(cursor, 30, ReadStatus::ended);
    EXPECT_EQ(500, watch.reach(SystemCall::read));
    ReadCursor more(window, 600, 3000);
    more.set_ahead_end(612);
    read_text(more, 8);
    EXPECT_EQ(612, watch.reach(SystemCall::read));
    read_text(more, 20); // what is asked for is read, wherever it lies
    EXPECT_EQ(628, watch.reach(SystemCall::read));
}

TEST(ReadCursorFile, ASliceRunsAheadAsFarAsTheCursorItWasCutFrom) {
    ReadFile file(pattern(3000));
    const SystemCallFaults watch;
    ReadWindow window(file.handle(), 0);
    ReadCursor cursor(window, 0, 2000);
    ReadCursor child = cursor.slice(10);
    read_text(child, 4);
    ASSERT_TRUE(cursor.seek(1000));
    read_text(cursor, 4);
    EXPECT_EQ(1, watch.count());
    EXPECT_EQ(2000, watch.reach(SystemCall::read));
}

TEST(ReadCursorFile, TellsTheEndOfTheFile) {
    ReadFile file("abcdef");
    ReadWindow window(file.handle());
    ReadCursor cursor(window);
    ASSERT_TRUE(cursor.seek(4));
    EXPECT_EQ(std::string("ef\0\0", 4), read_text(cursor, 4, ReadStatus::ended));
    EXPECT_EQ(6u, cursor.position());
    EXPECT_EQ(std::string("\0", 1), read_text(cursor, 1, ReadStatus::ended));
    ASSERT_TRUE(cursor.seek(ReadWindow::no_end));
    EXPECT_EQ("", read_text(cursor, 0));
    EXPECT_FALSE(window.failed());
}

TEST(ReadCursorFile, MovesTheFileWhereItIsAskedTo) {
    ReadFile file(pattern(100));
    ReadWindow window(file.handle());
    ReadCursor cursor(window);
    read_text(cursor, 10);
    ASSERT_TRUE(cursor.settle());
    EXPECT_EQ(10, fio_ltell(file.handle()));
    ASSERT_TRUE(cursor.seek(5000));
    ASSERT_TRUE(cursor.settle());
    EXPECT_EQ(5000, fio_ltell(file.handle()));
    EXPECT_FALSE(window.settle(UINT64_MAX));
}

TEST(ReadWindowSize, CostsOneCallAndLeavesTheFileWhereTheNextReadIs) {
    const std::string bytes = pattern(3000);
    ReadFile file(bytes);
    const SystemCallFaults watch;
    ReadWindow window(file.handle(), 0);
    EXPECT_EQ(3000u, window.size(10));
    EXPECT_EQ(3000u, window.size());
    ReadCursor cursor(window, 2990, 3000);
    EXPECT_EQ(bytes.substr(2990), read_text(cursor, 10));
    EXPECT_EQ(2, watch.count());
}

TEST(ReadWindowSize, IsThatOfAFileThatIsShorterThanTheTailToo) {
    ReadFile file("abc");
    ReadWindow window(file.handle(), 0);
    EXPECT_EQ(3u, window.size(10));
    ReadCursor cursor(window);
    EXPECT_EQ("abc", read_text(cursor, 3));
}

TEST(ReadWindowSize, IsNotAskedForOnceMoreWhereTheSystemDidNotTell) {
    ReadFile file("0123456789");
    SystemCallFaults faults;
    faults.fail(SystemCall::lseek, 1, EIO);
    ReadWindow window(file.handle(), 0);
    EXPECT_EQ(std::nullopt, window.size(4));
    EXPECT_EQ(std::nullopt, window.size(4));
    EXPECT_EQ(1, faults.count());
}

TEST(ReadWindowSize, IsNothingWhereTheSystemDoesNotTell) {
    ReadFile file("abc");
    SystemCallFaults faults;
    faults.fail_from(SystemCall::lseek, 1, EIO);
    ReadWindow window(file.handle(), 0);
    EXPECT_EQ(std::nullopt, window.size());
    ReadCursor cursor(window);
    EXPECT_EQ(std::string(3, '\0'), read_text(cursor, 3, ReadStatus::failed));
}

TEST(ReadWindowLookAhead, TakesWhatFollowsWithOneRead) {
    const std::string bytes = pattern(9000);
    ReadFile file(bytes);
    const SystemCallFaults watch;
    ReadWindow window(file.handle());
    ASSERT_EQ(9000u, window.size(ReadWindow::capacity));
    window.look_ahead(9000 - ReadWindow::capacity);
    ReadCursor cursor(window);
    for (const std::size_t at : {8990U, 5000U, 4904U}) {
        ASSERT_TRUE(cursor.seek(at));
        EXPECT_EQ(bytes.substr(at, 10), read_text(cursor, 10));
    }
    EXPECT_EQ(2, watch.count());
}

TEST(ReadWindowForget, ReadsAnewWhatOthersWrote) {
    const ScratchFolder folder;
    write_file(folder / "file", "abc");
    ByteFile file;
    ASSERT_TRUE(file.open((folder / "file").c_str(), O_RDWR));
    ReadWindow window(file.handle(), 0);
    ReadCursor cursor(window);
    ASSERT_EQ(3u, window.size());
    EXPECT_EQ("ab", read_text(cursor, 2));
    ASSERT_EQ(0, fio_lseek(file.handle(), 0, SEEK_SET));
    ASSERT_EQ(4, fio_write(file.handle(), "wxyz", 4));
    window.forget();
    EXPECT_EQ("yz", read_text(cursor, 2));
    EXPECT_EQ(4u, window.size());
}

/** What reading fields of these widths, one after another, comes to. */
struct FieldRun {
    std::vector<ReadStatus> statuses;
    std::string bytes;
    int error = 0;
    bool operator==(const FieldRun&) const = default;
};

constexpr std::size_t widths[] = {4, 4, 10, 1, 2, 300, 8, 5000, 7, 4};

FieldRun read_fields(ReadCursor cursor) {
    FieldRun run;
    errno = 0;
    for (const std::size_t width : widths) {
        std::string bytes(width, '?');
        run.statuses.push_back(cursor.read(bytes.data(), width));
        run.bytes += bytes;
        if (run.statuses.back() == ReadStatus::failed) {
            break;
        }
    }
    run.error = errno;
    return run;
}

TEST(ReadCursorFault, ABlockThatCantBeReadIsReadFieldByField) {
    const std::string bytes = pattern(6000);
    ReadFile file(bytes);
    for (const int error : {EIO, EINTR}) {
        SystemCallFaults faults;
        faults.fail(SystemCall::read, 1, error);
        ReadWindow window(file.handle());
        const FieldRun run = read_fields(ReadCursor(window));
        EXPECT_TRUE(bytes.substr(0, 5340) == run.bytes);
        EXPECT_EQ(std::vector<ReadStatus>(std::size(widths), ReadStatus::whole), run.statuses);
        EXPECT_EQ(0, run.error);
        EXPECT_FALSE(window.failed());
        // The block, and then one read a field.
        EXPECT_EQ(1 + static_cast<int>(std::size(widths)), faults.count(SystemCall::read));
    }
}

TEST(ReadCursorFault, ABlockThatComesShortIsReadOnFromWhereItStopped) {
    const std::string bytes = pattern(6000);
    ReadFile file(bytes);
    for (std::size_t limit = 0; limit < 330; ++limit) {
        SystemCallFaults faults;
        faults.cut_short(SystemCall::read, 1, limit);
        ReadWindow window(file.handle());
        const FieldRun run = read_fields(ReadCursor(window));
        ASSERT_TRUE(bytes.substr(0, 5340) == run.bytes) << limit;
        ASSERT_EQ(0, run.error) << limit;
        ASSERT_FALSE(window.failed()) << limit;
    }
}

TEST(ReadCursorFault, AFailureIsToldOfTheFieldThatFailed) {
    ReadFile file(pattern(6000));
    SystemCallFaults faults;
    faults.cut_short(SystemCall::read, 1, 8);   // the medium gives the first two fields only
    faults.fail_from(SystemCall::read, 2, EIO); // and nothing else
    ReadWindow window(file.handle(), 0);
    const FieldRun run = read_fields(ReadCursor(window));
    using enum ReadStatus;
    EXPECT_EQ((std::vector<ReadStatus>{whole, whole, failed}), run.statuses);
    EXPECT_EQ(pattern(6000).substr(0, 8) + std::string(10, '\0'), run.bytes);
    EXPECT_EQ(EIO, run.error);
    EXPECT_TRUE(window.failed());
}

TEST(ReadCursorFault, AFieldThatBeginsInABlockAndFailsBehindItIsReadByItself) {
    const std::string bytes = pattern(6000);
    ReadFile file(bytes);
    for (const bool comes_in_part : {true, false}) {
        SystemCallFaults faults;
        faults.cut_short(SystemCall::read, 1, 10);
        faults.fail(SystemCall::read, 2, EIO); // the next block
        faults.fail(SystemCall::read, 3, EIO); // what is missing of the field
        if (comes_in_part) {
            faults.cut_short(SystemCall::read, 4, 2);
        } else {
            faults.fail(SystemCall::read, 4, ENXIO);
        }
        ReadWindow window(file.handle());
        ReadCursor cursor(window);
        errno = 0;
        read_text(cursor, 8);
        const std::size_t came = comes_in_part ? 2 : 0;
        EXPECT_EQ(bytes.substr(8, came) + std::string(10 - came, '\0'),
                  read_text(cursor, 10, ReadStatus::failed));
        EXPECT_EQ(8 + came, cursor.position());
        EXPECT_EQ(comes_in_part ? 0 : ENXIO, errno);
    }
}

TEST(ReadCursorFault, AFieldThatTheFileCutsOffIsNotReadTwice) {
    ReadFile file(pattern(6000));
    SystemCallFaults watch;
    ReadWindow window(file.handle());
    ASSERT_EQ(6000u, window.size());
    ReadCursor cursor(window);
    ASSERT_TRUE(cursor.seek(5990));
    read_text(cursor, 4);
    read_text(cursor, 10, ReadStatus::ended);
    EXPECT_EQ(6000u, cursor.position());
    EXPECT_EQ(1, watch.count(SystemCall::read));
}

TEST(ReadCursorFault, AReadThatStopsInFrontOfTheEndHasFailed) {
    ReadFile file(pattern(6000));
    SystemCallFaults faults;
    for (int nth = 1; nth <= 3; ++nth) {
        faults.cut_short(SystemCall::read, nth, 0);
    }
    ReadWindow window(file.handle(), 0);
    ReadCursor cursor(window);
    read_text(cursor, 4, ReadStatus::failed);
    EXPECT_EQ(0u, cursor.position());
    EXPECT_TRUE(window.failed());
}

TEST(ReadCursorFault, ASeekThatFailsIsAFailedRead) {
    ReadFile file(pattern(6000));
    SystemCallFaults faults;
    faults.fail_from(SystemCall::lseek, 1, EOVERFLOW);
    ReadWindow window(file.handle(), 0);
    ReadCursor cursor(window);
    ASSERT_TRUE(cursor.seek(100));
    read_text(cursor, 4, ReadStatus::failed);
    EXPECT_EQ(EOVERFLOW, errno);
    EXPECT_EQ(0, faults.count(SystemCall::read));
    EXPECT_FALSE(window.settle(5));
}

TEST(ReadCursorFault, AnUnreadableLookAheadIsNotSeen) {
    const std::string bytes = pattern(6000);
    ReadFile file(bytes);
    SystemCallFaults faults;
    faults.fail(SystemCall::read, 1, EIO);
    ReadWindow window(file.handle());
    errno = 0;
    window.look_ahead(1904);
    EXPECT_EQ(0, errno);
    ReadCursor cursor(window);
    ASSERT_TRUE(cursor.seek(5990));
    EXPECT_EQ(bytes.substr(5990), read_text(cursor, 10));
    EXPECT_FALSE(window.failed());
}

TEST(ByteFileClose, TellsWhatTheSystemTellsAndOnlyOnce) {
    const ScratchFolder folder;
    write_file(folder / "file", "abc");
    SystemCallFaults faults;
    faults.fail(SystemCall::close, 1, EIO);
    ByteFile file;
    EXPECT_FALSE(file.is_open());
    ASSERT_TRUE(file.open((folder / "file").c_str(), O_RDONLY));
    EXPECT_TRUE(file.is_open());
    EXPECT_FALSE(file.close());
    EXPECT_EQ(EIO, errno);
    EXPECT_TRUE(file.close());
    EXPECT_EQ(0, faults.open_descriptors());
    EXPECT_EQ(1, faults.count(SystemCall::close));
}

TEST(ByteFileDestructor, ClosesAndKeepsErrno) {
    const ScratchFolder folder;
    write_file(folder / "file", "abc");
    SystemCallFaults faults;
    faults.fail(SystemCall::close, 1, EIO);
    {
        ByteFile file;
        ASSERT_TRUE(file.open((folder / "file").c_str(), O_RDONLY));
        errno = 78;
    }
    EXPECT_EQ(78, errno);
    EXPECT_EQ(0, faults.open_descriptors());
}

TEST(ByteFileOpen, FailsWithTheSystemsError) {
    const ScratchFolder folder;
    ByteFile file;
    EXPECT_FALSE(file.open((folder / "none").c_str(), O_RDONLY));
    EXPECT_EQ(ENOENT, errno);
    EXPECT_FALSE(file.is_open());
    EXPECT_TRUE(file.close());
    EXPECT_TRUE(file.open((folder / "new").c_str(), O_RDWR | O_CREAT, 0644));
    EXPECT_TRUE(test::file_exists(folder / "new"));
}

} // namespace
} // namespace velmora
