#include "movie_fixture.h"

#include "platform/movie/movie_view.h"
#include "support/contrast.h"
#include "support/pictures.h"

#include <QAbstractButton>
#include <QAbstractSlider>

namespace velmora::test {
namespace {

class MovieViewTest : public MovieTest {
protected:
    MovieViewTest() {
        view.resize(400, 300);
        view.show();
    }

    void openFilm() {
        open(avi());
        ASSERT_EQ(1, opened.count());
        view.setMovie(&movie);
        ASSERT_TRUE(waitForFrame(isFirstFrame));
    }

    [[nodiscard]] QAbstractButton* button() { return view.findChild<QAbstractButton*>(); }
    [[nodiscard]] QAbstractSlider* slider() { return view.findChild<QAbstractSlider*>(); }

    /** How much of the view, in per cent, is about COLOUR. */
    [[nodiscard]] int share(const QColor& colour) {
        const QImage picture = view.grab().toImage();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor pixel = picture.pixelColor(x, y);
                count += std::abs(pixel.red() - colour.red()) < 60 &&
                                 std::abs(pixel.green() - colour.green()) < 60 &&
                                 std::abs(pixel.blue() - colour.blue()) < 60
                             ? 1
                             : 0;
            }
        }
        return count * 100 / (picture.width() * picture.height());
    }

    [[nodiscard]] double contrastOfSign() {
        return contrast(button()->grab(button()->rect().adjusted(2, 2, -2, -2)).toImage());
    }

    MovieView view;
};

TEST_F(MovieViewTest, IsBlackAndOutOfUseWithoutAMovie) {
    EXPECT_EQ(nullptr, view.movie());
    EXPECT_GT(share(Qt::black), 70);
    EXPECT_FALSE(button()->isEnabled());
    EXPECT_FALSE(slider()->isEnabled());
}

TEST_F(MovieViewTest, ShowsTheFirstFrame) {
    openFilm();
    for (const QColor& colour : {QColor(Qt::red), QColor(Qt::green), QColor(Qt::blue)}) {
        EXPECT_GT(share(colour), 12) << colour.name().toStdString();
    }
    EXPECT_TRUE(button()->isEnabled());
    EXPECT_TRUE(slider()->isEnabled());
}

TEST_F(MovieViewTest, AMovieThatIsTakenAwayLeavesNothing) {
    openFilm();
    view.setMovie(nullptr);
    EXPECT_EQ(0, share(Qt::red));
    EXPECT_FALSE(button()->isEnabled());
    EXPECT_FALSE(slider()->isEnabled());
    EXPECT_EQ(0, slider()->value());
}

TEST_F(MovieViewTest, AMovieThatIsClosedLeavesNothing) {
    openFilm();
    movie.close();
    EXPECT_EQ(0, share(Qt::red));
}

TEST_F(MovieViewTest, AMovieThatIsDestroyedLeavesNothing) {
    auto* other = new Movie;
    QSignalSpy otherOpened(other, &Movie::opened);
    view.setMovie(other);
    other->open(avi());
    ASSERT_TRUE(otherOpened.wait(patience));
    ASSERT_TRUE(QTest::qWaitFor([&] { return isFirstFrame(other->currentFrame()); }, patience));
    EXPECT_TRUE(button()->isEnabled());
    delete other;
    EXPECT_EQ(nullptr, view.movie());
    EXPECT_FALSE(button()->isEnabled());
    EXPECT_EQ(0, share(Qt::red));
}

TEST_F(MovieViewTest, SoundAloneIsPlayedAndPausedToo) {
    open(mp3());
    view.setMovie(&movie);
    EXPECT_TRUE(button()->isEnabled());
    QTest::mouseClick(button(), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([this] { return slider()->value() > 200; }, patience));
    EXPECT_TRUE(movie.isPlaying());
    EXPECT_TRUE(slider()->isEnabled());
    QTest::mouseClick(button(), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !movie.isPlaying(); }, patience));
}

TEST_F(MovieViewTest, SoundAloneShowsItsCover) {
    const QImage cover = plain({300, 300}, Qt::red);
    open(mp3());
    view.setCover(cover);
    EXPECT_EQ(0, share(Qt::red)) << "not before there is sound to show it for";
    view.setMovie(&movie);
    EXPECT_GT(share(Qt::red), 40);
    view.setCover(QImage());
    EXPECT_EQ(0, share(Qt::red));
    view.setCover(cover);
    movie.close();
    EXPECT_EQ(0, share(Qt::red));
}

TEST_F(MovieViewTest, SoundWithoutACoverShowsANote) {
    open(mp3());
    view.setMovie(&movie);
    EXPECT_GT(contrast(view.grab(QRect(10, 10, 380, 220)).toImage()), 3);
}

TEST_F(MovieViewTest, AFilmShowsItsFramesAndNotItsCover) {
    const QImage cover = plain({300, 300}, Qt::cyan);
    view.setCover(cover);
    openFilm();
    EXPECT_EQ(0, share(Qt::cyan));
}

TEST_F(MovieViewTest, TheButtonPlaysAndPauses) {
    openFilm();
    QTest::mouseClick(button(), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([this] { return movie.isPlaying(); }, patience));
    QTest::mouseClick(button(), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !movie.isPlaying(); }, patience));
}

TEST_F(MovieViewTest, TheSliderMovesTheMovie) {
    openFilm();
    ASSERT_TRUE(QTest::qWaitFor([this] { return slider()->maximum() > 1500; }, patience));
    slider()->setValue(1500);
    EXPECT_TRUE(waitForFrame(isYellow));
    EXPECT_TRUE(QTest::qWaitFor([this] { return share(Qt::yellow) > 50; }, patience));
}

TEST_F(MovieViewTest, TheSliderFollowsTheMovie) {
    openFilm();
    movie.play();
    EXPECT_TRUE(QTest::qWaitFor([this] { return slider()->value() > 200; }, patience));
}

TEST_F(MovieViewTest, TheButtonsSignsAreReadableInLightAndDark) {
    openFilm();
    for (const QColor& colour : {QColor(239, 239, 239), QColor(49, 54, 59)}) {
        view.setPalette(QPalette(colour));
        EXPECT_GT(contrastOfSign(), 4.5) << "to play, on " << colour.name().toStdString();
        movie.play();
        ASSERT_TRUE(QTest::qWaitFor([this] { return movie.isPlaying(); }, patience));
        EXPECT_GT(contrastOfSign(), 4.5) << "to pause, on " << colour.name().toStdString();
        movie.pause();
        ASSERT_TRUE(QTest::qWaitFor([this] { return !movie.isPlaying(); }, patience));
    }
}

TEST_F(MovieViewTest, TheSignOfAButtonOutOfUseIsFaintInLightAndDark) {
    for (const QColor& colour : {QColor(239, 239, 239), QColor(49, 54, 59)}) {
        QPalette palette(colour);
        palette.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(120, 120, 120));
        view.setPalette(palette);
        EXPECT_GT(contrastOfSign(), 1.5) << colour.name().toStdString();
        EXPECT_LT(contrastOfSign(), 4.5) << colour.name().toStdString();
    }
}

TEST_F(MovieViewTest, EveryControlHasANameAndATip) {
    for (const QWidget* control :
         {static_cast<const QWidget*>(button()), static_cast<const QWidget*>(slider())}) {
        EXPECT_FALSE(control->accessibleName().isEmpty());
        EXPECT_FALSE(control->toolTip().isEmpty());
    }
}

} // namespace
} // namespace velmora::test
