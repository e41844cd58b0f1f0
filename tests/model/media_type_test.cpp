#include "model/media_type.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace velmora {
namespace {

void expectType(MediaType type, const QStringList& extensions) {
    for (const QString& extension : extensions) {
        EXPECT_EQ(type, mediaKindOfPath("/a/x." + extension).type) << extension.toStdString();
        EXPECT_EQ(type, mediaKindOfPath("/a/x." + extension.toUpper()).type) << extension.toStdString();
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
    EXPECT_EQ(otherMedia, mediaKindOfPath("/a/mp3").type);
    EXPECT_EQ(otherMedia, mediaKindOfPath("/a.mp3/x").type);
}

TEST(TaggedFile, DvdFolderHasASideFileWhateverItsCase) {
    EXPECT_EQ("/dvd/VIDEO_TS/VIDEO_TS.TAG", mediaKindOfPath("/dvd/VIDEO_TS/VIDEO_TS.IFO").taggedFile);
    EXPECT_EQ("/dvd/video_ts.TAG", mediaKindOfPath("/dvd/video_ts.ifo").taggedFile);
}

TEST(TaggedFile, DiscImageHasASideFile) {
    EXPECT_EQ("/a/movie.TAG", mediaKindOfPath("/a/movie.iso").taggedFile);
    EXPECT_EQ("/a/movie.TAG", mediaKindOfPath("/a/movie.ISO").taggedFile);
}

TEST(TaggedFile, EveryOtherFileCarriesItsOwnTag) {
    for (const char* path : {"/a/VTS_01_0.IFO", "/a/iso", "/a/x.mp3", "/a/x.video_ts.ifo", "/a.iso/x"}) {
        EXPECT_EQ(path, mediaKindOfPath(path).taggedFile) << path;
    }
}

} // namespace
} // namespace velmora
