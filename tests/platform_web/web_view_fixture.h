#pragma once

#include "page_server.h"

#include "platform/web/web_view.h"
#include "support/qt_printing.h"
#include "support/waiting.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace velmora::test {

/** A view with the real engine and a server on this machine. */
class WebViewTest : public testing::Test {
protected:
    WebViewTest() : view(std::make_unique<WebView>()) {
        const auto note = [this](const char* event) {
            return [this, event](WebView*, WebFrame* frame) {
                events.append(QLatin1String(event) +
                              QLatin1String(frame == view->mainFrame() ? " main" : " sub"));
            };
        };
        QObject::connect(view.get(), &WebView::didStartProvisionalLoad, view.get(), note("start"));
        QObject::connect(view.get(), &WebView::didFinishLoad, view.get(), note("finish"));
        QObject::connect(view.get(), &WebView::didFailLoad, view.get(), note("fail"));
        view->resize(800, 600);
        view->show();
    }

    /** Loads the page at PATH and waits for its end, good or bad. */
    void load(const QString& path) { loadUrl(server.url(path)); }
    void loadUrl(const QUrl& url) {
        events.clear();
        view->loadRequest(url);
        EXPECT_TRUE(waitUntil([this] {
            return events.contains("finish main") || events.contains("fail main");
        })) << url.toString().toStdString();
    }

    /** The document of a page with this HTML. */
    std::shared_ptr<const DomDocument> documentOf(const QByteArray& html,
                                                  const QByteArray& type = "text/html; charset=utf-8") {
        server.serve("/page", Answer{.body = html, .type = type});
        load("/page");
        return document();
    }
    std::shared_ptr<const DomDocument> document() { return view->mainFrame()->domDocument(); }

    /** The title of the page that is shown now, as its document has it. */
    QString shownTitle() {
        const auto shown = document();
        if (!shown) {
            return QStringLiteral("no document");
        }
        const auto titles = shown->getElementsByTagName(u"title");
        return titles.empty() || !titles[0]->firstChild ? QString()
                                                        : titles[0]->firstChild->data.value_or("");
    }

    PageServer server;
    std::unique_ptr<WebView> view;
    QStringList events;
};

} // namespace velmora::test
