#include "store_page.h"

#include "dom_walk.h"
#include "page_values.h"

#include "platform/log.h"

namespace velmora {

namespace {

/** "store: title: kind: people": from five parts on the title itself holds the separator. */
void readTitle(const DomDocument& page, FormFillInfo& info) {
    const std::optional<QString> text = titleText(page);
    if (!text) {
        return;
    }
    const QString separator = QStringLiteral(": ");
    const QStringList parts = text->split(separator, Qt::KeepEmptyParts);
    if (parts.size() == 1) {
        info.title = text;
    } else if (parts.size() <= 4) {
        info.title = parts.at(1);
    } else {
        info.title = parts.mid(1, parts.size() - 3).join(separator);
    }
}

std::optional<QString> readRating(const DomNode* label) {
    const DomNode* const image = get_first_sibling_of_type(label, DomClass::DOMHTMLImageElement);
    return image ? image->getAttribute(u"alt") : std::nullopt;
}

/** What has been met on the way through the lists. Of labels that read all that follows them, and of which
   the last one counts, only the last one is read: a page can have very many. */
struct Labels {
    const DomNode* actors = nullptr;
    const DomNode* directors = nullptr;
    const DomNode* rating = nullptr;
    /** Whether the next text among the siblings is that of a release date. */
    bool releaseDateExpected = false;
};

void noteLabel(const DomNode* label, Labels& met) {
    const std::optional<QString> text = leadingText(label);
    if (!text) {
        return;
    }
    if (text->contains(QLatin1String("Actors:"))) {
        appLog(QStringLiteral("looking for actors\n"));
        met.actors = label;
    } else if (text->contains(QLatin1String("Directors:"))) {
        met.directors = label;
    } else if (text->contains(QLatin1String("Rating"))) {
        met.rating = label;
    } else if (text->contains(QLatin1String("Release Date:"))) {
        met.releaseDateExpected = true;
    }
}

void readLabels(const Labels& met, FormFillInfo& info) {
    if (met.actors) {
        info.cast = imdb_parse_directors(met.actors);
    }
    if (met.directors) {
        info.directors = imdb_parse_directors(met.directors);
    }
    if (met.rating) {
        info.rating = readRating(met.rating);
    }
}

void readItem(const DomNode* item, Labels& met, FormFillInfo& info) {
    met.releaseDateExpected = false;
    for (const DomNode* child = item->firstChild; child; child = child->nextSibling) {
        if (child->domClass == DomClass::DOMText && met.releaseDateExpected) {
            met.releaseDateExpected = false;
            setReleaseDate(info, child->data.value_or(QString()).trimmed(), QStringLiteral("MMMM d, yyyy"));
        } else if (child->hasTagName(u"b")) {
            noteLabel(child, met);
        }
    }
    if (met.releaseDateExpected) {
        info.releaseDate = std::nullopt;
    }
}

void readDetails(const DomDocument& page, FormFillInfo& info) {
    Labels met;
    for (const DomNode* const list : page.getElementsByTagName(u"ul")) {
        const DomNode* item = get_first_child_of_type(list, DomClass::DOMHTMLLIElement);
        for (; item; item = get_first_sibling_of_type(item, DomClass::DOMHTMLLIElement)) {
            readItem(item, met, info);
        }
    }
    readLabels(met, info);
}

/** Texts and line breaks from the first text behind LABEL on, up to any other node. */
std::optional<QString> descriptionBehind(const DomNode* label) {
    std::optional<QString> description;
    const DomNode* node = get_first_sibling_of_type(label, DomClass::DOMText);
    for (; node; node = node->nextSibling) {
        if (node->domClass == DomClass::DOMText) {
            const QString text = node->data.value_or(QString()).trimmed();
            if (!text.isEmpty()) {
                if (!description) {
                    description.emplace();
                }
                description->append(text);
            }
        } else if (node->domClass != DomClass::DOMHTMLBRElement) {
            break;
        } else if (description) {
            description->append(QLatin1Char('\n'));
        }
    }
    return description;
}

/** Only the first label counts, also when it gives nothing. */
void readDescription(const DomDocument& page, FormFillInfo& info) {
    for (const DomNode* const label : page.getElementsByTagName(u"b")) {
        const std::optional<QString> text = leadingText(label);
        if (text && text->contains(QLatin1String("Product Description"))) {
            info.description = descriptionBehind(label);
            return;
        }
    }
}

/** The address of the large picture that goes with the product image in CELL; no value when CELL does not
   hold one or its address does not have the mark of the small size. */
std::optional<QString> largeImageAddress(const DomNode* cell) {
    if (cell->getAttribute(u"id") != QLatin1String("prodImageCell")) {
        return std::nullopt;
    }
    const DomNode* const anchor = get_first_child_of_type(cell, DomClass::DOMHTMLAnchorElement);
    const DomNode* const image =
        anchor ? get_first_child_of_type(anchor, DomClass::DOMHTMLImageElement) : nullptr;
    if (!image || image->getAttribute(u"id") != QLatin1String("prodImage")) {
        return std::nullopt;
    }
    const QLatin1String smallMark("_AA240_");
    const qsizetype mark = image->src.indexOf(smallMark);
    if (mark < 0) {
        return std::nullopt;
    }
    return image->src.left(mark) + QLatin1String("_SS500_") + image->src.mid(mark + smallMark.size());
}

void readCover(const DomDocument& page, const ImageFetch& fetch, FormFillInfo& info) {
    for (const DomNode* const cell : page.getElementsByTagName(u"td")) {
        const std::optional<QString> address = largeImageAddress(cell);
        if (!address) {
            continue;
        }
        appLog(QStringLiteral("getting cover art from %1\n").arg(*address));
        if (const std::optional<QUrl> url = imageUrl(*address)) {
            info.coverArt = fetch(*url);
            if (!info.coverArt.isNull()) {
                return;
            }
        }
    }
}

} // namespace

void readStorePage(const DomDocument& page, const ImageFetch& fetch, FormFillInfo& info) {
    readTitle(page, info);
    readDetails(page, info);
    readDescription(page, info);
    readCover(page, fetch, info);
}

} // namespace velmora
