#include "platform/file_attributes.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <ctime>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {
namespace {

std::optional<FileAttributes> attributesOf(const std::string& path) {
    return fileAttributes(QByteArray::fromStdString(path));
}

FileTime fileTime(const timespec& time) {
    return {time.tv_sec, static_cast<std::uint32_t>(time.tv_nsec)};
}

TEST(FileAttributes, MissingFileHasNone) {
    const test::ScratchFolder scratch;
    EXPECT_FALSE(attributesOf(scratch / "missing").has_value());
    EXPECT_FALSE(attributesOf("").has_value());
}

TEST(FileAttributes, SizeIsInBytesAlsoBeyondFourGibibytes) {
    const test::ScratchFolder scratch;
    test::write_file(scratch / "small", "abc");
    test::write_sparse_file(scratch / "large", 5'000'000'000, "x", 0);
    EXPECT_EQ(3U, attributesOf(scratch / "small")->size);
    EXPECT_EQ(5'000'000'000U, attributesOf(scratch / "large")->size);
}

TEST(FileAttributes, FoldersAreToldFromFiles) {
    const test::ScratchFolder scratch;
    test::write_file(scratch / "file", "abc");
    EXPECT_FALSE(attributesOf(scratch / "file")->isDirectory);
    EXPECT_TRUE(attributesOf(scratch.path())->isDirectory);
}

TEST(FileAttributes, LinksAreFollowed) {
    const test::ScratchFolder scratch;
    test::write_file(scratch / "file", "abc");
    ASSERT_EQ(0, symlink("file", (scratch / "link").c_str()));
    ASSERT_EQ(0, symlink(".", (scratch / "folder").c_str()));
    ASSERT_EQ(0, symlink("missing", (scratch / "broken").c_str()));
    EXPECT_EQ(3U, attributesOf(scratch / "link")->size);
    EXPECT_TRUE(attributesOf(scratch / "folder")->isDirectory);
    EXPECT_FALSE(attributesOf(scratch / "broken").has_value());
}

TEST(FileAttributes, AreAskedForAnew) {
    const test::ScratchFolder scratch;
    test::write_file(scratch / "file", "abc");
    EXPECT_EQ(3U, attributesOf(scratch / "file")->size);
    test::write_file(scratch / "file", "abcdef");
    EXPECT_EQ(6U, attributesOf(scratch / "file")->size);
}

TEST(FileAttributes, CreationDateIsTheBirthTimeAndNotTheModificationTime) {
    const test::ScratchFolder scratch;
    const std::time_t before = std::time(nullptr);
    test::write_file(scratch / "file", "abc");
    struct statx status = {};
    ASSERT_EQ(0, statx(AT_FDCWD, (scratch / "file").c_str(), 0, STATX_BTIME, &status));
    if (!(status.stx_mask & STATX_BTIME)) {
        GTEST_SKIP() << "the file system of the temporary folder records no birth times";
    }
    const timespec longAgo[2] = {{1000, 0}, {1000, 0}};
    ASSERT_EQ(0, utimensat(AT_FDCWD, (scratch / "file").c_str(), longAgo, 0));
    EXPECT_GE(attributesOf(scratch / "file")->creationDate->seconds, before - 1);
}

TEST(FileAttributes, WithoutABirthTimeTheEarlierOfTheOtherTimesStands) {
    // procfs records no birth times.
    const std::string path = "/proc/self/status";
    struct stat status = {};
    ASSERT_EQ(0, stat(path.c_str(), &status));
    const FileTime earlier = std::min(fileTime(status.st_mtim), fileTime(status.st_ctim));
    EXPECT_EQ(earlier, attributesOf(path)->creationDate);
}

TEST(FileAttributes, PathIsTakenByteForByte) {
    const test::ScratchFolder scratch;
    for (const char* name : {"caf\xE9", "a#b?c%41", "<b>", "two\nlines", "\xFF"}) {
        test::write_file(scratch / name, "abc");
        EXPECT_EQ(3U, attributesOf(scratch / name)->size) << name;
    }
}

TEST(FileTime, ComparesSecondsBeforeNanoseconds) {
    EXPECT_LT((FileTime{1, 999'999'999}), (FileTime{2, 0}));
    EXPECT_LT((FileTime{-2, 5}), (FileTime{-2, 6}));
}

} // namespace
} // namespace velmora
