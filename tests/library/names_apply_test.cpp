// New names that files get from one another, and applies that follow one another, in the
// library table's window.

#include "tagged_songs.h"

#include "library/library_window.h"
#include "support/waiting.h"

#include <QApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace velmora {
namespace {

using test::song;
using test::waitUntil;
using test::written;

class NamesApplyTest : public testing::Test {
protected:
    NamesApplyTest() {
        for (const char* name : {"a", "b", "c"}) {
            const std::string bytes = song(std::string("of ") + name, "x");
            window_.model().addFile(written(folder_, std::string(name) + ".mp3", bytes), bytes.size());
        }
        window_.present();
        QApplication::setActiveWindow(&window_);
        EXPECT_TRUE(
            waitUntil([this] { return window_.model().rowCount() == 3 && window_.model().unread() == 0; }));
    }

    void rename(int file, const char* name) {
        RowEdits edits;
        edits.name = name;
        window_.model().setEdits(file, edits);
    }
    void setTitle(int file, const char* title) {
        RowEdits edits;
        edits.text(portable::Field::title) = portable::Edit<std::string>::set(title);
        window_.model().setEdits(file, edits);
    }
    void wait() {
        EXPECT_TRUE(waitUntil([this] { return !window_.isWriting(); }));
        QTest::keyClick(window_.findChild<ApplyDialog*>(), Qt::Key_Escape);
        EXPECT_TRUE(waitUntil([this] { return window_.model().unread() == 0; }));
    }
    void apply() {
        window_.apply();
        wait();
    }
    void undo() {
        window_.undoApply();
        wait();
    }
    [[nodiscard]] QString text(int file, LibraryColumn column) {
        return window_.model().rows().text(file, column);
    }
    [[nodiscard]] QString path(const char* name) const { return QString::fromStdString(folder_ / name); }

    test::ScratchFolder folder_;
    LibraryWindow window_;
};

TEST_F(NamesApplyTest, RowsFollowTheirFilesWhenTheseExchangeNames) {
    rename(0, "b.mp3");
    rename(1, "c.mp3");
    rename(2, "a.mp3");
    apply();
    EXPECT_EQ(1, window_.model().rows().find(path("c.mp3")));
    EXPECT_EQ(2, window_.model().rows().find(path("a.mp3")));
    EXPECT_EQ(0, window_.model().rows().find(path("b.mp3")));
    EXPECT_EQ("of a", text(0, LibraryColumn::title));
    EXPECT_EQ("b.mp3", text(0, LibraryColumn::name));
    undo();
    EXPECT_EQ(0, window_.model().rows().find(path("a.mp3")));
    EXPECT_EQ(1, window_.model().rows().find(path("b.mp3")));
    EXPECT_EQ("of a", text(0, LibraryColumn::title));
}

TEST_F(NamesApplyTest, AppliesAreTakenBackOneAfterTheOther) {
    setTitle(0, "second");
    apply();
    rename(0, "d.mp3");
    apply();
    setTitle(0, "third");
    apply();
    ASSERT_EQ(3U, window_.undoCount());
    undo();
    EXPECT_EQ("second", text(0, LibraryColumn::title));
    undo();
    EXPECT_EQ("a.mp3", text(0, LibraryColumn::name));
    undo();
    EXPECT_EQ("of a", text(0, LibraryColumn::title));
    EXPECT_EQ(0U, window_.undoCount());
}

TEST_F(NamesApplyTest, AFileThatAnotherProgramChangedBetweenAppliesKeepsThatChange) {
    setTitle(0, "second");
    apply();
    test::write_file(folder_ / "a.mp3", song("by another program", "y"));
    window_.model().readAgain(0);
    EXPECT_TRUE(waitUntil([this] { return text(0, LibraryColumn::title) == "by another program"; }));
    setTitle(0, "third");
    apply();
    undo();
    EXPECT_EQ("by another program", text(0, LibraryColumn::title));
    undo();
    EXPECT_EQ("by another program", text(0, LibraryColumn::title));
}

} // namespace
} // namespace velmora
