// Drags with a real mouse pointer on an X server, from another program into the cover art view.

#include "cover_art_fixture.h"

#include "support/scratch_folder.h"
#include "support/waiting.h"

#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QtTest/QTest>

namespace velmora::test {
namespace {

using Ring = CoverArtView::FocusRingType;

class CoverArtViewOnX11 : public CoverArtViewTest {
protected:
    static constexpr int patience = 20000;

    CoverArtViewOnX11() {
        window.setGeometry(400, 100, 220, 200);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    }
    ~CoverArtViewOnX11() override {
        xdotool({"mouseup", "1"});
        source.terminate();
        source.waitForFinished();
    }

    /** Starts the program to drag from, and takes its files (or its image) by the mouse. */
    void pickUp(const QStringList& arguments) {
        source.setStandardErrorFile(QProcess::nullDevice());
        source.start(QStringLiteral(DRAG_SOURCE), arguments);
        ASSERT_TRUE(source.waitForStarted());
        xdotool({"search", "--sync", "--onlyvisible", "--pid", QString::number(source.processId())});
        xdotool({"mousemove", "100", "100"});
        xdotool({"mousedown", "1"});
        moveTo(QPoint(100, 100), QPoint(140, 140));
    }

    void moveOverView() { moveTo(QPoint(140, 140), place()); }
    void moveAway() { moveTo(place(), QPoint(700, 500)); }
    /** Ends the drag, and waits until the program that it came from knows: nothing more of it comes then. */
    void release() {
        xdotool({"mouseup", "1"});
        EXPECT_TRUE(QTest::qWaitFor([this] { return source.canReadLine(); }, patience));
        settle();
    }

    /** Leaves a picture of the screen in the folder that VELMORA_SCREENSHOTS names, if it names one. */
    static void takeScreenshot(const QString& name) {
        const QString folder = qEnvironmentVariable("VELMORA_SCREENSHOTS");
        if (!folder.isEmpty()) {
            EXPECT_TRUE(QGuiApplication::primaryScreen()->grabWindow(0).save(folder + '/' + name));
        }
    }

    QProcess source;

private:
    [[nodiscard]] QPoint place() const { return view->mapToGlobal(view->rect().center()); }

    void moveTo(QPoint from, QPoint to) {
        constexpr int steps = 8;
        for (int i = 1; i <= steps; ++i) {
            const QPoint at = from + (to - from) * i / steps;
            xdotool({"mousemove", QString::number(at.x()), QString::number(at.y())});
            QTest::qWait(30);
        }
    }

    /** Runs while the view's own events go on. */
    static void xdotool(const QStringList& arguments) {
        QProcess process;
        process.start(QStringLiteral("xdotool"), arguments);
        EXPECT_TRUE(QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, patience));
        EXPECT_EQ(0, process.exitCode()) << arguments.join(' ').toStdString();
    }
};

TEST_F(CoverArtViewOnX11, AnImageFileIsDroppedWithTheMouse) {
    const ScratchFolder folder;
    const QString path = QString::fromStdString(folder / "red #1.png");
    ASSERT_TRUE(plain(Qt::red).save(path));
    pickUp({path});
    moveOverView();
    EXPECT_TRUE(QTest::qWaitFor([this] { return view->focusRingType() == Ring::Default; }, patience));
    takeScreenshot("drag_hovering.png");
    release();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !receiver.calls.empty(); }, patience));
    takeScreenshot("drag_dropped.png");
    EXPECT_EQ(1U, receiver.calls.size());
    EXPECT_EQ(Ring::None, view->focusRingType());
    EXPECT_FALSE(view->image().isNull());
    EXPECT_EQ("in draggingEntered:\nin prepareForDragOperation:\nin performDragOperation:\n", log->text());
}

TEST_F(CoverArtViewOnX11, AnImageWithoutAFileIsDroppedWithTheMouse) {
    pickUp({"--image"});
    moveOverView();
    EXPECT_TRUE(QTest::qWaitFor([this] { return view->focusRingType() == Ring::Default; }, patience));
    release();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !receiver.calls.empty(); }, patience));
    ASSERT_FALSE(view->image().isNull());
    EXPECT_EQ(QColor(Qt::green), view->image().pixelColor(5, 5));
}

TEST_F(CoverArtViewOnX11, AFileThatIsOnlyOfferedToBeMovedIsCopied) {
    const ScratchFolder folder;
    const QString path = QString::fromStdString(folder / "red.png");
    ASSERT_TRUE(plain(Qt::red).save(path));
    pickUp({"--move", path});
    moveOverView();
    EXPECT_TRUE(QTest::qWaitFor([this] { return view->focusRingType() == Ring::Default; }, patience));
    release();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !receiver.calls.empty(); }, patience));
    EXPECT_FALSE(view->image().isNull());
    EXPECT_NE(source.readLine().toInt(), int{Qt::MoveAction}) << "the source would delete its file";
}

TEST_F(CoverArtViewOnX11, ADragThatLeavesAgainChangesNothing) {
    pickUp({"/nowhere/a.png"});
    moveOverView();
    EXPECT_TRUE(QTest::qWaitFor([this] { return view->focusRingType() == Ring::Default; }, patience));
    moveAway();
    EXPECT_TRUE(QTest::qWaitFor([this] { return view->focusRingType() == Ring::None; }, patience));
    release();
    EXPECT_TRUE(receiver.calls.empty());
    EXPECT_EQ("in draggingEntered:\nin draggingExited:\n", log->text());
}

} // namespace
} // namespace velmora::test
