#include "movie_fixture.h"

#include "support/bytes.h"

#include <cstdlib>

namespace velmora::test {
namespace {

class MoviePlaying : public MovieTest {
protected:
    void SetUp() override {
        open(avi());
        ASSERT_EQ(1, opened.count());
        ASSERT_TRUE(waitForFrame(isFirstFrame));
    }
};

TEST_F(MoviePlaying, AnOpenedMovieStandsStillAtItsFirstFrame) {
    QTest::qWait(silence);
    EXPECT_FALSE(movie.isPlaying());
    EXPECT_EQ(0, movie.position());
    EXPECT_TRUE(isFirstFrame(movie.currentFrame()));
}

TEST_F(MoviePlaying, TheLengthIsKnown) {
    EXPECT_TRUE(QTest::qWaitFor([this] { return movie.duration() > 0; }, patience));
    EXPECT_NEAR(static_cast<double>(movie.duration()), 2000, 200);
}

TEST_F(MoviePlaying, PlayingReachesTheSecondHalf) {
    QSignalSpy changes(&movie, &Movie::playingChanged);
    movie.play();
    EXPECT_TRUE(QTest::qWaitFor([this] { return movie.isPlaying(); }, patience));
    EXPECT_TRUE(waitForFrame(isYellow));
    EXPECT_GT(movie.position(), 0);
    EXPECT_GE(changes.count(), 1);
}

TEST_F(MoviePlaying, APausedMovieStandsStill) {
    movie.play();
    ASSERT_TRUE(QTest::qWaitFor([this] { return movie.position() > 200; }, patience));
    movie.pause();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !movie.isPlaying(); }, patience));
    QTest::qWait(lastFrame);
    const qint64 position = movie.position();
    QTest::qWait(silence);
    EXPECT_EQ(position, movie.position());
}

TEST_F(MoviePlaying, SeekingShowsTheFrameThere) {
    movie.setPosition(1500);
    EXPECT_TRUE(waitForFrame(isYellow));
    movie.setPosition(0);
    EXPECT_TRUE(waitForFrame(isFirstFrame));
}

TEST_F(MoviePlaying, AMoviePlayedToItsEndCanBePlayedAgain) {
    movie.play();
    ASSERT_TRUE(waitForFrame(isYellow));
    ASSERT_TRUE(QTest::qWaitFor([this] { return !movie.isPlaying(); }, patience));
    EXPECT_TRUE(movie.isOpen());
    movie.play();
    EXPECT_TRUE(waitForFrame(isFirstFrame));
}

TEST_F(MoviePlaying, AnotherFileOpenedWhilePlayingStandsStill) {
    movie.play();
    ASSERT_TRUE(QTest::qWaitFor([this] { return movie.isPlaying(); }, patience));
    open(files.film("other.avi", {"-c:v", "mjpeg", "-pix_fmt", "yuvj420p"}));
    EXPECT_FALSE(movie.isPlaying());
    EXPECT_TRUE(waitForFrame(isFirstFrame));
}

// Whether or not the machine has a sound device.

TEST_F(MovieTest, ASongsPositionRunsToItsEnd) {
    open(mp3());
    ASSERT_EQ(1, opened.count());
    EXPECT_FALSE(movie.isPlaying());
    movie.play();
    EXPECT_TRUE(QTest::qWaitFor([this] { return movie.position() > 0; }, patience));
    EXPECT_TRUE(movie.isPlaying());
    EXPECT_TRUE(QTest::qWaitFor([this] { return std::abs(movie.duration() - 2000) < 200; }, patience));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !movie.isPlaying(); }, patience));
    EXPECT_TRUE(movie.isOpen());
    EXPECT_EQ(0, failed.count());
    EXPECT_EQ(1, opened.count());
}

TEST_F(MovieTest, ASongThatIsPausedStandsStillAndGoesOn) {
    open(mp3());
    movie.play();
    ASSERT_TRUE(QTest::qWaitFor([this] { return movie.position() > 200; }, patience));
    movie.pause();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !movie.isPlaying(); }, patience));
    QTest::qWait(lastFrame);
    const qint64 position = movie.position();
    QTest::qWait(silence);
    EXPECT_EQ(position, movie.position());
    movie.play();
    EXPECT_TRUE(QTest::qWaitFor([&] { return movie.position() > position + 200; }, patience));
}

TEST_F(MovieTest, ASongIsPlayedFromWhereItWasPut) {
    open(mp3());
    movie.play();
    ASSERT_TRUE(QTest::qWaitFor([this] { return movie.position() > 0; }, patience));
    movie.setPosition(1500);
    EXPECT_TRUE(QTest::qWaitFor([this] { return movie.position() >= 1500; }, patience));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !movie.isPlaying(); }, patience));
    movie.play();
    EXPECT_TRUE(QTest::qWaitFor([this] { return movie.isPlaying() && movie.position() < 1500; }, patience));
}

TEST_F(MovieTest, WithoutAFileNothingPlays) {
    movie.play();
    movie.pause();
    movie.setPosition(100);
    EXPECT_FALSE(movie.isPlaying());
    EXPECT_EQ(0, movie.position());
    EXPECT_EQ(0, movie.duration());
    EXPECT_TRUE(movie.currentFrame().isNull());
}

TEST_F(MovieTest, AFilmTakenOnItsSideIsUpright) {
    // The picture lies in the file as it is; the matrix in the track's header turns it by a quarter.
    std::string film = read_file(files.film("lying.mp4", {"-c:v", "mpeg4", "-q:v", "2"}).toStdString());
    const std::size_t matrix = film.find("tkhd") + 4 + 40;
    film.replace(matrix, 36,
                 hex("00000000 00010000 00000000  ffff0000 00000000 00000000  00f00000 00000000 40000000"));
    open(files.file("upright.mp4", film));
    ASSERT_EQ(1, opened.count());
    EXPECT_TRUE(waitForFrame([](const QImage& frame) {
        return frame.size() == QSize(240, 320) && frame.pixelColor(60, 80).blue() > 200 &&
               frame.pixelColor(180, 80).red() > 200 && frame.pixelColor(180, 80).green() < 60;
    }));
}

} // namespace
} // namespace velmora::test
