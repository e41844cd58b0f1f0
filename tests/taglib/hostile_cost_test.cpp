#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "taglib/asf/load_file_info.h"
#include "taglib/asf/store_file_info.h"
#include "taglib/avi/load_file_info.h"
#include "taglib/avi/remove_file_info.h"
#include "taglib/avi/store_file_info.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <malloc.h>
#include <ostream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

/** Files of as many small things as fit: what they take in memory stays in proportion to their size. */
namespace velmora::test {
namespace {

#if defined(__SANITIZE_ADDRESS__)
constexpr bool memory_is_the_programs = false; // the sanitizer's own is several times as much
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool memory_is_the_programs = false;
#else
constexpr bool memory_is_the_programs = true;
#endif
#else
constexpr bool memory_is_the_programs = true;
#endif

constexpr std::size_t file_size = 1024 * 1024;
/** What a program may take whatever the file: a loaded C++ library, a slab begun, a buffer. */
constexpr long fixed_kibibytes = 2 * 1024;

std::string le(std::uint64_t value, int width) {
    std::string bytes;
    for (int i = 0; i < width; ++i) {
        bytes += static_cast<char>(value >> (8 * i) & 0xFF);
    }
    return bytes;
}

std::string repeated(const std::string& unit, std::size_t size) {
    std::string bytes;
    bytes.reserve(size + unit.size());
    while (!unit.empty() && bytes.size() + unit.size() <= size) {
        bytes += unit;
    }
    return bytes;
}

std::string avi_of(const std::string& chunks) {
    return "RIFF" + le(chunks.size() + 4, 4) + "AVI " + chunks;
}

std::string info_list(const std::string& sub_chunks) {
    return "LIST" + le(sub_chunks.size() + 4, 4) + "INFO" + sub_chunks;
}

std::string asf_object(const char* guid, const std::string& body) {
    return hex(guid) + le(24 + body.size(), 8) + body;
}

constexpr const char* header_guid = "30 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C";
constexpr const char* cd_guid = "33 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C";
constexpr const char* ecd_guid = "40 A4 D0 D2 07 E3 D2 11 97 F0 00 A0 C9 5E A8 50";
constexpr const char* padding_guid = "74 D4 06 18 DF CA 09 45 A4 BA 9A AB CB 96 AA E8";
constexpr const char* other_guid = "A1 DC AB 8C 47 A9 CF 11 8E E4 00 C0 0C 20 53 65";

/** A header of as many CHILDren as fit, in front of media data that can move. */
std::string asf_of(const std::string& child) {
    const std::string children = repeated(child, file_size);
    return asf_object(header_guid, le(children.size() / child.size(), 4) + le(0, 2) + children) +
           std::string(65536, 'm');
}

/** An extended content description of COUNT times DESCRIPTOR. (The first one of a file, which has 65,535 at
   most, becomes records: up to 8 MiB, whatever the file's size.) */
std::string ecd_of(std::size_t count, const std::string& descriptor) {
    return asf_object(ecd_guid, le(count, 2) + repeated(descriptor, count * descriptor.size()));
}

enum class Format { asf, avi };

struct Sample {
    const char* name;
    Format format;
    std::string (*bytes)();
};

void PrintTo(const Sample& sample, std::ostream* out) {
    *out << sample.name;
}

std::string empty_descriptor() {
    return std::string(6, '\0');
}

const Sample samples[] = {
    {"AviEmptySubChunks", Format::avi,
     [] { return avi_of(info_list(repeated("ITST" + le(0, 4), file_size))); }},
    {"AviSubChunksOfAByte", Format::avi,
     [] { return avi_of(info_list(repeated("ITST" + le(1, 4) + "x" + le(0, 1), file_size))); }},
    {"AviSubChunksOf1030Bytes", Format::avi,
     [] { return avi_of(info_list(repeated("ITST" + le(1030, 4) + std::string(1030, 'x'), file_size))); }},
    {"AviEmptyListsInTheList", Format::avi,
     [] { return avi_of(info_list(repeated("LIST" + le(0, 4), file_size))); }},
    {"AviEmptyChunks", Format::avi, [] { return avi_of(repeated("JUNK" + le(0, 4), file_size)); }},
    {"AviEmptyInfoLists", Format::avi, [] { return avi_of(repeated(info_list(""), file_size)); }},
    {"AviInfoListsOfOne", Format::avi,
     [] { return avi_of(repeated(info_list("ITST" + le(0, 4)), file_size)); }},
    {"AviInfoListsOfOneByte", Format::avi,
     [] { return avi_of(repeated(info_list("ITST" + le(2, 4) + "xy"), file_size)); }},
    {"AviInfoListsOfThree", Format::avi,
     [] { return avi_of(repeated(info_list(repeated("ITST" + le(2, 4) + "xy", 30)), file_size)); }},
    {"AsfEmptyDescriptors", Format::asf, [] { return asf_of(ecd_of(2000, empty_descriptor())); }},
    {"AsfDescriptorsOfAByte", Format::asf,
     [] { return asf_of(ecd_of(2000, le(1, 2) + "n" + le(1, 2) + le(1, 2) + "v")); }},
    {"AsfListsOfOneDescriptor", Format::asf, [] { return asf_of(ecd_of(1, empty_descriptor())); }},
    {"AsfEmptyLists", Format::asf, [] { return asf_of(ecd_of(0, "")); }},
    {"AsfDescriptionsOfFiveBytes", Format::asf,
     [] {
         return asf_of(asf_object(cd_guid, le(1, 2) + le(1, 2) + le(1, 2) + le(1, 2) + le(1, 2) + "abcde"));
     }},
    {"AsfEmptyDescriptions", Format::asf, [] { return asf_of(asf_object(cd_guid, std::string(10, '\0'))); }},
    {"AsfPaddings", Format::asf, [] { return asf_of(asf_object(padding_guid, "")); }},
    {"AsfOtherObjects", Format::asf, [] { return asf_of(asf_object(other_guid, "")); }},
};

enum class Work { load, store, remove };

bool done(Format format, Work work, const char* path) {
    char title[] = "A title";
    _file_info_t info{};
    if (work == Work::load) {
        const int result =
            format == Format::asf ? asf_load_file_info(path, &info) : avi_load_file_info(path, &info);
        id3_free_file_info(&info);
        return result == 1;
    }
    info.title = title;
    info.flags = file_info_flag::title;
    if (work == Work::store) {
        return (format == Format::asf ? asf_store_file_info(path, &info)
                                      : avi_store_file_info(path, &info)) == 1;
    }
    return (format == Format::asf ? asf_remove_file_info(path) : avi_remove_file_info(path)) == 1;
}

long peak_kibibytes() {
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    return usage.ru_maxrss;
}

/** What the work adds to the memory of a process of its own; -1 when it fails. */
long memory_of(Format format, Work work, const std::string& path) {
    int ends[2];
    EXPECT_EQ(0, ::pipe(ends));
    const pid_t child = ::fork();
    if (child == 0) {
        // As in a new process: in this one the threshold follows the large blocks that it has freed.
        ::mallopt(M_MMAP_THRESHOLD, 128 * 1024);
        ::dup2(::open("/dev/null", O_WRONLY | O_CLOEXEC), STDERR_FILENO);
        const long before = peak_kibibytes();
        const long growth = done(format, work, path.c_str()) ? peak_kibibytes() - before : -1;
        std::_Exit(::write(ends[1], &growth, sizeof growth) == sizeof growth ? 0 : 1);
    }
    long growth = -1;
    ::close(ends[1]);
    EXPECT_EQ(static_cast<ssize_t>(sizeof growth), ::read(ends[0], &growth, sizeof growth));
    ::close(ends[0]);
    int status = -1;
    EXPECT_EQ(child, ::waitpid(child, &status, 0));
    return growth;
}

class HostileCost : public testing::TestWithParam<Sample> {};

TEST_P(HostileCost, MemoryIsAtMostFourTimesTheFile) {
    if (!memory_is_the_programs) {
        GTEST_SKIP();
    }
    const ScratchFolder folder;
    const std::string path = folder / "file";
    const long limit = static_cast<long>(4 * file_size / 1024) + fixed_kibibytes;
    for (const Work work : {Work::load, Work::store, Work::remove}) {
        write_file(path, GetParam().bytes());
        const long growth = memory_of(GetParam().format, work, path);
        EXPECT_GE(growth, 0) << static_cast<int>(work);
        EXPECT_LE(growth, limit) << static_cast<int>(work);
        RecordProperty("KiB" + std::to_string(static_cast<int>(work)), static_cast<int>(growth));
    }
}

INSTANTIATE_TEST_SUITE_P(Files, HostileCost, testing::ValuesIn(samples),
                         [](const auto& instance) { return instance.param.name; });

} // namespace
} // namespace velmora::test
