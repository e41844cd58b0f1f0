#pragma once

#include "platform/web/web_engine.h"

#include <QWebEnginePage>

class QWebEngineLoadingInfo;

namespace velmora {

/** A page that reports its loads and keeps to itself: no dialogs, no files, no windows, no permissions, no
   other programs, no lines in the log, and no way to keep its user. A link that would open a window is
   followed in the page itself; a window that a script would open is not opened at all. */
class WebPage : public QWebEnginePage {
    Q_OBJECT
public:
    WebPage(WebEngineListener& listener, QWebEngineProfile* profile);

    /** Whether the process that holds the page's document is dead; so it stays until the next load. */
    [[nodiscard]] bool isLost() const { return lost_; }

    /** The program is about to leave the page: until the next load has started, every question of the page is
       answered with yes. */
    void beginLeaving() { leaving_ = true; }

protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    void javaScriptAlert(const QUrl& origin, const QString& message) override;
    bool javaScriptConfirm(const QUrl& origin, const QString& message) override;
    bool javaScriptPrompt(const QUrl& origin, const QString& message, const QString& preset,
                          QString* result) override;
    void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString& message, int line,
                                  const QString& source) override;
    QStringList chooseFiles(FileSelectionMode mode, const QStringList& oldFiles,
                            const QStringList& acceptedTypes) override;

private:
    void reportLoading(const QWebEngineLoadingInfo& info);
    void reportLostProcess();
    void reportHistoryChange();
    void refusePermission(const QUrl& origin, Feature feature);
    void hideActionsThatAreRefused();

    WebEngineListener& listener_;
    bool lost_ = false;
    bool leaving_ = false;
    bool subFrameLoads_ = false;
};

} // namespace velmora
