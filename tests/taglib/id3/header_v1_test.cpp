#include "taglib/id3/header_v1.h"

#include "id3_bytes.h"

#include "support/stream_capture.h"
#include "support/system_call_faults.h"

#include <gtest/gtest.h>

namespace velmora::test {
namespace {

TEST(Id3HeaderV1, BlockHasTheStandardLayout) {
    EXPECT_EQ(3u, offsetof(_id3_header_v1_t, title));
    EXPECT_EQ(33u, offsetof(_id3_header_v1_t, artist));
    EXPECT_EQ(63u, offsetof(_id3_header_v1_t, album));
    EXPECT_EQ(93u, offsetof(_id3_header_v1_t, year));
    EXPECT_EQ(97u, offsetof(_id3_header_v1_t, comment));
    EXPECT_EQ(127u, offsetof(_id3_header_v1_t, genre));
    EXPECT_EQ(128u, sizeof(_id3_header_v1_t));
}

TEST(Id3HeaderV1, IsNeverFoundBecauseOnlyFourBytesRemain) {
    OpenFile file(std::string(1000, 'm') + "TAG" + std::string(125, 'x'));
    StreamCapture log;
    const SystemCallFaults watch;
    _id3_header_v1_t block;
    EXPECT_EQ(-1, id3_load_header_v1(file.handle(), &block));
    EXPECT_EQ("id3_load_header_v1: Failed to read header\n", log.text());
    ASSERT_EQ(2, watch.count());
    EXPECT_EQ(-4, watch.records()[0].requested);
    EXPECT_EQ(1124, watch.records()[1].position);
    EXPECT_EQ(128, watch.records()[1].requested);
    EXPECT_EQ(4, watch.records()[1].result);
}

TEST(Id3HeaderV1, PresenceIsTheSame) {
    OpenFile file(std::string(1000, 'm') + "TAG" + std::string(125, 'x'));
    StreamCapture log;
    EXPECT_EQ(-1, id3_is_present_v1(file.handle()));
    EXPECT_EQ("id3_load_header_v1: Failed to read header\n", log.text());
}

TEST(Id3HeaderV1, FileBelowFourBytesIsLoggedInTheSameWay) {
    for (const char* const contents : {"", "TAG"}) {
        OpenFile file(contents);
        StreamCapture log;
        EXPECT_EQ(-1, id3_is_present_v1(file.handle()));
        EXPECT_EQ("id3_load_header_v1: Failed to read header\n", log.text());
    }
}

} // namespace
} // namespace velmora::test
