#include "window_fixture.h"

#include "imaging/CoverArtView.h"
#include "support/bytes.h"
#include "support/pictures.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QImage>
#include <QLabel>
#include <QTableView>

#include <functional>
#include <utility>

namespace velmora {
namespace {

using test::taggedFile;
using test::text4;

const std::string allFrames = text4("TALB", "X") + text4("TPE1", "Y") + text4("TIT2", "Z") +
                              text4("TPE3", "D") + text4("TCON", "Jazz") + text4("TYER", "1999");

class FormFillTest : public test::WindowTest {
protected:
    QString label(const char* name) { return widget<QLabel>(name).text(); }
    QComboBox& rating() { return widget<QComboBox>("combo_rating"); }
    QComboBox& genre() { return widget<QComboBox>("combo_genre"); }
    QString synopsis() { return widget<QPlainTextEdit>("entry_desc").toPlainText(); }
    QImage cover() { return widget<CoverArtView>("img_coverArt").image(); }
    void writeImage(const std::string& name, int width, int height) {
        ASSERT_TRUE(test::plain({width, height}).save(path(name), "PNG"));
    }
};

TEST_F(FormFillTest, AudioHasArtistAndAlbum) {
    openFile("a.mp3", allFrames);
    EXPECT_EQ("Artist:", label("lbl_artist"));
    EXPECT_EQ("Album:", label("lbl_album"));
    EXPECT_EQ("Y", entry("entry_artist").text());
    EXPECT_EQ("X", entry("entry_album").text());
    EXPECT_EQ("Z", entry("entry_title").text());
    EXPECT_FALSE(rating().isEnabled());
}

TEST_F(FormFillTest, VideoHasCastAndDirectorAndARating) {
    openFile("a.mp4", allFrames + test::rating4("PG-13"));
    EXPECT_EQ("Cast:", label("lbl_artist"));
    EXPECT_EQ("Director:", label("lbl_album"));
    EXPECT_EQ("Y", entry("entry_artist").text());
    EXPECT_EQ("D", entry("entry_album").text());
    EXPECT_EQ("X", entry("entry_title").text());
    EXPECT_EQ("Z", synopsis());
    EXPECT_TRUE(rating().isEnabled());
    EXPECT_EQ("PG-13", rating().currentText());
}

TEST_F(FormFillTest, FilmAfterASongCanBeRatedAgain) {
    openFile("a.mp3", allFrames);
    openFile("b.mp4", allFrames);
    EXPECT_TRUE(rating().isEnabled());
}

TEST_F(FormFillTest, RatingIsMatchedExactly) {
    openFile("a.mp4", test::rating4("pg-13"));
    EXPECT_EQ(-1, rating().currentIndex());
    EXPECT_EQ("pg-13", file().rating());
}

TEST_F(FormFillTest, OtherTypesKeepCaptionsAndRatingOfTheFileBefore) {
    openFile("a.mp4", allFrames);
    openFile("b.xyz", allFrames);
    EXPECT_EQ("Cast:", label("lbl_artist"));
    EXPECT_EQ("Director:", label("lbl_album"));
    EXPECT_EQ("", entry("entry_artist").text());
    EXPECT_EQ("", entry("entry_album").text());
    EXPECT_TRUE(rating().isEnabled());
    EXPECT_EQ("Z", entry("entry_title").text());
}

TEST_F(FormFillTest, GenreYearAndDateAreShown) {
    openFile("a.mp3", allFrames);
    EXPECT_EQ("Jazz", genre().currentText());
    EXPECT_EQ("1999", entry("entry_year").text());
    EXPECT_EQ(file().dateTime().date(), widget<QDateTimeEdit>("picker_dateTime").date());
}

TEST_F(FormFillTest, YearZeroIsAnEmptyField) {
    openFile("a.mp3", text4("TIT2", "Z"));
    EXPECT_EQ("", entry("entry_year").text());
}

TEST_F(FormFillTest, SearchTextIsTheTitle) {
    openFile("a.mp3", text4("TIT2", "Harbour"));
    EXPECT_EQ("Harbour", entry("entry_search").text());
    EXPECT_EQ(1, logged("set search field to Harbour\n"));
}

TEST_F(FormFillTest, SearchTextWithoutATitleIsTheNameWithoutFolderAndExtension) {
    openFile("A film (2005).x.mp3", text4("TALB", "X"));
    EXPECT_EQ("A film (2005).x", entry("entry_search").text());
}

TEST_F(FormFillTest, FillingMarksNoChange) {
    openFile("a.mp4", allFrames + test::rating4("R"));
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_FALSE(enabled("btn_saveTag"));
    EXPECT_FALSE(enabled("btn_revertTag"));
}

TEST_F(FormFillTest, OpeningAnotherFileLeavesItsValuesAlone) {
    openFile("a.mp4", allFrames);
    openFile("b.mp4", text4("TALB", "Other"));
    openFile("c.mp4", allFrames);
    EXPECT_EQ("X", file().title());
    EXPECT_EQ("Z", file().synopsis());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(FormFillTest, EnablesRemoveAndLoadForAnOpenFile) {
    EXPECT_FALSE(enabled("btn_removeTag"));
    EXPECT_FALSE(enabled("btn_loadCoverArt"));
    openFile();
    EXPECT_TRUE(enabled("btn_removeTag"));
    EXPECT_TRUE(enabled("btn_loadCoverArt"));
    EXPECT_FALSE(enabled("btn_trimBorder"));
}

TEST_F(FormFillTest, ClearEmptiesTheFormButNotItsCaptionsAndDate) {
    openFile("a.mp4", allFrames + test::rating4("R"));
    file().setCoverArt(ImageRef::fromQImage(QImage(8, 8, QImage::Format_RGB32)));
    controller().fillUI();
    ASSERT_FALSE(cover().isNull());
    const QDateTime date = widget<QDateTimeEdit>("picker_dateTime").dateTime();
    controller().form().markChange();
    controller().clearUI();
    for (const char* name : {"entry_title", "entry_artist", "entry_album", "entry_year"}) {
        EXPECT_EQ("", entry(name).text()) << name;
    }
    EXPECT_EQ("", genre().currentText());
    EXPECT_EQ(0, rating().currentIndex());
    EXPECT_EQ("", synopsis());
    EXPECT_TRUE(cover().isNull());
    for (const char* name : {"btn_captureFrame", "btn_trimBorder", "btn_loadCoverArt", "btn_removeTag",
                             "btn_revertTag", "btn_saveTag"}) {
        EXPECT_FALSE(enabled(name)) << name;
    }
    EXPECT_EQ("Cast:", label("lbl_artist"));
    EXPECT_TRUE(rating().isEnabled());
    EXPECT_EQ(date, widget<QDateTimeEdit>("picker_dateTime").dateTime());
    EXPECT_EQ("X", file().title()) << "the open file is not edited by it";
}

TEST_F(FormFillTest, FillingWithoutAnOpenFileDoesNothing) {
    entry("entry_title").setText("stays");
    controller().fillUI();
    EXPECT_EQ("stays", entry("entry_title").text());
}

TEST_F(FormFillTest, DeselectingEmptiesTheForm) {
    openFile("a.mp3", allFrames);
    select(-1);
    EXPECT_EQ(nullptr, document().mediaFile());
    EXPECT_EQ("", entry("entry_title").text());
    EXPECT_FALSE(enabled("btn_removeTag"));
}

TEST_F(FormFillTest, OwnCoverArtIsShownAndCanBeTrimmed) {
    writeImage("cover.png", 30, 20);
    openFile("a.mp3");
    file().setCoverArt(ImageRef::fromQImage(QImage(path("cover.png"))));
    ASSERT_TRUE(document().saveMediaFile(nullptr));
    openFile("b.mp3");
    select(0);
    EXPECT_EQ(QSize(30, 20), cover().size());
    EXPECT_TRUE(enabled("btn_trimBorder"));
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(FormFillTest, FolderImageStandsInForMissingCoverArtAndCountsAsAChange) {
    writeImage("folder.jpg", 40, 30);
    openFile("a.mp3");
    EXPECT_EQ(QSize(40, 30), cover().size());
    EXPECT_TRUE(file().coverArt());
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_TRUE(enabled("btn_saveTag"));
    EXPECT_TRUE(enabled("btn_revertTag"));
    EXPECT_TRUE(enabled("btn_trimBorder"));
}

TEST_F(FormFillTest, FolderImageCountsAsAChangeAgainAfterRevert) {
    writeImage("folder.jpg", 40, 30);
    openFile("a.mp3");
    controller().revertToSaved();
    test::settle();
    EXPECT_TRUE(document().isDocumentEdited());
    EXPECT_TRUE(enabled("btn_revertTag"));
}

TEST_F(FormFillTest, FolderImageHasThatNameExactly) {
    writeImage("Folder.jpg", 40, 30);
    openFile("a.mp3");
    EXPECT_TRUE(cover().isNull());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(FormFillTest, FolderFileThatIsNoImageIsPassedOver) {
    test::write_file(folder_ / "folder.jpg", "no image");
    openFile("a.mp3");
    EXPECT_TRUE(cover().isNull());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(FormFillTest, FileThatIsNoMovieSaysSoInTheEndAndTheFormWorks) {
    openFile("a.mp3", allFrames);
    EXPECT_EQ(1, logged("attempting to create movie from file '" + (folder_ / "a.mp3") + "'\n"));
    EXPECT_EQ("Z", entry("entry_title").text());
    EXPECT_TRUE(test::waitUntil(
        [this] { return widget<QLabel>("lbl_previewFailed").isVisibleTo(document().window()); }));
    EXPECT_FALSE(enabled("btn_captureFrame"));
    select(-1);
    EXPECT_FALSE(widget<QLabel>("lbl_previewFailed").isVisibleTo(document().window()));
}

/** Runs a function whenever a control is enabled or disabled. */
class EnabledWatch : public QObject {
public:
    EnabledWatch(QWidget& control, std::function<void()> action) : action_(std::move(action)) {
        control.installEventFilter(this);
    }
    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::EnabledChange) {
            action_();
        }
        return false;
    }

private:
    std::function<void()> action_;
};

TEST_F(FormFillTest, ButtonsComeLast) {
    openFile("a.mp3", allFrames);
    auto& failed = widget<QLabel>("lbl_previewFailed");
    ASSERT_TRUE(test::waitUntil([&] { return failed.isVisibleTo(document().window()); }));
    int attempts = 1;
    int changes = 0;
    const EnabledWatch watch(button("btn_removeTag"), [&] {
        ++changes;
        EXPECT_FALSE(failed.isVisibleTo(document().window()));
        EXPECT_EQ(attempts, logged("attempting to create movie from file '"));
    });
    controller().clearUI();
    attempts = 2;
    controller().fillUI();
    EXPECT_EQ(2, changes);
    EXPECT_TRUE(enabled("btn_removeTag"));
}

TEST_F(FormFillTest, GenresAreTheThirtyFourInTheirOrder) {
    const QStringList expected = {"Action",
                                  "Adults Only",
                                  "Animated",
                                  "Art",
                                  "Auto",
                                  "Business / Financial",
                                  "Children",
                                  "Comedy",
                                  "Consumer",
                                  "Cooking",
                                  "Crime",
                                  "Documentary",
                                  "Drama",
                                  "Educational",
                                  "Game Show",
                                  "Gay / Lesbian",
                                  "Health",
                                  "Holiday",
                                  "House / Garden",
                                  "Mystery",
                                  "Nature",
                                  "News",
                                  "Performing Arts",
                                  "Reality",
                                  "Romance",
                                  "Science Fiction",
                                  "Self Improvement",
                                  "Soap",
                                  "Spanish",
                                  "Special",
                                  "Sports",
                                  "Talk",
                                  "Travel",
                                  "Western"};
    ASSERT_EQ(34, controller().form().numberOfItemsInComboBox());
    for (int i = 0; i < 34; ++i) {
        EXPECT_EQ(expected[i], controller().form().comboBoxObjectValueForItemAtIndex(i));
        EXPECT_EQ(expected[i], genre().itemText(i));
    }
}

TEST_F(FormFillTest, RatingsAreTheSevenInTheirOrder) {
    QStringList titles;
    for (int i = 0; i < rating().count(); ++i) {
        titles += rating().itemText(i);
    }
    EXPECT_EQ((QStringList{"", "G", "PG", "PG-13", "R", "NC-17", "NR"}), titles);
}

TEST_F(FormFillTest, GenreBoxIsEmptyAtTheStart) {
    EXPECT_EQ("", genre().currentText());
}

} // namespace
} // namespace velmora
