#pragma once

#include "platform/web/dom_node.h"
#include "weblookup/form_fill_info.h"

namespace velmora {

/** Reads the movie database's title page into INFO, a fresh record. It is a fixed walk over the page's
   structure: what another page does not have is simply not found. When a label occurs twice the last one
   wins, even when it gives nothing; only the year keeps that of an earlier good date.

   FETCH is called for the picture of each "poster" anchor in turn, and the slot ends with the result of its
   last call. */
void readImdbPage(const DomDocument& page, const ImageFetch& fetch, FormFillInfo& info);

} // namespace velmora
