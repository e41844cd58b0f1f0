#include "model/MediaFile.h"
#include "model/detail/in_place_obstacle.h"
#include "model/portable_reason.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {
namespace {

using portable::ReasonCode;
using test::hex;

constexpr uid_t nobody = 65534;

/** Whom files and folders refuse: the superuser is somebody else meanwhile. */
class OrdinaryUser {
public:
    OrdinaryUser() : isRoot_(::geteuid() == 0) {
        EXPECT_TRUE(!isRoot_ || ::setresuid(nobody, nobody, 0) == 0);
    }
    ~OrdinaryUser() { EXPECT_TRUE(!isRoot_ || ::setresuid(0, 0, 0) == 0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    bool isRoot_;
};

class PortableReasonTest : public testing::Test {
protected:
    void SetUp() override {
        test::write_file(folder_ / "a.mp3", hex("FF FB 90 00") + test::pattern(413));
        ASSERT_EQ(0, ::chmod((folder_ / "a.mp3").c_str(), 0666));
        ASSERT_EQ(0, ::chmod(folder_.path().c_str(), 0755));
    }
    void TearDown() override { static_cast<void>(::chmod(folder_.path().c_str(), 0755)); }

    QString path(const char* name) { return QString::fromStdString(folder_ / name); }
    /** Saves a title portably as one who is refused what the modes do not give to all. */
    PortableSaveResult save(const QString& copy = {}) {
        const OrdinaryUser user;
        const auto file = MediaFile::initWithFile(path("a.mp3"));
        file->setTitle("Evening");
        const PortableSave save = copy.isEmpty() ? file->portableSave(false) : file->portableCopy(copy);
        return save([](auto, auto) { return true; });
    }
    static QString reason(int error) { return localisedReason({ReasonCode::system, error, "the tag"}); }

    test::ScratchFolder folder_;
    test::StreamCapture log_;
};

TEST_F(PortableReasonTest, FolderThatTakesNoNewFile) {
    ASSERT_EQ(0, ::chmod(folder_.path().c_str(), 0555));
    const PortableSaveResult result = save();
    EXPECT_EQ("You have no permission to put a new file into its folder", result.reason);
    EXPECT_TRUE(result.anotherPlaceHelps);
}

TEST_F(PortableReasonTest, FolderThatTakesNoCopy) {
    ASSERT_EQ(0, ::chmod(folder_.path().c_str(), 0555));
    EXPECT_EQ("You have no permission to put a new file into its folder", save(path("b.mp3")).reason);
}

TEST_F(PortableReasonTest, FileOfAnotherUser) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only the superuser has files that others own";
    }
    ASSERT_EQ(0, ::chmod((folder_ / "a.mp3").c_str(), 0644));
    const PortableSaveResult result = save();
    EXPECT_EQ("You have no permission to write to it", result.reason);
    EXPECT_TRUE(result.anotherPlaceHelps);
}

TEST_F(PortableReasonTest, WhatTheSystemSaysIsSaidPlainly) {
    EXPECT_EQ("It is not there any more", reason(ENOENT));
    EXPECT_EQ("You have no permission for that", reason(EACCES));
    EXPECT_EQ("It lies on a disk that can only be read", reason(EROFS));
    EXPECT_EQ("Its disk reports a fault", reason(EIO));
    EXPECT_EQ("Another program is using it", reason(EBUSY));
    EXPECT_EQ("Its name is too long", reason(ENAMETOOLONG));
}

TEST_F(PortableReasonTest, CopySaysWhetherItsFolderOrTheFileIsMissing) {
    EXPECT_EQ("Its folder is not there", copyObstacle(ENOENT, path("nowhere/b.mp3")));
    EXPECT_EQ("What was to be copied is not there any more", copyObstacle(ENOENT, path("b.mp3")));
}

} // namespace
} // namespace velmora
