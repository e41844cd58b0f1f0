#include "library/detail/file_name.h"

#include "platform/file_path.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

QByteArray nameOf(const char* text, const QByteArray& extension = ".mp3") {
    const auto name = fileNameOf(QString::fromUtf8(text), extension);
    return name ? name->bytes : QByteArray("(none)");
}

TEST(FileName, AnOrdinaryTextIsTheName) {
    EXPECT_EQ("ABBA - Dancing Queen.mp3", nameOf("ABBA - Dancing Queen"));
    EXPECT_EQ("Łódź 東京.mp3", nameOf("Łódź 東京"));
    EXPECT_EQ("Vol. 2.5.mp3", nameOf("Vol. 2.5"));
    EXPECT_FALSE(fileNameOf("a", ".mp3")->shortened);
}

TEST(FileName, TheExtensionIsKeptByteForByte) {
    EXPECT_EQ("a.MP3", nameOf("a", ".MP3"));
    EXPECT_EQ("a.m\xff", nameOf("a", ".m\xff"));
    EXPECT_EQ("a", nameOf("a", ""));
}

TEST(FileName, WhatFileSystemsRefuseIsReplaced) {
    EXPECT_EQ("AC_DC.mp3", nameOf("AC/DC"));
    EXPECT_EQ("a_b_c_d_e_f_g_h_i.mp3", nameOf("a\\b:c*d?e\"f<g>h|i"));
    EXPECT_EQ("a___b.mp3", nameOf("a\x01\x1f\x7f"
                                  "b"));
    EXPECT_EQ("a_b.mp3", fileNameOf(QString("a") + QChar(0) + "b", ".mp3")->bytes);
}

TEST(FileName, LineBreaksAndTabsAreBlanks) {
    EXPECT_EQ("one two three.mp3", nameOf("one\ntwo\tthree"));
}

TEST(FileName, NoNameIsHidden) {
    EXPECT_EQ("_hack.mp3", nameOf(".hack"));
    EXPECT_EQ("_.mp3", nameOf("..."));
    EXPECT_EQ("_._.._etc_passwd.mp3", nameOf("../../etc/passwd"));
}

TEST(FileName, BlanksAroundItAndDotsBehindItGo) {
    EXPECT_EQ("a.mp3", nameOf("  a  "));
    EXPECT_EQ("wait.mp3", nameOf("wait..."));
    EXPECT_EQ("wait.mp3", nameOf("wait. . "));
}

TEST(FileName, NoNameIsADevice) {
    EXPECT_EQ("_con.mp3", nameOf("con"));
    EXPECT_EQ("_Aux.live.mp3", nameOf("Aux.live"));
    EXPECT_EQ("_LPT1.mp3", nameOf("LPT1"));
    EXPECT_EQ("_com¹.mp3", nameOf("com¹"));
    EXPECT_EQ("_nul", nameOf("nul", ""));
    EXPECT_EQ("contact.mp3", nameOf("contact"));
    EXPECT_EQ("COM10.mp3", nameOf("COM10"));
}

TEST(FileName, NoTextIsNoName) {
    EXPECT_EQ("(none)", nameOf(""));
    EXPECT_EQ("(none)", nameOf("   "));
    EXPECT_EQ("(none)", nameOf("\n"));
}

TEST(FileName, TwoHundredAndFiftyFiveBytesHaveRoom) {
    const QByteArray longest(251, 'a');
    EXPECT_EQ(nameOf(longest), longest + ".mp3");
    EXPECT_FALSE(fileNameOf(longest, ".mp3")->shortened);
    EXPECT_EQ(nameOf(longest + "a"), longest + ".mp3");
    EXPECT_TRUE(fileNameOf(longest + "a", ".mp3")->shortened);
}

TEST(FileName, ACharacterIsCutOffWhole) {
    // Two bytes for each, and one over.
    EXPECT_EQ(QByteArray("é").repeated(125) + ".mp3", nameOf(QByteArray("é").repeated(200)));
    // A letter and its accent are one character, in three bytes; 83 of them have 249.
    EXPECT_EQ(QByteArray("e\xCC\x81").repeated(83) + ".mp3", nameOf(QByteArray("e\xCC\x81").repeated(100)));
    // Four bytes each: 62 have 248.
    EXPECT_EQ(QByteArray("\xF0\x9F\x8E\xB5").repeated(62) + ".mp3",
              nameOf(QByteArray("\xF0\x9F\x8E\xB5").repeated(80)));
}

TEST(FileName, WhatIsCutHasASoundEnd) {
    EXPECT_EQ(QByteArray(249, 'a') + ".mp3", nameOf(QByteArray(249, 'a') + " .bcd"));
}

TEST(FileName, WithoutRoomBesideTheExtensionThereIsNone) {
    EXPECT_EQ("(none)", nameOf("é", "." + QByteArray(253, 'x')));
    EXPECT_EQ("e." + QByteArray(253, 'x'), nameOf("e", "." + QByteArray(253, 'x')));
}

TEST(FileName, BytesThatAreNoTextStay) {
    const QString text = pathFromBytes("caf\xe9");
    EXPECT_EQ("caf\xe9.mp3", fileNameOf(text, ".mp3")->bytes);
}

TEST(ExtensionOf, IsWhatStandsBehindTheLastDot) {
    EXPECT_EQ(".MP3", extensionOf("/a.b/c.tar.MP3"));
    EXPECT_EQ("", extensionOf("/a.b/c"));
    EXPECT_EQ("", extensionOf("/a/.hidden"));
    EXPECT_EQ(".\xff", extensionOf("c.\xff"));
}

} // namespace
} // namespace velmora
