#pragma once

#include "form_fill_info.h"

#include <memory>

namespace velmora {

class DomDocument;
class WebFrame;

/** One form fill: takes the document that a frame shows and reads a film's metadata out of it. */
class FormFill {
public:
    /** A form fill over FRAME's document, read as a page of kind TYPE: 0 the movie database's title page, 1
       the store's product page, anything else no page that can be read. Pictures come through FETCH. Null
       when FRAME has no document. */
    [[nodiscard]] static std::unique_ptr<FormFill> initWithWebFrame(WebFrame& frame, int type,
                                                                    ImageFetch fetch);

    /** What the page has, each text and each list of names cut to what a form can show; null for a type
       without an extractor. The page is read at the first call only. The record belongs to this object and
       goes with it. */
    [[nodiscard]] const FormFillInfo* formFillInfo();

    /** Reads the document as the movie database's page, into a fresh record. Always true. */
    bool parseImdb();
    /** Reads the document as the store's page, into a fresh record. Always true. */
    bool parseAmazon();

private:
    FormFill(std::shared_ptr<const DomDocument> document, int type, ImageFetch fetch);

    int formType;
    std::shared_ptr<const DomDocument> domDocument;
    std::unique_ptr<FormFillInfo> info;
    ImageFetch fetch_;
};

} // namespace velmora
