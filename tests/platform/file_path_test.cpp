#include "platform/file_path.h"

#include "support/command.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(FilePath, Utf8BytesBecomeTheirText) {
    EXPECT_EQ(QString::fromUtf8("/f\xC3\xA9/\xE4\xB8\xAD\xF0\x9F\x98\x80.mp3"),
              pathFromBytes("/f\xC3\xA9/\xE4\xB8\xAD\xF0\x9F\x98\x80.mp3"));
}

TEST(FilePath, EveryByteButZeroSurvivesTheRoundTrip) {
    QByteArray bytes;
    for (int byte = 1; byte < 256; ++byte) {
        bytes += static_cast<char>(byte);
    }
    EXPECT_EQ(bytes, pathBytes(pathFromBytes(bytes)));
}

TEST(FilePath, BrokenSequencesSurviveTheRoundTrip) {
    for (const QByteArray& bytes :
         {QByteArray("a\xC3"), QByteArray("\xE4\xB8"), QByteArray("\xED\xA0\x80\xED\xB2\x80"),
          QByteArray("\xC0\x80"), QByteArray("\xF4\x90\x80\x80"), QByteArray("\xF0\x80\x80\x80"),
          QByteArray("\xE0\x80\x80"), QByteArray("caf\xE9.mp3"), QByteArray("\x80\xBF\xFF")}) {
        EXPECT_EQ(bytes, pathBytes(pathFromBytes(bytes))) << bytes.toHex().constData();
    }
}

TEST(FilePath, ByteThatIsNotUtf8IsALoneLowSurrogate) {
    const QString path = pathFromBytes("caf\xE9");
    ASSERT_EQ(4, path.size());
    EXPECT_EQ(0xDCE9, path[3].unicode());
}

TEST(FilePath, CharacterBeyondTheBasicPlaneIsNotTakenForAnEscape) {
    // U+10C80 is D803 DC80: its second half looks like the escape of byte 0x80.
    const QByteArray bytes("\xF0\x90\xB2\x80");
    EXPECT_EQ(bytes, pathBytes(pathFromBytes(bytes)));
}

TEST(FilePath, FileUrlKeepsWhatAUrlWouldTakeForItself) {
    for (const QByteArray& bytes :
         {QByteArray("/a/#1?b%20c;d&e.mp3"), QByteArray("/a/<b>x</b>\n.mp3"), QByteArray("/caf\xE9/\xFF.mp3"),
          QByteArray("/a//b/../c"), QByteArray("/ ")}) {
        const QString path = pathFromBytes(bytes);
        const QUrl url = fileUrlFromPath(path);
        EXPECT_TRUE(url.isLocalFile());
        EXPECT_EQ(bytes, pathBytes(pathFromFileUrl(url))) << url.toEncoded().constData();
    }
}

TEST(FilePath, FileUrlOfAnotherProgramGivesItsPath) {
    EXPECT_EQ(QStringLiteral("/a b/c"), pathFromFileUrl(QUrl::fromLocalFile("/a b/c")));
}

TEST(FilePath, UrlThatIsNoLocalFileHasNoPath) {
    EXPECT_TRUE(pathFromFileUrl(QUrl("http://localhost/a")).isEmpty());
}

TEST(FilePath, LastComponentIsWhatFollowsTheLastSlash) {
    EXPECT_EQ("c.mp3", lastPathComponent("/a/b/c.mp3"));
    EXPECT_EQ("c.mp3", lastPathComponent("c.mp3"));
}

TEST(FilePath, ExtensionFollowsTheLastDotOfTheLastComponent) {
    EXPECT_EQ("gz", pathExtension("/a/b.tar.gz"));
    EXPECT_EQ("", pathExtension("/a.app/b"));
    EXPECT_EQ("app", pathExtension("/a/.app"));
    EXPECT_EQ("MP3", pathExtension("/a/x.MP3"));
    EXPECT_EQ("", pathExtension("/a/x."));
}

TEST(FilePath, FolderIsThePathWithoutItsLastComponent) {
    EXPECT_EQ("/a/b", pathFolder("/a/b/c.mp3"));
    EXPECT_EQ("/", pathFolder("/c.mp3"));
    EXPECT_EQ("", pathFolder("c.mp3"));
}

TEST(FilePath, WithoutExtensionKeepsDotsOfFolders) {
    EXPECT_EQ("/a.b/c", pathWithoutExtension("/a.b/c.mp3"));
    EXPECT_EQ("/a.b/c", pathWithoutExtension("/a.b/c"));
}

TEST(FilePath, OneSlashJoinsAFolderAndAName) {
    EXPECT_EQ("/home/me/Movies", joinedPath("/home/me", "Movies"));
    EXPECT_EQ("/home/me/Movies", joinedPath("/home/me/", "Movies"));
    EXPECT_EQ("/Movies", joinedPath("/", "Movies"));
    EXPECT_EQ("Movies", joinedPath("", "Movies"));
    EXPECT_EQ("/h\xE9/\xFF", joinedPath("/h\xE9", "\xFF"));
}

/** Gives the environment its home folder back at the end. */
class HomeFolderTest : public testing::Test {
protected:
    ~HomeFolderTest() override { before_.isNull() ? qunsetenv("HOME") : qputenv("HOME", before_); }
    /** What the user database says, for the user that runs the test. */
    static QByteArray fromUserDatabase() {
        return QByteArray::fromStdString(test::run_command("getent passwd \"$(id -u)\" | cut -d: -f6"))
            .trimmed();
    }

private:
    QByteArray before_ = qgetenv("HOME");
};

TEST_F(HomeFolderTest, IsWhatTheEnvironmentSaysByteForByte) {
    for (const char* home : {"/", "/home/me", "/home/me/", "/h\xE9\xFF"}) {
        qputenv("HOME", home);
        EXPECT_EQ(home, homeFolder());
    }
}

TEST_F(HomeFolderTest, IsThatOfTheUserDatabaseWhenTheEnvironmentHasNone) {
    ASSERT_FALSE(fromUserDatabase().isEmpty());
    qunsetenv("HOME");
    EXPECT_EQ(fromUserDatabase(), homeFolder());
    qputenv("HOME", "");
    EXPECT_EQ(fromUserDatabase(), homeFolder());
}

} // namespace
} // namespace velmora
