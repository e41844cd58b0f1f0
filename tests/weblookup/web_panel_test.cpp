#include "panel_fixture.h"

#include "support/pictures.h"
#include "support/qt_printing.h"
#include "support/stream_capture.h"
#include "support/waiting.h"
#include "web_support/page_server.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTest>

#include <csignal>
#include <cstdio>

namespace velmora::test {
namespace {

QByteArray png(int width) {
    return encoded(plain({width, 3}, Qt::green), "PNG");
}

const char* const titlePage = R"(<!DOCTYPE html><html><head><title>Harbour Lights (2005)</title></head><body>
<a name="poster" href="/big"><img src="/poster.jpg"></a>
<div class="info"><h5>Director:</h5> <a href="/d">D. One</a></div>
<div class="info"><h5>Release Date:</h5>
12 May 2005 (USA)
<a href="/r">more</a></div>
<div class="info"><h5>Genre:</h5> <a href="/g1">Drama</a> / <a href="/g2">Thriller</a> <a href="/g">more</a></div>
<div class="info"><h5>Plot Outline:</h5>
Ships come and go. <a href="/p">more</a></div>
<div class="info"><h5>Certification:</h5> <a href="/c1">Canada:14A</a> / <a href="/c2">USA:PG-13</a></div>
<div class="info"><table class="cast">
<tr><td><a href="/1"><img></a></td><td><a href="/1">A. One</a></td><td>Captain</td></tr>
<tr><td></td><td><a href="/2">B. Two</a></td><td>Mate</td></tr>
</table></div></body></html>)";

const char* const productPage =
    R"(<!DOCTYPE html><html><head><title>Shop: Harbour Lights: DVD: A. One</title></head><body>
<table><tr><td id="prodImageCell"><a href="/big"><img id="prodImage" src="/cover._AA240_.jpg"></a></td></tr></table>
<ul><li><b>Actors:</b> <a href="/1">A. One</a>, <a href="/2">B. Two</a></li>
<li><b>Directors:</b> <a href="/d">D. One</a></li>
<li><b>Rating</b> <img src="/pg.gif" alt="PG-13"></li>
<li><b>DVD Release Date:</b> May 3, 2005</li></ul>
<div><b>Product Description</b><br>First line.<br>Second line.<br></div></body></html>)";

/** The panel with the real engine, looking up on a server of this machine. */
class WebPanel : public testing::Test {
protected:
    WebPanel() : window(new PanelWindow), view(window->webview_search), panel(window->panel) {
        panel->searchHosts = {server.host(), server.host(), server.host()};
        QObject::connect(view, &WebView::didFinishLoad, view, [this] { ++finishedLoads; });
        window->show();
    }
    ~WebPanel() override { delete window; }

    void search(const QString& text) {
        window->entry_search->setText(text);
        window->btn_search->click();
    }
    /** Waits until one more page has finished than at the last call. */
    bool finished() {
        ++awaitedLoads;
        return waitUntil([this] { return finishedLoads >= awaitedLoads; });
    }
    /** Looks something up and gets HTML. */
    void show(const QByteArray& html) {
        server.serve("/find", html);
        search("x");
        ASSERT_TRUE(finished());
    }
    /** The record of a press on "Fill Form". */
    FormFillInfo fill() {
        const std::size_t before = window->receiver.records.size();
        window->btn_formFill->click();
        EXPECT_EQ(before + 1, window->receiver.records.size());
        return window->receiver.records.empty() ? FormFillInfo() : window->receiver.records.back();
    }
    /** Clicks into the page until that has had its effect: a page takes no clicks before it is
       first painted. */
    bool clickPageUntil(const std::function<bool()>& happened) {
        return waitUntil([&] {
            if (!happened()) {
                QTest::mouseClick(view->focusProxy()->focusProxy(), Qt::LeftButton, {}, QPoint(50, 50));
                waitUntil(happened, 300);
            }
            return happened();
        });
    }

