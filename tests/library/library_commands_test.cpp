// The library table's commands through its window, with the keys and the mouse: covers, the clipboard,
// export, sorting, what fails and is tried again.

#include "library/apply_dialog.h"
#include "library/library_window.h"
#include "tagged_songs.h"

#include "support/drag_session.h"
#include "support/pictures.h"
#include "support/qt_printing.h"
#include "support/waiting.h"

#include <QApplication>
#include <QClipboard>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <sys/resource.h>

namespace velmora {
namespace {

using test::song;
using test::text4;
using test::waitUntil;
using test::written;

class LibraryCommandsTest : public testing::Test {
protected:
    LibraryCommandsTest() {
        window_.present();
        QApplication::setActiveWindow(&window_);
        add("1.mp3", song("Sea", "Ben"));
        add("2.mp3", song("Harbour", "Zoe"));
        add("3.mp3", song("Anchor", "Ben"));
        EXPECT_TRUE(isRead());
    }

    void add(const std::string& name, const std::string& bytes) {
        window_.model().addFile(written(folder_, name, bytes), bytes.size());
        ++files_;
    }
    bool isRead() {
        return waitUntil(
            [this] { return window_.model().rowCount() == files_ && window_.model().unread() == 0; });
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : &window_, key, modifiers);
    }
    /** Selects all rows, and waits until the panel shows them. */
    void selectAll() {
        window_.view().setFocus();
        press(Qt::Key_A, Qt::ControlModifier);
        EXPECT_TRUE(waitUntil([this] { return part<QWidget>("img_covers").isEnabled(); }));
        test::waitFor(80);
    }
    template <class Widget>
    Widget& part(const char* name) {
        return *window_.findChild<Widget*>(QLatin1String(name));
    }
    void goTo(int row, LibraryColumn column) {
        window_.view().setCurrentIndex(window_.model().index(row, static_cast<int>(column)));
        window_.view().setFocus();
    }
    QStringList shown(LibraryColumn column) {
        QStringList texts;
        for (int row = 0; row < window_.model().rowCount(); ++row) {
            texts += window_.model().index(row, static_cast<int>(column)).data().toString();
        }
        return texts;
    }
    void click(LibraryColumn column, Qt::KeyboardModifiers modifiers = {}) {
        QHeaderView& header = *window_.view().horizontalHeader();
        const int x = header.sectionViewportPosition(static_cast<int>(column)) + 10;
        QTest::mouseClick(header.viewport(), Qt::LeftButton, modifiers, QPoint(x, header.height() / 2));
    }
    /** Answers the file panel that is on the screen. */
    void choose(const QString& path) {
        auto* const panel = window_.findChild<QFileDialog*>();
        ASSERT_NE(nullptr, panel);
        auto* const name = panel->findChild<QLineEdit*>("fileNameEdit");
        name->setText(path);
        QTest::keyClick(name, Qt::Key_Return);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    QString path(const std::string& name) { return QString::fromStdString(folder_ / name); }
    /** How many files are to get the picture whose bytes are COVER. */
    int filesWithCover(const QByteArray& cover) {
        int count = 0;
        for (int file = 0; file < files_; ++file) {
            const RowEdits* const edits = window_.model().rows().edits(file);
            count += edits && edits->cover.sets() &&
                             (*edits->cover.value())->bytes ==
                                 std::vector<std::uint8_t>(cover.begin(), cover.end())
                         ? 1
                         : 0;
        }
        return count;
    }

    test::ScratchFolder folder_;
    LibraryWindow window_;
    int files_ = 0;
};

TEST_F(LibraryCommandsTest, APictureDroppedOnThePanelIsTheCoverOfAllSelectedFiles) {
    const QByteArray picture = test::encoded(test::plain({40, 30}), "PNG");
    test::write_file(folder_ / "cover.png", picture.toStdString());
    selectAll();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path("cover.png"))});
    test::DragSession drag(part<QWidget>("img_covers"), data);
    EXPECT_TRUE(drag.enter());
    EXPECT_TRUE(drag.drop());
    EXPECT_EQ(3, filesWithCover(picture));
}

TEST_F(LibraryCommandsTest, ACoverIsChosenFromAFileWithTheKeyboardAndRemoved) {
    const QByteArray picture = test::encoded(test::plain({40, 30}), "PNG");
    test::write_file(folder_ / "cover.png", picture.toStdString());
    selectAll();
    press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(waitUntil([this] { return window_.findChild<QFileDialog*>() != nullptr; }));
    choose(path("cover.png"));
    EXPECT_EQ(3, filesWithCover(picture));
    EXPECT_TRUE(waitUntil([this] { return part<QPushButton>("btn_removeCover").isEnabled(); }));
    QApplication::setActiveWindow(&window_);
    window_.view().setFocus();
    press(Qt::Key_M, Qt::AltModifier);
    EXPECT_TRUE(waitUntil([this] { return window_.model().rows().editedCount() == 0; }));
}

