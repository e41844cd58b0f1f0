#pragma once

#include "cover_fetch.h"
#include "platform/busy_indicator.h"
#include "platform/web/web_view.h"
#include "search_address.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QObject>
#include <QPointer>

namespace velmora {

class FormFillReceiver;

/** The web search panel: looks a title up on one of three sites and fills the form from the page that the
   person has gone to. It owns none of its controls; whoever lays the window out sets the outlets and then
   calls awakeFromNib. Main thread only. */
class TagWebBrowser : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    // Outlets, set once by the window's layout. A control that is gone, or was never there, is passed over.
    /** Runs formFill; disabled while a page loads, and after a load that failed. */
    QPointer<QAbstractButton> btn_formFill;
    /** Runs search, as the return key in entry_search does. */
    QPointer<QAbstractButton> btn_search;
    /** Goes back in the web view; enabled only when the view can. */
    QPointer<QAbstractButton> btn_searchBack;
    /** The site; the index is the site code. */
    QPointer<QComboBox> combo_search;
    /** Takes the result of a form fill. Must live as long as the panel, or be taken away first. */
    FormFillReceiver* controller = nullptr;
    QPointer<QLineEdit> entry_search;
    QPointer<QLabel> lbl_movieName;
    /** Turns while a page loads. */
    QPointer<BusyIndicator> progress_search;
    QPointer<WebView> webview_search;

    /** Whom search asks. */
    SearchHosts searchHosts = defaultSearchHosts();

    /** Fills the popup with the sites and joins the controls to their actions and the view to the
     * notifications below. */
    void awakeFromNib();

    /** Puts TEXT into the search field. */
    void setSearchField(const QString& text);

public slots:
    /** Looks the search field's text up on the chosen site; an empty field looks nothing up. */
    void search();

    /** Reads the page in the view, as a page of the site that the popup shows now, and hands what it has to
       the controller. Blocks, handling events, until the page and its picture have arrived; called again
       meanwhile, it does nothing. The panel and its window may go away during that time, and then nothing is
       handed on. */
    void formFill();

    /** A frame, of the page or inside it, starts to load. */
    void webViewDidStartProvisionalLoadForFrame(velmora::WebView* view, velmora::WebFrame* frame);
    /** A frame has loaded. Only the view's main frame ends the loading of the page. */
    void webViewDidFinishLoadForFrame(velmora::WebView* view, velmora::WebFrame* frame);
    /** A frame has not loaded. A failed page can't fill the form: the button stays disabled. */
    void webViewDidFailProvisionalLoadWithError(velmora::WebView* view, velmora::WebFrame* frame);
    void webViewDidFailLoadWithError(velmora::WebView* view, velmora::WebFrame* frame);

private:
    [[nodiscard]] int selectedSite() const;
    void updateBackButton(const WebView* view);
    void loadFailed();
    void fillFromPage();

    bool filling_ = false;
};

} // namespace velmora
