#include "open_file.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "support/system_call_faults.h"
#include "taglib/fio.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {
namespace {

using test::hex;
using test::OpenFile;
using test::read_file;
using test::ScratchFolder;
using test::StreamCapture;
using test::SystemCall;
using test::SystemCallFaults;
using test::to_hex;
using test::write_file;

TEST(FioHandle, BeginsWithTheDescriptor) {
    EXPECT_EQ(0u, offsetof(FIOFUNCSTRUCT, descriptor));
    EXPECT_EQ(4u, sizeof(FIOFUNCSTRUCT::descriptor));
}

TEST(FioOpen, StoresTheDescriptorAndReturnsZero) {
    const ScratchFolder folder;
    write_file(folder / "file", "abc");
    FIOFUNCSTRUCT file{-7};
    ASSERT_EQ(0, fio_open((folder / "file").c_str(), O_RDONLY, 0, &file));
    EXPECT_GE(file.descriptor, 0);
    char c = 0;
    EXPECT_EQ(1, ::read(file.descriptor, &c, 1));
    EXPECT_EQ('a', c);
    fio_close(&file);
}

TEST(FioOpen, OfAMissingFileStoresMinusOneAndReturnsMinusOne) {
    const ScratchFolder folder;
    FIOFUNCSTRUCT file{7};
    errno = 0;
    EXPECT_EQ(-1, fio_open((folder / "missing").c_str(), O_RDONLY, 0, &file));
    EXPECT_EQ(ENOENT, errno);
    EXPECT_EQ(-1, file.descriptor);
}

TEST(FioOpen, PassesTheFlagsOn) {
    const ScratchFolder folder;
    write_file(folder / "file", "abc");
    FIOFUNCSTRUCT file{};
    ASSERT_EQ(0, fio_open((folder / "file").c_str(), O_RDWR | O_TRUNC, 0, &file));
    fio_close(&file);
    EXPECT_EQ("", read_file(folder / "file"));
    EXPECT_EQ(-1, fio_open((folder / "file").c_str(), O_RDWR | O_CREAT | O_EXCL, 0600, &file));
    EXPECT_EQ(EEXIST, errno);
}

TEST(FioOpen, GivesANewFileTheMode) {
    const ScratchFolder folder;
    const mode_t mask = ::umask(0);
    FIOFUNCSTRUCT file{};
    ASSERT_EQ(0, fio_open((folder / "new").c_str(), O_RDWR | O_CREAT, 0640, &file));
    ::umask(mask);
    fio_close(&file);
    struct stat status {};
    ASSERT_EQ(0, ::stat((folder / "new").c_str(), &status));
    EXPECT_EQ(0640u, status.st_mode & 07777);
}

TEST(FioOpen, TakesAPathOfAnyBytes) {
    const ScratchFolder folder;
    const std::string path = folder / "\xFF\x01#?%\n\xC3";
    write_file(path, "abc");
    FIOFUNCSTRUCT file{};
    EXPECT_EQ(0, fio_open(path.c_str(), O_RDONLY, 0, &file));
    fio_close(&file);
}

TEST(FioClose, ClosesAndLeavesTheRecordAsItIs) {
    const ScratchFolder folder;
    write_file(folder / "file", "abc");
    FIOFUNCSTRUCT file{};
    ASSERT_EQ(0, fio_open((folder / "file").c_str(), O_RDONLY, 0, &file));
    const int descriptor = file.descriptor;
    EXPECT_EQ(0, fio_close(&file));
    EXPECT_EQ(descriptor, file.descriptor);
    EXPECT_EQ(-1, ::fcntl(descriptor, F_GETFD));
}

TEST(FioClose, ReturnsTheFailureOfClose) {
    FIOFUNCSTRUCT file{-1};
    EXPECT_EQ(-1, fio_close(&file));
    EXPECT_EQ(EBADF, errno);
}

TEST(FioRead, ReturnsTheBytesReadAndZeroAtTheEnd) {
    OpenFile file("abcde");
    char buffer[8] = "-------";
    EXPECT_EQ(3, fio_read(file.handle(), buffer, 3));
    EXPECT_STREQ("abc----", buffer);
    EXPECT_EQ(2, fio_read(file.handle(), buffer, 7));
    EXPECT_STREQ("dec----", buffer);
    EXPECT_EQ(0, fio_read(file.handle(), buffer, 7));
}

TEST(FioRead, ReturnsMinusOneOnFailure) {
    const ScratchFolder folder;
    FIOFUNCSTRUCT file{};
    ASSERT_EQ(0, fio_open(folder.path().c_str(), O_RDONLY, 0, &file));
    char c = 'u';
    EXPECT_EQ(-1, fio_read(&file, &c, 1));
    EXPECT_EQ(EISDIR, errno);
    fio_close(&file);
}

TEST(FioRead, IsNotTriedAgainAfterAnInterruption) {
    OpenFile file("abc");
    SystemCallFaults faults;
    faults.fail(SystemCall::read, 1, EINTR);
    char c = 'u';
    EXPECT_EQ(-1, fio_read(file.handle(), &c, 1));
    EXPECT_EQ(EINTR, errno);
    EXPECT_EQ(1, faults.count());
}

TEST(FioWrite, ReturnsTheBytesWritten) {
    OpenFile file("abcde");
    EXPECT_EQ(2, fio_write(file.handle(), "XY", 2));
    EXPECT_EQ("58 59 63 64 65 ", to_hex(file.contents()));
}

TEST(FioWrite, OfNoBytesReturnsZeroAndLeavesTheFilesLength) {
    OpenFile file("abcde");
    EXPECT_EQ(2, fio_lseek(file.handle(), 2, SEEK_SET));
    EXPECT_EQ(0, fio_write(file.handle(), "", 0));
    EXPECT_EQ(9, fio_lseek(file.handle(), 9, SEEK_SET));
    EXPECT_EQ(0, fio_write(file.handle(), "", 0));
    EXPECT_EQ("61 62 63 64 65 ", to_hex(file.contents()));
}

TEST(FioWrite, IsNeitherTriedAgainNorCompletedAfterAShortCount) {
    OpenFile file("");
    SystemCallFaults faults;
    faults.cut_short(SystemCall::write, 1, 2);
    EXPECT_EQ(2, fio_write(file.handle(), "abcde", 5));
    EXPECT_EQ(1, faults.count());
}

TEST(FioWrite, ReturnsMinusOneOnFailure) {
    OpenFile file("");
    SystemCallFaults faults;
    faults.fail(SystemCall::write, 1, ENOSPC);
    EXPECT_EQ(-1, fio_write(file.handle(), "abcde", 5));
    EXPECT_EQ(ENOSPC, errno);
}

TEST(FioLseek, ReturnsTheNewPosition) {
    OpenFile file("abcde");
    EXPECT_EQ(4, fio_lseek(file.handle(), 4, SEEK_SET));
    EXPECT_EQ(3, fio_lseek(file.handle(), -1, SEEK_CUR));
    EXPECT_EQ(2, fio_lseek(file.handle(), -3, SEEK_END));
}

TEST(FioLseek, GoesBeyondFourGigabytesAndBack) {
    OpenFile file("abcde");
    EXPECT_EQ(0x1'2345'6789, fio_lseek(file.handle(), 0x1'2345'6789, SEEK_SET));
    EXPECT_EQ(0x1'2345'6789, fio_ltell(file.handle()));
    EXPECT_EQ(0x2345'6789, fio_lseek(file.handle(), -0x1'0000'0000, SEEK_CUR));
}

TEST(FioLseek, BeforeTheBeginningFailsAndStaysInPlace) {
    OpenFile file("abcde");
    EXPECT_EQ(3, fio_lseek(file.handle(), 3, SEEK_SET));
    EXPECT_EQ(-1, fio_lseek(file.handle(), -10, SEEK_END));
    EXPECT_EQ(EINVAL, errno);
    EXPECT_EQ(3, fio_ltell(file.handle()));
}

TEST(FioLtell, IsOneSeekByNothing) {
    OpenFile file("abcde");
    SystemCallFaults faults;
    EXPECT_EQ(0, fio_ltell(file.handle()));
    ASSERT_EQ(1, faults.count());
    EXPECT_EQ(SystemCall::lseek, faults.records()[0].call);
    EXPECT_EQ(0, faults.records()[0].requested);
}

TEST(FioStat, TellsOfThePath) {
    const ScratchFolder folder;
    write_file(folder / "file", "abc");
    struct stat status {};
    EXPECT_EQ(0, fio_stat((folder / "file").c_str(), &status));
    EXPECT_EQ(3, status.st_size);
    EXPECT_EQ(-1, fio_stat((folder / "missing").c_str(), &status));
    EXPECT_EQ(ENOENT, errno);
}

TEST(FioGet, ReadersTakeTheirOrderAndWidth) {
    OpenFile file(hex("81  0182 0182  010203  01020384 01020384  0102030405060788 55"));
    EXPECT_EQ(0x81, fio_get_byte(file.handle()));
    EXPECT_EQ(0x8201, fio_get_le16(file.handle()));
    EXPECT_EQ(0x0182, fio_get_be16(file.handle()));
    EXPECT_EQ(0x010203u, fio_get_be24(file.handle()));
    EXPECT_EQ(0x84030201u, fio_get_le32(file.handle()));
    EXPECT_EQ(0x01020384u, fio_get_be32(file.handle()));
    EXPECT_EQ(0x8807060504030201u, fio_get_le64(file.handle()));
    EXPECT_EQ(24, fio_ltell(file.handle()));
}

TEST(FioGet, ReadersMakeOneReadOfTheirWidth) {
    OpenFile file(hex("81  0182 0182  010203  01020384 01020384  0102030405060788"));
    SystemCallFaults faults;
    std::uint64_t sum = fio_get_byte(file.handle());
    sum += fio_get_le16(file.handle());
    sum += fio_get_be16(file.handle());
    sum += fio_get_be24(file.handle());
    sum += fio_get_le32(file.handle());
    sum += fio_get_be32(file.handle());
    sum += fio_get_le64(file.handle());
    EXPECT_NE(0u, sum);
    std::string widths;
    for (const test::SystemCallRecord& record : faults.records()) {
        widths += test::name_of(record.call) + std::to_string(record.requested) + " ";
    }
    EXPECT_EQ("read1 read2 read2 read3 read4 read4 read8 ", widths);
}

TEST(FioGet, ReadersAreZeroAtTheEnd) {
    OpenFile file("");
    EXPECT_EQ(0u, fio_get_byte(file.handle()));
    EXPECT_EQ(0u, fio_get_le16(file.handle()));
    EXPECT_EQ(0u, fio_get_be16(file.handle()));
    EXPECT_EQ(0u, fio_get_be24(file.handle()));
    EXPECT_EQ(0u, fio_get_le32(file.handle()));
    EXPECT_EQ(0u, fio_get_be32(file.handle()));
    EXPECT_EQ(0u, fio_get_le64(file.handle()));
}

/** The value of READER over a file that is cut to BYTES. */
template <typename Reader>
std::uint64_t over(Reader reader, std::string_view bytes) {
    OpenFile file(bytes);
    return reader(file.handle());
}

TEST(FioGet, LittleEndianReadersKeepZerosAboveWhatAShortReadGives) {
    EXPECT_EQ(0x81u, over(fio_get_le16, "\x81"));
    EXPECT_EQ(0x81u, over(fio_get_le32, "\x81"));
    EXPECT_EQ(0x8281u, over(fio_get_le32, "\x81\x82"));
    EXPECT_EQ(0x838281u, over(fio_get_le32, "\x81\x82\x83"));
    EXPECT_EQ(0x8281u, over(fio_get_le64, "\x81\x82"));
    EXPECT_EQ(0x87868584838281u, over(fio_get_le64, "\x81\x82\x83\x84\x85\x86\x87"));
}

TEST(FioGet, BigEndianReadersKeepZerosBelowWhatAShortReadGives) {
    EXPECT_EQ(0x8100u, over(fio_get_be16, "\x81"));
    EXPECT_EQ(0x810000u, over(fio_get_be24, "\x81"));
    EXPECT_EQ(0x818200u, over(fio_get_be24, "\x81\x82"));
    EXPECT_EQ(0x81000000u, over(fio_get_be32, "\x81"));
    EXPECT_EQ(0x81828300u, over(fio_get_be32, "\x81\x82\x83"));
}

TEST(FioGet, AFailedReadIsZeroAndSaysNothing) {
    OpenFile file("abcdefgh");
    StreamCapture transcript;
    SystemCallFaults faults;
    faults.fail(SystemCall::read, 1, EIO);
    EXPECT_EQ(0u, fio_get_le64(file.handle()));
    EXPECT_EQ("", transcript.text());
}

/** The bytes that WRITER leaves in a new file, and its result. */
template <typename Writer, typename Value>
std::string put(Writer writer, Value value) {
    OpenFile file("");
    const ssize_t count = writer(file.handle(), value);
    return to_hex(file.contents()) + "(" + std::to_string(count) + ")";
}

TEST(FioPut, WritersGiveTheirOrderAndTheWidth) {
    EXPECT_EQ("81 (1)", put(fio_put_byte, 0x81));
    EXPECT_EQ("02 81 (2)", put(fio_put_le16, 0x8102));
    EXPECT_EQ("81 02 (2)", put(fio_put_be16, 0x8102));
    EXPECT_EQ("04 03 02 81 (4)", put(fio_put_le32, 0x81020304u));
    EXPECT_EQ("81 02 03 04 (4)", put(fio_put_be32, 0x81020304u));
    EXPECT_EQ("08 07 06 05 04 03 02 01 (8)", put(fio_put_le64, 0x0102030405060708u));
}

TEST(FioPut, WritersMakeOneWriteOfTheirWidth) {
    OpenFile file("");
    SystemCallFaults faults;
    EXPECT_EQ(1, fio_put_byte(file.handle(), 1));
    EXPECT_EQ(2, fio_put_le16(file.handle(), 1));
    EXPECT_EQ(2, fio_put_be16(file.handle(), 1));
    EXPECT_EQ(4, fio_put_le32(file.handle(), 1));
    EXPECT_EQ(4, fio_put_be32(file.handle(), 1));
    EXPECT_EQ(8, fio_put_le64(file.handle(), 1));
    EXPECT_EQ(6, faults.count(SystemCall::write));
    EXPECT_EQ(6, faults.count());
}

TEST(FioPut, WritersReturnTheShortCount) {
    OpenFile file("");
    SystemCallFaults faults;
    faults.cut_short(SystemCall::write, 1, 5);
    EXPECT_EQ(5, fio_put_le64(file.handle(), 0x0102030405060708));
}

TEST(FioPut, WritersReturnTheFailure) {
    const ScratchFolder folder;
    write_file(folder / "file", "");
    FIOFUNCSTRUCT file{};
    ASSERT_EQ(0, fio_open((folder / "file").c_str(), O_RDONLY, 0, &file));
    EXPECT_EQ(-1, fio_put_byte(&file, 1));
    EXPECT_EQ(-1, fio_put_le16(&file, 1));
    EXPECT_EQ(-1, fio_put_be16(&file, 1));
    EXPECT_EQ(-1, fio_put_le32(&file, 1));
    EXPECT_EQ(-1, fio_put_be32(&file, 1));
    EXPECT_EQ(-1, fio_put_le64(&file, 1));
    fio_close(&file);
}

} // namespace
} // namespace velmora
