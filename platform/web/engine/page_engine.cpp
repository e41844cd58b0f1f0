#include "page_engine.h"

#include <QFile>
#include <QWebEngineHistory>
#include <QWebEngineScript>
#include <QWebEngineSettings>

#include <csignal>

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
    const bool stuck = mayBeStuck();
    *awaited_ = 0;
    if (stuck) {
        endProcessAndLoad(url);
    } else {
        page_->load(url);
    }
}

/** A page of the same site would be loaded by the same process, and so wait for the script as well. */
void PageEngine::endProcessAndLoad(const QUrl& url) {
    const qint64 process = page_->renderProcessPid();
    if (process <= 0 || ::kill(static_cast<pid_t>(process), SIGKILL) != 0) {
        page_->load(url);
        return;
    }
    QObject::connect(
        page_.get(), &QWebEnginePage::renderProcessTerminated, page_.get(),
        [page = page_.get(), url] { page->load(url); },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
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
    const int number = ++snapshots_;
    *awaited_ = number;
    page_->runJavaScript(snapshotScript_, QWebEngineScript::ApplicationWorld,
                         [take = std::move(take), awaited = awaited_, number](const QVariant& text) {
                             if (*awaited == number) {
                                 *awaited = 0;
                             }
                             take(text.toString());
                         });
}

} // namespace velmora
