#include "id3_bytes.h"
#include "stored_info.h"

#include "support/system_call_faults.h"
#include "taglib/path.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <unistd.h>

namespace velmora::test {
namespace {

const std::string media_200000 = pattern(200'000); // more than one block

/** A file that is stored into, alone in its folder. */
class Song {
public:
    explicit Song(const std::string& contents) { write_file(path(), contents); }
    Song() = default;
    [[nodiscard]] const std::string& folder() const { return folder_.path(); }
    [[nodiscard]] std::string path() const { return folder_ / "song.mp3"; }
    [[nodiscard]] std::string contents() const { return read_file(path()); }
    [[nodiscard]] std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder_.path())) {
            names.push_back(entry.path().filename().string());
        }
        return names;
    }
    Store store_title(const std::string& title) const {
        StoredInfo info;
        return {path(), info.with_title(title)};
    }

private:
    ScratchFolder folder_;
};

using Names = std::vector<std::string>;

// Without a file of the generated name, which is how it always goes

TEST(Id3StoreLeading, TemporaryFileIsNotCreatedSoTheStoreFails) {
    const std::string contents = leading_tag(3, frame3("TALB", bytes("\0old"))) + media_200000;
    const Song song(contents);
    StoredInfo info;
    const Store store(song.path(), info.with_title("new"));
    EXPECT_EQ(0, store.result);
    EXPECT_EQ("TALB = \"old\"\nid3_store_file_info: couldn't reopen temp file\n", store.log);
    EXPECT_EQ(contents, song.contents());
    EXPECT_EQ(Names{"song.mp3"}, song.files());
}

TEST(Id3StoreLeading, FailureLeavesTheFlagsClearedAndTagPresentUnset) {
    const Song song(leading_tag(4, ""));
    StoredInfo info;
    info.with_title("new").with_year(7);
    info.flags |= 0x400;
    EXPECT_EQ(0, Store(song.path(), info).result);
    EXPECT_EQ(0x400u, info.flags);
}

TEST(Id3StoreLeading, TemporaryFileIsOpenedForReadingAndWritingWithTruncationAndWithoutCreation) {
    const Song song(leading_tag(4, ""));
    const SystemCallFaults watch;
    EXPECT_EQ(0, song.store_title("new").result);
    std::vector<SystemCallRecord> opened;
    for (const SystemCallRecord& call : watch.records()) {
        if (call.call == SystemCall::open) {
            opened.push_back(call);
        }
    }
    ASSERT_EQ(2u, opened.size());
    EXPECT_EQ(O_RDWR | O_CREAT, opened[0].requested & ~O_LARGEFILE);
    EXPECT_EQ(O_RDWR | O_TRUNC, opened[1].requested & ~O_LARGEFILE);
    EXPECT_EQ(ENOENT, opened[1].error);
    EXPECT_EQ(0, watch.open_descriptors());
}

TEST(Id3StoreLeading, TemporaryNameIsMadeInTheMediaFilesFolder) {
    const Song song(leading_tag(4, ""));
    const SystemCallFaults watch;
    EXPECT_EQ(0, song.store_title("new").result);
    ASSERT_EQ(1, watch.count(SystemCall::mktemp));
    for (const SystemCallRecord& call : watch.records()) {
        if (call.call == SystemCall::mktemp) {
            EXPECT_EQ(song.folder() + "/VLT.XXXXXX", call.path);
        }
    }
}

TEST(Id3StoreLeading, MissingFileIsLeftBehindEmpty) {
    const Song song;
    const Store store = song.store_title("new");
    EXPECT_EQ(0, store.result);
    EXPECT_EQ("id3_load_descriptor_v2: Failed to read footer\n"
              "id3_load_header_v1: Failed to read header\n"
              "id3_store_file_info: couldn't reopen temp file\n",
              store.log);
    EXPECT_EQ("", song.contents());
    EXPECT_EQ(Names{"song.mp3"}, song.files());
}

TEST(Id3StoreLeading, PathWithoutSlashHasNoFolderForTheTemporaryFile) {
    const Song song(leading_tag(4, ""));
    ASSERT_EQ(0, ::chdir(song.folder().c_str()));
    StoredInfo info;
    const Store store("song.mp3", info.with_title("new"));
    ASSERT_EQ(0, ::chdir("/"));
    EXPECT_EQ(0, store.result);
    EXPECT_EQ("id3_store_file_info: couldn't create temp file\n", store.log);
    EXPECT_EQ(leading_tag(4, ""), song.contents());
}

