#pragma once

#include "taglib/asf/content_description.h"
#include "taglib/asf/ext_content_description.h"
#include "taglib/file_info.h"

namespace velmora {

/** Puts every field of INFO whose flag is set into the two records, or takes it out where INFO has none
   (null, 0), as tag_fields.h has it.

   Of a pair of names the older one is kept current where the file has it; the other one is made only where
   neither is there. A picture that can't be stored leaves the old one, which is no failure. False when
   memory is exhausted. */
[[nodiscard]] bool asf_apply_file_info(const _file_info_t& info, _asf_content_description_t* cd,
                                       _asf_ext_content_description_t* ecd);

} // namespace velmora
