#include "dom_builder.h"

#include <map>

namespace velmora::test {

namespace {

DomClass classOfTag(const QString& tag) {
    static const std::map<QString, DomClass> classes = {
        {"A", DomClass::DOMHTMLAnchorElement},     {"TR", DomClass::DOMHTMLTableRowElement},
        {"TD", DomClass::DOMHTMLTableCellElement}, {"TH", DomClass::DOMHTMLTableCellElement},
        {"IMG", DomClass::DOMHTMLImageElement},    {"LI", DomClass::DOMHTMLLIElement},
        {"BR", DomClass::DOMHTMLBRElement},
    };
    const auto found = classes.find(tag.toUpper());
    return found == classes.end() ? DomClass::Other : found->second;
}

Dom characterData(const QString& name, const QString& data, DomClass domClass) {
    Dom dom;
    dom.node.nodeName = name;
    dom.node.data = data;
    dom.node.domClass = domClass;
    return dom;
}

void appendAll(DomDocument& document, DomNode* parent, const Doms& children) {
    for (const Dom& child : children) {
        appendAll(document, document.append(parent, child.node), child.children);
    }
}

} // namespace

Dom text(const QString& data) {
    return characterData("#text", data, DomClass::DOMText);
}

Dom comment(const QString& data) {
    return characterData("#comment", data, DomClass::Other);
}

Dom cdata(const QString& data) {
    return characterData("#cdata-section", data, DomClass::Other);
}

Dom element(const QString& tag, const Doms& children, const DomAttributes& attributes) {
    Dom dom;
    dom.node.nodeName = tag;
    dom.node.domClass = classOfTag(tag);
    dom.node.isElement = true;
    dom.node.isHTMLElement = true;
    dom.node.attributes = attributes;
    dom.node.name = dom.node.getAttribute(u"name").value_or(QString());
    dom.node.className = dom.node.getAttribute(u"class").value_or(QString());
    dom.children = children;
    return dom;
}

Dom foreignElement(const QString& tag, const Doms& children) {
    Dom dom;
    dom.node.isElement = true;
    dom.node.nodeName = tag;
    dom.children = children;
    return dom;
}

Dom noElement(const QString& name, const Doms& children) {
    Dom dom;
    dom.node.nodeName = name;
    dom.children = children;
    return dom;
}

Dom withClass(Dom dom, const QString& className) {
    dom.node.className = className;
    return dom;
}

Dom title(const QString& data) {
    return element("TITLE", {text(data)});
}

Dom h5(const QString& label) {
    return element("H5", {text(label)});
}

Dom b(const QString& label) {
    return element("B", {text(label)});
}

Dom br() {
    return element("BR");
}

Dom a(const QString& label) {
    return element("A", {text(label)});
}

Dom div(const QString& className, const Doms& children) {
    return withClass(element("DIV", children), className);
}

Dom img(const QString& src, const DomAttributes& attributes) {
    Dom dom = element("IMG", {}, attributes);
    dom.node.src = src;
    return dom;
}

std::shared_ptr<const DomDocument> page(const Doms& children) {
    auto document = std::make_shared<DomDocument>();
    document->url = "http://films.example/page";
    appendAll(*document, document->root(), children);
    return document;
}

const DomNode* first(const DomDocument& document, QStringView tag) {
    return document.getElementsByTagName(tag).at(0);
}

} // namespace velmora::test