    PageServer server;
    QPointer<PanelWindow> window;
    WebView* view;
    QPointer<TagWebBrowser> panel;
    int finishedLoads = 0;
    int awaitedLoads = 0;
};

TEST_F(WebPanel, LooksUpFollowsALinkGoesBackAndFillsTheForm) {
    server.serve("/find?q=Harbour%20Lights",
                 "<title>Results</title><a href='/title' style='position: fixed; inset: 0'>x</a>");
    server.serve("/title", titlePage);
    server.serve("/poster.jpg", Answer{.body = png(9), .type = "image/png"});

    search("Harbour Lights");
    ASSERT_TRUE(finished());
    EXPECT_FALSE(window->btn_searchBack->isEnabled());

    ASSERT_TRUE(clickPageUntil([this] { return server.wasAskedFor("/title"); }));
    ASSERT_TRUE(finished());
    EXPECT_TRUE(window->btn_searchBack->isEnabled());
    const FormFillInfo info = fill();
    EXPECT_EQ(QString("Harbour Lights "), info.title);
    EXPECT_EQ(QStringList({"A. One", "B. Two"}), info.cast);
    EXPECT_EQ(QStringList({"D. One"}), info.directors);
    EXPECT_EQ(QString("Ships come and go."), info.description);
    EXPECT_EQ(QString("2005"), info.year);
    EXPECT_EQ(QStringList({"Drama", "Thriller"}), info.genres);
    EXPECT_EQ(QString("PG-13"), info.rating);
    EXPECT_EQ(9, info.coverArt.size().width());
    EXPECT_EQ(QDate(2005, 5, 12), info.releaseDate);

    window->btn_searchBack->click();
    ASSERT_TRUE(finished());
    EXPECT_FALSE(window->btn_searchBack->isEnabled());
    EXPECT_EQ(QString("Results"), fill().title);
}

TEST_F(WebPanel, FillsTheFormFromAProductPage) {
    server.serve("/exec/obidos/search-handle-url/index%3Dblended%26field-keywords%3DHarbour", productPage);
    server.serve("/cover._SS500_.jpg", Answer{.body = png(11), .type = "image/png"});
    window->combo_search->setCurrentIndex(1);
    search("Harbour");
    ASSERT_TRUE(finished());
    StreamCapture log;
    const FormFillInfo info = fill();
    EXPECT_EQ("in formFill\nlooking for actors\ngetting cover art from http://" +
                  server.host().toStdString() + "/cover._SS500_.jpg\ngot FormFillInfo struct\n",
              log.text());
    EXPECT_EQ(QString("Harbour Lights"), info.title);
    EXPECT_EQ(QStringList({"A. One", "B. Two"}), info.cast);
    EXPECT_EQ(QStringList({"D. One"}), info.directors);
    EXPECT_EQ(QString("PG-13"), info.rating);
    EXPECT_EQ(QString("2005"), info.year);
    EXPECT_EQ(QDate(2005, 5, 3), info.releaseDate);
    EXPECT_EQ(QString("First line.\nSecond line.\n"), info.description);
    EXPECT_EQ(11, info.coverArt.size().width());
    EXPECT_EQ(std::nullopt, info.genres);
}

TEST_F(WebPanel, SendsTheSearchTextAsTheSiteIsToSeeIt) {
    search("a & b=c+d 50%");
    ASSERT_TRUE(finished());
    EXPECT_EQ("/find?q=a%20&%20b=c+d%2050%25", server.requests().value(0));
}

TEST_F(WebPanel, FillsNothingFromAPageOfAnotherStructure) {
    show("<p>nothing known</p>");
    const FormFillInfo info = fill();
    EXPECT_FALSE(info.title || info.cast || info.directors || info.description || info.year || info.genres ||
                 info.rating || info.releaseDate);
    EXPECT_TRUE(info.coverArt.isNull());
}

TEST_F(WebPanel, WaitsForASlowPoster) {
    server.serve("/poster.jpg", Answer{.body = png(9), .type = "image/png", .delayMilliseconds = 600});
    show(titlePage);
    EXPECT_EQ(9, fill().coverArt.size().width());
}

