#include "model/media_type.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace velmora {
namespace {

void expectType(MediaType type, const QStringList& extensions) {
    for (const QString& extension : extensions) {
        EXPECT_EQ(type, mediaTypeOfPath("/a/x." + extension)) << extension.toStdString();
        EXPECT_EQ(type, mediaTypeOfPath("/a/x." + extension.toUpper())) << extension.toStdString();
    }
}

TEST(MediaType, NumbersAreThoseOfTheInterfaces) {
    EXPECT_EQ(0, imageMedia);
    EXPECT_EQ(1, audioMedia);
    EXPECT_EQ(2, videoMedia);
    EXPECT_EQ(3, otherMedia);
}

TEST(MediaType, VideoExtensions) {
    expectType(videoMedia, {"avi", "divx", "dvr-ms", "flv", "ifo", "iso", "mov", "mp4", "mpeg", "mpg", "ts",
                            "vob", "wmv"});
}

TEST(MediaType, AudioExtensions) {
    expectType(audioMedia, {"ac3", "flac", "m4a", "m4p", "mp2", "mp3", "wav", "wma"});
}

TEST(MediaType, ImageExtensions) {
    expectType(imageMedia, {"bmp", "jpeg", "jpg", "png", "tif", "tiff"});
}

TEST(MediaType, EverythingElseIsOtherAsfIncluded) {
    expectType(otherMedia, {"asf", "vlv", "mkv", "mp", "mp33", "TAG"});
    EXPECT_EQ(otherMedia, mediaTypeOfPath("/a/mp3"));
    EXPECT_EQ(otherMedia, mediaTypeOfPath("/a.mp3/x"));
}

TEST(TaggedFile, DvdFolderHasASideFileWhateverItsCase) {
    EXPECT_EQ("/dvd/VIDEO_TS/VIDEO_TS.TAG", taggedFileOfPath("/dvd/VIDEO_TS/VIDEO_TS.IFO"));
    EXPECT_EQ("/dvd/video_ts.TAG", taggedFileOfPath("/dvd/video_ts.ifo"));
}

TEST(TaggedFile, DiscImageHasASideFile) {
    EXPECT_EQ("/a/movie.TAG", taggedFileOfPath("/a/movie.iso"));
    EXPECT_EQ("/a/movie.TAG", taggedFileOfPath("/a/movie.ISO"));
}

TEST(TaggedFile, EveryOtherFileCarriesItsOwnTag) {
    for (const char* path : {"/a/VTS_01_0.IFO", "/a/iso", "/a/x.mp3", "/a/x.video_ts.ifo", "/a.iso/x"}) {
        EXPECT_EQ(path, taggedFileOfPath(path)) << path;
    }
}

} // namespace
} // namespace velmora
