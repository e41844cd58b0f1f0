#include "browser/detail/start_folders.h"

#include "support/bytes.h"
#include "support/qt_printing.h"
#include "support/scratch_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace velmora {
namespace {

class StartFoldersTest : public testing::Test {
protected:
    StartFoldersTest() {
        for (const char* name : {"Music", "Videos", "Musik"}) {
            std::filesystem::create_directory(home_ / name);
        }
    }
    /** What is searched for a desktop with these FOLDERS in the home folder, behind the three. */
    QStringList added(const QStringList& folders) {
        QStringList whole;
        for (const QString& folder : folders) {
            whole += QString::fromStdString(home_.path()) + folder;
        }
        QStringList found = startFolders(QByteArray::fromStdString(home_.path()), whole).mid(3);
        found.replaceInStrings(QString::fromStdString(home_.path()), QString());
        return found;
    }

    test::ScratchFolder home_;
};

TEST_F(StartFoldersTest, AreTheThreeWhereverTheHomeFolderIs) {
    EXPECT_EQ((QStringList{"/none/Movies", "/none/Music", "/none/Pictures"}), startFolders("/none", {}));
}

TEST_F(StartFoldersTest, AreTheDesktopsThatAreThereToo) {
    EXPECT_EQ((QStringList{"/Videos", "/Musik"}), added({"/Videos", "/Musik", "/Bilder"}));
}

TEST_F(StartFoldersTest, AreSearchedOnceHoweverTheyAreWritten) {
    EXPECT_EQ(QStringList{"/Videos"}, added({"/Videos", "/Music/", "/Videos/."}));
}

TEST_F(StartFoldersTest, AreSearchedOnceWhereALinkLeadsToOne) {
    std::filesystem::remove(home_ / "Music");
    std::filesystem::create_directory_symlink("Musik", home_ / "Music");
    EXPECT_EQ(QStringList(), added({"/Musik"}));
}

TEST_F(StartFoldersTest, AreNotSearchedAgainWithinAnother) {
    std::filesystem::create_directory(home_ / "Music/Films");
    std::filesystem::create_directory(home_ / "Musical");
    EXPECT_EQ(QStringList{"/Musical"}, added({"/Music/Films", "/Musical"}));
}

TEST_F(StartFoldersTest, AreNeitherTheHomeFolderNorOneAroundIt) {
    EXPECT_EQ(QStringList(), added({"", "/", "/.", "/..", "/../.."}));
}

TEST_F(StartFoldersTest, AreNoFilesAndNoLinksInCircles) {
    test::write_file(home_ / "file", "no folder");
    std::filesystem::create_symlink("circle", home_ / "circle");
    EXPECT_EQ(QStringList(), added({"/file", "/circle"}));
}

} // namespace
} // namespace velmora
