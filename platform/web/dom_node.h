#pragma once

#include <QString>
#include <QStringView>

#include <deque>
#include <optional>
#include <utility>
#include <vector>

/** A page's document as a plain tree: what a web engine showed at one moment, without the engine. Nothing is
   cleaned up: comments, white-space text and adjacent text nodes are nodes of their own, and rows that a
   script put straight into a table have no tbody around them. */
namespace velmora {

/** The exact class of a node. A node of a derived class, or of one that is not listed, is Other; a CDATA
   section, for one, is no DOMText. Cells of both kinds, td and th, are DOMHTMLTableCellElement. */
enum class DomClass : unsigned char {
    Other,
    DOMText,
    DOMHTMLAnchorElement,
    DOMHTMLTableRowElement,
    DOMHTMLTableCellElement,
    DOMHTMLImageElement,
    DOMHTMLLIElement,
    DOMHTMLBRElement,
};

using DomAttributes = std::vector<std::pair<QString, QString>>;

/** One node. The links belong to the document that holds it and live as long. */
struct DomNode {
    DomClass domClass = DomClass::Other;
    /** Whether this is an element of any kind, as opposed to a text, a comment, a document type. */
    bool isElement = false;
    /** Whether this is an HTML element of any kind, HTMLElement itself included. */
    bool isHTMLElement = false;
    /** "#text", "#comment", "DIV", "svg", ... */
    QString nodeName;
    /** The text of a text, comment or CDATA node; no value for nodes that have no text of their own. */
    std::optional<QString> data;
    /** The class attribute as it stands; empty for what is no HTML element. */
    QString className;
    /** Anchors only. */
    QString name;
    /** Images only: the address as the page resolved it. Raw text when it could not be resolved; empty when
       it is absent or blank, which a page would resolve to its own address. */
    QString src;
    DomAttributes attributes;

    const DomNode* parentNode = nullptr;
    const DomNode* firstChild = nullptr;
    const DomNode* lastChild = nullptr;
    const DomNode* nextSibling = nullptr;

    /** The value of the attribute NAME, given in lower case; no value when the element has none. */
    [[nodiscard]] std::optional<QString> getAttribute(QStringView attribute) const;
    /** Whether this is an element named TAG, in any case. */
    [[nodiscard]] bool hasTagName(QStringView tag) const;
};

/** A document and all its nodes. Not copied; addresses of nodes stay valid while it lives. */
class DomDocument {
public:
    DomDocument();
    DomDocument(const DomDocument&) = delete;
    DomDocument& operator=(const DomDocument&) = delete;

    /** The document node, parent of the root element. */
    [[nodiscard]] const DomNode* root() const { return &nodes_.front(); }

    /** Adds NODE as the last child of PARENT, a node of this document, and returns the node in its place. The
       links that NODE brings along are ignored. */
    DomNode* append(DomNode* parent, DomNode node);
    [[nodiscard]] DomNode* root() { return &nodes_.front(); }

    /** All elements named TAG (any case), in document order. */
    [[nodiscard]] std::vector<const DomNode*> getElementsByTagName(QStringView tag) const;

    /** Where the page came from. */
    QString url;

private:
    std::deque<DomNode> nodes_;
};

} // namespace velmora
