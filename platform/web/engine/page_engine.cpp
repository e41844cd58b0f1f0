#include "page_engine.h"

#include <QFile>
#include <QPointer>
#include <QWebEngineHistory>
#include <QWebEngineScript>
#include <QWebEngineSettings>

#include <csignal>
#include <utility>

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
    patience_.setSingleShot(true);
    patience_.setInterval(std::chrono::seconds(5));
    QObject::connect(&patience_, &QTimer::timeout, page_.get(), [this] {
        if (page_->renderProcessPid() == watched_) {
            endProcess();
        }
    });
    const auto navigateAgain = [this] {
        if (std::exchange(ending_, false)) {
            navigation_();
        }
    };
    QObject::connect(page_.get(), &QWebEnginePage::renderProcessTerminated, page_.get(), navigateAgain,
                     Qt::QueuedConnection);
}

PageEngine::~PageEngine() = default;

void PageEngine::load(const QUrl& url) {
    navigate([this, url] { page_->load(url); });
}

bool PageEngine::canGoBack() const {
    return page_->history()->canGoBack();
}

void PageEngine::goBack() {
    navigate([this] { page_->triggerAction(QWebEnginePage::Back); });
}

void PageEngine::navigate(std::function<void()> navigation) {
    navigation_ = std::move(navigation);
    if (ending_) {
        return;
    }
    const bool stuck = owesSnapshot();
    *awaited_ = 0;
    if (stuck) {
        endProcess();
        return;
    }
    watchProcess();
    navigation_();
}

/** Asks the page something simple. A busy page has a few seconds for it; how long the network takes for the
   next page has no part in this. */
void PageEngine::watchProcess() {
    watched_ = page_->renderProcessPid();
    if (watched_ <= 0 || page_->isLost()) {
        patience_.stop();
        return;
    }
    patience_.start();
    page_->runJavaScript(QStringLiteral("0"), QWebEngineScript::ApplicationWorld,
                         [patience = QPointer(&patience_)](const QVariant&) {
                             if (patience != nullptr) {
                                 patience->stop();
                             }
                         });
}

/** A page of the same site is loaded by the same process, and so waits for a script that never ends. */
void PageEngine::endProcess() {
    patience_.stop();
    const qint64 process = page_->renderProcessPid();
    ending_ = process > 0 && ::kill(static_cast<pid_t>(process), SIGKILL) == 0;
    if (!ending_) {
        navigation_();
    }
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
