#include "id3_bytes.h"
#include "stored_info.h"

#include "fake_image/fake_image.h"
#include "support/system_call_faults.h"
#include "taglib/id3/load_file_info.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace velmora::test {
namespace {

const std::string media_1000 = pattern(1000);
const std::string no_tag_log = "id3_load_descriptor_v2: Invalid header sig\n"
                               "id3_load_header_v1: Failed to read header\n";

std::string read_part(const std::string& path, std::streamoff offset, std::size_t size) {
    std::ifstream stream(path, std::ios::binary);
    std::string part(size, '\0');
    stream.seekg(offset).read(part.data(), static_cast<std::streamsize>(size));
    EXPECT_TRUE(stream.good());
    return part;
}

/** The title that the loader finds, or its "no tag". */
std::string loaded_title_of(const std::string& path) {
    const StreamCapture log;
    _file_info_t info;
    if (!id3_load_file_info(path.c_str(), &info)) {
        return "no tag";
    }
    std::string title = info.title ? info.title : "(null)";
    id3_free_file_info(&info);
    return title;
}

/** A file that is stored into. */
class Song {
public:
    explicit Song(const std::string& contents) { write_file(path(), contents); }
    [[nodiscard]] std::string path() const { return folder_ / "song.mp3"; }
    [[nodiscard]] std::string contents() const { return read_file(path()); }

