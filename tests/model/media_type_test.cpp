#include "model/media_type.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"
#include "taglib/asf/load_file_info.h"
#include "taglib/avi/load_file_info.h"
#include "taglib/avi/store_file_info.h"
#include "taglib/id3/load_file_info.h"
#include "taglib/id3/store_file_info.h"

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

TEST(TagModule, WindowsMediaExtensionsHaveTheAsfModule) {
    for (const char* name : {"a.asf", "a.wmv", "a.wma", "a.WMA"}) {
        EXPECT_EQ(&asf_load_file_info, tagModuleOfPath(name).load) << name;
    }
}

TEST(TagModule, WindowsMediaExtensionsAreStoredByTheAsfModule) {
    const test::ScratchFolder folder;
    const std::string path = folder / "file";
    test::write_file(path, "no media"); // which the module refuses under its own name
    for (const char* name : {"a.asf", "a.wmv", "a.wma", "a.WMA"}) {
        _file_info_t info{};
        test::StreamCapture log;
        EXPECT_EQ(0, tagModuleOfPath(name).store(path.c_str(), &info)) << name;
        EXPECT_EQ("asf_read_header_object: Not a valid header\n", log.text()) << name;
    }
}

TEST(TagModule, AviExtensionsHaveTheAviModule) {
    for (const char* name : {"a.avi", "a.divx", "a.AVI"}) {
        EXPECT_EQ(&avi_load_file_info, tagModuleOfPath(name).load) << name;
        EXPECT_EQ(&avi_store_file_info, tagModuleOfPath(name).store) << name;
    }
}

TEST(TagModule, EverythingElseHasTheId3Module) {
    for (const char* name : {"a.mp3", "a.dvr-ms", "a.mp4", "a", "a.TAG", "wma", "a.wma.mp3"}) {
        EXPECT_EQ(&id3_load_file_info, tagModuleOfPath(name).load) << name;
        EXPECT_EQ(&id3_store_file_info, tagModuleOfPath(name).store) << name;
    }
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
