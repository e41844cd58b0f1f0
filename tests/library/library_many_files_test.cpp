// What the library table does with very many rows: in few steps, and in short ones.

#include "library/detail/names_dialog.h"
#include "library/library_window.h"
#include "tagged_songs.h"

#include "support/qt_printing.h"
#include "support/waiting.h"

#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

namespace velmora {
namespace {

using test::waitUntil;

class ManyFilesTest : public testing::Test {
protected:
    /** Lists COUNT files that are not there. */
    void list(int count) {
        window_.present();
        for (int file = 0; file < count; ++file) {
            window_.model().addFile(pathOf(file), 0);
        }
        ASSERT_TRUE(waitUntil(
            [&] { return window_.model().rowCount() == count && window_.model().unread() == 0; }, 120'000));
    }
    static QString pathOf(int file) { return QStringLiteral("/nowhere/%1.mp3").arg(file); }
    static RowEdits titled(const std::string& title) {
        RowEdits edits;
        edits.text(portable::Field::title) = portable::Edit<std::string>::set(title);
        return edits;
    }

    LibraryWindow window_;
};

TEST_F(ManyFilesTest, FilesThatAreRemovedTogetherGoInFewSteps) {
    list(1000);
    LibraryModel& model = window_.model();
    window_.view().setCurrentIndex(model.index(500, 0));
    const QSignalSpy removals(&model, &QAbstractItemModel::rowsRemoved);
    for (int file = 200; file < 800; ++file) {
        model.removeFile(pathOf(file));
    }
    EXPECT_TRUE(waitUntil([&] { return model.rowCount() == 400; }));
    EXPECT_LE(removals.count(), 2);
    EXPECT_EQ(400U, model.listed());
    const int current = window_.view().currentIndex().row();
    EXPECT_TRUE(current == 199 || current == 200) << current << " is no neighbour";
    EXPECT_EQ(-1, model.rows().find(pathOf(200)));
    EXPECT_EQ(-1, model.rows().find(pathOf(799)));
}

TEST_F(ManyFilesTest, FilesInManyPlacesGoInFewStepsToo) {
    list(1000);
    LibraryModel& model = window_.model();
    const QSignalSpy removals(&model, &QAbstractItemModel::rowsRemoved);
    for (int file = 0; file < 1000; file += 2) {
        model.removeFile(pathOf(file));
    }
    EXPECT_TRUE(waitUntil([&] { return model.rowCount() == 500; }));
    EXPECT_LE(removals.count(), 2);
    EXPECT_EQ(pathOf(1), model.rows().at(model.fileAt(0)).path());
    EXPECT_EQ(pathOf(999), model.rows().at(model.fileAt(499)).path());
}

TEST_F(ManyFilesTest, AFileThatIsRemovedAndAddedInOneTurnIsListed) {
    list(3);
    LibraryModel& model = window_.model();
    model.removeFile(pathOf(0));
    model.removeFile(pathOf(1));
    model.addFile(pathOf(1), 0);
    EXPECT_TRUE(waitUntil([&] { return model.rowCount() == 2 && model.unread() == 0; }));
    EXPECT_LE(0, model.rows().find(pathOf(1)));
}

TEST_F(ManyFilesTest, AFilterLooksAtManyEditedRowsInShortSteps) {
    constexpr int count = 10'000;
    list(count);
    LibraryModel& model = window_.model();
    std::vector<std::pair<int, RowEdits>> edits;
    for (int file = 0; file < count; ++file) {
        edits.emplace_back(file, titled("Harbour"));
    }
    model.setEdits(edits);
    model.setFilter(FilterQuery("title:harbour"));
    EXPECT_LT(model.rowCount(), count) << "all texts were made in one turn";
    EXPECT_TRUE(waitUntil([&] { return model.rowCount() == count; }));
    EXPECT_TRUE(waitUntil([&] { return model.fileAt(0) == 0 && model.fileAt(count - 1) == count - 1; }));
    model.setFilter(FilterQuery("title:boat"));
    EXPECT_EQ(0, model.rowCount()) << "the texts are there by now";
}

/** A filter over so many rows that it does not look at all of them in one turn. */
class UnfinishedFilterTest : public ManyFilesTest {
protected:
    static constexpr int count = 10'000;

    UnfinishedFilterTest() {
        list(count);
        std::vector<std::pair<int, RowEdits>> edits;
        for (int file = 0; file < count; ++file) {
            edits.emplace_back(file, titled("Harbour"));
        }
        window_.model().setEdits(edits);
        QApplication::setActiveWindow(&window_);
    }
    /** Types into the filter, and looks at nothing else. */
    void filter() {
        auto& field = *window_.findChild<QLineEdit*>("entry_filter");
        field.setFocus();
        QTest::keyClicks(&field, "harbour");
        QTest::keyClick(&field, Qt::Key_Return);
        ASSERT_LT(window_.model().rowCount(), count);
    }
};

TEST_F(UnfinishedFilterTest, SelectingAllSelectsAlsoWhatItHasNotLookedAt) {
    filter();
    QTest::keyClick(&window_.view(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(std::size_t{count}, window_.view().selectedFiles().size());
    EXPECT_EQ(0, window_.model().fileAt(0));
    EXPECT_EQ(count - 1, window_.model().fileAt(count - 1));
}

TEST_F(UnfinishedFilterTest, AnExportHasAlsoWhatItHasNotLookedAt) {
    const test::ScratchFolder folder;
    filter();
    EXPECT_EQ("", window_.exportTo(QString::fromStdString(folder / "out.csv")));
    const std::string table = test::read_file(folder / "out.csv");
    EXPECT_EQ(count + 1, std::count(table.begin(), table.end(), '\n'));
}

TEST_F(UnfinishedFilterTest, NamesAreAskedForAlsoOfWhatItHasNotLookedAt) {
    filter();
    window_.findChild<QAction*>("action_namesFromTags")->trigger();
    const auto* const dialog = window_.findChild<NamesDialog*>();
    ASSERT_NE(nullptr, dialog);
    ASSERT_TRUE(waitUntil([&] { return !dialog->rows().empty(); }));
    EXPECT_EQ(std::size_t{count}, dialog->rows().size());
}

TEST_F(ManyFilesTest, TheFilterGivenLastIsTheOneThatCounts) {
    constexpr int count = 10'000;
    list(count);
    LibraryModel& model = window_.model();
    std::vector<std::pair<int, RowEdits>> edits;
    for (int file = 0; file < count; ++file) {
        edits.emplace_back(file, titled(file % 2 == 0 ? "Harbour" : "Boat"));
    }
    model.setEdits(edits);
    model.setFilter(FilterQuery("harbour"));
    QCoreApplication::processEvents();
    model.setFilter(FilterQuery("boat"));
    EXPECT_TRUE(waitUntil([&] { return model.rowCount() == count / 2; }));
    model.setFilter({});
    EXPECT_EQ(count, model.rowCount());
    test::waitFor(50);
    EXPECT_EQ(count, model.rowCount());
}

TEST_F(ManyFilesTest, ThePanelShowsTheSelectionWhileFilesAreRead) {
    list(10);
    QTimer reading;
    QObject::connect(&reading, &QTimer::timeout, &window_.model(),
                     [this] { window_.model().setEdits(9, titled("Harbour")); });
    reading.start(10);
    window_.view().selectRow(0);
    EXPECT_TRUE(waitUntil([&] { return window_.findChild<QLineEdit*>("entry_titles")->isEnabled(); }, 3000));
}

TEST_F(ManyFilesTest, TheHashOfASharedCoverIsTakenOnce) {
    constexpr std::size_t size = 8UL * 1024 * 1024;
    constexpr int looks = 2000; // through 16 GiB otherwise
    const CoverPointer cover = std::make_shared<const portable::Cover>(
        portable::Cover{std::vector<std::uint8_t>(size, 7), "image/png"});
    const LibraryRow row("/nowhere/a.mp3", 0);
    RowEdits edits;
    QElapsedTimer clock;
    clock.start();
    for (int look = 0; look < looks; ++look) {
        editCover(edits, row, cover);
        ASSERT_NE(0U, coverHashOf(row, &edits));
    }
    EXPECT_LT(clock.elapsed(), 1000);
}

} // namespace
} // namespace velmora
