#include "web_view_fixture.h"

namespace velmora::test {
namespace {

/** The address that the view tells of is that of the page that is shown, whatever is asked for meanwhile. */
class WebViewAddress : public WebViewTest {
protected:
    WebViewAddress() {
        QObject::connect(view.get(), &WebView::addressChanged, view.get(),
                         [this](const QUrl& url) { address = url; });
        server.serve("/a", "<title>A</title>");
        server.serve("/b", "<title>B</title>");
    }
    bool becomes(const QString& path) {
        return waitUntil([this, path] { return address == server.url(path); }, 5000);
    }
    QUrl address;
};

TEST_F(WebViewAddress, IsThatOfThePage) {
    load("/a");
    EXPECT_EQ(address, server.url("/a"));
    load("/b?q=1#x");
    EXPECT_EQ(address, server.url("/b?q=1#x"));
}

TEST_F(WebViewAddress, FollowsRedirections) {
    server.serve("/moved", Answer{.status = 302, .extraHeaders = "Location: /b\r\n"});
    load("/moved");
    EXPECT_EQ(address, server.url("/b"));
}

TEST_F(WebViewAddress, FollowsTheHistory) {
    load("/a");
    load("/b");
    view->goBack();
    EXPECT_TRUE(becomes("/a"));
}

TEST_F(WebViewAddress, FollowsThePagesOwnChangesOnItsSite) {
    server.serve(
        "/c", "<script>setTimeout(() => { history.pushState({}, '', '/own'); }, 100);"
              "setTimeout(() => { try { history.pushState({}, '', 'http://www.imdb.com/'); } catch {} }, 200)"
              "</script>");
    load("/c");
    EXPECT_TRUE(becomes("/own"));
    waitFor(300);
    EXPECT_EQ(address, server.url("/own"));
}

TEST_F(WebViewAddress, StaysWhileAnotherPageIsOnlyAskedFor) {
    server.serve("/slow", Answer{.end = Answer::End::Silent});
    server.serve("/c", "<title>C</title><script>setTimeout(() => { location = '/slow'; }, 100)</script>");
    load("/c");
    ASSERT_TRUE(waitUntil([this] { return server.wasAskedFor("/slow"); }));
    waitFor(300);
    EXPECT_EQ(address, server.url("/c"));
    view->loadRequest(server.url("/slow?2"));
    ASSERT_TRUE(waitUntil([this] { return server.wasAskedFor("/slow?2"); }));
    waitFor(300);
    EXPECT_EQ(address, server.url("/c"));
}

TEST_F(WebViewAddress, StaysWhileThePageBeforeIsOnlyAskedFor) {
    server.serve("/a", Answer{.body = "<title>A</title>", .extraHeaders = "Cache-Control: no-store\r\n"});
    load("/a");
    server.serve("/c", "<title>C</title><script>setTimeout(() => { history.back(); }, 300)</script>");
    load("/c");
    server.serve("/a", Answer{.end = Answer::End::Silent});
    ASSERT_TRUE(waitUntil([this] { return server.requests().count("/a") == 2; }));
    waitFor(300);
    EXPECT_EQ(address, server.url("/c"));
}

TEST_F(WebViewAddress, IsToldBeforeAPageHasArrivedWhole) {
    server.serve("/half", Answer{.body = "<title>Half</title><p>there</p>", .end = Answer::End::Never});
    load("/a");
    view->loadRequest(server.url("/half"));
    EXPECT_TRUE(becomes("/half"));
}

TEST_F(WebViewAddress, StaysWhenNoPageComes) {
    server.serve("/nothing", Answer{.status = 204});
    load("/a");
    load("/nothing");
    EXPECT_EQ(address, server.url("/a"));
}

TEST_F(WebViewAddress, OfAPageWithAUserNameIsThatOfItsServer) {
    QUrl url = server.url("/a");
    url.setUserName("www.imdb.com");
    loadUrl(url);
    EXPECT_EQ("127.0.0.1", address.host());
    EXPECT_EQ("/a", address.path());
}

} // namespace
} // namespace velmora::test
