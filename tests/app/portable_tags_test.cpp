// The window with the tags that other programs read: the menu's switch, the line above the form, saving.

#include "window_fixture.h"

#include "browser/notice_bar.h"
#include "browser/portable_save_run.h"
#include "imaging/CoverArtView.h"
#include "portable/portable_tags.h"
#include "support/bytes.h"
#include "support/pictures.h"
#include "weblookup/form_fill_info.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QElapsedTimer>
#include <QFile>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTest>

#include <semaphore>
#include <unistd.h>

namespace velmora {
namespace {

using test::hex;
using test::QuestionAnswerer;
using test::settle;
using test::taggedFile;
using test::text4;
using test::waitUntil;

/** Two silent frames of MPEG audio, layer 3. */
std::string mpegFrames() {
    const std::string frame = hex("FF FB 90 C4") + std::string(413, '\0');
    return frame + frame;
}

/** A song with its tag in front, which can't be saved in place: the title "Z". */
std::string songTaggedInFront() {
    return "ID3" + hex("03 00 00 00 00 00 0C") + "TIT2" + hex("00 00 00 02 00 00 00 5A") + mpegFrames();
}

/** The same with the title "Hé" in UTF-16, which is not read in place. */
std::string songWithUtf16Title() {
    return "ID3" + hex("03 00 00 00 00 00 11") + "TIT2" + hex("00 00 00 07 00 00 01 FF FE 48 00 E9 00") +
           mpegFrames();
}

class PortableTagsTest : public test::WindowTest {
protected:
    PortableTagsTest() { qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder_ / "config")); }
    ~PortableTagsTest() override { qunsetenv("XDG_CONFIG_HOME"); }

    void open(const std::string& name, const std::string& bytes) {
        addFile(name, bytes);
        select(controller().table().model().numberOfRowsInTableView() - 1);
        ASSERT_NE(nullptr, document().mediaFile());
    }
    QAction& action() { return *document().window()->findChild<QAction*>("action_portableTags"); }
    /** A save in place of a song that can't be saved so. */
    void failToSave() {
        open("song.mp3", songTaggedInFront());
        type("entry_title", "Evening");
        press("btn_saveTag");
        ASSERT_TRUE(bar().holdsNotice());
    }
    std::optional<std::string> title(const std::string& name) {
        return portable::read_tags(folder_ / name).values.text(portable::Field::title);
    }
    bool hasSettings() { return QFile::exists(path("config/velmora/settings.ini")); }
};

TEST_F(PortableTagsTest, AreOffAtFirstAndNothingIsToldOfThem) {
    EXPECT_TRUE(action().isCheckable());
    EXPECT_FALSE(action().isChecked());
    EXPECT_FALSE(document().portableTags());
    EXPECT_FALSE(bar().isVisible());
    EXPECT_FALSE(hasSettings());
}

TEST_F(PortableTagsTest, AreShownOnceTheyAreSwitchedOn) {
    open("song.mp3", songWithUtf16Title());
    EXPECT_EQ("", entry("entry_title").text());

    action().trigger();
    settle();

    EXPECT_EQ(QString::fromUtf8("H\xc3\xa9"), entry("entry_title").text());
    EXPECT_FALSE(enabled("btn_saveTag"));
    EXPECT_FALSE(document().isDocumentEdited());

    action().trigger();
    settle();
    EXPECT_EQ("", entry("entry_title").text());
    EXPECT_FALSE(hasSettings());
}

TEST_F(PortableTagsTest, AreSavedAndSettledByTheButton) {
    action().trigger();
    open("song.mp3", songTaggedInFront());
    type("entry_title", "Evening");
    press("btn_saveTag");

    EXPECT_EQ("Evening", title("song.mp3"));
    EXPECT_FALSE(enabled("btn_saveTag"));
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_EQ("Saved. Other programs see it: song.mp3", notice());
}

