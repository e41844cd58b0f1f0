#include "cover_art_fixture.h"

#include "support/contrast.h"
#include "support/drag_session.h"

#include <QSignalSpy>
#include <QUrl>

namespace velmora::test {
namespace {

/** Drawing, and what a user who does not see it is told. */
class CoverArtViewDrawing : public CoverArtViewTest {
protected:
    CoverArtViewDrawing() {
        QPalette palette;
        palette.setColor(QPalette::Active, QPalette::Highlight, QColor(100, 200, 50));
        palette.setColor(QPalette::Inactive, QPalette::Highlight, Qt::gray);
        view->setPalette(palette);
    }

    /** A frame 2 wide inside the view's edges in the accent colour, each component times 0.6, and none of it
       further in. */
    [[nodiscard]] static bool showsFrame(const QImage& picture) {
        const QColor frame(60, 120, 30);
        const int right = picture.width() - 1;
        const int bottom = picture.height() - 1;
        for (int y = 0; y <= bottom; ++y) {
            for (int x = 0; x <= right; ++x) {
                const bool edge = x < 2 || y < 2 || x > right - 2 || y > bottom - 2;
                if ((picture.pixelColor(x, y) == frame) != edge) {
                    return false;
                }
            }
        }
        return true;
    }

    [[nodiscard]] static int count(const QImage& picture, const QColor& colour) {
        int pixels = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                pixels += picture.pixelColor(x, y) == colour ? 1 : 0;
            }
        }
        return pixels;
    }

    /** The rectangle around all pixels of COLOUR. */
    [[nodiscard]] static QRect area(const QImage& picture, const QColor& colour) {
        QRect found;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) == colour) {
                    found = found.united(QRect(x, y, 1, 1));
                }
            }
        }
        return found;
    }
};

TEST_F(CoverArtViewDrawing, AHoveringDragIsFramedInTheDarkenedAccentColour) {
    view->setImage(plain(Qt::red));
    view->setFocusRingType(CoverArtView::FocusRingType::Default);
    EXPECT_TRUE(showsFrame(picture()));
}

TEST_F(CoverArtViewDrawing, TheFrameIsDrawnOverAnEmptyView) {
    view->setFocusRingType(CoverArtView::FocusRingType::Default);
    EXPECT_TRUE(showsFrame(picture()));
}

TEST_F(CoverArtViewDrawing, ADragThatEntersAndLeavesLeavesNoFrameBehind) {
    view->setImage(plain(Qt::red));
    const QImage before = picture();
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile("/nowhere/a.jpg")});
    DragSession drag(*view, data);
    ASSERT_TRUE(drag.enter());
    EXPECT_TRUE(showsFrame(picture()));
    drag.leave();
    EXPECT_EQ(before, picture());
}

TEST_F(CoverArtViewDrawing, ADropLeavesNoFrameBehind) {
    QMimeData data;
    data.setImageData(plain(Qt::red));
    DragSession drag(*view, data);
    ASSERT_TRUE(drag.enter());
    ASSERT_TRUE(drag.drop());
    EXPECT_EQ(0, count(picture(), QColor(60, 120, 30)));
}

TEST_F(CoverArtViewDrawing, TheKeyboardFocusDrawsNoFrame) {
    QApplication::setActiveWindow(&window);
    view->clearFocus();
    const QImage before = picture();
    view->setFocus();
    EXPECT_EQ(before, picture());
}

TEST_F(CoverArtViewDrawing, AnImageThatFitsIsShownAtItsNominalSizeInTheMiddle) {
    view->setImage(plain(Qt::red, QSize(60, 40)));
    const QRect shown = area(picture(), Qt::red);
    EXPECT_EQ(QSize(60, 40), shown.size());
    EXPECT_LE((shown.center() - view->rect().center()).manhattanLength(), 2);
}

TEST_F(CoverArtViewDrawing, TheDevicePixelRatioGivesTheNominalSize) {
    QImage image = plain(Qt::red, QSize(640, 480));
    image.setDevicePixelRatio(8);
    view->setImage(image);
    EXPECT_EQ(QSize(80, 60), area(picture(), Qt::red).size());
}

TEST_F(CoverArtViewDrawing, AnImageThatIsTooLargeIsShownWholeWithItsProportions) {
    view->setImage(plain(Qt::red, QSize(2000, 1000)));
    const QRect shown = area(picture(), Qt::red);
    EXPECT_EQ(shown.width(), view->contentsRect().width());
    EXPECT_NEAR(shown.height(), shown.width() / 2.0, 1);
}

TEST_F(CoverArtViewDrawing, AnotherSizeOfTheViewShowsTheImageAtAnotherSize) {
    view->setImage(plain(Qt::red, QSize(1000, 1000)));
    const int before = area(picture(), Qt::red).width();
    window.resize(120, 120);
    QApplication::processEvents();
    const int after = area(picture(), Qt::red).width();
    EXPECT_LT(after, before);
    EXPECT_EQ(after, std::min(view->contentsRect().width(), view->contentsRect().height()));
}

TEST_F(CoverArtViewDrawing, ANewImageReplacesTheOneDrawnBefore) {
    view->setImage(plain(Qt::red));
    EXPECT_GT(count(picture(), Qt::red), 0);
    view->setImage(plain(Qt::blue));
    EXPECT_EQ(0, count(picture(), Qt::red));
    EXPECT_GT(count(picture(), Qt::blue), 0);
}

TEST_F(CoverArtViewDrawing, AnEmptyViewShowsAPlaceholder) {
    const QImage empty = picture();
    view->setImage(plain(Qt::red));
    view->setImage(QImage());
    EXPECT_EQ(empty, picture());
    QPalette palette = view->palette();
    palette.setColor(QPalette::WindowText, Qt::magenta);
    view->setPalette(palette);
    EXPECT_NE(picture(), empty);
}

TEST_F(CoverArtViewDrawing, ThePlaceholderIsReadableInLightAndDark) {
    const QList<QPair<QColor, QColor>> grounds = {{QColor(239, 239, 239), Qt::black},
                                                  {QColor(35, 38, 41), QColor(252, 252, 252)}};
    for (const auto& [ground, text] : grounds) {
        QPalette palette = view->palette();
        palette.setColor(QPalette::Window, ground);
        palette.setColor(QPalette::WindowText, text);
        // Many a theme leaves this as it is.
        palette.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
        view->setPalette(palette);
        const double found = contrast(picture().copy(view->rect().adjusted(8, 8, -8, -8)));
        EXPECT_GT(found, 3) << ground.name().toStdString();
        EXPECT_LT(found, 8) << "greyed, on " << ground.name().toStdString();
    }
}

TEST_F(CoverArtViewDrawing, SettingTheImageTellsWhoeverListensButNotTheController) {
    QSignalSpy changes(view, &CoverArtView::imageChanged);
    view->setImage(plain(Qt::red));
    EXPECT_EQ(1, changes.count());
    EXPECT_TRUE(receiver.calls.empty());
}

TEST_F(CoverArtViewDrawing, TheViewIsNamedAndReachableByTab) {
    EXPECT_EQ("Cover art", view->accessibleName());
    EXPECT_FALSE(view->toolTip().isEmpty());
    EXPECT_TRUE(view->focusPolicy() & Qt::TabFocus);
}

} // namespace
} // namespace velmora::test
