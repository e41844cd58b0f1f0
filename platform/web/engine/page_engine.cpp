#include "page_engine.h"

#include <QFile>
#include <QWebEngineHistory>
#include <QWebEngineScript>
#include <QWebEngineSettings>

namespace velmora {

namespace {

QString readScript() {
    QFile file(QStringLiteral(":/velmora/dom_snapshot.js"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void forbidLocalAccess(QWebEngineSettings& settings) {
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, false);
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    settings.setAttribute(QWebEngineSettings::JavascriptCanAccessClipboard, false);
    settings.setAttribute(QWebEngineSettings::PluginsEnabled, false);
}

} // namespace

PageEngine::PageEngine(WebEngineListener& listener, QWidget* parent)
    : snapshotScript_(readScript()), page_(std::make_unique<WebPage>(listener, &profile_)),
      view_(std::make_unique<QWebEngineView>(parent)) {
    forbidLocalAccess(*page_->settings());
    view_->setPage(page_.get());
}

PageEngine::~PageEngine() = default;

void PageEngine::load(const QUrl& url) {
    page_->load(url);
}

bool PageEngine::canGoBack() const {
    return page_->history()->canGoBack();
}

void PageEngine::goBack() {
    page_->triggerAction(QWebEnginePage::Back);
}

void PageEngine::takeSnapshot(SnapshotTaker take) {
    if (page_->isLost()) {
        take(QString());
        return;
    }
    page_->runJavaScript(snapshotScript_, QWebEngineScript::ApplicationWorld,
                         [take = std::move(take)](const QVariant& text) { take(text.toString()); });
}

} // namespace velmora
