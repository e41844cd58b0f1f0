#include "web_page.h"

#include <QAction>
#include <QWebEngineClientCertificateSelection>
#include <QWebEngineLoadingInfo>
#include <QWebEngineSettings>

namespace velmora {

namespace {

/** An error status of the server comes as a failed load although its page is shown. */
bool broughtPage(const QWebEngineLoadingInfo& info) {
    return info.status() == QWebEngineLoadingInfo::LoadSucceededStatus ||
           (info.errorDomain() == QWebEngineLoadingInfo::HttpStatusCodeDomain && !info.isErrorPage());
}

bool isFromTheWeb(const QUrl& url) {
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

/** Where content from the web may lead its page or a frame: to the web, and to what a page makes itself. All
   else shows what is on this machine or starts another program. */
bool maySendTo(const QUrl& url) {
    const QString scheme = url.scheme();
    return isFromTheWeb(url) || scheme == QLatin1String("about") || scheme == QLatin1String("data") ||
           scheme == QLatin1String("blob");
}

/** What the engine asks when a page wants to keep its user. It comes as any question of a page does. */
QString questionWhetherToLeave() {
    return QWebEnginePage::tr(
        "Are you sure you want to leave this page? Changes that you made may not be saved.");
}

} // namespace

WebPage::WebPage(WebEngineListener& listener, QWebEngineProfile* profile)
    : QWebEnginePage(profile, nullptr), listener_(listener) {
    settings()->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
    hideActionsThatAreRefused();
    connect(this, &QWebEnginePage::loadingChanged, this, &WebPage::reportLoading);
    connect(this, &QWebEnginePage::renderProcessTerminated, this, &WebPage::reportLostProcess);
    connect(action(Back), &QAction::enabledChanged, this, &WebPage::reportHistoryChange);
    // The engine changes it with the document, and not when a load begins.
    connect(this, &QWebEnginePage::urlChanged, this,
            [this](const QUrl& address) { listener_.addressOfPageChanged(address); });
    connect(this, &QWebEnginePage::featurePermissionRequested, this, &WebPage::refusePermission);
    connect(this, &QWebEnginePage::selectClientCertificate, this,
            [](QWebEngineClientCertificateSelection selection) { selection.selectNone(); });
}

/** The page's own menu offers no windows and no files. */
void WebPage::hideActionsThatAreRefused() {
    for (const WebAction refused :
         {OpenLinkInNewWindow, OpenLinkInNewTab, OpenLinkInNewBackgroundTab, ViewSource, SavePage,
          DownloadLinkToDisk, DownloadImageToDisk, DownloadMediaToDisk}) {
        action(refused)->setVisible(false);
    }
}

void WebPage::reportLoading(const QWebEngineLoadingInfo& info) {
    subFrameLoads_ = false;
    if (info.status() == QWebEngineLoadingInfo::LoadStartedStatus) {
        lost_ = false;
        leaving_ = false;
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

void WebPage::refusePermission(const QUrl& origin, Feature feature) {
    setFeaturePermission(origin, feature, PermissionDeniedByUser);
}

bool WebPage::acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) {
    const bool ownRequest =
        type == NavigationTypeTyped || type == NavigationTypeBackForward || type == NavigationTypeReload;
    if (!ownRequest && !maySendTo(url)) {
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

bool WebPage::javaScriptConfirm(const QUrl&, const QString& message) {
    return leaving_ || message == questionWhetherToLeave();
}

bool WebPage::javaScriptPrompt(const QUrl&, const QString&, const QString&, QString*) {
    return false;
}

void WebPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString&, int, const QString&) {}

QStringList WebPage::chooseFiles(FileSelectionMode, const QStringList&, const QStringList&) {
    return {};
}

} // namespace velmora