TEST_F(PortableTagsTest, AreSavedAndSettledByTheMenu) {
    action().trigger();
    open("song.mp3", songTaggedInFront());
    type("entry_title", "Evening");
    document().window()->findChild<QAction*>("action_save")->trigger();
    settle();

    EXPECT_EQ("Evening", title("song.mp3"));
    EXPECT_FALSE(enabled("btn_saveTag"));
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(PortableTagsTest, LoseAFieldThatIsEmptied) {
    action().trigger();
    open("song.mp3", songTaggedInFront());
    type("entry_title", "");
    press("btn_saveTag");

    EXPECT_EQ(std::nullopt, title("song.mp3"));
}

TEST_F(PortableTagsTest, TakeASongsSynopsisForItsComment) {
    action().trigger();
    open("song.mp3", songTaggedInFront());
    QTest::keyClicks(&widget<QWidget>("entry_desc"), "Recorded at sea");
    press("btn_saveTag");
    action().trigger();
    action().trigger();
    settle();

    EXPECT_EQ("Recorded at sea", widget<QPlainTextEdit>("entry_desc").toPlainText());
}

TEST_F(PortableTagsTest, TakeEverythingThatALookUpFilled) {
    action().trigger();
    open("song.mp3", songTaggedInFront());
    FormFillInfo info;
    info.title = QStringLiteral("Evening");
    info.year = QStringLiteral("1994");
    info.genres = QStringList{QStringLiteral("Folk"), QStringLiteral("Sea")};
    info.cast = QStringList{QStringLiteral("Ada"), QStringLiteral("Bo")};
    controller().fillFields(&info);
    EXPECT_TRUE(enabled("btn_saveTag"));
    press("btn_saveTag");

    const portable::TagValues values = portable::read_tags(folder_ / "song.mp3").values;
    EXPECT_EQ("Evening", values.text(portable::Field::title));
    EXPECT_EQ("Folk, Sea", values.text(portable::Field::genre));
    EXPECT_EQ("Ada, Bo", values.text(portable::Field::artist));
    EXPECT_EQ(1994, values.year);
}

TEST_F(PortableTagsTest, TakeALoadedCoverAsItIsAndLoseItWhenItIsCut) {
    ASSERT_TRUE(test::plain({30, 20}, Qt::red).save(path("cover.png")));
    action().trigger();
    open("song.mp3", songTaggedInFront());
    controller().loadCoverArtSelected(1, {path("cover.png")});
    press("btn_saveTag");

    const auto cover = portable::read_tags(folder_ / "song.mp3").values.cover;
    ASSERT_TRUE(cover);
    EXPECT_EQ(test::read_file(folder_ / "cover.png"), std::string(cover->bytes.begin(), cover->bytes.end()));

    widget<CoverArtView>("img_coverArt").cut();
    EXPECT_TRUE(enabled("btn_saveTag"));
    press("btn_saveTag");
    EXPECT_EQ(std::nullopt, portable::read_tags(folder_ / "song.mp3").values.cover);
}

TEST_F(PortableTagsTest, TakeAPastedCover) {
    QGuiApplication::clipboard()->setImage(test::plain({30, 20}, Qt::red));
    open("song.mp3", songTaggedInFront());
    widget<CoverArtView>("img_coverArt").paste();
    EXPECT_FALSE(enabled("btn_saveTag")) << "in place it is shown and not stored";
    action().trigger();
    settle();
    EXPECT_TRUE(widget<CoverArtView>("img_coverArt").image().isNull());
    widget<CoverArtView>("img_coverArt").paste();
    press("btn_saveTag");

    EXPECT_EQ("image/jpeg", portable::read_tags(folder_ / "song.mp3").values.cover.value().mime);
}

TEST_F(PortableTagsTest, KeepTheCoverOfEachFileThatIsOpened) {
    ASSERT_TRUE(test::plain({30, 20}, Qt::red).save(path("cover.png")));
    action().trigger();
    open("a.mp3", songTaggedInFront());
    controller().loadCoverArtSelected(1, {path("cover.png")});
    press("btn_saveTag");
    open("b.mp3", songTaggedInFront());
    select(0);

    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_TRUE(file().coverArt());
}

TEST_F(PortableTagsTest, DoNotTakeTheFoldersImage) {
    ASSERT_TRUE(test::plain({3, 2}, Qt::red).save(path("folder.jpg")));
    action().trigger();
    open("song.mp3", songTaggedInFront());

    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_FALSE(file().coverArt());
}

TEST_F(PortableTagsTest, AreNotSwitchedWhileTheUserWantsToKeepTheChanges) {
    open("song.mp3", songWithUtf16Title());
    type("entry_title", "Evening");
    const QuestionAnswerer answer(*document().window(), "Cancel");
    action().trigger();
    settle();

    EXPECT_EQ(1, answer.questions());
    EXPECT_FALSE(action().isChecked());
    EXPECT_FALSE(document().portableTags());
    EXPECT_EQ("Evening", entry("entry_title").text());
    EXPECT_TRUE(document().isDocumentEdited());
}

TEST_F(PortableTagsTest, AreNotSwitchedByAQuestionThatGoesAway) {
    open("song.mp3", songWithUtf16Title());
    type("entry_title", "Evening");
    const QuestionAnswerer answer(*document().window(), "");
    action().trigger();
    settle();

    EXPECT_FALSE(document().portableTags());
    EXPECT_EQ("Evening", file().title());
}

TEST_F(PortableTagsTest, AreSwitchedOnceTheChangesAreDropped) {
    open("song.mp3", songWithUtf16Title());
    type("entry_title", "Evening");
    const QuestionAnswerer answer(*document().window(), "Don't Save");
    action().trigger();
    settle();

    EXPECT_TRUE(action().isChecked());
    EXPECT_EQ(QString::fromUtf8("H\xc3\xa9"), entry("entry_title").text());
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(PortableTagsTest, KeepTheFileOpenWhenASaveBeforeTheNextFileFails) {
    action().trigger();
    addFile("other.mp3", songTaggedInFront());
    open("song.mp3", songTaggedInFront());
    ASSERT_EQ(0, ::link((folder_ / "song.mp3").c_str(), (folder_ / "linked.mp3").c_str()));
    type("entry_title", "Evening");
    const QuestionAnswerer answer(*document().window(), "Save");
    select(0);
    EXPECT_TRUE(waitUntil([&] { return answer.questions() > 0 && bar().holdsNotice(); }));
    settle();

    EXPECT_EQ(path("song.mp3"), file().filename());
    EXPECT_EQ("Evening", entry("entry_title").text());
    EXPECT_TRUE(document().isDocumentEdited());
}

TEST_F(PortableTagsTest, ReplaceAFileWithFurtherLinksOnceTheUserSaysSo) {
    action().trigger();
    open("song.mp3", songTaggedInFront());
    ASSERT_EQ(0, ::link((folder_ / "song.mp3").c_str(), (folder_ / "linked.mp3").c_str()));
    type("entry_title", "Evening");
    press("btn_saveTag");
    EXPECT_EQ(
        "\"song.mp3\" was not saved. The file has further hard links, which would keep the old contents.",
        notice());
    EXPECT_TRUE(enabled("btn_saveTag"));
    EXPECT_EQ("Replace Anyway", button("btn_noticeFirst").text());
    press("btn_noticeFirst");

    EXPECT_EQ("Evening", title("song.mp3"));
    EXPECT_EQ("Z", title("linked.mp3"));
    EXPECT_FALSE(enabled("btn_saveTag"));
}

TEST_F(PortableTagsTest, ThatCannotBeReadAreToldOf) {
    action().trigger();
    open("broken.wma", "no ASF header");

    EXPECT_TRUE(notice().startsWith("The portable tags of \"broken.wma\" can't be read. The file is damaged"))
        << notice().toStdString();
}

TEST_F(PortableTagsTest, AreOfferedWhenASaveInPlaceFails) {
    failToSave();

    EXPECT_EQ("\"song.mp3\" was not saved. Its tag can't be changed in place.", notice());
    EXPECT_EQ("Save With Portable Tags", button("btn_noticeFirst").text());
    EXPECT_EQ("Always", button("btn_noticeSecond").text());
    EXPECT_TRUE(enabled("btn_saveTag"));
    EXPECT_TRUE(document().isDocumentEdited());
}

TEST_F(PortableTagsTest, AreOfferedWithoutAllOfALongName) {
    open(std::string(200, 'x') + ".mp3", songTaggedInFront());
    type("entry_title", "Evening");
    press("btn_saveTag");

    EXPECT_EQ("\"" + QString(24, 'x') + QChar(0x2026) + QString(11, 'x') +
                  ".mp3\" was not saved. Its tag can't be changed in place.",
              notice());
}

TEST_F(PortableTagsTest, AreSavedOnceWhereASaveInPlaceFailed) {
    failToSave();
    press("btn_noticeFirst");

    EXPECT_EQ("Evening", title("song.mp3"));
    EXPECT_FALSE(document().isDocumentEdited());
    EXPECT_FALSE(enabled("btn_saveTag"));
    EXPECT_FALSE(document().portableTags()) << "one save is not a switch";
    EXPECT_FALSE(hasSettings());
    EXPECT_EQ("Saved. Other programs see it: song.mp3", notice());
}

TEST_F(PortableTagsTest, AreRememberedWhenTheUserWantsThemAlways) {
    failToSave();
    press("btn_noticeSecond");

    EXPECT_EQ("Evening", title("song.mp3"));
    EXPECT_TRUE(action().isChecked());
    EXPECT_TRUE(hasSettings());
    EXPECT_EQ("Saved. Other programs see it: song.mp3", notice());

    MyDocument next(termination_);
    next.makeWindow();
    EXPECT_TRUE(next.portableTags());
    EXPECT_TRUE(next.window()->findChild<QAction*>("action_portableTags")->isChecked());
}

TEST_F(PortableTagsTest, SayWhenTheyCannotBeRemembered) {
    test::write_file(folder_ / "config", "no folder");
    failToSave();
    press("btn_noticeSecond");
    EXPECT_EQ("Evening", title("song.mp3"));
    EXPECT_TRUE(action().isChecked());
    EXPECT_EQ("Saved. Other programs see it: song.mp3. The next start will not know of it: the settings file "
              "can't be written.",
              notice());
}

TEST_F(PortableTagsTest, OfAFileThatHasVanishedCannotBeShownAndThatIsSaid) {
    openFile("gone.mp3");
    ASSERT_TRUE(QFile::remove(path("gone.mp3")));
    const QuestionAnswerer answer(*document().window(), "OK");
    action().trigger();
    ASSERT_TRUE(test::waitUntil([&] { return answer.questions() > 0; }));
    EXPECT_EQ("Unable to open file \"gone.mp3\".", answer.messageText());
    EXPECT_EQ("The file does not exist.", answer.informativeText());
    EXPECT_TRUE(document().portableTags());
}

TEST_F(PortableTagsTest, AreForgottenWhenTheUserSwitchesThemOff) {
    failToSave();
    press("btn_noticeSecond");
    action().trigger();
    settle();

    EXPECT_FALSE(hasSettings());
    EXPECT_FALSE(QFile::exists(path("config/velmora")));
}

TEST_F(PortableTagsTest, AreOfferedWhenASaveInPlaceIsNotReadBack) {
    open("song.mp3", taggedFile(text4("TIT2", "Harbour")));
    type("entry_title", "Harb");
    press("btn_saveTag");

    EXPECT_EQ("\"song.mp3\" was saved, but not all of it can be read back.", notice());
    EXPECT_EQ("Save With Portable Tags", button("btn_noticeFirst").text());
    EXPECT_FALSE(enabled("btn_saveTag"));
}

TEST_F(PortableTagsTest, AreNotMentionedWhenASaveInPlaceIsReadBack) {
    open("song.mp3", taggedFile(text4("TIT2", "Harbour")));
    type("entry_title", "A harbour in the evening");
    press("btn_saveTag");

    EXPECT_EQ(QString(), notice());
}

TEST_F(PortableTagsTest, AreMentionedWhenTheySayMore) {
    open("song.mp3", songWithUtf16Title());
    EXPECT_TRUE(waitUntil([this] { return bar().holdsNotice(); }));
    EXPECT_EQ("Other programs see more in this file", notice());
    EXPECT_EQ("Show It", button("btn_noticeFirst").text());
    press("btn_noticeFirst");

    EXPECT_EQ(QString::fromUtf8("H\xc3\xa9"), entry("entry_title").text());
    EXPECT_TRUE(action().isChecked());
    EXPECT_FALSE(hasSettings());
    EXPECT_EQ(QString(), notice());
}

TEST_F(PortableTagsTest, AreNotMentionedWhenTheyDoNotSayMore) {
    open("song.mp3", songTaggedInFront());
    EXPECT_FALSE(QTest::qWaitFor([this] { return bar().holdsNotice(); }, 300));
}

TEST_F(PortableTagsTest, LeaveTheLogAlone) {
    open("song.mp3", songWithUtf16Title());
    EXPECT_TRUE(waitUntil([this] { return bar().holdsNotice(); }));
    const std::string before = log();
    action().trigger();
    settle();
    type("entry_title", "Evening");
    press("btn_saveTag");

    EXPECT_EQ(std::string::npos, log().substr(before.size()).find("saving tag"));
    EXPECT_EQ(std::string::npos, log().substr(before.size()).find("id3"));
}

TEST_F(PortableTagsTest, NoticeGoesWithItsFile) {
    addFile("other.mp3", songTaggedInFront());
    failToSave();
    const QuestionAnswerer answer(*document().window(), "Don't Save");
    select(0);
    EXPECT_TRUE(waitUntil([this] { return file().filename() == path("other.mp3"); }));
    settle();

    EXPECT_EQ(QString(), notice());
}

TEST_F(PortableTagsTest, NoticeIsReachedAndClosedByTheKeyboard) {
    failToSave();
    QApplication::setActiveWindow(document().window());
    entry("entry_title").setFocus();
    QTest::keyClick(document().window(), Qt::Key_F6);
    EXPECT_TRUE(button("btn_noticeFirst").hasFocus());
    QTest::keyClick(&button("btn_noticeFirst"), Qt::Key_Tab);
    EXPECT_TRUE(button("btn_noticeSecond").hasFocus());
    QTest::keyClick(&button("btn_noticeSecond"), Qt::Key_Tab);
    EXPECT_TRUE(button("btn_noticeClose").hasFocus());
    QTest::keyClick(&button("btn_noticeClose"), Qt::Key_Tab);
    EXPECT_TRUE(entry("entry_title").hasFocus()) << QApplication::focusWidget()->objectName().toStdString();
    QTest::keyClick(document().window(), Qt::Key_F6);
    QTest::keyClick(&button("btn_noticeFirst"), Qt::Key_Escape);
    settle();

    EXPECT_EQ(QString(), notice());
    EXPECT_TRUE(entry("entry_title").hasFocus());
}

TEST_F(PortableTagsTest, NoticeIsAnAlertToAssistiveTechnologies) {
    failToSave();
    QAccessibleInterface& bar_interface = *QAccessible::queryAccessibleInterface(&bar());

    EXPECT_EQ(QAccessible::AlertMessage, bar_interface.role());
    EXPECT_EQ("\"song.mp3\" was not saved. Its tag can't be changed in place.",
              bar_interface.text(QAccessible::Name));
    EXPECT_EQ("Close",
              QAccessible::queryAccessibleInterface(&button("btn_noticeClose"))->text(QAccessible::Name));
}

TEST_F(PortableTagsTest, NoticeOfASuccessGoesByItself) {
    bar().show({Notice::Kind::Information, "Saved", {}, std::chrono::milliseconds(20)});
    EXPECT_TRUE(bar().isVisible());
    EXPECT_TRUE(waitUntil([this] { return !bar().isVisible(); }));
}

TEST_F(PortableTagsTest, AWordOfManyThousandLettersIsInTheFormSoonAndWhole) {
    const std::string word(400'000, 'c');
    const std::string comment = test::frame4("COMM", std::string("\x03") + "eng" + '\0' + word);
    const std::string frame = test::hex("FF FB 90 C4") + std::string(413, '\0');
    document().setPortableTags(true);
    addFile("word.mp3", test::leading_tag(4, comment) + frame + frame);
    QElapsedTimer clock;
    clock.start();
    select(0);
    EXPECT_LT(clock.elapsed(), 10'000);
    EXPECT_EQ(QString::fromStdString(word), widget<QPlainTextEdit>("entry_desc").toPlainText());
}

/** A save that takes as long as a test wants. */
class PortableSaveRunTest : public PortableTagsTest {
protected:
    PortableSaveResult run() {
        return run_.run(
            [this](const PortableProgress& progress) {
                PortableSaveResult result;
                result.end = PortableSaveResult::End::Saved;
                for (quint64 done = 0; done < 1000 && !finish_.try_acquire_for(std::chrono::milliseconds(10));
                     ++done) {
                    if (!progress(done, 1000)) {
                        result.end = PortableSaveResult::End::Cancelled;
                        break;
                    }
                }
                return result;
            },
            "song.mp3", document().window());
    }
    QDialog* sheet() {
        const auto sheets = document().window()->findChildren<QDialog*>();
        return sheets.isEmpty() ? nullptr : sheets.first();
    }

    PortableSaveRun run_;
    std::binary_semaphore finish_{0};
};

TEST_F(PortableSaveRunTest, ShowsNothingWhenItIsShort) {
    finish_.release();
    EXPECT_EQ(PortableSaveResult::End::Saved, run().end);
    EXPECT_EQ(nullptr, sheet());
}

TEST_F(PortableSaveRunTest, ShowsItsProgressAndKeepsTheWindowFromBeingUsed) {
    QTimer::singleShot(0, document().window(), [this] {
        EXPECT_TRUE(
            waitUntil([this] { return sheet() && sheet()->findChild<QProgressBar*>()->value() > 0; }));
        EXPECT_TRUE(sheet()->isModal());
        EXPECT_TRUE(run_.isRunning());
        finish_.release();
    });
    EXPECT_EQ(PortableSaveResult::End::Saved, run().end);
    EXPECT_EQ(nullptr, sheet());
    EXPECT_FALSE(run_.isRunning());
}

TEST_F(PortableSaveRunTest, IsCancelledByItsButtonOrEscape) {
    for (const bool byKey : {false, true}) {
        QTimer::singleShot(200, document().window(), [this, byKey] {
            ASSERT_NE(nullptr, sheet());
            if (byKey) {
                QTest::keyClick(sheet(), Qt::Key_Escape);
            } else {
                sheet()->findChild<QPushButton*>()->click();
            }
            EXPECT_TRUE(sheet()->isVisible()) << "it stays until the save has ended";
        });
        EXPECT_EQ(PortableSaveResult::End::Cancelled, run().end);
    }
}

} // namespace
} // namespace velmora