TEST_F(LibraryCommandsTest, OnePastedCellFillsTheColumnOfAllSelectedRows) {
    goTo(0, LibraryColumn::album);
    selectAll();
    QApplication::clipboard()->setText("Tides");
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(QStringList({"Tides", "Tides", "Tides"}), shown(LibraryColumn::album));
}

TEST_F(LibraryCommandsTest, APastedBlockGoesIntoTheCellsFromTheCurrentOneOn) {
    goTo(1, LibraryColumn::title);
    QApplication::clipboard()->setText("Boat\tAnn\nRope\tCleo\nBeyond\tthe end\n");
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(QStringList({"Sea", "Boat", "Rope"}), shown(LibraryColumn::title));
    EXPECT_EQ(QStringList({"Ben", "Ann", "Cleo"}), shown(LibraryColumn::artist));
}

TEST_F(LibraryCommandsTest, CellsThatCantTakeWhatWasPastedAreCounted) {
    goTo(0, LibraryColumn::year);
    QApplication::clipboard()->setText("1994\nlong ago\n1995");
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(QStringList({"1994", "", "1995"}), shown(LibraryColumn::year));
    EXPECT_EQ("Cells that can't take what was pasted: 1", window_.statusBar()->currentMessage());
}

TEST_F(LibraryCommandsTest, RowsAndColumnsAreCopiedAsTheyAreShown) {
    for (const LibraryColumn column : libraryColumns()) {
        window_.view().showColumn(column, column == LibraryColumn::title || column == LibraryColumn::artist);
    }
    goTo(0, LibraryColumn::artist);
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ("Sea\tBen\nHarbour\tZoe", QApplication::clipboard()->text().trimmed());
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ("Ben\nZoe", QApplication::clipboard()->text().trimmed());
}

class RemoveCommandTest : public LibraryCommandsTest {
protected:
    RemoveCommandTest() {
        QObject::connect(&window_, &LibraryWindow::removeRequested, &window_,
                         [this](const QStringList& paths) { removed_ += paths; });
    }
    /** Gives the first COUNT files a new album. */
    void edit(int count) {
        for (int file = 0; file < count; ++file) {
            RowEdits edits;
            edits.text(portable::Field::album) = portable::Edit<std::string>::set("Tides");
            window_.model().setEdits(file, edits);
        }
    }
    QMessageBox* question() {
        const auto boxes = window_.findChildren<QMessageBox*>();
        const auto shown =
            std::find_if(boxes.begin(), boxes.end(), [](auto* box) { return box->isVisible(); });
        return shown == boxes.end() ? nullptr : *shown;
    }
    void removeAll() {
        QApplication::setActiveWindow(&window_);
        selectAll();
        press(Qt::Key_Backspace, Qt::ControlModifier);
    }
    void answer(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QApplication::setActiveWindow(question());
        press(key, modifiers);
        EXPECT_TRUE(waitUntil([this] { return question() == nullptr; }));
    }

    QStringList removed_;
};

TEST_F(RemoveCommandTest, RowsWithoutEditsGoUnasked) {
    removeAll();
    EXPECT_EQ(nullptr, question());
    EXPECT_EQ(QStringList({path("1.mp3"), path("2.mp3"), path("3.mp3")}), removed_);
}

