#pragma once

#include "dom_node.h"
#include "web_engine.h"

#include <QPointer>
#include <QWidget>

#include <chrono>
#include <functional>
#include <memory>

class QLabel;

namespace velmora {

class WebView;

/** A frame of a web view's page. */
class WebFrame {
public:
    virtual ~WebFrame() = default;
    /** The frame's document as it is now; null when there is none, as before the first load. May handle
       events until the document has arrived, and the frame may be gone when it returns. */
    [[nodiscard]] virtual std::shared_ptr<const DomDocument> domDocument() = 0;
};

/** Shows web pages. The widget is a place with a hint until the first page is asked for: only then is the
   engine's module loaded, and where that fails the place says why.

   Content from the web has no access to local files, can open neither windows nor dialogs, and leaves
   nothing on the disk. */
class WebView : public QWidget, private WebEngineListener {
    Q_OBJECT
public:
    /** Gives the engine, a child of the widget it gets; null when there is none. */
    using EngineMaker = std::function<std::unique_ptr<WebEngine>(WebEngineListener&, QWidget*)>;

    /** A view over the engine's module. */
    explicit WebView(QWidget* parent = nullptr);
    ~WebView() override;

    /** Takes MAKE for the engine's module. Does nothing once there is an engine. Nothing in the
       program calls it. */
    void setEngineMaker(EngineMaker make) { makeEngine_ = std::move(make); }

    /** The page's outermost frame; the same object as long as the view lives. */
    [[nodiscard]] WebFrame* mainFrame() const { return mainFrame_.get(); }
    [[nodiscard]] bool canGoBack() const;
    /** Loads the page at URL into the main frame. */
    void loadRequest(const QUrl& url);

    /** How long a page may take to hand out its document; a page whose scripts never rest has none after that
       time. Nothing in the program calls it. */
    void setDocumentTimeLimit(std::chrono::milliseconds limit) { documentTimeLimit_ = limit; }

    /** How long a page whose scripts never rest may hold up the load, or the way back, by which it is left. 5
       seconds when it is not set. */
    void setLeaveTimeLimit(std::chrono::milliseconds limit);

public slots:
    void goBack();

signals:
    /** A frame starts to load. FRAME is mainFrame() or stands for some frame inside the page. */
    void didStartProvisionalLoad(velmora::WebView* view, velmora::WebFrame* frame);
    void didFinishLoad(velmora::WebView* view, velmora::WebFrame* frame);
    void didFailLoad(velmora::WebView* view, velmora::WebFrame* frame);
    /** The page that is shown has ADDRESS; a page that is only asked for has none yet. */
    void addressChanged(const QUrl& address);

private:
    class MainFrame;
    class SubFrame;
    struct DocumentWait;

    void loadStarted(FrameKind kind) override;
    void loadFinished(FrameKind kind) override;
    void loadFailed(FrameKind kind) override;
    void pageLost() override;
    void addressOfPageChanged(const QUrl& address) override;

    [[nodiscard]] bool ensureEngine();
    [[nodiscard]] WebFrame* frameOf(FrameKind kind);
    [[nodiscard]] std::shared_ptr<const DomDocument> takeDocument();
    void endDocumentWait();

    EngineMaker makeEngine_;
    QPointer<QLabel> placeholder_;
    std::unique_ptr<WebFrame> mainFrame_;
    std::unique_ptr<WebFrame> subFrame_;
    std::shared_ptr<DocumentWait> documentWait_;
    std::chrono::milliseconds documentTimeLimit_{15000};
    std::chrono::milliseconds leaveTimeLimit_{5000};
    std::unique_ptr<WebEngine> engine_;
};

/** The maker that loads the engine's module from beside the program. Null results leave the reason, a
   sentence, in the parent widget's label. */
[[nodiscard]] WebView::EngineMaker engineFromModule();

} // namespace velmora
