#include "id3_bytes.h"
#include "stored_info.h"

#include "support/allocation_faults.h"
#include "support/system_call_faults.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <functional>

namespace velmora::test {
namespace {

const std::string media_500 = pattern(500);

/** What is expected of a store whose NTH call fails. */
struct Expected {
    SystemCall call;
    int result;
    std::string log;
};

/** A store with one call going wrong, in a folder of its own. */
struct FaultyStore {
    using Inject = std::function<void(SystemCallFaults&)>;

    FaultyStore(const std::string& contents, const Inject& inject) {
        write_file(path(), contents);
        StoredInfo info;
        info.with_title("b");
        StreamCapture capture; // around the watch, so that its own calls are not counted
        {
            SystemCallFaults faults;
            faults.create_generated_names();
            inject(faults);
            result = id3_store_file_info(path().c_str(), &info);
            calls = faults.records();
            open_descriptors = faults.open_descriptors();
        }
        log = capture.text();
        flags = info.flags;
    }
    FaultyStore(const std::string& contents, int nth, int error)
        : FaultyStore(contents, [=](SystemCallFaults& faults) { faults.fail(nth, error); }) {}
    explicit FaultyStore(const std::string& contents) : FaultyStore(contents, [](SystemCallFaults&) {}) {}

    [[nodiscard]] std::string path() const { return folder / "song.mp3"; }
    [[nodiscard]] std::string contents() const { return file_exists(path()) ? read_file(path()) : ""; }
    [[nodiscard]] std::string temporary_contents() const {
        for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
            if (entry.path().filename() != "song.mp3") {
                return read_file(entry.path().string());
            }
        }
        return "";
    }

