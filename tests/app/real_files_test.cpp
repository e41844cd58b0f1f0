// The window over real media made by ffmpeg: opened, edited, saved, and read back by a program that is not
// ours.

#include "window_fixture.h"

#include "imaging/CoverArtView.h"
#include "platform/movie/movie_view.h"
#include "support/bytes.h"
#include "support/command.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>

namespace velmora {
namespace {

using test::run_command;
using test::shell_word;
using test::waitUntil;

class RealFilesTest : public test::WindowTest {
protected:
    /** Makes a file with ffmpeg, lists it and opens it. */
    void open(const std::string& name, const std::string& arguments) {
        run_command("ffmpeg -v error -y " + arguments + " " + shell_word(folder_ / name));
        ASSERT_TRUE(controller().addMediaFile(path(name)));
        select(controller().table().model().numberOfRowsInTableView() - 1);
        ASSERT_NE(nullptr, document().mediaFile());
        name_ = folder_ / name;
    }
    std::string tag(const std::string& key) {
        return run_command("ffprobe -v error -show_entries format_tags=" + key + " -of default=nk=1:nw=1 " +
                           shell_word(name_));
    }
    /** A checksum of the decoded media; a file that doesn't decode fails the test. */
    std::string decoded() {
        const std::string errors = run_command("ffmpeg -v error -i " + shell_word(name_) + " -f null -");
        EXPECT_EQ("", errors);
        return checksum();
    }
    std::string checksum() {
        return run_command("ffmpeg -v quiet -i " + shell_word(name_) + " -map 0 -f md5 -");
    }
    void typeAndSave(const char* field, const QString& text) {
        type(field, text);
        button("btn_saveTag").click();
        EXPECT_FALSE(document().isDocumentEdited()) << log();
    }
    void reopen() {
        select(-1);
        select(controller().table().model().numberOfRowsInTableView() - 1);
    }
    QImage cover() { return widget<CoverArtView>("img_coverArt").image(); }