TEST_F(RemoveCommandTest, RowsWithEditsGoOnlyWhenTheQuestionSaysSo) {
    edit(2);
    removeAll();
    ASSERT_NE(nullptr, question());
    EXPECT_EQ("Do you want to remove files with edits that are not applied?", question()->text());
    EXPECT_EQ("The edits of 2 file(s) will be lost.", question()->informativeText());
    EXPECT_EQ(QStringList(), removed_);
    answer(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(3, removed_.size());
}

/** The key that answers the question. */
class RemoveRefusalTest : public RemoveCommandTest, public testing::WithParamInterface<Qt::Key> {};

TEST_P(RemoveRefusalTest, KeepsTheRowsAndTheirEdits) {
    edit(1);
    removeAll();
    ASSERT_NE(nullptr, question());
    EXPECT_EQ("The edits of 1 file(s) will be lost.", question()->informativeText());
    answer(GetParam());
    EXPECT_EQ(QStringList(), removed_);
    EXPECT_EQ(1U, window_.model().rows().editedCount());
}

INSTANTIATE_TEST_SUITE_P(Keys, RemoveRefusalTest, testing::Values(Qt::Key_Escape, Qt::Key_Return));

TEST_F(RemoveCommandTest, EditsOfOtherRowsAreNoReasonToAsk) {
    edit(1);
    goTo(2, LibraryColumn::title);
    press(Qt::Key_Backspace, Qt::ControlModifier);
    EXPECT_EQ(nullptr, question());
    EXPECT_EQ(QStringList{path("3.mp3")}, removed_);
}

class ExportCommandTest : public LibraryCommandsTest {
protected:
    ExportCommandTest() {
        for (const LibraryColumn column : libraryColumns()) {
            window_.view().showColumn(column,
                                      column == LibraryColumn::title || column == LibraryColumn::artist);
        }
        part<QLineEdit>("entry_filter").setText("artist:ben");
        EXPECT_TRUE(waitUntil([this] { return window_.model().rowCount() == 2; }));
        window_.view().setFocus();
        press(Qt::Key_E, Qt::ControlModifier);
    }
};

TEST_F(ExportCommandTest, WritesTheRowsAndColumnsThatAreShown) {
    choose(path("out.csv"));
    EXPECT_EQ("\xEF\xBB\xBFTitle,Artist / Cast\r\nSea,Ben\r\nAnchor,Ben\r\n",
              test::read_file(folder_ / "out.csv"));
}

TEST_F(ExportCommandTest, ANameWithoutAnExtensionGetsThatOfTheChosenKind) {
    auto* const panel = window_.findChild<QFileDialog*>();
    ASSERT_NE(nullptr, panel);
    panel->selectNameFilter("JSON (*.json)");
    emit panel->filterSelected("JSON (*.json)");
    choose(path("out"));
    EXPECT_FALSE(std::filesystem::exists(folder_ / "out"));
    EXPECT_EQ("[\n{\"artist\":\"Ben\",\"title\":\"Sea\"},\n{\"artist\":\"Ben\",\"title\":\"Anchor\"}\n]\n",
              test::read_file(folder_ / "out.json"));
}

TEST_F(ExportCommandTest, TheKindGivesTheProposedNameItsExtension) {
    auto* const panel = window_.findChild<QFileDialog*>();
    ASSERT_NE(nullptr, panel);
    auto* const name = panel->findChild<QLineEdit*>("fileNameEdit");
    EXPECT_EQ("library.csv", name->text());
    panel->selectNameFilter("JSON (*.json)");
    emit panel->filterSelected("JSON (*.json)");
    EXPECT_EQ("library.json", name->text());
    QTest::keyClick(panel, Qt::Key_Escape);
}

TEST_F(ExportCommandTest, AFailureSaysWhy) {
    std::filesystem::create_directory(folder_ / "gone");
    QTest::keyClick(window_.findChild<QFileDialog*>(), Qt::Key_Escape);
    EXPECT_EQ("Its folder is not there", window_.exportTo(path("nowhere/out.csv")));
    EXPECT_EQ("Its name is too long", window_.exportTo(path(std::string(300, 'x') + ".csv")));
    EXPECT_EQ("It is no ordinary file", window_.exportTo(path("gone")));
}

TEST_F(ExportCommandTest, AFailureOfTheChosenFileIsTold) {
    auto* const panel = window_.findChild<QFileDialog*>();
    ASSERT_NE(nullptr, panel);
    emit panel->fileSelected(path("nowhere/out.csv"));
    auto* const box = window_.findChild<QMessageBox*>();
    ASSERT_NE(nullptr, box);
    EXPECT_EQ("The table could not be exported.", box->text());
    EXPECT_EQ("\"out.csv\" can't be written. Its folder is not there.", box->informativeText());
    box->done(0);
    QTest::keyClick(panel, Qt::Key_Escape);
}

TEST_F(ExportCommandTest, AWriteThatFailsIsNamedAndTheOldFileStays) {
    test::write_file(folder_ / "out.csv", "old");
    QTest::keyClick(window_.findChild<QFileDialog*>(), Qt::Key_Escape);
    rlimit usual{};
    ASSERT_EQ(0, getrlimit(RLIMIT_FSIZE, &usual));
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const rlimit none{10, usual.rlim_max};
    ASSERT_EQ(0, setrlimit(RLIMIT_FSIZE, &none));
    const QString reason = window_.exportTo(path("out.csv"));
    setrlimit(RLIMIT_FSIZE, &usual);
    std::signal(SIGXFSZ, handler);
    EXPECT_EQ("It would become too large", reason);
    EXPECT_EQ("old", test::read_file(folder_ / "out.csv"));
}

TEST_F(LibraryCommandsTest, AClickWithShiftSortsByAFurtherColumnAndOneMoreTurnsThatOne) {
    click(LibraryColumn::artist);
    click(LibraryColumn::title, Qt::ShiftModifier);
    EXPECT_TRUE(waitUntil([this] {
        return shown(LibraryColumn::title) == QStringList({"Anchor", "Sea", "Harbour"});
    }));
    click(LibraryColumn::title, Qt::ShiftModifier);
    EXPECT_TRUE(waitUntil([this] {
        return shown(LibraryColumn::title) == QStringList({"Sea", "Anchor", "Harbour"});
    }));
    const std::vector<SortKey> keys = {{LibraryColumn::artist, false}, {LibraryColumn::title, true}};
    EXPECT_EQ(keys, window_.model().sortKeys());
    click(LibraryColumn::title);
    EXPECT_EQ(1U, window_.model().sortKeys().size()) << "without Shift by it alone";
}

TEST_F(LibraryCommandsTest, WhatIsTypedInACellWhenItIsAppliedIsWritten) {
    goTo(1, LibraryColumn::title);
    press(Qt::Key_F2);
    ASSERT_NE(nullptr, qobject_cast<QLineEdit*>(QApplication::focusWidget()));
    QTest::keyClicks(QApplication::focusWidget(), "Rope");
    press(Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(waitUntil([this] { return !window_.isWriting(); }));
    auto* const dialog = window_.findChild<ApplyDialog*>();
    ASSERT_NE(nullptr, dialog) << "there was nothing to apply";
    EXPECT_EQ("1 done · 0 unchanged · 0 failed", dialog->findChild<QLabel*>("lbl_applied")->text());
    QTest::keyClick(dialog, Qt::Key_Escape);
    EXPECT_TRUE(isRead());
    EXPECT_EQ(QStringList({"Sea", "Rope", "Anchor"}), shown(LibraryColumn::title));
    EXPECT_EQ(0U, window_.model().rows().editedCount());
}

TEST_F(LibraryCommandsTest, WhatFailedIsTriedAgainWithTheKeyboardOnceItsObstacleIsGone) {
    std::filesystem::create_hard_link(folder_ / "2.mp3", folder_ / "link");
    goTo(0, LibraryColumn::album);
    selectAll();
    QApplication::clipboard()->setText("Tides");
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_S, Qt::ControlModifier);
    ASSERT_TRUE(waitUntil([this] { return !window_.isWriting(); }));
    auto* const dialog = window_.findChild<ApplyDialog*>();
    const auto* const text = dialog->findChild<QLabel*>("lbl_applied");
    auto* const failures = dialog->findChild<QTreeWidget*>("list_failures");
    EXPECT_EQ("2 done · 0 unchanged · 1 failed", text->text());
    ASSERT_EQ(1, failures->topLevelItemCount());
    EXPECT_EQ("2.mp3", failures->topLevelItem(0)->text(0));
    EXPECT_NE("", failures->topLevelItem(0)->text(1));
    EXPECT_EQ(1U, window_.model().rows().editedCount());

    std::filesystem::remove(folder_ / "link");
    QApplication::setActiveWindow(dialog);
    auto* const again = dialog->findChild<QPushButton*>("btn_tryAgain");
    for (int i = 0; i < 5 && QApplication::focusWidget() != again; ++i) {
        press(Qt::Key_Tab);
    }
    ASSERT_EQ(again, QApplication::focusWidget());
    press(Qt::Key_Space);
    ASSERT_TRUE(waitUntil([this] { return !window_.isWriting(); }));
    EXPECT_EQ("1 done · 0 unchanged · 0 failed", text->text());
    EXPECT_FALSE(failures->isVisible());
    EXPECT_FALSE(again->isVisible());
    EXPECT_EQ(0U, window_.model().rows().editedCount());
    EXPECT_EQ(2U, window_.undoCount()) << "a step for each";
}

TEST_F(LibraryCommandsTest, ProgressSaysHowFastItGoesAndHowLongItTakes) {
    ApplyDialog dialog("Apply", &window_);
    std::atomic<bool> ends = false;
    QElapsedTimer clock;
    clock.start();
    dialog.start([&ends](const ApplyProgress& progress) {
        while (!ends) {
            progress(100, 1100);
            QTest::qSleep(5);
        }
        return std::vector<ApplyResult>(1100);
    });
    const QRegularExpression form("^100 / 1,100 files · ([0-9.,]+) a second · (\\d+):(\\d\\d) left$");
    QRegularExpressionMatch match;
    ASSERT_TRUE(waitUntil([&] {
        match = form.match(dialog.findChild<QLabel*>("lbl_applied")->text());
        return match.hasMatch() && clock.elapsed() > 1000;
    }));
    const double rate = QLocale().toDouble(match.captured(1));
    const double seconds = match.captured(2).toInt() * 60 + match.captured(3).toInt();
    EXPECT_LE(rate, 120.0) << "100 files took a second, less one step of the display";
    EXPECT_GT(rate, 20.0);
    EXPECT_NEAR(1000 / rate, seconds, 0.6 + 1000 / rate / rate);
    ends = true;
    EXPECT_TRUE(waitUntil([&] { return !dialog.isRunning(); }));
}

} // namespace
} // namespace velmora
