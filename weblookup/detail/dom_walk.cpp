#include "dom_walk.h"

namespace velmora {

namespace {

/** NODE or the first sibling behind it whose class is exactly CLS. */
const DomNode* firstFrom(const DomNode* node, DomClass cls) {
    while (node && node->domClass != cls) {
        node = node->nextSibling;
    }
    return node;
}

} // namespace

const DomNode* get_first_sibling_of_type(const DomNode* node, DomClass cls) {
    return firstFrom(node->nextSibling, cls);
}

const DomNode* get_first_child_of_type(const DomNode* node, DomClass cls) {
    return firstFrom(node->firstChild, cls);
}

std::optional<QStringList> imdb_parse_directors(const DomNode* node) {
    QStringList names;
    const DomNode* anchor = get_first_sibling_of_type(node, DomClass::DOMHTMLAnchorElement);
    for (; anchor; anchor = get_first_sibling_of_type(anchor, DomClass::DOMHTMLAnchorElement)) {
        if (const DomNode* const text = get_first_child_of_type(anchor, DomClass::DOMText)) {
            names.append(text->data.value_or(QString()).trimmed());
        }
    }
    return unlessEmpty(names);
}

std::optional<QString> leadingText(const DomNode* node) {
    const DomNode* const child = node->firstChild;
    return child && child->domClass == DomClass::DOMText ? child->data : std::nullopt;
}

std::optional<QString> followingText(const DomNode* node) {
    const DomNode* const text = get_first_sibling_of_type(node, DomClass::DOMText);
    return text ? std::optional(text->data.value_or(QString()).trimmed()) : std::nullopt;
}

std::optional<QString> titleText(const DomDocument& document) {
    const std::vector<const DomNode*> titles = document.getElementsByTagName(u"title");
    if (titles.empty() || !titles.front()->firstChild) {
        return std::nullopt;
    }
    return titles.front()->firstChild->data;
}

std::optional<QStringList> unlessEmpty(const QStringList& list) {
    return list.isEmpty() ? std::nullopt : std::optional(list);
}

} // namespace velmora
