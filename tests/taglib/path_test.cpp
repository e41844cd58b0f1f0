#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/system_call_faults.h"
#include "taglib/path.h"

#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <string>

namespace velmora {
namespace {

using test::ScratchFolder;
using test::SystemCall;
using test::SystemCallFaults;

using Name = std::array<char, temp_file_name_capacity>;

TEST(TempFileName, AsksTheGeneratorToFillSixCharactersBehindThePrefixAndADot) {
    Name name{};
    SystemCallFaults calls;
    EXPECT_EQ(1u, GetTempFileName("/a", "P", 0, name.data()));
    ASSERT_EQ(1, calls.count());
    EXPECT_EQ(SystemCall::mktemp, calls.records()[0].call);
    EXPECT_EQ("/a/P.XXXXXX", calls.records()[0].path);
    EXPECT_EQ(calls.records()[0].target, name.data());
}

TEST(TempFileName, HasTheGeneratorsCharactersInPlaceOfTheX) {
    const ScratchFolder folder;
    Name name{};
    ASSERT_EQ(1u, GetTempFileName(folder.path().c_str(), "VLT", 0, name.data()));
    const std::string made = name.data();
    const std::string beginning = folder / "VLT.";
    EXPECT_EQ(beginning, made.substr(0, beginning.size()));
    EXPECT_EQ(beginning.size() + 6, made.size());
    EXPECT_NE("XXXXXX", made.substr(beginning.size()));
}

TEST(TempFileName, IsOnlyANameAndNoFile) {
    const ScratchFolder folder;
    Name name{};
    ASSERT_EQ(1u, GetTempFileName(folder.path().c_str(), "VLT", 0, name.data()));
    EXPECT_FALSE(test::file_exists(name.data()));
}

TEST(TempFileName, ReturnsTheUniqueNumberUnlessItIsZero) {
    Name name{};
    EXPECT_EQ(7u, GetTempFileName("/a", "P", 7, name.data()));
    EXPECT_EQ(0xFFFFFFFFu, GetTempFileName("/a", "P", 0xFFFFFFFF, name.data()));
    EXPECT_EQ(1u, GetTempFileName("/a", "P", 0, name.data()));
}

TEST(TempFileName, DoesNotShowTheUniqueNumber) {
    Name name{};
    SystemCallFaults calls;
    EXPECT_EQ(7u, GetTempFileName("/a", "P", 7, name.data()));
    EXPECT_EQ("/a/P.XXXXXX", calls.records()[0].path);
}

TEST(TempFileName, IsZeroForAMissingArgument) {
    Name name{};
    SystemCallFaults calls;
    EXPECT_EQ(0u, GetTempFileName(nullptr, "P", 7, name.data()));
    EXPECT_EQ(0u, GetTempFileName("/a", nullptr, 7, name.data()));
    EXPECT_EQ(0u, GetTempFileName("/a", "P", 7, nullptr));
    EXPECT_EQ(0, calls.count());
    EXPECT_EQ('\0', name[0]);
}

TEST(TempFileName, IsZeroWhenTheGeneratorFails) {
    Name name{};
    SystemCallFaults calls;
    calls.fail(SystemCall::mktemp, 1, EEXIST);
    EXPECT_EQ(0u, GetTempFileName("/a", "P", 7, name.data()));
    EXPECT_STREQ("", name.data());
}

TEST(TempFileName, IsZeroWhenTheDirectoryIsAFile) {
    const ScratchFolder folder;
    test::write_file(folder / "song.mp3", "abc");
    Name name{};
    EXPECT_EQ(0u, GetTempFileName((folder / "song.mp3").c_str(), "VLT", 7, name.data()));
}

TEST(TempFileName, OfAMissingDirectoryIsMadeAllTheSame) {
    const ScratchFolder folder;
    Name name{};
    EXPECT_EQ(1u, GetTempFileName((folder / "missing").c_str(), "VLT", 0, name.data()));
}

TEST(TempFileName, OfAnEmptyDirectoryLiesInTheRoot) {
    Name name{};
    SystemCallFaults calls;
    EXPECT_EQ(1u, GetTempFileName("", "VLT", 0, name.data()));
    EXPECT_EQ("/VLT.XXXXXX", calls.records()[0].path);
}

/** A path of LENGTH bytes whose folders do not exist. */
std::string long_path(std::size_t length) {
    std::string path;
    while (path.size() < length) {
        path += "/velmora-missing";
    }
    return path.substr(0, length);
}

TEST(TempFileName, FillsItsTargetToTheLastByte) {
    Name name{};
    const std::string directory = long_path(temp_file_name_capacity - 1 - 11);
    EXPECT_EQ(1u, GetTempFileName(directory.c_str(), "VLT", 0, name.data()));
    EXPECT_EQ(temp_file_name_capacity - 1, std::string(name.data()).size());
}

TEST(TempFileName, ThatIsTooLongIsCutAndThenRefusedByTheGenerator) {
    std::array<char, temp_file_name_capacity + 1> name{};
    name.back() = 'u';
    const std::string directory = long_path(temp_file_name_capacity - 11);
    EXPECT_EQ(0u, GetTempFileName(directory.c_str(), "VLT", 0, name.data()));
    EXPECT_EQ(0u, GetTempFileName(long_path(5000).c_str(), "VLT", 0, name.data()));
    EXPECT_EQ('u', name.back());
}

std::string without_file(std::string path) {
    PathRemoveFileSpec(path.data());
    return path.c_str();
}

TEST(PathRemoveFileSpec, CutsAtTheLastSlash) {
    EXPECT_EQ("/a/b", without_file("/a/b/c.mp3"));
    EXPECT_EQ("a", without_file("a/c.mp3"));
}

TEST(PathRemoveFileSpec, LeavesAPathWithoutASlashAsItIs) {
    EXPECT_EQ("c.mp3", without_file("c.mp3"));
    EXPECT_EQ("", without_file(""));
}

TEST(PathRemoveFileSpec, LeavesNothingOfAFileInTheRoot) {
    EXPECT_EQ("", without_file("/c.mp3"));
    EXPECT_EQ("", without_file("/"));
}

TEST(PathRemoveFileSpec, RemovesOnlyOneSlash) {
    EXPECT_EQ("/a/b", without_file("/a/b/"));
    EXPECT_EQ("/a/", without_file("/a//c.mp3"));
}

TEST(PathRemoveFileSpec, TakesNoPath) {
    PathRemoveFileSpec(nullptr);
}

} // namespace
} // namespace velmora
