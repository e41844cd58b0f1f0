#include "library/file_name.h"

#include "platform/file_path.h"

#include <gmock/gmock.h>

namespace velmora {
namespace {

QByteArray nameOf(const char* text, const QByteArray& extension = ".mp3") {
    const auto name = fileNameOf(QString::fromUtf8(text), extension);
    return name ? name->bytes : QByteArray("(none)");
}

TEST(FileName, AnOrdinaryTextIsTheName) {
    EXPECT_EQ(nameOf("ABBA - Dancing Queen"), "ABBA - Dancing Queen.mp3");
    EXPECT_EQ(nameOf("Łódź 東京"), "Łódź 東京.mp3");
    EXPECT_EQ(nameOf("Vol. 2.5"), "Vol. 2.5.mp3");
    EXPECT_FALSE(fileNameOf("a", ".mp3")->shortened);
}

TEST(FileName, TheExtensionIsKeptByteForByte) {
    EXPECT_EQ(nameOf("a", ".MP3"), "a.MP3");
    EXPECT_EQ(nameOf("a", ".m\xff"), "a.m\xff");
    EXPECT_EQ(nameOf("a", ""), "a");
}

TEST(FileName, WhatFileSystemsRefuseIsReplaced) {
    EXPECT_EQ(nameOf("AC/DC"), "AC_DC.mp3");
    EXPECT_EQ(nameOf("a\\b:c*d?e\"f<g>h|i"), "a_b_c_d_e_f_g_h_i.mp3");
    EXPECT_EQ(nameOf("a\x01\x1f\x7f"
                     "b"),
              "a___b.mp3");
    EXPECT_EQ(fileNameOf(QString("a") + QChar(0) + "b", ".mp3")->bytes, "a_b.mp3");
}

TEST(FileName, LineBreaksAndTabsAreBlanks) {
    EXPECT_EQ(nameOf("one\ntwo\tthree"), "one two three.mp3");
}

TEST(FileName, NoNameIsHidden) {
    EXPECT_EQ(nameOf(".hack"), "_hack.mp3");
    EXPECT_EQ(nameOf("..."), "_.mp3");
    EXPECT_EQ(nameOf("../../etc/passwd"), "_._.._etc_passwd.mp3");
}

TEST(FileName, BlanksAroundItAndDotsBehindItGo) {
    EXPECT_EQ(nameOf("  a  "), "a.mp3");
    EXPECT_EQ(nameOf("wait..."), "wait.mp3");
    EXPECT_EQ(nameOf("wait. . "), "wait.mp3");
}

TEST(FileName, NoNameIsADevice) {
    EXPECT_EQ(nameOf("con"), "_con.mp3");
    EXPECT_EQ(nameOf("Aux.live"), "_Aux.live.mp3");
    EXPECT_EQ(nameOf("LPT1"), "_LPT1.mp3");
    EXPECT_EQ(nameOf("com¹"), "_com¹.mp3");
    EXPECT_EQ(nameOf("nul", ""), "_nul");
    EXPECT_EQ(nameOf("contact"), "contact.mp3");
    EXPECT_EQ(nameOf("COM10"), "COM10.mp3");
}

TEST(FileName, NoTextIsNoName) {
    EXPECT_EQ(nameOf(""), "(none)");
    EXPECT_EQ(nameOf("   "), "(none)");
    EXPECT_EQ(nameOf("\n"), "(none)");
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
    EXPECT_EQ(nameOf(QByteArray("é").repeated(200)), QByteArray("é").repeated(125) + ".mp3");
    // A letter and its accent are one character, in three bytes; 83 of them have 249.
    EXPECT_EQ(nameOf(QByteArray("e\xCC\x81").repeated(100)), QByteArray("e\xCC\x81").repeated(83) + ".mp3");
    // Four bytes each: 62 have 248.
    EXPECT_EQ(nameOf(QByteArray("\xF0\x9F\x8E\xB5").repeated(80)),
              QByteArray("\xF0\x9F\x8E\xB5").repeated(62) + ".mp3");
}

TEST(FileName, WhatIsCutHasASoundEnd) {
    EXPECT_EQ(nameOf(QByteArray(249, 'a') + " .bcd"), QByteArray(249, 'a') + ".mp3");
}

TEST(FileName, WithoutRoomBesideTheExtensionThereIsNone) {
    EXPECT_EQ(nameOf("é", "." + QByteArray(253, 'x')), "(none)");
    EXPECT_EQ(nameOf("e", "." + QByteArray(253, 'x')), "e." + QByteArray(253, 'x'));
}

TEST(FileName, BytesThatAreNoTextStay) {
    const QString text = pathFromBytes("caf\xe9");
    EXPECT_EQ(fileNameOf(text, ".mp3")->bytes, "caf\xe9.mp3");
}

TEST(ExtensionOf, IsWhatStandsBehindTheLastDot) {
    EXPECT_EQ(extensionOf("/a.b/c.tar.MP3"), ".MP3");
    EXPECT_EQ(extensionOf("/a.b/c"), "");
    EXPECT_EQ(extensionOf("/a/.hidden"), "");
    EXPECT_EQ(extensionOf("c.\xff"), ".\xff");
}

} // namespace
} // namespace velmora
