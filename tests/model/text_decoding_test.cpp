#include "model/detail/tag_record.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(TextDecoding, TableHoldsTheTwelveEncodingsInTheirOrder) {
    EXPECT_EQ((std::array<int, 12>{4, 5, 30, 9, 12, 15, 11, 13, 14, 3, 21, 8}), conv_test);
}

TEST(TextDecoding, ValidUtf8IsUtf8) {
    EXPECT_EQ(QString::fromUtf8("caf\xC3\xA9 \xE4\xB8\xAD \xF0\x9F\x98\x80"),
              decodeTagText("caf\xC3\xA9 \xE4\xB8\xAD \xF0\x9F\x98\x80"));
}

TEST(TextDecoding, BytesThatAreNotUtf8AreLatin1) {
    EXPECT_EQ(QString::fromLatin1("\xE9t\xE9 x"), decodeTagText("\xE9t\xE9 x"));
}

TEST(TextDecoding, AccentAtTheVeryEndIsLatin1AndNotLost) {
    EXPECT_EQ(QString::fromLatin1("caf\xE9"), decodeTagText("caf\xE9"));
}

TEST(TextDecoding, BytesOf80To9FAreLatin1ControlsNotWindowsCharacters) {
    EXPECT_EQ(QString(QChar(0x92)), decodeTagText("\x92"));
}

TEST(TextDecoding, LeadingByteOrderMarkStays) {
    EXPECT_EQ(QString(QChar(0xFEFF)) + "x", decodeTagText("\xEF\xBB\xBFx"));
}

TEST(TextDecoding, NoBytesAreTheEmptyText) {
    EXPECT_TRUE(decodeTagText("").isEmpty());
}

} // namespace
} // namespace velmora
