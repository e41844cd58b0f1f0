#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/** What the fuzz targets share. A target is one file with one LLVMFuzzerTestOneInput; it is linked either
   with libFuzzer, which makes the inputs, or with tests/fuzz/replay_main.cpp, which reads them from files.
   Besides sanitizer reports a target's findings are the properties that it requires. */
namespace velmora::fuzz {

/** Ends the program with PROPERTY on what was standard error at the start, unless HOLDS. */
void require(bool holds, const char* property);

/** Takes an input apart from the front. Behind the end everything is zero or empty. */
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

    [[nodiscard]] std::uint8_t byte();
    /** Little endian. */
    [[nodiscard]] std::uint64_t number(std::size_t bytes);
    /** A length byte and so many bytes. */
    [[nodiscard]] std::string bytes();
    /** A length byte and so many bytes; what is in front of the first zero byte in them. */
    [[nodiscard]] std::string text();
    [[nodiscard]] std::string rest() const { return std::string(rest_); }
    [[nodiscard]] bool at_end() const { return rest_.empty(); }

private:
    std::string_view rest_;
};

/** The file that a target works on: always the same path but for its extension, in a folder of the process's
   own, in memory where there is such a file system. */
class MediaFile {
public:
    explicit MediaFile(std::string_view bytes, std::string_view extension = {});
    ~MediaFile();
    MediaFile(const MediaFile&) = delete;
    MediaFile& operator=(const MediaFile&) = delete;

    [[nodiscard]] const char* path() const { return path_.c_str(); }
    /** 0 when the file is gone. */
    [[nodiscard]] std::uint64_t size() const;
    /** The whole contents; nothing when the file is gone. */
    [[nodiscard]] std::string bytes() const;
    /** Whether the folder holds anything else. */
    [[nodiscard]] bool has_neighbours() const;

private:
    std::string path_;
};

/** Requires that as many descriptors are open at its end as at its beginning. */
class DescriptorCheck {
public:
    DescriptorCheck();
    ~DescriptorCheck();
    DescriptorCheck(const DescriptorCheck&) = delete;
    DescriptorCheck& operator=(const DescriptorCheck&) = delete;

private:
    int lowest_free_;
};

} // namespace velmora::fuzz

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
