// The window as its user wanted it to be at each start, and everything forgotten again.

#include "window_fixture.h"

#include "library/library_window.h"
#include "support/bytes.h"

#include <QAction>
#include <QFile>
#include <QHeaderView>
#include <QMenu>
#include <QSplitter>
#include <QTableView>

namespace velmora {
namespace {

using test::settle;

class RememberedLayoutTest : public test::WindowTest {
protected:
    RememberedLayoutTest() { qputenv("XDG_CONFIG_HOME", QByteArray::fromStdString(folder_ / "config")); }
    ~RememberedLayoutTest() override { qunsetenv("XDG_CONFIG_HOME"); }

    void choose(const char* action) {
        document().window()->findChild<QAction*>(QLatin1String(action))->trigger();
        settle();
    }
    /** The program again. */
    void startAnew() {
        document_.reset();
        document_ = std::make_unique<MyDocument>(termination_);
        document_->makeWindow();
        document_->showWindow();
        EXPECT_TRUE(test::waitUntil([this] { return !controller().search().isSearchRunning(); }));
        settle();
    }
    QSplitter& upper() { return widget<QSplitter>("split_upper"); }
    QTableView& table() { return widget<QTableView>("tbl_mediaFiles"); }
    QString settings() { return path("config/velmora/settings.ini"); }
    static constexpr int sizeColumn = 2;
};

TEST_F(RememberedLayoutTest, SizeDivisionColumnsAndSortComeBack) {
    document().window()->resize(770, 720);
    settle();
    const int width = upper().width();
    upper().setSizes({width * 2 / 3, width / 3});
    table().horizontalHeader()->resizeSection(sizeColumn, 137);
    choose("action_sortByDate");
    choose("action_sortByDate");
    settle();
    const QList<int> sizes = upper().sizes();

    choose("action_rememberLayout");
    EXPECT_EQ("The window will look like this at each start.", notice());
    startAnew();

    EXPECT_EQ(QSize(770, 720), document().window()->size());
    EXPECT_EQ(sizes, upper().sizes());
    EXPECT_EQ(137, table().columnWidth(sizeColumn));
    ASSERT_TRUE(controller().table().mediaFiles().tableSortColumn());
    EXPECT_EQ("created", controller().table().mediaFiles().tableSortColumn()->identifier);
    EXPECT_TRUE(controller().table().mediaFiles().tableSortDescending());
}

TEST_F(RememberedLayoutTest, ColumnsThatWereNotTouchedComeBackToo) {
    document().window()->resize(770, 720);
    settle();
    const int width = table().columnWidth(sizeColumn);
    choose("action_rememberLayout");
    startAnew();
    document().window()->resize(640, 720);
    settle();
    EXPECT_EQ(width, table().columnWidth(sizeColumn)) << "as if the user had set it";
}

TEST_F(RememberedLayoutTest, NothingIsWrittenUnlessItIsAskedFor) {
    document().window()->resize(770, 720);
    choose("action_sortByDate");
    startAnew();
    EXPECT_FALSE(QFile::exists(path("config")));
    EXPECT_FALSE(controller().table().mediaFiles().tableSortColumn());
}

TEST_F(RememberedLayoutTest, ForgetEverythingRemovesTheFileAndSaysSo) {
    document().window()->resize(770, 720);
    choose("action_rememberLayout");
    EXPECT_TRUE(QFile::exists(settings()));
    choose("action_forgetEverything");
    EXPECT_FALSE(QFile::exists(path("config/velmora")));
    EXPECT_EQ("Nothing is remembered any more: there is no settings file.", notice());
    startAnew();
    EXPECT_NE(QSize(770, 720), document().window()->size());
}

TEST_F(RememberedLayoutTest, DamagedFileIsAsNone) {
    choose("action_rememberLayout");
    QFile file(settings());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("\x01\x02[layout\nsize=,,,\n=");
    file.close();
    startAnew();
    EXPECT_FALSE(controller().table().mediaFiles().tableSortColumn());
    EXPECT_EQ("", notice());
}

TEST_F(RememberedLayoutTest, LayoutThatCantBeRememberedIsToldOf) {
    test::write_file(folder_ / "config", "no folder");
    choose("action_rememberLayout");
    EXPECT_EQ("The layout can't be remembered: the settings file can't be written.", notice());
}

TEST_F(RememberedLayoutTest, RelativeFolderForSettingsCountsAsNone) {
    qputenv("HOME", QByteArray::fromStdString(folder_.path()));
    qputenv("XDG_CONFIG_HOME", "config");
    choose("action_rememberLayout");
    EXPECT_TRUE(QFile::exists(path(".config/velmora/settings.ini")));
    EXPECT_FALSE(QFile::exists("config"));
    choose("action_forgetEverything");
    EXPECT_FALSE(QFile::exists(path(".config/velmora")));
}

TEST_F(RememberedLayoutTest, SizeBeyondTheScreenAndUnknownColumnsDoNoHarm) {
    test::write_file(folder_ / "settings",
                     "[layout]\nsize=90000, 90000\nsort=nonsense\n[parts]\nsplit_upper=1, 2, 3\n");
    QDir().mkpath(path("config/velmora"));
    ASSERT_TRUE(QFile::copy(path("settings"), settings()));
    startAnew();
    const QSize room = document().window()->screen()->availableSize();
    EXPECT_LE(document().window()->width(), room.width());
    EXPECT_LE(document().window()->height(), room.height());
    EXPECT_FALSE(controller().table().mediaFiles().tableSortColumn());
    EXPECT_EQ(2, upper().sizes().size());
}

class RememberedLibraryTest : public RememberedLayoutTest {
protected:
    LibraryWindow& library() {
        document().showLibrary();
        settle();
        return *document().library();
    }
    LibraryView& view() { return library().view(); }
    QStringList checkedColumns() {
        auto* const menu = library().findChild<QAction*>("action_columns")->menu();
        emit menu->aboutToShow();
        QStringList checked;
        for (const QAction* column : menu->actions()) {
            checked += column->isChecked() ? QStringList(column->text()) : QStringList();
        }
        return checked;
    }
    static int number(LibraryColumn column) { return static_cast<int>(column); }
};

TEST_F(RememberedLibraryTest, SizeDivisionColumnsTheirPlacesAndSortComeBack) {
    library().resize(780, 640);
    view().showColumn(LibraryColumn::folder, false);
    view().showColumn(LibraryColumn::synopsis, true);
    view().horizontalHeader()->moveSection(
        view().horizontalHeader()->visualIndex(number(LibraryColumn::year)), 0);
    view().horizontalHeader()->resizeSection(number(LibraryColumn::title), 143);
    view().sortByColumn(LibraryColumn::artist, false);
    view().sortByColumn(LibraryColumn::year, true);
    view().sortByColumn(LibraryColumn::year, true);
    auto& split = *library().findChild<QSplitter*>();
    split.setSizes({430, 330});
    settle();
    const QList<int> sizes = split.sizes();
    const QList<LibraryColumn> columns = view().shownColumns();
    const QStringList checked = checkedColumns();

    choose("action_rememberLayout");
    startAnew();

    EXPECT_EQ(QSize(780, 640), library().size());
    EXPECT_EQ(sizes, library().findChild<QSplitter*>()->sizes());
    EXPECT_EQ(LibraryColumn::year, view().shownColumns().first());
    EXPECT_EQ(columns, view().shownColumns());
    EXPECT_EQ(143, view().columnWidth(number(LibraryColumn::title)));
    const std::vector<SortKey> keys = {{LibraryColumn::artist, false}, {LibraryColumn::year, true}};
    EXPECT_EQ(keys, library().model().sortKeys());
    EXPECT_TRUE(checked.contains("Synopsis / Comment"));
    EXPECT_FALSE(checked.contains("Folder"));
    EXPECT_EQ(checked, checkedColumns());
}

TEST_F(RememberedLibraryTest, WindowThatIsNotShownThisTimeStaysRemembered) {
    library().resize(780, 640);
    choose("action_rememberLayout");
    startAnew();
    choose("action_rememberLayout");
    startAnew();
    EXPECT_EQ(QSize(780, 640), library().size());
}

TEST_F(RememberedLibraryTest, NothingIsWrittenUnlessItIsAskedForAndForgottenWithAllElse) {
    library().resize(780, 640);
    startAnew();
    EXPECT_FALSE(QFile::exists(path("config")));
    EXPECT_NE(QSize(780, 640), library().size());
    library().resize(780, 640);
    choose("action_rememberLayout");
    choose("action_forgetEverything");
    EXPECT_FALSE(QFile::exists(path("config/velmora")));
    startAnew();
    EXPECT_NE(QSize(780, 640), library().size());
}

TEST_F(RememberedLibraryTest, ColumnsThatThereAreNotAndListsOfWrongLengthDoNoHarm) {
    const QList<LibraryColumn> columns = view().shownColumns();
    test::write_file(folder_ / "settings",
                     "[layout]\nsize=700, 700\n[parts]\nlibrary_size=1\nlibrary_division=1, 2, 3\n"
                     "library_widths=0, 0\nlibrary_places=9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9\n"
                     "library_sort=77, 1, 3\n");
    QDir().mkpath(path("config/velmora"));
    ASSERT_TRUE(QFile::copy(path("settings"), settings()));
    startAnew();
    EXPECT_EQ(columns, view().shownColumns());
    EXPECT_TRUE(library().model().sortKeys().empty());
}

} // namespace
} // namespace velmora
