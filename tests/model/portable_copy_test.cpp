// A save as a copy: another file with the changes, made whole or not at all, and the first one only read.

#include "model/MediaFile.h"

#include "portable/portable_tags.h"
#include "support/bytes.h"
#include "support/qt_printing.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {
namespace {

using test::hex;
using End = PortableSaveResult::End;

class PortableCopyTest : public testing::Test {
protected:
    PortableCopyTest() { test::write_file(folder_ / "a.mp3", song); }
    QString path(const std::string& name) { return QString::fromStdString(folder_ / name); }
    /** Copies the song with a new title to NAME. */
    PortableSaveResult copyTo(
        const std::string& name, const PortableProgress& progress = [](auto, auto) { return true; }) {
        const auto file = MediaFile::initWithFile(path("a.mp3"));
        file->setTitle("Evening");
        return file->portableCopy(path(name))(progress);
    }
    std::optional<std::string> title(const std::string& name) {
        return portable::read_tags(folder_ / name).values.text(portable::Field::title);
    }
    std::ptrdiff_t files() { return std::distance(std::filesystem::directory_iterator(folder_.path()), {}); }

    const std::string frame = hex("FF FB 90 C4") + std::string(413, '\0');
    const std::string song =
        "ID3" + hex("03 00 00 00 00 00 0C") + "TIT2" + hex("00 00 00 02 00 00 00 5A") + frame + frame;
    test::ScratchFolder folder_;
    test::StreamCapture log_;
};

TEST_F(PortableCopyTest, HasTheChangesAndTheFileItselfHasNot) {
    EXPECT_EQ(End::Saved, copyTo("b.mp3").end);
    EXPECT_EQ("Evening", title("b.mp3"));
    EXPECT_EQ(song, test::read_file(folder_ / "a.mp3"));
    EXPECT_TRUE(test::read_file(folder_ / "b.mp3").ends_with(frame + frame));
    EXPECT_EQ(2, files());
}

TEST_F(PortableCopyTest, TakesThePlaceOfWhatIsThere) {
    test::write_file(folder_ / "b.mp3", "something else");
    EXPECT_EQ(End::Saved, copyTo("b.mp3").end);
    EXPECT_EQ("Evening", title("b.mp3"));
    EXPECT_EQ(2, files());
}

TEST_F(PortableCopyTest, IsNotTheFileItself) {
    ASSERT_EQ(0, ::link((folder_ / "a.mp3").c_str(), (folder_ / "link.mp3").c_str()));
    for (const char* name : {"a.mp3", "link.mp3"}) {
        const PortableSaveResult result = copyTo(name);
        EXPECT_EQ(End::Failed, result.end);
        EXPECT_EQ("A copy needs another name or another folder", result.reason);
        EXPECT_TRUE(result.anotherPlaceHelps);
        EXPECT_EQ(song, test::read_file(folder_ / name));
    }
}

TEST_F(PortableCopyTest, IsNotMadeWhereThereIsNoFolder) {
    const PortableSaveResult result = copyTo("nowhere/b.mp3");
    EXPECT_EQ(End::Failed, result.end);
    EXPECT_EQ("Its folder is not there", result.reason);
    EXPECT_EQ(1, files());
}

TEST_F(PortableCopyTest, LeavesNothingWhenItIsCancelled) {
    test::write_file(folder_ / "b.mp3", "something else");
    EXPECT_EQ(End::Cancelled, copyTo("b.mp3", [](auto, auto) { return false; }).end);
    EXPECT_EQ("something else", test::read_file(folder_ / "b.mp3"));
    EXPECT_EQ(2, files());
}

TEST_F(PortableCopyTest, LeavesNothingWhenTheTagsCannotBeWritten) {
    test::write_file(folder_ / "a.wma", "no ASF header");
    const auto file = MediaFile::initWithFile(path("a.wma"));
    file->setTitle("Evening");
    EXPECT_EQ(End::Failed, file->portableCopy(path("b.wma"))([](auto, auto) { return true; }).end);
    EXPECT_EQ(2, files());
}

TEST_F(PortableCopyTest, IsNotMadeOfAFileThatHasVanished) {
    const auto file = MediaFile::initWithFile(path("a.mp3"));
    ASSERT_EQ(0, ::unlink((folder_ / "a.mp3").c_str()));
    EXPECT_EQ(End::Failed, file->portableCopy(path("b.mp3"))([](auto, auto) { return true; }).end);
    EXPECT_EQ(0, files());
}

} // namespace
} // namespace velmora
