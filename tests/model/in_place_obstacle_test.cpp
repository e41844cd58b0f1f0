// Why a save in place failed: found out of the file and of what the system refused.

#include "model/MediaFile.h"
#include "model/detail/in_place_obstacle.h"
#include "support/bytes.h"
#include "support/id3_tags.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {
namespace {

using test::hex;
using test::text4;
using Remedy = SaveObstacle::Remedy;

class InPlaceObstacleTest : public testing::Test {
protected:
    QString path(const std::string& name) { return QString::fromStdString(folder_ / name); }
    /** Why the file of NAME, made of BYTES, can't be saved with a new title; BEFORE is called
       in front of the save. */
    SaveObstacle whyNotSaved(
        const std::string& name, const std::string& bytes, const std::function<void()>& before = [] {}) {
        test::write_file(folder_ / name, bytes);
        const auto file = MediaFile::initWithFile(path(name));
        file->setTitle("Evening");
        before();
        EXPECT_FALSE(file->saveMetadata(nullptr)) << name;
        return file->whyNotSaved();
    }

    test::ScratchFolder folder_;
    test::StreamCapture log_;
};

const std::string tagInFront =
    "ID3" + hex("03 00 00 00 00 00 0C") + "TIT2" + hex("00 00 00 02 00 00 00 5A") + test::pattern(64);
const std::string tagBehind = test::pattern(64) + test::appended_tag(text4("TIT2", "Z"));
/** A Windows Media header of 30 bytes without an object in it. */
const std::string asfHeader =
    hex("30 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C 1E 00 00 00 00 00 00 00 00 00 00 00 01 02");

TEST_F(InPlaceObstacleTest, TagInFrontOfASmallSong) {
    const SaveObstacle obstacle = whyNotSaved("a.mp3", tagInFront);
    EXPECT_EQ("Its tag can't be changed in place", obstacle.reason);
    EXPECT_EQ(Remedy::PortableTags, obstacle.remedy);
}

TEST_F(InPlaceObstacleTest, FileThatHasVanished) {
    for (const char* name : {"a.mp3", "a.wma", "a.avi"}) {
        const SaveObstacle obstacle =
            whyNotSaved(name, tagBehind, [&] { ASSERT_EQ(0, ::unlink((folder_ / name).c_str())); });
        EXPECT_EQ("It is not there any more", obstacle.reason) << name;
        EXPECT_EQ(Remedy::None, obstacle.remedy);
    }
}

TEST_F(InPlaceObstacleTest, SideFileThatIsNotThereYet) {
    const SaveObstacle obstacle = whyNotSaved("movie.iso", "disc");
    EXPECT_EQ("There is no file for its tag yet, and a save in place makes none", obstacle.reason);
    EXPECT_EQ(Remedy::PortableTags, obstacle.remedy);
}

TEST_F(InPlaceObstacleTest, FileThatBecameAPipe) {
    const SaveObstacle obstacle = whyNotSaved("a.mp3", tagBehind, [&] {
        ASSERT_EQ(0, ::unlink((folder_ / "a.mp3").c_str()));
        ASSERT_EQ(0, ::mkfifo((folder_ / "a.mp3").c_str(), 0600));
    });
    EXPECT_EQ("It is no ordinary file", obstacle.reason);
}

TEST_F(InPlaceObstacleTest, FileThatBecameEmpty) {
    for (const char* name : {"a.mp3", "a.wma", "a.avi"}) {
        EXPECT_EQ("It is empty", whyNotSaved(name, "").reason) << name;
    }
}

TEST_F(InPlaceObstacleTest, WindowsMediaFileWithoutAHeader) {
    EXPECT_EQ("Its header can't be read", whyNotSaved("a.wma", test::pattern(300)).reason);
}

TEST_F(InPlaceObstacleTest, WindowsMediaFileWithTooLittleMediaToMove) {
    const SaveObstacle obstacle = whyNotSaved("a.wma", asfHeader + test::pattern(65535));
    EXPECT_EQ("Too little media lies behind its header for the header to grow or shrink", obstacle.reason);
    EXPECT_EQ(Remedy::PortableTags, obstacle.remedy);
}

TEST_F(InPlaceObstacleTest, FilmWithoutAHeader) {
    EXPECT_EQ("Its header can't be read", whyNotSaved("a.avi", test::pattern(300)).reason);
}

TEST_F(InPlaceObstacleTest, FilmOfSeveralRiffChunks) {
    const std::string first = "RIFF" + hex("10 00 00 00") + "AVI JUNK" + hex("04 00 00 00") + "....";
    const std::string second = "RIFF" + hex("28 10 00 00") + "AVIX" + std::string(4132, '.');
    EXPECT_EQ("It consists of several RIFF chunks, which a save in place can't change",
              whyNotSaved("a.avi", first + second).reason);
}

TEST_F(InPlaceObstacleTest, WhatTheSystemRefuses) {
    test::write_file(folder_ / "a.mp3", tagBehind);
    const auto obstacle = [this](int error) { return id3Obstacle(path("a.mp3"), {tagBehind.size(), error}); };
    for (const int error : {EACCES, EPERM}) {
        EXPECT_EQ("You have no permission to write to it", obstacle(error).reason);
    }
    EXPECT_EQ("It lies on a disk that can only be read", obstacle(EROFS).reason);
    for (const int error : {ENOSPC, EDQUOT}) {
        EXPECT_EQ("No space is left on its disk", obstacle(error).reason);
    }
    for (const int error : {EACCES, EPERM, EROFS, ENOSPC, EDQUOT, ETXTBSY}) {
        EXPECT_EQ(Remedy::AnotherPlace, obstacle(error).remedy) << error;
    }
    EXPECT_EQ("It would become too large", obstacle(EFBIG).reason);
    EXPECT_EQ("Its tag can't be written", obstacle(0).reason);
}

} // namespace
} // namespace velmora
