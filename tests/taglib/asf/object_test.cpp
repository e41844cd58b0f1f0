#include "taglib/asf/object.h"

#include "asf_bytes.h"

#include "support/bytes.h"
#include "support/stream_capture.h"
#include "taglib/asf/detail/owned.h"
#include "taglib/asf/guids.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace test;

TEST(AsfObject, InitGivesAZeroedRecord) {
    const AsfOwned<_asf_object_t> object(asf_init_object());
    ASSERT_TRUE(object);
    EXPECT_EQ(GUID{}, object->guid);
    EXPECT_EQ(0u, object->size);
}

TEST(AsfObject, ReadTakesGuidAndSize) {
    OpenBytes file(hex("D4 AB CD 01 23 45 67 89 AB CD EF 01 23 45 67 89") + hex("08 07 06 05 04 03 02 01") +
                   "body");
    _asf_object_t object{};
    EXPECT_EQ(&object, asf_read_object(file.file(), &object));
    EXPECT_EQ(hex("D4 AB CD 01 23 45 67 89 AB CD EF 01 23 45 67 89"),
              std::string(reinterpret_cast<const char*>(object.guid.bytes), 16));
    EXPECT_EQ(0x0102030405060708u, object.size);
    EXPECT_EQ(24, file.position());
}

TEST(AsfObject, ReadMakesARecordWhenNoneIsGiven) {
    OpenBytes file(padding(24));
    const AsfOwned<_asf_object_t> object(asf_read_object(file.file(), nullptr));
    ASSERT_TRUE(object);
    EXPECT_EQ(ASF_PaddingObject, object->guid);
    EXPECT_EQ(24u, object->size);
}

TEST(AsfObject, ReadLogsWhereTheObjectBegins) {
    OpenBytes file(std::string(0x1f, 'x') + padding(26));
    file.seek(0x1f);
    _asf_object_t object{};
    StreamCapture log;
    asf_read_object(file.file(), &object);
    EXPECT_EQ("[1f] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x1a bytes)\n", log.text());
}

TEST(AsfObject, ReadLogsTheLowHalfOfALargeSize) {
    OpenBytes file(object_of_size(padding_guid, 0x123400000005, ""));
    _asf_object_t object{};
    StreamCapture log;
    asf_read_object(file.file(), &object);
    EXPECT_EQ("[0] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x5 bytes)\n", log.text());
}

TEST(AsfObject, ReadFailsWithoutAWholeGuid) {
    for (std::size_t length = 0; length < 16; ++length) {
        OpenBytes file(padding(24).substr(0, length));
        _asf_object_t object{GUID{}, 7};
        EXPECT_EQ(nullptr, asf_read_object(file.file(), &object)) << length;
        EXPECT_EQ(7u, object.size) << length;
    }
}

TEST(AsfObject, ReadTakesTheBytesOfASizeThatTheFileEndCutsOffAsZero) {
    OpenBytes file(object_of_size(padding_guid, 0x0102030405060708, "").substr(0, 19));
    _asf_object_t object{};
    StreamCapture log;
    ASSERT_EQ(&object, asf_read_object(file.file(), &object));
    EXPECT_EQ(0x060708u, object.size);
    // The place that is shown is 24 bytes before the one that the read came to.
    EXPECT_EQ("[fffffffffffffffb] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x60708 bytes)\n", log.text());
}

TEST(AsfObject, StoreWritesGuidAndSize) {
    OpenBytes file("");
    const _asf_object_t object{ASF_PaddingObject, 0x0102030405060708};
    EXPECT_EQ(1, asf_store_object(file.file(), &object));
    EXPECT_EQ(hex("74 D4 06 18 DF CA 09 45 A4 BA 9A AB CB 96 AA E8 08 07 06 05 04 03 02 01"), file.bytes());
}

TEST(AsfObject, StoreLogsThePositionThatItWritesTo) {
    OpenBytes file("");
    file.seek(0x200);
    const _asf_object_t object{ASF_PaddingObject, 0x400};
    StreamCapture log;
    (void)asf_store_object(file.file(), &object);
    EXPECT_EQ("[200] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x400 bytes)\n", log.text());
}

TEST(AsfObject, StoreFailsWhenTheGuidCanNotBeWritten) {
    FIOFUNCSTRUCT nowhere{-1};
    const _asf_object_t object{ASF_PaddingObject, 24};
    EXPECT_EQ(0, asf_store_object(&nowhere, &object));
}