    ScratchFolder folder;
    int result = -1;
    std::string log;
    std::uint32_t flags = 0;
    std::vector<SystemCallRecord> calls;
    int open_descriptors = -1;
};

void expect_documented(const FaultyStore& store, const Expected& expected, const std::string& where) {
    EXPECT_EQ(expected.result, store.result) << where;
    EXPECT_EQ(expected.log, store.log) << where;
    EXPECT_EQ(0, store.open_descriptors) << where;
    if (expected.call != SystemCall::open || expected.result == 1) {
        EXPECT_EQ(expected.result ? 0x8000u : 0u, store.flags & ~file_info_flag::title) << where;
    }
}

/** Runs a store into CONTENTS once for each call that it makes, with that call failing, and hands each to
   CHECK. */
template <typename Check>
void run_with_each_call_failing(const std::string& contents, const std::vector<Expected>& expected,
                                Check check) {
    const FaultyStore whole(contents);
    ASSERT_EQ(expected.size(), whole.calls.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_STREQ(name_of(expected[i].call), name_of(whole.calls[i].call)) << i + 1;
        for (const int error : {EIO, ENOSPC}) {
            const int nth = static_cast<int>(i) + 1;
            const FaultyStore store(contents, nth, error);
            Expected wanted = expected[i];
            if (nth == 1) {
                wanted.log = std::string("id3_store_file_info: couldn't open file for r/w: ") +
                             (error == EIO ? "Input/output error\n" : "No space left on device\n");
            }
            const std::string where = "call " + std::to_string(nth) + ", error " + std::to_string(error);
            expect_documented(store, wanted, where);
            check(store, nth, where);
        }
    }
}

/** Bytes of the file, and what is expected of a store that can't read, or write, one of them. */
struct RefusedField {
    std::int64_t begin;
    std::int64_t end;
    std::string log;
};

/** Runs a store into CONTENTS for each byte of FIELDS, with CALLs of that kind refused there, by each way of
   refusing; each fails as documented. CHECK is handed each. */
template <typename Check>
void run_with_each_byte_refused(const std::string& contents, SystemCall call,
                                const std::vector<RefusedField>& fields, Check check) {
    for (const RefusedField& field : fields) {
        for (std::int64_t byte = field.begin; byte < field.end; ++byte) {
            for (const int error : {EIO, ENOSPC, 0}) {
                const FaultyStore store(contents, [=](SystemCallFaults& faults) {
                    faults.refuse_bytes(call, byte, byte + 1, error);
                });
                const std::string where = "byte " + std::to_string(byte) + ", error " + std::to_string(error);
                expect_documented(store, {call, 0, field.log}, where);
                check(store, byte, where);
            }
        }
    }
}

constexpr SystemCall open_call = SystemCall::open;
constexpr SystemCall close_call = SystemCall::close;
constexpr SystemCall read_call = SystemCall::read;
constexpr SystemCall write_call = SystemCall::write;
constexpr SystemCall seek_call = SystemCall::lseek;

const std::string footer_log = "id3_load_descriptor_v2: Failed to read footer\n";
const std::string header_log = "id3_load_descriptor_v2: Failed to read header\n";
const std::string frame_log = "id3_load_descriptor_v2: Failed to read frame\n";
const std::string frame_data_log = "id3_load_descriptor_v2: Failed to read frame data\n";
const std::string signature_log = "id3_load_descriptor_v2: Invalid header sig\n";
const std::string v1_log = "id3_load_header_v1: Failed to read header\n";
const std::string read_log = "id3_store_file_info: couldn't read old descriptor\n";
const std::string store_log = "id3_store_file_info: couldn't store new descriptor\n";
const std::string append_log = "id3_store_file_info: couldn't append file data\n";
const std::string write_header_log = "id3_store_descriptor_v2: Failed to write header\n";
const std::string write_frame_log = "id3_store_descriptor_v2: Failed to write frame\n";
const std::string write_data_log = "id3_store_descriptor_v2: Failed to write frame data\n";
const std::string write_footer_log = "id3_store_descriptor_v2: Failed to write footer\n";

TEST(Id3StoreFaults, NewAppendedTag) {
    const std::string quiet = signature_log + v1_log;
    const std::vector<Expected> expected = {
        {open_call, 0, ""},
        {seek_call, 0, footer_log + read_log}, // there may be a tag
        {read_call, 0, footer_log + read_log},
        {seek_call, 1, quiet}, // to the header, done again
        {read_call, 1, quiet}, // read by itself then
        {seek_call, 1, quiet}, // ID3v1
        {read_call, 1, quiet},
        {seek_call, 0, quiet + store_log},
        {write_call, 0, quiet + write_header_log + store_log},
        {write_call, 1, quiet}, // the write of no bytes
        {close_call, 0, quiet + store_log},
    };
    const std::string tagged = media_500 + appended_tag(text4("TALB", "b"));
    run_with_each_call_failing(media_500, expected,
                               [&](const FaultyStore& store, int nth, const std::string& where) {
                                   const bool written = store.result == 1 || nth == 11;
                                   EXPECT_EQ(written ? tagged : media_500, store.contents()) << where;
                               });
}

TEST(Id3StoreFaults, NewAppendedTagWhereBytesAreRefused) {
    const auto left_alone = [](const FaultyStore& store, std::int64_t, const std::string& where) {
        EXPECT_EQ(media_500, store.contents()) << where;
    };
    run_with_each_byte_refused(media_500, read_call,
                               {{0, 10, header_log + read_log}, {490, 500, footer_log + read_log}},
                               left_alone);
    const std::string quiet = signature_log + v1_log;
    const std::string tagged = media_500 + appended_tag(text4("TALB", "b"));
    run_with_each_byte_refused(media_500, write_call,
                               {{500, 510, quiet + write_header_log + store_log},
                                {510, 520, quiet + write_frame_log + store_log},
                                {520, 522, quiet + write_data_log + store_log},
                                {522, 532, quiet + write_footer_log + store_log}},
                               [&](const FaultyStore& store, std::int64_t byte, const std::string& where) {
                                   const auto written = static_cast<std::size_t>(byte);
                                   EXPECT_EQ(tagged.substr(0, written), store.contents()) << where;
                               });
}

TEST(Id3StoreFaults, RewrittenAppendedTag) {
    const std::string old_tag = appended_tag(text4("TALB", "a"));
    const std::string album = "TALB = \"a\"\n";
    const std::vector<Expected> expected = {
        {open_call, 0, ""},
        {seek_call, 0, footer_log + read_log},
        {read_call, 0, footer_log + read_log},
        {seek_call, 1, album}, // to the header, done again
        {read_call, 1, album}, // the tag, which is read field by field then
        {seek_call, 0, album + store_log},
        {write_call, 0, album + write_header_log + store_log},
        {write_call, 1, album},
        {close_call, 0, album + store_log},
    };
    const std::string new_tag = appended_tag(text4("TALB", "b"));
    run_with_each_call_failing(
        media_500 + old_tag, expected, [&](const FaultyStore& store, int nth, const std::string& where) {
            const bool written = store.result == 1 || nth == 9;
            EXPECT_EQ(media_500 + (written ? new_tag : old_tag), store.contents()) << where;
        });
}

TEST(Id3StoreFaults, RewrittenAppendedTagWhereBytesAreRefused) {
    const std::string before = media_500 + appended_tag(text4("TALB", "a"));
    const std::string after = media_500 + appended_tag(text4("TALB", "b"));
    const std::string album = "TALB = \"a\"\n";
    run_with_each_byte_refused(before, read_call,
                               {{500, 510, header_log + read_log},
                                {510, 520, frame_log + read_log},
                                {520, 522, frame_data_log + read_log},
                                {522, 532, footer_log + read_log}},
                               [&](const FaultyStore& store, std::int64_t, const std::string& where) {
                                   EXPECT_EQ(before, store.contents()) << where;
                               });
    run_with_each_byte_refused(
        before, write_call,
        {{500, 510, album + write_header_log + store_log},
         {510, 520, album + write_frame_log + store_log},
         {520, 522, album + write_data_log + store_log},
         {522, 532, album + write_footer_log + store_log}},
        [&](const FaultyStore& store, std::int64_t byte, const std::string& where) {
            const auto written = static_cast<std::size_t>(byte);
            EXPECT_EQ(after.substr(0, written) + before.substr(written), store.contents()) << where;
        });
}

TEST(Id3StoreFaults, LeadingTagThroughACopy) {
    const std::string album = "TALB = \"a\"\n";
    const std::vector<Expected> expected = {
        {open_call, 0, ""},
        {seek_call, 0, footer_log + read_log},
        {read_call, 0, footer_log + read_log},
        {seek_call, 1, album}, // to the header, done again
        {read_call, 1, album}, // the tag, which is read field by field then
        {SystemCall::mktemp, 0, album + "id3_store_file_info: couldn't create temp file\n"},
        {open_call, 0, album + "id3_store_file_info: couldn't reopen temp file\n"},
        {seek_call, 0, album + store_log},
        {write_call, 0, album + write_header_log + store_log},
        {seek_call, 0, album + append_log},
        {read_call, 0, album + append_log},
        {write_call, 0, album + append_log},
        {read_call, 0, album + append_log},
        {seek_call, 0, album + append_log}, // whether that was all
        {seek_call, 0, album + append_log},
        {close_call, 0, album + append_log}, // the copy may not be complete
        {close_call, 1, album},              // the original, which was only read
        {SystemCall::unlink, 0, album + "id3_store_file_info: couldn't delete original file\n"},
        {SystemCall::rename, 1, album + "id3_store_file_info: couldn't rename file\n"},
    };
    const std::string before = leading_tag(4, text4("TALB", "a")) + media_500;
    const std::string after = leading_tag(4, text4("TALB", "b")) + media_500;
    run_with_each_call_failing(before, expected,
                               [&](const FaultyStore& store, int nth, const std::string& where) {
                                   if (nth == 19) {
                                       EXPECT_EQ("", store.contents()) << where;
                                       EXPECT_EQ(after, store.temporary_contents()) << where;
                                       return;
                                   }
                                   EXPECT_EQ("", store.temporary_contents()) << where;
                                   EXPECT_EQ(store.result == 1 ? after : before, store.contents()) << where;
                               });
}

TEST(Id3StoreFaults, LeadingTagThroughACopyWhereBytesAreRefused) {
    const std::string album = "TALB = \"a\"\n";
    const std::string before = leading_tag(4, text4("TALB", "a")) + media_500; // 22 and 500 bytes
    const auto left_alone = [&](const FaultyStore& store, std::int64_t, const std::string& where) {
        EXPECT_EQ(before, store.contents()) << where;
        EXPECT_EQ("", store.temporary_contents()) << where;
    };
    run_with_each_byte_refused(before, read_call,
                               {{0, 10, header_log + read_log},
                                {10, 20, frame_log + read_log},
                                {20, 22, frame_data_log + read_log},
                                {22, 30, album + append_log},
                                {512, 522, footer_log + read_log}},
                               left_alone);
    run_with_each_byte_refused(before, write_call,
                               {{0, 10, album + write_header_log + store_log},
                                {10, 20, album + write_frame_log + store_log},
                                {20, 22, album + write_data_log + store_log},
                                {22, 30, album + append_log}},
                               left_alone);
}

/** The last three calls as "close song": the call and the file's name up to its dot. */
std::vector<std::string> last_calls(const FaultyStore& store) {
    std::vector<std::string> rows;
    for (std::size_t i = store.calls.size() - 3; i < store.calls.size(); ++i) {
        const std::filesystem::path path = store.calls[i].path;
        rows.push_back(std::string(name_of(store.calls[i].call)) + " " + path.stem().string());
    }
    return rows;
}

TEST(Id3StoreFaults, CopyAndMediaFileAreClosedBeforeTheCopyIsDeleted) {
    using Rows = std::vector<std::string>;
    const std::string before = leading_tag(4, text4("TALB", "a")) + media_500;
    const FaultyStore not_opened(before, 7, EIO);
    EXPECT_EQ((Rows{"open VLT", "close song", "unlink VLT"}), last_calls(not_opened));
    for (int nth = 8; nth <= 16; ++nth) { // from the copy's first call to its close
        const FaultyStore store(before, nth, EIO);
        EXPECT_EQ((Rows{"close VLT", "close song", "unlink VLT"}), last_calls(store)) << nth;
    }
}

TEST(Id3StoreFaults, ATagThatEndsWithTheFileKeepsTheFramesInFrontOfThat) {
    const std::string whole = text4("TALB", "a");
    const std::string cut_header = header(4, 0, 1000) + whole + "TENC";
    const std::string cut_body = header(4, 0, 1000) + whole + text4("TENC", "other").substr(0, 12);
    for (const std::string& before : {cut_header, cut_body}) {
        const FaultyStore store(before);
        EXPECT_EQ(1, store.result);
        EXPECT_TRUE(store.contents().find(text4("TALB", "b")) != std::string::npos);
    }
}

TEST(Id3StoreFaults, AFileTooShortForATagGetsOne) {
    for (const std::string before : {"a", "nine byte"}) {
        const FaultyStore store(before);
        EXPECT_EQ(1, store.result);
        EXPECT_EQ(before + appended_tag(text4("TALB", "b")), store.contents());
    }
}

TEST(Id3StoreFaults, ShortReadsOfTheMediaAreCompletedByLaterOnes) {
    const std::string before = leading_tag(4, text4("TALB", "a")) + media_500;
    const Expected expected{read_call, 1, "TALB = \"a\"\n"};
    const FaultyStore store(before, [](SystemCallFaults& faults) {
        faults.cut_short(SystemCall::read, 3, 1); // footer, tag, media
    });
    expect_documented(store, expected, "read 3");
    EXPECT_EQ(leading_tag(4, text4("TALB", "b")) + media_500, store.contents());
}

TEST(Id3StoreFaults, AReadOfNoBytesInFrontOfTheEndLeavesTheOriginal) {
    const std::string before = leading_tag(4, text4("TALB", "a")) + pattern(100'000);
    for (int nth = 3; nth <= 4; ++nth) { // footer, tag, media, media
        const ScratchFolder folder;
        write_file(folder / "song.mp3", before);
        SystemCallFaults faults;
        faults.create_generated_names();
        faults.cut_short(SystemCall::read, nth, 0);
        StoredInfo info;
        const Store store(folder / "song.mp3", info.with_title("b"));
        EXPECT_EQ(0, store.result) << nth;
        EXPECT_TRUE(store.log.ends_with(append_log)) << nth;
        EXPECT_EQ(before, read_file(folder / "song.mp3")) << nth;
    }
}

TEST(Id3StoreFaults, WithoutMemoryTheFileIsLeftAlone) {
    const std::string old_tag = text4("TALB", "old");
    const struct {
        std::string contents;
        int loading; ///< requests: a body and a place for each frame; without one the old tag isn't known
        int storing; ///< the same, but a frame that is there only grows; for a copy its folder's name too
    } cases[] = {{media_500, 0, 2 + 2},
                 {media_500 + appended_tag(old_tag), 2, 1 + 2},
                 {leading_tag(4, old_tag) + media_500, 2, 1 + 2 + 1}};
    for (const auto& file : cases) {
        const int requests = file.loading + file.storing;
        for (int nth = 1; nth <= requests + 1; ++nth) { // the last one is never made
            const ScratchFolder folder;
            const std::string path = folder / "song.mp3";
            write_file(path, file.contents);
            StoredInfo info;
            info.with_title("longer than before").with_rating("R");
            SystemCallFaults generator;
            generator.create_generated_names();
            const AllocationFaults no_memory(nth);
            const bool fails = nth <= requests;
            EXPECT_EQ(fails ? 0 : 1, Store(path, info).result) << nth;
            EXPECT_EQ(fails, read_file(path) == file.contents) << nth;
            EXPECT_EQ(fails ? 0u : 0x8000u, info.flags & 0x8000u) << nth;
            EXPECT_EQ(0, generator.open_descriptors()) << nth;
        }
    }
}

TEST(Id3StoreFaults, FullDiskLeavesTheOriginalOfACopy) {
    const std::string before = leading_tag(4, text4("TALB", "a")) + pattern(300'000);
    for (int nth = 1; nth <= 6; ++nth) {
        const ScratchFolder folder;
        write_file(folder / "song.mp3", before);
        SystemCallFaults faults;
        faults.create_generated_names();
        faults.fail_from(SystemCall::write, nth, ENOSPC);
        StoredInfo info;
        EXPECT_EQ(0, Store(folder / "song.mp3", info.with_title("b")).result) << nth;
        EXPECT_EQ(before, read_file(folder / "song.mp3")) << nth;
        EXPECT_EQ(0, faults.open_descriptors());
    }
}

} // namespace
} // namespace velmora::test
