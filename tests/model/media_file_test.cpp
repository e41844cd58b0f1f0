#include "model/MediaFile.h"

#include "platform/file_path.h"
#include "support/bytes.h"
#include "support/id3_tags.h"
#include "support/pictures.h"
#include "support/scratch_folder.h"
#include "support/stream_capture.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace velmora {
namespace {

using test::frame4;
using test::hex;
using test::ScratchFolder;
using test::StreamCapture;
using test::text4;

/** A RIFF chunk: FOURCC, size field as given, data. */
std::string chunk(const std::string& fourcc, char size, const std::string& data) {
    return fourcc + size + std::string(3, '\0') + data;
}

/** A film's texts and its year as they stand in an AVI file: 88 bytes. */
std::string infoList() {
    const std::string zero(1, '\0');
    return chunk("LIST", 80,
                 "INFO" + chunk("INAM", 2, "T" + zero) + chunk("ISTR", 3, "CC" + zero + zero) +
                     chunk("ICMT", 4, "SSS" + zero) + chunk("IART", 2, "D" + zero) +
                     chunk("IRTD", 2, "R" + zero) + chunk("IGNR", 2, "G" + zero) +
                     chunk("ICRD", 4, "-44" + zero));
}

class MediaFileTest : public testing::Test {
protected:
    /** A file of NAME with 64 bytes of media and a tag of FRAMES behind them. */
    QString tagged(const std::string& name, const std::string& frames) {
        test::write_file(folder_ / name, test::pattern(64) + test::appended_tag(frames));
        return path(name);
    }
    QString path(const std::string& name) { return QString::fromStdString(folder_ / name); }

