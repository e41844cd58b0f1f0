#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <set>
#include <string>
#include <unistd.h>

namespace velmora::test {
namespace {

TEST(Bytes, AreReadFromDigitsInAnyCaseWithBlanksBetween) {
    EXPECT_EQ(std::string("\x49\x44\x33\x00\xFF", 5), hex("49 44\n33 00fF"));
    EXPECT_EQ("", hex(""));
}

TEST(Bytes, AreNotReadFromOtherText) {
    EXPECT_NONFATAL_FAILURE((void)hex("4"), "odd number");
    EXPECT_NONFATAL_FAILURE((void)hex("4g"), "no hexadecimal digit");
}

TEST(Bytes, AreShownAsDigits) {
    EXPECT_EQ("49 00 ff ", to_hex(std::string("\x49\x00\xFF", 3)));
}

TEST(Bytes, PatternHasNoLongRepeatsAndDependsOnItsSeed) {
    const std::string bytes = pattern(4096);
    std::set<std::string> pieces;
    for (std::size_t at = 0; at + 8 <= bytes.size(); at += 8) {
        pieces.insert(bytes.substr(at, 8));
    }
    EXPECT_EQ(512u, pieces.size());
    EXPECT_EQ(bytes, pattern(4096));
    EXPECT_NE(bytes, pattern(4096, 2));
}

TEST(Bytes, GoToAFileAndBack) {
    const ScratchFolder folder;
    const std::string bytes("a\0\r\n\xFF", 5);
    write_file(folder / "file", bytes);
    EXPECT_EQ(bytes, read_file(folder / "file"));
    write_file(folder / "file", "x");
    EXPECT_EQ("x", read_file(folder / "file"));
}

TEST(Bytes, LieInASparseFileAtTheirOffset) {
    const ScratchFolder folder;
    write_sparse_file(folder / "file", 6, "ab", 3);
    EXPECT_EQ(std::string("\0\0\0ab\0", 6), read_file(folder / "file"));
}

TEST(ScratchFolder, GoesWithWhatIsInIt) {
    std::string path;
    {
        const ScratchFolder folder;
        path = folder.path();
        write_file(folder / "file", "x");
        EXPECT_TRUE(file_exists(path + "/file"));
    }
    EXPECT_FALSE(file_exists(path));
}

TEST(StreamCapture, CatchesTheStreamAndTheDescriptorUntilItsEnd) {
    StreamCapture outer(stdout);
    {
        StreamCapture inner(stdout);
        std::fputs("stream", stdout);
        EXPECT_EQ("stream", inner.text());
        EXPECT_EQ(5, ::write(STDOUT_FILENO, " file", 5));
        std::fputs(" stream", stdout);
        EXPECT_EQ("stream file stream", inner.text());
    }
    std::fputs("after", stdout);
    EXPECT_EQ("after", outer.text());
}

} // namespace
} // namespace velmora::test
