#include "FormFill.h"

#include "detail/imdb_page.h"
#include "detail/store_page.h"
#include "search_address.h"

#include "platform/web/web_view.h"

namespace velmora {

namespace {

/** FETCH for the pictures of a page at ADDRESS: a page from the web can't put a file of this machine on the
   form. */
ImageFetch withoutLocalFiles(const QString& address, ImageFetch fetch) {
    if (QUrl(address).isLocalFile()) {
        return fetch;
    }
    return
        [fetch = std::move(fetch)](const QUrl& url) { return url.isLocalFile() ? ImageRef() : fetch(url); };
}

/** What a field of one line shows. Laying a text out can take the square of its length, so that the
   description, whose field would show more, has the same end. */
constexpr qsizetype longestFieldText = 32767;

void fit(std::optional<QString>& text) {
    if (text) {
        text->truncate(longestFieldText);
    }
}

/** Names are dropped from the end; a single one is cut. */
void fit(std::optional<QStringList>& names) {
    if (!names) {
        return;
    }
    names->first().truncate(longestFieldText);
    qsizetype length = names->first().size();
    qsizetype kept = 1;
    while (kept < names->size() && length < longestFieldText) {
        length += names->at(kept).size() + 1;
        kept += length <= longestFieldText ? 1 : 0;
    }
    names->resize(kept);
}

void fitToForm(FormFillInfo& info) {
    for (std::optional<QString>* const text : {&info.title, &info.description, &info.rating}) {
        fit(*text);
    }
    for (std::optional<QStringList>* const names : {&info.cast, &info.directors, &info.genres}) {
        fit(*names);
    }
}

} // namespace

FormFill::FormFill(std::shared_ptr<const DomDocument> document, int type, ImageFetch fetch)
    : formType(type), domDocument(std::move(document)), fetch_(std::move(fetch)) {}

std::unique_ptr<FormFill> FormFill::initWithWebFrame(WebFrame& frame, int type, ImageFetch fetch) {
    std::shared_ptr<const DomDocument> document = frame.domDocument();
    if (!document) {
        return nullptr;
    }
    ImageFetch allowed = withoutLocalFiles(document->url, std::move(fetch));
    return std::unique_ptr<FormFill>(new FormFill(std::move(document), type, std::move(allowed)));
}

const FormFillInfo* FormFill::formFillInfo() {
    if (!info && formType == siteImdb) {
        parseImdb();
    } else if (!info && formType == siteAmazon) {
        parseAmazon();
    }
    return info.get();
}

bool FormFill::parseImdb() {
    info = std::make_unique<FormFillInfo>();
    readImdbPage(*domDocument, fetch_, *info);
    fitToForm(*info);
    return true;
}

bool FormFill::parseAmazon() {
    info = std::make_unique<FormFillInfo>();
    readStorePage(*domDocument, fetch_, *info);
    fitToForm(*info);
    return true;
}

} // namespace velmora
