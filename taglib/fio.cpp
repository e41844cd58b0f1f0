#include "fio.h"

#include "byte_order.h"

#include <array>
#include <fcntl.h>
#include <unistd.h>

namespace velmora {

static_assert(sizeof(off_t) == sizeof(std::int64_t), "files are positioned with 64-bit offsets");

namespace {

/** One read of WIDTH bytes over zeros: what the read leaves out stays zero, all of it when it fails. */
template <std::size_t width>
std::array<std::uint8_t, width> read_zero_padded(FIOFUNCSTRUCT* file) {
    std::array<std::uint8_t, width> bytes{};
    [[maybe_unused]] const ssize_t unreported = fio_read(file, bytes.data(), width);
    return bytes;
}

} // namespace

int fio_open(const char* path, int flags, mode_t mode, FIOFUNCSTRUCT* file) {
    file->descriptor = ::open(path, flags, mode);
    return file->descriptor < 0 ? -1 : 0;
}

int fio_close(FIOFUNCSTRUCT* file) {
    return ::close(file->descriptor);
}

ssize_t fio_read(FIOFUNCSTRUCT* file, void* buffer, std::size_t length) {
    return ::read(file->descriptor, buffer, length);
}

ssize_t fio_write(FIOFUNCSTRUCT* file, const void* buffer, std::size_t length) {
    return ::write(file->descriptor, buffer, length);
}

std::int64_t fio_lseek(FIOFUNCSTRUCT* file, std::int64_t offset, int whence) {
    return ::lseek(file->descriptor, offset, whence);
}

std::int64_t fio_ltell(FIOFUNCSTRUCT* file) {
    return ::lseek(file->descriptor, 0, SEEK_CUR);
}

int fio_stat(const char* path, struct stat* status) {
    return ::stat(path, status);
}

std::uint8_t fio_get_byte(FIOFUNCSTRUCT* file) {
    return read_zero_padded<1>(file)[0];
}

std::uint16_t fio_get_le16(FIOFUNCSTRUCT* file) {
    return load_le16(read_zero_padded<2>(file).data());
}

std::uint16_t fio_get_be16(FIOFUNCSTRUCT* file) {
    return load_be16(read_zero_padded<2>(file).data());
}

std::uint32_t fio_get_be24(FIOFUNCSTRUCT* file) {
    return load_be24(read_zero_padded<3>(file).data());
}

std::uint32_t fio_get_le32(FIOFUNCSTRUCT* file) {
    return load_le32(read_zero_padded<4>(file).data());
}

std::uint32_t fio_get_be32(FIOFUNCSTRUCT* file) {
    return load_be32(read_zero_padded<4>(file).data());
}

std::uint64_t fio_get_le64(FIOFUNCSTRUCT* file) {
    return load_le64(read_zero_padded<8>(file).data());
}

ssize_t fio_put_byte(FIOFUNCSTRUCT* file, std::uint8_t value) {
    return fio_write(file, &value, sizeof value);
}

ssize_t fio_put_le16(FIOFUNCSTRUCT* file, std::uint16_t value) {
    std::uint8_t bytes[2];
    store_le16(bytes, value);
    return fio_write(file, bytes, sizeof bytes);
}

ssize_t fio_put_be16(FIOFUNCSTRUCT* file, std::uint16_t value) {
    std::uint8_t bytes[2];
    store_be16(bytes, value);
    return fio_write(file, bytes, sizeof bytes);
}

ssize_t fio_put_le32(FIOFUNCSTRUCT* file, std::uint32_t value) {
    std::uint8_t bytes[4];
    store_le32(bytes, value);
    return fio_write(file, bytes, sizeof bytes);
}

ssize_t fio_put_be32(FIOFUNCSTRUCT* file, std::uint32_t value) {
    std::uint8_t bytes[4];
    store_be32(bytes, value);
    return fio_write(file, bytes, sizeof bytes);
}

ssize_t fio_put_le64(FIOFUNCSTRUCT* file, std::uint64_t value) {
    std::uint8_t bytes[8];
    store_le64(bytes, value);
    return fio_write(file, bytes, sizeof bytes);
}

} // namespace velmora
