// How the window is laid out: what has room where, and that nothing gets out of reach on small screens.

#include "window_fixture.h"

#include "platform/web/web_view.h"
#include "support/bytes.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QTest>
#include <QWheelEvent>

namespace velmora {
namespace {

using test::text4;

class LayoutTest : public test::WindowTest {
protected:
    QRect place(const char* name) {
        const QWidget& control = widget<QWidget>(name);
        return {control.mapTo(document().window(), QPoint()), control.size()};
    }
    WebView& page() { return widget<WebView>("webview_search"); }
    void startLoad() { emit page().didStartProvisionalLoad(&page(), page().mainFrame()); }
    int panelHeight() {
        test::settle();
        return widget<QWidget>("twb_browser").height();
    }
};

TEST_F(LayoutTest, WindowIsNoLargerThanTheScreen) {
    const QSize room = document().window()->screen()->availableSize();
    EXPECT_LE(document().window()->frameSize().width(), room.width());
    EXPECT_LE(document().window()->frameSize().height(), room.height());
}

TEST_F(LayoutTest, SynopsisIsAsWideAsTheFieldsAboveIt) {
    for (const QSize size : {QSize(1024, 700), QSize(1920, 1080)}) {
        document().window()->resize(size);
        test::settle();
        EXPECT_EQ(place("entry_title").left(), place("entry_desc").left());
        EXPECT_EQ(place("combo_rating").right(), place("entry_desc").right());
        EXPECT_LT(place("entry_desc").bottom(), place("picker_dateTime").top());
    }
}

TEST_F(LayoutTest, DateIsEmptyBeforeTheFirstFileAndStaysAfterwards) {
    auto& picker = widget<QDateTimeEdit>("picker_dateTime");
    EXPECT_EQ("", picker.text().trimmed().toStdString());
    openFile();
    EXPECT_EQ(file().dateTime().date(), picker.date());
    const QString shown = picker.text();
    EXPECT_NE("", shown.trimmed());
    select(-1);
    EXPECT_EQ(shown, picker.text());
}

TEST_F(LayoutTest, EmptyListSaysWhatItIsFor) {
    const auto& hint = widget<QLabel>("lbl_noFiles");
    EXPECT_TRUE(hint.isVisible());
    EXPECT_EQ("No media files yet. Add files, or a folder to search, with the buttons above.", hint.text());
    emit controller().search().progressAnimationChanged(true);
    EXPECT_EQ("Looking for films and music…", hint.text());
    emit controller().search().progressAnimationChanged(false);
    addFile("a.mp3", "x");
    EXPECT_FALSE(hint.isVisible());
}

TEST_F(LayoutTest, EmptyListTakesClicksThroughItsHint) {
    EXPECT_TRUE(widget<QLabel>("lbl_noFiles").testAttribute(Qt::WA_TransparentForMouseEvents));
}

TEST_F(LayoutTest, WebPanelIsItsBarUntilThereIsAPage) {
    EXPECT_FALSE(page().isVisible());
    EXPECT_LE(panelHeight(), 2 * widget<QWidget>("btn_search").height());
    startLoad();
    EXPECT_TRUE(page().isVisible());
    EXPECT_GE(panelHeight(), widget<QSplitter>("split_main").height() / 3);
}

TEST_F(LayoutTest, FirstSearchThatFailsGivesTheRoomBackAndSaysSo) {
    const int before = panelHeight();
    startLoad();
    EXPECT_FALSE(widget<QLabel>("lbl_loadFailed").isVisible());
    emit page().didFailLoad(&page(), page().mainFrame());
    EXPECT_FALSE(page().isVisible());
    EXPECT_TRUE(widget<QLabel>("lbl_loadFailed").isVisible());
    EXPECT_LE(panelHeight(), 3 * before);
    startLoad();
    EXPECT_TRUE(page().isVisible());
    EXPECT_FALSE(widget<QLabel>("lbl_loadFailed").isVisible());
    EXPECT_GE(panelHeight(), widget<QSplitter>("split_main").height() / 3);
}

TEST_F(LayoutTest, FirstSearchThatFailsGivesTheRoomBackUnderItsAddressToo) {
    const int before = panelHeight();
    startLoad();
    emit page().didFailLoad(&page(), page().mainFrame());
    test::settle();
    emit page().addressChanged(QUrl(QStringLiteral("http://www.example.org/find?q=Harbour")));
    test::settle();
    EXPECT_TRUE(widget<QWidget>("entry_address").isVisible());
    EXPECT_LE(panelHeight(), 4 * before);
    const QSplitter& split = widget<QSplitter>("split_main");
    EXPECT_EQ(split.height(), split.widget(1)->geometry().bottom() + 1);
    EXPECT_EQ(split.widget(1)->y() - split.handleWidth(), split.widget(0)->height());
}

TEST_F(LayoutTest, PageThatWasThereKeepsItsRoomWhenTheNextOneFails) {
    startLoad();
    emit page().didFinishLoad(&page(), page().mainFrame());
    const int before = panelHeight();
    startLoad();
    emit page().didFailLoad(&page(), page().mainFrame());
    EXPECT_TRUE(page().isVisible());
    EXPECT_EQ(before, panelHeight());
}

TEST_F(LayoutTest, DividedWindowKeepsTheUsersDivisionOverAFailedSearch) {
    startLoad();
    auto& split = widget<QSplitter>("split_main");
    const int height = split.height();
    split.setSizes({height * 2 / 3, height / 3});
    const QList<int> chosen = split.sizes();
    emit page().didFailLoad(&page(), page().mainFrame());
    test::settle();
    startLoad();
    test::settle();
    EXPECT_NEAR(chosen.value(1), split.sizes().value(1), 4);
}

TEST_F(LayoutTest, WheelOverTheSiteWithoutTheFocusChangesNothing) {
    auto& site = widget<QComboBox>("combo_search");
    entry("entry_title").setFocus();
    QWheelEvent wheel(QPointF(5, 5), site.mapToGlobal(QPointF(5, 5)), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    qApp->notify(&site, &wheel);
    EXPECT_EQ(0, site.currentIndex());
    EXPECT_FALSE(wheel.isAccepted());
    EXPECT_FALSE(site.hasFocus()) << "nor does it take the focus";
}

TEST_F(LayoutTest, EveryButtonAndCommandHasASign) {
    const auto isDrawn = [](const QIcon& icon) {
        const QImage picture = icon.pixmap(16).toImage();
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y).alpha() > 100) {
                    return true;
                }
            }
        }
        return false;
    };
    for (const auto* button : document().window()->findChildren<QPushButton*>()) {
        EXPECT_TRUE(isDrawn(button->icon())) << button->objectName().toStdString();
    }
    int commands = 0;
    for (const auto* action : document().window()->findChildren<QAction*>()) {
        if (action->objectName().startsWith("action_")) {
            ++commands;
            EXPECT_TRUE(isDrawn(action->icon())) << action->objectName().toStdString();
        }
    }
    EXPECT_EQ(24, commands);
}

