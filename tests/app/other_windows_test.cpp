// The windows beside the main one, in each language that the program has a table for: every control is named,
// has a tip and is reached by the Tab key, no letter is given twice, nothing is cut off on a small screen.
// Leaves pictures in the folder "screenshots" of the build.

#include "spoken_languages.h"
#include "window_fixture.h"
#include "window_inspection.h"

#include "library/apply_dialog.h"
#include "library/detail/edit_panel.h"
#include "library/detail/names_dialog.h"
#include "library/library_window.h"
#include "support/pictures.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QTest>

#include <atomic>

namespace velmora {
namespace {

using test::settle;
using test::taggedFile;
using test::text4;
using test::waitUntil;

class OtherWindowsTest : public test::Speaking, public test::WindowTest {
protected:
    /** Everything that holds of each window. */
    void judge(QWidget& window, const QString& name) {
        QApplication::setActiveWindow(&window);
        settle();
        const std::string who = name.toStdString();
        EXPECT_LE(window.width(), 1024) << who;
        EXPECT_LE(window.height(), 700) << who;
        EXPECT_EQ(QStringList(), test::namelessControls(window)) << who;
        EXPECT_EQ(QStringList(), test::givenTwice(test::altLetters(window))) << who;
        EXPECT_EQ(QStringList(), test::cutTexts(window)) << who;
        EXPECT_EQ(QStringList(), test::controlsOutside(window)) << who;
        QDir().mkpath("screenshots");
        EXPECT_TRUE(window.grab().save(QStringLiteral("screenshots/%1-%2.png").arg(name, code())));
        if (!QApplication::focusWidget() || QApplication::focusWidget()->window() != &window) {
            QTest::keyClick(&window, Qt::Key_Tab);
        }
        EXPECT_EQ(QStringList(), test::controlsBeyondTab(window)) << who;
    }
    QWidget& shown(const char* action, const char* window) {
        document().window()->findChild<QAction*>(QLatin1String(action))->trigger();
        settle();
        return widget<QWidget>(window);
    }
    LibraryWindow& library() { return *document().library(); }
    /** A song and a film, both selected, in the smallest window, with every button in use. */
    void openLibrary() {
        addFile("a.mp3", taggedFile(text4("TIT2", "Harbour Lights") + text4("TPE1", "Ann, Bob, Cy")));
        addFile("b.mp4", taggedFile(text4("TIT2", "Evening")));
        document().showLibrary();
        library().resize(1024, 700);
        ASSERT_TRUE(waitUntil(
            [this] { return library().model().rowCount() == 2 && library().model().unread() == 0; }));
        library().view().selectAll();
        const auto* const cover = library().findChild<QWidget*>("img_covers");
        ASSERT_TRUE(waitUntil([cover] { return cover->isEnabled(); })); // the panel shows them
        library().panel().setCover(ImageRef::fromQImage(test::plain({30, 20})));
        ASSERT_TRUE(waitUntil([this] { return library().hasEdits(); }));
        settle();
    }
    template <class Dialog>
    Dialog& dialogBy(Qt::Key key) {
        QApplication::setActiveWindow(&library());
        QTest::keyClick(&library().view(), key, Qt::ControlModifier | Qt::ShiftModifier);
        settle();
        return *library().findChild<Dialog*>();
    }
};

TEST_P(OtherWindowsTest, LibraryTable) {
    openLibrary();
    judge(library(), "library");
    EXPECT_LE(library().minimumSizeHint().width(), 1024);
    EXPECT_EQ(QStringList(), test::wrongMenuLetters(library()));
    EXPECT_GE(test::altLetters(library()).size(), 18);
}

TEST_P(OtherWindowsTest, EveryFieldAndButtonOfTheLibraryTableHasALetter) {
    openLibrary();
    for (const char* name : {"entry_filter", "entry_titles", "entry_artists", "entry_albums", "entry_years",
                             "combo_genres", "combo_ratings", "entry_synopses", "img_covers"}) {
        const auto labels = library().findChildren<QLabel*>();
        EXPECT_EQ(1, std::count_if(labels.begin(), labels.end(),
                                   [&](const QLabel* label) {
                                       return label->buddy() &&
                                              label->buddy()->objectName() == QLatin1String(name) &&
                                              !QKeySequence::mnemonic(label->text()).isEmpty();
                                   }))
            << name;
    }
    for (const char* name : {"btn_chooseCover", "btn_removeCover", "btn_revertLibrary", "btn_apply"}) {
        EXPECT_FALSE(library().findChild<QPushButton*>(QLatin1String(name))->shortcut().isEmpty()) << name;
    }
}

TEST_P(OtherWindowsTest, EveryColumnOfTheLibraryTable) {
    openLibrary();
    library().resize(1024, 700);
    for (const LibraryColumn column : libraryColumns()) {
        library().view().showColumn(column, true);
    }
    settle();
    EXPECT_EQ(QStringList(), test::cutTexts(library()));
}

TEST_P(OtherWindowsTest, DatesInTheLibraryTableAreWhole) {
    openLibrary();
    const LibraryView& view = library().view();
    const QModelIndex date = library().model().index(0, static_cast<int>(LibraryColumn::date));
    EXPECT_NE("", date.data().toString());
    EXPECT_GE(view.columnWidth(date.column()), view.sizeHintForIndex(date).width() + 4);
}

TEST_P(OtherWindowsTest, TagsFromNames) {
    openLibrary();
    auto& dialog = dialogBy<NamesDialog>(Qt::Key_T);
    judge(dialog, "tags-from-names");
    const auto& view = *dialog.findChild<QTableView*>();
    const QModelIndex note = view.model()->index(0, view.model()->columnCount() - 1);
    EXPECT_NE("", note.data().toString());
    EXPECT_GE(view.columnWidth(note.column()), view.sizeHintForIndex(note).width());
}

TEST_P(OtherWindowsTest, NamesFromTags) {
    openLibrary();
    judge(dialogBy<NamesDialog>(Qt::Key_N), "names-from-tags");
}

TEST_P(OtherWindowsTest, ProgressAndSummaryOfAnApply) {
    openLibrary();
    ApplyDialog dialog(localised("Apply"), &library());
    std::atomic<bool> ends = false;
    dialog.start([&ends](const ApplyProgress& progress) {
        while (!ends) {
            progress(123, 1000);
            QTest::qSleep(5);
        }
        std::vector<ApplyResult> results(1000);
        for (ApplyResult& result : results) {
            result.newPath = QStringLiteral("/somewhere/A rather long name of a song that failed.mp3");
            result.end = ApplyEnd::failed;
            result.tagsDone = true;
            result.reason = QStringLiteral("Permission was denied");
        }
        results[0].end = ApplyEnd::changedSince;
        results[1].end = ApplyEnd::notReached;
        return results;
    });
    ASSERT_TRUE(waitUntil([&dialog] {
        return dialog.findChild<QLabel*>("lbl_applied")->text().contains(QStringLiteral(" / "));
    }));
    judge(dialog, "apply-progress");
    ends = true;
    ASSERT_TRUE(waitUntil([&dialog] { return !dialog.isRunning(); }));
    judge(dialog, "apply-summary");
}

TEST_P(OtherWindowsTest, UserGuide) {
    judge(shown("action_userGuide", "window_guide"), "guide");
}

TEST_P(OtherWindowsTest, Keyboard) {
    judge(shown("action_keyboard", "window_keyboard"), "keyboard");
}

TEST_P(OtherWindowsTest, About) {
    judge(shown("action_about", "window_about"), "about");
}

INSTANTIATE_TEST_SUITE_P(Languages, OtherWindowsTest, test::allLanguages(), test::languageName);

} // namespace
} // namespace velmora
