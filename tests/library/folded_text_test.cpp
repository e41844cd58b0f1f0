#include "library/detail/folded_text.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

TEST(FoldedText, LettersHaveNoCase) {
    EXPECT_EQ("abba abba", foldedText("ABBA abba"));
    EXPECT_EQ("σισυφοσ москва", foldedText("ΣΙΣΥΦΟΣ МОСКВА"));
}

TEST(FoldedText, LettersHaveNoAccents) {
    EXPECT_EQ("beyonce dvorak cicek", foldedText("Beyoncé Dvořák Çiçek"));
    EXPECT_EQ("e", foldedText("e\u0301"));
    EXPECT_EQ("елка маи σισυφοσ", foldedText("Ёлка Май Σίσυφος"));
}

TEST(FoldedText, LettersWithoutADecompositionAreSpeltPlainly) {
    EXPECT_EQ("strasse strasse ore lodz aeon thorn", foldedText("Straße STRASSE Øre Łódź Æon þorn"));
}

TEST(FoldedText, FormsOfASignAreOne) {
    EXPECT_EQ("don't - \"so\" abc fin", foldedText("don’t – “so” ＡＢＣ ﬁn"));
}

TEST(FoldedText, MarksThatMakeAnotherLetterStay) {
    EXPECT_EQ("が", foldedText("が"));
    EXPECT_EQ("が", foldedText("か\u3099"));
    EXPECT_EQ("한글", foldedText("한글"));
    EXPECT_NE(foldedText("की"), foldedText("क"));
}

TEST(FoldedText, LineBreaksAreBlanks) {
    EXPECT_EQ("a b  c", foldedText("a\nb\r\nc"));
    EXPECT_EQ("e b", foldedText("é\nb"));
}

TEST(FoldedText, BytesThatAreNoTextDoNotDisturb) {
    EXPECT_EQ("a?b", foldedText(QString("a") + QChar(0xDCFF) + "B"));
}

} // namespace
} // namespace velmora