class SmallWindowTest : public LayoutTest, public testing::WithParamInterface<QSize> {
protected:
    /** The window in that size, with every button in use, a film in the form and a page in the panel. */
    void showFilm() {
        openFile("a.mp4", text4("TALB", "Film"));
        // What the preview has to say takes room of its own.
        EXPECT_TRUE(test::waitUntil([this] { return widget<QLabel>("lbl_previewFailed").isVisible(); }));
        emit page().didStartProvisionalLoad(&page(), page().mainFrame());
        document().window()->resize(GetParam());
        for (auto* button : document().window()->findChildren<QPushButton*>()) {
            button->setEnabled(true);
        }
        QApplication::setActiveWindow(document().window());
        test::settle();
        EXPECT_EQ(GetParam(), document().window()->size());
    }
    void scrollAllTo(bool end) {
        for (auto* area : document().window()->findChildren<QScrollArea*>()) {
            for (QScrollBar* bar : {area->horizontalScrollBar(), area->verticalScrollBar()}) {
                bar->setValue(end ? bar->maximum() : 0);
            }
        }
        test::settle();
    }
    /** Presses Tab, or Backtab, all the way round. Returns the buttons and fields that had the focus, and
       complains of those that were not to be seen whole then. */
    QSet<const QWidget*> tabRound(Qt::Key key) {
        QSet<const QWidget*> reached;
        widget<QWidget>("btn_addFile").setFocus();
        test::settle();
        for (int presses = 0; presses < 100; ++presses) {
            const QWidget* const focused = QApplication::focusWidget();
            if (!focused || (presses > 1 && focused->objectName() == "btn_addFile")) {
                break;
            }
            const bool isSmall = qobject_cast<const QPushButton*>(focused) ||
                                 qobject_cast<const QLineEdit*>(focused) ||
                                 qobject_cast<const QComboBox*>(focused);
            if (isSmall) {
                EXPECT_EQ(focused->rect(), focused->visibleRegion().boundingRect())
                    << focused->objectName().toStdString();
                reached += focused;
            }
            QTest::keyClick(const_cast<QWidget*>(focused), key);
            test::settle();
        }
        return reached;
    }
};

TEST_P(SmallWindowTest, EveryButtonIsReachedByTabAndSeenThen) {
    showFilm();
    for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
        scrollAllTo(key == Qt::Key_Tab);
        const QSet<const QWidget*> reached = tabRound(key);
        for (const auto* button : document().window()->findChildren<QPushButton*>()) {
            // One is there only while a cover is waited for.
            EXPECT_TRUE(reached.contains(button) || button->objectName() == u"btn_cancelCover")
                << button->objectName().toStdString();
        }
        EXPECT_GE(reached.size(), 18);
    }
}

// Two common screens; what a screen of 1366 x 768 has at 200 %, less a panel and the frame; and less still.
INSTANTIATE_TEST_SUITE_P(Sizes, SmallWindowTest,
                         testing::Values(QSize(1024, 700), QSize(1350, 720), QSize(667, 336),
                                         QSize(420, 260)),
                         [](const auto& size) {
                             return std::to_string(size.param.width()) + "x" +
                                    std::to_string(size.param.height());
                         });

} // namespace
} // namespace velmora
