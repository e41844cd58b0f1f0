// Pages that want more than to be looked at. Each is clicked first, as pages may do more once they were.

#include "web_view_fixture.h"

#include "support/bytes.h"
#include "support/scratch_folder.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QMouseEvent>
#include <QStandardPaths>
#include <QTest>

#include <cstdlib>

namespace velmora::test {
namespace {

/** Told of each address that the program hands to the desktop. */
class DesktopServices : public QObject {
    Q_OBJECT
public:
    DesktopServices() {
        for (const char* const scheme : schemes) {
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "open");
        }
    }
    ~DesktopServices() override {
        for (const char* const scheme : schemes) {
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
        }
    }
    QStringList opened;

public slots:
    void open(const QUrl& url) { opened.append(url.toString()); }

private:
    static constexpr std::array schemes = {"velmora-test", "mailto", "ftp"};
};

class WebViewHostile : public WebViewTest {
protected:
    QWidget* page() const { return view->focusProxy()->focusProxy(); }
    /** Moves the mouse to the middle of the page and clicks, as a hand does. */
    void click(Qt::MouseButton button) const {
        const QPoint middle = page()->rect().center();
        QTest::mouseMove(page(), middle);
        waitFor(50);
        QTest::mouseClick(page(), button, {}, middle);
    }
    /** Clicks into the page until HAPPENED: a page takes no clicks before it is first painted. */
    bool clickUntil(const std::function<bool()>& happened, Qt::MouseButton button = Qt::LeftButton) {
        return waitUntil([&] {
            if (!happened()) {
                click(button);
                waitUntil(happened, 300);
            }
            return happened();
        });
    }
    /** Shows the page whose scripts are SCRIPT and clicks it, until its listeners have been called. */
    void showAndClick(const QByteArray& script, const QByteArray& body = {}) {
        const QString clicked = QStringLiteral("/clicked%1").arg(++shownPages_);
        server.serve("/hostile", "<!DOCTYPE html><title>hostile</title><body style='height: 100vh'>" + body +
                                     "<script>" + script + "; addEventListener('click', () => { fetch('" +
                                     clicked.toLatin1() + "'); });</script>");
        load("/hostile");
        ASSERT_TRUE(clickUntil([&] { return server.wasAskedFor(clicked); }));
        waitFor(500);
        events.clear();
    }
    bool finished() {
        return waitUntil([this] { return events.contains("finish main"); }, 10000);
    }

private:
    int shownPages_ = 0;
};

// Leaving

const char* const heldPage =
    "addEventListener('beforeunload', (e) => { e.preventDefault(); e.returnValue = 'stay'; });";

TEST_F(WebViewHostile, PageThatAsksToStayIsLeftByALoad) {
    server.serve("/a", "<title>A</title>");
    showAndClick(heldPage);
    load("/a");
    EXPECT_EQ("A", shownTitle());
}

TEST_F(WebViewHostile, PageThatAsksToStayIsLeftByGoingBack) {
    server.serve("/a", "<title>A</title>");
    load("/a");
    showAndClick(heldPage);
    view->goBack();
    ASSERT_TRUE(finished());
    EXPECT_EQ("A", shownTitle());
}

TEST_F(WebViewHostile, PageThatAsksToStayIsLeftByItsLinks) {
    server.serve("/a", "<title>A</title>");
    server.serve("/hostile", QByteArray("<title>held</title><script>") + heldPage +
                                 "</script><a href='/a' style='position: fixed; inset: 0'>x</a>");
    load("/hostile");
    events.clear();
    ASSERT_TRUE(clickUntil([this] { return server.wasAskedFor("/a"); }));
    ASSERT_TRUE(finished());
    EXPECT_EQ("A", shownTitle());
}

TEST_F(WebViewHostile, FrameThatAsksToStayIsLeft) {
    server.serve("/a", "<title>A</title>");
    server.serve("/frame", QByteArray("<script>") + heldPage +
                               "addEventListener('click', () => fetch('/clicked'))</script>");
    server.serve("/hostile",
                 "<iframe src='/frame' style='position: fixed; inset: 0; width: 100%; height: 100%'>");
    load("/hostile");
    ASSERT_TRUE(clickUntil([this] { return server.wasAskedFor("/clicked"); }));
    load("/a");
    EXPECT_EQ("A", shownTitle());
}

TEST_F(WebViewHostile, PageThatIsBusyWithBeingLeftIsLeft) {
    server.serve("/a", "<title>A</title>");
    view->setLeaveTimeLimit(std::chrono::milliseconds(1500));
    for (const char* const event : {"beforeunload", "pagehide", "unload"}) {
        showAndClick(QByteArray("addEventListener('") + event +
                     "', () => { history.replaceState({}, '', '#left'); for (;;) {} });");
        view->loadRequest(server.url("/a"));
        ASSERT_TRUE(finished()) << event;
        EXPECT_EQ("A", shownTitle()) << event;
    }
}

TEST_F(WebViewHostile, PageGetsNoYesToAQuestionOfItsOwn) {
    showAndClick(QByteArray(heldPage) +
                 "addEventListener('click', () => { document.title = confirm('Sure?'); });");
    EXPECT_EQ("false", shownTitle());
}

// Other programs

TEST_F(WebViewHostile, PageStartsNoOtherProgram) {
    const ScratchFolder folder;
    const QString mark = QString::fromStdString(folder / "mark");
    QFile program(QString::fromStdString(folder / "xdg-open"));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("#!/bin/sh\necho \"$1\" >> '" + mark.toUtf8() + "'\n");
    program.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    program.close();
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", QByteArray::fromStdString(folder.path()) + ":" + path);
    const DesktopServices desktop;
    server.serve("/moved", Answer{.status = 302, .extraHeaders = "Location: velmora-test:redirect\r\n"});

    for (const char* const attempt :
         {"location = 'velmora-test:location'", "location = 'mailto:a@b.c'", "location = '/moved'",
          "window.open('velmora-test:open')", "window.open('mailto:a@b.c', '_top')",
          "{ const f = document.createElement('iframe'); f.src = 'velmora-test:frame'; "
          "document.body.append(f); }",
          "{ const a = document.createElement('a'); a.href = 'velmora-test:link'; document.body.append(a); "
          "a.click(); }",
          "{ const f = document.createElement('form'); f.action = 'velmora-test:form'; "
          "document.body.append(f); f.submit(); }"}) {
        showAndClick("addEventListener('click', () => { " + QByteArray(attempt) + "; });");
        EXPECT_EQ(QStringList(), desktop.opened) << attempt;
        EXPECT_EQ("hostile", shownTitle()) << attempt;
    }
    qputenv("PATH", path);
    EXPECT_FALSE(QFile::exists(mark));
}

// Windows

TEST_F(WebViewHostile, PageOpensNoWindowAndDoesNotReplaceItselfByOne) {
    server.serve("/advert", "<title>advert</title>");
    for (const char* const attempt :
         {"window.open('/advert')", "window.open('/advert', 'w', 'width=200,height=200')",
          "{ const a = document.createElement('a'); a.href = '/advert'; a.target = '_blank'; "
          "document.body.append(a); "
          "a.click(); }",
          "{ const a = document.querySelector('a'); a.href = '/advert'; a.target = '_blank'; a.click(); }",
          "{ const f = document.createElement('form'); f.action = '/advert'; f.target = '_blank'; "
          "document.body.append(f); f.submit(); }"}) {
        showAndClick("addEventListener('click', (e) => { if (e.isTrusted) { " + QByteArray(attempt) +
                         "; } });",
                     "<a href='#'>x</a>");
        EXPECT_EQ("hostile", shownTitle()) << attempt;
        EXPECT_FALSE(server.wasAskedFor("/advert")) << attempt;
    }
}

TEST_F(WebViewHostile, LinkThatOpensAWindowIsFollowedInThePage) {
    server.serve("/a", "<title>A</title>");
    server.serve("/frame", "<a href='/a' target='_blank' style='position: fixed; inset: 0'>x</a>");
    for (const char* const body :
         {"<a href='/a' target='_blank' style='position: fixed; inset: 0'>x</a>",
          "<a href='/a' target='elsewhere' style='position: fixed; inset: 0'>x</a>",
          "<base target='_BLANK'><a href='/a' style='position: fixed; inset: 0'><b>x</b></a>",
          "<iframe src='/frame' style='position: fixed; inset: 0; width: 100%; height: 100%'></iframe>"}) {
        server.serve("/links", QByteArray("<!DOCTYPE html><title>links</title>") + body);
        load("/links");
        EXPECT_TRUE(clickUntil([this] { return shownTitle() == "A"; })) << body;
    }
}

TEST_F(WebViewHostile, LinkThatNamesAFrameIsFollowedInTheFrame) {
    server.serve("/a", "<title>A</title>");
    server.serve("/links",
                 "<title>links</title><a href='/a' target='part' style='position: fixed; inset: 0'>x</a>"
                 "<iframe name='part'></iframe>");
    load("/links");
    EXPECT_TRUE(clickUntil([this] { return server.wasAskedFor("/a"); }));
    waitFor(300);
    EXPECT_EQ("links", shownTitle());
}

TEST_F(WebViewHostile, MiddleClickOnALinkFollowsItInThePage) {
    server.serve("/a", "<title>A</title>");
    server.serve("/links", "<title>links</title><a href='/a' style='position: fixed; inset: 0'>x</a>");
    load("/links");
    EXPECT_TRUE(clickUntil([this] { return shownTitle() == "A"; }, Qt::MiddleButton));
}

TEST_F(WebViewHostile, LinkToAWindowOfAnotherKindIsNotFollowed) {
    const ScratchFolder folder;
    QFile file(QString::fromStdString(folder / "secret.html"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("<title>secret</title>");
    file.close();
    const DesktopServices desktop;
    for (const QByteArray& address :
         {QUrl::fromLocalFile(file.fileName()).toEncoded(), QByteArray("velmora-test:x"),
          QByteArray("qrc:/velmora/dom_snapshot.js"),
          QByteArray("view-source:" + server.url("/hostile").toEncoded()), QByteArray("chrome://version")}) {
        for (const char* const target : {"_blank", "_self"}) {
            showAndClick("", "<a href='" + address + "' target='" + target +
                                 "' style='position: fixed; inset: 0'>x</a>");
            EXPECT_EQ("hostile", shownTitle()) << address.constData() << target;
            EXPECT_EQ(QStringList(), desktop.opened);
        }
    }
}

// What is on this machine

TEST_F(WebViewHostile, PageShowsNothingOfThisProgram) {
    server.serve(
        "/hostile",
        "<title>nothing</title><script>const i = new Image(); i.onload = () => { document.title = 'seen'; };"
        "i.src = 'qrc:/qt-project.org/styles/commonstyle/images/fileopen-16.png'; document.body?.append(i);"
        "fetch('qrc:/velmora/dom_snapshot.js').then((r) => r.text()).then((t) => { document.title = t; })"
        ".catch(() => {});"
        "const s = document.createElement('script'); s.src = 'qrc:/velmora/dom_snapshot.js';"
        "s.onload = () => { document.title = 'run'; }; document.documentElement.append(s);</script>"
        "<iframe src='qrc:/velmora/dom_snapshot.js' onload='try { if (contentDocument === null) "
        "document.title = "
        "\"framed\" } catch { document.title = \"framed\" }'></iframe>");
    load("/hostile");
    waitFor(800);
    EXPECT_EQ("nothing", shownTitle());
}

TEST_F(WebViewHostile, PageShowsNoFileOfThisMachine) {
    const ScratchFolder folder;
    ASSERT_TRUE(QImage(8, 8, QImage::Format_RGB32).save(QString::fromStdString(folder / "picture.png")));
    write_file(folder / "script.js", "document.title = 'run';");
    write_file(folder / "page.html", "<title>file</title>");
    const QByteArray base = "file://" + QByteArray::fromStdString(folder / "");
    showAndClick("const show = (what) => () => { document.title = what; };"
                 "const i = new Image(); i.onload = show('seen'); i.src = '" +
                 base + "picture.png'; fetch('" + base +
                 "script.js').then((r) => r.text()).then((t) => { document.title = t; }).catch(() => {});"
                 "const s = document.createElement('script'); s.src = '" +
                 base +
                 "script.js'; s.onload = show('run'); document.body.append(s);"
                 "const f = document.createElement('iframe'); f.src = '" +
                 base +
                 "page.html'; f.onload = () => { if (f.contentDocument === null) show('framed')(); };"
                 "document.body.append(f);"
                 "addEventListener('click', () => { window.open('" +
                 base + "page.html'); location = '" + base + "page.html'; });");
    click(Qt::LeftButton);
    waitFor(800);
    EXPECT_EQ("hostile", shownTitle());
}

TEST_F(WebViewHostile, ServerSendsThePageToNoFileOfThisMachine) {
    const ScratchFolder folder;
    write_file(folder / "page.html", "<title>file</title>");
    server.serve("/moved", Answer{.status = 302,
                                  .extraHeaders = "Location: file://" +
                                                  QByteArray::fromStdString(folder / "page.html") + "\r\n"});
    load("/moved");
    EXPECT_TRUE(events.contains("fail main"));
    EXPECT_NE(shownTitle(), "file");
}

TEST_F(WebViewHostile, PageAsksForNoPassword) {
    server.serve("/secret", Answer{.body = "<title>refused</title>",
                                   .status = 401,
                                   .extraHeaders = "WWW-Authenticate: Basic realm=\"Your bank\"\r\n"});
    load("/secret");
    waitFor(500);
    EXPECT_FALSE(server.requests().isEmpty());
    EXPECT_EQ(nullptr, QApplication::activeModalWidget());
    for (const QWidget* window : QApplication::topLevelWidgets()) {
        EXPECT_TRUE(window->isHidden() || window == view.get()) << window->metaObject()->className();
    }
}

TEST_F(WebViewHostile, PageGetsNoPermission) {
    showAndClick(
        "const said = []; const note = (what) => (r) => { said.push(what + ' ' + r); document.title = "
        "said.sort().join(', '); };"
        "addEventListener('click', () => {"
        "Notification.requestPermission().then(note('notify'));"
        "navigator.geolocation.getCurrentPosition(() => note('place')('granted'), () => "
        "note('place')('denied'));"
        "navigator.mediaDevices.getUserMedia({audio: true}).then(() => note('sound')('granted'), () => "
        "note('sound')('denied'));"
        "document.documentElement.requestFullscreen().then(() => note('screen')('granted'), () => "
        "note('screen')('denied'));"
        "}, {once: true});");
    EXPECT_TRUE(waitUntil([this] { return shownTitle().count(',') == 3; }, 5000));
    EXPECT_EQ("notify denied, place denied, screen denied, sound denied", shownTitle());
}

/** The files below the user's own folders whose name or bytes hold MARK. */
QStringList filesWith(const QByteArray& mark) {
    QStringList found;
    for (const auto place : {QStandardPaths::GenericDataLocation, QStandardPaths::GenericCacheLocation,
                             QStandardPaths::GenericConfigLocation, QStandardPaths::DownloadLocation}) {
        QDirIterator files(QStandardPaths::writableLocation(place), QDir::Files | QDir::Hidden,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.open(QIODevice::ReadOnly) &&
                (file.fileName().contains(QString::fromLatin1(mark)) || file.readAll().contains(mark))) {
                found.append(file.fileName());
            }
        }
    }
    return found;
}

TEST_F(WebViewHostile, PageLeavesNothingOnTheDisk) {
    const QByteArray mark = "velmora" + QByteArray::number(QCoreApplication::applicationPid()) + "mark";
    server.serve("/script", Answer{.body = "/* " + mark + " */",
                                   .type = "text/javascript",
                                   .extraHeaders = "Cache-Control: max-age=100000\r\n"});
    server.serve("/download",
                 Answer{.body = mark,
                        .type = "application/octet-stream",
                        .extraHeaders = "Content-Disposition: attachment; filename=" + mark + ".bin\r\n"});
    showAndClick("document.cookie = '" + mark + "=1; max-age=100000'; localStorage.setItem('" + mark +
                     "', '1'); indexedDB.open('" + mark + "', 1); history.pushState({}, '', '#" + mark +
                     "'); addEventListener('click', () => { const a = document.createElement('a'); a.href = "
                     "'/download';"
                     "a.download = '" +
                     mark + ".bin'; document.body.append(a); a.click(); });",
                 "<script src='/script'></script>");
    EXPECT_TRUE(waitUntil([this] { return server.wasAskedFor("/download"); }, 5000));
    EXPECT_EQ("hostile", shownTitle());
    view.reset();
    waitFor(1500);
    EXPECT_EQ(QStringList(), filesWith(mark));
}

} // namespace
} // namespace velmora::test

#include "web_view_hostile_test.moc"