TEST(Id3StoreLeading, FileBelow20000000BytesTakesThisWay) {
    const ScratchFolder folder;
    const std::string path = folder / "song.mp3";
    write_sparse_file(path, 19'999'999, leading_tag(4, ""), 0);
    StoredInfo info;
    const Store store(path, info.with_title("new"));
    EXPECT_EQ(0, store.result);
    EXPECT_EQ("id3_store_file_info: couldn't reopen temp file\n", store.log);
}

TEST(Id3StoreLeading, FileOfNothingButAnAppendedTagTakesThisWay) {
    const Song song(appended_tag(text4("TALB", "old")));
    const Store store = song.store_title("new");
    EXPECT_EQ(0, store.result);
    EXPECT_EQ("TALB = \"old\"\nid3_store_file_info: couldn't reopen temp file\n", store.log);
    EXPECT_EQ(appended_tag(text4("TALB", "old")), song.contents());
}

TEST(Id3StoreLeading, FolderIsWhatStandsInFrontOfTheLastSlash) {
    EXPECT_EQ("/a/b", std::string(folder_of_file("/a/b/c.mp3").get()));
    EXPECT_EQ("", std::string(folder_of_file("/c.mp3").get()));
    EXPECT_EQ("c.mp3", std::string(folder_of_file("c.mp3").get()));
}

// With one, made by the name generator

/** What a store gives when the generator also makes the file. */
Store store_with_temporary_file(const Song& song, const std::string& title) {
    SystemCallFaults generator;
    generator.create_generated_names();
    Store store = song.store_title(title);
    EXPECT_EQ(0, generator.open_descriptors());
    return store;
}

TEST(Id3StoreLeading, TagIsReplacedInFrontOfTheMedia) {
    const Song song(leading_tag(4, text4("TXXX", "x") + text4("TALB", "old")) + media_200000);
    const Store store = store_with_temporary_file(song, "a longer title");
    EXPECT_EQ(1, store.result);
    EXPECT_EQ("TXXX = \"x\"\nTALB = \"old\"\n", store.log);
    EXPECT_EQ(leading_tag(4, text4("TXXX", "x") + text4("TALB", "a longer title")) + media_200000,
              song.contents());
    EXPECT_EQ(Names{"song.mp3"}, song.files());
}

TEST(Id3StoreLeading, ShorterTagMovesTheMediaForward) {
    const Song song(leading_tag(4, text4("TALB", "a rather long title")) + media_200000);
    EXPECT_EQ(1, store_with_temporary_file(song, "t").result);
    EXPECT_EQ(leading_tag(4, text4("TALB", "t")) + media_200000, song.contents());
}

TEST(Id3StoreLeading, SuccessSetsTagPresent) {
    const Song song(leading_tag(4, "") + media_200000);
    StoredInfo info;
    SystemCallFaults generator;
    generator.create_generated_names();
    EXPECT_EQ(1, Store(song.path(), info.with_title("t")).result);
    EXPECT_EQ(0x8000u, info.flags);
}

TEST(Id3StoreLeading, Version3StaysVersion3WithPlainSizesAndWithoutFooter) {
    const Song song(hex("49 44 33 03 01 80 00 00 00 0C 54 41 4C 42 00 00 00 02 00 00 00 61") + media_200000);
    EXPECT_EQ(1, store_with_temporary_file(song, std::string(199, 'x')).result);
    EXPECT_EQ(hex("49 44 33 03 01 80 00 00 01 52 54 41 4C 42 00 00 00 C8 00 00 00") + std::string(199, 'x') +
                  media_200000,
              song.contents());
}

TEST(Id3StoreLeading, PaddingIsKeptAsAHole) {
    const Song song(leading_tag(3, frame3("TALB", bytes("\0old")) + std::string(50, '\0')) + media_200000);
    EXPECT_EQ(1, store_with_temporary_file(song, "longer").result);
    EXPECT_EQ(leading_tag(3, frame3("TALB", bytes("\0longer")) + std::string(50, '\0')) + media_200000,
              song.contents());
}

