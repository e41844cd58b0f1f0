#include "library/folded_text.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

TEST(FoldedText, LettersHaveNoCase) {
    EXPECT_EQ(foldedText("ABBA abba"), "abba abba");
    EXPECT_EQ(foldedText("ΣΙΣΥΦΟΣ МОСКВА"), "σισυφοσ москва");
}

TEST(FoldedText, LettersHaveNoAccents) {
    EXPECT_EQ(foldedText("Beyoncé Dvořák Çiçek"), "beyonce dvorak cicek");
    EXPECT_EQ(foldedText("e\u0301"), "e");
    EXPECT_EQ(foldedText("Ёлка Май Σίσυφος"), "елка маи σισυφοσ");
}

TEST(FoldedText, LettersWithoutADecompositionAreSpeltPlainly) {
    EXPECT_EQ(foldedText("Straße STRASSE Øre Łódź Æon þorn"), "strasse strasse ore lodz aeon thorn");
}

TEST(FoldedText, FormsOfASignAreOne) {
    EXPECT_EQ(foldedText("don’t – “so” ＡＢＣ ﬁn"), "don't - \"so\" abc fin");
}

TEST(FoldedText, MarksThatMakeAnotherLetterStay) {
    EXPECT_EQ(foldedText("が"), "が");
    EXPECT_EQ(foldedText("か\u3099"), "が");
    EXPECT_EQ(foldedText("한글"), "한글");
    EXPECT_NE(foldedText("की"), foldedText("क"));
}

TEST(FoldedText, LineBreaksAreBlanks) {
    EXPECT_EQ(foldedText("a\nb\r\nc"), "a b  c");
    EXPECT_EQ(foldedText("é\nb"), "e b");
}

TEST(FoldedText, BytesThatAreNoTextDoNotDisturb) {
    EXPECT_EQ(foldedText(QString("a") + QChar(0xDCFF) + "B"), "a?b");
}

} // namespace
} // namespace velmora
