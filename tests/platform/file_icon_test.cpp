#include "platform/file_icon.h"

#include "platform/file_path.h"
#include "support/bytes.h"
#include "support/scratch_folder.h"

#include <QElapsedTimer>

#include <gmock/gmock.h>

namespace velmora {
namespace {

QIcon iconOf(const std::string& path) {
    return fileIcon(QString::fromStdString(path));
}

TEST(FileIcon, EveryFileHasOne) {
    const test::ScratchFolder scratch;
    for (const char* name : {"a.mp3", "a.txt", "plain"}) {
        test::write_file(scratch / name, "abc");
        EXPECT_FALSE(iconOf(scratch / name).pixmap(16).isNull()) << name;
    }
}

TEST(FileIcon, FoldersLookOtherThanFiles) {
    const test::ScratchFolder scratch;
    test::write_file(scratch / "a.mp3", "abc");
    EXPECT_NE(iconOf(scratch / "a.mp3").pixmap(16).toImage(), iconOf(scratch.path()).pixmap(16).toImage());
}

TEST(FileIcon, FilesWithTheSameExtensionShareOne) {
    const test::ScratchFolder scratch;
    test::write_file(scratch / "a.wav", "abc");
    test::write_file(scratch / "b.wav", "abc");
    EXPECT_EQ(iconOf(scratch / "a.wav").cacheKey(), iconOf(scratch / "b.wav").cacheKey());
}

TEST(FileIcon, FolderDoesNotDecideForFilesWithItsExtension) {
    const test::ScratchFolder scratch;
    const std::string folder = scratch / "album.flac";
    ASSERT_EQ(0, std::system(("mkdir '" + folder + "'").c_str()));
    test::write_file(scratch / "a.flac", "abc");
    const QIcon folderIcon = iconOf(folder);
    EXPECT_NE(folderIcon.pixmap(16).toImage(), iconOf(scratch / "a.flac").pixmap(16).toImage());
}

TEST(FileIcon, FileWhoseNameIsNotUtf8HasOneAndDoesNotDecideForOthers) {
    const test::ScratchFolder scratch;
    test::write_file(scratch / "caf\xE9.ogg", "abc");
    test::write_file(scratch / "a.ogg", "abc");
    test::write_file(scratch / "b.ogg", "abc");
    const QIcon icon = fileIcon(pathFromBytes(QByteArray::fromStdString(scratch / "caf\xE9.ogg")));
    EXPECT_FALSE(icon.pixmap(16).isNull());
    EXPECT_EQ(iconOf(scratch / "a.ogg").cacheKey(), iconOf(scratch / "b.ogg").cacheKey());
}

TEST(FileIcon, FileThatIsGoneHasOne) {
    EXPECT_FALSE(iconOf("/no/such/file.aiff").pixmap(16).isNull());
}

} // namespace
} // namespace velmora
