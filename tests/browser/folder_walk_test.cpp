#include "browser/folder_walk.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include <dirent.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace velmora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr long long listedSize = 102401;

/** Writes down what a walk tells, and stops it when asked to. */
class Recorder : public FolderWalkListener {
public:
    bool searchRunning() const override {
        ++questions;
        return running;
    }
    void enteringFolder(const QByteArray& folder) override {
        events.push_back("enter " + folder.toStdString());
        folders.push_back(folder.toStdString());
        if (onFolder) {
            onFolder(folder.toStdString());
        }
    }
    void foundFile(const QByteArray& path) override {
        events.push_back("found " + path.toStdString());
        files.push_back(path.toStdString());
        if (onFile) {
            onFile();
        }
    }

    bool running = true;
    mutable int questions = 0;
    std::function<void(const std::string&)> onFolder;
    std::function<void()> onFile;
    std::vector<std::string> events;
    std::vector<std::string> folders;
    std::vector<std::string> files;
};

class FolderWalkTest : public testing::Test {
protected:
    std::string makeFolder(const std::string& name) {
        std::string path = scratch_ / name;
        EXPECT_EQ(0, mkdir(path.c_str(), 0755)) << path;
        return path;
    }
    std::string makeFile(const std::string& name, long long size = listedSize) {
        std::string path = scratch_ / name;
        test::write_sparse_file(path, size, "x", 0);
        return path;
    }
    void makeLink(const std::string& target, const std::string& name) {
        EXPECT_EQ(0, symlink(target.c_str(), (scratch_ / name).c_str()));
    }
    void walk() { walk(scratch_.path()); }
    void walk(const std::string& folder) { searchFolder(QByteArray::fromStdString(folder), recorder_); }

    test::ScratchFolder scratch_;
    Recorder recorder_;
};

TEST(ExtensionLists, SupportedMediaAreTheseInCodePointOrder) {
    EXPECT_THAT(supportedMedia(),
                ElementsAre("ac3", "avi", "divx", "dvr-ms", "flac", "flv", "ifo", "iso", "m4a", "m4p", "mov",
                            "mp2", "mp3", "mp4", "mpeg", "mpg", "ts", "vlv", "vob", "wav", "wma", "wmv"));
}

TEST(ExtensionLists, BundlesAreTheseInCodePointOrder) {
    EXPECT_THAT(dirExtBlacklist(),
                ElementsAre("app", "framework", "kext", "lproj", "nib", "palette", "pkg", "xcodeproj"));
}

TEST(ExtensionLists, AreTheSameObjectsEachTime) {
    EXPECT_EQ(supportedMedia().data(), supportedMedia().data());
    EXPECT_EQ(dirExtBlacklist().data(), dirExtBlacklist().data());
}

TEST(ExtensionSearch, EmptyListHoldsNothing) {
    EXPECT_FALSE(NSArray_binary_search_string({}, "mp3"));
    EXPECT_FALSE(NSArray_binary_search_string({}, ""));
}

TEST(ExtensionSearch, FindsEveryElementOfEachList) {
    for (const std::string_view extension : supportedMedia()) {
        EXPECT_TRUE(NSArray_binary_search_string(supportedMedia(), extension)) << extension;
    }
    for (const std::string_view extension : dirExtBlacklist()) {
        EXPECT_TRUE(NSArray_binary_search_string(dirExtBlacklist(), extension)) << extension;
    }
}

TEST(ExtensionSearch, FindsNothingBeforeBetweenAndBehindTheElements) {
    for (const std::string_view candidate : {"", "a", "ac", "ac33", "b", "mp", "mp5", "wmw", "zzz"}) {
        EXPECT_FALSE(NSArray_binary_search_string(supportedMedia(), candidate)) << candidate;
    }
}

TEST(ExtensionSearch, ComparesWithRegardToCase) {
    EXPECT_FALSE(NSArray_binary_search_string(supportedMedia(), "MP3"));
    EXPECT_FALSE(NSArray_binary_search_string(supportedMedia(), "Mp3"));
}

TEST(ExtensionSearch, BytesBehindAsciiSortBehindIt) {
    constexpr std::string_view list[] = {"a", "z", "\xC3\xA4", "\xF0\x9F\x8E\xB5"};
    for (const std::string_view element : list) {
        EXPECT_TRUE(NSArray_binary_search_string(list, element));
    }
    EXPECT_FALSE(NSArray_binary_search_string(list, "\xC3\xA5"));
}

