#include "fake_engine.h"
#include "panel_fixture.h"

#include "support/stream_capture.h"

#include <QApplication>
#include <QTimer>

namespace velmora::test {
namespace {

class Panel : public testing::Test {
protected:
    Panel() : window(new PanelWindow), view(window->webview_search), panel(window->panel) {
        view->setEngineMaker(FakeEngine::maker(engine));
    }
    ~Panel() override { delete window; }

    /** Has the engine load a page, so that it exists. */
    void load() {
        window->entry_search->setText("x");
        panel->search();
    }
    void loadPage(const QString& title) {
        load();
        engine.listener->loadStarted(FrameKind::Main);
        engine.listener->loadFinished(FrameKind::Main);
        engine.snapshot = snapshotText(title);
    }
    [[nodiscard]] const std::vector<FormFillInfo>& records() const { return window->receiver.records; }

    FakeEngine::State engine;
    QPointer<PanelWindow> window;
    WebView* view;
    QPointer<TagWebBrowser> panel;
};

QStringList itemsOf(const QComboBox& box) {
    QStringList items;
    for (int i = 0; i < box.count(); ++i) {
        items.append(box.itemText(i));
    }
    return items;
}

TEST_F(Panel, AwakeningFillsThePopupWithTheThreeSites) {
    window->combo_search->addItem("left over");
    panel->awakeFromNib();
    EXPECT_EQ(QStringList({"IMDb", "Amazon", "Google"}), itemsOf(*window->combo_search));
}

TEST_F(Panel, AwakeningTwiceSearchesOncePerPress) {
    panel->awakeFromNib();
    window->entry_search->setText("x");
    window->btn_search->click();
    EXPECT_EQ(1, engine.loaded.size());
}

TEST_F(Panel, SettingTheSearchFieldIsLogged) {
    StreamCapture log;
    panel->setSearchField("My Film %1 (2)");
    EXPECT_EQ("set search field to My Film %1 (2)\n", log.text());
    EXPECT_EQ("My Film %1 (2)", window->entry_search->text());
}

// Search

TEST_F(Panel, SearchHandsTheAddressOfTheChosenSiteToTheView) {
    window->entry_search->setText("it's & <b>");
    for (const int site : {0, 1, 2}) {
        window->combo_search->setCurrentIndex(site);
        panel->search();
    }
    ASSERT_EQ(3, engine.loaded.size());
    EXPECT_EQ("http://www.imdb.com/find?q=it's%20&%20%3Cb%3E", engine.loaded[0].toEncoded());
    EXPECT_EQ("http://www.amazon.com/exec/obidos/search-handle-url/"
              "index%3Dblended%26field-keywords%3Dit's%20&%20%3Cb%3E",
              engine.loaded[1].toEncoded());
    EXPECT_EQ("http://www.google.com/search?q=it's%20&%20%3Cb%3E", engine.loaded[2].toEncoded());
}

TEST_F(Panel, SearchForNothingLoadsNothingAndChangesNoControl) {
    window->btn_formFill->setEnabled(true);
    panel->search();
    EXPECT_EQ(0, engine.made);
    EXPECT_TRUE(window->btn_formFill->isEnabled());
    EXPECT_FALSE(window->btn_searchBack->isEnabled());
    EXPECT_FALSE(window->progress_search->isAnimating());
}

TEST_F(Panel, SearchForABlankLoads) {
    window->entry_search->setText(" ");
    panel->search();
    ASSERT_EQ(1, engine.loaded.size());
    EXPECT_EQ("http://www.imdb.com/find?q=%20", engine.loaded[0].toEncoded());
}

TEST_F(Panel, SearchWithoutASiteLoadsNothing) {
    window->combo_search->setCurrentIndex(-1);
    window->entry_search->setText("x");
    panel->search();
    EXPECT_TRUE(engine.loaded.isEmpty());
}

TEST_F(Panel, SearchAsksTheHostsOfItsTable) {
    panel->searchHosts = {"127.0.0.1:99", "b", "c"};
    load();
    EXPECT_EQ("http://127.0.0.1:99/find?q=x", engine.loaded.value(0).toEncoded());
}

TEST_F(Panel, ReturnInTheSearchFieldSearches) {
    window->entry_search->setText("x");
    emit window->entry_search->returnPressed();
    EXPECT_EQ(1, engine.loaded.size());
}

TEST_F(Panel, EngineIsMadeByTheFirstSearchAndKept) {
    window->show();
    QApplication::processEvents();
    EXPECT_EQ(0, engine.made);
    EXPECT_FALSE(view->canGoBack());
    load();
    load();
    EXPECT_EQ(1, engine.made);
}

// Load notifications

TEST_F(Panel, StartOfAnyFrameStopsTheFormFillAndStartsTheProgress) {
    load();
    for (const FrameKind kind : {FrameKind::Main, FrameKind::Sub}) {
        window->btn_formFill->setEnabled(true);
        window->progress_search->stopAnimation();
        engine.listener->loadStarted(kind);
        EXPECT_FALSE(window->btn_formFill->isEnabled());
        EXPECT_TRUE(window->progress_search->isAnimating());
    }
}

TEST_F(Panel, StartAndFinishOfAnyFrameSetTheBackButtonAsTheViewCanGoBack) {
    load();
    for (const FrameKind kind : {FrameKind::Main, FrameKind::Sub}) {
        for (const bool can : {true, false}) {
            engine.canGoBack = can;
            window->btn_searchBack->setEnabled(!can);
            engine.listener->loadStarted(kind);
            EXPECT_EQ(can, window->btn_searchBack->isEnabled());
            window->btn_searchBack->setEnabled(!can);
            engine.listener->loadFinished(kind);
            EXPECT_EQ(can, window->btn_searchBack->isEnabled());
        }
    }
}

TEST_F(Panel, FinishOfTheMainFrameEnablesTheFormFillAndStopsTheProgress) {
    load();
    engine.listener->loadStarted(FrameKind::Main);
    engine.listener->loadFinished(FrameKind::Main);
    EXPECT_TRUE(window->btn_formFill->isEnabled());
    EXPECT_FALSE(window->progress_search->isAnimating());
}

TEST_F(Panel, FinishOfASubframeDoesNotEnableTheFormFill) {
    load();
    engine.listener->loadStarted(FrameKind::Main);
    engine.listener->loadFinished(FrameKind::Sub);
    EXPECT_FALSE(window->btn_formFill->isEnabled());
    EXPECT_TRUE(window->progress_search->isAnimating());
}

TEST_F(Panel, SubframeThatStartsLateStopsTheFormFillUntilTheNextMainFrame) {
    load();
    engine.listener->loadStarted(FrameKind::Main);
    engine.listener->loadFinished(FrameKind::Main);
    engine.listener->loadStarted(FrameKind::Sub);
    engine.listener->loadFinished(FrameKind::Sub);
    EXPECT_FALSE(window->btn_formFill->isEnabled());
    EXPECT_TRUE(window->progress_search->isAnimating());
    engine.listener->loadFinished(FrameKind::Main);
    EXPECT_TRUE(window->btn_formFill->isEnabled());
}

TEST_F(Panel, FailureOfAnyFrameOnlyStopsTheProgress) {
    load();
    for (const FrameKind kind : {FrameKind::Main, FrameKind::Sub}) {
        engine.canGoBack = false;
        engine.listener->loadStarted(FrameKind::Main);
        engine.canGoBack = true;
        engine.listener->loadFailed(kind);
        EXPECT_FALSE(window->progress_search->isAnimating());
        EXPECT_FALSE(window->btn_formFill->isEnabled());
        EXPECT_FALSE(window->btn_searchBack->isEnabled());
    }
}

TEST_F(Panel, BothFailureNotificationsAreTheSame) {
    for (const auto failed : {&TagWebBrowser::webViewDidFailLoadWithError,
                              &TagWebBrowser::webViewDidFailProvisionalLoadWithError}) {
        window->progress_search->startAnimation();
        window->btn_formFill->setEnabled(true);
        (panel->*failed)(view, view->mainFrame());
        EXPECT_FALSE(window->progress_search->isAnimating());
        EXPECT_TRUE(window->btn_formFill->isEnabled());
    }
}

TEST_F(Panel, MainFrameThatFinishesAfterAFailureEnablesTheFormFill) {
    load();
    engine.listener->loadStarted(FrameKind::Main);
    engine.listener->loadFailed(FrameKind::Main);
    engine.listener->loadStarted(FrameKind::Main);
    engine.listener->loadFinished(FrameKind::Main);
    EXPECT_TRUE(window->btn_formFill->isEnabled());
}

TEST_F(Panel, BackButtonGoesBackWhereTheViewCan) {
    load();
    window->btn_searchBack->setEnabled(true);
    window->btn_searchBack->click();
    EXPECT_EQ(0, engine.wentBack);
    engine.canGoBack = true;
    window->btn_searchBack->click();
    EXPECT_EQ(1, engine.wentBack);
}

// Form fill

TEST_F(Panel, FormFillHandsTheRecordToTheController) {
    loadPage("Film (2005)");
    StreamCapture log;
    window->btn_formFill->click();
    EXPECT_EQ("in formFill\n<title> tag has \"Film (2005)\"\ngot FormFillInfo struct\n", log.text());
    ASSERT_EQ(1U, records().size());
    EXPECT_EQ(QString("Film "), records()[0].title);
}

TEST_F(Panel, FormFillReadsThePageAsOneOfTheSiteInThePopup) {
    loadPage("Shop: Film (2005)");
    window->combo_search->setCurrentIndex(1);
    panel->formFill();
    ASSERT_EQ(1U, records().size());
    EXPECT_EQ(QString("Film (2005)"), records()[0].title);
}

TEST_F(Panel, FormFillOfASearchEngineIsLoggedAndChangesNothing) {
    loadPage("Film (2005)");
    window->combo_search->setCurrentIndex(2);
    StreamCapture log;
    panel->formFill();
    EXPECT_EQ("in formFill\n", log.text());
    EXPECT_TRUE(records().empty());
}

TEST_F(Panel, FormFillBeforeTheFirstLoadIsLoggedAndStartsNoEngine) {
    StreamCapture log;
    panel->formFill();
    EXPECT_EQ("in formFill\n", log.text());
    EXPECT_EQ(0, engine.made);
    EXPECT_TRUE(records().empty());
}

TEST_F(Panel, FormFillWithoutADocumentIsLoggedAndChangesNothing) {
    load();
    StreamCapture log;
    for (const char* const text : {"", "no JSON", "{}", R"({"url":"x","nodes":[[5,1,"#text","a"]]})"}) {
        engine.snapshot = QString(text);
        panel->formFill();
    }
    EXPECT_EQ("in formFill\nin formFill\nin formFill\nin formFill\n", log.text());
    EXPECT_TRUE(records().empty());
}

TEST_F(Panel, FormFillThatNobodyWaitsForIsHarmless) {
    loadPage("Film");
    QObject::disconnect(panel, &TagWebBrowser::formFillInfoReady, nullptr, nullptr);
    StreamCapture log;
    panel->formFill();
    EXPECT_NE(log.text().find("got FormFillInfo struct\n"), std::string::npos);
}

// Waiting for the page

/** Presses "Fill Form" on a page that keeps its document back, and does MEANWHILE during the wait. */
void fillWhile(TagWebBrowser& panel, const std::function<void()>& meanwhile) {
    QTimer::singleShot(0, &panel, meanwhile);
    panel.formFill();
}

TEST_F(Panel, PressWhileWaitingDoesNothing) {
    load();
    StreamCapture log;
    fillWhile(*panel, [this] {
        panel->formFill();
        window->btn_formFill->click();
        engine.waitingTaker(snapshotText("Film"));
    });
    EXPECT_EQ(1, engine.snapshotsAsked);
    EXPECT_EQ(1U, records().size());
    EXPECT_EQ("in formFill\n<title> tag has \"Film\"\ngot FormFillInfo struct\n", log.text());
}

TEST_F(Panel, CanFillAgainAfterAWait) {
    load();
    fillWhile(*panel, [this] { engine.waitingTaker(snapshotText("One")); });
    fillWhile(*panel, [this] { engine.waitingTaker(snapshotText("Two")); });
    ASSERT_EQ(2U, records().size());
    EXPECT_EQ(QString("Two"), records()[1].title);
}

TEST_F(Panel, DeathOfThePageEndsTheWaitWithoutADocument) {
    load();
    StreamCapture log;
    fillWhile(*panel, [this] { engine.listener->pageLost(); });
    EXPECT_EQ("in formFill\n", log.text());
    EXPECT_TRUE(records().empty());
}

TEST_F(Panel, NextPageEndsTheWaitWithoutADocument) {
    load();
    StreamCapture log;
    fillWhile(*panel, [this] { engine.listener->loadStarted(FrameKind::Main); });
    EXPECT_EQ("in formFill\n", log.text());
}

TEST_F(Panel, SubframeThatLoadsDoesNotEndTheWait) {
    load();
    fillWhile(*panel, [this] {
        engine.listener->loadStarted(FrameKind::Sub);
        engine.waitingTaker(snapshotText("Film"));
    });
    EXPECT_EQ(1U, records().size());
}

TEST_F(Panel, DocumentThatComesAfterTheWaitIsDropped) {
    load();
    fillWhile(*panel, [this] { engine.listener->pageLost(); });
    engine.waitingTaker(snapshotText("Late"));
    EXPECT_TRUE(records().empty());
}

TEST_F(Panel, PageThatNeverAnswersHasNoDocumentAfterTheTimeLimit) {
    load();
    view->setDocumentTimeLimit(std::chrono::milliseconds(20));
    StreamCapture log;
    panel->formFill();
    EXPECT_EQ("in formFill\n", log.text());
}

TEST_F(Panel, WindowThatGoesAwayDuringTheWaitEndsIt) {
    load();
    StreamCapture log;
    fillWhile(*panel, [this] { delete window; });
    EXPECT_EQ("in formFill\n", log.text());
}

TEST_F(Panel, ViewThatGoesAwayDuringTheWaitEndsIt) {
    load();
    StreamCapture log;
    fillWhile(*panel, [this] { delete view; });
    EXPECT_EQ("in formFill\n", log.text());
    EXPECT_TRUE(records().empty());
}

TEST_F(Panel, PanelThatGoesAwayDuringTheWaitHandsNothingOn) {
    load();
    QTimer::singleShot(0, view, [this] {
        delete panel;
        engine.waitingTaker(snapshotText("Film"));
    });
    panel->formFill();
    EXPECT_TRUE(records().empty());
}

TEST_F(Panel, SearchDuringTheWaitLoads) {
    load();
    fillWhile(*panel, [this] {
        load();
        engine.listener->loadStarted(FrameKind::Main);
    });
    EXPECT_EQ(2, engine.loaded.size());
    EXPECT_TRUE(records().empty());
}

} // namespace
} // namespace velmora::test
