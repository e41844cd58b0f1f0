#pragma once

#include <cstddef>
#include <cstdint>
#include <sys/stat.h>
#include <sys/types.h>

/** File access of the tag library: a direct mapping onto the POSIX calls, with no buffering, no retry and no
   error translation. Results are those of the POSIX call unless said otherwise; nothing here logs. */
namespace velmora {

/** The open-file handle that every tag function takes by pointer. The caller owns the record; fio_open fills
   it and fio_close leaves it as it is. */
struct FIOFUNCSTRUCT {
    int descriptor;
};

/** Opens PATH (file system encoding) with open(2)'s flags and MODE and stores the descriptor, also -1, in
   FILE. Returns 0, or -1 on failure with errno set. */
[[nodiscard]] int fio_open(const char* path, int flags, mode_t mode, FIOFUNCSTRUCT* file);
int fio_close(FIOFUNCSTRUCT* file);
[[nodiscard]] ssize_t fio_read(FIOFUNCSTRUCT* file, void* buffer, std::size_t length);
[[nodiscard]] ssize_t fio_write(FIOFUNCSTRUCT* file, const void* buffer, std::size_t length);
/** Returns the new position from the start of the file, or -1. */
std::int64_t fio_lseek(FIOFUNCSTRUCT* file, std::int64_t offset, int whence);
/** The current position. */
[[nodiscard]] std::int64_t fio_ltell(FIOFUNCSTRUCT* file);
/** Nothing in the program calls it. */
[[nodiscard]] int fio_stat(const char* path, struct stat* status);

/* Typed readers: one read of the value's width into a zeroed value. What a short read leaves out stays zero,
   and nothing reports it. The name gives the byte order on disk. Nothing in the program calls them: it reads
   through ReadCursor. */
[[nodiscard]] std::uint8_t fio_get_byte(FIOFUNCSTRUCT* file);
[[nodiscard]] std::uint16_t fio_get_le16(FIOFUNCSTRUCT* file);
[[nodiscard]] std::uint16_t fio_get_be16(FIOFUNCSTRUCT* file);
[[nodiscard]] std::uint32_t fio_get_be24(FIOFUNCSTRUCT* file);
[[nodiscard]] std::uint32_t fio_get_le32(FIOFUNCSTRUCT* file);
[[nodiscard]] std::uint32_t fio_get_be32(FIOFUNCSTRUCT* file);
[[nodiscard]] std::uint64_t fio_get_le64(FIOFUNCSTRUCT* file);

/* Typed writers: one write of the value's width; the result is that of write(2). There is no 24-bit and no
   big-endian 64-bit writer: no format that is written here needs one. Nothing in the program calls them: it
   writes through WriteCursor. */
[[nodiscard]] ssize_t fio_put_byte(FIOFUNCSTRUCT* file, std::uint8_t value);
[[nodiscard]] ssize_t fio_put_le16(FIOFUNCSTRUCT* file, std::uint16_t value);
[[nodiscard]] ssize_t fio_put_be16(FIOFUNCSTRUCT* file, std::uint16_t value);
[[nodiscard]] ssize_t fio_put_le32(FIOFUNCSTRUCT* file, std::uint32_t value);
[[nodiscard]] ssize_t fio_put_be32(FIOFUNCSTRUCT* file, std::uint32_t value);
[[nodiscard]] ssize_t fio_put_le64(FIOFUNCSTRUCT* file, std::uint64_t value);

} // namespace velmora