TEST(ExtensionSearch, HalvesAtCountDividedByTwo) {
    // On lists that are not in order the answer shows which elements were looked at.
    constexpr std::string_view four[] = {"x", "b", "c", "d"};
    EXPECT_TRUE(NSArray_binary_search_string(four, "c"));
    constexpr std::string_view unordered[] = {"d", "c", "b", "a"};
    EXPECT_FALSE(NSArray_binary_search_string(unordered, "d"));
    EXPECT_FALSE(NSArray_binary_search_string(unordered, "a"));
    EXPECT_TRUE(NSArray_binary_search_string(unordered, "b"));
}

TEST_F(FolderWalkTest, FileOfExactly102400BytesIsNotListed) {
    makeFile("a.mp3", 102400);
    walk();
    EXPECT_THAT(recorder_.files, IsEmpty());
}

TEST_F(FolderWalkTest, FileOf102401BytesIsListed) {
    const std::string file = makeFile("a.mp3", 102401);
    walk();
    EXPECT_THAT(recorder_.files, ElementsAre(file));
}

TEST_F(FolderWalkTest, FileBeyondFourGibibytesIsListed) {
    const std::string file = makeFile("a.iso", (1LL << 32) + 5);
    walk();
    EXPECT_THAT(recorder_.files, ElementsAre(file));
}

TEST_F(FolderWalkTest, EverySupportedExtensionIsListed) {
    std::vector<std::string> expected;
    for (const std::string_view extension : supportedMedia()) {
        expected.push_back(makeFile("a." + std::string(extension)));
    }
    walk();
    EXPECT_THAT(recorder_.files, testing::UnorderedElementsAreArray(expected));
}

TEST_F(FolderWalkTest, ExtensionIsComparedWithRegardToCase) {
    makeFile("CLIP.MPG");
    makeFile("Song.Mp3");
    makeFile("movie.MOV");
    const std::string listed = makeFile("movie.mov");
    walk();
    EXPECT_THAT(recorder_.files, ElementsAre(listed));
}

TEST_F(FolderWalkTest, NameWithoutADotHasNoExtension) {
    makeFile("mp3");
    makeFile("mp3.");
    walk();
    EXPECT_THAT(recorder_.files, IsEmpty());
}

TEST_F(FolderWalkTest, OnlyTheLastExtensionCounts) {
    makeFile("a.mp3.txt");
    const std::string listed = makeFile("a.txt.mp3");
    walk();
    EXPECT_THAT(recorder_.files, ElementsAre(listed));
}

TEST_F(FolderWalkTest, HiddenEntriesAreEntriesLikeOthers) {
    const std::string folder = makeFolder(".hidden");
    const std::string inside = makeFile(".hidden/.song.mp3");
    const std::string onlyExtension = makeFile(".mp3");
    walk();
    EXPECT_THAT(recorder_.folders, ElementsAre(scratch_.path(), folder));
    EXPECT_THAT(recorder_.files, UnorderedElementsAre(inside, onlyExtension));
}

TEST_F(FolderWalkTest, BundlesAreNotEntered) {
    for (const std::string_view extension : dirExtBlacklist()) {
        makeFolder("Photos." + std::string(extension));
        makeFile("Photos." + std::string(extension) + "/a.mp3");
    }
    walk();
    EXPECT_THAT(recorder_.folders, ElementsAre(scratch_.path()));
    EXPECT_THAT(recorder_.files, IsEmpty());
}

TEST_F(FolderWalkTest, FolderWhoseNameIsOnlyABundlesExtensionIsNotEntered) {
    makeFolder(".app");
    walk();
    EXPECT_THAT(recorder_.folders, ElementsAre(scratch_.path()));
}

TEST_F(FolderWalkTest, FolderIsNoBundleInOtherLetterCase) {
    const std::string folder = makeFolder("Photos.App");
    const std::string upper = makeFolder("Foo.APP");
    walk();
    EXPECT_THAT(recorder_.folders, UnorderedElementsAre(scratch_.path(), folder, upper));
}

TEST_F(FolderWalkTest, FolderThatIsSearchedByItselfMayBeABundle) {
    const std::string folder = makeFolder("Photos.app");
    const std::string file = makeFile("Photos.app/a.mp3");
    walk(folder);
    EXPECT_THAT(recorder_.files, ElementsAre(file));
}

TEST_F(FolderWalkTest, FolderNamedLikeAMediaFileIsEntered) {
    const std::string folder = makeFolder("album.mp3");
    const std::string file = makeFile("album.mp3/a.mp3");
    walk();
    EXPECT_THAT(recorder_.folders, ElementsAre(scratch_.path(), folder));
    EXPECT_THAT(recorder_.files, ElementsAre(file));
}

TEST_F(FolderWalkTest, FileNamedLikeABundleIsNoFolder) {
    makeFile("a.app");
    walk();
    EXPECT_THAT(recorder_.events, ElementsAre("enter " + scratch_.path()));
}

