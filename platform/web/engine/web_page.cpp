#include "web_page.h"

#include <QAction>
#include <QWebEngineLoadingInfo>
#include <QWebEngineNewWindowRequest>

namespace velmora {

namespace {

/** An error status of the server comes as a failed load although its page is shown. */
bool broughtPage(const QWebEngineLoadingInfo& info) {
    return info.status() == QWebEngineLoadingInfo::LoadSucceededStatus ||
           (info.errorDomain() == QWebEngineLoadingInfo::HttpStatusCodeDomain && !info.isErrorPage());
}

} // namespace

WebPage::WebPage(WebEngineListener& listener, QWebEngineProfile* profile)
    : QWebEnginePage(profile, nullptr), listener_(listener) {
    connect(this, &QWebEnginePage::loadingChanged, this, &WebPage::reportLoading);
    connect(this, &QWebEnginePage::renderProcessTerminated, this, &WebPage::reportLostProcess);
    connect(action(Back), &QAction::enabledChanged, this, &WebPage::reportHistoryChange);
    connect(this, &QWebEnginePage::newWindowRequested, this, &WebPage::followInThisPage);
}

void WebPage::reportLoading(const QWebEngineLoadingInfo& info) {
    subFrameLoads_ = false;
    if (info.status() == QWebEngineLoadingInfo::LoadStartedStatus) {
        lost_ = false;
        listener_.loadStarted(FrameKind::Main);
    } else if (broughtPage(info)) {
        listener_.loadFinished(FrameKind::Main);
    } else {
        listener_.loadFailed(FrameKind::Main);
    }
}

void WebPage::reportLostProcess() {
    lost_ = true;
    listener_.pageLost();
}

/** A link that is followed inside a frame has arrived when the page's history shows it. */
void WebPage::reportHistoryChange() {
    if (subFrameLoads_) {
        subFrameLoads_ = false;
        listener_.loadFinished(FrameKind::Sub);
    }
}

void WebPage::followInThisPage(QWebEngineNewWindowRequest& request) {
    if (request.isUserInitiated() && !request.requestedUrl().isLocalFile()) {
        load(request.requestedUrl());
    }
}

bool WebPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
    const bool ownRequest =
        type == NavigationTypeTyped || type == NavigationTypeBackForward || type == NavigationTypeReload;
    if (url.isLocalFile() && !ownRequest) {
        return false;
    }
    // The engine tells of the loading of its outermost frame only.
    if (!isMainFrame) {
        subFrameLoads_ = true;
        listener_.loadStarted(FrameKind::Sub);
    }
    return true;
}

void WebPage::javaScriptAlert(const QUrl&, const QString&) {}

bool WebPage::javaScriptConfirm(const QUrl&, const QString&) {
    return false;
}

bool WebPage::javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) {
    return false;
}

void WebPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) {}

QStringList WebPage::chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) {
    return {};
}

} // namespace velmora
