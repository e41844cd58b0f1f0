#include "taglib/asf/header_object.h"

#include "asf_bytes.h"

#include "support/allocation_faults.h"
#include "support/bytes.h"
#include "support/stream_capture.h"
#include "taglib/asf/content_description.h"
#include "taglib/asf/ext_content_description.h"
#include "taglib/asf/guids.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace velmora {
namespace {

using namespace test;

/** A header record that is freed with the object. */
struct Header : _asf_header_object_t {
    Header() : _asf_header_object_t{} {}
    ~Header() { asf_free_header_object(this); }
    Header(const Header&) = delete;
    Header& operator=(const Header&) = delete;
};

bool read(Header& header, const std::string& bytes) {
    OpenBytes file(bytes);
    StreamCapture quiet;
    return asf_read_header_object(file.file(), &header) == &header;
}

std::string stored(const Header& header) {
    OpenBytes file("");
    StreamCapture quiet;
    EXPECT_EQ(1, asf_store_header_object(file.file(), &header));
    return file.bytes();
}

_asf_object_t* new_padding(std::uint64_t size) {
    _asf_object_t* const object = asf_init_object();
    object->guid = ASF_PaddingObject;
    object->size = size;
    return object;
}

/** Every kind of child, in an order of its own. */
std::string every_kind() {
    return header_object({padding(40), other_object(), content_description("T", "A"),
                          ext_content_description({text_descriptor("WM/Genre", "Rock")}), padding(30)});
}

TEST(AsfHeaderRead, TakesEveryKindOfChildInOrder) {
    Header header;
    ASSERT_TRUE(read(header, every_kind()));
    EXPECT_EQ(ASF_HeaderObject, header.guid);
    EXPECT_EQ(every_kind().size(), header.size);
    EXPECT_EQ(0x0201, header.reserved);
    ASSERT_EQ(5u, header.child_count);
    EXPECT_EQ(ASF_PaddingObject, header.children[0]->guid);
    EXPECT_EQ(40u, header.children[0]->size);
    EXPECT_EQ(ASF_FileProperties, header.children[1]->guid);
    EXPECT_EQ(4, static_cast<_asf_content_description_t*>(header.children[2])->title_length);
    EXPECT_EQ(1, static_cast<_asf_ext_content_description_t*>(header.children[3])->count);
    EXPECT_EQ(30u, header.children[4]->size);
}

TEST(AsfHeaderRead, KeepsAnUnknownChildWholeWithItsObjectHeader) {
    Header header;
    ASSERT_TRUE(read(header, header_object({other_object()})));
    EXPECT_EQ(other_object(),
              std::string(reinterpret_cast<const char*>(header.children[0]), other_object().size()));
}

TEST(AsfHeaderRead, LogsTheWholeHeader) {
    OpenBytes file(
        header_object({other_object(), content_description("T", "A"),
                       ext_content_description({text_descriptor("WM/Genre", "Rock")}), padding(30)}));
    Header header;
    StreamCapture log;
    EXPECT_EQ(&header, asf_read_header_object(file.file(), &header));
    EXPECT_EQ("[0] {75b22630-668e-11cf-a6d9-00aa0062ce6c} (0xd7 bytes)\n"
              "[0] HeaderObject\n"
              "Size = 0xd7\n"
              "NumObjects = 4\n"
              "Reserved = 0x201\n"
              "[1e] {8cabdca1-a947-11cf-8ee4-00c00c205365} (0x35 bytes)\n"
              "[1e] {8cabdca1-a947-11cf-8ee4-00c00c205365}\n"
              "[53] {75b22633-668e-11cf-a6d9-00aa0062ce6c} (0x2a bytes)\n"
              "[53] {75b22633-668e-11cf-a6d9-00aa0062ce6c} (0x2a bytes)\n"
              "[53] ContentDescription\n"
              "  Size = 0x2a\n"
              "  Title = T\n"
              "  Author = A\n"
              "  Copyright = \n"
              "  Description = \n"
              "  Rating = \n"
              "[7d] {d2d0a440-e307-11d2-97f0-00a0c95ea850} (0x3c bytes)\n"
              "[7d] {d2d0a440-e307-11d2-97f0-00a0c95ea850} (0x3c bytes)\n"
              "[7d] ExtendedContentDescription\n"
              "  Size = 0x3c\n"
              "  NumEntries = 1\n"
              "[97] WM/Genre\n"
              "  unicode: Rock\n"
              "[b9] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x1e bytes)\n"
              "[b9] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x1e bytes)\n"
              "[b9] PaddingObject\n"
              "  Size = 0x1e\n",
              log.text());
}

TEST(AsfHeaderRead, WithoutChildrenIsThirtyBytes) {
    const std::string bytes = hex("30 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C 1E 00 00 00 00 00 00 00"
                                  "00 00 00 00 01 02");
    Header header;
    ASSERT_TRUE(read(header, bytes + "data"));
    EXPECT_EQ(0u, header.child_count);
    EXPECT_EQ(nullptr, header.children);
    EXPECT_EQ(bytes, stored(header));
}

TEST(AsfHeaderRead, EndsFarBehindTheHeader) {
    OpenBytes file(header_object({padding(30)}));
    Header header;
    ASSERT_TRUE(asf_read_header_object(file.file(), &header));
    EXPECT_EQ(60 + 60, file.position());
}

TEST(AsfHeaderRead, RefusesAnotherGuid) {
    OpenBytes file(padding(100));
    Header header;
    StreamCapture log;
    EXPECT_EQ(nullptr, asf_read_header_object(file.file(), &header));
    EXPECT_EQ("[0] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x64 bytes)\n"
              "asf_read_header_object: Not a valid header\n",
              log.text());
}

TEST(AsfHeaderRead, RefusesAFileWithoutAWholeGuid) {
    for (std::size_t length = 0; length < 16; ++length) {
        OpenBytes file(header_object({}).substr(0, length));
        Header header;
        StreamCapture log;
        EXPECT_EQ(nullptr, asf_read_header_object(file.file(), &header)) << length;
        EXPECT_EQ("asf_read_header_object: Not a valid header\n", log.text()) << length;
    }
}

TEST(AsfHeaderRead, RefusesAChildThatReachesPastTheHeader) {
    const std::string bytes = header_object_of_size(30 + 30 + 39, {padding(30), padding(40)});
    OpenBytes file(bytes + std::string(1000, '.'));
    Header header;
    StreamCapture log;
    EXPECT_EQ(nullptr, asf_read_header_object(file.file(), &header));
    EXPECT_TRUE(
        log.text().ends_with("[3c] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x28 bytes)\n"
                             "asf_read_header_object: Size overrun reading header object 3c + 28 > 63\n"))
        << log.text();
}

TEST(AsfHeaderRead, KeepsTheChildrenThatItReadBeforeItFailed) {
    Header header;
    EXPECT_FALSE(read(header, header_object_of_size(60, {padding(30), padding(40)})));
    ASSERT_EQ(1u, header.child_count);
    EXPECT_EQ(30u, header.children[0]->size);
}

TEST(AsfHeaderRead, TakesAChildThatEndsWithTheHeader) {
    Header header;
    EXPECT_TRUE(read(header, header_object_of_size(30 + 30 + 40, {padding(30), padding(40)})));
}

TEST(AsfHeaderRead, TakesSlackBehindTheChildren) {
    Header header;
    EXPECT_TRUE(read(header, header_object_of_size(1000, {padding(30)})));
    EXPECT_EQ(1000u, header.size);
}

TEST(AsfHeaderRead, NextChildIsWhereTheDeclaredSizeOfAContentDescriptionSays) {
    const std::string slack = object_of_size(cd_guid, 50, std::string(26, '\0'));
    Header header;
    ASSERT_TRUE(read(header, header_object({slack, padding(30)})));
    EXPECT_EQ(50u, header.children[0]->size);
    EXPECT_EQ(30u, header.children[1]->size);
}

TEST(AsfHeaderRead, NextChildIsWhereTheDeclaredSizeOfAnExtContentDescriptionSays) {
    const std::string slack = object_of_size(ecd_guid, 50, std::string(26, '\0'));
    Header header;
    ASSERT_TRUE(read(header, header_object({slack, padding(30)})));
    EXPECT_EQ(50u, header.children[0]->size);
    EXPECT_EQ(30u, header.children[1]->size);
}

TEST(AsfHeaderRead, TakesAPaddingSmallerThanItsOwnHeader) {
    for (std::uint64_t size = 1; size < 24; ++size) {
        Header header;
        ASSERT_TRUE(
            read(header, header_object_of_size(30 + size, {object_of_size(padding_guid, size, "data")})))
            << size;
        EXPECT_EQ(size, header.children[0]->size);
    }
}

TEST(AsfHeaderRead, FailsWithoutMemory) {
    const std::string bytes = every_kind();
    int allocations = 0;
    {
        Header header;
        const AllocationFaults none;
        ASSERT_TRUE(read(header, bytes));
        allocations = none.count();
    }
    int failures = 0;
    for (int nth = 1; nth <= allocations; ++nth) {
        Header header;
        const AllocationFaults allocation(nth);
        failures += read(header, bytes) ? 0 : 1;
    }
    // The strings of the content description alone may be absent.
    EXPECT_EQ(allocations - 2, failures);
}

TEST(AsfHeaderStore, WritesEveryKindOfChildBackUnchanged) {
    const std::string bytes = every_kind();
    Header header;
    ASSERT_TRUE(read(header, bytes));
    OpenBytes file(bytes + "media");
    StreamCapture quiet;
    EXPECT_EQ(1, asf_store_header_object(file.file(), &header));
    EXPECT_EQ(bytes + "media", file.bytes());
}

TEST(AsfHeaderStore, KeepsThePaddingsBytesInTheFile) {
    Header header;
    ASSERT_TRUE(read(header, header_object({padding(40), other_object()})));
    OpenBytes file(std::string(200, '-'));
    StreamCapture quiet;
    EXPECT_EQ(1, asf_store_header_object(file.file(), &header));
    const std::string bytes = file.bytes();
    EXPECT_EQ(hex(padding_guid) + hex("28 00 00 00 00 00 00 00") + std::string(16, '-') + other_object() +
                  "-----",
              bytes.substr(30, 40 + other_object().size() + 5));
}

TEST(AsfHeaderStore, WritesAtTheStartOfTheFile) {
    Header header;
    ASSERT_TRUE(read(header, header_object({other_object()})));
    OpenBytes file(std::string(200, '-'));
    file.seek(100);
    StreamCapture quiet;
    EXPECT_EQ(1, asf_store_header_object(file.file(), &header));
    EXPECT_EQ(header_object({other_object()}),
              file.bytes().substr(0, header_object({other_object()}).size()));
}

TEST(AsfHeaderStore, WritesTheSizeFieldAsItStands) {
    Header header;
    header.guid = ASF_HeaderObject;
    header.size = 0x0102030405060708;
    header.reserved = 0x0A0B;
    EXPECT_EQ(hex("30 26 B2 75 8E 66 CF 11 A6 D9 00 AA 00 62 CE 6C 08 07 06 05 04 03 02 01"
                  "00 00 00 00 0B 0A"),
              stored(header));
}

TEST(AsfHeaderStore, LogsWhereItWrites) {
    Header header;
    ASSERT_TRUE(read(header, header_object({other_object(), content_description("T", "A"),
                                            ext_content_description({text_descriptor("WM/Genre", "Rock")}),
                                            padding(30)})));
    OpenBytes file("");
    StreamCapture log;
    EXPECT_EQ(1, asf_store_header_object(file.file(), &header));
    EXPECT_EQ("[0] {75b22630-668e-11cf-a6d9-00aa0062ce6c} (0xd7 bytes)\n"
              "[1e] {8cabdca1-a947-11cf-8ee4-00c00c205365} (0x35 bytes)\n"
              "[53] ContentDescription\n"
              "  Size = 0x2a\n"
              "[53] {75b22633-668e-11cf-a6d9-00aa0062ce6c} (0x2a bytes)\n"
              "[7d] ExtendedContentDescription\n"
              "  Size = 0x3c\n"
              "[7d] {d2d0a440-e307-11d2-97f0-00a0c95ea850} (0x3c bytes)\n"
              "[97] WM/Genre\n"
              "[b9] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x1e bytes)\n"
              "[b9] PaddingObject\n"
              "  Size = 0x1e\n",
              log.text());
}

TEST(AsfHeaderStore, FailsWhenNothingCanBeWritten) {
    FIOFUNCSTRUCT nowhere{-1};
    Header header;
    EXPECT_EQ(0, asf_store_header_object(&nowhere, &header));
}

TEST(AsfHeaderSize, CountsThirtyAndTheChildren) {
    Header header;
    ASSERT_TRUE(read(header, every_kind()));
    EXPECT_EQ(every_kind().size(), asf_get_header_object_size(&header));
}

TEST(AsfHeaderSize, OfNoChildrenIsThirty) {
    const Header header;
    StreamCapture log;
    EXPECT_EQ(30u, asf_get_header_object_size(&header));
    EXPECT_EQ("asf_get_header_object_size: 1e bytes\n", log.text());
}

TEST(AsfHeaderSize, ComputesTheDescriptionsAnewAndStoresTheirSizes) {
    Header header;
    const std::string cd = object_of_size(cd_guid, 50, std::string(26, '\0'));
    const std::string ecd = object_of_size(ecd_guid, 60, std::string(36, '\0'));
    ASSERT_TRUE(read(header, header_object({cd, ecd, padding(40)})));
    const std::uint64_t size = header.size;
    StreamCapture log;
    EXPECT_EQ(30u + 34 + 26 + 40, asf_get_header_object_size(&header));
    EXPECT_EQ(34u, header.children[0]->size);
    EXPECT_EQ(26u, header.children[1]->size);
    EXPECT_EQ(size, header.size);
    EXPECT_EQ("asf_get_content_description_size: 22 bytes\n"
              "asf_get_ext_content_description_size: 1a bytes\n"
              "asf_get_header_object_size: 82 bytes\n",
              log.text());
}

TEST(AsfHeaderSize, TakesAnUnknownChildsSizeAsRead) {
    Header header;
    ASSERT_TRUE(read(header, header_object({other_object()})));
    EXPECT_EQ(30u + 53, asf_get_header_object_size(&header));
}

TEST(AsfHeaderSize, HasThirtyTwoBits) {
    Header header;
    ASSERT_TRUE(asf_insert_object(&header, new_padding(0x300000005)));
    EXPECT_EQ(0x23u, asf_get_header_object_size(&header));
}

TEST(AsfInsertObject, AppendsAndAddsTheSizeAndTwentyFour) {
    Header header;
    ASSERT_TRUE(read(header, header_object({padding(40)})));
    _asf_object_t* const added = new_padding(1024);
    EXPECT_EQ(1, asf_insert_object(&header, added));
    ASSERT_EQ(2u, header.child_count);
    EXPECT_EQ(added, header.children[1]);
    EXPECT_EQ(70u + 1024 + 24, header.size);
}

TEST(AsfInsertObject, FailsWithoutMemory) {
    Header header;
    _asf_object_t object{};
    const AllocationFaults array(1);
    EXPECT_EQ(0, asf_insert_object(&header, &object));
    EXPECT_EQ(0u, header.child_count);
    EXPECT_EQ(0u, header.size);
}

TEST(AsfFindObject, GivesTheFirstWithTheGuid) {
    Header header;
    ASSERT_TRUE(read(header, header_object({other_object(), padding(40), padding(50)})));
    EXPECT_EQ(header.children[1], asf_find_object(&header, ASF_PaddingObject));
}

TEST(AsfFindObject, GivesNoneWhenThereIsNone) {
    Header header;
    ASSERT_TRUE(read(header, header_object({other_object()})));
    EXPECT_EQ(nullptr, asf_find_object(&header, ASF_PaddingObject));
}

TEST(AsfFindObject, PassesOverEmptyPlaces) {
    Header header;
    ASSERT_TRUE(asf_insert_object(&header, new_padding(24)));
    ASSERT_TRUE(asf_insert_object(&header, new_padding(25)));
    std::free(header.children[0]);
    header.children[0] = nullptr;
    EXPECT_EQ(header.children[1], asf_find_object(&header, ASF_PaddingObject));
}

TEST(AsfFreeHeader, ZeroesTheRecordSoThatASecondCallIsHarmless) {
    _asf_header_object_t header{};
    OpenBytes file(every_kind());
    ASSERT_TRUE(asf_read_header_object(file.file(), &header));
    for (int i = 0; i < 2; ++i) {
        asf_free_header_object(&header);
        EXPECT_EQ(GUID{}, header.guid);
        EXPECT_EQ(0u, header.size);
        EXPECT_EQ(0u, header.child_count);
        EXPECT_EQ(0, header.reserved);
        EXPECT_EQ(nullptr, header.children);
    }
}

TEST(AsfFreeHeader, ReleasesAnObjectThatIsListedTwiceOnce) {
    // A second release ends the program under the allocator's own checks and under the address sanitizer.
    _asf_header_object_t header{};
    _asf_content_description_t* const cd = asf_init_content_description();
    ASSERT_TRUE(asf_insert_object(&header, cd));
    ASSERT_TRUE(asf_insert_object(&header, new_padding(24)));
    ASSERT_TRUE(asf_insert_object(&header, cd));
    asf_free_header_object(&header);
    EXPECT_EQ(nullptr, header.children);
}

} // namespace
} // namespace velmora
