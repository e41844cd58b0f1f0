#include "TagWebBrowser.h"

#include "FormFill.h"
#include "form_fill_receiver.h"
#include "platform/log.h"
#include "platform/web/image_fetch.h"

namespace velmora {

namespace {

void setEnabled(QAbstractButton* button, bool enabled) {
    if (button != nullptr) {
        button->setEnabled(enabled);
    }
}

} // namespace

void TagWebBrowser::awakeFromNib() {
    if (combo_search != nullptr) {
        combo_search->clear();
        for (const QString& name : siteNames()) {
            combo_search->addItem(name);
        }
    }
    if (btn_search != nullptr) {
        connect(btn_search, &QAbstractButton::clicked, this, &TagWebBrowser::search, Qt::UniqueConnection);
    }
    if (entry_search != nullptr) {
        connect(entry_search, &QLineEdit::returnPressed, this, &TagWebBrowser::search, Qt::UniqueConnection);
    }
    if (btn_formFill != nullptr) {
        connect(btn_formFill, &QAbstractButton::clicked, this, &TagWebBrowser::formFill,
                Qt::UniqueConnection);
    }
    if (webview_search == nullptr) {
        return;
    }
    if (btn_searchBack != nullptr) {
        connect(btn_searchBack, &QAbstractButton::clicked, webview_search, &WebView::goBack,
                Qt::UniqueConnection);
    }
    connect(webview_search, &WebView::didStartProvisionalLoad, this,
            &TagWebBrowser::webViewDidStartProvisionalLoadForFrame, Qt::UniqueConnection);
    connect(webview_search, &WebView::didFinishLoad, this, &TagWebBrowser::webViewDidFinishLoadForFrame,
            Qt::UniqueConnection);
    connect(webview_search, &WebView::didFailLoad, this, &TagWebBrowser::webViewDidFailLoadWithError,
            Qt::UniqueConnection);
}

void TagWebBrowser::setSearchField(const QString& text) {
    appLog(QStringLiteral("set search field to %1\n").arg(text));
    if (entry_search != nullptr) {
        entry_search->setText(text);
    }
}

int TagWebBrowser::selectedSite() const {
    return combo_search == nullptr ? -1 : combo_search->currentIndex();
}

void TagWebBrowser::search() {
    const QString text = entry_search == nullptr ? QString() : entry_search->text();
    if (text.isEmpty() || webview_search == nullptr) {
        return;
    }
    if (const std::optional<QUrl> address = searchAddress(text, selectedSite(), searchHosts)) {
        webview_search->loadRequest(*address);
    }
}

void TagWebBrowser::formFill() {
    if (filling_) {
        return;
    }
    const QPointer<TagWebBrowser> self(this);
    filling_ = true;
    fillFromPage();
    if (self != nullptr) {
        filling_ = false;
    }
}

void TagWebBrowser::fillFromPage() {
    const QPointer<TagWebBrowser> self(this);
    const QPointer<WebView> view = webview_search;
    bool interrupted = false;
    const auto fetch = [view, &interrupted](const QUrl& url) {
        const std::optional<QImage> image =
            interrupted || view == nullptr ? std::nullopt : fetchImage(url, view);
        interrupted = !image.has_value();
        return image.value_or(QImage());
    };

    std::unique_ptr<FormFill> fill;
    if (view != nullptr) {
        fill = FormFill::initWithWebFrame(*view->mainFrame(), selectedSite(), fetch);
    }
    appLog(QStringLiteral("in formFill\n"));
    if (fill == nullptr || self == nullptr) {
        return;
    }
    const FormFillInfo* const info = fill->formFillInfo();
    if (info == nullptr || interrupted || self == nullptr || view == nullptr) {
        return;
    }
    appLog(QStringLiteral("got FormFillInfo struct\n"));
    if (controller != nullptr) {
        controller->fillFields(info);
    }
}

void TagWebBrowser::updateBackButton(const WebView* view) {
    setEnabled(btn_searchBack, view->canGoBack());
}

void TagWebBrowser::webViewDidStartProvisionalLoadForFrame(WebView* view, WebFrame*) {
    if (progress_search != nullptr) {
        progress_search->startAnimation();
    }
    setEnabled(btn_formFill, false);
    updateBackButton(view);
}

void TagWebBrowser::webViewDidFinishLoadForFrame(WebView* view, WebFrame* frame) {
    if (frame == view->mainFrame()) {
        if (progress_search != nullptr) {
            progress_search->stopAnimation();
        }
        setEnabled(btn_formFill, true);
    }
    updateBackButton(view);
}

void TagWebBrowser::webViewDidFailProvisionalLoadWithError(WebView*, WebFrame*) {
    loadFailed();
}

void TagWebBrowser::webViewDidFailLoadWithError(WebView*, WebFrame*) {
    loadFailed();
}

void TagWebBrowser::loadFailed() {
    if (progress_search != nullptr) {
        progress_search->stopAnimation();
    }
}

} // namespace velmora
