#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "taglib/fio.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <unistd.h>

namespace velmora {
namespace {

using test::hex;
using test::read_file;
using test::ScratchFolder;
using test::to_hex;
using test::write_file;

/** A file of given bytes, open for reading and writing. */
class OpenFile {
public:
    explicit OpenFile(std::string_view bytes) : path_(folder_ / "file") {
        write_file(path_, bytes);
        EXPECT_EQ(0, fio_open(path_.c_str(), O_RDWR, 0, &file_));
    }
    ~OpenFile() { fio_close(&file_); }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    [[nodiscard]] FIOFUNCSTRUCT* handle() { return &file_; }
    [[nodiscard]] std::string contents() const { return to_hex(read_file(path_)); }

private:
    ScratchFolder folder_;
    std::string path_;
    FIOFUNCSTRUCT file_{};
};

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

TEST(FioGet, ReadersTakeTheirOrderAndWidth) {
    OpenFile file(hex("81  0102 0102  010203  01020384 01020384  0102030405060788 55"));
    EXPECT_EQ(0x81, fio_get_byte(file.handle()));
    EXPECT_EQ(0x0201, fio_get_le16(file.handle()));
    EXPECT_EQ(0x0102, fio_get_be16(file.handle()));
    EXPECT_EQ(0x010203u, fio_get_be24(file.handle()));
    EXPECT_EQ(0x84030201u, fio_get_le32(file.handle()));
    EXPECT_EQ(0x01020384u, fio_get_be32(file.handle()));
    EXPECT_EQ(0x8807060504030201u, fio_get_le64(file.handle()));
    EXPECT_EQ(24, fio_ltell(file.handle()));
}

TEST(FioPut, LittleEndian64WritesTheLowByteFirst) {
    OpenFile file("");
    EXPECT_EQ(8, fio_put_le64(file.handle(), 0x0102030405060708));
    EXPECT_EQ("08 07 06 05 04 03 02 01 ", file.contents());
}

} // namespace
} // namespace velmora
