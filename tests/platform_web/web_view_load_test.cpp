#include "web_view_fixture.h"

#include "support/scratch_folder.h"

#include <QFile>
#include <QLabel>

#include <cstdlib>

namespace velmora::test {
namespace {

class WebViewLoad : public WebViewTest {};

TEST_F(WebViewLoad, OfAPageStartsAndFinishesItsMainFrame) {
    server.serve("/a", "<title>A</title>");
    load("/a");
    EXPECT_EQ(QStringList({"start main", "finish main"}), events);
    EXPECT_EQ("A", shownTitle());
}

TEST_F(WebViewLoad, ShowsThePage) {
    server.serve("/a", "<body style='background: rgb(0, 200, 0)'>");
    load("/a");
    EXPECT_TRUE(
        waitUntil([this] { return view->grab().toImage().pixelColor(400, 300) == QColor(0, 200, 0); }));
}

TEST_F(WebViewLoad, OfAServersErrorPageIsAFinishedLoad) {
    load("/unknown");
    EXPECT_EQ(QStringList({"start main", "finish main"}), events);
    EXPECT_NE(nullptr, document());
}

TEST_F(WebViewLoad, OfAnErrorStatusWithoutAPageFails) {
    server.serve("/gone", Answer{.status = 410});
    load("/gone");
    EXPECT_EQ(QStringList({"start main", "fail main"}), events);
    EXPECT_EQ(nullptr, document());
}

TEST_F(WebViewLoad, ThatAServerAnswersWithNoContentFailsAndKeepsThePage) {
    server.serve("/a", "<title>A</title>");
    server.serve("/nothing", Answer{.status = 204});
    load("/a");
    load("/nothing");
    EXPECT_EQ(QStringList({"start main", "fail main"}), events);
    EXPECT_EQ("A", shownTitle());
}

TEST_F(WebViewLoad, FromAServerThatIsNotThereFails) {
    server.serve("/a", "<title>A</title>");
    load("/a");
    server.close();
    load("/b");
    EXPECT_EQ(QStringList({"start main", "fail main"}), events);
    waitFor(300);
    EXPECT_EQ(QStringList({"start main", "fail main"}), events);
    EXPECT_EQ(nullptr, document());
}

TEST_F(WebViewLoad, OfADownloadFailsAndKeepsThePage) {
    server.serve("/a", "<title>A</title>");
    server.serve("/file", Answer{.body = "x", .type = "application/octet-stream"});
    load("/a");
    load("/file");
    EXPECT_EQ(QStringList({"start main", "fail main"}), events);
    EXPECT_EQ("A", shownTitle());
}

TEST_F(WebViewLoad, ThatNeverEndsIsNeverFinished) {
    server.serve("/never", Answer{.body = "<title>Half</title><p>there</p>", .end = Answer::End::Never});
    view->loadRequest(server.url("/never"));
    EXPECT_TRUE(waitUntil([this] { return shownTitle() == "Half"; }));
    EXPECT_EQ(QStringList({"start main"}), events);
}

TEST_F(WebViewLoad, ThatIsReplacedByAnotherLeavesTheOther) {
    server.serve("/never", Answer{.end = Answer::End::Silent});
    server.serve("/a", "<title>A</title>");
    view->loadRequest(server.url("/never"));
    ASSERT_TRUE(waitUntil([this] { return server.wasAskedFor("/never"); }));
    view->loadRequest(server.url("/a"));
    ASSERT_TRUE(waitUntil([this] { return events.contains("finish main"); }));
    EXPECT_EQ("A", shownTitle());
}

TEST_F(WebViewLoad, OfALateSubframeStartsAfterTheMainFrameHasFinished) {
    server.serve("/frame", "<p>inside</p>");
    server.serve("/a",
                 "<script>setTimeout(() => { const f = document.createElement('iframe'); f.src = '/frame';"
                 "document.body.append(f); }, 300)</script><body>outside");
    load("/a");
    EXPECT_TRUE(waitUntil([this] { return events.last() == "start sub"; }));
    EXPECT_EQ(QStringList({"start main", "finish main", "start sub"}), events);
}

TEST_F(WebViewLoad, OfPagesMakesAHistory) {
    server.serve("/a", "<title>A</title>");
    server.serve("/b", "<title>B</title>");
    EXPECT_FALSE(view->canGoBack());
    load("/a");
    EXPECT_FALSE(view->canGoBack());
    load("/b");
    EXPECT_TRUE(view->canGoBack());
    events.clear();
    view->goBack();
    ASSERT_TRUE(waitUntil([this] { return events.contains("finish main"); }));
    EXPECT_EQ("A", shownTitle());
    EXPECT_FALSE(view->canGoBack());
}

TEST_F(WebViewLoad, CanBeCutShortByTheEndOfTheView) {
    server.serve("/never", Answer{.body = "<p>there</p>", .end = Answer::End::Never});
    view->loadRequest(server.url("/never"));
    ASSERT_TRUE(waitUntil([this] { return server.wasAskedFor("/never"); }));
    view.reset();
    waitFor(100);
}

TEST_F(WebViewLoad, OfAPageThatOpensDialogsIsNotHeldUp) {
    server.serve("/a", "<script>alert(1); const c = confirm(2); const p = prompt(3);"
                       "document.write('<title>' + c + ' ' + p + '</title>');</script>");
    load("/a");
    EXPECT_EQ("false null", shownTitle());
}

TEST_F(WebViewLoad, FromAFileIsAllowedToTheProgram) {
    const ScratchFolder folder;
    const QString path = QString::fromStdString(folder / "page.html");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<title>From a file</title>");
    file.close();
    loadUrl(QUrl::fromLocalFile(path));
    EXPECT_EQ(QStringList({"start main", "finish main"}), events);
    EXPECT_EQ("From a file", shownTitle());
}

TEST_F(WebViewLoad, OfWebContentCanNotReachLocalFiles) {
    const ScratchFolder folder;
    QFile file(QString::fromStdString(folder / "secret.html"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<title>secret</title>secret");
    file.close();
    const QByteArray address = QUrl::fromLocalFile(file.fileName()).toEncoded();
    server.serve("/a", "<title>open</title><iframe src='" + address + "'></iframe><script>fetch('" + address +
                           "').then((r) => r.text()).then((t) => { document.title = t; }).catch(() => {});"
                           "setTimeout(() => { location.href = '" +
                           address + "'; }, 200);</script>");
    load("/a");
    waitFor(800);
    EXPECT_EQ("open", shownTitle());
}

TEST_F(WebViewLoad, LeavesOnlyItsOwnWordsInTheDocumentOfAnEarlierPage) {
    server.serve("/a", "<title>A</title>");
    server.serve("/b", "<p>no title</p>");
    load("/a");
    load("/b");
    EXPECT_EQ("", shownTitle());
}

TEST(WebViewStart, WaitsForTheFirstPage) {
    WebView view;
    view.show();
    waitFor(50);
    const auto labels = view.findChildren<QLabel*>();
    ASSERT_EQ(1, labels.size());
    EXPECT_EQ("Search a site to see its pages here", labels.first()->text());
    EXPECT_EQ(2, view.children().size()) << "only the layout and the hint";
    EXPECT_EQ(nullptr, view.mainFrame()->domDocument());
    EXPECT_FALSE(view.canGoBack());
    view.goBack();
}

TEST(WebViewStart, IsRefusedToRootWithItsSandboxOnAndSaysSo) {
    if (::geteuid() != 0) {
        GTEST_SKIP() << "only root is refused";
    }
    const QByteArray setting = qgetenv("QTWEBENGINE_DISABLE_SANDBOX");
    qunsetenv("QTWEBENGINE_DISABLE_SANDBOX");
    WebView view;
    view.loadRequest(QUrl("http://127.0.0.1:9/"));
    view.loadRequest(QUrl("http://127.0.0.1:9/"));
    qputenv("QTWEBENGINE_DISABLE_SANDBOX", setting);
    const auto labels = view.findChildren<QLabel*>();
    ASSERT_EQ(1, labels.size());
    EXPECT_EQ("Web pages are not shown when the program is run by the system administrator.",
              labels.first()->text());
    EXPECT_EQ(nullptr, view.mainFrame()->domDocument());
}

} // namespace
} // namespace velmora::test
