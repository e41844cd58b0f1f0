#include "cover_art_fixture.h"

#include "support/scratch_folder.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QUrl>
#include <QtTest/QTest>

namespace velmora::test {
namespace {

class CoverArtViewClipboard : public CoverArtViewTest {
protected:
    CoverArtViewClipboard() {
        QApplication::clipboard()->clear();
        QApplication::setActiveWindow(&window);
        view->setFocus();
    }

    [[nodiscard]] static QImage clipboardImage() { return QApplication::clipboard()->image(); }

    [[nodiscard]] QAction* action(QKeySequence::StandardKey key) const {
        for (QAction* candidate : view->actions()) {
            if (candidate->shortcuts() == QKeySequence::keyBindings(key)) {
                return candidate;
            }
        }
        return nullptr;
    }
};

TEST_F(CoverArtViewClipboard, CopyPutsTheImageOnTheClipboardAndKeepsIt) {
    view->setImage(plain(Qt::red));
    view->copy();
    EXPECT_EQ(plain(Qt::red), clipboardImage().convertToFormat(QImage::Format_RGB32));
    EXPECT_EQ(plain(Qt::red), view->image());
}

TEST_F(CoverArtViewClipboard, CutPutsTheImageOnTheClipboardAndEmptiesTheView) {
    view->setImage(plain(Qt::red));
    view->cut();
    EXPECT_EQ(plain(Qt::red), clipboardImage().convertToFormat(QImage::Format_RGB32));
    EXPECT_TRUE(view->image().isNull());
}

TEST_F(CoverArtViewClipboard, PasteShowsTheClipboardsImage) {
    QApplication::clipboard()->setImage(plain(Qt::green));
    view->paste();
    EXPECT_EQ(plain(Qt::green), view->image().convertToFormat(QImage::Format_RGB32));
}

TEST_F(CoverArtViewClipboard, PasteTakesAFileCopiedInAFileManager) {
    const ScratchFolder folder;
    const QString path = QString::fromStdString(folder / "a.png");
    ASSERT_TRUE(plain(Qt::red).save(path));
    auto* data = new QMimeData;
    data->setUrls({QUrl::fromLocalFile(path)});
    QApplication::clipboard()->setMimeData(data);
    view->paste();
    EXPECT_EQ(QColor(Qt::red), view->image().pixelColor(0, 0));
}

TEST_F(CoverArtViewClipboard, PasteOfTextChangesNothing) {
    view->setImage(plain(Qt::red));
    QApplication::clipboard()->setText("some text");
    view->paste();
    EXPECT_EQ(plain(Qt::red), view->image());
}

TEST_F(CoverArtViewClipboard, PasteOfAnEmptyClipboardChangesNothing) {
    view->setImage(plain(Qt::red));
    view->paste();
    EXPECT_EQ(plain(Qt::red), view->image());
}

TEST_F(CoverArtViewClipboard, CutAndCopyOfNothingLeaveTheClipboardAlone) {
    QApplication::clipboard()->setText("some text");
    QSignalSpy changes(view, &CoverArtView::imageChanged);
    view->cut();
    view->copy();
    EXPECT_EQ("some text", QApplication::clipboard()->text());
    EXPECT_EQ(0, changes.count());
}

TEST_F(CoverArtViewClipboard, TheControllerIsNotToldAndNothingIsLogged) {
    view->setImage(plain(Qt::red));
    view->copy();
    view->cut();
    view->paste();
    EXPECT_TRUE(receiver.calls.empty());
    EXPECT_EQ("", log->text());
}

TEST_F(CoverArtViewClipboard, TheStandardKeysWork) {
    view->setImage(plain(Qt::red));
    QTest::keySequence(view, QKeySequence::Copy);
    EXPECT_FALSE(clipboardImage().isNull());
    QTest::keySequence(view, QKeySequence::Cut);
    EXPECT_TRUE(view->image().isNull());
    QTest::keySequence(view, QKeySequence::Paste);
    EXPECT_FALSE(view->image().isNull());
}

TEST_F(CoverArtViewClipboard, CutAndCopyAreEnabledOnlyWithAnImage) {
    ASSERT_TRUE(action(QKeySequence::Cut) && action(QKeySequence::Copy));
    EXPECT_FALSE(action(QKeySequence::Cut)->isEnabled());
    EXPECT_FALSE(action(QKeySequence::Copy)->isEnabled());
    view->setImage(plain(Qt::red));
    EXPECT_TRUE(action(QKeySequence::Cut)->isEnabled());
    EXPECT_TRUE(action(QKeySequence::Copy)->isEnabled());
}

/** The texts of the enabled entries of the view's context menu. */
QStringList enabledEntries(CoverArtView& view) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(5, 5), view.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&view, &event);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QStringList entries;
    if (menu) {
        for (const QAction* action : menu->actions()) {
            if (action->isEnabled()) {
                entries << action->text();
            }
        }
        menu->close();
    }
    return entries;
}

TEST_F(CoverArtViewClipboard, TheContextMenuOffersWhatCanBeDone) {
    EXPECT_EQ(QStringList(), enabledEntries(*view));
    view->setImage(plain(Qt::red));
    EXPECT_EQ(QStringList({"Cu&t", "&Copy"}), enabledEntries(*view));
    view->copy();
    EXPECT_EQ(QStringList({"Cu&t", "&Copy", "&Paste"}), enabledEntries(*view));
}

TEST_F(CoverArtViewClipboard, PasteByKeyWorksAgainAfterAMenuThatHadNothingToPaste) {
    EXPECT_EQ(QStringList(), enabledEntries(*view));
    QApplication::clipboard()->setImage(plain(Qt::green));
    QTest::keySequence(view, QKeySequence::Paste);
    EXPECT_FALSE(view->image().isNull());
}

} // namespace
} // namespace velmora::test
