#include "taglib/guid.h"

#include <gtest/gtest.h>

#include <string>

namespace velmora {
namespace {

const GUID asf_header_object = {
    {0x30, 0x26, 0xB2, 0x75, 0x8E, 0x66, 0xCF, 0x11, 0xA6, 0xD9, 0x00, 0xAA, 0x00, 0x62, 0xCE, 0x6C}};

TEST(GuidName, ShowsTheLittleEndianFieldsAndTheEightBytesInLowerCase) {
    EXPECT_STREQ("{75b22630-668e-11cf-a6d9-00aa0062ce6c}", GUIDNAME(asf_header_object));
}

TEST(GuidName, PadsEveryGroupWithZerosButTheThirdWithBlanksOnItsRight) {
    const GUID guid = {
        {0x04, 0x00, 0x00, 0x00, 0x03, 0x00, 0x12, 0x00, 0x00, 0x02, 0x01, 0x00, 0x0A, 0x00, 0x00, 0x09}};
    EXPECT_STREQ("{00000004-0003-12  -0002-01000a000009}", GUIDNAME(guid));
}

TEST(GuidName, OfZerosIsOneDigitAndThreeBlanksInTheThirdGroup) {
    EXPECT_STREQ("{00000000-0000-0   -0000-000000000000}", GUIDNAME(GUID{}));
}

TEST(GuidName, OfAllBitsSetHasNoSign) {
    GUID guid;
    for (std::uint8_t& byte : guid.bytes) {
        byte = 0xFF;
    }
    EXPECT_STREQ("{ffffffff-ffff-ffff-ffff-ffffffffffff}", GUIDNAME(guid));
}

TEST(GuidName, IsOverwrittenByTheNextCall) {
    const char* const first = GUIDNAME(asf_header_object);
    const char* const second = GUIDNAME(GUID{});
    EXPECT_EQ(first, second);
    EXPECT_STREQ("{00000000-0000-0   -0000-000000000000}", first);
}

TEST(Guid, IsComparedByAllSixteenBytes) {
    GUID other = asf_header_object;
    EXPECT_TRUE(asf_header_object == other);
    other.bytes[15] ^= 1;
    EXPECT_FALSE(asf_header_object == other);
}

} // namespace
} // namespace velmora
