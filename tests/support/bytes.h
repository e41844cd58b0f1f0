#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/** Byte strings for tests: written out by hand, compared whole. */
namespace velmora::test {

/** Bytes from hexadecimal digits; blanks and line ends are ignored. hex("49 44 33") is "ID3". */
[[nodiscard]] std::string hex(std::string_view digits);

/** The digits of BYTES, for readable failure messages. */
[[nodiscard]] std::string to_hex(std::string_view bytes);

/** COUNT bytes that follow a fixed pattern without long repeats, for media data that must come through
   unchanged. */
[[nodiscard]] std::string pattern(std::size_t count, unsigned seed = 1);

/** A whole file's bytes; fails the test when it can't be read. */
[[nodiscard]] std::string read_file(const std::string& path);

/** Writes a whole file; fails the test when it can't be written. */
void write_file(const std::string& path, std::string_view bytes);

/** Makes a file of SIZE bytes that holds BYTES at OFFSET and holes elsewhere. */
void write_sparse_file(const std::string& path, long long size, std::string_view bytes, long long offset);

[[nodiscard]] bool file_exists(const std::string& path);

} // namespace velmora::test
