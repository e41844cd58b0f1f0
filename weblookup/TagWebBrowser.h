#pragma once

#include "search_address.h"

#include "platform/image.h"
#include "platform/web/web_view.h"

#include <QUrl>
#include <QWidget>

#include <chrono>
#include <memory>
#include <optional>

namespace Ui {
class TagWebBrowser;
}

namespace velmora {

struct FormFillInfo;

/** The web search panel: looks a title up on one of three sites and fills the form from the page that the
   user has gone to. It owns its controls. Main thread only. */
class TagWebBrowser : public QWidget {
    Q_OBJECT
public:
    explicit TagWebBrowser(QWidget* parent = nullptr);
    ~TagWebBrowser() override;

    /** Whom search asks. */
    SearchHosts searchHosts = defaultSearchHosts();

    /** Fills the popup with the sites, whatever it held. */
    void awakeFromNib();

    /** Puts TEXT into the search field. */
    void setSearchField(const QString& text);
    /** Gives the keyboard to the search field. */
    void focusSearchField();

    /** How long a form fill may work, waiting aside, before it asks for one more cover. Nothing in the
       program calls it. */
    void setCoverWorkLimit(std::chrono::milliseconds limit) { coverWorkLimit_ = limit; }

public slots:
    /** Looks the search field's text up on the chosen site; an empty field looks nothing up. */
    void search();

    /** Reads the page in the view, as a page of the site that the popup shows now, and tells
       formFillInfoReady what it has. Blocks, handling events, until the page and its picture have arrived;
       called again meanwhile, it does nothing. While a picture is waited for, the panel says so, and its
       Cancel button or Escape end the wait: the form is then filled without a cover. The panel and its window
       may go away during that time, and then nothing is told. */
    void formFill();

    /** A frame, of the page or inside it, starts to load. */
    void webViewDidStartProvisionalLoadForFrame(velmora::WebView* view, velmora::WebFrame* frame);
    /** A frame has loaded. Only the view's main frame ends the loading of the page. */
    void webViewDidFinishLoadForFrame(velmora::WebView* view, velmora::WebFrame* frame);
    /** A frame has not loaded. A failed page can't fill the form: the button stays disabled. Nothing
       in the program calls the first of the two. */
    void webViewDidFailProvisionalLoadWithError(velmora::WebView* view, velmora::WebFrame* frame);
    void webViewDidFailLoadWithError(velmora::WebView* view, velmora::WebFrame* frame);

signals:
    /** The page has given INFO, which is not null and lives only during the call. */
    void formFillInfoReady(const velmora::FormFillInfo* info);
    /** The panel takes room for a page, or gives it back: there is none before the first search, nor after a
       first search that failed. */
    void pageShown(bool shown);

private:
    void connectControls();
    void setSymbols();
    void showPage(bool shown);
    void updateBackButton(const WebView* view);
    void loadFailed(const WebView* view, const WebFrame* frame);
    void fillFromPage();
    [[nodiscard]] std::optional<ImageRef> fetchCover(const QUrl& url);
    void showAddress(const QUrl& address);

    std::unique_ptr<Ui::TagWebBrowser> ui_;
    bool filling_ = false;
    /** Whether the user wants no cover from this page. */
    bool coversCancelled_ = false;
    std::chrono::milliseconds coverWorkLimit_{15000};
    bool pageArrived_ = false; ///< there has been a page since the panel was made
};

} // namespace velmora
