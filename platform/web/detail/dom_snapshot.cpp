#include "dom_snapshot.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

namespace velmora {

namespace {

enum Column { Parent, Class, NodeName, Data, Html, ClassName, Attributes, Name, Src };

constexpr int lastClass = static_cast<int>(DomClass::DOMHTMLBRElement);

DomAttributes readAttributes(const QJsonArray& flat) {
    DomAttributes attributes;
    attributes.reserve(static_cast<std::size_t>(flat.size() / 2));
    for (qsizetype i = 0; i + 1 < flat.size(); i += 2) {
        attributes.emplace_back(flat.at(i).toString(), flat.at(i + 1).toString());
    }
    return attributes;
}

std::optional<DomNode> readNode(const QJsonArray& columns) {
    const int domClass = columns.at(Class).toInt(-1);
    if (domClass < 0 || domClass > lastClass || !columns.at(NodeName).isString()) {
        return std::nullopt;
    }
    DomNode node;
    node.domClass = static_cast<DomClass>(domClass);
    node.nodeName = columns.at(NodeName).toString();
    if (columns.at(Data).isString()) {
        node.data = columns.at(Data).toString();
    }
    node.isElement = columns.at(Html).isDouble();
    node.isHTMLElement = columns.at(Html).toInt() == 1;
    node.className = columns.at(ClassName).toString();
    node.attributes = readAttributes(columns.at(Attributes).toArray());
    node.name = columns.at(Name).toString();
    node.src = columns.at(Src).toString();
    return node;
}

} // namespace

std::shared_ptr<const DomDocument> readDomSnapshot(const QString& text) {
    const QJsonObject snapshot = QJsonDocument::fromJson(text.toUtf8()).object();
    if (!snapshot.value(QLatin1String("url")).isString() ||
        !snapshot.value(QLatin1String("nodes")).isArray()) {
        return nullptr;
    }
    auto document = std::make_shared<DomDocument>();
    document->url = snapshot.value(QLatin1String("url")).toString();
    std::vector<DomNode*> added;
    const QJsonArray nodes = snapshot.value(QLatin1String("nodes")).toArray();
    added.reserve(static_cast<std::size_t>(nodes.size()));
    for (const auto& value : nodes) {
        const QJsonArray columns = value.toArray();
        std::optional<DomNode> node = readNode(columns);
        const int parent = columns.at(Parent).toInt(-2);
        if (!node || parent < -1 || parent >= static_cast<int>(added.size())) {
            return nullptr;
        }
        DomNode* const place = parent == -1 ? document->root() : added[static_cast<std::size_t>(parent)];
        added.push_back(document->append(place, std::move(*node)));
    }
    return document;
}

} // namespace velmora
