#include "taglib/avi/fourcc.h"

#include <gtest/gtest.h>

// In this program 0xE9 is a printable byte, as in an ISO-8859-1 locale, and nothing else is: which bytes are
// asked for at all shows in the answers.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
extern "C" int __wrap_isprint(int byte) {
    return byte == 0xE9;
}

namespace velmora {
namespace {

TEST(AviIsRiffTagInALocale, AByteFrom80UpIsValidWhereTheLocaleCallsItPrintable) {
    EXPECT_TRUE(is_riff_tag(0xE9E9E9E9));
    EXPECT_FALSE(is_riff_tag(0xE9E8E9E9));
}

TEST(AviIsRiffTagInALocale, BytesBelow80AreTheSameInEveryLocale) {
    EXPECT_TRUE(is_riff_tag(0x7E20207E));
    EXPECT_FALSE(is_riff_tag(0x7F414141));
    EXPECT_FALSE(is_riff_tag(0x1F414141));
}

} // namespace
} // namespace velmora
