#include "dom_node.h"

#include <algorithm>

namespace velmora {

namespace {

/** The node after NODE in document order; null after the last. Goes by links, so that a tree of any depth
   needs no stack. */
const DomNode* following(const DomNode* node) {
    if (node->firstChild) {
        return node->firstChild;
    }
    while (node && !node->nextSibling) {
        node = node->parentNode;
    }
    return node ? node->nextSibling : nullptr;
}

} // namespace

std::optional<QString> DomNode::getAttribute(QStringView attribute) const {
    const auto found = std::find_if(attributes.begin(), attributes.end(),
                                    [attribute](const auto& entry) { return entry.first == attribute; });
    return found == attributes.end() ? std::nullopt : std::optional(found->second);
}

bool DomNode::hasTagName(QStringView tag) const {
    return isElement && QStringView(nodeName).compare(tag, Qt::CaseInsensitive) == 0;
}

DomDocument::DomDocument() {
    DomNode document;
    document.nodeName = QStringLiteral("#document");
    nodes_.push_back(std::move(document));
}

DomNode* DomDocument::append(DomNode* parent, DomNode node) {
    nodes_.push_back(std::move(node));
    DomNode* const added = &nodes_.back();
    added->parentNode = parent;
    added->firstChild = nullptr;
    added->lastChild = nullptr;
    added->nextSibling = nullptr;
    if (!parent->lastChild) {
        parent->firstChild = added;
    } else {
        // Only the document hands out its nodes as const, so the last child may be linked to its new sibling.
        const_cast<DomNode*>(parent->lastChild)->nextSibling = added;
    }
    parent->lastChild = added;
    return added;
}

std::vector<const DomNode*> DomDocument::getElementsByTagName(QStringView tag) const {
    std::vector<const DomNode*> found;
    for (const DomNode* node = root(); node; node = following(node)) {
        if (node->hasTagName(tag)) {
            found.push_back(node);
        }
    }
    return found;
}

} // namespace velmora