TEST_F(WebPanel, FillsTheRestWhenThePosterFails) {
    server.serve("/poster.jpg", Answer{.body = png(9), .end = Answer::End::Broken});
    show(titlePage);
    const FormFillInfo info = fill();
    EXPECT_TRUE(info.coverArt.isNull());
    EXPECT_EQ(QString("Harbour Lights "), info.title);
}

TEST_F(WebPanel, PosterWithoutAnAddressIsPassedOver) {
    server.serve("/poster.jpg", Answer{.body = png(9), .type = "image/png"});
    show("<a name='poster'><img src=''><img src=' '><img src='/poster.jpg'></a>"
         "<a name='poster'><img src=''><img></a>");
    EXPECT_EQ(9, fill().coverArt.size().width());
    EXPECT_EQ(1, server.requests().count("/find?q=x")) << "the page itself is no picture";
}

TEST_F(WebPanel, OnlyElementsAreReadFromAPage) {
    server.serve("/find",
                 Answer{.body =
                            "<!DOCTYPE title><html xmlns='http://www.w3.org/1999/xhtml'><head>"
                            "<title>True (1999)</title></head><body><div class='info'><table class='cast'>"
                            "<?tbody x?><tr><td></td><td><a>A. One</a></td></tr></table></div></body></html>",
                        .type = "application/xhtml+xml"});
    search("x");
    ASSERT_TRUE(finished());
    const FormFillInfo info = fill();
    EXPECT_EQ(QString("True "), info.title);
    EXPECT_EQ(QStringList({"A. One"}), info.cast);
}

TEST_F(WebPanel, FillsTheRestWhenThePosterIsNoPicture) {
    server.serve("/poster.jpg", "<p>gone</p>");
    show(titlePage);
    const FormFillInfo info = fill();
    EXPECT_TRUE(info.coverArt.isNull());
    EXPECT_EQ(QString("PG-13"), info.rating);
}

TEST_F(WebPanel, LateSubframeStopsTheFormFillUntilTheNextPage) {
    server.serve("/frame", "<p>inside</p>");
    show("<body><script>setTimeout(() => { const f = document.createElement('iframe'); f.src = '/frame';"
         "document.body.append(f); }, 300)</script>");
    ASSERT_TRUE(waitUntil([this] { return !window->btn_formFill->isEnabled(); }));
    ASSERT_TRUE(waitUntil([this] { return server.wasAskedFor("/frame"); }));
    waitFor(300);
    EXPECT_FALSE(window->btn_formFill->isEnabled());
    show("<p>next</p>");
    EXPECT_TRUE(window->btn_formFill->isEnabled());
}

TEST_F(WebPanel, SubframeThatLoadsWithThePageDoesNot) {
    server.serve("/frame", "<p>inside</p>");
    show("<iframe src='/frame'></iframe>");
    waitFor(200);
    EXPECT_TRUE(window->btn_formFill->isEnabled());
}

TEST_F(WebPanel, PageThatNeverEndsLeavesTheFormFillOff) {
    server.serve("/find", Answer{.body = "<p>half</p>", .end = Answer::End::Never});
    search("x");
    ASSERT_TRUE(waitUntil([this] { return server.wasAskedFor("/find?q=x"); }));
    waitFor(300);
    EXPECT_FALSE(window->btn_formFill->isEnabled());
    EXPECT_TRUE(window->progress_search->isAnimating());
}

TEST_F(WebPanel, ServersErrorPageIsAPage) {
    search("unknown");
    ASSERT_TRUE(finished());
    EXPECT_TRUE(window->btn_formFill->isEnabled());
}

TEST_F(WebPanel, ServerThatIsNotThereLeavesTheFormFillOffUntilALoadSucceeds) {
    show("<p>page</p>");
    panel->searchHosts[0] = "127.0.0.1:1";
    search("x");
    ASSERT_TRUE(waitUntil([this] { return window->progress_search->isAnimating(); }));
    ASSERT_TRUE(waitUntil([this] { return !window->progress_search->isAnimating(); }));
    waitFor(200);
    EXPECT_FALSE(window->btn_formFill->isEnabled());
    panel->searchHosts[0] = server.host();
    show("<p>page</p>");
    EXPECT_TRUE(window->btn_formFill->isEnabled());
}

