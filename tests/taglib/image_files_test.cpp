#include "fake_image/fake_image.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"
#include "support/system_call_faults.h"
#include "taglib/image_files.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>

namespace velmora {
namespace {

using test::file_exists;
using test::read_file;
using test::ScratchFolder;
using test::SystemCall;
using test::SystemCallFaults;
using test::write_file;

const std::string jpeg = "\xFF\xD8\xFF\xE0 the picture";

class ImageFilesTest : public testing::Test {
protected:
    ~ImageFilesTest() override {
        image_release(image_);
        EXPECT_EQ(0, test::fake_images_alive());
    }

    /** Files in the folder, so that one left behind shows. */
    [[nodiscard]] long files() const {
        return std::distance(std::filesystem::directory_iterator(folder_.path()), {});
    }

    const ScratchFolder folder_;
    const std::string path_ = folder_ / "cover.jpg";
    Image* const image_ = image_from_bytes(jpeg.data(), jpeg.size());
};

TEST_F(ImageFilesTest, AFileIsLoadedWithOneReferenceForTheCaller) {
    write_file(path_, jpeg);
    Image* const image = Util_LoadJpgFileToBmp(path_.c_str());
    ASSERT_NE(nullptr, image);
    EXPECT_EQ(jpeg, test::fake_image_bytes(image));
    EXPECT_EQ(1, test::fake_image_references(image));
    image_release(image);
}

TEST_F(ImageFilesTest, AMissingFileGivesNothing) {
    EXPECT_EQ(nullptr, Util_LoadJpgFileToBmp(path_.c_str()));
    EXPECT_EQ(nullptr, Util_LoadJpgFileToBmp(nullptr));
}

TEST_F(ImageFilesTest, AFileThatIsNoImageGivesNothing) {
    write_file(path_, "text");
    EXPECT_EQ(nullptr, Util_LoadJpgFileToBmp(path_.c_str()));
}

TEST_F(ImageFilesTest, ANewFileIsWritten) {
    Util_WriteBmpToJpgFile(image_, path_.c_str());
    EXPECT_EQ(jpeg, read_file(path_));
    EXPECT_EQ(1, files());
}

TEST_F(ImageFilesTest, AnExistingFileIsReplaced) {
    write_file(path_, std::string(100, 'x'));
    Util_WriteBmpToJpgFile(image_, path_.c_str());
    EXPECT_EQ(jpeg, read_file(path_));
    EXPECT_EQ(1, files());
}

TEST_F(ImageFilesTest, AReplacementIsAtomic) {
    write_file(path_, "old");
    SystemCallFaults calls;
    Util_WriteBmpToJpgFile(image_, path_.c_str());
    EXPECT_EQ(0, calls.count(SystemCall::unlink));
    ASSERT_EQ(1, calls.count(SystemCall::rename));
    EXPECT_EQ(SystemCall::rename, calls.records().back().call);
    EXPECT_EQ(path_, calls.records().back().target);
    for (const test::SystemCallRecord& record : calls.records()) {
        EXPECT_NE(path_, record.path) << test::name_of(record.call);
    }
}

TEST_F(ImageFilesTest, ABareFileNameIsWrittenInTheCurrentFolder) {
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(folder_.path());
    Util_WriteBmpToJpgFile(image_, "bare.jpg");
    std::filesystem::current_path(before);
    EXPECT_EQ(jpeg, read_file(folder_ / "bare.jpg"));
}

TEST_F(ImageFilesTest, ShortWritesAreCompleted) {
    SystemCallFaults faults;
    faults.cut_short(SystemCall::write, 1, 3);
    faults.fail(SystemCall::write, 2, EINTR);
    Util_WriteBmpToJpgFile(image_, path_.c_str());
    EXPECT_EQ(3, faults.count(SystemCall::write));
    EXPECT_EQ(jpeg, read_file(path_));
}

TEST_F(ImageFilesTest, WhicheverCallFailsTheOldFileStaysAndNothingElse) {
    int calls = 0;
    {
        SystemCallFaults watch;
        Util_WriteBmpToJpgFile(image_, path_.c_str());
        calls = watch.count();
    }
    ASSERT_EQ(6, calls) << "mktemp, open, write, fsync, close, rename";
    for (int nth = 1; nth <= calls; ++nth) {
        SCOPED_TRACE(nth);
        write_file(path_, "old");
        SystemCallFaults faults;
        faults.fail(nth, EIO);
        Util_WriteBmpToJpgFile(image_, path_.c_str());
        EXPECT_EQ("old", read_file(path_));
        EXPECT_EQ(1, files());
        EXPECT_EQ(0, faults.open_descriptors());
    }
}

TEST_F(ImageFilesTest, AnImageThatCannotBeEncodedLeavesTheOldFile) {
    write_file(path_, "old");
    test::fail_fake_image_encoding(true);
    Util_WriteBmpToJpgFile(image_, path_.c_str());
    test::fail_fake_image_encoding(false);
    EXPECT_EQ("old", read_file(path_));
}

TEST_F(ImageFilesTest, NothingIsWrittenWithoutAnImageOrAPath) {
    Util_WriteBmpToJpgFile(nullptr, path_.c_str());
    Util_WriteBmpToJpgFile(image_, nullptr);
    EXPECT_EQ(0, files());
}

TEST_F(ImageFilesTest, AMissingFolderIsNotMade) {
    Util_WriteBmpToJpgFile(image_, (folder_ / "missing/cover.jpg").c_str());
    EXPECT_FALSE(file_exists(folder_ / "missing"));
}

} // namespace
} // namespace velmora
