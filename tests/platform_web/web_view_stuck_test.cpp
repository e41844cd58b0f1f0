#include "web_view_fixture.h"

#include <QElapsedTimer>

namespace velmora::test {
namespace {

/** Leaving a page whose script never rests. The pages of one server share a process, so that the next page
   waits for the script, too. */
class WebViewStuck : public WebViewTest {
protected:
    WebViewStuck() {
        server.serve("/a", "<title>A</title>");
        server.serve("/b", "<title>B</title>");
        server.serve("/busy", "<title>busy</title><script>setTimeout(() => { for (;;) {} }, 200)</script>");
    }

    static constexpr std::chrono::milliseconds shortLimit{1000};

    /** Loads the busy page and gives its script the time to begin. */
    void getStuck() {
        load("/busy");
        waitFor(500);
        events.clear();
    }
    bool finished() {
        return waitUntil([this] { return events.contains("finish main"); });
    }
    /** Has the page asked for its document, for LIMIT. No leave that follows is owed to its time limit. */
    void askInVain(std::chrono::milliseconds limit) {
        view->setLeaveTimeLimit(std::chrono::minutes(1));
        view->setDocumentTimeLimit(limit);
        EXPECT_EQ(nullptr, document());
        view->setDocumentTimeLimit(std::chrono::seconds(20));
    }
};

// With the limit that the program has.
TEST_F(WebViewStuck, IsLeftByALoad) {
    load("/a");
    getStuck();
    view->loadRequest(server.url("/b"));
    ASSERT_TRUE(finished());
    EXPECT_EQ("B", shownTitle());
}

TEST_F(WebViewStuck, IsLeftByTheLastOfSeveralLoads) {
    view->setLeaveTimeLimit(shortLimit);
    getStuck();
    view->loadRequest(server.url("/a"));
    waitFor(400);
    view->loadRequest(server.url("/b"));
    ASSERT_TRUE(finished());
    waitFor(500);
    EXPECT_EQ("B", shownTitle());
}

TEST_F(WebViewStuck, IsLeftByGoingBackOnePage) {
    load("/a");
    load("/b");
    view->setLeaveTimeLimit(shortLimit);
    getStuck();
    view->goBack();
    ASSERT_TRUE(finished());
    EXPECT_EQ("B", shownTitle());
    EXPECT_TRUE(view->canGoBack());
}

TEST_F(WebViewStuck, IsLeftAtOnceByALoadWhenItHasNotGivenItsDocument) {
    getStuck();
    askInVain(std::chrono::milliseconds(300));
    QElapsedTimer time;
    time.start();
    view->loadRequest(server.url("/b"));
    ASSERT_TRUE(finished());
    EXPECT_LT(time.elapsed(), 4000);
    EXPECT_EQ("B", shownTitle());
}

TEST_F(WebViewStuck, IsLeftAtOnceByGoingBackWhenItHasNotGivenItsDocument) {
    load("/a");
    load("/b");
    getStuck();
    askInVain(std::chrono::milliseconds(300));
    QElapsedTimer time;
    time.start();
    view->goBack();
    ASSERT_TRUE(finished());
    EXPECT_LT(time.elapsed(), 4000);
    EXPECT_EQ("B", shownTitle());
    EXPECT_TRUE(view->canGoBack());
}

/** Loads a page that takes the server longer than a page may take to answer. */
class WebViewSlow : public WebViewTest {
protected:
    void loadSlowly() {
        view->setLeaveTimeLimit(std::chrono::milliseconds(2000));
        server.serve("/slow", Answer{.body = "<title>slow</title>", .delayMilliseconds = 3000});
        load("/slow");
        EXPECT_EQ(QStringList({"start main", "finish main"}), events);
        EXPECT_EQ(1, server.requests().count("/slow"));
        EXPECT_EQ("slow", shownTitle());
    }
};

TEST_F(WebViewSlow, ServerIsWaitedForBehindAPage) {
    server.serve("/a", "<title>A</title>");
    load("/a");
    loadSlowly();
}

TEST_F(WebViewSlow, ServerIsWaitedForBehindAFailedPage) {
    loadUrl(QUrl("http://127.0.0.1:1/"));
    ASSERT_EQ(QStringList({"start main", "fail main"}), events);
    loadSlowly();
}

} // namespace
} // namespace velmora::test
