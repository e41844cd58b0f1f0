// The library table's window with songs that lie on the disk.

#include "tagged_songs.h"

#include "library/library_window.h"
#include "support/waiting.h"

#include <QHeaderView>
#include <QTest>

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::song;
using test::waitUntil;
using test::written;

class LibraryWindowTest : public testing::Test {
protected:
    LibraryWindowTest() {
        window_.present();
        QApplication::setActiveWindow(&window_);
    }

    void add(const std::string& name, const std::string& bytes) {
        window_.model().addFile(written(folder_, name, bytes), bytes.size());
    }
    void addSongs() {
        add("2.mp3", song("Harbour", "Zoe"));
        add("10.mp3", song("Anchor", "Ann"));
        add("1.mp3", song("Sea", "Ben"));
        ASSERT_TRUE(isRead(3));
    }
    [[nodiscard]] bool isRead(int rows) {
        return waitUntil([&] { return window_.model().rowCount() == rows && window_.model().unread() == 0; });
    }
    [[nodiscard]] QStringList shown(LibraryColumn column) {
        QStringList texts;
        for (int row = 0; row < window_.model().rowCount(); ++row) {
            texts += cell(row, column).data().toString();
        }
        return texts;
    }
    [[nodiscard]] QModelIndex cell(int row, LibraryColumn column) {
        return window_.model().index(row, static_cast<int>(column));
    }

    test::ScratchFolder folder_;
    LibraryWindow window_;
};

TEST_F(LibraryWindowTest, EachFileIsARowWithItsTags) {
    addSongs();
    EXPECT_EQ(QStringList({"2.mp3", "10.mp3", "1.mp3"}), shown(LibraryColumn::name));
    EXPECT_EQ(QStringList({"Harbour", "Anchor", "Sea"}), shown(LibraryColumn::title));
    EXPECT_EQ(QStringList({"Zoe", "Ann", "Ben"}), shown(LibraryColumn::artist));
    EXPECT_EQ("Song", cell(0, LibraryColumn::kind).data().toString());
    EXPECT_EQ("ID3v2.4", cell(0, LibraryColumn::tags).data().toString());
    EXPECT_EQ(QString::fromStdString(folder_.path()), cell(0, LibraryColumn::folder).data().toString());
}

TEST_F(LibraryWindowTest, AClickOnAHeaderSortsAndOneMoreTurnsIt) {
    addSongs();
    QHeaderView& header = *window_.view().horizontalHeader();
    const auto click = [&header](LibraryColumn column) {
        const int x = header.sectionViewportPosition(static_cast<int>(column)) + 10;
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, QPoint(x, header.height() / 2));
    };
    click(LibraryColumn::name);
    EXPECT_TRUE(waitUntil([&] {
        return shown(LibraryColumn::name) == QStringList({"1.mp3", "2.mp3", "10.mp3"});
    }));
    click(LibraryColumn::name);
    EXPECT_TRUE(waitUntil([&] {
        return shown(LibraryColumn::name) == QStringList({"10.mp3", "2.mp3", "1.mp3"});
    }));
    click(LibraryColumn::title);
    EXPECT_TRUE(waitUntil([&] {
        return shown(LibraryColumn::title) == QStringList({"Anchor", "Harbour", "Sea"});
    }));
}

TEST_F(LibraryWindowTest, TheSelectionStaysWithItsFileWhateverTheOrder) {
    addSongs();
    window_.view().selectRow(0);
    ASSERT_EQ(std::vector<int>({0}), window_.view().selectedFiles());
    window_.view().sortByColumn(LibraryColumn::name, false);
    EXPECT_TRUE(waitUntil([&] { return shown(LibraryColumn::name).first() == "1.mp3"; }));
    EXPECT_EQ(std::vector<int>({0}), window_.view().selectedFiles());
    EXPECT_EQ(1, window_.view().currentIndex().row());
}

