#include "window_fixture.h"

#include "platform/modal_loop.h"
#include "support/bytes.h"

#include <QAction>
#include <QApplication>

#include <unistd.h>

namespace velmora {
namespace {

using test::QuestionAnswerer;
using test::taggedFile;
using test::text4;

class QuittingTest : public test::WindowTest {};

TEST_F(QuittingTest, ClosingTheWindowEndsTheApplication) {
    openFile();
    EXPECT_TRUE(document().window()->close());
    EXPECT_TRUE(termination_.isTerminating());
    EXPECT_EQ(nullptr, document().mediaFile());
    EXPECT_EQ(1, logged("in ast\n"));
}

TEST_F(QuittingTest, ClosingWithChangesAsksAndCancelKeepsTheWindow) {
    openFile();
    type("entry_title", "edited");
    const QuestionAnswerer answer(*document().window(), "Cancel");
    EXPECT_FALSE(document().window()->close());
    EXPECT_EQ(1, answer.questions());
    EXPECT_TRUE(document().window()->isVisible());
    EXPECT_FALSE(termination_.isTerminating());
    EXPECT_EQ("edited", file().title());
}

TEST_F(QuittingTest, ClosingWithChangesAsksOnceAndSaves) {
    openFile();
    type("entry_title", "edited");
    const QuestionAnswerer answer(*document().window(), "Save");
    EXPECT_TRUE(document().window()->close());
    EXPECT_EQ(1, answer.questions());
    EXPECT_TRUE(termination_.isTerminating());
    EXPECT_EQ(taggedFile(text4("TIT2", "edited")), test::read_file(folder_ / "a.mp3"));
}

TEST_F(QuittingTest, QuittingWithoutChangesAsksNothing) {
    openFile();
    EXPECT_EQ(ApplicationDelegate::TerminateReply::Now, document().applicationShouldTerminate());
    EXPECT_EQ(1, logged("in ast\n"));
}

TEST_F(QuittingTest, QuittingWithChangesAsksAndCancelGoesOn) {
    openFile();
    type("entry_title", "edited");
    const QuestionAnswerer answer(*document().window(), "Cancel");
    document().window()->findChild<QAction*>("action_quit")->trigger();
    EXPECT_EQ(1, answer.questions());
    EXPECT_FALSE(termination_.isTerminating());
}

TEST_F(QuittingTest, QuittingAndNotSavingEnds) {
    openFile();
    type("entry_title", "edited");
    const QuestionAnswerer answer(*document().window(), "Don't Save");
    document().window()->findChild<QAction*>("action_quit")->trigger();
    EXPECT_TRUE(termination_.isTerminating());
    EXPECT_EQ(taggedFile(text4("TIT2", "Z")), test::read_file(folder_ / "a.mp3"));
}

TEST_F(QuittingTest, LastWindowsCloseIsAskedForAndGranted) {
    EXPECT_TRUE(document().applicationShouldTerminateAfterLastWindowClosed());
    EXPECT_EQ(1, logged("in astalwc\n"));
}

TEST_F(QuittingTest, ApplicationAsksTheDocumentOnceItsWindowIsLoaded) {
    ApplicationTermination other;
    MyDocument fresh(other);
    fresh.windowControllerDidLoadNib();
    other.terminate();
    EXPECT_EQ(1, logged("in ast\n"));
}

TEST_F(QuittingTest, WindowStaysWhileTheQuestionIsOnTheScreen) {
    openFile();
    type("entry_title", "edited");
    bool closedMeanwhile = true;
    QTimer::singleShot(20, document().window(), [&] {
        closedMeanwhile = document().window()->close();
        document().window()->findChild<QMessageBox*>()->reject();
    });
    (void)document().handleDirtySave();
    EXPECT_FALSE(closedMeanwhile);
    EXPECT_TRUE(document().window()->isVisible());
}

TEST_F(QuittingTest, WindowCanBeClosedWhileTheProgramWaitsForSomethingElse) {
    openFile();
    const ModalLoop pageOnItsWay;
    EXPECT_TRUE(document().window()->close());
    EXPECT_TRUE(termination_.isTerminating());
}

TEST_F(QuittingTest, DestroyingTheDocumentDuringASearchEndsIt) {
    // Two ways back to the start in every folder: this search would not end in a lifetime.
    for (const char* name : {"/again", "/andAgain"}) {
        ASSERT_EQ(0, ::symlink(".", (folder_.path() + name).c_str()));
    }
    controller().search().queueFolders({path("")});
    ASSERT_TRUE(test::waitUntil([this] { return logged("search: entering ") > 20; }));
    document_.reset();
    EXPECT_TRUE(log().ends_with("search thread exiting\n"));
}

TEST_F(QuittingTest, CloseCommandClosesTheWindow) {
    document().window()->findChild<QAction*>("action_close")->trigger();
    EXPECT_FALSE(document().window()->isVisible());
    EXPECT_TRUE(termination_.isTerminating());
}

} // namespace
} // namespace velmora