TEST_F(WebPanel, FailedPageFillsNothing) {
    panel->searchHosts[0] = "127.0.0.1:1";
    search("x");
    ASSERT_TRUE(waitUntil([this] { return window->progress_search->isAnimating(); }));
    ASSERT_TRUE(waitUntil([this] { return !window->progress_search->isAnimating(); }));
    StreamCapture log;
    panel->formFill();
    EXPECT_EQ("in formFill\n", log.text());
}

TEST_F(WebPanel, JumpInsideThePageLeavesTheControlsAlone) {
    show("<a href='#there' style='position: fixed; inset: 0'>x</a>");
    ASSERT_TRUE(clickPageUntil([this] { return view->canGoBack(); }));
    waitFor(100);
    EXPECT_TRUE(window->btn_formFill->isEnabled());
    EXPECT_FALSE(window->btn_searchBack->isEnabled());
}

TEST_F(WebPanel, LinkInsideAFrameCanBeGoneBackFrom) {
    server.serve("/frame", "<a href='/inside' style='position: fixed; inset: 0'>x</a>");
    server.serve("/inside", "<p>inside</p>");
    show("<iframe src='/frame' style='position: fixed; inset: 0; width: 100%; height: 100%'></iframe>");
    EXPECT_FALSE(window->btn_searchBack->isEnabled());
    ASSERT_TRUE(clickPageUntil([this] { return server.wasAskedFor("/inside"); }));
    EXPECT_TRUE(waitUntil([this] { return window->btn_searchBack->isEnabled(); }, 5000));
    EXPECT_FALSE(window->btn_formFill->isEnabled());

    window->btn_searchBack->click();
    EXPECT_TRUE(waitUntil([this] { return !window->btn_searchBack->isEnabled(); }, 5000));
    EXPECT_FALSE(view->canGoBack());
}

TEST_F(WebPanel, LinkThatWouldOpenAWindowIsFollowedInThePanel) {
    server.serve("/title", titlePage);
    show("<a href='/title' target='_blank' style='position: fixed; inset: 0'>x</a>");
    ASSERT_TRUE(clickPageUntil([this] { return server.wasAskedFor("/title"); }));
    ASSERT_TRUE(finished());
    EXPECT_TRUE(window->btn_searchBack->isEnabled());
    EXPECT_EQ(QString("Harbour Lights "), fill().title);
}

TEST_F(WebPanel, HostilePageFillsOnlyWhatItShows) {
    show(
        R"(<title>True (1999)</title><form class="info" name="getElementsByTagName"><input name="className"></form>
            <img name="title"><img name="documentElement">
            <div class="info"><h5>Genre:</h5><a>Drama</a></div><script>
            Object.prototype.toJSON = () => 'Wrong'; Node.prototype.firstChild = null;
            Object.defineProperty(Element.prototype, 'className', {get: () => 'cast'});</script>)");
    const FormFillInfo info = fill();
    EXPECT_EQ(QString("True "), info.title);
    EXPECT_EQ(QStringList({"Drama"}), info.genres);
    EXPECT_FALSE(info.cast || info.directors || info.description || info.year || info.rating ||
                 info.releaseDate);
}

TEST_F(WebPanel, FillsFromAPageOfTwentyThousandNodes) {
    QByteArray html = titlePage;
    for (int i = 0; i < 5000; ++i) {
        html += "<p class='c'><b id='n" + QByteArray::number(i) + "'>text</b> more</p>";
    }
    show(html);
    QElapsedTimer time;
    time.start();
    EXPECT_EQ(QString("PG-13"), fill().rating);
    std::printf("a page of 20,000 nodes was copied and read in %lld ms\n",
                static_cast<long long>(time.elapsed()));
}

