#include "window_fixture.h"

#include "imaging/CoverArtView.h"
#include "support/pictures.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QInputMethodEvent>
#include <QTest>
#include <QWheelEvent>

namespace velmora {
namespace {

using test::text4;

class FormEditsTest : public test::WindowTest {
protected:
    void openAudio() {
        openFile("a.mp3", text4("TIT2", "Z") + text4("TYER", "1999") + text4("TCON", "Jazz"));
    }
    void openVideo() { openFile("a.mp4", text4("TALB", "Film") + text4("TIT2", "plot")); }
    void expectMarked(bool marked) {
        EXPECT_EQ(marked, document().isDocumentEdited());
        EXPECT_EQ(marked, enabled("btn_saveTag"));
        EXPECT_EQ(marked, enabled("btn_revertTag"));
    }
    QComboBox& genre() { return widget<QComboBox>("combo_genre"); }
    QComboBox& rating() { return widget<QComboBox>("combo_rating"); }
    QPlainTextEdit& synopsis() { return widget<QPlainTextEdit>("entry_desc"); }
};

TEST_F(FormEditsTest, TypingReachesTheModelAtOnceAndMarksTheChange) {
    openAudio();
    QTest::keyClicks(&entry("entry_title"), "!");
    EXPECT_EQ("Z!", file().title());
    expectMarked(true);
}

TEST_F(FormEditsTest, TypingTheStoredTitleMarksNothing) {
    openAudio();
    controller().form().controlTextDidChange(&entry("entry_title"));
    expectMarked(false);
}

TEST_F(FormEditsTest, EveryKeystrokeIsLoggedAlsoWithoutAFile) {
    QTest::keyClicks(&entry("entry_title"), "ab");
    EXPECT_EQ(2, logged("in controlTextDidEndEditing:\n"));
    expectMarked(false);
}

TEST_F(FormEditsTest, SecondFieldsOfAudioAreArtistAndAlbum) {
    openAudio();
    type("entry_artist", "Who");
    type("entry_album", "What");
    EXPECT_EQ("Who", file().artist());
    EXPECT_EQ("What", file().album());
    EXPECT_EQ("", file().cast());
    EXPECT_EQ("", file().director());
}

TEST_F(FormEditsTest, SecondFieldsOfVideoAreCastAndDirector) {
    openVideo();
    type("entry_artist", "Who");
    type("entry_album", "What");
    EXPECT_EQ("Who", file().cast());
    EXPECT_EQ("What", file().director());
    EXPECT_EQ("", file().artist());
    EXPECT_EQ("", file().album());
}

TEST_F(FormEditsTest, YearIsStoredAsANumber) {
    openAudio();
    type("entry_year", "2004");
    EXPECT_EQ(2004, file().year());
    expectMarked(true);
}

TEST_F(FormEditsTest, ClearedYearIsZero) {
    openAudio();
    type("entry_year", "");
    EXPECT_EQ(0, file().year());
    expectMarked(true);
}

TEST_F(FormEditsTest, YearThatIsNoNumberIsZero) {
    openAudio();
    for (const char* text : {"abc", "19a", "99999999999", "1.5"}) {
        file().setYear(1999);
        type("entry_year", text);
        EXPECT_EQ(0, file().year()) << text;
    }
}

TEST_F(FormEditsTest, BlanksAroundTheYearDoNotMatter) {
    openAudio();
    type("entry_year", " 2004 ");
    EXPECT_EQ(2004, file().year());
}

TEST_F(FormEditsTest, YearsAreComparedAsNumbers) {
    openAudio();
    entry("entry_year").setText("01999");
    controller().form().controlTextDidChange(&entry("entry_year"));
    expectMarked(false);
}

TEST_F(FormEditsTest, TypedGenreIsTakenAsItIs) {
    openAudio();
    genre().lineEdit()->selectAll();
    QTest::keyClicks(genre().lineEdit(), "drama");
    EXPECT_EQ("drama", file().genre());
    QTest::keyClick(genre().lineEdit(), Qt::Key_Return);
    EXPECT_EQ("drama", file().genre());
    EXPECT_EQ("drama", genre().currentText());
    EXPECT_EQ(34, genre().count());
}

TEST_F(FormEditsTest, TypedGenreIsNotCompleted) {
    openAudio();
    QApplication::setActiveWindow(document().window());
    genre().setFocus();
    genre().lineEdit()->selectAll();
    QTest::keyClicks(genre().lineEdit(), "dr");
    EXPECT_EQ("dr", genre().currentText());
    EXPECT_EQ("dr", file().genre());
}

TEST_F(FormEditsTest, PickedGenreIsAnEdit) {
    openAudio();
    QTest::keyClick(&genre(), Qt::Key_Down);
    EXPECT_EQ("Action", file().genre());
    expectMarked(true);
}

TEST_F(FormEditsTest, ArrowKeysStartAtTheGenreThatIsShown) {
    openAudio();
    for (int presses = 0; presses < 3; ++presses) {
        QTest::keyClick(&genre(), Qt::Key_Down);
    }
    ASSERT_EQ("Animated", genre().currentText());
    controller().removeTag();
    openFile("b.mp3", text4("TCON", "Crime"));
    EXPECT_EQ("Crime", genre().currentText());
    expectMarked(false);
    QTest::keyClick(&genre(), Qt::Key_Down);
    EXPECT_EQ("Documentary", file().genre());
}

TEST_F(FormEditsTest, ArrowKeysStartAtTheTopForAGenreThatIsNotInTheList) {
    openAudio();
    QTest::keyClick(&genre(), Qt::Key_Down);
    QTest::keyClick(&genre(), Qt::Key_Down);
    controller().removeTag();
    openFile("b.mp3", text4("TCON", "Jazz"));
    EXPECT_EQ("Jazz", genre().currentText());
    QTest::keyClick(&genre(), Qt::Key_Down);
    EXPECT_EQ("Action", file().genre());
    controller().removeTag();
    select(-1);
    EXPECT_EQ("", genre().currentText());
    EXPECT_EQ(-1, genre().currentIndex());
}

TEST_F(FormEditsTest, LongTextsAreNotCutByAnEdit) {
    openAudio();
    const QString longText(40'000, QLatin1Char('1'));
    file().setTitle(longText);
    file().setArtist(longText);
    file().setAlbum(longText);
    file().setGenre(longText);
    controller().fillUI();
    for (QLineEdit* field : {&entry("entry_title"), &entry("entry_artist"), &entry("entry_album"),
                             &entry("entry_year"), genre().lineEdit()}) {
        field->setText(longText);
        QTest::keyClick(field, Qt::Key_End);
        QTest::keyClicks(field, "!");
        EXPECT_EQ(40'001, field->text().size()) << field->objectName().toStdString();
    }
    for (const QString& stored : {file().title(), file().artist(), file().album(), file().genre()}) {
        EXPECT_EQ(longText + "!", stored);
    }
}

TEST_F(FormEditsTest, PassingThroughTheGenreBoxIsNoEdit) {
    openFile("a.mp3", text4("TCON", "Drama"));
    const int before = logged("in controlTextDidEndEditing:\n");
    genre().setFocus();
    QTest::keyClick(genre().lineEdit(), Qt::Key_Return);
    QTest::keyClick(genre().lineEdit(), Qt::Key_Tab);
    EXPECT_EQ(before, logged("in controlTextDidEndEditing:\n"));
    expectMarked(false);
}

TEST_F(FormEditsTest, UnknownControlWarnsAndChangesNothing) {
    openAudio();
    controller().form().controlTextDidChange(&entry("entry_search"));
    EXPECT_EQ(1, logged("WARNING: unhandled control in controlTextDidEndEditing:\n"));
    expectMarked(false);
}

TEST_F(FormEditsTest, SearchTextIsNoEdit) {
    openAudio();
    QTest::keyClicks(&entry("entry_search"), "x");
    expectMarked(false);
}

TEST_F(FormEditsTest, SynopsisReachesTheModel) {
    openVideo();
    QTest::keyClicks(&synopsis(), "My ");
    EXPECT_EQ("My plot", file().synopsis());
    EXPECT_EQ(3, logged("description changed\n"));
    expectMarked(true);
}

TEST_F(FormEditsTest, SynopsisLikeTheStoredOneMarksNothing) {
    openVideo();
    controller().form().textDidChange(&synopsis());
    EXPECT_EQ(1, logged("description changed\n"));
    expectMarked(false);
}

TEST_F(FormEditsTest, NoBreakSpacesOfTheSynopsisSurviveAKeystroke) {
    openFile("a.mp4", text4("TIT2", "10\xA0km\xA0"));
    QTest::keyClicks(&synopsis(), "x");
    EXPECT_EQ(QStringLiteral("x10\u00A0km\u00A0"), file().synopsis());
}

TEST_F(FormEditsTest, LineBreaksOfAnEditedSynopsisAreLineFeeds) {
    openVideo();
    file().setSynopsis(QStringLiteral("1\r\n2\r3\u20284\u20295\n6"));
    controller().fillUI();
    QTest::keyClicks(&synopsis(), "x");
    EXPECT_EQ("x1\n2\n3\n4\n5\n6", file().synopsis());
    expectMarked(true);
}

TEST_F(FormEditsTest, CancelledCompositionInTheSynopsisMarksNothing) {
    openVideo();
    for (const char* lineBreak : {"\r\n", "\r", "\n", "\u2028", "\u2029"}) {
        const QString stored =
            QStringLiteral("one") + QString::fromUtf8(lineBreak) + QStringLiteral("two\u00A0");
        file().setSynopsis(stored);
        controller().fillUI();
        for (const char* composition : {"ka", ""}) {
            QInputMethodEvent event(QString::fromUtf8(composition), {});
            QCoreApplication::sendEvent(&synopsis(), &event);
        }
        EXPECT_EQ(stored, file().synopsis());
        expectMarked(false);
    }
    EXPECT_LT(0, logged("description changed\n")) << "the view does report compositions";
}

TEST_F(FormEditsTest, AnotherTextViewMarksAChangeButStoresNothing) {
    openVideo();
    QPlainTextEdit other;
    controller().form().textDidChange(&other);
    EXPECT_EQ("plot", file().synopsis());
    EXPECT_EQ(0, logged("description changed\n"));
    expectMarked(true);
}

TEST_F(FormEditsTest, SynopsisWithoutAFileDoesNothing) {
    QTest::keyClicks(&synopsis(), "x");
    EXPECT_EQ(0, logged("description changed\n"));
    expectMarked(false);
}

TEST_F(FormEditsTest, ChosenRatingReachesTheModel) {
    openVideo();
    rating().setFocus();
    QTest::keyClick(&rating(), Qt::Key_Down);
    EXPECT_EQ("G", file().rating());
    expectMarked(true);
}

TEST_F(FormEditsTest, ChoosingTheSameRatingAgainStillMarksAChange) {
    openVideo();
    emit rating().activated(rating().currentIndex());
    EXPECT_EQ("", file().rating());
    expectMarked(true);
}

TEST_F(FormEditsTest, EmptyRatingIsStoredAsEmpty) {
    openVideo();
    file().setRating("R");
    emit rating().activated(0);
    EXPECT_EQ("", file().rating());
}

TEST_F(FormEditsTest, RatingWithoutAFileDoesNothing) {
    emit rating().activated(1);
    expectMarked(false);
}

TEST_F(FormEditsTest, DateInThePickerNeverReachesTheModel) {
    openVideo();
    const QDateTime date = file().dateTime();
    auto& picker = widget<QDateTimeEdit>("picker_dateTime");
    QTest::keyClick(&picker, Qt::Key_Up);
    picker.setDateTime(QDateTime(QDate(2000, 1, 1), QTime()));
    EXPECT_EQ(date, file().dateTime());
    expectMarked(false);
}

TEST_F(FormEditsTest, NewCoverArtReachesTheModel) {
    openAudio();
    auto& well = widget<CoverArtView>("img_coverArt");
    well.setImage(test::plain({10, 8}, Qt::red));
    expectMarked(false);
    controller().form().coverArtImageChanged(well.image());
    EXPECT_EQ(QSize(10, 8), file().coverArt().toQImage().size());
    expectMarked(true);
}

TEST_F(FormEditsTest, EmptyCoverArtViewChangesNothing) {
    openAudio();
    controller().form().coverArtImageChanged(widget<CoverArtView>("img_coverArt").image());
    EXPECT_FALSE(file().coverArt());
    expectMarked(false);
}

TEST_F(FormEditsTest, NewCoverArtDoesNotByItselfAllowTrimming) {
    openAudio();
    auto& well = widget<CoverArtView>("img_coverArt");
    well.setImage(QImage(10, 8, QImage::Format_RGB32));
    controller().form().coverArtImageChanged(well.image());
    EXPECT_FALSE(enabled("btn_trimBorder"));
}

TEST_F(FormEditsTest, WheelOverABoxWithoutFocusChangesNothing) {
    openVideo();
    entry("entry_title").setFocus();
    for (QComboBox* box : {&genre(), &rating()}) {
        const QString before = box->currentText();
        QWheelEvent wheel(QPointF(5, 5), box->mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QSpontaneKeyEvent::setSpontaneous(&wheel); // as from a real wheel, which may give a control the focus
        qApp->notify(box, &wheel);
        EXPECT_EQ(before, box->currentText());
        EXPECT_FALSE(wheel.isAccepted()) << "it is left to what lies behind the box";
    }
    expectMarked(false);
}

TEST_F(FormEditsTest, AltAndTheLetterOfAButtonOutOfUseTypeNothing) {
    openAudio();
    QApplication::setActiveWindow(document().window());
    for (const char* name : {"entry_title", "entry_artist", "entry_album", "entry_year", "entry_search"}) {
        QLineEdit& field = entry(name);
        field.setFocus();
        const QString before = field.text();
        for (const Qt::Key key : {Qt::Key_S, Qt::Key_B, Qt::Key_K, Qt::Key_M, Qt::Key_P, Qt::Key_R}) {
            ASSERT_EQ(&field, QApplication::focusWidget()) << name;
            QTest::keyClick(&field, key, Qt::AltModifier);
            QTest::keyClick(&field, key, Qt::AltModifier | Qt::ShiftModifier);
        }
        EXPECT_EQ(before, field.text()) << name;
    }
    synopsis().setFocus();
    QTest::keyClick(&synopsis(), Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ("", synopsis().toPlainText());
    genre().setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ("Jazz", genre().currentText());
    expectMarked(false);
}

TEST_F(FormEditsTest, AltAndSASecondTimeTypesNothingBehindTheSave) {
    openAudio();
    QApplication::setActiveWindow(document().window());
    QLineEdit& title = entry("entry_title");
    title.setFocus();
    QTest::keyClicks(&title, "ound");
    QTest::keyClick(&title, Qt::Key_S, Qt::AltModifier);
    ASSERT_TRUE(test::waitUntil([this] { return !enabled("btn_saveTag"); }));
    QTest::keyClick(&title, Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ("Zound", title.text());
    EXPECT_EQ(1, logged("saving tag to file"));
    expectMarked(false);
}

TEST_F(FormEditsTest, AltAndTheLetterOfAButtonOutOfUseChooseNothing) {
    openVideo();
    QApplication::setActiveWindow(document().window());
    rating().setFocus();
    const int before = rating().currentIndex();
    QTest::keyClick(&rating(), Qt::Key_R, Qt::AltModifier); // "R" is a rating, too
    QTest::keyClick(&rating(), Qt::Key_P, Qt::AltModifier);
    EXPECT_EQ(before, rating().currentIndex());
    auto& date = widget<QDateTimeEdit>("picker_dateTime");
    date.setFocus();
    const QDateTime shown = date.dateTime();
    date.setCurrentSection(QDateTimeEdit::AmPmSection);
    QTest::keyClick(&date, Qt::Key_P, Qt::AltModifier);
    QTest::keyClick(&date, Qt::Key_M, Qt::AltModifier);
    EXPECT_EQ(shown, date.dateTime());
    expectMarked(false);
}

TEST_F(FormEditsTest, LettersOfTheThirdLevelAreTyped) {
    openAudio();
    QLineEdit& title = entry("entry_title");
    // As the key to the right of the space bar gives them, which some systems report as two modifiers.
    for (const Qt::KeyboardModifiers modifiers :
         {Qt::KeyboardModifiers(Qt::GroupSwitchModifier), Qt::ControlModifier | Qt::AltModifier}) {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_At, modifiers, QStringLiteral("@"));
        QCoreApplication::sendEvent(&title, &press);
    }
    EXPECT_EQ("Z@@", title.text());
}

} // namespace
} // namespace velmora