TEST(Id3StoreLeading, PaddingWithNothingBehindItDoesNotExist) {
    const Song song(leading_tag(3, frame3("TALB", bytes("\0old")) + std::string(50, '\0')));
    EXPECT_EQ(1, store_with_temporary_file(song, "new").result);
    EXPECT_EQ(header(3, 0, 64) + frame3("TALB", bytes("\0new")), song.contents());
}

TEST(Id3StoreLeading, OldTagWithAFooterIsTenBytesLonger) {
    const Song song(appended_tag(text4("TALB", "old")) + media_200000);
    EXPECT_EQ(1, store_with_temporary_file(song, "newer").result);
    EXPECT_EQ(appended_tag(text4("TALB", "newer")) + media_200000, song.contents());
}

TEST(Id3StoreLeading, EmptyFileGetsATagWithFooter) {
    const Song song("");
    EXPECT_EQ(1, store_with_temporary_file(song, "new").result);
    EXPECT_EQ(appended_tag(text4("TALB", "new")), song.contents());
}

TEST(Id3StoreLeading, FileOfNothingButAnAppendedTagIsReplaced) {
    const Song song(appended_tag(text4("TALB", "a rather long title")));
    EXPECT_EQ(1, store_with_temporary_file(song, "t").result);
    EXPECT_EQ(appended_tag(text4("TALB", "t")), song.contents());
}

TEST(Id3StoreLeading, BadFrameAndWhatFollowsItBecomePadding) {
    const Song song(leading_tag(3, frame3("TALB", bytes("\0a")) + "TPE1" + hex("FF FF FF FF 00 00") + "xyz") +
                    media_200000);
    EXPECT_EQ(1, store_with_temporary_file(song, "b").result);
    EXPECT_EQ(header(3, 0, 15) + frame3("TALB", bytes("\0b")) + std::string(3, '\0') + media_200000,
              song.contents());
}

TEST(Id3StoreLeading, OriginalIsDeletedBeforeTheCopyIsRenamed) {
    const Song song(leading_tag(4, "") + media_200000);
    StoredInfo info;
    info.with_title("new");
    const StreamCapture log;
    SystemCallFaults generator;
    generator.create_generated_names();
    ASSERT_EQ(1, id3_store_file_info(song.path().c_str(), &info));
    const auto& calls = generator.records();
    ASSERT_GE(calls.size(), 4u);
    const std::size_t last = calls.size() - 1;
    EXPECT_EQ(SystemCall::close, calls[last - 3].call);
    EXPECT_EQ(SystemCall::close, calls[last - 2].call);
    EXPECT_EQ(SystemCall::unlink, calls[last - 1].call);
    EXPECT_EQ(song.path(), calls[last - 1].path);
    EXPECT_EQ(SystemCall::rename, calls[last].call);
    EXPECT_EQ(song.path(), calls[last].target);
}

TEST(Id3StoreLeading, FailedDeletionLeavesTheOriginal) {
    const std::string contents = leading_tag(4, text4("TALB", "old")) + media_200000;
    const Song song(contents);
    SystemCallFaults faults;
    faults.create_generated_names();
    faults.fail(SystemCall::unlink, 1, EPERM);
    const Store store = song.store_title("new");
    EXPECT_EQ(0, store.result);
    EXPECT_EQ("TALB = \"old\"\nid3_store_file_info: couldn't delete original file\n", store.log);
    EXPECT_EQ(contents, song.contents());
    EXPECT_EQ(Names{"song.mp3"}, song.files());
}

TEST(Id3StoreLeading, FailedRenameIsASuccessAndTheCopyKeepsTheMedia) {
    const Song song(leading_tag(4, text4("TALB", "old")) + media_200000);
    StoredInfo info;
    SystemCallFaults faults;
    faults.create_generated_names();
    faults.fail(SystemCall::rename, 1, EPERM);
    const Store store(song.path(), info.with_title("new"));
    EXPECT_EQ(1, store.result);
    EXPECT_EQ("TALB = \"old\"\nid3_store_file_info: couldn't rename file\n", store.log);
    EXPECT_EQ(0x8000u, info.flags);
    ASSERT_EQ(1u, song.files().size());
    const std::string name = song.files()[0];
    EXPECT_EQ("VLT.", name.substr(0, 4));
    EXPECT_EQ(leading_tag(4, text4("TALB", "new")) + media_200000, read_file(song.folder() + "/" + name));
}

} // namespace
} // namespace velmora::test