TEST_F(WebPanel, FillsFromAPageOfVeryManyHeadingsAndAVeryLongText) {
    constexpr int count = 60000;
    QByteArray html = "<title>Long (2001)</title><div class='info' style='display: none'>";
    for (int i = 0; i < count; ++i) {
        html += "<h5>Genre:</h5>";
    }
    for (int i = 0; i < count; ++i) {
        html += "<a>Drama</a>";
    }
    html += "<h5>Plot Outline:</h5>" + QByteArray(20000000, 'x') + "</div>";
    show(html);
    QElapsedTimer time;
    time.start();
    const FormFillInfo info = fill();
    EXPECT_EQ(5461,
              info.genres.value_or(QStringList()).size()); // of six characters each, with what stands between
    EXPECT_EQ(QString(32767, 'x'), info.description);
    std::printf("a page of %d headings and a text of 20 MB was copied and read in %lld ms\n", count,
                static_cast<long long>(time.elapsed()));
}

// A cover that doesn't come

/** A film's page whose covers never come; FETCHES counts how often they were asked for by the form fill. */
class WebPanelWaiting : public WebPanel {
protected:
    WebPanelWaiting() {
        server.serve("/poster.jpg", Answer{.body = png(9), .type = "image/png"});
        show(QByteArray(titlePage) + "<a name='poster'><img src='/poster.jpg?2'></a>");
        EXPECT_TRUE(waitUntil([this] { return server.wasAskedFor("/poster.jpg?2"); }));
        server.serve("/poster.jpg",
                     Answer{.body = png(9).left(20), .type = "image/png", .end = Answer::End::Never});
        requestsBefore = server.requests().size();
    }
    /** Fills the form, and does END once the window says that it waits. */
    FormFillInfo fillUntil(const std::function<void()>& end) {
        QTimer poll;
        QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
            if (window->box_coverWait->isVisible()) {
                poll.stop();
                text = window->lbl_coverWait->text();
                end();
            }
        });
        poll.start(10);
        const FormFillInfo info = fill();
        EXPECT_FALSE(window->box_coverWait->isVisible());
        return info;
    }
    QStringList requestsOfTheFill() const {
        return server.requests().mid(requestsBefore).filter(QStringLiteral("poster"));
    }
    QString text;
    qsizetype requestsBefore = 0;
};

TEST_F(WebPanelWaiting, EscapeEndsTheWaitAndFillsTheRest) {
    const FormFillInfo info = fillUntil([this] { QTest::keyClick(window->windowHandle(), Qt::Key_Escape); });
    EXPECT_EQ("Waiting for the cover from 127.0.0.1 …", text);
    EXPECT_EQ(QString("PG-13"), info.rating);
    EXPECT_TRUE(info.coverArt.isNull());
    EXPECT_EQ(QStringList({"/poster.jpg"}), requestsOfTheFill()) << "no other cover is asked for";
}

TEST_F(WebPanelWaiting, CancelEndsTheWaitAndFillsTheRest) {
    const FormFillInfo info = fillUntil([this] {
        const QWidget& cancel = *window->btn_cancelCover;
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {},
                          cancel.mapTo(window, cancel.rect().center()));
    });
    EXPECT_EQ(QString("PG-13"), info.rating);
    EXPECT_TRUE(info.coverArt.isNull());
    EXPECT_EQ(QStringList({"/poster.jpg"}), requestsOfTheFill());
}

TEST_F(WebPanelWaiting, NextFillAsksForTheCoverAgain) {
    fillUntil([this] { QTest::keyClick(window->windowHandle(), Qt::Key_Escape); });
    server.serve("/poster.jpg", Answer{.body = png(9), .type = "image/png"});
    EXPECT_EQ(9, fill().coverArt.size().width());
}

TEST_F(WebPanel, AsksForNoMoreCoversWhenItHasWorkedForTooLong) {
    server.serve("/poster.jpg", Answer{.body = png(9), .type = "image/png"});
    show("<a name='poster'><img src='/none.jpg'></a><a name='poster'><img src='/poster.jpg'></a>");
    EXPECT_EQ(9, fill().coverArt.size().width());
    panel->setCoverWorkLimit(std::chrono::milliseconds(0));
    EXPECT_TRUE(fill().coverArt.isNull());
}

