#include "window_fixture.h"

#include "support/bytes.h"
#include "weblookup/TagWebBrowser.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QTableView>
#include <QTest>

#include <sys/stat.h>

namespace velmora {
namespace {

using test::text4;

class WindowLayoutTest : public test::WindowTest {
protected:
    /** The controls that a user works with. */
    QWidgetList controls() {
        QWidgetList list;
        for (const char* name :
             {"btn_addFile",      "btn_addFolder",   "btn_stop",       "tbl_mediaFiles",   "entry_title",
              "entry_year",       "entry_artist",    "combo_genre",    "entry_album",      "combo_rating",
              "entry_desc",       "picker_dateTime", "img_coverArt",   "btn_loadCoverArt", "btn_trimBorder",
              "btn_captureFrame", "btn_removeTag",   "btn_revertTag",  "btn_saveTag",      "combo_search",
              "entry_search",     "btn_search",      "btn_searchBack", "btn_formFill"}) {
            list += &widget<QWidget>(name);
        }
        return list;
    }
};

TEST_F(WindowLayoutTest, EveryControlHasAnAccessibleNameAndAToolTip) {
    for (const QWidget* control : controls()) {
        EXPECT_FALSE(control->accessibleName().isEmpty()) << control->objectName().toStdString();
        EXPECT_FALSE(control->toolTip().isEmpty()) << control->objectName().toStdString();
    }
}

TEST_F(WindowLayoutTest, EveryControlIsReachedByTab) {
    QWidgetList reached;
    QWidget* const first = &widget<QWidget>("btn_addFile");
    QWidget* at = first;
    do {
        reached += at;
        at = at->nextInFocusChain();
    } while (at != first);
    QWidgetList order;
    for (QWidget* candidate : reached) {
        if (controls().contains(candidate)) {
            order += candidate;
        }
    }
    EXPECT_EQ(controls(), order);
    for (const QWidget* control : controls()) {
        EXPECT_TRUE(control->focusPolicy() & Qt::TabFocus) << control->objectName().toStdString();
    }
}

TEST_F(WindowLayoutTest, EveryOutletIsFoundByItsName) {
    for (const char* name :
         {"tbl_mediaFiles",  "btn_addFile",    "btn_addFolder",    "btn_stop",       "progress_mediaSearch",
          "lbl_scanStatus",  "entry_title",    "entry_artist",     "entry_album",    "entry_year",
          "lbl_artist",      "lbl_album",      "combo_genre",      "combo_rating",   "picker_dateTime",
          "entry_desc",      "img_coverArt",   "view_preview",     "btn_saveTag",    "lbl_previewFailed",
          "btn_revertTag",   "btn_removeTag",  "btn_captureFrame", "btn_trimBorder", "btn_loadCoverArt",
          "box_preview",     "lbl_title",      "lbl_year",         "lbl_genre",      "lbl_rating",
          "lbl_dateTime",    "lbl_desc",       "lbl_coverArt",     "twb_browser",    "btn_formFill",
          "btn_search",      "btn_searchBack", "combo_search",     "entry_search",   "lbl_movieName",
          "progress_search", "webview_search"}) {
        EXPECT_EQ(1, document().window()->findChildren<QObject*>(QLatin1String(name)).size()) << name;
    }
    EXPECT_EQ(document().webBrowser(), document().window()->findChild<TagWebBrowser*>("twb_browser"));
}

TEST_F(WindowLayoutTest, FieldsHaveTheirCaptionsAsBuddies) {
    for (const auto& [caption, field] :
         {std::pair("lbl_title", "entry_title"), std::pair("lbl_artist", "entry_artist"),
          std::pair("lbl_album", "entry_album"), std::pair("lbl_year", "entry_year"),
          std::pair("lbl_genre", "combo_genre"), std::pair("lbl_rating", "combo_rating"),
          std::pair("lbl_desc", "entry_desc"), std::pair("lbl_dateTime", "picker_dateTime"),
          std::pair("lbl_coverArt", "img_coverArt"), std::pair("lbl_movieName", "entry_search")}) {
        EXPECT_EQ(&widget<QWidget>(field), widget<QLabel>(caption).buddy()) << caption;
    }
}

TEST_F(WindowLayoutTest, FitsASmallScreen) {
    EXPECT_LE(document().window()->minimumSizeHint().width(), 1024);
    EXPECT_LE(document().window()->minimumSizeHint().height(), 700);
}

TEST_F(WindowLayoutTest, LongPathInTheStatusDoesNotWidenTheWindow) {
    const int before = document().window()->minimumSizeHint().width();
    widget<QLabel>("lbl_scanStatus").setText(QString(4000, 'x'));
    EXPECT_EQ(before, document().window()->minimumSizeHint().width());
}

TEST_F(WindowLayoutTest, LabelsThatShowPathsShowThemAsTheyAre) {
    EXPECT_EQ(Qt::PlainText, widget<QLabel>("lbl_scanStatus").textFormat());
}

TEST_F(WindowLayoutTest, SearchedFolderIsShown) {
    emit controller().search().scanStatusChanged("/a/<b>x");
    EXPECT_EQ("/a/<b>x", widget<QLabel>("lbl_scanStatus").text());
}

TEST_F(WindowLayoutTest, TabKeyLeavesEveryControlOfTheForm) {
    openFile();
    QApplication::setActiveWindow(document().window());
    for (const char* name : {"tbl_mediaFiles", "entry_title", "entry_year", "entry_artist", "combo_genre",
                             "entry_album", "entry_desc", "img_coverArt"}) {
        QWidget& control = widget<QWidget>(name);
        control.setFocus();
        ASSERT_EQ(&control, QApplication::focusWidget()) << name;
        QTest::keyClick(&control, Qt::Key_Tab);
        EXPECT_NE(&control, QApplication::focusWidget()) << name;
    }
    EXPECT_FALSE(document().isDocumentEdited());
}

TEST_F(WindowLayoutTest, TitleHasNoMarkForChanges) {
    openFile();
    type("entry_title", "edited");
    EXPECT_EQ("KORVANE Velmora", document().window()->windowTitle());
    EXPECT_FALSE(document().window()->isWindowModified());
}

TEST_F(WindowLayoutTest, ListIsSortedFromTheKeyboardToo) {
    addFile("b.mp3", std::string(10, 'x'));
    addFile("a.mp3", std::string(20, 'x'));
    const auto names = [this] {
        const auto& model = controller().table().model();
        const int column = MediaTableModel::columnIndex(u"filename");
        return QStringList{model.index(0, column).data().toString(),
                           model.index(1, column).data().toString()};
    };
    const auto sort = [this](const char* action) {
        document().window()->findChild<QAction*>(QLatin1String(action))->trigger();
    };
    sort("action_sortByName");
    EXPECT_EQ((QStringList{"a.mp3", "b.mp3"}), names());
    sort("action_sortByName");
    EXPECT_EQ((QStringList{"b.mp3", "a.mp3"}), names()) << "a second time turns the direction";
    sort("action_sortBySize");
    EXPECT_EQ((QStringList{"b.mp3", "a.mp3"}), names());
    sort("action_sortByDate");
    EXPECT_FALSE(document().window()->findChild<QAction*>("action_sortByDate")->shortcut().isEmpty());
}

TEST_F(WindowLayoutTest, ShortcutsAreTheStandardOnes) {
    const auto shortcut = [this](const char* action) {
        return document().window()->findChild<QAction*>(QLatin1String(action))->shortcut();
    };
    EXPECT_EQ(QKeySequence(QKeySequence::Save), shortcut("action_save"));
    EXPECT_EQ(QKeySequence("Ctrl+Q"), shortcut("action_quit"));
    EXPECT_EQ(QKeySequence(QKeySequence::Find), shortcut("action_find"));
    EXPECT_EQ(QKeySequence(QKeySequence::Open), shortcut("action_addFile"));
}

TEST(WindowStart, HomeFolderIsTakenByteForByte) {
    const test::ScratchFolder scratch;
    const std::string home = scratch / "h\xE9\xFF";
    for (const std::string& folder : {home, home + "/Music"}) {
        ASSERT_EQ(0, ::mkdir(folder.c_str(), 0700));
    }
    test::write_file(home + "/Music/a.mp3", test::pattern(102401));
    qputenv("HOME", QByteArray::fromStdString(home + "/"));
    test::StreamCapture log;
    ApplicationTermination termination;
    MyDocument document(termination);
    document.makeWindow();
    EXPECT_TRUE(test::waitUntil([&] { return !document.controller()->search().isSearchRunning(); }));
    EXPECT_EQ(1, document.controller()->table().model().numberOfRowsInTableView());
    for (const char* name : {"/Movies\n", "/Music\n", "/Pictures\n"}) {
        EXPECT_NE(std::string::npos, log.text().find("search: entering " + home + name)) << name;
    }
}

TEST(WindowStart, SearchesTheDesktopsOwnFoldersBehindTheThreeWhereTheyAreOthers) {
    const test::ScratchFolder home;
    qputenv("HOME", QByteArray::fromStdString(home.path()));
    qunsetenv("XDG_CONFIG_HOME");
    for (const char* name : {"Music", "Filme", "Bilder", ".config"}) {
        ASSERT_TRUE(QDir(QString::fromStdString(home.path())).mkpath(name));
    }
    // A folder that is switched off is the home folder; the pictures' is not there.
    test::write_file(home / ".config/user-dirs.dirs", "XDG_VIDEOS_DIR=\"$HOME/Filme\"\n"
                                                      "XDG_MUSIC_DIR=\"$HOME/\"\n"
                                                      "XDG_PICTURES_DIR=\"$HOME/Fotos\"\n");
    test::write_file(home / "beside.mp3", test::pattern(102401));
    test::write_file(home / "Music/song.mp3", test::pattern(102401));
    test::write_file(home / "Filme/film.avi", test::pattern(102401));
    test::write_file(home / "Bilder/picture.png", test::pattern(102401));
    const test::StreamCapture log;
    ApplicationTermination termination;
    MyDocument document(termination);
    document.makeWindow();
    EXPECT_TRUE(test::waitUntil([&] { return !document.controller()->search().isSearchRunning(); }));
    const auto& model = document.controller()->table().model();
    QStringList names;
    for (int row = 0; row < model.numberOfRowsInTableView(); ++row) {
        names += model.index(row, MediaTableModel::columnIndex(u"filename")).data().toString();
    }
    EXPECT_EQ((QStringList{"song.mp3", "film.avi"}), names);
}

TEST(WindowStart, SearchesMoviesMusicAndPicturesOfTheHomeFolderInThisOrder) {
    const test::ScratchFolder home;
    qputenv("HOME", QByteArray::fromStdString(home.path()));
    for (const char* name : {"Movies", "Music", "Pictures", "Videos"}) {
        ASSERT_TRUE(QDir(QString::fromStdString(home.path())).mkpath(name));
        test::write_file(home / (std::string(name) + "/" + name + ".mp3"), test::pattern(102401));
    }
    test::StreamCapture log;
    test::StreamCapture out(stdout);
    ApplicationTermination termination;
    MyDocument document(termination);
    document.makeWindow();
    EXPECT_TRUE(document.window()->findChild<QWidget*>("btn_stop")->isEnabled());
    EXPECT_TRUE(test::waitUntil([&] { return !document.controller()->search().isSearchRunning(); }));
    const auto& model = document.controller()->table().model();
    QStringList names;
    for (int row = 0; row < model.numberOfRowsInTableView(); ++row) {
        names += model.index(row, MediaTableModel::columnIndex(u"filename")).data().toString();
    }
    // Videos is where desktops keep films unless they say otherwise.
    EXPECT_EQ((QStringList{"Movies.mp3", "Music.mp3", "Pictures.mp3", "Videos.mp3"}), names);
    EXPECT_EQ("Search Done.", document.window()->findChild<QLabel*>("lbl_scanStatus")->text());
    EXPECT_FALSE(document.window()->findChild<QWidget*>("btn_stop")->isEnabled());
    EXPECT_EQ("***** GOT SEARCH DONE MESSAGE *****\n", out.text());
}

} // namespace
} // namespace velmora
