/** What it costs to copy a page's document out of the web engine and to fill a form from it: 20,000 nodes, a
   film with 4,000 actors.

   Beside it the least that such a copy can be: the same page, in the same engine, hands out its HTML as one
   text, which nobody reads. Prints both medians in milliseconds, by the clock, because half of the work is
   done in another process. The two take turns. Ends with 1 when the engine or the page fails. Start it with
   the offscreen platform on a machine without a display. */

#include "platform/web/web_view.h"
#include "weblookup/FormFill.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTimer>
#include <QWebEnginePage>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace {

using namespace velmora;

constexpr int actors = 4000; // of five nodes each
constexpr int rounds = 15;
constexpr std::chrono::seconds patience{60};

/** The page's address; empty when it can't be written. */
QUrl makePage(const QTemporaryDir& folder) {
    const QString path = folder.filePath(QStringLiteral("page.html"));
    std::ofstream page(path.toStdString());
    page << "<title>Large (2001)</title><div class='info'><table class='cast'>";
    for (int i = 0; i < actors; ++i) {
        page << "<tr><td></td><td><a id='n" << i << "'>Actor</a></td></tr>";
    }
    page << "</table></div>";
    return page.flush() ? QUrl::fromLocalFile(path) : QUrl();
}

/** Runs START, which calls the function that it gets when its work is done. False when that
   takes too long. */
bool wait(const std::function<void(std::function<void(bool)>)>& start) {
    QEventLoop loop;
    bool good = false;
    QTimer::singleShot(patience, &loop, &QEventLoop::quit);
    start([&](bool result) {
        good = result;
        loop.quit();
    });
    loop.exec();
    return good;
}

double milliseconds(const QElapsedTimer& time) {
    return static_cast<double>(time.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values) {
    std::nth_element(values.begin(), values.begin() + values.size() / 2, values.end());
    return values[values.size() / 2];
}

int fail(const char* what) {
    std::fprintf(stderr, "dom_copy_benchmark: %s\n", what);
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    QApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    const QApplication application(argc, argv);
    const QTemporaryDir folder;
    const QUrl address = makePage(folder);
    if (address.isEmpty()) {
        return fail("can't write the page");
    }

    WebView view;
    view.show();
    QWebEnginePage plain;
    const bool loaded = wait([&](const auto& done) {
                            QObject::connect(&view, &WebView::didFinishLoad, &view, [done] { done(true); });
                            QObject::connect(&view, &WebView::didFailLoad, &view, [done] { done(false); });
                            view.loadRequest(address);
                        }) &&
                        wait([&](const auto& done) {
                            QObject::connect(&plain, &QWebEnginePage::loadFinished, &plain, done);
                            plain.load(address);
                        });
    if (!loaded) {
        return fail("can't load the page");
    }

    std::vector<double> copies;
    std::vector<double> texts;
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer time;
        time.start();
        const std::unique_ptr<FormFill> fill =
            FormFill::initWithWebFrame(*view.mainFrame(), 0, [](const QUrl&) { return QImage(); });
        const FormFillInfo* const info = fill ? fill->formFillInfo() : nullptr;
        copies.push_back(milliseconds(time));
        if (!info || !info->cast || info->cast->size() != actors) {
            return fail("the copy is not whole");
        }
        time.start();
        const bool handedOut = wait([&](const auto& done) {
            plain.runJavaScript(
                QStringLiteral("document.documentElement.outerHTML"),
                [done](const QVariant& html) { done(html.toString().contains(u"id=\"n3999\"")); });
        });
        texts.push_back(milliseconds(time));
        if (!handedOut) {
            return fail("the page hands out no text");
        }
    }
    std::printf("copy %.2f ms, text %.2f ms\n", median(copies), median(texts));
    return 0;
}
