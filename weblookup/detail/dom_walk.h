#pragma once

#include "platform/web/dom_node.h"

#include <QString>
#include <QStringList>

#include <optional>

/** The steps that the page extractors walk by. All of them look at siblings and direct children only. */
namespace velmora {

/** The first of the siblings behind NODE whose class is exactly CLS; null when there is none. Never NODE
   itself. */
[[nodiscard]] const DomNode* get_first_sibling_of_type(const DomNode* node, DomClass cls);

/** The first direct child of NODE whose class is exactly CLS; null when there is none. */
[[nodiscard]] const DomNode* get_first_child_of_type(const DomNode* node, DomClass cls);

/** The names in the anchors behind NODE, a label: of each anchor the first direct text child, trimmed;
   anchors without one are skipped. The walk goes on to the last sibling, over any later label. No value when
   there is no name. */
[[nodiscard]] std::optional<QStringList> imdb_parse_directors(const DomNode* node);

/** The text of NODE's first child if that child is exactly a text node, else no value. */
[[nodiscard]] std::optional<QString> leadingText(const DomNode* node);

/** The text of the first text node behind NODE, trimmed; no value when there is none. */
[[nodiscard]] std::optional<QString> followingText(const DomNode* node);

/** The text of the first child of the document's first "title" element, as it stands; no value when there is
   no such element, no child or no text. */
[[nodiscard]] std::optional<QString> titleText(const DomDocument& document);

/** A list without elements is no value. */
[[nodiscard]] std::optional<QStringList> unlessEmpty(const QStringList& list);

} // namespace velmora
