#include "imdb_page.h"

#include "dom_walk.h"
#include "page_values.h"

#include "platform/log.h"

namespace velmora {

namespace {

void readTitle(const DomDocument& page, FormFillInfo& info) {
    const std::optional<QString> text = titleText(page);
    if (!text) {
        return;
    }
    appLog(QStringLiteral("<title> tag has \"%1\"\n").arg(*text));
    // Untrimmed: the blank before the year stays.
    info.title = text->left(text->lastIndexOf(QLatin1Char('(')));
}

/** The first direct text of each anchor behind HEADING that has one, untrimmed. */
QStringList linkedTexts(const DomNode* heading) {
    QStringList texts;
    const DomNode* anchor = get_first_sibling_of_type(heading, DomClass::DOMHTMLAnchorElement);
    for (; anchor; anchor = get_first_sibling_of_type(anchor, DomClass::DOMHTMLAnchorElement)) {
        if (const DomNode* const text = get_first_child_of_type(anchor, DomClass::DOMText)) {
            texts.append(text->data.value_or(QString()));
        }
    }
    return texts;
}

/** TEXT up to its third blank or its end; no value when it has less than two blanks. */
std::optional<QString> firstThreeParts(const QString& text) {
    qsizetype blank = -1;
    for (int part = 1; part <= 3; ++part) {
        blank = text.indexOf(QLatin1Char(' '), blank + 1);
        if (blank < 0) {
            return part < 3 ? std::nullopt : std::optional(text);
        }
    }
    return text.left(blank);
}

void readReleaseDate(const QString& text, FormFillInfo& info) {
    setReleaseDate(info, firstThreeParts(text.trimmed()), QStringLiteral("d MMMM yyyy"));
}

std::optional<QStringList> readGenres(const DomNode* heading) {
    QStringList genres = linkedTexts(heading);
    genres.removeAll(QStringLiteral("more"));
    return unlessEmpty(genres);
}

std::optional<QString> readCertification(const DomNode* heading) {
    const QString country = QStringLiteral("USA:");
    for (const QString& text : linkedTexts(heading)) {
        if (text.startsWith(country)) {
            const QString rating = text.mid(country.size());
            return rating == QLatin1String("Unrated") ? QStringLiteral("NR") : rating;
        }
    }
    return std::nullopt;
}

/** What has been met on the way through the sections. Of headings that read all that follows them, and of
   which the last one counts, only the last one is read: a page can have very many. */
struct Headings {
    const DomNode* director = nullptr;
    const DomNode* genre = nullptr;
    const DomNode* plotOutline = nullptr;
    const DomNode* certification = nullptr;
    /** Whether the next text among the siblings is that of a release date. */
    bool releaseDateExpected = false;
};

void noteHeading(const DomNode* heading, Headings& met) {
    const std::optional<QString> label = leadingText(heading);
    if (!label) {
        return;
    }
    if (label->contains(QLatin1String("Director:"))) {
        met.director = heading;
    } else if (label->contains(QLatin1String("Release Date:"))) {
        met.releaseDateExpected = true;
    } else if (label->contains(QLatin1String("Genre:"))) {
        met.genre = heading;
    } else if (label->contains(QLatin1String("Plot Outline:"))) {
        met.plotOutline = heading;
    } else if (label->contains(QLatin1String("Certification:"))) {
        met.certification = heading;
    }
}

void readHeadings(const Headings& met, FormFillInfo& info) {
    if (met.director) {
        info.directors = imdb_parse_directors(met.director);
    }
    if (met.genre) {
        info.genres = readGenres(met.genre);
    }
    if (met.plotOutline) {
        info.description = followingText(met.plotOutline);
    }
    if (met.certification) {
        info.rating = readCertification(met.certification);
    }
}

/** Adds the names in ROW's second cell; cells of both kinds count. */
void addActors(const DomNode* row, QStringList& cast) {
    const DomNode* const first = get_first_child_of_type(row, DomClass::DOMHTMLTableCellElement);
    const DomNode* const second =
        first ? get_first_sibling_of_type(first, DomClass::DOMHTMLTableCellElement) : nullptr;
    if (!second) {
        return;
    }
    for (const DomNode* child = second->firstChild; child; child = child->nextSibling) {
        if (child->domClass == DomClass::DOMHTMLAnchorElement) {
            if (const std::optional<QString> name = leadingText(child)) {
                cast.append(*name);
            }
        }
    }
}

/** The first tbody takes the walk over for good: what stands behind it in the table is not read. */
std::optional<QStringList> readCast(const DomNode* table) {
    QStringList cast;
    bool inBody = false;
    const DomNode* node = table->firstChild;
    while (node) {
        if (!inBody && node->hasTagName(u"tbody")) {
            inBody = true;
            node = node->firstChild;
            continue;
        }
        if (node->domClass == DomClass::DOMHTMLTableRowElement) {
            addActors(node, cast);
        }
        node = node->nextSibling;
    }
    return unlessEmpty(cast);
}

void readSection(const DomNode* section, Headings& met, FormFillInfo& info) {
    met.releaseDateExpected = false;
    for (const DomNode* child = section->firstChild; child; child = child->nextSibling) {
        if (child->domClass == DomClass::DOMText && met.releaseDateExpected) {
            met.releaseDateExpected = false;
            readReleaseDate(child->data.value_or(QString()), info);
        } else if (child->hasTagName(u"h5")) {
            noteHeading(child, met);
        } else if (child->hasTagName(u"table") && child->className == QLatin1String("cast")) {
            info.cast = readCast(child);
        }
    }
    if (met.releaseDateExpected) {
        info.releaseDate = std::nullopt;
    }
}

void readSections(const DomDocument& page, FormFillInfo& info) {
    Headings met;
    for (const DomNode* const section : page.getElementsByTagName(u"div")) {
        if (section->isHTMLElement && section->className == QLatin1String("info")) {
            readSection(section, met, info);
        }
    }
    readHeadings(met, info);
}

/** Fetches the images of one anchor until one comes. Every result is kept, a failed fetch's too. */
void readPoster(const DomNode* anchor, const ImageFetch& fetch, FormFillInfo& info) {
    for (const DomNode* child = anchor->firstChild; child; child = child->nextSibling) {
        if (child->domClass != DomClass::DOMHTMLImageElement) {
            continue;
        }
        if (const std::optional<QUrl> url = imageUrl(child->src)) {
            info.coverArt = fetch(*url);
            if (!info.coverArt.isNull()) {
                return;
            }
        }
    }
}

} // namespace

void readImdbPage(const DomDocument& page, const ImageFetch& fetch, FormFillInfo& info) {
    readTitle(page, info);
    readSections(page, info);
    for (const DomNode* const anchor : page.getElementsByTagName(u"a")) {
        if (anchor->name == QLatin1String("poster")) {
            readPoster(anchor, fetch, info);
        }
    }
}

} // namespace velmora