TEST(AsfPadding, ReadSkipsTheBody) {
    OpenBytes file("abc" + padding(100) + "next");
    file.seek(3);
    _asf_object_t object{};
    StreamCapture log;
    EXPECT_EQ(&object, asf_read_padding_object(file.file(), &object));
    EXPECT_EQ(ASF_PaddingObject, object.guid);
    EXPECT_EQ(100u, object.size);
    EXPECT_EQ(103, file.position());
    EXPECT_EQ("[3] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x64 bytes)\n"
              "[3] PaddingObject\n"
              "  Size = 0x64\n",
              log.text());
}

TEST(AsfPadding, ReadMakesARecordWhenNoneIsGiven) {
    OpenBytes file(padding(30));
    const AsfOwned<_asf_object_t> object(asf_read_padding_object(file.file(), nullptr));
    ASSERT_TRUE(object);
    EXPECT_EQ(30u, object->size);
}

TEST(AsfPadding, ReadLeadsBackIntoAHeaderThatTheSizeFallsBelow) {
    OpenBytes file(object_of_size(padding_guid, 5, "data"));
    _asf_object_t object{};
    EXPECT_EQ(&object, asf_read_padding_object(file.file(), &object));
    EXPECT_EQ(5u, object.size);
    EXPECT_EQ(5, file.position());
}

TEST(AsfPadding, ReadLogsAllOfALargeSize) {
    OpenBytes file(object_of_size(padding_guid, 0x123400000005, ""));
    _asf_object_t object{};
    StreamCapture log;
    asf_read_padding_object(file.file(), &object);
    EXPECT_EQ("[0] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x5 bytes)\n"
              "[0] PaddingObject\n"
              "  Size = 0x123400000005\n",
              log.text());
}

TEST(AsfPadding, ReadFailsOnASizeThatLeadsNowhere) {
    for (const std::uint64_t size : {0x8000000000000000, 0xFFFFFFFFFFFFFFFF}) {
        OpenBytes file(object_of_size(padding_guid, size, ""));
        EXPECT_EQ(nullptr, asf_read_padding_object(file.file(), nullptr)) << size;
    }
}

TEST(AsfPadding, ReadFailsWithoutAnObjectHeader) {
    OpenBytes file(padding(24).substr(0, 15));
    EXPECT_EQ(nullptr, asf_read_padding_object(file.file(), nullptr));
}

TEST(AsfPadding, StoreWritesTheHeaderAndKeepsTheBody) {
    OpenBytes file("abc" + std::string(30, '-') + "next");
    file.seek(3);
    const _asf_object_t object{ASF_PaddingObject, 30};
    StreamCapture log;
    EXPECT_EQ(1, asf_store_padding_object(file.file(), &object));
    EXPECT_EQ("abc" + hex(padding_guid) + hex("1E 00 00 00 00 00 00 00") + "------next", file.bytes());
    EXPECT_EQ(33, file.position());
    EXPECT_EQ("[3] {1806d474-cadf-4509-a4ba-9aabcb96aae8} (0x1e bytes)\n"
              "[3] PaddingObject\n"
              "  Size = 0x1e\n",
              log.text());
}

TEST(AsfPadding, StoreOfASizeBelowTheHeaderStillWritesTheWholeHeader) {
    OpenBytes file(std::string(30, '-'));
    const _asf_object_t object{ASF_PaddingObject, 7};
    EXPECT_EQ(1, asf_store_padding_object(file.file(), &object));
    EXPECT_EQ(hex(padding_guid) + hex("07 00 00 00 00 00 00 00") + "------", file.bytes());
    EXPECT_EQ(7, file.position());
}

TEST(AsfPadding, StoreSeeksBehindTheEndOfTheFileWithoutMakingItLonger) {
    OpenBytes file("");
    const _asf_object_t object{ASF_PaddingObject, 1024};
    EXPECT_EQ(1, asf_store_padding_object(file.file(), &object));
    EXPECT_EQ(24u, file.bytes().size());
    EXPECT_EQ(1024, file.position());
}

TEST(AsfPadding, StoreFailsWhenNothingCanBeWritten) {
    FIOFUNCSTRUCT nowhere{-1};
    const _asf_object_t object{ASF_PaddingObject, 24};
    EXPECT_EQ(0, asf_store_padding_object(&nowhere, &object));
}

TEST(AsfPadding, StoreFailsOnASizeThatLeadsNowhere) {
    OpenBytes file("");
    const _asf_object_t object{ASF_PaddingObject, 0x8000000000000000};
    EXPECT_EQ(0, asf_store_padding_object(file.file(), &object));
}

} // namespace
} // namespace velmora
