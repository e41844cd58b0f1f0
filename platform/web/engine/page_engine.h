#pragma once

#include "web_page.h"

#include "platform/web/web_engine.h"

#include <QTimer>
#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

namespace velmora {

/** Keeps content of the web from what is built into the program. */
class WebContentOnly : public QWebEngineUrlRequestInterceptor {
public:
    void interceptRequest(QWebEngineUrlRequestInfo& request) override;
};

/** One page in one view, with a profile of its own that lives in memory only. */
class PageEngine : public WebEngine {
public:
    PageEngine(WebEngineListener& listener, QWidget* parent);
    ~PageEngine() override;

    QWidget* widget() override { return view_.get(); }
    void load(const QUrl& url) override;
    bool canGoBack() const override;
    void goBack() override;
    void setLeaveTimeLimit(std::chrono::milliseconds limit) override;
    void takeSnapshot(SnapshotTaker take) override;

private:
    /** A page that was asked for its document and has not answered may be stuck in a script
       that never ends. */
    [[nodiscard]] bool owesSnapshot() const { return *awaited_ != 0 && !page_->isLost(); }
    /** Leaves the page by NAVIGATION. Where a script that never ends holds that up, the page's process is
       ended and NAVIGATION done again. */
    void navigate(std::function<void()> navigation);
    /** Has the page answer again and again until it is left, and ends its process when it does not. */
    void watchProcess();
    void lookAtProcess();
    void askProcess();
    void endProcess();

    QString snapshotScript_;
    int snapshots_ = 0;
    /** The number of the snapshot that the page owes; 0 for none. Shared with answers, which may outlive the
       engine. */
    std::shared_ptr<int> awaited_ = std::make_shared<int>(0);
    /** What was asked for last. */
    std::function<void()> navigation_;
    /** Whether the page's process was told to end; navigation_ is done when it has. */
    bool ending_ = false;
    /** The process of the page that is being left. */
    qint64 watched_ = 0;
    QTimer watch_;
    std::chrono::milliseconds lookInterval_{1000};
    /** What is known of the leaving that is under way. */
    struct Leave {
        /** For how many looks the process owes an answer; -1 for none. */
        int unansweredLooks = -1;
        /** Tells the document that is being left from others. */
        QVariant document;
        /** Whether the next page's load has started, and ended. */
        bool started = false;
        bool ended = false;
        /** Whether the document is left, or stays for good. */
        bool done = false;
    };
    /** Shared with answers, which may outlive the engine. */
    std::shared_ptr<Leave> leave_ = std::make_shared<Leave>();
    WebContentOnly webContentOnly_;
    QWebEngineProfile profile_;
    std::unique_ptr<WebPage> page_;
    std::unique_ptr<QWebEngineView> view_;
};

} // namespace velmora
