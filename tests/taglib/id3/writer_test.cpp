#include "taglib/id3/writer.h"

#include "id3_bytes.h"

#include "support/stream_capture.h"
#include "support/system_call_faults.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>

namespace velmora::test {
namespace {

void start(Descriptor& tag, int version, int flags) {
    std::memcpy(tag.signature, "ID3", 3);
    tag.version = static_cast<std::uint8_t>(version);
    tag.header_flags = static_cast<std::uint8_t>(flags);
}

TEST(Id3Writer, Version4TagWithFooter) {
    Descriptor tag;
    start(tag, 4, 0x10);
    tag.revision = 7;
    tag.add("TALB", bytes("\0ab"), hex("12 34"));
    tag.add("TPE1", "");
    OpenFile file("");
    EXPECT_EQ(1, id3_store_descriptor_v2(file.handle(), &tag));
    EXPECT_EQ(to_hex(hex("49 44 33 04 07 10 00 00 00 17"
                         "54 41 4C 42 00 00 00 03 12 34 00 61 62"
                         "54 50 45 31 00 00 00 00 00 00"
                         "33 44 49 04 07 10 00 00 00 17")),
              to_hex(file.contents()));
    EXPECT_EQ(23u, tag.size);
}

TEST(Id3Writer, Version3TagHasPlainFrameSizesAndNoFooterOfItsOwn) {
    Descriptor tag;
    start(tag, 3, 0);
    tag.add("TALB", std::string(200, 'x'));
    OpenFile file("");
    EXPECT_EQ(1, id3_store_descriptor_v2(file.handle(), &tag));
    EXPECT_EQ(to_hex(hex("49 44 33 03 00 00 00 00 01 52 54 41 4C 42 00 00 00 C8 00 00")),
              to_hex(file.contents().substr(0, 20)));
    EXPECT_EQ(220u, file.contents().size());
}

TEST(Id3Writer, Version4FrameSizesAreSyncsafe) {
    Descriptor tag;
    start(tag, 4, 0);
    tag.add("TALB", std::string(200, 'x'));
    OpenFile file("");
    EXPECT_EQ(1, id3_store_descriptor_v2(file.handle(), &tag));
    EXPECT_EQ(to_hex(hex("49 44 33 04 00 00 00 00 01 52 54 41 4C 42 00 00 01 48 00 00")),
              to_hex(file.contents().substr(0, 20)));
}

TEST(Id3Writer, WholeTagIsOneWrite) {
    Descriptor tag;
    start(tag, 4, 0x10);
    tag.add("TPE1", "");
    tag.add("TALB", "x");
    OpenFile file("");
    const SystemCallFaults watch;
    EXPECT_EQ(1, id3_store_descriptor_v2(file.handle(), &tag));
    EXPECT_EQ(1, watch.count(SystemCall::write));
}

TEST(Id3Writer, TagIsWrittenAtTheCurrentPosition) {
    Descriptor tag;
    start(tag, 4, 0);
    OpenFile file("0123456789ABCDEF");
    fio_lseek(file.handle(), 3, SEEK_SET);
    EXPECT_EQ(1, id3_store_descriptor_v2(file.handle(), &tag));
    EXPECT_EQ("012" + header(4, 0, 0) + "DEF", file.contents());
}

TEST(Id3Writer, PaddingIsCountedAndSkippedNotWritten) {
    Descriptor tag;
    start(tag, 4, 0x10);
    tag.padding = 5;
    tag.add("TALB", "x");
    OpenFile file(std::string(50, '#'));
    EXPECT_EQ(1, id3_store_descriptor_v2(file.handle(), &tag));
    EXPECT_EQ(16u, tag.size);
    EXPECT_EQ(header(4, 0x10, 16) + frame4("TALB", "x") + "#####" + header(4, 0x10, 16, "3DI") +
                  std::string(14, '#'),
              file.contents());
}

TEST(Id3Writer, PaddingAtTheEndOfAFileDoesNotExistThere) {
    Descriptor tag;
    start(tag, 3, 0);
    tag.padding = 100;
    OpenFile file("");
    EXPECT_EQ(1, id3_store_descriptor_v2(file.handle(), &tag));
    EXPECT_EQ(header(3, 0, 100), file.contents());
    EXPECT_EQ(110, fio_ltell(file.handle()));
}

TEST(Id3Writer, EveryHeaderFlagIsWrittenAsItIs) {
    Descriptor tag;
    start(tag, 3, 0xE0);
    OpenFile file("");
    EXPECT_EQ(1, id3_store_descriptor_v2(file.handle(), &tag));
    EXPECT_EQ(header(3, 0xE0, 0), file.contents());
}

/** What a store of a tag of 10 + 10 + 3 bytes, a padding of 5 and a footer comes to under FAULTS. */
struct FailedStore {
    explicit FailedStore(void (*inject)(SystemCallFaults&, std::int64_t), std::int64_t position) {
        Descriptor tag;
        start(tag, 4, 0x10);
        tag.padding = 5;
        tag.add("TALB", "xyz");
        OpenFile file("");
        StreamCapture capture;
        {
            SystemCallFaults faults;
            inject(faults, position);
            result = id3_store_descriptor_v2(file.handle(), &tag);
        }
        log = capture.text();
        written = file.contents();
    }
    int result = -1;
    std::string log;
    std::string written;
};

void fill_disk(SystemCallFaults& faults, std::int64_t position) {
    faults.refuse_bytes(SystemCall::write, position, INT64_MAX, ENOSPC);
}

void take_no_more(SystemCallFaults& faults, std::int64_t position) {
    faults.refuse_bytes(SystemCall::write, position, INT64_MAX, 0);
}

TEST(Id3Writer, FailedAndShortWritesAreLoggedForTheFieldThatTheyConcern) {
    const std::string tag =
        header(4, 0x10, 18) + frame4("TALB", "xyz") + std::string(5, '\0') + header(4, 0x10, 18, "3DI");
    ASSERT_EQ(38u, tag.size());
    for (std::size_t room = 0; room < tag.size(); ++room) {
        const char* const field = room < 10   ? "header"
                                  : room < 20 ? "frame"
                                  : room < 23 ? "frame data"
                                              : "footer";
        for (const auto inject : {fill_disk, take_no_more}) {
            const FailedStore store(inject, static_cast<std::int64_t>(room));
            EXPECT_EQ(0, store.result) << room;
            EXPECT_EQ("id3_store_descriptor_v2: Failed to write " + std::string(field) + "\n", store.log)
                << room;
            const std::size_t in_padding = room > 23 && room <= 28 ? 23 : room; // which is not written
            EXPECT_EQ(tag.substr(0, in_padding), store.written) << room;
        }
    }
}

TEST(Id3Writer, FailedSeekFailsTheStoreSilently) {
    for (int nth = 1; nth <= 3; ++nth) { // where it is, to there, over the padding
        const FailedStore store(
            [](SystemCallFaults& faults, std::int64_t call) {
                faults.fail(SystemCall::lseek, static_cast<int>(call), ENOSPC);
            },
            nth);
        EXPECT_EQ(0, store.result) << nth;
        EXPECT_EQ("", store.log) << nth;
        EXPECT_EQ(nth < 3 ? 0u : 23u, store.written.size()) << nth;
    }
}

TEST(Id3Append, CopiesFromTheSourcesPositionToItsEnd) {
    const std::string media = pattern(200'000);
    OpenFile source(media);
    OpenFile target("tag");
    fio_lseek(source.handle(), 7, SEEK_SET);
    fio_lseek(target.handle(), 0, SEEK_END);
    const SystemCallFaults watch;
    EXPECT_EQ(1, id3_append_file(target.handle(), source.handle()));
    EXPECT_EQ("tag" + media.substr(7), target.contents());
    for (const SystemCallRecord& call : watch.records()) {
        if (call.call == SystemCall::read) {
            EXPECT_EQ(65'536, call.requested);
        }
    }
}

TEST(Id3Append, NothingBehindThePositionIsASuccess) {
    OpenFile source("abc");
    OpenFile target("tag");
    fio_lseek(source.handle(), 20, SEEK_SET);
    EXPECT_EQ(1, id3_append_file(target.handle(), source.handle()));
    EXPECT_EQ("tag", target.contents());
}

TEST(Id3Append, ReadErrorFails) {
    OpenFile source(pattern(200'000));
    OpenFile target("");
    for (int nth = 1; nth <= 5; ++nth) {
        fio_lseek(source.handle(), 0, SEEK_SET);
        SystemCallFaults faults;
        faults.fail(SystemCall::read, nth, EIO);
        EXPECT_EQ(0, id3_append_file(target.handle(), source.handle()));
    }
}

TEST(Id3Append, FailedOrShortWriteFails) {
    OpenFile source(pattern(200'000));
    OpenFile target("");
    for (int nth = 1; nth <= 4; ++nth) {
        fio_lseek(source.handle(), 0, SEEK_SET);
        {
            SystemCallFaults faults;
            faults.fail(SystemCall::write, nth, ENOSPC);
            EXPECT_EQ(0, id3_append_file(target.handle(), source.handle()));
        }
        fio_lseek(source.handle(), 0, SEEK_SET);
        SystemCallFaults faults;
        faults.cut_short(SystemCall::write, nth, 100);
        EXPECT_EQ(0, id3_append_file(target.handle(), source.handle()));
    }
}

} // namespace
} // namespace velmora::test