    Store store_title(const std::string& title) const {
        StoredInfo info;
        return {path(), info.with_title(title)};
    }
    [[nodiscard]] std::string loaded_title() const { return loaded_title_of(path()); }

private:
    ScratchFolder folder_;
};

TEST(Id3StoreAppended, FileWithoutTagGetsAVersion4TagWithFooterAtItsEnd) {
    const Song song(media_1000);
    StoredInfo info;
    const Store store(song.path(), info.with_title("ab").with_year(1999));
    EXPECT_EQ(1, store.result);
    EXPECT_EQ(no_tag_log, store.log);
    EXPECT_EQ(to_hex(media_1000 + hex("49 44 33 04 00 10 00 00 00 1C"
                                      "54 41 4C 42 00 00 00 03 00 00 00 61 62"
                                      "54 59 45 52 00 00 00 05 00 00 00 31 39 39 39"
                                      "33 44 49 04 00 10 00 00 00 1C")),
              to_hex(song.contents()));
}

TEST(Id3StoreAppended, SuccessSetsTagPresentAndClearsTheHandledFlags) {
    const Song song(media_1000);
    StoredInfo info;
    info.with_title("ab").with_year(0);
    info.flags |= 0x400;
    EXPECT_EQ(1, Store(song.path(), info).result);
    EXPECT_EQ(0x8400u, info.flags);
}

TEST(Id3StoreAppended, NewTagIsFoundAgain) {
    const Song song(media_1000);
    ASSERT_EQ(1, song.store_title("title").result);
    EXPECT_EQ("title", song.loaded_title());
}

TEST(Id3StoreAppended, RecordWithoutFlagsAppendsAnEmptyTag) {
    const Song song(media_1000);
    StoredInfo info;
    EXPECT_EQ(1, Store(song.path(), info).result);
    EXPECT_EQ(to_hex(media_1000 + hex("49 44 33 04 00 10 00 00 00 00 33 44 49 04 00 10 00 00 00 00")),
              to_hex(song.contents()));
    EXPECT_EQ(0x8000u, info.flags);
}

TEST(Id3StoreAppended, OtherFramesAreKept) {
    const Song song(media_1000 +
                    appended_tag(text4("TXXX", "x") + text4("TALB", "old") + frame4("TALB", "two")));
    const Store store = song.store_title("new title");
    EXPECT_EQ(1, store.result);
    EXPECT_EQ("TXXX = \"x\"\nTALB = \"old\"\nTALB = \"wo\"\n", store.log);
    EXPECT_EQ(media_1000 +
                  appended_tag(text4("TXXX", "x") + text4("TALB", "new title") + frame4("TALB", "two")),
              song.contents());
}

TEST(Id3StoreAppended, VersionRevisionAndFlagsAreKeptAndTheFooterFlagIsSet) {
    const std::string start = hex("49 44 33 03 02 40 00 00 00 0C");
    const std::string end = hex("33 44 49 03 02 40 00 00 00 0C");
    const Song song(media_1000 + start + frame3("TALB", bytes("\0a")) + end);
    ASSERT_EQ(1, song.store_title("b").result);
    EXPECT_EQ(to_hex(media_1000 + hex("49 44 33 03 02 50 00 00 00 0C 54 41 4C 42 00 00 00 02 00 00 00 62"
                                      "33 44 49 03 02 50 00 00 00 0C")),
              to_hex(song.contents()));
}

TEST(Id3StoreAppended, FrameSizesKeepTheFormOfTheirVersion) {
    const Song song(media_1000 + header(3, 0x10, 12) + frame3("TALB", bytes("\0a")) +
                    header(3, 0x10, 12, "3DI"));
    const std::string title(199, 'x');
    ASSERT_EQ(1, song.store_title(title).result);
    EXPECT_EQ(media_1000 + header(3, 0x10, 210) + frame3("TALB", std::string(1, '\0') + title) +
                  header(3, 0x10, 210, "3DI"),
              song.contents());
}

TEST(Id3StoreAppended, ShorterTagLeavesTheFileAsLongAsBefore) {
    const Song song(media_1000);
    ASSERT_EQ(1, song.store_title("a rather long title").result);
    const std::string before = song.contents();
    ASSERT_EQ(1, song.store_title("t").result);
    const std::string tag = appended_tag(text4("TALB", "t"));
    EXPECT_EQ(media_1000 + tag + before.substr(media_1000.size() + tag.size()), song.contents());
}

TEST(Id3StoreAppended, TagShorterByAWholeFooterIsFoundThroughTheOldOne) {
    for (const std::size_t shrink : {10u, 11u, 18u}) {
        const Song song(media_1000);
        ASSERT_EQ(1, song.store_title(std::string(20, 'x')).result);
        const std::string shorter(20 - shrink, 'y');
        ASSERT_EQ(1, song.store_title(shorter).result);
        EXPECT_EQ(shorter, song.loaded_title());
        ASSERT_EQ(1, song.store_title("again").result);
        EXPECT_EQ("again", song.loaded_title());
        EXPECT_EQ(media_1000.size() + 20 + 10 + 21, song.contents().size());
    }
}

TEST(Id3StoreAppended, TagShorterByLessThanAFooterIsLostAndTheNextStoreAppendsASecondOne) {
    for (std::size_t shrink = 1; shrink <= 9; ++shrink) {
        const Song song(media_1000);
        ASSERT_EQ(1, song.store_title(std::string(20, 'x')).result);
        ASSERT_EQ(1, song.store_title(std::string(20 - shrink, 'y')).result);
        const std::string lost = song.contents();
        EXPECT_EQ("no tag", song.loaded_title());
        EXPECT_EQ(1, song.store_title("second").result);
        EXPECT_EQ(lost + appended_tag(text4("TALB", "second")), song.contents());
        EXPECT_EQ("second", song.loaded_title());
    }
}

TEST(Id3StoreAppended, LongerTagGrowsTheFile) {
    const Song song(media_1000 + appended_tag(text4("TALB", "a")));
    ASSERT_EQ(1, song.store_title("longer").result);
    EXPECT_EQ(media_1000 + appended_tag(text4("TALB", "longer")), song.contents());
}

TEST(Id3StoreAppended, PaddingIsKeptWithTheBytesThatLieThere) {
    const std::string padding(20, '\0');
    const Song song(media_1000 + appended_tag(text4("TALB", "abcdefgh") + padding));
    ASSERT_EQ(1, song.store_title("ab").result);
    // The tag got shorter by six bytes, so its padding begins six bytes earlier, on the end of the old title.
    const std::string contents = text4("TALB", "ab") + "cdefgh" + std::string(14, '\0');
    EXPECT_EQ(media_1000 + appended_tag(contents) + header(4, 0x10, 39, "3DI").substr(4), song.contents());
}

TEST(Id3StoreAppended, BytesInFrontOfTheTagAreNeverWritten) {
    const Song song(media_1000 + appended_tag(text4("TALB", "a")));
    const SystemCallFaults watch;
    ASSERT_EQ(1, song.store_title("longer").result);
    for (const SystemCallRecord& call : watch.records()) {
        if (call.call == SystemCall::write) {
            EXPECT_GE(call.position, static_cast<std::int64_t>(media_1000.size()));
        }
    }
}

TEST(Id3StoreAppended, EndsWithAWriteOfNoBytes) {
    const Song song(media_1000);
    StoredInfo info;
    info.with_title("a");
    const StreamCapture log;
    const SystemCallFaults watch;
    ASSERT_EQ(1, id3_store_file_info(song.path().c_str(), &info));
    const auto& calls = watch.records();
    ASSERT_GE(calls.size(), 2u);
    EXPECT_EQ(SystemCall::close, calls[calls.size() - 1].call);
    EXPECT_EQ(SystemCall::write, calls[calls.size() - 2].call);
    EXPECT_EQ(0, calls[calls.size() - 2].requested);
}

/** System calls of a store of a title into a file of BYTES. */
int calls_of_store(const std::string& bytes) {
    const Song song(bytes);
    StoredInfo info;
    info.with_title("new");
    const StreamCapture log;
    const SystemCallFaults watch;
    EXPECT_EQ(1, id3_store_file_info(song.path().c_str(), &info));
    return watch.count();
}

TEST(Id3StoreAppended, CostsThirteenCallsWithACover) {
    EXPECT_EQ(13, calls_of_store(media_1000 + appended_tag(frames_with_cover())));
}

TEST(Id3StoreAppended, CostsNineCallsWithASmallTag) {
    EXPECT_EQ(9, calls_of_store(media_1000 + appended_tag(text4("TALB", "old"))));
}

TEST(Id3StoreAppended, FileOf20000000BytesWithALeadingTagGetsASecondOne) {
    const ScratchFolder folder;
    const std::string path = folder / "song.mp3";
    const std::string leading = leading_tag(3, frame3("TALB", bytes("\0old")) + std::string(20, '\0'));
    write_sparse_file(path, 20'000'000, leading, 0);
    StoredInfo info;
    const Store store(path, info.with_title("new"));
    EXPECT_EQ(1, store.result);
    EXPECT_EQ("id3_load_header_v1: Failed to read header\n", store.log);
    const std::string tag = appended_tag(text4("TALB", "new"));
    EXPECT_EQ(20'000'000u + tag.size(), std::filesystem::file_size(path));
    EXPECT_EQ(leading, read_part(path, 0, leading.size()));
    EXPECT_EQ(tag, read_part(path, 20'000'000, tag.size()));
}

TEST(Id3StoreAppended, StoreDoesNotReadTheMedia) {
    const ScratchFolder folder;
    const std::string path = folder / "song.mp3";
    write_sparse_file(path, 50'000'000, "x", 0);
    const SystemCallFaults watch;
    StoredInfo info;
    ASSERT_EQ(1, Store(path, info.with_title("new")).result);
    EXPECT_LT(watch.bytes(SystemCall::read), 100);
}

TEST(Id3StoreAppended, PositionsAreNotCutTo32Bits) {
    const std::string start = "no tag" + pattern(500);
    const std::int64_t two_gigabytes = std::int64_t{1} << 31;
    for (const std::int64_t length : {two_gigabytes, 2 * two_gigabytes, 2 * two_gigabytes + 20}) {
        const ScratchFolder folder;
        const std::string path = folder / "film.mkv";
        write_sparse_file(path, length, start, 0);
        for (const char* const title : {"new", "rewritten and longer"}) {
            StoredInfo info;
            ASSERT_EQ(1, Store(path, info.with_title(title)).result) << length;
            const std::string tag = appended_tag(text4("TALB", title));
            ASSERT_EQ(static_cast<std::uintmax_t>(length) + tag.size(), std::filesystem::file_size(path));
            EXPECT_EQ(tag, read_part(path, length, tag.size())) << length;
            EXPECT_EQ(start, read_part(path, 0, start.size())) << length;
            EXPECT_EQ(title, loaded_title_of(path)) << length;
        }
    }
}

TEST(Id3StoreAppended, LeadingTagIsLeftAloneWhenThereIsAnAppendedOne) {
    const std::string leading = leading_tag(3, frame3("TALB", bytes("\0old")));
    const Song song(leading + media_1000 + appended_tag(text4("TALB", "a")));
    ASSERT_EQ(1, song.store_title("b").result);
    EXPECT_EQ(leading + media_1000 + appended_tag(text4("TALB", "b")), song.contents());
}

TEST(Id3StoreAppended, Id3v1BlockStaysInFrontOfTheNewTag) {
    const std::string contents = media_1000 + "TAG" + std::string(125, 'x');
    const Song song(contents);
    ASSERT_EQ(1, song.store_title("a").result);
    EXPECT_EQ(contents + appended_tag(text4("TALB", "a")), song.contents());
}

TEST(Id3StoreAppended, PictureIsStoredAndLoaded) {
    const std::string jpeg = hex("FF D8 FF E0") + pattern(5000);
    const Song song(media_1000);
    Image* const image = image_from_bytes(jpeg.data(), jpeg.size());
    StoredInfo info;
    ASSERT_EQ(1, Store(song.path(), info.with_picture(image)).result);
    image_release(image);
    EXPECT_EQ(media_1000 + appended_tag(frame4("APIC", bytes("\0image/jpeg\0\x10\0") + jpeg)),
              song.contents());
    const StreamCapture log;
    _file_info_t loaded;
    ASSERT_EQ(1, id3_load_file_info(song.path().c_str(), &loaded));
    ASSERT_NE(nullptr, loaded.picture);
    EXPECT_EQ(jpeg, fake_image_bytes(loaded.picture));
    id3_free_file_info(&loaded);
    EXPECT_EQ(0, fake_images_alive());
}

TEST(Id3StoreAppended, TagThatIsTooLargeToBeReadIsStoredAllTheSameAndTheNextStoreAppendsASecondOne) {
    const std::string jpeg = hex("FF D8 FF E0") + std::string(300'000, 'j');
    const Song song(media_1000);
    Image* const image = image_from_bytes(jpeg.data(), jpeg.size());
    StoredInfo info;
    EXPECT_EQ(1, Store(song.path(), info.with_picture(image)).result);
    image_release(image);
    const std::string tag = appended_tag(frame4("APIC", bytes("\0image/jpeg\0\x10\0") + jpeg));
    EXPECT_EQ(media_1000 + tag, song.contents());
    const std::string too_large_log = "id3_load_descriptor_v2: header too large\n" + no_tag_log;
    {
        StreamCapture log;
        _file_info_t loaded;
        EXPECT_EQ(0, id3_load_file_info(song.path().c_str(), &loaded));
        EXPECT_EQ(too_large_log, log.text());
    }
    const Store next = song.store_title("second");
    EXPECT_EQ(1, next.result);
    EXPECT_EQ(too_large_log, next.log);
    EXPECT_EQ(media_1000 + tag + appended_tag(text4("TALB", "second")), song.contents());
    EXPECT_EQ("second", song.loaded_title());
}

TEST(Id3StoreAppended, FileThatCanNotBeOpenedFailsWithTheSystemsText) {
    const ScratchFolder folder;
    StoredInfo info;
    info.with_title("a");
    const Store no_folder(folder / "missing/song.mp3", info);
    EXPECT_EQ(0, no_folder.result);
    EXPECT_EQ("id3_store_file_info: couldn't open file for r/w: No such file or directory\n", no_folder.log);
    const Store is_folder(folder.path(), info);
    EXPECT_EQ(0, is_folder.result);
    EXPECT_EQ("id3_store_file_info: couldn't open file for r/w: Is a directory\n", is_folder.log);
    EXPECT_EQ(file_info_flag::title, info.flags); // nothing was handled
}

TEST(Id3StoreAppended, PathMayHoldAnyByte) {
    const ScratchFolder folder;
    const std::string path = folder / "a #?%<b>\n\xFF\xFE.mp3";
    write_file(path, media_1000);
    StoredInfo info;
    EXPECT_EQ(1, Store(path, info.with_title("a")).result);
    EXPECT_EQ(media_1000 + appended_tag(text4("TALB", "a")), read_file(path));
}

} // namespace
} // namespace velmora::test
