#pragma once

#include "platform/web/web_engine.h"
#include "web_page.h"

#include <QWebEngineProfile>
#include <QWebEngineView>

namespace velmora {

/** One page in one view, with a profile of its own that lives in memory only. */
class PageEngine : public WebEngine {
public:
    PageEngine(WebEngineListener& listener, QWidget* parent);
    ~PageEngine() override;

    QWidget* widget() override { return view_.get(); }
    void load(const QUrl& url) override;
    bool canGoBack() const override;
    void goBack() override;
    void takeSnapshot(SnapshotTaker take) override;

private:
    /** A page that was asked for its document and has not answered may be stuck in a script that never ends.
     */
    [[nodiscard]] bool mayBeStuck() const { return *awaited_ != 0 && !page_->isLost(); }
    void endProcessAndLoad(const QUrl& url);

    QString snapshotScript_;
    int snapshots_ = 0;
    /** The number of the snapshot that the page owes; 0 for none. Shared with answers, which may outlive the
     * engine. */
    std::shared_ptr<int> awaited_ = std::make_shared<int>(0);
    QWebEngineProfile profile_;
    std::unique_ptr<WebPage> page_;
    std::unique_ptr<QWebEngineView> view_;
};

} // namespace velmora
