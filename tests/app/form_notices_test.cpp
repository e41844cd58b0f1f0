// What the line above the form says of a save to come: what it would not store, and what
// it would store unasked.

#include "window_fixture.h"

#include "imaging/CoverArtView.h"
#include "support/bytes.h"
#include "support/pictures.h"
#include "weblookup/form_fill_info.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QTest>
#include <QToolButton>

namespace velmora {
namespace {

using test::settle;
using test::taggedFile;
using test::text4;

class FormNoticesTest : public test::WindowTest {
protected:
    void fillForm() {
        FormFillInfo info;
        info.title = QStringLiteral("Evening");
        info.year = QStringLiteral("1994");
        info.cast = QStringList{QStringLiteral("Ada"), QStringLiteral("Bo")};
        controller().fillFields(&info);
        settle();
    }
    CoverArtView& well() { return widget<CoverArtView>("img_coverArt"); }
    void paste() {
        QGuiApplication::clipboard()->setImage(test::plain({30, 20}));
        well().paste();
        settle();
    }
    std::string bytes() { return test::read_file(folder_ / "a.mp4"); }

    const QString notStored =
        "What was filled in from the web is not stored yet: a save writes only the fields that "
        "were typed in.";
};

TEST_F(FormNoticesTest, CoverOfTheFolderIsToldOfAsAChange) {
    ASSERT_TRUE(test::plain({30, 20}).save(path("folder.jpg")));
    openFile();
    EXPECT_EQ(
        "The cover was taken from folder.jpg, which counts as a change: a save writes it into the file.",
        notice());
    EXPECT_TRUE(document().isDocumentEdited());
    press("btn_saveTag");
    EXPECT_EQ(QString(), notice());
}

TEST_F(FormNoticesTest, CoverOfTheFolderIsNoNewsOnceItsChangeWasSettled) {
    ASSERT_TRUE(test::plain({30, 20}).save(path("folder.jpg")));
    openFile();
    press("btn_removeTag");
    EXPECT_EQ(QString(), notice());
}

TEST_F(FormNoticesTest, FilledFormIsToldNotToBeStored) {
    openFile("a.mp4", text4("TALB", "Film"));
    fillForm();
    EXPECT_EQ(notStored, notice());
    EXPECT_EQ("Store Filled Fields", button("btn_noticeFirst").text());
    EXPECT_FALSE(enabled("btn_saveTag"));
}

TEST_F(FormNoticesTest, FilledFormIsStoredByTheNoticesButton) {
    openFile("a.mp4", text4("TALB", "Film"));
    fillForm();
    press("btn_noticeFirst");
    EXPECT_EQ("The filled fields count as changes now: a save writes them.", notice());
    EXPECT_EQ("Evening", file().title());
    EXPECT_EQ(1994, file().year());
    EXPECT_EQ("Ada, Bo", file().cast());
    ASSERT_TRUE(enabled("btn_saveTag"));
    press("btn_saveTag");
    EXPECT_NE(std::string::npos, bytes().find("Evening"));
    EXPECT_NE(std::string::npos, bytes().find("Ada, Bo"));
}

TEST_F(FormNoticesTest, FilledFormIsStillToldOfAfterASaveOfOtherChanges) {
    openFile("a.mp4", text4("TALB", "Film"));
    fillForm();
    type("entry_album", "Cy");
    press("btn_saveTag");
    EXPECT_EQ(notStored, notice());
    EXPECT_EQ(std::string::npos, bytes().find("Evening"));
}

TEST_F(FormNoticesTest, FilledFormIsNoNewsOnceEachFieldWasTypedIn) {
    openFile("a.mp4", text4("TALB", "Film"));
    FormFillInfo info;
    info.title = QStringLiteral("Evening");
    controller().fillFields(&info);
    EXPECT_EQ(notStored, notice());
    QTest::keyClicks(&entry("entry_title"), "!");
    EXPECT_EQ(QString(), notice());
    EXPECT_EQ("Evening!", file().title());
}

TEST_F(FormNoticesTest, FilledFormIsNotToldOfWithPortableTagsOrWithoutAFile) {
    fillForm();
    EXPECT_EQ(QString(), notice());
    openFile("a.mp4", text4("TALB", "Film"));
    document().setPortableTags(true);
    settle();
    fillForm();
    EXPECT_NE(notStored, notice());
    EXPECT_EQ("Evening", file().title());
}

TEST_F(FormNoticesTest, FilledFormGoesWithItsFile) {
    openFile("b.mp3");
    openFile("a.mp4", text4("TALB", "Film"));
    fillForm();
    select(0);
    EXPECT_EQ(QString(), notice());
}

TEST_F(FormNoticesTest, PastedCoverIsToldToBeShownOnlyAndStoredByTheButton) {
    openFile();
    paste();
    EXPECT_EQ("The pasted cover is shown only: a save does not write it.", notice());
    EXPECT_EQ("Store Cover", button("btn_noticeFirst").text());
    EXPECT_FALSE(file().coverArt());
    press("btn_noticeFirst");
    EXPECT_EQ(QString(), notice());
    EXPECT_EQ(QSize(30, 20), file().coverArt().size());
    EXPECT_TRUE(enabled("btn_saveTag"));
}

TEST_F(FormNoticesTest, CutCoverIsToldToStayInTheFile) {
    openFile();
    ASSERT_TRUE(test::plain({30, 20}).save(path("cover.png"), "PNG"));
    controller().loadCoverArtSelected(1, {path("cover.png")});
    settle();
    EXPECT_EQ(QString(), notice()) << "a cover that was loaded is stored";
    well().cut();
    settle();
    EXPECT_EQ("The cover is cut from the form only, and stays in the file.", notice());
}

TEST_F(FormNoticesTest, SeveralAreShownOneAfterTheOther) {
    openFile("a.mp4", text4("TALB", "Film"));
    fillForm();
    paste();
    EXPECT_EQ("The pasted cover is shown only: a save does not write it.", notice());
    press("btn_noticeClose");
    EXPECT_EQ(notStored, notice());
    press("btn_noticeClose");
    EXPECT_EQ(QString(), notice());
}

class YearMarkTest : public FormNoticesTest {
protected:
    /** The mark in the field of the year; null for none. */
    QToolButton* mark() { return entry("entry_year").findChild<QToolButton*>(); }
};

TEST_F(YearMarkTest, IsInAFieldWhoseTextIsNoNumber) {
    openFile();
    EXPECT_EQ(nullptr, mark());
    type("entry_year", "19x4");
    ASSERT_NE(nullptr, mark());
    EXPECT_TRUE(mark()->isVisible());
    EXPECT_EQ("This is no number, and is stored as no year", mark()->toolTip());
    EXPECT_EQ(mark()->toolTip(), entry("entry_year").accessibleDescription());
    EXPECT_EQ("19x4", entry("entry_year").text()) << "what was typed stays";
    EXPECT_EQ(0, file().year());
}

TEST_F(YearMarkTest, GoesWithTheReasonForIt) {
    openFile();
    for (const char* year : {"1994", "", "-44"}) {
        type("entry_year", "abc");
        ASSERT_NE(nullptr, mark());
        type("entry_year", year);
        EXPECT_EQ(nullptr, mark()) << year;
        EXPECT_EQ("", entry("entry_year").accessibleDescription());
    }
}

TEST_F(YearMarkTest, IsThereForAYearThatWasFilledIn) {
    openFile("a.mp4", text4("TALB", "Film"));
    FormFillInfo info;
    info.year = QStringLiteral("1994-1996");
    controller().fillFields(&info);
    EXPECT_NE(nullptr, mark());
    select(-1);
    EXPECT_EQ(nullptr, mark());
}

} // namespace
} // namespace velmora
