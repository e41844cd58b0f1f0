#include "bytes.h"

#include <gtest/gtest.h>

#include <array>
#include <cctype>
#include <cstdint>
#include <fcntl.h>
#include <fstream>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora::test {

std::string hex(std::string_view digits) {
    std::string bytes;
    int high = -1;
    for (const char c : digits) {
        if (std::isspace(static_cast<unsigned char>(c))) {
            continue;
        }
        const int value = c >= '0' && c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10;
        EXPECT_TRUE(value >= 0 && value < 16) << "no hexadecimal digit: " << c;
        if (high < 0) {
            high = value;
        } else {
            bytes.push_back(static_cast<char>(high * 16 + value));
            high = -1;
        }
    }
    EXPECT_LT(high, 0) << "odd number of digits";
    return bytes;
}

std::string to_hex(std::string_view bytes) {
    static const char digits[] = "0123456789abcdef";
    std::string text;
    for (const unsigned char byte : bytes) {
        text += digits[byte >> 4];
        text += digits[byte & 15];
        text += ' ';
    }
    return text;
}

std::string pattern(std::size_t count, unsigned seed) {
    std::string bytes(count, '\0');
    std::uint32_t state = seed * 2654435761u + 1;
    for (char& byte : bytes) {
        state = state * 1664525u + 1013904223u;
        byte = static_cast<char>(state >> 24);
    }
    return bytes;
}

std::string read_file(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    EXPECT_TRUE(stream.good()) << path;
    // In blocks: byte by byte it is a tenth of a long test's time, as nothing is optimised here.
    std::string bytes;
    std::array<char, 1 << 16> block;
    while (stream.read(block.data(), block.size()), stream.gcount() > 0) {
        bytes.append(block.data(), static_cast<std::size_t>(stream.gcount()));
    }
    return bytes;
}

void write_file(const std::string& path, std::string_view bytes) {
    std::ofstream stream(path, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    EXPECT_TRUE(stream.good()) << path;
}

void write_sparse_file(const std::string& path, long long size, std::string_view bytes, long long offset) {
    const int descriptor = ::open(path.c_str(), O_RDWR | O_CREAT | O_TRUNC, 0644);
    ASSERT_GE(descriptor, 0) << path;
    EXPECT_EQ(0, ::ftruncate(descriptor, size));
    EXPECT_EQ(static_cast<ssize_t>(bytes.size()), ::pwrite(descriptor, bytes.data(), bytes.size(), offset));
    ::close(descriptor);
}

bool file_exists(const std::string& path) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0;
}

} // namespace velmora::test