TEST_F(FolderWalkTest, FolderIsToldBeforeAnyOfItsEntries) {
    const std::string file = makeFile("a.mp3");
    walk();
    EXPECT_THAT(recorder_.events, ElementsAre("enter " + scratch_.path(), "found " + file));
}

/** The names of FOLDER in the order of the file system. */
std::vector<std::string> namesInOrder(const std::string& folder) {
    std::vector<std::string> names;
    DIR* const listing = opendir(folder.c_str());
    while (const dirent* entry = readdir(listing)) {
        const std::string name = entry->d_name;
        if (name != "." && name != "..") {
            names.push_back(name);
        }
    }
    closedir(listing);
    return names;
}

TEST_F(FolderWalkTest, SubfolderIsSearchedWhollyBeforeTheNextEntry) {
    for (int number = 0; number < 20; ++number) {
        const std::string text = std::to_string(number);
        makeFile("file" + text + ".mp3");
        makeFolder("folder" + text);
        makeFolder("folder" + text + "/below");
        makeFile("folder" + text + "/below/inner.mp3");
    }
    walk();

    std::vector<std::string> expected = {"enter " + scratch_.path()};
    for (const std::string& name : namesInOrder(scratch_.path())) {
        const std::string path = scratch_ / name;
        if (name.starts_with("file")) {
            expected.push_back("found " + path);
            continue;
        }
        expected.insert(expected.end(),
                        {"enter " + path, "enter " + path + "/below", "found " + path + "/below/inner.mp3"});
    }
    EXPECT_EQ(expected, recorder_.events);
}

TEST_F(FolderWalkTest, EntriesAreTakenOnceWhenTheFolderIsEntered) {
    const std::string file = makeFile("a.mp3");
    recorder_.onFolder = [&](const std::string&) { makeFile("later.mp3"); };
    walk();
    EXPECT_THAT(recorder_.files, ElementsAre(file));
}

TEST_F(FolderWalkTest, FileThatVanishesBeforeItsTurnIsPassedOver) {
    const std::string file = makeFile("a.mp3");
    recorder_.onFolder = [&](const std::string&) { unlink(file.c_str()); };
    walk();
    EXPECT_THAT(recorder_.files, IsEmpty());
}

TEST_F(FolderWalkTest, FolderThatVanishesBeforeItsTurnIsPassedOver) {
    const std::string folder = makeFolder("gone");
    recorder_.onFolder = [&](const std::string&) { rmdir(folder.c_str()); };
    walk();
    EXPECT_THAT(recorder_.folders, ElementsAre(scratch_.path()));
}

TEST_F(FolderWalkTest, LinksToFilesAndFoldersAreFollowed) {
    const test::ScratchFolder elsewhere;
    test::write_sparse_file(elsewhere / "inner.mp3", listedSize, "x", 0);
    makeLink(elsewhere.path(), "folder");
    makeLink(elsewhere / "inner.mp3", "song.mp3");
    walk();
    EXPECT_THAT(recorder_.files, UnorderedElementsAre(scratch_ / "folder/inner.mp3", scratch_ / "song.mp3"));
}

TEST_F(FolderWalkTest, SizeIsThatOfTheLinksTarget) {
    const test::ScratchFolder elsewhere;
    test::write_sparse_file(elsewhere / "small", 100, "x", 0);
    makeLink(elsewhere / "small", "song.mp3");
    walk();
    EXPECT_THAT(recorder_.files, IsEmpty());
}

TEST_F(FolderWalkTest, LinkHasTheExtensionOfItsOwnName) {
    const test::ScratchFolder elsewhere;
    test::write_sparse_file(elsewhere / "real.mp3", listedSize, "x", 0);
    makeLink(elsewhere / "real.mp3", "link.txt");
    const test::ScratchFolder bundle;
    makeLink(bundle.path(), "Photos.app");
    walk();
    EXPECT_THAT(recorder_.events, ElementsAre("enter " + scratch_.path()));
}

TEST_F(FolderWalkTest, BrokenLinkIsPassedOver) {
    makeLink("/no/such/file.mp3", "song.mp3");
    walk();
    EXPECT_THAT(recorder_.files, IsEmpty());
}

TEST_F(FolderWalkTest, LinkToAFolderAboveIsWalkedAgainUntilTheSearchIsStopped) {
    const std::string file = makeFile("a.mp3");
    makeLink(".", "again");
    recorder_.onFile = [&] { recorder_.running = recorder_.files.size() < 5; };
    walk();
    ASSERT_EQ(5U, recorder_.files.size());
    EXPECT_NE(recorder_.files[0], recorder_.files[1]);
    const auto longest = std::max_element(recorder_.folders.begin(), recorder_.folders.end());
    EXPECT_THAT(*longest, testing::HasSubstr("/again/again"));
}

