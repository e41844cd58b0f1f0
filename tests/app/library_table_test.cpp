// The library table over the program's list of files.

#include "window_fixture.h"

#include "library/library_window.h"

#include <QApplication>
#include <QTest>

namespace velmora {
namespace {

using test::settle;
using test::taggedFile;
using test::text4;
using test::waitUntil;

class LibraryTableTest : public test::WindowTest {
protected:
    void openLibrary() {
        QApplication::setActiveWindow(document().window());
        QTest::keyClick(document().window(), Qt::Key_T, Qt::ControlModifier);
        settle();
        ASSERT_NE(nullptr, document().library());
    }
    [[nodiscard]] LibraryModel& files() { return document().library()->model(); }
};

TEST_F(LibraryTableTest, ControlAndTShowsTheListedFilesAndThoseThatCome) {
    addFile("a.mp3", taggedFile(text4("TIT2", "Sea")));
    openLibrary();
    EXPECT_TRUE(document().library()->isVisible());
    EXPECT_TRUE(waitUntil([this] { return files().rowCount() == 1; }));
    addFile("b.mp3", taggedFile(text4("TIT2", "Boat")));
    EXPECT_TRUE(waitUntil([this] { return files().rowCount() == 2; }));
    EXPECT_EQ("b.mp3", files().index(1, static_cast<int>(LibraryColumn::name)).data().toString());
}

TEST_F(LibraryTableTest, ClosingItLeavesTheProgramRunning) {
    openLibrary();
    document().library()->close();
    settle();
    EXPECT_FALSE(document().library()->isVisible());
    EXPECT_FALSE(termination_.isTerminating());
    openLibrary();
    EXPECT_TRUE(document().library()->isVisible());
}

} // namespace
} // namespace velmora
