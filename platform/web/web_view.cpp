#include "web_view.h"

#include "detail/dom_snapshot.h"
#include "detail/input_block.h"

#include "platform/accessibility.h"
#include "platform/localisation.h"
#include "platform/modal_loop.h"

#include <QEventLoop>
#include <QLabel>
#include <QPointer>
#include <QTimer>
#include <QVBoxLayout>

namespace velmora {

/** A wait for the page's document: a local event loop that ends with the text, or without it when the page
   goes away. */
struct WebView::DocumentWait {
    QEventLoop loop;
    QString text;
    bool ended = false;

    void end(const QString& arrived) {
        if (!ended) {
            ended = true;
            text = arrived;
            loop.quit();
        }
    }
};

class WebView::MainFrame : public WebFrame {
public:
    explicit MainFrame(WebView& view) : view_(view) {}
    std::shared_ptr<const DomDocument> domDocument() override { return view_.takeDocument(); }

private:
    WebView& view_;
};

/** Stands for every frame inside the page; the engine does not tell them apart. */
class WebView::SubFrame : public WebFrame {
public:
    std::shared_ptr<const DomDocument> domDocument() override { return nullptr; }
};

WebView::WebView(QWidget* parent)
    : QWidget(parent), makeEngine_(engineFromModule()), mainFrame_(std::make_unique<MainFrame>(*this)),
      subFrame_(std::make_unique<SubFrame>()) {
    setAccessibleRole(*this, QAccessible::WebDocument);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    placeholder_ = new QLabel(localised("Search a site to see its pages here"), this);
    placeholder_->setAlignment(Qt::AlignCenter);
    placeholder_->setWordWrap(true);
    layout->addWidget(placeholder_);
}

WebView::~WebView() {
    endDocumentWait();
    // Before the members that the engine reports to.
    engine_.reset();
}

bool WebView::ensureEngine() {
    if (!engine_) {
        engine_ = makeEngine_(*this, this);
        setLeaveTimeLimit(leaveTimeLimit_);
        if (engine_ && engine_->widget()) {
            delete placeholder_;
            layout()->addWidget(engine_->widget());
            setFocusProxy(engine_->widget());
        }
    }
    return engine_ != nullptr;
}

void WebView::setLeaveTimeLimit(std::chrono::milliseconds limit) {
    leaveTimeLimit_ = limit;
    if (engine_) {
        engine_->setLeaveTimeLimit(limit);
    }
}

bool WebView::canGoBack() const {
    return engine_ && engine_->canGoBack();
}

void WebView::loadRequest(const QUrl& url) {
    if (ensureEngine()) {
        engine_->load(url);
    }
}

void WebView::goBack() {
    if (canGoBack()) {
        engine_->goBack();
    }
}

WebFrame* WebView::frameOf(FrameKind kind) {
    return kind == FrameKind::Main ? mainFrame_.get() : subFrame_.get();
}

void WebView::loadStarted(FrameKind kind) {
    if (kind == FrameKind::Main) {
        endDocumentWait();
    }
    emit didStartProvisionalLoad(this, frameOf(kind));
}

void WebView::loadFinished(FrameKind kind) {
    emit didFinishLoad(this, frameOf(kind));
}

void WebView::loadFailed(FrameKind kind) {
    emit didFailLoad(this, frameOf(kind));
}

void WebView::pageLost() {
    endDocumentWait();
}

void WebView::addressOfPageChanged(const QUrl& address) {
    emit addressChanged(address);
}

void WebView::endDocumentWait() {
    if (documentWait_) {
        documentWait_->end(QString());
    }
}

std::shared_ptr<const DomDocument> WebView::takeDocument() {
    if (!engine_ || documentWait_) {
        return nullptr;
    }
    const QPointer<WebView> self(this);
    const auto wait = std::make_shared<DocumentWait>();
    documentWait_ = wait;
    engine_->takeSnapshot([kept = std::weak_ptr(wait)](const QString& text) {
        if (const auto stillWaiting = kept.lock()) {
            stillWaiting->end(text);
        }
    });
    if (!wait->ended) {
        QTimer::singleShot(documentTimeLimit_, &wait->loop, [raw = wait.get()] { raw->end(QString()); });
        const ModalLoop blocking;
        const InputBlock noInput;
        wait->loop.exec();
    }
    if (self) {
        documentWait_.reset();
    }
    return readDomSnapshot(wait->text);
}

} // namespace velmora