    ScratchFolder folder_;
    StreamCapture log_;
};

const std::string fullTag = text4("TALB", "X") + text4("TPE1", "Y") + text4("TIT2", "Z") +
                            text4("TPE3", "D") + frame4("PRIV", std::string("WM/ParentalRating\0PG", 20)) +
                            text4("TCON", "(17)") + text4("TYER", "1999");

TEST_F(MediaFileTest, AudioShowsAlbumArtistAndTitleUnderTheirKeys) {
    const auto file = MediaFile::initWithFile(tagged("a.mp3", fullTag));
    ASSERT_TRUE(file);
    EXPECT_EQ(1, file->mediaType());
    EXPECT_EQ("X", file->album());
    EXPECT_EQ("Y", file->artist());
    EXPECT_EQ("Z", file->title());
    EXPECT_EQ("Rock", file->genre());
    EXPECT_EQ(1999, file->year());
}

TEST_F(MediaFileTest, AudioHasNoneOfAVideosTexts) {
    const auto file = MediaFile::initWithFile(tagged("a.mp3", fullTag));
    for (const char* key : {"cast", "director", "synopsis", "rating"}) {
        ASSERT_TRUE(file->metadata().contains(key)) << key;
        EXPECT_EQ("", file->metadata().value(key).toString()) << key;
    }
}

TEST_F(MediaFileTest, VideoShowsTitleCastSynopsisDirectorAndRating) {
    const auto file = MediaFile::initWithFile(tagged("a.mp4", fullTag));
    ASSERT_TRUE(file);
    EXPECT_EQ(2, file->mediaType());
    EXPECT_EQ("X", file->title());
    EXPECT_EQ("Y", file->cast());
    EXPECT_EQ("Z", file->synopsis());
    EXPECT_EQ("D", file->director());
    EXPECT_EQ("PG", file->rating());
    EXPECT_EQ("Rock", file->genre());
    EXPECT_EQ(1999, file->year());
    EXPECT_EQ("", file->metadata().value("artist").toString());
    EXPECT_EQ("", file->metadata().value("album").toString());
}

TEST_F(MediaFileTest, ImagesAndOthersAreReadLikeAudio) {
    for (const auto& [name, type] : {std::pair("a.png", 0), std::pair("a.xyz", 3)}) {
        const auto file = MediaFile::initWithFile(tagged(name, fullTag));
        ASSERT_TRUE(file) << name;
        EXPECT_EQ(type, file->mediaType()) << name;
        EXPECT_EQ("X", file->album()) << name;
        EXPECT_EQ("", file->director()) << name;
    }
}

TEST_F(MediaFileTest, FileWithoutATagHasEmptyValuesAndNoCoverArt) {
    test::write_file(folder_ / "a.mp3", test::pattern(300));
    const auto file = MediaFile::initWithFile(path("a.mp3"));
    ASSERT_TRUE(file);
    EXPECT_EQ("", file->title());
    EXPECT_EQ("", file->album());
    ASSERT_TRUE(file->metadata().contains("year"));
    EXPECT_EQ(0, file->year());
    EXPECT_FALSE(file->coverArt());
    EXPECT_FALSE(file->metadata().contains("coverart"));
    EXPECT_TRUE(log_.text().ends_with("failed to load metadata for file " + (folder_ / "a.mp3") +
                                      "\nfile info: title='(null)', artist='(null)', desc='(null)'\n"));
}

TEST_F(MediaFileTest, LoadingLogsTheThreeTexts) {
    (void)MediaFile::initWithFile(tagged("a.mp3", text4("TALB", "X") + text4("TIT2", "Z")));
    EXPECT_NE(std::string::npos, log_.text().find("file info: title='X', artist='(null)', desc='Z'\n"));
}

TEST_F(MediaFileTest, UnreadableFileGivesNoObject) {
    EXPECT_FALSE(MediaFile::initWithFile(path("missing.mp3")));
}

TEST_F(MediaFileTest, FileWithoutReadPermissionGivesNoObject) {
    const QString file = tagged("a.mp3", fullTag);
    ASSERT_EQ(0, ::chmod((folder_ / "a.mp3").c_str(), 0));
    ASSERT_EQ(0, ::chmod(folder_.path().c_str(), 0755));
    if (::geteuid() != 0) {
        EXPECT_FALSE(MediaFile::initWithFile(file));
        return;
    }
    // The check goes by the real user, as which the root user stops being privileged here.
    ASSERT_EQ(0, ::setresuid(65534, 65534, 0));
    const bool opened = MediaFile::initWithFile(file) != nullptr;
    ASSERT_EQ(0, ::setresuid(0, 0, 0));
    EXPECT_FALSE(opened);
}

TEST_F(MediaFileTest, Latin1TextIsShownAsLatin1) {
    const auto file = MediaFile::initWithFile(tagged("a.mp3", text4("TIT2", "caf\xE9")));
    EXPECT_EQ(QString::fromLatin1("caf\xE9"), file->title());
}

TEST_F(MediaFileTest, BlanksAroundATextStay) {
    const auto file = MediaFile::initWithFile(tagged("a.mp3", text4("TIT2", " Z ")));
    EXPECT_EQ(" Z ", file->title());
}

TEST_F(MediaFileTest, DateIsTheMomentOfLoadingWhateverTheTagSays) {
    const QDateTime before = QDateTime::currentDateTime();
    const auto file = MediaFile::initWithFile(tagged("a.mp3", text4("TDRC", "2008-05-04T:10:20:30")));
    EXPECT_GE(file->dateTime(), before.addMSecs(-1));
    EXPECT_LE(file->dateTime(), QDateTime::currentDateTime());
}

TEST_F(MediaFileTest, DvdFolderReadsItsSideFile) {
    test::write_file(folder_ / "VIDEO_TS.IFO", "dvd");
    test::write_file(folder_ / "VIDEO_TS.TAG", test::appended_tag(text4("TALB", "Film")));
    const auto file = MediaFile::initWithFile(path("VIDEO_TS.IFO"));
    ASSERT_TRUE(file);
    EXPECT_EQ(path("VIDEO_TS.TAG"), file->filename());
    EXPECT_EQ(2, file->mediaType());
    EXPECT_EQ("Film", file->title());
}

TEST_F(MediaFileTest, DiscImageWithoutASideFileOpensEmpty) {
    test::write_file(folder_ / "movie.iso", test::appended_tag(text4("TALB", "Not this")));
    const auto file = MediaFile::initWithFile(path("movie.iso"));
    ASSERT_TRUE(file);
    EXPECT_EQ(path("movie.TAG"), file->filename());
    EXPECT_EQ("", file->title());
    EXPECT_NE(std::string::npos,
              log_.text().find("failed to load metadata for file " + (folder_ / "movie.TAG") + "\n"));
    EXPECT_FALSE(test::file_exists(folder_ / "movie.TAG"));
}

TEST_F(MediaFileTest, DvdFolderIsSavedIntoItsSideFile) {
    test::write_file(folder_ / "video_ts.ifo", "dvd");
    test::write_file(folder_ / "video_ts.TAG", test::pattern(64) + test::appended_tag(text4("TALB", "Film")));
    const auto file = MediaFile::initWithFile(path("video_ts.ifo"));
    file->setTitle("New film");
    EXPECT_TRUE(file->saveMetadata(nullptr));
    EXPECT_EQ(test::pattern(64) + test::appended_tag(text4("TALB", "New film")),
              test::read_file(folder_ / "video_ts.TAG"));
    EXPECT_EQ("dvd", test::read_file(folder_ / "video_ts.ifo"));
}

TEST_F(MediaFileTest, FirstSaveOfADiscImageFailsAndLeavesAnEmptySideFile) {
    test::write_file(folder_ / "movie.iso", "disc");
    const auto file = MediaFile::initWithFile(path("movie.iso"));
    file->setTitle("Film");
    Error error;
    EXPECT_FALSE(file->saveMetadata(&error));
    EXPECT_EQ(path("movie.TAG"), error.userInfo.value(NSFilePathErrorKey).toString());
    EXPECT_TRUE(test::file_exists(folder_ / "movie.TAG"));
    EXPECT_EQ("", test::read_file(folder_ / "movie.TAG"));
    EXPECT_EQ("disc", test::read_file(folder_ / "movie.iso"));
}

TEST_F(MediaFileTest, FolderThatCanBeReadOpensEmpty) {
    const auto file = MediaFile::initWithFile(path(""));
    ASSERT_TRUE(file);
    EXPECT_EQ("", file->title());
}

TEST_F(MediaFileTest, PipeGivesNoObjectAndIsNotWaitedFor) {
    ASSERT_EQ(0, ::mkfifo((folder_ / "a.mp3").c_str(), 0600));
    EXPECT_FALSE(MediaFile::initWithFile(path("a.mp3")));
}

TEST_F(MediaFileTest, SideFileThatIsAPipeCountsAsUnreadable) {
    test::write_file(folder_ / "movie.iso", "disc");
    ASSERT_EQ(0, ::mkfifo((folder_ / "movie.TAG").c_str(), 0600));
    const auto file = MediaFile::initWithFile(path("movie.iso"));
    ASSERT_TRUE(file);
    EXPECT_EQ("", file->title());
    EXPECT_NE(std::string::npos,
              log_.text().find("failed to load metadata for file " + (folder_ / "movie.TAG")));
}

TEST_F(MediaFileTest, SongThatVanishedIsNotSavedAndLeavesAnEmptyFile) {
    const auto file = MediaFile::initWithFile(tagged("a.mp3", fullTag));
    ASSERT_EQ(0, ::unlink((folder_ / "a.mp3").c_str()));
    EXPECT_FALSE(file->saveMetadata(nullptr));
    EXPECT_EQ("", test::read_file(folder_ / "a.mp3"));
}

TEST_F(MediaFileTest, TextThatIsCutInsideACharacterIsLatin1FromThenOn) {
    // 8,191 bytes are 4,095 times the two of U+0416 and the first of another one.
    const auto file = MediaFile::initWithFile(tagged("a.mp3", fullTag));
    file->setTitle(QString(4096, QChar(0x0416)));
    ASSERT_TRUE(file->saveMetadata(nullptr));
    const auto reopened = MediaFile::initWithFile(path("a.mp3"));
    ASSERT_TRUE(reopened);
    EXPECT_EQ(QString::fromLatin1("\xD0\x96").repeated(4095) + QString::fromLatin1("\xD0"),
              reopened->title());
}

TEST_F(MediaFileTest, FileThatBecameAPipeIsNotSaved) {
    for (const char* name : {"a.mp3", "a.wma", "a.avi"}) {
        const auto file = MediaFile::initWithFile(tagged(name, fullTag));
        ASSERT_TRUE(file) << name;
        ASSERT_EQ(0, ::unlink((folder_ / name).c_str()));
        ASSERT_EQ(0, ::mkfifo((folder_ / name).c_str(), 0600));
        Error error;
        EXPECT_FALSE(file->saveMetadata(&error)) << name;
        EXPECT_EQ(path(name), error.userInfo.value(NSFilePathErrorKey).toString());
    }
}

TEST_F(MediaFileTest, NameWithAnyByteOpens) {
    const std::string name = "a#?%20<b>\xE9\xFF\n.mp3";
    test::write_file(folder_ / name, test::pattern(64) + test::appended_tag(text4("TIT2", "Z")));
    const auto file = MediaFile::initWithFile(pathFromBytes(QByteArray::fromStdString(folder_ / name)));
    ASSERT_TRUE(file);
    EXPECT_EQ("Z", file->title());
    file->setTitle("New");
    EXPECT_TRUE(file->saveMetadata(nullptr));
    EXPECT_NE(std::string::npos, test::read_file(folder_ / name).find("New"));
}

TEST_F(MediaFileTest, SavingAudioWritesTheFramesItWasReadFrom) {
    auto file = MediaFile::initWithFile(
        tagged("a.mp3", text4("TALB", "X") + text4("TPE1", "Y") + text4("TIT2", "Z")));
    file->setTitle("new title");
    file->setYear(2001);
    ASSERT_TRUE(file->saveMetadata(nullptr));
    EXPECT_EQ(test::pattern(64) + test::appended_tag(text4("TALB", "X") + text4("TPE1", "Y") +
                                                     text4("TIT2", "new title") + text4("TYER", "2001")),
              test::read_file(folder_ / "a.mp3"));
}

TEST_F(MediaFileTest, SavingVideoWritesDirectorAndRatingToo) {
    test::write_file(folder_ / "a.mp4", test::pattern(64));
    auto file = MediaFile::initWithFile(path("a.mp4"));
    file->setTitle("T");
    file->setCast("C");
    file->setSynopsis("S");
    file->setDirector("D");
    file->setRating("PG");
    file->setGenre("Drama");
    ASSERT_TRUE(file->saveMetadata(nullptr));
    EXPECT_EQ(test::pattern(64) +
                  test::appended_tag(
                      text4("TALB", "T") + text4("TPE1", "C") + text4("TIT2", "S") + text4("TPE3", "D") +
                      frame4("PRIV", std::string("WM/ParentalRating\0PG", 20)) + text4("TCON", "Drama")),
              test::read_file(folder_ / "a.mp4"));
}

TEST_F(MediaFileTest, TextsAreStoredAsUtf8) {
    test::write_file(folder_ / "a.mp3", test::pattern(64));
    auto file = MediaFile::initWithFile(path("a.mp3"));
    file->setTitle(QString::fromUtf8("caf\xC3\xA9"));
    ASSERT_TRUE(file->saveMetadata(nullptr));
    EXPECT_EQ(test::pattern(64) + test::appended_tag(text4("TIT2", "caf\xC3\xA9")),
              test::read_file(folder_ / "a.mp3"));
}

TEST_F(MediaFileTest, NegativeYearIsWritten) {
    test::write_file(folder_ / "a.mp3", test::pattern(64));
    auto file = MediaFile::initWithFile(path("a.mp3"));
    file->setYear(-44);
    ASSERT_TRUE(file->saveMetadata(nullptr));
    EXPECT_EQ(test::pattern(64) + test::appended_tag(text4("TYER", "-44")),
              test::read_file(folder_ / "a.mp3"));
}

TEST_F(MediaFileTest, EmptyTextAndYearZeroLeaveTheStoredFieldsAlone) {
    auto file = MediaFile::initWithFile(tagged("a.mp3", text4("TIT2", "Z") + text4("TYER", "1999")));
    file->setTitle("");
    file->setYear(0);
    ASSERT_TRUE(file->saveMetadata(nullptr));
    EXPECT_EQ(test::pattern(64) + test::appended_tag(text4("TIT2", "Z") + text4("TYER", "1999")),
              test::read_file(folder_ / "a.mp3"));
}

TEST_F(MediaFileTest, SavingKeepsTheValuesAsTheyWere) {
    auto file = MediaFile::initWithFile(tagged("a.mp3", text4("TIT2", "Z")));
    file->setTitle("A");
    const QVariantMap before = file->metadata();
    ASSERT_TRUE(file->saveMetadata(nullptr));
    EXPECT_EQ(before, file->metadata());
}

TEST_F(MediaFileTest, SavingLogsWhatIsWrittenAndWhere) {
    auto file = MediaFile::initWithFile(tagged("a.mp3", text4("TIT2", "Z")));
    file->setYear(1999);
    const std::size_t before = log_.text().size();
    ASSERT_TRUE(file->saveMetadata(nullptr));
    const std::string expected = "writing new media tag:\n  title=\n  artist=\n  description=Z\n genre=\n"
                                 "  director=(null)\n rating=(null)\n  year=1999\nsaving tag to file " +
                                 (folder_ / "a.mp3") + "\n";
    EXPECT_EQ(expected, log_.text().substr(before, expected.size()));
}

TEST_F(MediaFileTest, FailedSaveFillsTheErrorForAnAlert) {
    // A small file whose tag is in front is rewritten through a temporary file, which is never there to open.
    test::write_file(folder_ / "a.mp3", "ID3" + hex("03 00 00 00 00 00 0C") + "TIT2" +
                                            hex("00 00 00 02 00 00 00 5A") + test::pattern(64));
    const auto file = MediaFile::initWithFile(path("a.mp3"));
    ASSERT_EQ("Z", file->title());
    Error error;
    EXPECT_FALSE(file->saveMetadata(&error));
    EXPECT_EQ(NSMachErrorDomain, error.domain);
    EXPECT_EQ(0, error.code);
    EXPECT_EQ(path("a.mp3"), error.userInfo.value(NSFilePathErrorKey).toString());
    EXPECT_EQ("Unable to write tags to file \"a.mp3\".",
              error.userInfo.value(NSLocalizedDescriptionKey).toString());
    EXPECT_EQ("Be sure you have permissions to write to the file, and that it is a valid media file.",
              error.userInfo.value(NSLocalizedRecoverySuggestionErrorKey).toString());
    EXPECT_TRUE(log_.text().ends_with("failed to write tag\n"));
}

TEST_F(MediaFileTest, FailedSaveWithoutAnErrorSlotOnlyLogs) {
    const QString name = tagged("a.mp3", text4("TIT2", "Z"));
    const auto file = MediaFile::initWithFile(name);
    ASSERT_EQ(0, ::unlink((folder_ / "a.mp3").c_str()));
    ASSERT_EQ(0, ::mkdir((folder_ / "a.mp3").c_str(), 0700));
    EXPECT_FALSE(file->saveMetadata(nullptr));
}

TEST_F(MediaFileTest, CoverArtIsReadAndWrittenAsAPicture) {
    const QImage picture = test::plain({32, 24}, Qt::darkGreen);
    for (const char* name : {"a.mp3", "a.mp4", "a.png"}) {
        test::write_file(folder_ / name, test::pattern(64));
        auto file = MediaFile::initWithFile(path(name));
        file->setCoverArt(ImageRef::fromQImage(picture));
        ASSERT_TRUE(file->saveMetadata(nullptr)) << name;
        const auto again = MediaFile::initWithFile(path(name));
        ASSERT_TRUE(again->coverArt()) << name;
        EXPECT_EQ(QSize(32, 24), again->coverArt().toQImage().size()) << name;
    }
}

TEST_F(MediaFileTest, CastListIsJoinedWithCommas) {
    auto file = MediaFile::initWithFile(tagged("a.mp4", ""));
    file->setCastList({"Ann", "Bob", "Cy"});
    EXPECT_EQ("Ann, Bob, Cy", file->cast());
    file->setCastList({"Ann"});
    EXPECT_EQ("Ann", file->cast());
    file->setCastList({});
    EXPECT_EQ("", file->cast());
}

TEST_F(MediaFileTest, SettersStoreUnderTheirKeys) {
    auto file = MediaFile::initWithFile(tagged("a.mp3", ""));
    file->setTitle("1");
    file->setArtist("2");
    file->setAlbum("3");
    file->setCast("4");
    file->setDirector("5");
    file->setGenre("6");
    file->setRating("7");
    file->setSynopsis("8");
    file->setYear(9);
    const QDateTime date(QDate(2001, 2, 3), QTime(4, 5));
    file->setDateTime(date);
    const QVariantMap& values = file->metadata();
    EXPECT_EQ("1", values["title"].toString());
    EXPECT_EQ("2", values["artist"].toString());
    EXPECT_EQ("3", values["album"].toString());
    EXPECT_EQ("4", values["cast"].toString());
    EXPECT_EQ("5", values["director"].toString());
    EXPECT_EQ("6", values["genre"].toString());
    EXPECT_EQ("7", values["rating"].toString());
    EXPECT_EQ("8", values["synopsis"].toString());
    EXPECT_EQ(9, values["year"].toInt());
    EXPECT_EQ(date, values["datetime"].toDateTime());
}

TEST_F(MediaFileTest, WindowsMediaFileGoesToItsModule) {
    test::write_file(folder_ / "clip.wmv", test::pattern(300));
    (void)MediaFile::initWithFile(path("clip.wmv"));
    EXPECT_NE(std::string::npos, log_.text().find("asf_read_header_object: Not a valid header\n"));
}

TEST_F(MediaFileTest, AviFileGoesToItsModule) {
    test::write_file(folder_ / "clip.divx", test::pattern(300));
    (void)MediaFile::initWithFile(path("clip.divx"));
    EXPECT_NE(std::string::npos, log_.text().find("avi_read_header: Not a RIFF header\n"));
}

TEST_F(MediaFileTest, WindowsMediaFileWithoutAHeaderIsRefusedAndKeepsItsBytes) {
    for (const char* name : {"clip.wmv", "song.wma", "x.asf"}) {
        test::write_file(folder_ / name, test::pattern(300));
        auto file = MediaFile::initWithFile(path(name));
        ASSERT_TRUE(file) << name;
        file->setTitle("T");
        const std::size_t before = log_.text().size();
        EXPECT_FALSE(file->saveMetadata(nullptr)) << name;
        EXPECT_NE(std::string::npos, log_.text().find("asf_read_header_object: Not a valid header\n", before))
            << name;
        EXPECT_EQ(test::pattern(300), test::read_file(folder_ / name)) << name;
    }
}

TEST_F(MediaFileTest, AviFileIsSavedIntoItsInfoList) {
    const std::string junk = chunk("JUNK", 4, "....");
    for (const char* name : {"film.avi", "clip.divx", "FILM.AVI"}) {
        test::write_file(folder_ / name, chunk("RIFF", 16, "AVI " + junk));
        auto file = MediaFile::initWithFile(path(name));
        ASSERT_TRUE(file) << name;
        file->setTitle("T");
        file->setCast("CC");
        file->setSynopsis("SSS");
        file->setDirector("D");
        file->setRating("R");
        file->setGenre("G");
        file->setYear(-44);
        EXPECT_TRUE(file->saveMetadata(nullptr)) << name;
        EXPECT_EQ(test::to_hex(chunk("RIFF", 104, "AVI " + junk + infoList())),
                  test::to_hex(test::read_file(folder_ / name)))
            << name;
    }
}

TEST_F(MediaFileTest, AviFileIsLoadedFromItsInfoList) {
    test::write_file(folder_ / "film.avi", chunk("RIFF", 92, "AVI " + infoList()));
    const auto file = MediaFile::initWithFile(path("film.avi"));
    ASSERT_TRUE(file);
    EXPECT_EQ("T", file->title());
    EXPECT_EQ("CC", file->cast());
    EXPECT_EQ("SSS", file->synopsis());
    EXPECT_EQ("D", file->director());
    EXPECT_EQ("R", file->rating());
    EXPECT_EQ("G", file->genre());
    EXPECT_EQ(-44, file->year());
}

} // namespace
} // namespace velmora
