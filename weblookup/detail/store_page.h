#pragma once

#include "platform/web/dom_node.h"
#include "weblookup/form_fill_info.h"

namespace velmora {

/** Reads the store's product page into INFO, a fresh record. It is a fixed walk over the page's structure:
   what another page does not have is simply not found. When a label occurs twice the last one wins, even when
   it gives nothing; only the year keeps that of an earlier good date. Genres are never found here.

   FETCH is called for the large picture of each product image in turn, until one comes. */
void readStorePage(const DomDocument& page, const ImageFetch& fetch, FormFillInfo& info);

} // namespace velmora
