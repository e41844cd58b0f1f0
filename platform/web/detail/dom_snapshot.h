#pragma once

#include "platform/web/dom_node.h"

#include <memory>

/** The text in which a page's document travels from the web engine's process to ours: one JSON object

      { "url": "http://...", "nodes": [ node, node, ... ] }

   with all nodes below the document node in document order, each an array of up to nine columns; columns
   missing at the end are empty:

      0  parent      index of the parent in "nodes", below the own one; -1 for children of the document node
      1  class       number of the DomClass
      2  nodeName    text
      3  data        text, or null
      4  html        1 for an HTML element, 0 for another element, missing for what is none
      5  className   text
      6  attributes  array of name, value, name, value, ...
      7  name        text
      8  src         text

   The list is flat because readers of nested JSON give up at depths that a page can easily have. */
namespace velmora {

/** The document that TEXT describes; null when TEXT is not of this form. */
[[nodiscard]] std::shared_ptr<const DomDocument> readDomSnapshot(const QString& text);

} // namespace velmora
