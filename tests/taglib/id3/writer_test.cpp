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

TEST(Id3Writer, EmptyFrameIsOneWriteOfItsHeader) {
    Descriptor tag;
    start(tag, 4, 0);
    tag.add("TPE1", "");
    OpenFile file("");
    const SystemCallFaults watch;
    EXPECT_EQ(1, id3_store_descriptor_v2(file.handle(), &tag));
    EXPECT_EQ(2, watch.count(SystemCall::write)); // the tag's header and the frame's
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

/** Stores header, frame header, frame body, seek over the padding and footer, with the NTH call going wrong.
 */
struct FailedStore {
    FailedStore(SystemCall call, int nth, bool short_write) {
        Descriptor tag;
        start(tag, 4, 0x10);
        tag.padding = 5;
        tag.add("TALB", "xyz");
        OpenFile file("");
        StreamCapture capture;
        SystemCallFaults faults;
        if (short_write) {
            faults.cut_short(call, nth, 2);
        } else {
            faults.fail(call, nth, ENOSPC);
        }
        result = id3_store_descriptor_v2(file.handle(), &tag);
        log = capture.text();
    }
    int result = -1;
    std::string log;
};

TEST(Id3Writer, FailedAndShortWritesAreLogged) {
    const char* const messages[] = {"id3_store_descriptor_v2: Failed to write header\n",
                                    "id3_store_descriptor_v2: Failed to write frame\n",
                                    "id3_store_descriptor_v2: Failed to write frame data\n",
                                    "id3_store_descriptor_v2: Failed to write footer\n"};
    for (const bool short_write : {false, true}) {
        for (int nth = 1; nth <= 4; ++nth) {
            const FailedStore store(SystemCall::write, nth, short_write);
            EXPECT_EQ(0, store.result);
            EXPECT_EQ(messages[nth - 1], store.log);
        }
    }
}

TEST(Id3Writer, FailedSeekOverThePaddingFailsTheStore) {
    const FailedStore store(SystemCall::lseek, 1, false);
    EXPECT_EQ(0, store.result);
    EXPECT_EQ("", store.log);
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
