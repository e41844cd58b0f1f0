#pragma once

#include "platform/web/dom_node.h"
#include "support/qt_printing.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

/** Pages for the extractors' tests, written down by hand:

        page({div("info", {h5("Genre:"), a("Drama")})})  */
namespace velmora::test {

struct Dom {
    DomNode node;
    std::vector<Dom> children;
};

using Doms = std::vector<Dom>;

[[nodiscard]] Dom text(const QString& data);
[[nodiscard]] Dom comment(const QString& data);
/** A CDATA section: text of another class than a text node's. */
[[nodiscard]] Dom cdata(const QString& data);

/** An HTML element of the class that its tag has. */
[[nodiscard]] Dom element(const QString& tag, const Doms& children = {},
                          const DomAttributes& attributes = {});
/** An element outside HTML, as an SVG element is. */
[[nodiscard]] Dom foreignElement(const QString& tag, const Doms& children = {});
/** A node that is no element but has a name, as a document type or a processing instruction does. */
[[nodiscard]] Dom noElement(const QString& name, const Doms& children = {});
[[nodiscard]] Dom withClass(Dom dom, const QString& className);

[[nodiscard]] Dom title(const QString& data);
[[nodiscard]] Dom h5(const QString& label);
[[nodiscard]] Dom b(const QString& label);
[[nodiscard]] Dom br();
[[nodiscard]] Dom a(const QString& label);
[[nodiscard]] Dom div(const QString& className, const Doms& children);
[[nodiscard]] Dom img(const QString& src, const DomAttributes& attributes = {});

[[nodiscard]] std::shared_ptr<const DomDocument> page(const Doms& children);

/** The first element named TAG. */
[[nodiscard]] const DomNode* first(const DomDocument& document, QStringView tag);

} // namespace velmora::test