TEST_F(FolderWalkTest, LinkToAFolderAboveEndsWhereTheSystemRefuses) {
    makeFile("a.mp3");
    makeLink(".", "again");
    walk();
    // Linux follows 40 links in one path.
    EXPECT_EQ(41U, recorder_.files.size());
}

TEST_F(FolderWalkTest, UnlistableFolderIsToldAndYieldsNothing) {
    walk(scratch_ / "missing");
    EXPECT_THAT(recorder_.events, ElementsAre("enter " + (scratch_ / "missing")));
}

TEST_F(FolderWalkTest, FileInPlaceOfAFolderYieldsNothing) {
    const std::string file = makeFile("a.mp3");
    walk(file);
    EXPECT_THAT(recorder_.events, ElementsAre("enter " + file));
}

TEST_F(FolderWalkTest, StoppedWalkStillTellsItsFolder) {
    makeFile("a.mp3");
    recorder_.running = false;
    walk();
    EXPECT_THAT(recorder_.events, ElementsAre("enter " + scratch_.path()));
}

TEST_F(FolderWalkTest, StopTakesEffectBeforeTheNextEntry) {
    for (int number = 0; number < 10; ++number) {
        makeFile(std::to_string(number) + ".mp3");
    }
    recorder_.onFile = [&] { recorder_.running = recorder_.files.size() < 3; };
    walk();
    EXPECT_EQ(3U, recorder_.files.size());
}

TEST_F(FolderWalkTest, StopInASubfolderEndsTheFoldersAboveToo) {
    for (int number = 0; number < 5; ++number) {
        makeFolder(std::to_string(number));
        makeFile(std::to_string(number) + "/a.mp3");
    }
    recorder_.onFile = [&] { recorder_.running = false; };
    walk();
    EXPECT_EQ(1U, recorder_.files.size());
    EXPECT_EQ(2U, recorder_.folders.size());
}

TEST_F(FolderWalkTest, IsAskedBeforeEachEntryWhetherToGoOn) {
    makeFile("a.txt");
    makeFile("b.mp3");
    makeFolder("c.app");
    makeLink("/no/such/file", "d.mp3");
    walk();
    EXPECT_EQ(4, recorder_.questions);
}

TEST_F(FolderWalkTest, FolderPathWithASlashAtItsEndGetsNoSecondOne) {
    const std::string file = makeFile("a.mp3");
    walk(scratch_.path() + "/");
    EXPECT_THAT(recorder_.files, ElementsAre(file));
}

TEST_F(FolderWalkTest, NamesOfAnyBytesAreToldByteForByte) {
    std::vector<std::string> expected;
    for (const char* name :
         {"#1?.mp3", "100%41.mp3", "<b>bold<i>.mp3", "two\nlines.mp3", "caf\xE9.mp3", "\xFF\xFE\x01.mp3",
          "\xED\xA0\x80.mp3", "blank at end .mp3", "back\\slash.mp3"}) {
        expected.push_back(makeFile(name));
    }
    const std::string folder = makeFolder("fol\xE4\n der");
    expected.push_back(makeFile("fol\xE4\n der/a.mp3"));
    walk();
    EXPECT_THAT(recorder_.files, testing::UnorderedElementsAreArray(expected));
    EXPECT_THAT(recorder_.folders, testing::Contains(folder));
}

/** Lowers the number of files that the process may have open, for as long as the object lives. */
class FewOpenFiles {
public:
    FewOpenFiles() {
        getrlimit(RLIMIT_NOFILE, &former_);
        const rlimit few = {64, former_.rlim_max};
        setrlimit(RLIMIT_NOFILE, &few);
    }
    ~FewOpenFiles() { setrlimit(RLIMIT_NOFILE, &former_); }

private:
    rlimit former_ = {};
};

TEST_F(FolderWalkTest, DeepTreeIsWalkedToItsEndWithFewOpenFiles) {
    constexpr int depth = 200;
    std::string path = scratch_.path();
    for (int level = 0; level < depth; ++level) {
        path += "/d";
        ASSERT_EQ(0, mkdir(path.c_str(), 0755)) << level;
    }
    test::write_sparse_file(path + "/a.mp3", listedSize, "x", 0);
    {
        const FewOpenFiles few;
        walk();
    }
    EXPECT_THAT(recorder_.files, ElementsAre(path + "/a.mp3"));
    EXPECT_EQ(depth + 1U, recorder_.folders.size());
}

TEST_F(FolderWalkTest, PipesAndSocketsAreNoFilesToList) {
    ASSERT_EQ(0, mkfifo((scratch_ / "pipe.mp3").c_str(), 0600));
    walk();
    EXPECT_THAT(recorder_.files, IsEmpty());
}

} // namespace
} // namespace velmora
