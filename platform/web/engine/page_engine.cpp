#include "page_engine.h"

#include <QFile>
#include <QWebEngineHistory>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInfo>

#include <algorithm>
#include <array>
#include <csignal>
#include <utility>

namespace velmora {

namespace {

QString readScript(const QString& name) {
    QFile file(QStringLiteral(":/velmora/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QWebEngineScript windowLinks() {
    QWebEngineScript script;
    script.setSourceCode(readScript(QStringLiteral("window_links.js")));
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::ApplicationWorld);
    script.setRunsOnSubFrames(true);
    return script;
}

void forbidLocalAccess(QWebEngineSettings& settings) {
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, false);
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    settings.setAttribute(QWebEngineSettings::JavascriptCanAccessClipboard, false);
    settings.setAttribute(QWebEngineSettings::PluginsEnabled, false);
    settings.setAttribute(QWebEngineSettings::NavigateOnDropEnabled, false);
}

/** A busy page has five looks to answer something simple. */
constexpr int patienceInLooks = 5;

} // namespace

void WebContentOnly::interceptRequest(QWebEngineUrlRequestInfo& request) {
    static const std::array schemes = {"http", "https", "ws", "wss", "data", "blob", "about", "file"};
    const QByteArray scheme = request.requestUrl().scheme().toLatin1();
    // The engine itself keeps content of the web from files.
    request.block(std::find(schemes.begin(), schemes.end(), scheme) == schemes.end());
}

PageEngine::PageEngine(WebEngineListener& listener, QWidget* parent)
    : snapshotScript_(readScript(QStringLiteral("dom_snapshot.js"))),
      page_(std::make_unique<WebPage>(listener, &profile_)), view_(std::make_unique<QWebEngineView>(parent)) {
    forbidLocalAccess(*page_->settings());
    view_->setPage(page_.get());
    page_->scripts().insert(windowLinks());
    profile_.setUrlRequestInterceptor(&webContentOnly_);
    QObject::connect(&watch_, &QTimer::timeout, page_.get(), [this] { lookAtProcess(); });
    QObject::connect(page_.get(), &QWebEnginePage::loadStarted, page_.get(),
                     [this] { leave_->started = true; });
    QObject::connect(page_.get(), &QWebEnginePage::loadFinished, page_.get(),
                     [this] { leave_->ended = leave_->started; });
    // A page that is asked as soon as it arrives answers before its own scripts run.
    QObject::connect(page_.get(), &QWebEnginePage::urlChanged, page_.get(), [this] {
        if (watch_.isActive()) {
            askProcess();
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

void PageEngine::setLeaveTimeLimit(std::chrono::milliseconds limit) {
    lookInterval_ = limit / patienceInLooks;
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
    page_->beginLeaving();
    navigation_();
}

/** A page can be busy for ever when it is left, and when it is told that it is. How long the network takes
   for the next page has no part in this: until that is there, the page that is being left has to answer. */
void PageEngine::watchProcess() {
    watch_.stop();
    watched_ = page_->renderProcessPid();
    leave_ = std::make_shared<Leave>();
    if (watched_ > 0 && !page_->isLost()) {
        askProcess();
        watch_.start(lookInterval_);
    }
}

/** The time of its birth tells one document from the next. */
void PageEngine::askProcess() {
    leave_->unansweredLooks = std::max(leave_->unansweredLooks, 0);
    page_->runJavaScript(QStringLiteral("performance.timeOrigin"), QWebEngineScript::ApplicationWorld,
                         [leave = leave_](const QVariant& document) {
                             leave->unansweredLooks = -1;
                             leave->document = leave->document.isValid() ? leave->document : document;
                             leave->done = leave->ended || document != leave->document;
                         });
}

void PageEngine::lookAtProcess() {
    if (page_->renderProcessPid() != watched_ || page_->isLost() || leave_->done) {
        watch_.stop();
    } else if (leave_->unansweredLooks < 0) {
        askProcess();
    } else if (++leave_->unansweredLooks >= patienceInLooks) {
        endProcess();
    }
}

/** A page of the same site is loaded by the same process, and so waits for a script that never ends. */
void PageEngine::endProcess() {
    watch_.stop();
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