    std::string name_;
};

const std::string tone = "-f lavfi -i sine=frequency=330:duration=12 ";
const std::string picture = "-f lavfi -i testsrc2=s=640x360:r=25:d=4 ";

TEST_F(RealFilesTest, Mp3WithoutATagInFrontIsEditedAtItsEnd) {
    open("song.mp3", tone + "-b:a 128k -id3v2_version 0 -write_xing 0");
    const std::string before = test::read_file(name_);
    const std::string sound = checksum();
    typeAndSave("entry_title", "Abend");
    EXPECT_EQ(before, test::read_file(name_).substr(0, before.size()));
    EXPECT_EQ(sound, checksum())
        << "ffmpeg does not know tags at the end of a file, but decodes what is in front";
    reopen();
    EXPECT_EQ("Abend", entry("entry_title").text());
}

TEST_F(RealFilesTest, WindowsMediaAudioIsEdited) {
    open("song.wma", tone + "-metadata title=Noon -metadata genre=Jazz");
    EXPECT_EQ("Noon", entry("entry_title").text());
    EXPECT_EQ("Artist:", widget<QLabel>("lbl_artist").text());
    const std::string sound = decoded();
    const char* const name = "Mittag \xE6\x97\xA5\xE6\x9C\xAC";
    typeAndSave("entry_artist", QString::fromUtf8(name));
    EXPECT_EQ(std::string(name) + "\n", tag("album_artist"));
    EXPECT_EQ(sound, decoded());
    reopen();
    EXPECT_EQ("Noon", entry("entry_title").text());
    EXPECT_EQ(QString::fromUtf8(name), entry("entry_artist").text());
}

TEST_F(RealFilesTest, WindowsMediaVideoIsEdited) {
    open("clip.wmv", picture + "-c:v wmv2 -b:v 1200k -metadata title=Clip -metadata genre=Drama");
    EXPECT_EQ("Director:", widget<QLabel>("lbl_album").text());
    const std::string film = decoded();
    typeAndSave("entry_album", "A director");
    EXPECT_EQ("A director\n", tag("WM/Director"));
    EXPECT_EQ(film, decoded());
    reopen();
    EXPECT_EQ("A director", entry("entry_album").text());
}

TEST_F(RealFilesTest, AviIsEdited) {
    open("film.avi", picture + "-c:v mpeg4 -b:v 1200k -metadata title=Trailer");
    EXPECT_EQ("Trailer", entry("entry_title").text());
    const std::string film = decoded();
    typeAndSave("entry_title", "A longer title than before");
    EXPECT_EQ("A longer title than before\n", tag("title"));
    EXPECT_EQ(film, decoded());
    reopen();
    EXPECT_EQ("A longer title than before", entry("entry_title").text());
}

class CapturedFrameTest : public RealFilesTest,
                          public testing::WithParamInterface<std::pair<const char*, const char*>> {};

TEST_P(CapturedFrameTest, IsTakenSavedAndThereAfterRevert) {
    const auto& [name, codec] = GetParam();
    open(name, picture + codec + " -metadata title=Clip -metadata genre=Drama");
    ASSERT_TRUE(waitUntil([this] { return enabled("btn_captureFrame"); })) << log();
    EXPECT_EQ(1, logged("got movie\n"));
    // The first frame follows a little later; until then taking it only leaves a line in the log.
    ASSERT_TRUE(waitUntil([this] {
        button("btn_captureFrame").click();
        return !cover().isNull();
    }));
    EXPECT_EQ(QSize(640, 360), cover().size());
    EXPECT_EQ(QSize(160, 90), cover().deviceIndependentSize().toSize());
    EXPECT_TRUE(enabled("btn_trimBorder"));
    EXPECT_TRUE(enabled("btn_saveTag"));
    EXPECT_TRUE(enabled("btn_revertTag"));
    EXPECT_TRUE(document().isDocumentEdited());
    button("btn_saveTag").click();
    ASSERT_FALSE(document().isDocumentEdited()) << log();
    controller().revertToSaved();
    test::settle();
    EXPECT_EQ(QSize(640, 360), cover().size());
}

INSTANTIATE_TEST_SUITE_P(Formats, CapturedFrameTest,
                         testing::Values(std::pair("film.avi", "-c:v mpeg4 -b:v 1200k"),
                                         std::pair("clip.wmv", "-c:v wmv2 -b:v 1200k"),
                                         std::pair("film.mp4", "-c:v mpeg4 -b:v 1200k")),
                         [](const auto& information) {
                             return std::string(information.param.first).substr(5);
                         });

TEST_F(RealFilesTest, LetterboxedFrameIsTrimmedAndSaved) {
    open(
        "film.avi",
        "-f lavfi -i testsrc2=s=320x180:r=5:d=1 -vf pad=320:240:0:30 -c:v mjpeg -q:v 2 -metadata title=Clip");
    ASSERT_TRUE(waitUntil([this] {
        button("btn_captureFrame").click();
        return !cover().isNull();
    }));
    ASSERT_EQ(QSize(320, 240), cover().size());
    button("btn_trimBorder").click();
    EXPECT_NEAR(180, cover().height(), 4);
    EXPECT_EQ(320, cover().width());
    QDir().mkpath("screenshots");
    EXPECT_TRUE(document().window()->grab().save("screenshots/trimmed-cover.png"));
    button("btn_saveTag").click();
    controller().revertToSaved();
    test::settle();
    EXPECT_NEAR(180, cover().height(), 4);
}

TEST_F(RealFilesTest, SongIsAMovieWithoutAFrame) {
    open("song.mp3", tone + "-b:a 128k");
    ASSERT_TRUE(waitUntil([this] { return logged("got movie\n") == 1; })) << log();
    EXPECT_FALSE(enabled("btn_captureFrame"));
    EXPECT_FALSE(widget<QLabel>("lbl_previewFailed").isVisibleTo(document().window()));
    controller().grabFrame();
    EXPECT_EQ(1, logged("failed to get frame from movie\n"));
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(RealFilesTest, FrameOfAFilmWhoseFileIsClosedIsNotTaken) {
    open("film.avi", picture + "-c:v mpeg4 -b:v 1200k");
    auto& preview = widget<MovieView>("view_preview");
    ASSERT_TRUE(waitUntil([&] { return preview.movie() && !preview.movie()->currentFrame().isNull(); }))
        << log();
    ASSERT_TRUE(enabled("btn_captureFrame"));
    ASSERT_TRUE(document().readFromURL(std::nullopt, QString(), nullptr));
    button("btn_captureFrame").click();
    EXPECT_TRUE(cover().isNull());
    EXPECT_FALSE(enabled("btn_saveTag"));
}

TEST_F(RealFilesTest, QuickRunDownTheListOpensTheLastMovieOnly) {
    for (const char* name : {"a.avi", "b.avi", "c.avi"}) {
        open(name, "-f lavfi -i testsrc2=s=160x120:r=5:d=1 -c:v mpeg4");
    }
    const int before = logged("got movie\n");
    for (const int row : {0, 1, 2, 1, 0}) {
        select(row);
    }
    EXPECT_TRUE(waitUntil([&] { return enabled("btn_captureFrame"); }));
    EXPECT_EQ(path("a.avi"), file().filename());
    EXPECT_EQ(before + 1, logged("got movie\n"));
    EXPECT_NE(nullptr, widget<MovieView>("view_preview").movie());
    select(-1);
    EXPECT_EQ(nullptr, widget<MovieView>("view_preview").movie());
    EXPECT_FALSE(enabled("btn_captureFrame"));
}

} // namespace
} // namespace velmora
