#include "TagWebBrowser.h"

#include "FormFill.h"
#include "ui_TagWebBrowser.h"

#include "platform/alt_letters.h"
#include "platform/localisation.h"
#include "platform/log.h"
#include "platform/symbol.h"
#include "platform/web/image_fetch.h"
#include "platform/wheel_needs_focus.h"

#include <QPointer>
#include <QTimer>

#include <ctime>

namespace velmora {

namespace {

/** A cover that comes at once needs no word about it. */
constexpr std::chrono::milliseconds waitWithoutAWord{500};

/** The processor time that this thread has used. */
std::chrono::nanoseconds timeAtWork() {
    std::timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

QString waitText(const QUrl& url) {
    return url.host().isEmpty()
               ? localised("Waiting for the cover …")
               : localised("Waiting for the cover from %1 …").arg(url.host(QUrl::FullyEncoded));
}

} // namespace

TagWebBrowser::TagWebBrowser(QWidget* parent) : QWidget(parent), ui_(std::make_unique<Ui::TagWebBrowser>()) {
    ui_->setupUi(this);
    giveAltLetter(*ui_->combo_search, localised("Alt+X"));
    giveAltLetter(*ui_->btn_formFill, localised("Alt+Z"));
    ui_->box_address->hide();
    ui_->box_coverWait->hide();
    connectControls();
    setSymbols();
    awakeFromNib();
    (new WheelNeedsFocus(this))->watch(*ui_->combo_search);
    layout()->setSizeConstraint(QLayout::SetMinAndMaxSize);
    ui_->lbl_loadFailed->hide();
    showPage(false);
}

TagWebBrowser::~TagWebBrowser() = default;

void TagWebBrowser::connectControls() {
    WebView* const view = ui_->webview_search;
    connect(ui_->btn_search, &QPushButton::clicked, this, &TagWebBrowser::search);
    connect(ui_->entry_search, &QLineEdit::returnPressed, this, &TagWebBrowser::search);
    connect(ui_->btn_formFill, &QPushButton::clicked, this, &TagWebBrowser::formFill);
    connect(ui_->btn_searchBack, &QPushButton::clicked, view, &WebView::goBack);
    connect(view, &WebView::addressChanged, this, &TagWebBrowser::showAddress);
    connect(view, &WebView::didStartProvisionalLoad, this,
            &TagWebBrowser::webViewDidStartProvisionalLoadForFrame);
    connect(view, &WebView::didFinishLoad, this, &TagWebBrowser::webViewDidFinishLoadForFrame);
    connect(view, &WebView::didFailLoad, this, &TagWebBrowser::webViewDidFailLoadWithError);
}

void TagWebBrowser::setSymbols() {
    ui_->btn_search->setIcon(symbol(QStringLiteral("edit-find")));
    ui_->btn_searchBack->setIcon(symbol(QStringLiteral("go-previous")));
    ui_->btn_formFill->setIcon(symbol(QStringLiteral("document-import")));
    ui_->btn_cancelCover->setIcon(symbol(QStringLiteral("process-stop")));
}

void TagWebBrowser::showPage(bool shown) {
    ui_->webview_search->setVisible(shown);
    layout()->activate(); // the panel's limits follow: without a page it is its bar and no higher
    emit pageShown(shown);
}

void TagWebBrowser::awakeFromNib() {
    ui_->combo_search->clear();
    for (const QString& name : siteNames()) {
        ui_->combo_search->addItem(name);
    }
}

void TagWebBrowser::setSearchField(const QString& text) {
    appLog(QStringLiteral("set search field to %1\n").arg(text));
    ui_->entry_search->setText(text);
}

void TagWebBrowser::focusSearchField() {
    ui_->entry_search->setFocus();
}

void TagWebBrowser::search() {
    const QString text = ui_->entry_search->text();
    if (text.isEmpty()) {
        return;
    }
    if (const std::optional<QUrl> address =
            searchAddress(text, ui_->combo_search->currentIndex(), searchHosts)) {
        if (ui_->webview_search->isHidden()) {
            showPage(true); // the view may have to say that it can show none
        }
        ui_->webview_search->loadRequest(*address);
    }
}

void TagWebBrowser::formFill() {
    if (filling_) {
        return;
    }
    const QPointer<TagWebBrowser> self(this);
    filling_ = true;
    fillFromPage();
    if (self) {
        filling_ = false;
    }
}

/** The image at URL; no value when the panel or its window went away, or the program quits. */
std::optional<ImageRef> TagWebBrowser::fetchCover(const QUrl& url) {
    const QPointer<TagWebBrowser> self(this);
    bool cancelled = false;
    QTimer hesitation;
    hesitation.setSingleShot(true);
    connect(&hesitation, &QTimer::timeout, ui_->box_coverWait, &QWidget::show);
    connect(ui_->btn_cancelCover, &QPushButton::clicked, &hesitation, [&cancelled] { cancelled = true; });
    ui_->lbl_coverWait->setText(waitText(url));
    hesitation.start(waitWithoutAWord);
    std::optional<ImageRef> image = fetchImage(url, ui_->webview_search, ui_->btn_cancelCover);
    if (self) {
        coversCancelled_ = cancelled;
        ui_->box_coverWait->hide();
    }
    return image;
}

void TagWebBrowser::fillFromPage() {
    const QPointer<TagWebBrowser> self(this);
    const QPointer<WebView> view = ui_->webview_search;
    bool interrupted = false;
    coversCancelled_ = false;
    const auto end = timeAtWork() + coverWorkLimit_;
    const auto fetch = [this, self, &interrupted, end](const QUrl& url) {
        if (interrupted || !self) {
            interrupted = true;
            return ImageRef();
        }
        if (coversCancelled_ || timeAtWork() >= end) {
            return ImageRef();
        }
        const std::optional<ImageRef> image = fetchCover(url);
        interrupted = !image.has_value();
        return image.value_or(ImageRef());
    };

    const std::unique_ptr<FormFill> fill =
        FormFill::initWithWebFrame(*view->mainFrame(), ui_->combo_search->currentIndex(), fetch);
    appLog(QStringLiteral("in formFill\n"));
    if (!fill || !self) {
        return;
    }
    const FormFillInfo* const info = fill->formFillInfo();
    if (!info || interrupted || !self || !view) {
        return;
    }
    appLog(QStringLiteral("got FormFillInfo struct\n"));
    emit formFillInfoReady(info);
}

void TagWebBrowser::showAddress(const QUrl& address) {
    ui_->entry_address->setAddress(address);
    ui_->box_address->setVisible(!address.isEmpty());
}

void TagWebBrowser::updateBackButton(const WebView* view) {
    ui_->btn_searchBack->setEnabled(view->canGoBack());
}

void TagWebBrowser::webViewDidStartProvisionalLoadForFrame(WebView* view, WebFrame*) {
    ui_->progress_search->startAnimation();
    ui_->btn_formFill->setEnabled(false);
    updateBackButton(view);
    ui_->lbl_loadFailed->hide();
    if (ui_->webview_search->isHidden()) {
        showPage(true);
    }
}

void TagWebBrowser::webViewDidFinishLoadForFrame(WebView* view, WebFrame* frame) {
    if (frame == view->mainFrame()) {
        ui_->progress_search->stopAnimation();
        ui_->btn_formFill->setEnabled(true);
        pageArrived_ = true;
    }
    updateBackButton(view);
}

void TagWebBrowser::webViewDidFailProvisionalLoadWithError(WebView* view, WebFrame* frame) {
    loadFailed(view, frame);
}

void TagWebBrowser::webViewDidFailLoadWithError(WebView* view, WebFrame* frame) {
    loadFailed(view, frame);
}

void TagWebBrowser::loadFailed(const WebView* view, const WebFrame* frame) {
    ui_->progress_search->stopAnimation();
    if (!pageArrived_ && frame == view->mainFrame()) {
        ui_->lbl_loadFailed->show();
        showPage(false);
    }
}

} // namespace velmora
