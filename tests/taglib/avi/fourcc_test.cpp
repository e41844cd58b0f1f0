#include "taglib/avi/fourcc.h"

#include <gtest/gtest.h>

#include <vector>

namespace velmora {
namespace {

TEST(AviFourcc, ItsFirstByteOnDiskIsTheLowestOfTheNumber) {
    EXPECT_EQ(0x5453494Cu, make_fourcc("LIST"));
}

TEST(AviRiffTag, IsTheFourBytesAndATerminatingZero) {
    EXPECT_STREQ("LIST", riff_tag(0x5453494C));
}

TEST(AviRiffTag, OfZeroBytesIsEmpty) {
    EXPECT_STREQ("", riff_tag(0));
}

TEST(AviRiffTag, TextsOfTwoHundredFurtherCallsLeaveATextAlone) {
    const char* const first = riff_tag(make_fourcc("keep"));
    for (int call = 0; call < 200; ++call) {
        static_cast<void>(riff_tag(make_fourcc("over")));
    }
    EXPECT_STREQ("keep", first);
}

TEST(AviRiffTag, TheTwoHundredAndFifthCallStartsAgainAtTheBeginningOfTheRing) {
    std::vector<const char*> texts;
    for (int call = 0; call < 205; ++call) {
        texts.push_back(riff_tag(make_fourcc("text")));
    }
    EXPECT_EQ(texts[0], texts[204]);
}

TEST(AviRiffTag, EachCallTakesTheNextFiveBytesUntilTheRingIsFull) {
    std::vector<const char*> texts;
    for (int call = 0; call < 204; ++call) {
        texts.push_back(riff_tag(make_fourcc("text")));
    }
    int steps_back = 0;
    for (std::size_t i = 1; i < texts.size(); ++i) {
        if (texts[i] != texts[i - 1] + 5) {
            EXPECT_EQ(texts[i - 1] - 1015, texts[i]) << "after the 204th slot comes the first";
            ++steps_back;
        }
    }
    EXPECT_LE(steps_back, 1);
}

TEST(AviIsRiffTag, SpaceAndTildeAreTheOutermostPrintableBytes) {
    EXPECT_TRUE(is_riff_tag(0x7E20207E));
}

TEST(AviIsRiffTag, AByteBelowSpaceIsInvalidInEveryPosition) {
    for (int position = 0; position < 4; ++position) {
        const std::uint32_t shift = 8u * static_cast<std::uint32_t>(position);
        EXPECT_FALSE(is_riff_tag((make_fourcc("INAM") & ~(0xFFu << shift)) | 0x1Fu << shift)) << position;
    }
}

TEST(AviIsRiffTag, DeleteIsInvalid) {
    EXPECT_FALSE(is_riff_tag(0x7F414141));
}

TEST(AviIsRiffTag, BytesFrom80UpAreInvalidInTheCLocale) {
    for (std::uint32_t byte = 0x80; byte <= 0xFF; ++byte) {
        EXPECT_FALSE(is_riff_tag(0x41414100 | byte)) << byte;
    }
}

TEST(AviIsRiffTag, ZeroIsInvalid) {
    EXPECT_FALSE(is_riff_tag(0));
}

} // namespace
} // namespace velmora
