#include "portable/media_kind.h"

#include <gtest/gtest.h>

namespace velmora::portable {
namespace {

TEST(MediaKind, IsToldByTheExtensionInAnyCase) {
    EXPECT_EQ((MediaKind{Media::audio, Container::mpeg_audio}), media_kind("song.mp3"));
    EXPECT_EQ((MediaKind{Media::video, Container::asf}), media_kind("/films/Evening.DVR-MS"));
    EXPECT_EQ((MediaKind{Media::video, Container::side_file}), media_kind("VIDEO_TS.IFO"));
}

TEST(MediaKind, OnlyTheFileThatStandsForADvdHasItsTagBesideIt) {
    EXPECT_EQ((MediaKind{Media::video, Container::side_file}), media_kind("/dvd/video_ts.ifo"));
    EXPECT_EQ((MediaKind{Media::video, Container::tagless}), media_kind("/dvd/VTS_01_0.IFO"));
}

TEST(MediaKind, TakesTheLastExtensionOfTheNameAlone) {
    EXPECT_EQ((MediaKind{Media::audio, Container::flac}), media_kind("a.mp3.flac"));
    EXPECT_EQ(std::nullopt, media_kind("folder.mp3/name"));
}

TEST(MediaKind, IsNothingWithoutAKnownExtension) {
    EXPECT_EQ(std::nullopt, media_kind(""));
    EXPECT_EQ(std::nullopt, media_kind("notes.txt"));
    EXPECT_EQ(std::nullopt, media_kind(".mp3"));
    EXPECT_EQ(std::nullopt, media_kind("song."));
}

} // namespace
} // namespace velmora::portable
