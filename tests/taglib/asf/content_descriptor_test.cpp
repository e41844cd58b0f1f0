#include "taglib/asf/content_descriptor.h"

#include "asf_bytes.h"

#include "support/allocation_faults.h"
#include "support/bytes.h"
#include "support/stream_capture.h"
#include "taglib/asf/detail/cursor_readers.h"

#include <gtest/gtest.h>

#include <memory>

namespace velmora {
namespace {

using namespace test;

struct FreeDescriptor {
    void operator()(_asf_content_descriptor_t* descriptor) const { asf_free_content_descriptor(descriptor); }
};
using Descriptor = std::unique_ptr<_asf_content_descriptor_t, FreeDescriptor>;

/** "Ab", word 0x0102. */
const std::string word_descriptor = hex("06 00 41 00 62 00 00 00 05 00 02 00 02 01");

/** What reading a descriptor "N" with this type and value logs behind the line with its name. */
std::string value_line(std::uint16_t type, const std::string& value) {
    OpenBytes file(test::descriptor("N", type, value));
    StreamCapture log;
    const Descriptor read(asf_read_content_descriptor(file.file(), nullptr));
    const std::string text = log.text();
    EXPECT_TRUE(text.starts_with("[0] N\n")) << text;
    return text.substr(6);
}

TEST(AsfContentDescriptor, InitGivesAZeroedRecord) {
    const Descriptor descriptor(asf_init_content_descriptor());
    ASSERT_TRUE(descriptor);
    EXPECT_EQ(0, descriptor->name_length);
    EXPECT_EQ(nullptr, descriptor->name);
    EXPECT_EQ(0, descriptor->type);
    EXPECT_EQ(0, descriptor->value_length);
    EXPECT_EQ(nullptr, descriptor->value);
}

TEST(AsfContentDescriptor, FreeTakesNull) {
    asf_free_content_descriptor(nullptr);
}

TEST(AsfContentDescriptor, ReadTakesNameTypeAndValue) {
    OpenBytes file(word_descriptor + "next");
    const Descriptor descriptor(asf_read_content_descriptor(file.file(), nullptr));
    ASSERT_TRUE(descriptor);
    EXPECT_EQ(hex("41 00 62 00 00 00"), bytes_of(descriptor->name, descriptor->name_length));
    EXPECT_EQ(5, descriptor->type);
    EXPECT_EQ(hex("02 01"), bytes_of(descriptor->value, descriptor->value_length));
    EXPECT_EQ(14, file.position());
}

TEST(AsfContentDescriptor, ReadFillsAGivenRecord) {
    OpenBytes file(word_descriptor);
    _asf_content_descriptor_t* const given = asf_init_content_descriptor();
    const Descriptor owner(given);
    EXPECT_EQ(given, asf_read_content_descriptor(file.file(), given));
    EXPECT_EQ(5, given->type);
}

TEST(AsfContentDescriptor, EmptyNameAndValueAreAbsent) {
    OpenBytes file(hex("00 00 03 00 00 00"));
    const Descriptor descriptor(asf_read_content_descriptor(file.file(), nullptr));
    ASSERT_TRUE(descriptor);
    EXPECT_EQ(nullptr, descriptor->name);
    EXPECT_EQ(3, descriptor->type);
    EXPECT_EQ(nullptr, descriptor->value);
    EXPECT_EQ(6, file.position());
}

TEST(AsfContentDescriptor, ReadBehindTheEndOfTheFileGivesZeros) {
    OpenBytes file(hex("06 00 41 00"));
    const Descriptor descriptor(asf_read_content_descriptor(file.file(), nullptr));
    ASSERT_TRUE(descriptor);
    EXPECT_EQ(hex("41 00 00 00 00 00"), bytes_of(descriptor->name, descriptor->name_length));
    EXPECT_EQ(0, descriptor->type);
    EXPECT_EQ(0, descriptor->value_length);
}

TEST(AsfContentDescriptor, ReadFailsWithoutMemory) {
    for (int nth = 1; nth <= 3; ++nth) {
        OpenBytes file(word_descriptor);
        const AllocationFaults allocation(nth);
        EXPECT_EQ(nullptr, asf_read_content_descriptor(file.file(), nullptr)) << nth;
        EXPECT_GE(allocation.count(), nth) << nth;
    }
}

TEST(AsfContentDescriptor, ReadThatFailsLeavesAGivenRecordEmpty) {
    OpenBytes file(word_descriptor);
    _asf_content_descriptor_t given{};
    given.type = 4;
    const AllocationFaults value(2);
    EXPECT_EQ(nullptr, asf_read_content_descriptor(file.file(), &given));
    EXPECT_EQ(0, given.type);
    EXPECT_EQ(nullptr, given.name);
}

/** Read from the file's beginning by a cursor that ends at LIMIT. */
_asf_content_descriptor_t* read_before(OpenBytes& file, std::uint64_t limit) {
    ReadWindow window(file.file());
    ReadCursor cursor(window, 0, limit);
    return asf_read_content_descriptor(&cursor, nullptr);
}

TEST(AsfContentDescriptor, ReadBeforeALimitTakesADescriptorThatEndsThere) {
    OpenBytes file(word_descriptor);
    EXPECT_TRUE(Descriptor(read_before(file, 14)));
}

TEST(AsfContentDescriptor, ReadBeforeALimitFailsOnADescriptorThatRunsPastIt) {
    for (std::uint64_t limit = 0; limit < 14; ++limit) {
        OpenBytes file(word_descriptor);
        EXPECT_EQ(nullptr, read_before(file, limit)) << limit;
    }
}

TEST(AsfContentDescriptor, ReadLogsPositionAndName) {
    OpenBytes file("..........." + word_descriptor);
    file.seek(11);
    StreamCapture log;
    const Descriptor descriptor(asf_read_content_descriptor(file.file(), nullptr));
    EXPECT_EQ("[b] Ab\n  word: 0x102 (258)\n", log.text());
}

TEST(AsfContentDescriptor, ReadLogsANameWithoutTerminator) {
    OpenBytes file(u16(2) + wide("N") + u16(5) + u16(0));
    StreamCapture log;
    const Descriptor descriptor(asf_read_content_descriptor(file.file(), nullptr));
    EXPECT_EQ("[0] N\n  word: 0x0 (0)\n", log.text());
}

TEST(AsfContentDescriptor, ReadLogsAnAbsentNameAsNothing) {
    OpenBytes file(hex("00 00 05 00 00 00"));
    StreamCapture log;
    const Descriptor descriptor(asf_read_content_descriptor(file.file(), nullptr));
    EXPECT_EQ("[0] \n  word: 0x0 (0)\n", log.text());
}

TEST(AsfContentDescriptorLog, Unicode) {
    EXPECT_EQ("  unicode: \xC3\xA9t\xC3\xA9\n", value_line(0, hex("E9 00 74 00 E9 00 00 00")));
    EXPECT_EQ("  unicode: Ab\n", value_line(0, wide("Ab")));
    EXPECT_EQ("  unicode: A\n", value_line(0, hex("41 00 62")));
    EXPECT_EQ("  unicode: \n", value_line(0, ""));
}

TEST(AsfContentDescriptorLog, Bytearray) {
    EXPECT_EQ("  bytearray: abc\n", value_line(1, std::string("abc\0def", 7)));
    EXPECT_EQ("  bytearray: abc\n", value_line(1, "abc"));
    EXPECT_EQ("  bytearray: \n", value_line(1, ""));
}

TEST(AsfContentDescriptorLog, LongBytearrayIsCutWithTheMessage) {
    EXPECT_EQ("  bytearray: " + std::string(511 - 13, 'x'), value_line(1, std::string(3000, 'x')));
}

TEST(AsfContentDescriptorLog, Bool) {
    EXPECT_EQ("  bool: 1\n", value_line(2, u32(1)));
    EXPECT_EQ("  bool: -1\n", value_line(2, u32(0xFFFFFFFF)));
    EXPECT_EQ("  bool: 258\n", value_line(2, hex("02 01")));
}

TEST(AsfContentDescriptorLog, Dword) {
    EXPECT_EQ("  dword: 0x7d8 (2008)\n", value_line(3, u32(2008)));
    EXPECT_EQ("  dword: 0xfffffffe (-2)\n", value_line(3, u32(0xFFFFFFFE)));
    EXPECT_EQ("  dword: 0x4030201 (67305985)\n", value_line(3, hex("01 02 03 04 05 06 07 08")));
}

TEST(AsfContentDescriptorLog, Qword) {
    EXPECT_EQ("  qword: 0x123456789abcdef (81985529216486895)\n", value_line(4, u64(0x0123456789ABCDEF)));
    EXPECT_EQ("  qword: 0xffffffffffffffff (-1)\n", value_line(4, u64(0xFFFFFFFFFFFFFFFF)));
}

TEST(AsfContentDescriptorLog, Word) {
    EXPECT_EQ("  word: 0xfffe (65534)\n", value_line(5, u16(0xFFFE)));
}

TEST(AsfContentDescriptorLog, UnknownType) {
    EXPECT_EQ("  unknown type 6 length 3\n", value_line(6, "abc"));
    EXPECT_EQ("  unknown type 65535 length 0\n", value_line(0xFFFF, ""));
}

TEST(AsfContentDescriptor, StoreWritesWhatWasReadWhateverItsType) {
    for (const std::uint16_t type : {0, 1, 2, 3, 4, 5, 6, 0xFFFF}) {
        const std::string bytes = u16(5) + "odd n" + u16(type) + u16(7) + std::string("v\0l\0e\0!", 7);
        OpenBytes from(bytes);
        const Descriptor descriptor(asf_read_content_descriptor(from.file(), nullptr));
        ASSERT_TRUE(descriptor);
        OpenBytes to("");
        EXPECT_EQ(1, asf_store_content_descriptor(to.file(), descriptor.get()));
        EXPECT_EQ(bytes, to.bytes()) << type;
    }
}

TEST(AsfContentDescriptor, StoreOfAnEmptyOneIsSixBytes) {
    const Descriptor descriptor(asf_init_content_descriptor());
    OpenBytes file("");
    EXPECT_EQ(1, asf_store_content_descriptor(file.file(), descriptor.get()));
    EXPECT_EQ(hex("00 00 00 00 00 00"), file.bytes());
    EXPECT_EQ(6u, asf_content_descriptor_bytes(descriptor.get()));
}

TEST(AsfContentDescriptor, StoreLogsPositionAndName) {
    OpenBytes from(word_descriptor);
    const Descriptor descriptor(asf_read_content_descriptor(from.file(), nullptr));
    OpenBytes to("");
    to.seek(0x1a);
    StreamCapture log;
    asf_store_content_descriptor(to.file(), descriptor.get());
    EXPECT_EQ("[1a] Ab\n", log.text());
}

TEST(AsfContentDescriptor, StoreReturnsOneAlsoWhenNothingCouldBeWritten) {
    FIOFUNCSTRUCT nowhere{-1};
    const Descriptor descriptor(asf_init_content_descriptor());
    EXPECT_EQ(1, asf_store_content_descriptor(&nowhere, descriptor.get()));
}

} // namespace
} // namespace velmora
