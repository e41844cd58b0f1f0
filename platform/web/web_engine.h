#pragma once

#include <QString>
#include <QUrl>
#include <QtPlugin>

#include <chrono>
#include <functional>
#include <memory>

class QWidget;

/** The seam between the web view and the browser engine. The engine's library is large and slow to load, so
   the engine is a module of its own that is loaded when the first page is asked for. */
namespace velmora {

enum class FrameKind { Main, Sub };

/** What an engine tells about the loading of its page. Of a frame inside the page only the start is sure to
   be told: its failure is not, and its finish only when it changes whether the page can go back. */
class WebEngineListener {
public:
    /** A frame starts to load. */
    virtual void loadStarted(FrameKind frame) = 0;
    /** A frame shows what it was asked for. A server's "not found" page counts. */
    virtual void loadFinished(FrameKind frame) = 0;
    /** A load brought no page: the network failed, or it was stopped, or it became a download. */
    virtual void loadFailed(FrameKind frame) = 0;
    /** The page is gone for good, as when its process died. */
    virtual void pageLost() = 0;
    /** The page that is shown has ADDRESS: another page has come, not one that is only asked for; or the page
       gave itself another address of its own site. */
    virtual void addressOfPageChanged(const QUrl& address) = 0;

protected:
    ~WebEngineListener() = default;
};

/** One page with its view. */
class WebEngine {
public:
    virtual ~WebEngine() = default;

    /** The widget that shows the page; owned by the engine. */
    [[nodiscard]] virtual QWidget* widget() = 0;
    /** Loads the page at URL. A page whose scripts never rest is left all the same, after the time of
       setLeaveTimeLimit; so it is by goBack. */
    virtual void load(const QUrl& url) = 0;
    [[nodiscard]] virtual bool canGoBack() const = 0;
    virtual void goBack() = 0;

    /** How long a page whose scripts never rest may hold up a load or goBack that follows. 5 seconds when it
       is not set. */
    virtual void setLeaveTimeLimit(std::chrono::milliseconds limit) = 0;

    using SnapshotTaker = std::function<void(const QString&)>;
    /** Has the text of the page's document (as readDomSnapshot reads it) given to TAKE, now or later; the
       empty text when there is no document. TAKE is not called when the page goes away first or its scripts
       never rest. */
    virtual void takeSnapshot(SnapshotTaker take) = 0;
};

/** The module's one object. */
class WebEngineModule {
public:
    virtual ~WebEngineModule() = default;
    /** A new engine whose widget is a child of PARENT. LISTENER must outlive it. */
    [[nodiscard]] virtual std::unique_ptr<WebEngine> makeEngine(WebEngineListener& listener,
                                                                QWidget* parent) = 0;
};

} // namespace velmora

Q_DECLARE_INTERFACE(velmora::WebEngineModule, "com.korvane.velmora.WebEngineModule/1")