// The address

TEST_F(WebPanel, ShowsTheAddressOfItsPage) {
    EXPECT_FALSE(window->box_address->isVisible());
    show("<p>page</p>");
    EXPECT_TRUE(window->box_address->isVisible());
    EXPECT_TRUE(window->entry_address->isReadOnly());
    EXPECT_EQ(window->entry_address->wholeText(), server.url("/find?q=x").toString());
}

// The window goes away

TEST_F(WebPanel, WindowCanGoAwayDuringALoad) {
    server.serve("/find", Answer{.body = "<p>half</p>", .end = Answer::End::Never});
    search("x");
    ASSERT_TRUE(waitUntil([this] { return server.wasAskedFor("/find?q=x"); }));
    delete window;
    waitFor(200);
}

TEST_F(WebPanel, WindowCanGoAwayDuringAFetch) {
    show(titlePage);
    server.serve("/poster.jpg", Answer{.end = Answer::End::Silent});
    const auto fetches = [this] { return server.requests().count("/poster.jpg"); };
    const auto fetchesByThePage = fetches();
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [&] {
        if (fetches() > fetchesByThePage) {
            delete window;
        }
    });
    poll.start(10);
    StreamCapture log;
    panel->formFill();
    EXPECT_EQ(nullptr, window);
    EXPECT_EQ("in formFill\n<title> tag has \"Harbour Lights (2005)\"\n", log.text());
}

TEST_F(WebPanel, QuittingDuringAFetchEndsIt) {
    show(titlePage);
    server.serve("/poster.jpg", Answer{.end = Answer::End::Silent});
    // As in the program, the form fill runs inside the main loop.
    QTimer::singleShot(0, panel, &TagWebBrowser::formFill);
    QTimer::singleShot(500, qApp, &QCoreApplication::quit);
    QApplication::exec();
    EXPECT_TRUE(window->receiver.records.empty());
}

TEST_F(WebPanel, WindowCanGoAwayDuringAFormFill) {
    show("<script>setTimeout(() => { for (;;) {} }, 200)</script>");
    waitFor(400);
    QTimer::singleShot(300, window, [this] { delete window; });
    QElapsedTimer time;
    time.start();
    panel->formFill();
    EXPECT_EQ(nullptr, window);
    EXPECT_LT(time.elapsed(), 10000);
}

/** The processes that show pages for this program. */
QList<pid_t> pageProcesses() {
    const auto parentOf = [](const QString& pid) {
        QFile file("/proc/" + pid + "/stat");
        const QByteArray stat = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
        return stat.mid(stat.lastIndexOf(')') + 2).split(' ').value(1);
    };
    const QByteArray self = QByteArray::number(QCoreApplication::applicationPid());
    QList<pid_t> found;
    for (const QString& pid : QDir("/proc").entryList({"[1-9]*"}, QDir::Dirs)) {
        // Ours, our zygote, and what it has forked.
        const QByteArray parent = parentOf(pid);
        if (parentOf(QString::fromLatin1(parent)) == self && parent != self) {
            found.append(pid.toInt());
        }
    }
    return found;
}

TEST_F(WebPanel, DeathOfThePagesProcessEndsAWaitingFormFill) {
    show("<script>setTimeout(() => { for (;;) {} }, 200)</script>");
    waitFor(400);
    QTimer::singleShot(300, window, [] {
        for (const pid_t process : pageProcesses()) {
            ::kill(process, SIGKILL);
        }
    });
    QElapsedTimer time;
    time.start();
    StreamCapture log;
    panel->formFill();
    EXPECT_EQ("in formFill\n", log.text());
    EXPECT_LT(time.elapsed(), 10000);
    show(titlePage);
    EXPECT_EQ(QString("PG-13"), fill().rating);
}

} // namespace
} // namespace velmora::test
