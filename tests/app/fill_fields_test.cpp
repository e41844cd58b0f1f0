#include "window_fixture.h"

#include "imaging/CoverArtView.h"
#include "support/pictures.h"
#include "weblookup/form_fill_info.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QTest>

namespace velmora {
namespace {

using test::text4;

class FillFieldsTest : public test::WindowTest {
protected:
    static FormFillInfo everything() {
        FormFillInfo info;
        info.title = "Harbour Lights";
        info.cast = QStringList{"Ann", "Bob"};
        info.directors = QStringList{"Cy", "Di"};
        info.description = "A plot.";
        info.year = "2005";
        info.genres = QStringList{"Drama", "Crime"};
        info.rating = "PG-13";
        info.coverArt = test::plain({12, 10}, Qt::blue);
        info.releaseDate = QDate(2005, 5, 12);
        return info;
    }
    void openVideo() { openFile("a.mp4", text4("TALB", "Film")); }
    void openRated(const QString& rating) {
        openVideo();
        file().setRating(rating);
        controller().fillUI();
        ASSERT_EQ(rating, this->rating().currentText());
    }
    QComboBox& rating() { return widget<QComboBox>("combo_rating"); }
};

TEST_F(FillFieldsTest, ShowsEverySlotInItsControl) {
    openVideo();
    const FormFillInfo info = everything();
    controller().fillFields(&info);
    EXPECT_EQ("Harbour Lights", entry("entry_title").text());
    EXPECT_EQ("Cy, Di", entry("entry_album").text());
    EXPECT_EQ("A plot.", widget<QPlainTextEdit>("entry_desc").toPlainText());
    EXPECT_EQ("2005", entry("entry_year").text());
    EXPECT_EQ("PG-13", rating().currentText());
    EXPECT_EQ(QDate(2005, 5, 12), widget<QDateTimeEdit>("picker_dateTime").date());
    EXPECT_EQ("Drama, Crime", widget<QComboBox>("combo_genre").currentText());
    EXPECT_EQ("Ann\nBob", entry("entry_artist").text());
    EXPECT_EQ(QSize(12, 10), widget<CoverArtView>("img_coverArt").image().size());
    EXPECT_TRUE(enabled("btn_trimBorder"));
}

TEST_F(FillFieldsTest, OnlyRatingAndCoverArtReachTheModel) {
    openVideo();
    const FormFillInfo info = everything();
    controller().fillFields(&info);
    EXPECT_EQ("PG-13", file().rating());
    EXPECT_TRUE(file().coverArt());
    EXPECT_EQ("Film", file().title());
    EXPECT_EQ("", file().cast());
    EXPECT_EQ("", file().director());
    EXPECT_EQ("", file().synopsis());
    EXPECT_EQ("", file().genre());
    EXPECT_EQ(0, file().year());
    EXPECT_TRUE(document().isDocumentEdited());
}

TEST_F(FillFieldsTest, FieldsReachTheModelWhenThePersonTypesInThem) {
    openVideo();
    FormFillInfo info;
    info.title = "Harbour";
    controller().fillFields(&info);
    EXPECT_FALSE(document().isDocumentEdited());
    QTest::keyClicks(&entry("entry_title"), "!");
    EXPECT_EQ("Harbour!", file().title());
}

TEST_F(FillFieldsTest, PassingThroughTheFilledGenreDoesNotStoreIt) {
    openVideo();
    FormFillInfo info;
    info.genres = QStringList{"Drama"};
    controller().fillFields(&info);
    auto& genre = widget<QComboBox>("combo_genre");
    genre.setFocus();
    QTest::keyClick(genre.lineEdit(), Qt::Key_Tab);
    EXPECT_EQ("Drama", genre.currentText());
    EXPECT_EQ("", file().genre());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(FillFieldsTest, LogsItsSlotsInOrder) {
    openVideo();
    const FormFillInfo info = everything();
    const std::size_t before = log().size();
    controller().fillFields(&info);
    EXPECT_EQ("title=Harbour Lights\ndescription=A plot.\nyear=2005\nrating=PG-13\ngot cover art\n",
              log().substr(before));
}

TEST_F(FillFieldsTest, MissingSlotsLeaveTheirControlsAlone) {
    openFile("a.mp4", text4("TALB", "Film") + text4("TPE1", "Cast") + text4("TYER", "1999"));
    const FormFillInfo nothing;
    controller().fillFields(&nothing);
    EXPECT_EQ("Film", entry("entry_title").text());
    EXPECT_EQ("Cast", entry("entry_artist").text());
    EXPECT_EQ("1999", entry("entry_year").text());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(FillFieldsTest, EmptyTextEmptiesItsControl) {
    openVideo();
    FormFillInfo info;
    info.title = "";
    controller().fillFields(&info);
    EXPECT_EQ("", entry("entry_title").text());
    EXPECT_EQ("Film", file().title());
}

TEST_F(FillFieldsTest, UnknownRatingChangesNothing) {
    openRated("R");
    FormFillInfo info;
    info.rating = "X";
    controller().fillFields(&info);
    EXPECT_EQ("R", rating().currentText());
    EXPECT_EQ("R", file().rating());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(FillFieldsTest, EmptyRatingIsTheFirstItem) {
    openRated("R");
    FormFillInfo info;
    info.rating = "";
    controller().fillFields(&info);
    EXPECT_EQ(0, rating().currentIndex());
    EXPECT_EQ("", file().rating());
    EXPECT_TRUE(document().isDocumentEdited());
}

TEST_F(FillFieldsTest, ReleaseDateIsShownAndNothingElse) {
    openVideo();
    const QDateTime date = file().dateTime();
    ASSERT_NE(QDate(2005, 5, 12), date.date());
    FormFillInfo info;
    info.releaseDate = QDate(2005, 5, 12);
    controller().fillFields(&info);
    EXPECT_EQ(QDate(2005, 5, 12), widget<QDateTimeEdit>("picker_dateTime").date());
    EXPECT_EQ(date, file().dateTime());
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_FALSE(enabled("btn_saveTag"));
}

TEST_F(FillFieldsTest, ArrowKeysStartAtTheFilledGenre) {
    openVideo();
    FormFillInfo info;
    info.genres = QStringList{"Crime"};
    controller().fillFields(&info);
    EXPECT_EQ("", file().genre());
    QTest::keyClick(&widget<QComboBox>("combo_genre"), Qt::Key_Down);
    EXPECT_EQ("Documentary", file().genre());
}

TEST_F(FillFieldsTest, NullRecordChangesNothing) {
    openVideo();
    controller().fillFields(nullptr);
    EXPECT_EQ("Film", entry("entry_title").text());
}

TEST_F(FillFieldsTest, WithoutAnOpenFileOnlyTheControlsChange) {
    const FormFillInfo info = everything();
    controller().fillFields(&info);
    EXPECT_EQ("Harbour Lights", entry("entry_title").text());
    EXPECT_FALSE(enabled("btn_saveTag"));
}

TEST(JoinedLists, SeparatorStandsBetweenTheElements) {
    EXPECT_EQ("a, b, c", nsarray_to_nsstring({"a", "b", "c"}, ", "));
    EXPECT_EQ("a", nsarray_to_nsstring({"a"}, ", "));
    EXPECT_TRUE(nsarray_to_nsstring({}, ", ").isNull());
}

} // namespace
} // namespace velmora