TEST_F(LibraryWindowTest, ANewFileFindsItsPlaceInTheOrder) {
    addSongs();
    window_.view().sortByColumn(LibraryColumn::title, false);
    add("3.mp3", song("Boat", "Cleo"));
    EXPECT_TRUE(waitUntil([&] {
        return shown(LibraryColumn::title) == QStringList({"Anchor", "Boat", "Harbour", "Sea"});
    }));
}

TEST_F(LibraryWindowTest, ManyFilesThatComeAtOnceDoNotStallTheWindow) {
    constexpr int count = 20'000;
    LibraryModel& model = window_.model();
    for (int file = 0; file < count; ++file) {
        model.addFile(QStringLiteral("/nowhere/%1.mp3").arg(file), 0);
    }
    EXPECT_EQ(static_cast<std::size_t>(count), model.listed());
    EXPECT_EQ(static_cast<std::size_t>(count), model.unread());
    QCoreApplication::processEvents();
    EXPECT_LT(model.rows().end(), count);
    EXPECT_TRUE(waitUntil([&] { return model.rowCount() == count; }));
}

TEST_F(LibraryWindowTest, AFileThatGoesBeforeItIsListedIsNoRow) {
    LibraryModel& model = window_.model();
    model.addFile("/nowhere/a.mp3", 0);
    model.addFile("/nowhere/b.mp3", 0);
    model.removeFile("/nowhere/a.mp3");
    EXPECT_TRUE(waitUntil([&] { return model.rowCount() == 1 && model.unread() == 0; }));
    EXPECT_EQ(QStringList("b.mp3"), shown(LibraryColumn::name));
    EXPECT_EQ(1U, model.listed());
}

TEST_F(LibraryWindowTest, ARemovedFileIsNoRowAnyMore) {
    addSongs();
    window_.model().removeFile(QString::fromStdString(folder_ / "10.mp3"));
    EXPECT_EQ(QStringList({"2.mp3", "1.mp3"}), shown(LibraryColumn::name));
    window_.view().sortByColumn(LibraryColumn::name, false);
    EXPECT_TRUE(waitUntil([&] { return shown(LibraryColumn::name) == QStringList({"1.mp3", "2.mp3"}); }));
}

TEST_F(LibraryWindowTest, AFilterShowsWhatItLetsThrough) {
    addSongs();
    window_.view().selectAll();
    window_.model().setFilter(FilterQuery("title:a artist:e"));
    EXPECT_EQ(QStringList({"2.mp3", "1.mp3"}), shown(LibraryColumn::name));
    EXPECT_EQ(std::vector<int>({0, 2}), window_.view().selectedFiles());
    window_.model().setFilter({});
    EXPECT_EQ(QStringList({"2.mp3", "10.mp3", "1.mp3"}), shown(LibraryColumn::name));
    EXPECT_EQ(std::vector<int>({0, 2}), window_.view().selectedFiles());
}

TEST_F(LibraryWindowTest, ACellIsEditedInPlaceWithF2) {
    addSongs();
    window_.view().setCurrentIndex(cell(1, LibraryColumn::title));
    QTest::keyClick(&window_.view(), Qt::Key_F2);
    QWidget* const editor = QApplication::focusWidget();
    ASSERT_NE(nullptr, qobject_cast<QLineEdit*>(editor));
    QTest::keyClicks(editor, "Rope");
    QTest::keyClick(editor, Qt::Key_Return);
    EXPECT_TRUE(waitUntil([&] { return cell(1, LibraryColumn::title).data().toString() == "Rope"; }));
    EXPECT_TRUE(cell(1, LibraryColumn::title).data(Qt::FontRole).value<QFont>().bold());
    EXPECT_FALSE(cell(1, LibraryColumn::artist).data(Qt::FontRole).isValid());
    EXPECT_EQ(1U, window_.model().rows().editedCount());
}

} // namespace
} // namespace velmora
