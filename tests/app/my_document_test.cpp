#include "window_fixture.h"

#include "platform/file_path.h"
#include "support/bytes.h"

#include <sys/stat.h>
#include <unistd.h>

namespace velmora {
namespace {

using test::taggedFile;
using test::text4;

class MyDocumentTest : public test::WindowTest {
protected:
    bool open(const QString& path, Error* error = nullptr) {
        return document().readFromURL(fileUrlFromPath(path), "mediafile", error);
    }
    QString write(const std::string& name, const std::string& bytes = taggedFile(text4("TIT2", "Z"))) {
        test::write_file(folder_ / name, bytes);
        return path(name);
    }
    static QString suggestion(const Error& error) {
        return error.userInfo.value(NSLocalizedRecoverySuggestionErrorKey).toString();
    }
};

TEST_F(MyDocumentTest, LayoutIsNamedMyDocument) {
    EXPECT_EQ("MyDocument", MyDocument::windowNibName());
}

TEST_F(MyDocumentTest, DataPathIsIdle) {
    EXPECT_TRUE(MyDocument::dataRepresentationOfType("mediafile").isNull());
    EXPECT_TRUE(MyDocument::loadDataRepresentation("anything", "mediafile"));
}

TEST_F(MyDocumentTest, NameIsTheApplicationsWhateverIsOpen) {
    EXPECT_EQ("KORVANE Velmora", document().displayName());
    ASSERT_TRUE(open(write("a.mp3")));
    EXPECT_EQ("KORVANE Velmora", document().displayName());
    EXPECT_EQ("KORVANE Velmora", document().window()->windowTitle());
}

TEST_F(MyDocumentTest, NothingIsOpenAtTheStart) {
    EXPECT_EQ(nullptr, document().mediaFile());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(MyDocumentTest, IsNotEditedWithoutAnOpenFileWhateverWasCounted) {
    document().updateChangeCount(Document::ChangeType::Done);
    EXPECT_FALSE(document().isDocumentEdited());
    ASSERT_TRUE(open(write("a.mp3")));
    EXPECT_TRUE(document().isDocumentEdited());
}

TEST_F(MyDocumentTest, OpeningLogsAndReplacesTheFile) {
    ASSERT_TRUE(open(write("a.mp3")));
    ASSERT_TRUE(open(write("b.mp3")));
    EXPECT_EQ(path("b.mp3"), file().filename());
    EXPECT_EQ(2, logged("in readFromURL\n"));
}

TEST_F(MyDocumentTest, NoUrlClosesTheFile) {
    ASSERT_TRUE(open(write("a.mp3")));
    EXPECT_TRUE(document().readFromURL(std::nullopt, QString(), nullptr));
    EXPECT_EQ(nullptr, document().mediaFile());
}

TEST_F(MyDocumentTest, NoUrlAndNoFileIsASuccess) {
    EXPECT_TRUE(document().readFromURL(std::nullopt, QString(), nullptr));
}

TEST_F(MyDocumentTest, UrlThatIsNotLocalIsRefusedAndTheOpenFileStays) {
    ASSERT_TRUE(open(write("a.mp3")));
    Error error;
    const QUrl url("http://localhost/some/film.avi");
    EXPECT_FALSE(document().readFromURL(url, "mediafile", &error));
    EXPECT_EQ("NSMachErrorDomain", error.domain);
    EXPECT_EQ(0, error.code);
    EXPECT_EQ(url, error.userInfo.value(NSURLErrorKey).toUrl());
    EXPECT_EQ("Unable to open file \"film.avi\".",
              error.userInfo.value(NSLocalizedDescriptionKey).toString());
    EXPECT_EQ("Velmora can only open local files.", suggestion(error));
    EXPECT_NE(nullptr, document().mediaFile());
}

TEST_F(MyDocumentTest, MissingFileIsRefusedAndTheOpenFileStays) {
    ASSERT_TRUE(open(write("a.mp3")));
    Error error;
    EXPECT_FALSE(open(path("gone.mp3"), &error));
    EXPECT_EQ("Unable to open file \"gone.mp3\".",
              error.userInfo.value(NSLocalizedDescriptionKey).toString());
    EXPECT_EQ("The file does not exist.", suggestion(error));
    EXPECT_NE(nullptr, document().mediaFile());
}

TEST_F(MyDocumentTest, UnreadableFileIsRefusedAndNoFileIsOpen) {
    ASSERT_TRUE(open(write("a.mp3")));
    const QString secret = write("secret.mp3");
    ASSERT_EQ(0, ::chmod((folder_ / "secret.mp3").c_str(), 0));
    ASSERT_EQ(0, ::chmod(folder_.path().c_str(), 0755));
    const bool isRoot = ::geteuid() == 0; // whom no file refuses: nobody opens it instead
    ASSERT_TRUE(!isRoot || ::setresuid(65534, 65534, 0) == 0);
    Error error;
    const bool opened = open(secret, &error);
    ASSERT_TRUE(!isRoot || ::setresuid(0, 0, 0) == 0);
    EXPECT_FALSE(opened);
    EXPECT_EQ("Please ensure the file is readable and is a valid media file.", suggestion(error));
    EXPECT_EQ(nullptr, document().mediaFile());
}

TEST_F(MyDocumentTest, FailureWithoutAnErrorSlotIsStillAFailure) {
    EXPECT_FALSE(open(path("gone.mp3")));
}

TEST_F(MyDocumentTest, TypeIsNotExamined) {
    EXPECT_TRUE(document().readFromURL(fileUrlFromPath(write("a.mp3")), "no such type", nullptr));
}

TEST_F(MyDocumentTest, SavingWithoutAFileFails) {
    Error error;
    EXPECT_FALSE(document().saveMediaFile(&error));
    EXPECT_TRUE(error.domain.isEmpty());
}

TEST_F(MyDocumentTest, SavingWritesTheFileAndKeepsTheChangeCount) {
    ASSERT_TRUE(open(write("a.mp3")));
    file().setTitle("Q");
    document().updateChangeCount(Document::ChangeType::Done);
    EXPECT_TRUE(document().saveMediaFile(nullptr));
    EXPECT_EQ(taggedFile(text4("TIT2", "Q")), test::read_file(folder_ / "a.mp3"));
    EXPECT_TRUE(document().isDocumentEdited());
}

TEST_F(MyDocumentTest, FailedSaveLogsTheSuggestion) {
    ASSERT_TRUE(open(write("a.mp3", test::fileTaggedInFront())));
    Error error;
    EXPECT_FALSE(document().saveMediaFile(&error));
    EXPECT_EQ(
        1,
        logged("error saving file: Be sure you have permissions to write to the file, and that it is a valid "
               "media file.\n"));
}

TEST_F(MyDocumentTest, FailedSaveWithoutASlotLogsAnEmptySuggestion) {
    ASSERT_TRUE(open(write("a.mp3", test::fileTaggedInFront())));
    document().saveDocument();
    EXPECT_EQ(1, logged("error saving file: \n"));
}

TEST_F(MyDocumentTest, MenuSaveWritesButTheDocumentStaysEdited) {
    openFile();
    type("entry_title", "Menu");
    QAction& save = *document().window()->findChild<QAction*>("action_save");
    save.trigger();
    EXPECT_EQ(taggedFile(text4("TIT2", "Menu")), test::read_file(folder_ / "a.mp3"));
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_TRUE(enabled("btn_saveTag"));
    EXPECT_TRUE(enabled("btn_revertTag"));
}

} // namespace
} // namespace velmora
